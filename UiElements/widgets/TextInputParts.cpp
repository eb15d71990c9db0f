// SPDX-License-Identifier: Apache-2.0
#include "OxaLabel.h"
#include "OxaLineEdit.h"
#include "TextInputParts_p.h"

#include <UiElements/svg/OxaSvgPushButton.h>

namespace {

constexpr QSize searchIconSize(12, 12);

} // namespace

OxaLineEdit *TextInputParts::makeLineEdit(QWidget *parent)
{
    auto *lineEdit = new OxaLineEdit(parent);
    lineEdit->setObjectName(QStringLiteral("textInput"));
    lineEdit->setFocusPolicy(Qt::StrongFocus);
    lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return lineEdit;
}

OxaLabel *TextInputParts::makeCounter(QWidget *parent)
{
    auto *counter = new OxaLabel(parent);
    counter->setObjectName(QStringLiteral("textInputCounterLabel"));
    counter->hide();
    counter->setFocusPolicy(Qt::NoFocus);
    return counter;
}

OxaSvgPushButton *TextInputParts::makeActionButton(const QString &objectName, QWidget *parent)
{
    auto *button = new OxaSvgPushButton(parent);
    button->setObjectName(objectName);
    button->hide();
    button->setFixedSize(actionIconSize);
    OxaCSSData round;
    round.borderTop = round.borderRight = round.borderBottom = round.borderLeft = true;
    round.borderRadius = static_cast<quint8>(button->height() / 2);
    button->setCSS(round);
    return button;
}

OxaSvgPushButton *TextInputParts::makeSearchIcon(QWidget *parent)
{
    auto *icon = new OxaSvgPushButton(parent, QAccessible::Graphic);
    icon->setObjectName(QStringLiteral("searchIcon"));
    icon->setFlat(true); // The style would draw a button around the picture.
    icon->hide();
    icon->setFocusPolicy(Qt::NoFocus);
    icon->setFixedSize(searchIconSize);
    icon->setSvgIconSize(searchIconSize);
    return icon;
}

void TextInputParts::setIconSizes(const QPointer<OxaSvgPushButton> &button, const QSize &size)
{
    if (!button)
        return;
    button->resize(size);
    button->setIconSize(size);
    button->setSvgIconSize(size);
}

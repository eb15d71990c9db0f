// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Faces.h"
#include "support/Guards.h"
#include "support/SignalLog.h"

#include <UiElements/widgets/OxaComboBox.h>

#include <QAbstractItemView>
#include <QMouseEvent>

#include <functional>

/// Combo boxes for tests, and what their style texts are expected to be.
namespace ComboBoxes {

inline const QString backgroundName = QStringLiteral("oxa-rills-combobox-background");
inline const QString borderName = QStringLiteral("oxa-rills-combobox-border");
inline const QString textName = QStringLiteral("oxa-rills-combobox-text");
inline const QString arrowName = QStringLiteral("oxa-rills-combobox-dropdown-arrow");

/// Returns a store of the four sets that a combo box asks for, and of \a others.
inline OxaColorSetMap store(std::initializer_list<OxaColorSet> others = {})
{
    OxaColorSetMap sets = ColorSets::storeOf({
            OxaColorSet(backgroundName, QColor(10, 20, 30)),
            OxaColorSet(borderName, QColor(40, 50, 60)),
            OxaColorSet(textName, QColor(70, 80, 90)),
            Faces::colors(arrowName, 240),
    });
    for (const OxaColorSet &set : others)
        sets[set.name.toStdString()] = set;
    return sets;
}

/// What differs between the style texts of combo boxes.
struct Field
{
    QString name = QStringLiteral("box");
    int leftPadding = 12;
    int dropDownWidth = 22;
    int arrowPadding = 5;
    QSize arrow { 12, 12 };
    QString borders = QStringLiteral("$borders: all; $borderWidth:1;$borderRadius:1;");
    QString background = backgroundName;
    QString border = borderName;
    QString text = textName;
};

/// Returns the rules of \a field, which both its style text and its finished sheet end with.
inline QString rulesOf(const Field &field)
{
    return QStringLiteral("OxaComboBox#%1 {combobox-popup: 0;padding-left: %2px;"
                          "padding-right: 4px;}"
                          "OxaComboBox::drop-down {background-color: transparent; width: %3px;"
                          "padding-left: %4px;padding-right: %4px;}"
                          "OxaComboBox#%1::down-arrow {width: %5px;height %6px; }")
            .arg(field.name, QString::number(field.leftPadding),
                 QString::number(field.dropDownWidth), QString::number(field.arrowPadding),
                 QString::number(field.arrow.width()), QString::number(field.arrow.height()));
}

/// Returns the style text of \a field.
inline QString styleTextOf(const Field &field)
{
    return QStringLiteral("%1 $backgroundColors: %2; $borderColors: %3; $textColors: %4;%5")
            .arg(field.borders, field.background, field.border, field.text, rulesOf(field));
}

/// What differs between the sheets of lists: colours, where an empty one has no declaration.
struct List
{
    QString background = QStringLiteral("rgba(10,20,30,1.0)");
    QString selection;
    int radius = 0;
    QString border = QStringLiteral("rgba(40,50,60,1.0)");
    QString text = QStringLiteral("rgba(70,80,90,1.0)");
};

/// Returns the sheet of \a list.
inline QString sheetOf(const List &list)
{
    const auto declaration = [](const char *property, const QString &color) {
        return color.isEmpty() ? QString() : QLatin1String(property) + color + QLatin1Char(';');
    };
    return QStringLiteral("QAbstractItemView#rillsAstractItemView {")
            + declaration("background-color: ", list.background)
            + declaration("selection-background-color: ", list.selection)
            + QStringLiteral("border-radius: %1px;").arg(list.radius)
            + declaration("border: 1px solid ", list.border) + declaration("color: ", list.text)
            + QLatin1Char('}');
}

/// Gives access to protected functions, and records calls of virtual ones and signals in a log.
class OpenBox : public OxaComboBox
{
public:
    explicit OpenBox(QWidget *parent = nullptr, const QString &name = QStringLiteral("box"))
        : OxaComboBox(parent)
    {
        setObjectName(name);
        addItems({ QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three") });
        log.record(this, &OxaComboBox::cssChanged, QStringLiteral("cssChanged"));
    }

    using OxaComboBox::eventFilter;

    void onThemeChanged() override
    {
        log.note(QStringLiteral("onThemeChanged"));
        OxaComboBox::onThemeChanged();
    }
    void applyCustomCSS() override
    {
        log.note(QStringLiteral("apply"));
        OxaComboBox::applyCustomCSS();
    }
    void hidePopup() override
    {
        log.note(QStringLiteral("hidePopup"));
        OxaComboBox::hidePopup();
    }

    SignalLog log;
};

/// Something done with a box.
using Action = std::function<void(OpenBox &)>;

/// Presses the left button in the content area of \a box.
inline void press(OpenBox &box)
{
    box.resize(120, 30);
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &event);
}

/// Presses Space in the list of \a box.
inline void pressSpace(OpenBox &box)
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(box.view(), &event);
}

/// What a box logs each time it is styled.
inline const QString styled = QStringLiteral("apply | cssChanged | cssChanged");

} // namespace ComboBoxes

Q_DECLARE_METATYPE(ComboBoxes::Action)

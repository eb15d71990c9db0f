// SPDX-License-Identifier: Apache-2.0
#include "Looks.h"

#include "RoomsApplication.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>
#include <UiElements/widgets/UTContextMenuUtils.h>

#include <QGuiApplication>

namespace {

constexpr int buttonHeight = 32;

QString buttonName(Looks::Button kind)
{
    switch (kind) {
    case Looks::Button::Accent:
        return QStringLiteral("accent");
    case Looks::Button::Outline:
        return QStringLiteral("outline");
    case Looks::Button::Quiet:
        return QStringLiteral("quiet");
    case Looks::Button::Chosen:
        return QStringLiteral("chosen");
    case Looks::Button::Danger:
        return QStringLiteral("danger");
    }
    return {};
}

} // namespace

QString Looks::buttonStyle(Button kind, int radius)
{
    return QStringLiteral("$backgroundColors: %1-button; $borderColors: %1-button-border; "
                          "$textColors: %1-button-text; $borders: all; $borderWidth: 2; "
                          "$borderRadius: %2;")
            .arg(buttonName(kind))
            .arg(radius);
}

OxaSvgPushButton *Looks::makeButton(const QString &text, Button kind, QWidget *parent)
{
    auto *button = new OxaSvgPushButton(text, parent);
    button->setFontToken(OxaFont::Token::SubheaderSecondary);
    button->setTextLeftPadding(16);
    button->setTextRightPadding(16);
    button->setMinimumHeight(buttonHeight);
    button->setCursor(Qt::PointingHandCursor);
    button->setCSS(buttonStyle(kind));
    return button;
}

OxaSvgPushButton *Looks::makeIconButton(const QString &icon, const QString &name, QWidget *parent,
                                        int size)
{
    auto *button = new OxaSvgPushButton(parent);
    button->setSvgIcon(OxaSvgRenderer::resourcePath(icon));
    button->setFixedSize(size, size);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setCursor(Qt::PointingHandCursor);
    button->setCSS(buttonStyle(Button::Quiet));
    return button;
}

void Looks::makeCheckable(OxaSvgPushButton *button, Button kind, int radius)
{
    button->setCheckable(true);
    button->setCSS(buttonStyle(kind, radius));
    QObject::connect(button, &OxaSvgPushButton::toggled, button,
                     [button, kind, radius](bool isChecked) {
                         button->setCSS(buttonStyle(isChecked ? Button::Chosen : kind, radius));
                     });
}

OxaLabel *Looks::makeLabel(const QString &text, OxaFont::Token token, const QString &colors,
                           QWidget *parent)
{
    auto *label = new OxaLabel(text, parent);
    label->setFontToken(token);
    label->setCSS(QStringLiteral("$textColors: %1;").arg(colors));
    return label;
}

void Looks::centre(OxaLabel *label)
{
    const auto centre = [label] { label->setAlignment(Qt::AlignCenter); };
    centre();
    // With another direction a label's text goes to the side where lines begin.
    QObject::connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, label, centre);
}

OxaTextInputFactory Looks::fields()
{
    OxaCSSData normal;
    normal.backgroundColorSetName = QStringLiteral("field-background");
    normal.borderColorSetName = QStringLiteral("field-border");
    normal.textColorSetName = QStringLiteral("field-text"); // For its icons.
    normal.borderTop = normal.borderRight = normal.borderBottom = normal.borderLeft = true;
    normal.borderRadius = 6;
    OxaCSSData focused = normal;
    focused.borderColorSetName = QStringLiteral("field-focus-border");
    OxaCSSData error = normal;
    error.borderColorSetName = QStringLiteral("field-error");
    return OxaTextInputFactory({ normal, focused, error });
}

OxaTextInput *Looks::makeField(const QString &name, QWidget *parent)
{
    OxaTextInput *field = fields().make(parent);
    field->setPlaceholderText(name);
    field->setPlaceholderColorSetName(QStringLiteral("field-placeholder"));
    field->setTextInputAccessibleText(name);
    field->setIcon(OxaSvgRenderer::resourcePath(QStringLiteral("clear_14")));
    field->toggleClearButtonFocus(false);
    field->updateFontToken(OxaFont::Token::BodySecondary);
    // The line edit inside has a background and a frame of its own.
    field->getLineEdit()->setCSS(QStringLiteral("$textColors: field-text;"
                                                "OxaLineEdit { background: transparent;"
                                                " border: none; }"));
    return field;
}

OxaMenu *Looks::makeMenu(QWidget *parent)
{
    auto *menu = new OxaMenu(parent);
    menu->setFontToken(OxaFont::Token::BodySecondary);
    menu->setCSS(UTContextMenuUtils::getContextMenuStyleSheet()
                 + QStringLiteral("QMenu { border: 1px solid $(panel-border); }"));
    return menu;
}

QString Looks::scrollBarRules()
{
    return QStringLiteral(
            "QScrollBar:vertical { width: 12px; background: transparent; }"
            "QScrollBar:horizontal { height: 12px; background: transparent; }"
            "QScrollBar::handle { border-radius: 4px; margin: 2px;"
            " background: $(scroll-handle); }"
            "QScrollBar::handle:vertical { min-height: 32px; }"
            "QScrollBar::handle:horizontal { min-width: 32px; }"
            "QScrollBar::handle:hover { background: $(scroll-handle.hovered); }"
            "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
            "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }");
}

QString Looks::listRules()
{
    return QStringLiteral(
                   "QAbstractItemView { background: transparent; border: none; outline: none; }"
                   "QAbstractItemView::item { border: 2px solid transparent; border-radius: 8px; }"
                   "QAbstractItemView::item:selected { background: $(row.checked); }"
                   "QAbstractItemView::item:hover { background: $(row.hovered); }"
                   "QAbstractItemView::item:focus { border-color: $(focus); }")
            + scrollBarRules();
}

QString Looks::sliderRules()
{
    return QStringLiteral(
                   "QSlider::groove:horizontal { height: 4px; border-radius: 2px;"
                   " background: $(slider-track); }"
                   "QSlider::%1-page:horizontal { border-radius: 2px; background: $(selection); }"
                   "QSlider::handle:horizontal { width: 16px; margin: -6px 0; border-radius: 8px;"
                   " background: $(selection); }"
                   "QSlider::handle:horizontal:hover { background: $(accent-button.hovered); }")
            .arg(QGuiApplication::isRightToLeft() ? QStringLiteral("add") : QStringLiteral("sub"));
}

// SPDX-License-Identifier: Apache-2.0
#include "Looks.h"

#include "RoomsApplication.h"
#include "protocol/Literal.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>
#include <UiElements/widgets/PopupWidget.h>
#include <UiElements/widgets/UTContextMenuUtils.h>

#include <QGuiApplication>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int buttonHeight = 32;

const char *const buttonNames[] = { "accent", "outline", "quiet", "chosen", "danger" };

WidgetData popupLooks(bool isAbove)
{
    return WidgetData(OxaThemeUtils::AppThemeType::Global)
            .arrowPostion(isAbove ? WidgetData::ArrowPostion::Bottom
                                  : WidgetData::ArrowPostion::Top)
            .cornerRadius(WidgetData::PopupSize::Small)
            .activateOnShow(true);
}

void deleteWhenHidden(PopupWidget *popup)
{
    QObject::connect(popup, &PopupWidget::widgetHidden, popup, &QObject::deleteLater);
}

} // namespace

QColor Looks::color(const std::string &name)
{
    return OxaThemeUtils::getColorSet(name, OxaThemeUtils::AppThemeType::Global).normal;
}

void Looks::paintFocus(QPainter *painter, const QRectF &rect, int radius)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color("focus"), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(rect.adjusted(1, 1, -1, -1), radius, radius);
    painter->restore();
}

QString Looks::buttonStyle(Button kind, int radius)
{
    return u"$backgroundColors: %1-button; $borderColors: %1-button-border; "
           "$textColors: %1-button-text; $borders: all; $borderWidth: 2; "
           "$borderRadius: %2;"_s.arg(QLatin1String(buttonNames[int(kind)]))
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
    label->setCSS(u"$textColors: %1;"_s.arg(colors));
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
    normal.backgroundColorSetName = u"field-background"_s;
    normal.borderColorSetName = u"field-border"_s;
    normal.textColorSetName = u"field-text"_s; // For its icons.
    normal.borderTop = normal.borderRight = normal.borderBottom = normal.borderLeft = true;
    normal.borderRadius = 6;
    OxaCSSData focused = normal;
    focused.borderColorSetName = u"field-focus-border"_s;
    OxaCSSData error = normal;
    error.borderColorSetName = u"field-error"_s;
    return OxaTextInputFactory({ normal, focused, error });
}

OxaTextInput *Looks::makeField(const QString &name, QWidget *parent)
{
    OxaTextInput *field = fields().make(parent);
    field->setPlaceholderText(name);
    field->setPlaceholderColorSetName(u"field-placeholder"_s);
    field->setTextInputAccessibleText(name);
    field->setIcon(OxaSvgRenderer::resourcePath(u"clear_14"_s));
    field->toggleClearButtonFocus(false);
    field->updateFontToken(OxaFont::Token::BodySecondary);
    // The line edit inside has a background and a frame of its own.
    field->getLineEdit()->setCSS(u"$textColors: field-text;"
                                 "OxaLineEdit { background: transparent;"
                                 " border: none; }"_s);
    return field;
}

OxaMenu *Looks::makeMenu(QWidget *parent)
{
    auto *menu = new OxaMenu(parent);
    menu->setFontToken(OxaFont::Token::BodySecondary);
    menu->setCSS(UTContextMenuUtils::getContextMenuStyleSheet()
                 + u"QMenu { border: 1px solid $(panel-border); }"_s);
    return menu;
}

void Looks::popUp(QPushButton *button, QWidget *content, bool isAbove)
{
    deleteWhenHidden(PopupWidget::createAndShow(button, content, popupLooks(isAbove)));
}

void Looks::popUp(QWidget *parent, const QRect &rect, QWidget *content)
{
    auto *popup = new PopupWidget(parent, popupLooks(true));
    popup->registerWidget(content);
    popup->showSmooth(rect);
    content->setFocus();
    deleteWhenHidden(popup);
}

AlertBanner *Looks::makeBanner(AlertBanner::AlertType type, const QString &text, QWidget *parent)
{
    auto *banner = new AlertBanner(parent);
    banner->setMinimumHeight(40);
    banner->layout()->setContentsMargins({}); // Its text stands in the middle.
    banner->setAlert({ type, text, true, true, QSize(400, 40) });
    return banner;
}

QVBoxLayout *Looks::makeColumn(QWidget *widget)
{
    auto *column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

QString Looks::listRules()
{
    return u"QAbstractItemView { background: transparent; border: none; outline: none; }"
           "QScrollBar:vertical { width: 12px; background: transparent; }"
           "QScrollBar:horizontal { height: 12px; background: transparent; }"
           "QScrollBar::handle { border-radius: 4px; margin: 2px;"
           " background: $(scroll-handle); }"
           "QScrollBar::handle:vertical { min-height: 32px; }"
           "QScrollBar::handle:horizontal { min-width: 32px; }"
           "QScrollBar::handle:hover { background: $(scroll-handle.hovered); }"
           "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
           "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }"_s;
}

QString Looks::rowRules()
{
    return u"QAbstractItemView::item { border: 2px solid transparent; border-radius: 8px; }"
           "QAbstractItemView::item:selected { background: $(row.checked); }"
           "QAbstractItemView::item:hover { background: $(row.hovered); }"
           "QAbstractItemView::item:focus { border-color: $(focus); }"_s;
}

QString Looks::sliderRules()
{
    return u"QSlider::groove:horizontal { height: 4px; border-radius: 2px;"
           " background: $(slider-track); }"
           "QSlider::%1-page:horizontal { border-radius: 2px; background: $(selection); }"
           "QSlider::handle:horizontal { width: 16px; margin: -6px 0; border-radius: 8px;"
           " background: $(selection); }"
           "QSlider::handle:horizontal:hover { background: $(accent-button.hovered); }"_s.arg(
                   QGuiApplication::isRightToLeft() ? u"add"_s : u"sub"_s);
}

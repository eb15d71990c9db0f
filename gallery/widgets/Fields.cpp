// SPDX-License-Identifier: Apache-2.0
#include "Fields.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/svg/OxaSvgRenderer.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaRadioButton.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaTextBrowser.h>
#include <UiElements/widgets/OxaTextEdit.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>
#include <UiElements/widgets/OxaTimeEdit.h>

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QStyledItemDelegate>
#include <QTextBlock>

namespace {

constexpr int radius = 6;
constexpr int searchWidth = 320;
constexpr int comboHeight = 34;
constexpr int sliderHeight = 24;
constexpr int sliderFrameRadius = 9;
constexpr QSize checkBoxSize(16, 16);
constexpr OxaFont::Token token = OxaFont::Token::BodySecondary;
const QString searchName = QStringLiteral("search");
const QString placeholderColors = QStringLiteral("gallery-field-placeholder-text");

QString icon(const char *name) { return OxaSvgRenderer::resourcePath(QString::fromLatin1(name)); }

OxaCSSData look(const char *border, int width)
{
    OxaCSSData css;
    css.backgroundColorSetName = QStringLiteral("gallery-field-background");
    css.borderColorSetName = QString::fromLatin1(border);
    css.borderTop = css.borderRight = css.borderBottom = css.borderLeft = true;
    css.borderRadius = radius;
    css.borderWidth = static_cast<quint8>(width);
    return css;
}

const OxaTextInputFactory &factory()
{
    static const OxaTextInputFactory fields({ look("gallery-field-border", 1),
                                              look("gallery-focus-border", 2),
                                              look("gallery-field-error-border", 2) });
    return fields;
}

/// Keeps the text of \a field on the side where the layout begins, as that of labels. By itself it
/// goes where its own direction begins.
template <typename Field>
void alignToLayout(Field *field)
{
    const auto align = [field] {
        const bool isRight = QGuiApplication::isRightToLeft();
        field->setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter
                            | (isRight ? Qt::AlignRight : Qt::AlignLeft));
    };
    QObject::connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, field, align);
    align();
}

/// Gives the links of \a area the theme's colour: a document keeps the one that it was read with.
void colorLinks(QTextEdit *area)
{
    QTextCharFormat format;
    format.setForeground(area->palette().link());
    for (QTextBlock block = area->document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (!it.fragment().charFormat().isAnchor())
                continue;
            QTextCursor link(area->document());
            link.setPosition(it.fragment().position());
            link.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor,
                              it.fragment().length());
            link.mergeCharFormat(format);
        }
    }
}

QString sliderLook()
{
    // In a style sheet, sub-page is the part left of the handle in both directions.
    const QString filledPage = QGuiApplication::isRightToLeft() ? QStringLiteral("add-page")
                                                                : QStringLiteral("sub-page");
    return QStringLiteral("OxaSlider { background: transparent; border: none; padding: 0 2px; }"
                          // The frame of the focus is around the handle.
                          "OxaSlider:focus { outline: none; }"
                          "OxaSlider::groove:horizontal { height: 4px; border-radius: 2px;"
                          " background: $(gallery-slider-track); }"
                          "OxaSlider::%1:horizontal { height: 4px; border-radius: 2px;"
                          " background: $(gallery-slider-fill); }"
                          "OxaSlider::handle:horizontal { width: 12px; margin: -5px 0;"
                          " border-radius: 7px; background: $(gallery-slider-handle);"
                          " border: 1px solid $(gallery-slider-fill); }"
                          "OxaSlider::handle:horizontal:hover {"
                          " background: $(gallery-slider-handle.hovered);"
                          " border-color: $(gallery-slider-fill.hovered); }"
                          "OxaSlider::%1:horizontal:disabled {"
                          " background: $(gallery-slider-fill.disabled); }"
                          "OxaSlider::handle:horizontal:disabled {"
                          " background: $(gallery-slider-handle.disabled);"
                          " border-color: $(gallery-slider-fill.disabled); }")
            .arg(filledPage);
}

template <typename Field, typename Moment>
Field *makeMoment(const QString &name, const Moment &moment, QWidget *parent)
{
    auto *field = new Field(moment, parent);
    field->setAccessibleName(name);
    field->template findChild<QLineEdit *>()->setAccessibleName(name);
    field->setFontToken(token);
    field->setCSS(Fields::look(Field::staticMetaObject.className(), { 8, 5 }));
    // In a style sheet their arrows are pictures, which have no colours of the theme.
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    alignToLayout(field);
    return field;
}

template <typename Area>
Area *makeArea(const QString &name, QWidget *parent)
{
    auto *area = new Area(parent);
    area->setAccessibleName(name);
    area->setFontToken(token);
    area->setCSS(Fields::look(Area::staticMetaObject.className(), { 4, 4 }));
    QObject::connect(area, &Area::themeTypeChanged, area, [area] { colorLinks(area); });
    return area;
}

} // namespace

QString Fields::look(const char *className, const QSize &padding, const char *background)
{
    // No text colours: with them Qt derives a placeholder colour that is too faint to read. The
    // palette has a better one.
    return QStringLiteral("$backgroundColors: %1;"
                          "$borderColors: gallery-field-border;"
                          "$borderRadius: 6;"
                          "%2 { padding: %3px %4px; }"
                          // Shows the focus under the pointer as well.
                          "%2:focus { padding: %5px %6px;"
                          " border: 2px solid $(gallery-focus-border); }")
            .arg(QLatin1String(background), QLatin1String(className))
            .arg(padding.height())
            .arg(padding.width())
            .arg(padding.height() - 1)
            .arg(padding.width() - 1);
}

OxaLineEdit *Fields::line(QWidget *parent)
{
    auto *field = new OxaLineEdit(parent);
    field->setFontToken(token);
    field->setPlaceholderColorSetName(placeholderColors);
    field->setCSS(look("OxaLineEdit", { 8, 5 }));
    alignToLayout(field);
    return field;
}

OxaTextInput *Fields::input(const QString &name, QWidget *parent)
{
    OxaTextInput *field = factory().make(parent);
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    field->setAccessibleName(name);
    field->setTextInputAccessibleText(name);
    field->updateFontToken(token);
    field->setPlaceholderColorSetName(placeholderColors);
    field->setIcon(icon("close_16"));
    field->setPasswordIcons(icon("eye-off_13"), icon("eye_13"));
    // The frame around it is the field's.
    field->getLineEdit()->setCSS(QStringLiteral(
            "OxaLineEdit { background: transparent; border: none; padding: 3px 5px; }"));
    auto *counter = field->findChild<OxaLabel *>();
    counter->setFontToken(OxaFont::Token::RadioButtonLabelSecondary);
    counter->setCSS(QStringLiteral("$textColors: gallery-caption-text;"));
    const auto buttons = field->findChildren<OxaSvgPushButton *>();
    for (OxaSvgPushButton *button : buttons) {
        button->setSvgIconColorSet(QStringLiteral("gallery-icon"));
        button->setFlat(true);
    }
    alignToLayout(field->getLineEdit());
    return field;
}

OxaTextInput *Fields::password(const QString &name, QWidget *parent)
{
    OxaTextInput *field = input(name, parent);
    field->setPasswordField(true);
    return field;
}

OxaTextInput *Fields::search(const QString &hint, QWidget *parent)
{
    OxaTextInput *field = input(QObject::tr("Search"), parent);
    field->setObjectName(searchName);
    field->setSearchIcon(icon("search_16"));
    field->setPlaceholderText(hint);
    field->setFixedWidth(searchWidth);
    QObject::connect(field, &OxaTextInput::keyPressed, field, [field](int key) {
        if (key == Qt::Key_Escape)
            field->setText(QString());
    });
    return field;
}

OxaTextInput *Fields::searchIn(const QWidget &parent)
{
    return parent.findChild<OxaTextInput *>(searchName);
}

void Fields::clear(OxaTextInput *field)
{
    field->setText(QString());
    field->setFocus();
}

OxaComboBox *Fields::combo(const QString &name, const QStringList &texts, QWidget *parent)
{
    auto *combo = new OxaComboBox(parent);
    // Any name: without one a combo box has no style.
    combo->setObjectName(QStringLiteral("combo"));
    combo->setAccessibleName(name);
    combo->view()->setAccessibleName(name);
    combo->addItems(texts);
    combo->setFontToken(token);
    combo->setMinimumHeight(comboHeight);
    // The text of a row begins below that of the field. Qt's own delegate ignores the padding.
    combo->setItemDelegate(new QStyledItemDelegate(combo));
    combo->view()->parentWidget()->setStyleSheet(
            QStringLiteral("QAbstractItemView { outline: none; }"
                           "QAbstractItemView::item { border: none; padding: 4px 9px; }"
                           "QAbstractItemView::item:selected { background: palette(highlight);"
                           " color: palette(highlighted-text); }"));
    combo->setSelectedBackgroundColor(QStringLiteral("gallery-selection-background"));
    combo->updateStyle({ "oxa-rills-combobox-text", "oxa-rills-combobox-background",
                         "oxa-rills-combobox-border", 1, radius });
    return combo;
}

OxaCheckBox *Fields::checkBox(const QString &text, QWidget *parent)
{
    auto *box = new OxaCheckBox(parent, true);
    box->setText(text);
    box->setFontToken(token);
    box->setCheckboxSize(checkBoxSize);
    // A wrapped text asks for no more width than it has, also when its font grows.
    box->setWordWrap(false);
    return box;
}

OxaRadioButton *Fields::radioButton(const QString &text, QWidget *parent)
{
    auto *button = new OxaRadioButton(text, parent);
    button->setFontToken(token);
    button->setCSS(QStringLiteral(
            "$textColors: oxa-default-text;"
            "OxaRadioButton { spacing: 10px; }"
            "OxaRadioButton::indicator { width: 14px; height: 14px; border-radius: 8px;"
            " border: 1px solid $(oxa-recorder-comboBox-border);"
            " background: $(checkbox-unchecked-background); }"
            "OxaRadioButton::indicator:hover {"
            " background: $(checkbox-unchecked-background.hovered); }"
            "OxaRadioButton::indicator:pressed {"
            " background: $(checkbox-unchecked-background.pressed); }"
            "OxaRadioButton::indicator:disabled {"
            " border-color: $(oxa-recorder-comboBox-border.disabled); }"
            // The dot is what a wide border leaves free.
            "OxaRadioButton::indicator:checked { width: 6px; height: 6px;"
            " border: 5px solid $(checkbox-checked-background);"
            " background: $(oxa-reaction-list-item-gradient-background-end-color); }"));
    return button;
}

OxaSlider *Fields::slider(int minimum, int maximum, int value, QWidget *parent)
{
    auto *slider = new OxaSlider(Qt::Horizontal, parent);
    slider->setRange(minimum, maximum);
    slider->setValue(value);
    slider->setMinimumHeight(sliderHeight);
    slider->setProperty("focusBorderRadius", sliderFrameRadius);
    const auto applyLook = [slider] { slider->setCSS(sliderLook()); };
    QObject::connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, slider, applyLook);
    applyLook();
    return slider;
}

OxaDateTimeEdit *Fields::dateTime(const QString &name, const QDateTime &moment, QWidget *parent)
{
    return makeMoment<OxaDateTimeEdit>(name, moment, parent);
}

OxaTimeEdit *Fields::time(const QString &name, const QTime &moment, QWidget *parent)
{
    return makeMoment<OxaTimeEdit>(name, moment, parent);
}

OxaTextEdit *Fields::edit(const QString &name, QWidget *parent)
{
    return makeArea<OxaTextEdit>(name, parent);
}

OxaTextBrowser *Fields::browser(const QString &name, QWidget *parent)
{
    return makeArea<OxaTextBrowser>(name, parent);
}

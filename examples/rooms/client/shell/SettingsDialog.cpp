// SPDX-License-Identifier: Apache-2.0
#include "SettingsDialog.h"

#include "Looks.h"
#include "RoomsApplication.h"
#include "protocol/Literal.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaCheckBox.h>
#include <UiElements/widgets/OxaComboBox.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaLineEdit.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaTextInput.h>
#include <UiElements/widgets/OxaTextInputFactory.h>

#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int fieldWidth = 280;

bool isDisplayName(const QString &text)
{
    const int length = text.trimmed().length();
    return length >= 3 && length <= 40;
}

bool isWebAddress(const QString &text)
{
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"https"_s || url.scheme() == u"http"_s;
    return isWeb && url.isValid() && url.host().contains(u'.');
}

/// Shows \a value at once; Done stores it.
template <typename Value>
void change(Value Settings::*setting, const Value &value)
{
    Settings settings = RoomsApplication::get()->settings();
    settings.*setting = value;
    RoomsApplication::get()->apply(settings, true);
}

} // namespace

SettingsDialog::SettingsDialog(QWidget *parent)
    : OxaDialog(parent),
      m_before(RoomsApplication::get()->settings()),
      m_column(new QVBoxLayout(this))
{
    setObjectName(u"settings"_s);
    setWindowTitle(tr("Settings"));
    connect(this, &QDialog::rejected, this, [this] { RoomsApplication::get()->apply(m_before); });
    m_column->setContentsMargins(24, 16, 24, 24);
    m_column->setSpacing(8);
    m_column->setSizeConstraint(QLayout::SetFixedSize);

    addHeading(tr("Appearance"));
    addChoice(u"theme"_s, tr("Colours"),
              { tr("As the system"), tr("Light"), tr("Dark"), tr("High contrast") },
              &Settings::theme);
    addChoice(u"direction"_s, tr("Direction"),
              { tr("As the system"), tr("Left to right"), tr("Right to left") },
              &Settings::direction);
    addSlider(tr("Size of all text"), 50, 150, 10, &Settings::fontScale,
              [](int value) { return tr("%1 %").arg(value); });
    const QStringList sizes { tr("Small"), tr("Regular"), tr("Medium"), tr("Large") };
    addSlider(tr("Size of messages"), -1, 2, 1, &Settings::messagingSize,
              [sizes](int value) { return sizes.value(value + 1); });
    addCheckBox(tr("Show the last message of each conversation"), &Settings::previewsShown);
    addCheckBox(tr("Nothing moves by itself"), &Settings::animationsDisabled);

    addHeading(tr("Profile"));
    addText(tr("Display name"), tr("Enter 3 to 40 characters."), isDisplayName,
            &Settings::displayName);
    addText(tr("Web address"), tr("Enter an address such as https://example.org."), isWebAddress,
            &Settings::webAddress);
    addButtons();
}

void SettingsDialog::addHeading(const QString &text)
{
    OxaLabel *heading = Looks::makeLabel(text, OxaFont::Token::Header, u"text-primary"_s, this);
    heading->setAccessibleRole(QAccessible::Heading);
    heading->setContentsMargins(0, 8, 0, 0);
    m_column->addWidget(heading);
}

void SettingsDialog::addRow(const QString &name, QWidget *field)
{
    OxaLabel *label = Looks::makeLabel(name, OxaFont::Token::BodySecondary, u"text-primary"_s,
                                       this);
    label->setBuddy(field);
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(label, 1);
    field->setFixedWidth(fieldWidth);
    row->addWidget(field);
    m_column->addLayout(row);
}

template <typename Choice>
void SettingsDialog::addChoice(const QString &objectName, const QString &name,
                               const QStringList &choices, Choice Settings::*setting)
{
    auto *box = new OxaComboBox(this);
    box->setObjectName(objectName); // The selectors of its style text need it.
    box->setFontToken(OxaFont::Token::BodySecondary);
    box->setAccessibleName(name);
    box->setFixedHeight(36);
    box->updateStyle({ "field-text", "field-background", "field-border", 1, 6 });
    box->addItems(choices);
    box->setCurrentIndex(int(m_before.*setting));
    connect(box, QOverload<int>::of(&QComboBox::activated), this,
            [setting](int index) { change(setting, Choice(index)); });
    addRow(name, box);
}

template <typename Tell>
void SettingsDialog::addSlider(const QString &name, int from, int to, int step,
                               int Settings::*setting, const Tell &tell)
{
    auto *field = new OxaWidget(this);
    auto *slider = new OxaSlider(Qt::Horizontal, field);
    slider->setRange(from / step, to / step);
    slider->setPageStep(1);
    slider->setValue(m_before.*setting / step);
    slider->setAccessibleName(name);
    slider->setMinimumHeight(24);
    const auto style = [slider] { slider->setCSS(Looks::sliderRules()); };
    style();
    connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, slider, style);
    OxaLabel *shown = Looks::makeLabel(tell(m_before.*setting), OxaFont::Token::BodySecondary,
                                       u"text-secondary"_s, field);
    shown->setFixedWidth(104);
    auto *row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider, 1);
    row->addWidget(shown);
    connect(slider, &QSlider::valueChanged, this, [shown, step, tell, setting](int tick) {
        shown->setText(tell(tick * step));
        change(setting, tick * step);
    });
    addRow(name, field);
}

void SettingsDialog::addCheckBox(const QString &text, bool Settings::*setting)
{
    auto *box = new OxaCheckBox(this);
    box->setFontToken(OxaFont::Token::BodySecondary);
    box->setText(text);
    box->setWordWrap(false);
    box->setCheckboxSize(QSize(18, 18));
    box->setChecked(m_before.*setting);
    connect(box, &OxaCheckBox::toggled, this, [setting](bool isOn) { change(setting, isOn); });
    m_column->addWidget(box);
}

void SettingsDialog::addText(const QString &name, const QString &errorText,
                             bool (*isValid)(const QString &), QString Settings::*setting)
{
    OxaTextInput *field = Looks::makeField(name, this);
    field->setText(m_before.*setting);
    Looks::fields().apply(field); // A field that code has filled looks focused.
    field->setInputValidator(isValid, true);
    field->setFixedHeight(36);
    field->getLineEdit()->setTextMargins(6, 0, 6, 0);
    OxaLabel *error = Looks::makeLabel(errorText, OxaFont::Token::BodyTertiary, u"field-error"_s,
                                       this);
    error->setAccessibleRole(QAccessible::AlertMessage);
    error->setBuddy(field);
    error->hide();
    connect(field, &OxaTextInput::showErrorLabel, error, &OxaLabel::setVisible);
    connect(field, &OxaTextInput::textChanged, this, [field, setting](const QString &typed) {
        if (field->isValidInput())
            change(setting, typed.trimmed());
    });
    m_texts.append(field);
    addRow(name, field);
    m_column->addWidget(error, 0, Qt::AlignTrailing);
}

void SettingsDialog::addButtons()
{
    OxaSvgPushButton *cancel = Looks::makeButton(tr("Cancel"), Looks::Button::Outline, this);
    OxaSvgPushButton *done = Looks::makeButton(tr("Done"), Looks::Button::Accent, this);
    done->setDefault(true);
    connect(cancel, &OxaSvgPushButton::clicked, this, &QDialog::reject);
    connect(done, &OxaSvgPushButton::clicked, this, &SettingsDialog::finish);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 16, 0, 0);
    row->addStretch(1);
    row->addWidget(cancel);
    row->addWidget(done);
    m_column->addLayout(row);
}

/// Stores what is chosen, unless a text is not valid.
void SettingsDialog::finish()
{
    for (OxaTextInput *text : qAsConst(m_texts)) {
        if (!text->isValidInput()) {
            text->setFocus();
            return;
        }
    }
    RoomsApplication::get()->apply(RoomsApplication::get()->settings());
    accept();
}

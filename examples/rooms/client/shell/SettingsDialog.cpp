// SPDX-License-Identifier: Apache-2.0
#include "SettingsDialog.h"

#include "Looks.h"
#include "RoomsApplication.h"

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
    const bool isWeb = url.scheme() == QLatin1String("https")
            || url.scheme() == QLatin1String("http");
    return isWeb && url.isValid() && url.host().contains(QLatin1Char('.'));
}

} // namespace

SettingsDialog::SettingsDialog(QWidget *parent)
    : OxaDialog(parent),
      m_before(RoomsApplication::get()->settings()),
      m_column(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("settings"));
    setWindowTitle(tr("Settings"));
    setLooks();
    connect(RoomsApplication::get(), &RoomsApplication::settingsChanged, this,
            &SettingsDialog::setLooks);
    m_column->setContentsMargins(24, 16, 24, 24);
    m_column->setSpacing(8);
    m_column->setSizeConstraint(QLayout::SetFixedSize);
    addLooks();
    addProfile();
    addButtons();
    connect(this, &QDialog::rejected, this, [this] { RoomsApplication::get()->apply(m_before); });
}

void SettingsDialog::setLooks()
{
    setCSS(QStringLiteral("$backgroundColors: panel;") + Looks::sliderRules());
}

void SettingsDialog::change(const Change &change)
{
    Settings settings = RoomsApplication::get()->settings();
    change(settings);
    RoomsApplication::get()->apply(settings, true);
}

void SettingsDialog::addHeading(const QString &text)
{
    OxaLabel *heading = Looks::makeLabel(text, OxaFont::Token::Header,
                                         QStringLiteral("text-primary"), this);
    heading->setAccessibleRole(QAccessible::Heading);
    heading->setContentsMargins(0, 8, 0, 0);
    m_column->addWidget(heading);
}

void SettingsDialog::addRow(const QString &name, QWidget *field)
{
    OxaLabel *label = Looks::makeLabel(name, OxaFont::Token::BodySecondary,
                                       QStringLiteral("text-primary"), this);
    label->setBuddy(field);
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(label, 1);
    field->setFixedWidth(fieldWidth);
    row->addWidget(field);
    m_column->addLayout(row);
}

void SettingsDialog::addChoice(const QString &objectName, const QString &name,
                               const QStringList &choices, int current,
                               const std::function<void(Settings &, int)> &choose)
{
    auto *box = new OxaComboBox(this);
    box->setObjectName(objectName); // The selectors of its style text need it.
    box->setFontToken(OxaFont::Token::BodySecondary);
    box->setAccessibleName(name);
    box->setFixedHeight(36);
    box->updateStyle({ "field-text", "field-background", "field-border", 1, 6 });
    box->addItems(choices);
    box->setCurrentIndex(current);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, choose](int index) {
        change([&](Settings &settings) { choose(settings, index); });
    });
    addRow(name, box);
}

void SettingsDialog::addSlider(const QString &name, int from, int to, int step, int value,
                               const std::function<QString(int)> &tell,
                               const std::function<void(Settings &, int)> &choose)
{
    auto *slider = new OxaSlider(Qt::Horizontal, this);
    slider->setRange(from / step, to / step);
    slider->setPageStep(1);
    slider->setValue(value / step);
    slider->setAccessibleName(name);
    slider->setMinimumHeight(24);
    OxaLabel *shown = Looks::makeLabel(tell(value), OxaFont::Token::BodySecondary,
                                       QStringLiteral("text-secondary"), this);
    auto *field = new OxaWidget(this);
    auto *row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(slider, 1);
    shown->setFixedWidth(104);
    row->addWidget(shown);
    connect(slider, &QSlider::valueChanged, this, [this, shown, step, tell, choose](int tick) {
        shown->setText(tell(tick * step));
        change([&](Settings &settings) { choose(settings, tick * step); });
    });
    addRow(name, field);
}

void SettingsDialog::addCheckBox(const QString &text, bool isChecked,
                                 const std::function<void(Settings &, bool)> &choose)
{
    auto *box = new OxaCheckBox(this);
    box->setFontToken(OxaFont::Token::BodySecondary);
    box->setText(text);
    box->setWordWrap(false);
    box->setCheckboxSize(QSize(18, 18));
    box->setChecked(isChecked);
    connect(box, &OxaCheckBox::toggled, this, [this, choose](bool isOn) {
        change([&](Settings &settings) { choose(settings, isOn); });
    });
    m_column->addWidget(box);
}

void SettingsDialog::addText(const QString &name, const QString &text, const QString &errorText,
                             const std::function<bool(const QString &)> &isValid,
                             const std::function<void(Settings &, const QString &)> &choose)
{
    OxaTextInput *field = Looks::makeField(name, this);
    field->setText(text);
    Looks::fields().apply(field); // A field that code has filled looks focused.
    field->setInputValidator(isValid, true);
    field->setFixedHeight(36);
    field->getLineEdit()->setTextMargins(6, 0, 6, 0);
    OxaLabel *error = Looks::makeLabel(errorText, OxaFont::Token::BodyTertiary,
                                       QStringLiteral("field-error"), this);
    error->setAccessibleRole(QAccessible::AlertMessage);
    error->setBuddy(field);
    error->hide();
    connect(field, &OxaTextInput::showErrorLabel, error, &OxaLabel::setVisible);
    connect(field, &OxaTextInput::textChanged, this, [this, field, choose](const QString &typed) {
        if (field->isValidInput())
            change([&](Settings &settings) { choose(settings, typed.trimmed()); });
    });
    m_texts.append(field);
    addRow(name, field);
    m_column->addWidget(error, 0, Qt::AlignTrailing);
}

void SettingsDialog::addLooks()
{
    addHeading(tr("Appearance"));
    addChoice(QStringLiteral("theme"), tr("Colours"),
              { tr("As the system"), tr("Light"), tr("Dark"), tr("High contrast") },
              int(m_before.theme),
              [](Settings &settings, int index) { settings.theme = Settings::Theme(index); });
    addChoice(QStringLiteral("direction"), tr("Direction"),
              { tr("As the system"), tr("Left to right"), tr("Right to left") },
              int(m_before.direction), [](Settings &settings, int index) {
                  settings.direction = Settings::Direction(index);
              });
    addSlider(
            tr("Size of all text"), 50, 150, 10, m_before.fontScale,
            [](int value) { return tr("%1 %").arg(value); },
            [](Settings &settings, int value) { settings.fontScale = value; });
    const QStringList sizes { tr("Small"), tr("Regular"), tr("Medium"), tr("Large") };
    addSlider(
            tr("Size of messages"), -1, 2, 1, m_before.messagingSize,
            [sizes](int value) { return sizes.value(value + 1); },
            [](Settings &settings, int value) { settings.messagingSize = value; });
    addCheckBox(tr("Show the last message of each conversation"), m_before.previewsShown,
                [](Settings &settings, bool isOn) { settings.previewsShown = isOn; });
    addCheckBox(tr("Nothing moves by itself"), m_before.animationsDisabled,
                [](Settings &settings, bool isOn) { settings.animationsDisabled = isOn; });
}

void SettingsDialog::addProfile()
{
    addHeading(tr("Profile"));
    addText(tr("Display name"), m_before.displayName, tr("Enter 3 to 40 characters."),
            isDisplayName,
            [](Settings &settings, const QString &text) { settings.displayName = text; });
    addText(tr("Web address"), m_before.webAddress,
            tr("Enter an address such as https://example.org."), isWebAddress,
            [](Settings &settings, const QString &text) { settings.webAddress = text; });
}

void SettingsDialog::addButtons()
{
    OxaSvgPushButton *cancel = Looks::makeButton(tr("Cancel"), Looks::Button::Outline, this);
    OxaSvgPushButton *done = Looks::makeButton(tr("Done"), Looks::Button::Accent, this);
    done->setDefault(true);
    connect(cancel, &OxaSvgPushButton::clicked, this, &QDialog::reject);
    connect(done, &OxaSvgPushButton::clicked, this, [this] {
        for (OxaTextInput *text : qAsConst(m_texts)) {
            if (!text->isValidInput()) {
                text->setFocus();
                return;
            }
        }
        RoomsApplication::get()->apply(RoomsApplication::get()->settings());
        accept();
    });
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 16, 0, 0);
    row->addStretch(1);
    row->addWidget(cancel);
    row->addWidget(done);
    m_column->addLayout(row);
}

// SPDX-License-Identifier: Apache-2.0
#include "HeaderBar.h"

#include "looks/Metrics.h"
#include "looks/TextSettings.h"
#include "looks/ThemeSwitcher.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/ScalingControl.h"
#include "widgets/SegmentedControl.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QGuiApplication>
#include <QVBoxLayout>

namespace {

using OxaThemeUtils::AppThemeType;

/// The font scale is set in steps of five hundredths.
constexpr int scaleStepsPerUnit = 20;

QString percentage(int scaleSteps)
{
    return HeaderBar::tr("%1 %").arg(scaleSteps * 100 / scaleStepsPerUnit);
}

} // namespace

HeaderBar::HeaderBar(ThemeSwitcher *themeSwitcher, TextSettings *textSettings, QWidget *parent)
    : OxaWidget(parent),
      m_themeSwitcher(themeSwitcher),
      m_textSettings(textSettings),
      m_controls(new WrapLayout(Metrics::spacing))
{
    setCSS(QStringLiteral("$backgroundColors: gallery-header-background;"));
    OxaLabel *title = Labels::heading(tr("UiElements"), this);
    // The controls begin where the page below them does.
    title->setMinimumWidth(Metrics::sidebarWidth + Metrics::margin - Metrics::gap);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Metrics::gap, Metrics::small, Metrics::gap, Metrics::small);
    row->setSpacing(1);
    row->addWidget(title);
    row->addLayout(m_controls, 1);
    addThemeControls();
    addTextControls();
}

void HeaderBar::addControl(const QString &caption, QWidget *control)
{
    control->setAccessibleName(caption);
    auto *captioned = new OxaWidget(this);
    auto *column = new QVBoxLayout(captioned);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::tight);
    column->addWidget(Labels::caption(caption, this));
    column->addWidget(control, 1);
    m_controls->addWidget(captioned);
}

/// Adds a choice that shows \a current whenever \a sender emits \a changed.
template <typename Sender, typename Signal, typename Current, typename Choose>
void HeaderBar::addChoice(const QString &caption, const QStringList &texts, Sender *sender,
                          Signal changed, Current current, Choose choose)
{
    auto *control = new SegmentedControl(texts, this);
    const auto showCurrent = [control, current] { control->setCurrentIndex(int(current())); };
    connect(sender, changed, control, showCurrent);
    showCurrent();
    connect(control, &SegmentedControl::chosen, sender, choose);
    addControl(caption, control);
}

void HeaderBar::addThemeControls()
{
    ThemeSwitcher *switcher = m_themeSwitcher;
    addChoice(
            tr("Appearance"), { tr("Light"), tr("Dark"), tr("Contrast") }, switcher,
            &ThemeSwitcher::switched, [switcher] { return switcher->appearance(); },
            [switcher](int i) {
                switcher->setAppearance(static_cast<ThemeSwitcher::Appearance>(i));
            });
    addChoice(
            tr("Theme type"), { tr("Global"), tr("Light"), tr("Dark"), tr("Inverted") }, switcher,
            &ThemeSwitcher::switched,
            [switcher] { return OxaThemeUtils::stringToThemeType(switcher->themeType()); },
            [switcher](int i) {
                switcher->setThemeType(
                        OxaThemeUtils::themeTypeToString(static_cast<AppThemeType>(i)));
            });
}

void HeaderBar::addTextControls()
{
    addChoice(tr("Direction"), { tr("LTR"), tr("RTL") }, qGuiApp,
              &QGuiApplication::layoutDirectionChanged, &QGuiApplication::layoutDirection,
              [settings = m_textSettings](int i) {
                  settings->setDirection(static_cast<Qt::LayoutDirection>(i));
              });
    addControl(tr("Messaging view"),
               new ScalingControl(m_textSettings, TextSettings::FontType::MessagingView, this));
    addControl(tr("Font scale"), makeFontScaleControl());
}

QWidget *HeaderBar::makeFontScaleControl()
{
    auto *control = new OxaWidget(this);
    auto *row = new QHBoxLayout(control);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Metrics::small);
    OxaSlider *slider = Fields::slider(scaleStepsPerUnit / 2, scaleStepsPerUnit * 3 / 2,
                                       scaleStepsPerUnit, control);
    slider->setFixedWidth(88);
    slider->setAccessibleName(tr("Font scale"));
    auto *value = Labels::caption(percentage(slider->value()), control);
    value->setMinimumWidth(40);
    row->addWidget(slider);
    row->addWidget(value);
    connect(slider, &QSlider::valueChanged, this, [this, value](int steps) {
        value->setText(percentage(steps));
        m_textSettings->setFontScale(float(steps) / scaleStepsPerUnit);
    });
    return control;
}

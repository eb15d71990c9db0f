// SPDX-License-Identifier: Apache-2.0
#include "SettingsCard.h"

#include "looks/Metrics.h"
#include "specimens/PropertyControls.h"
#include "widgets/Buttons.h"
#include "widgets/Dividers.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/ContainerWidget.h>
#include <UiElements/widgets/OxaDateTimeEdit.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaSplitter.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTimeEdit.h>

#include <QApplication>
#include <QDateTime>
#include <QVBoxLayout>

namespace {

constexpr int barCount = 40;
constexpr int barHeight = 16;
constexpr int chooserWidth = 176;
constexpr int fieldWidth = 176;
constexpr int firstVolume = 60;

/// Returns the column of a new page.
QVBoxLayout *makePage()
{
    auto *column = new QVBoxLayout(new OxaWidget);
    column->setContentsMargins(Metrics::spacing, 0, 0, 0);
    column->setSpacing(Metrics::small);
    return column;
}

void addField(QVBoxLayout *column, const QString &caption, QWidget *field)
{
    column->addWidget(Labels::caption(caption));
    column->addWidget(field);
}

QWidget *makeSound()
{
    QVBoxLayout *column = makePage();
    OxaSlider *volume = Fields::slider(0, 100, firstVolume);
    volume->setAccessibleName(SettingsCard::tr("Volume"));
    auto *level = new OxaProgressBar(nullptr, barCount);
    level->setAccessibleName(SettingsCard::tr("Level"));
    level->setBarWidth(Metrics::tight);
    level->setMinimumHeight(barHeight);
    level->setValue(firstVolume);
    QObject::connect(volume, &OxaSlider::valueChanged, level, &OxaProgressBar::setValue);
    addField(column, SettingsCard::tr("Volume"), volume);
    column->addWidget(Dividers::line());
    addField(column, SettingsCard::tr("Level"), level);
    column->addStretch(1);
    return column->parentWidget();
}

QWidget *makeHours()
{
    QVBoxLayout *column = makePage();
    OxaTimeEdit *begin = Fields::time(SettingsCard::tr("Working hours begin"), QTime(9, 0));
    OxaDateTimeEdit *away = Fields::dateTime(SettingsCard::tr("Away until"),
                                             { QDate(2027, 1, 4), QTime(8, 30) });
    begin->setFixedWidth(fieldWidth);
    away->setFixedWidth(fieldWidth);
    addField(column, SettingsCard::tr("Working hours begin"), begin);
    column->addWidget(Dividers::line());
    addField(column, SettingsCard::tr("Away until"), away);
    column->addStretch(1);
    return column->parentWidget();
}

} // namespace

SettingsCard::SettingsCard(QWidget *parent)
    : Card(tr("OxaSplitter, ContainerWidget, OxaStackedWidget"),
           tr("Tab stops once at the buttons, and the arrow keys go from one to the next, past the "
              "one that is disabled. The line beside them can be dragged."),
           parent),
      m_splitter(Dividers::splitter(this)),
      m_chooser(new ContainerWidget(m_splitter)),
      m_pages(new OxaStackedWidget(m_splitter))
{
    auto *column = new QVBoxLayout(m_chooser);
    // In a right-to-left layout Qt moves what is in a splitter one pixel beyond its edge.
    column->setContentsMargins(1, 0, Metrics::spacing, 0);
    column->setSpacing(Metrics::small);
    addPage(tr("Sound"), makeSound());
    addPage(tr("Video"), nullptr);
    addPage(tr("Hours"), makeHours());
    column->addStretch(1);
    m_chooser->setupEventFilters();
    m_chooser->setAccessibleMessage(tr("Use the arrow keys to choose a page"));
    m_splitter->setSizes({ chooserWidth, 1 });
    m_splitter->setStretchFactor(1, 1);
    body()->addWidget(m_splitter);
    addControls();
}

/// Adds a button that shows \a page, or, without a page, a disabled one.
void SettingsCard::addPage(const QString &title, QWidget *page)
{
    OxaPushButton *button = Buttons::make(title);
    m_chooser->layout()->addWidget(button);
    button->setEnabled(page);
    if (!page)
        return;
    m_pages->addWidget(page);
    button->setCSS(Buttons::toggle());
    button->setCheckable(true);
    const auto showCurrent = [this, button, page] {
        button->setChecked(m_pages->currentWidget() == page);
    };
    connect(button, &OxaPushButton::clicked, m_pages, [this, page, showCurrent] {
        m_pages->setCurrentWidget(page);
        showCurrent(); // A click on the current one has unchecked it.
    });
    connect(m_pages, &OxaStackedWidget::currentChanged, button, showCurrent);
    showCurrent();
}

void SettingsCard::addControls()
{
    auto *controls = new PropertyControls(m_splitter);
    controls->setRange("handleWidth", 1, Metrics::gap);
    controls->addProperty("handleWidth");
    controls->addProperty("childrenCollapsible");
    controls->addProperty("opaqueResize");
    controls->addReading(tr("sayAcceleratorInfo()"), [chooser = m_chooser] {
        return chooser->sayAcceleratorInfo() ? tr("Yes") : tr("No");
    });
    connect(qApp, &QApplication::focusChanged, controls, &PropertyControls::refresh);
    body()->addWidget(controls);
}

// SPDX-License-Identifier: Apache-2.0
#include "ColoursPage.h"

#include "ColorSetModel.h"
#include "ColorSetTable.h"
#include "looks/Metrics.h"
#include "widgets/EmptyState.h"
#include "widgets/Fields.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaTextInput.h>

#include <QVBoxLayout>

ColoursPage::ColoursPage(QWidget *parent)
    : Page(tr("Colours"),
           tr("Every colour set that this window can use, in its six states. Click a name or a "
              "colour to copy it."),
           parent),
      m_model(new ColorSetModel(this)),
      m_table(new ColorSetTable(m_model, this)),
      m_emptyState(
              new EmptyState(tr("Try a part of a name, such as “border”, or of a colour value."),
                             tr("Clear the search"), this)),
      m_search(Fields::search(tr("Search names and colour values"), this)),
      m_copied(Labels::caption(QString(), this)),
      m_count(Labels::chip(QString(), this)),
      m_store(Labels::chip(QString(), this))
{
    m_table->setMinimumHeight(Metrics::leastListHeight);
    body()->addLayout(makeToolbar());
    body()->addWidget(m_table, 1);
    body()->addWidget(m_emptyState, 1);

    connect(m_search, &OxaTextInput::textChanged, this, &ColoursPage::search);
    connect(m_emptyState, &EmptyState::actionTriggered, m_search,
            [this] { Fields::clear(m_search); });
    connect(m_table, &ColorSetTable::copied, this,
            [this](const QString &text) { m_copied->setText(tr("Copied %1").arg(text)); });
    showStore();
}

void ColoursPage::onThemeChanged() { showStore(); }

QLayout *ColoursPage::makeToolbar()
{
    auto *row = new WrapLayout(Metrics::small);
    row->addWidget(m_search);
    row->addWidget(m_count);
    row->addWidget(m_store);
    row->addWidget(m_copied);
    return row;
}

void ColoursPage::search(const QString &text)
{
    m_model->setFilter(text);
    m_emptyState->setSummary(tr("Nothing matches “%1”").arg(text.trimmed()));
    showCount();
}

void ColoursPage::showStore()
{
    const OxaColorSetMap &store = OxaThemeUtils::getOxaColorSetsByThemeType(getThemeType());
    const bool isInverted = &store == &OxaThemeUtils::getAppInvertedOxaColorSets();
    m_model->setColorSets(store);
    m_store->setText(isInverted ? tr("From the inverted store") : tr("From the ordinary store"));
    showCount();
}

void ColoursPage::showCount()
{
    const int count = m_model->colorSetCount();
    m_count->setText(count == 1 ? tr("1 set") : tr("%1 sets").arg(count));
    m_table->setVisible(count > 0);
    m_emptyState->setVisible(count == 0);
}

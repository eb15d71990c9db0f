// SPDX-License-Identifier: Apache-2.0
#include "ListsPage.h"

#include "ConversationsCard.h"
#include "EmptyStateCard.h"
#include "HistoryCard.h"
#include "Metrics.h"
#include "OverflowCard.h"

#include <QGridLayout>

ListsPage::ListsPage(QWidget *parent)
    : Page(tr("Lists"),
           tr("Models for item views and QML that tell what changed exactly, and hold no more than "
              "they have to."),
           parent)
{
    makeBodyScroll();
    auto *grid = new QGridLayout;
    grid->setSpacing(Metrics::spacing);
    grid->addWidget(new ConversationsCard, 0, 0, 1, 2);
    grid->addWidget(new HistoryCard, 1, 0, 1, 2);
    grid->addWidget(new OverflowCard, 2, 0);
    grid->addWidget(new EmptyStateCard, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    body()->addLayout(grid);
    body()->addStretch(1);
}

// SPDX-License-Identifier: Apache-2.0
#include "ListsPage.h"

#include "ConversationsCard.h"
#include "EmptyStateCard.h"
#include "HistoryCard.h"
#include "OverflowCard.h"
#include "widgets/ColumnsLayout.h"

#include <QVBoxLayout>

ListsPage::ListsPage(QWidget *parent)
    : Page(tr("Lists"),
           tr("Models for item views and QML that tell what changed exactly, and hold no more than "
              "they have to."),
           parent)
{
    ColumnsLayout *cards = makeColumns();
    cards->addWideWidget(new ConversationsCard);
    cards->addWideWidget(new HistoryCard);
    cards->addWidget(new OverflowCard);
    cards->addWidget(new EmptyStateCard);
    body()->addStretch(1);
}

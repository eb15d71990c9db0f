// SPDX-License-Identifier: Apache-2.0
#include "EmojiTextPage.h"

#include "ArtworkCard.h"
#include "MessagesCard.h"
#include "Metrics.h"
#include "PlaygroundCard.h"

#include <QGridLayout>

EmojiTextPage::EmojiTextPage(QWidget *parent)
    : Page(tr("Emoji text"),
           tr("What people write, with emoji from the application's own artwork instead of a "
              "font."),
           parent)
{
    makeBodyScroll();
    auto *playground = new PlaygroundCard;
    auto *artwork = new ArtworkCard;
    connect(artwork, &ArtworkCard::chosen, playground, &PlaygroundCard::insert);

    auto *grid = new QGridLayout;
    grid->setSpacing(Metrics::spacing);
    grid->addWidget(new MessagesCard, 0, 0);
    grid->addWidget(playground, 0, 1);
    grid->addWidget(artwork, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    body()->addLayout(grid);
    body()->addStretch(1);
}

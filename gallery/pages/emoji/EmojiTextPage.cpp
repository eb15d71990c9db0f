// SPDX-License-Identifier: Apache-2.0
#include "EmojiTextPage.h"

#include "ArtworkCard.h"
#include "MessagesCard.h"
#include "PlaygroundCard.h"
#include "widgets/ColumnsLayout.h"

#include <QVBoxLayout>

EmojiTextPage::EmojiTextPage(QWidget *parent)
    : Page(tr("Emoji text"),
           tr("What people write, with emoji from the application's own artwork instead of a "
              "font."),
           parent)
{
    auto *playground = new PlaygroundCard;
    auto *artwork = new ArtworkCard;
    connect(artwork, &ArtworkCard::chosen, playground, &PlaygroundCard::insert);

    ColumnsLayout *cards = makeColumns();
    cards->addWidget(new MessagesCard);
    cards->addWidget(playground);
    cards->addWideWidget(artwork);
    body()->addStretch(1);
}

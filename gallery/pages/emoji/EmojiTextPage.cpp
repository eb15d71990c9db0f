// SPDX-License-Identifier: Apache-2.0
#include "ArtworkCard.h"
#include "MessageRow.h"
#include "Messages.h"
#include "PlaygroundCard.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "widgets/ColumnsLayout.h"

#include <QVBoxLayout>

namespace {

QString tr(const char *text) { return Page::tr(text); }

Card *makeMessages()
{
    auto *card = new Card(tr("Messages"),
                          tr("Names, texts and reactions are OxaEmojiLabels. What people write is "
                             "never markup."));
    int number = 0;
    for (const Message &message : messages())
        card->body()->addWidget(new MessageRow(message, number++, card));
    card->body()->addStretch(1);
    return card;
}

} // namespace

Page *Pages::makeEmojiText(QWidget *parent)
{
    auto *page = new Page(
            tr("Emoji text"),
            tr("What people write, with emoji from the application's own artwork instead of a "
               "font."),
            parent);
    auto *playground = new PlaygroundCard;
    auto *artwork = new ArtworkCard;
    QObject::connect(artwork, &ArtworkCard::chosen, playground, &PlaygroundCard::insert);
    ColumnsLayout *cards = page->makeColumns();
    cards->addWidget(makeMessages());
    cards->addWidget(playground);
    cards->addWideWidget(artwork);
    page->body()->addStretch(1);
    return page;
}

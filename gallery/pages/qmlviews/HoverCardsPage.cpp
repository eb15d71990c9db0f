// SPDX-License-Identifier: Apache-2.0
#include "HoverTimeline.h"
#include "PeopleRow.h"
#include "pages/widgets/Pages.h"
#include "shell/Page.h"
#include "widgets/Card.h"
#include "widgets/Labels.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QVBoxLayout>

Page *Pages::makeHoverCards(QWidget *parent)
{
    auto *page = new Page(Page::tr("Hover cards"),
                          Page::tr("Cards that open where the pointer rests, and close when it has "
                                   "left."),
                          parent);
    auto *card = new Card(
            Page::tr("People"),
            Page::tr(
                    "A card opens after half a second. It stays while the pointer is over the name "
                    "or the card, and closes when it has been elsewhere for half a second at two "
                    "looks. Over another name, the same card moves there."));
    auto *people = new PeopleRow;
    card->body()->addWidget(people);
    card->body()->addWidget(new HoverTimeline(people));
    card->body()->addWidget(Labels::paragraph(
            Page::tr("The line shows the last 8 seconds, and its height what the card did: low "
                     "while it is hidden, half while it waits, full while it is shown, and three "
                     "quarters while it is about to close.")));
    page->body()->addWidget(card);
    page->body()->addStretch(1);
    return page;
}

// SPDX-License-Identifier: Apache-2.0
#include "TypographyPage.h"

#include "FontTokenTable.h"
#include "GalleryApplication.h"
#include "ScaledFontTable.h"
#include "widgets/Card.h"
#include "widgets/ScalingControl.h"

#include <QVBoxLayout>

TypographyPage::TypographyPage(QWidget *parent)
    : Page(tr("Typography"),
           tr("Widgets ask for a step of the type scale, not for a size. Move the font scale in "
              "the header to see all of them follow."),
           parent)
{
    body()->addWidget(makeTokensCard());
    body()->addWidget(makeScaledFontsCard());
    body()->addStretch(1);
}

Card *TypographyPage::makeTokensCard()
{
    auto *card = new Card(tr("Font tokens"));
    card->body()->addWidget(new FontTokenTable);
    return card;
}

Card *TypographyPage::makeScaledFontsCard()
{
    auto *card = new Card(
            tr("Scaled fonts"),
            tr("Two views have fonts that the user can enlarge. The samples follow the factor of "
               "their view; the figures are the sizes in pixels at each factor."));
    auto *factor = new ScalingControl(GalleryApplication::get()->textSettings(),
                                      TextSettings::FontType::MeetingView, card);
    factor->setAccessibleName(tr("Meeting view"));
    card->addToHeading(factor);
    card->body()->addWidget(new ScaledFontTable);
    return card;
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Page.h"

class Card;

/// Shows what a label can do beyond showing a text.
class LabelsPage : public Page
{
    Q_OBJECT

public:
    explicit LabelsPage(QWidget *parent = nullptr);

private:
    Card *makeElisionCard();
    Card *makeWrappingCard();
    Card *makeLinksCard();
    Card *makeClicksCard();
    Card *makePixmapCard();
    Card *makeDirectionCard();
};

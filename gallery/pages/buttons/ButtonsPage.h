// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Page.h"

class Card;

/// Shows the library's buttons: their states, and all that can be set of them.
class ButtonsPage : public Page
{
    Q_OBJECT

public:
    explicit ButtonsPage(QWidget *parent = nullptr);

private:
    Card *makeLooksCard();
    Card *makeElisionCard();
    Card *makeRichTextCard();
    Card *makeDirectionCard();
    Card *makeIdentityCard();
};

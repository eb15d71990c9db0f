// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Page.h"

class Card;

/// Shows every step of the type scale, and the scaled fonts of the views that can be enlarged.
class TypographyPage : public Page
{
    Q_OBJECT

public:
    explicit TypographyPage(QWidget *parent = nullptr);

private:
    Card *makeTokensCard();
    Card *makeScaledFontsCard();
};

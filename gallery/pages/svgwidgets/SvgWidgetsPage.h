// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Page.h"

class Card;

/// Shows the widgets with an icon beside their text, in each of their states, with a control for
/// each of their properties.
class SvgWidgetsPage : public Page
{
    Q_OBJECT

public:
    explicit SvgWidgetsPage(QWidget *parent = nullptr);

private:
    Card *makeLabelCard();
    Card *makeButtonCard();
    Card *makeAnchorCard();
    Card *makePillCard();
};

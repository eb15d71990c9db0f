// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "shell/Page.h"

class Card;
class LayoutControls;
class ScrollArea;
class TileBoard;

/// A playground for the layouts that wrap: hundreds of tiles in a frame of any size.
class LayoutsPage : public Page
{
    Q_OBJECT

public:
    explicit LayoutsPage(QWidget *parent = nullptr);

private:
    Card *makeStageCard();
    Card *makeControlsCard();
    void applySettings();

    TileBoard *m_board;
    LayoutControls *m_controls;
    ScrollArea *m_area;
};

// SPDX-License-Identifier: Apache-2.0
#include "LayoutsPage.h"

#include "LayoutControls.h"
#include "LayoutFigures.h"
#include "ResizeFrame.h"
#include "TileBoard.h"
#include "looks/Metrics.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/ScrollArea.h"
#include "widgets/SegmentedControl.h"
#include "widgets/WrapLayout.h"

#include <QVBoxLayout>

LayoutsPage::LayoutsPage(QWidget *parent)
    : Page(tr("Layouts"),
           tr("Three layouts that wrap. Drag the corner, or click a tile and use the arrow keys. "
              "Tiles are placed from the left in both directions; the margins change sides."),
           parent),
      m_board(new TileBoard(this)),
      m_controls(new LayoutControls(this)),
      m_area(new ScrollArea(this))
{
    body()->addWidget(makeControlsCard());
    body()->addWidget(makeStageCard(), 1);
    connect(m_controls, &LayoutControls::changed, this, &LayoutsPage::applySettings);
    applySettings();
}

Card *LayoutsPage::makeStageCard()
{
    auto *card = new Card(tr("Tiles"), QString(), this);
    m_area->setCSS(QStringLiteral("ScrollArea { background-color: $(gallery-code-background);"
                                  " border: 1px solid $(gallery-card-border); }"));
    m_area->setContents(m_board);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto *frame = new ResizeFrame(m_area, card);
    frame->setMinimumHeight(Metrics::leastListHeight);
    card->body()->addWidget(frame, 1);
    card->body()->addWidget(new LayoutFigures(m_board, card));
    return card;
}

Card *LayoutsPage::makeControlsCard()
{
    auto *card = new Card(tr("Settings"), QString(), this);
    auto *kind = new SegmentedControl({ tr("Auto grid"), tr("Smart"), tr("Fixed ratio") }, card);
    kind->setAccessibleName(tr("Layout"));
    connect(kind, &SegmentedControl::chosen, m_controls, [controls = m_controls](int i) {
        controls->setKind(static_cast<LayoutSettings::Kind>(i));
    });
    auto *actions = new WrapLayout(Metrics::small);
    actions->addWidget(kind);
    const std::pair<QString, void (TileBoard::*)()> named[] = {
        { tr("Shuffle"), &TileBoard::shuffle },
        { tr("Sort"), &TileBoard::sortByNumber },
        { tr("Prepend"), &TileBoard::prependTile },
    };
    for (const auto &[text, action] : named) {
        auto *button = Buttons::make(text, card);
        connect(button, &OxaPushButton::clicked, m_board, action);
        actions->addWidget(button);
    }
    card->body()->addLayout(actions);
    card->body()->addWidget(m_controls);
    return card;
}

void LayoutsPage::applySettings() { m_board->setSettings(m_controls->settings()); }

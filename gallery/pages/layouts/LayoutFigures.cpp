// SPDX-License-Identifier: Apache-2.0
#include "LayoutFigures.h"

#include "TileBoard.h"
#include "looks/Metrics.h"
#include "widgets/Labels.h"
#include "widgets/WrapLayout.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QHBoxLayout>

namespace {

using Ratio = FixedItemRatioLayoutNotSupportScroll;

constexpr int figureCount = 5;
constexpr int figureWidth = 80;

/// The result of a flow layout.
struct Flow
{
    explicit Flow(const FlowLayout &layout)
    {
        int inRow = 0;
        int left = 0;
        for (int i = 0; i < layout.count(); ++i) {
            const QRect rect = layout.widgetAt(i)->geometry();
            // A row begins where a tile is not to the right of the one before it.
            const bool isFirst = i == 0 || rect.left() <= left;
            rows += isFirst ? 1 : 0;
            inRow = isFirst ? 1 : inRow + 1;
            longestRow = qMax(longestRow, inRow);
            left = rect.left();
            bottom = qMax(bottom, rect.bottom() + 1);
        }
    }

    int rows = 0;
    int longestRow = 0;
    int bottom = 0;
};

} // namespace

LayoutFigures::LayoutFigures(const TileBoard *board, QWidget *parent)
    : OxaWidget(parent), m_board(board)
{
    auto *row = new WrapLayout(Metrics::spacing, this);
    for (int i = 0; i < figureCount; ++i) {
        auto *figure = new OxaWidget(this);
        figure->setMinimumWidth(figureWidth);
        auto *column = new QVBoxLayout(figure);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        m_figures.push_back({ Labels::caption(QString(), this), Labels::line(QString(), this) });
        column->addWidget(m_figures.back().caption);
        column->addWidget(m_figures.back().value);
        row->addWidget(figure);
    }
    connect(board, &TileBoard::laidOut, this, &LayoutFigures::refresh);
    refresh();
}

void LayoutFigures::refresh()
{
    set(0, tr("Size"), tr("%1 × %2").arg(m_board->width()).arg(m_board->height()));
    if (m_board->settings().kind == LayoutSettings::Kind::FixedRatio)
        showRatio();
    else
        showFlow();
}

void LayoutFigures::set(std::size_t place, const QString &caption, const QString &value)
{
    m_figures[place].caption->setText(caption);
    m_figures[place].value->setText(value);
}

void LayoutFigures::showFlow()
{
    const Flow flow(m_board->flow());
    const int height = m_board->flow().heightForWidth(m_board->width());
    const int overhang = flow.bottom + m_board->flow().contentsMargins().bottom() - height;
    set(1, tr("Height for width"), QString::number(height));
    set(2, tr("Rows"), QString::number(flow.rows));
    set(3, tr("Longest row"), QString::number(flow.longestRow));
    set(4, tr("Overflow"), QString::number(qMax(overhang, 0)));
}

void LayoutFigures::showRatio()
{
    const auto *layout = qobject_cast<const Ratio *>(&m_board->flow());
    if (!layout)
        return;
    const Ratio::CalculatedItemData calculated = layout->getCalculatedItemData();
    set(1, tr("Item width"), QString::number(calculated.itemWidth));
    set(2, tr("Item height"), QString::number(calculated.itemHeight));
    set(3, tr("Rows"), QString::number(calculated.rows));
    set(4, tr("Columns"), QString::number(calculated.columns));
}

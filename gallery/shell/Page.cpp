// SPDX-License-Identifier: Apache-2.0
#include "Page.h"

#include "looks/Metrics.h"
#include "widgets/ColumnsLayout.h"
#include "widgets/Labels.h"
#include "widgets/ScrollArea.h"

#include <UiElements/widgets/OxaLabel.h>

#include <QScrollBar>
#include <QVBoxLayout>

Page::Page(const QString &title, const QString &summary, QWidget *parent)
    : OxaWidget(parent), m_body(new QVBoxLayout)
{
    m_body->setSpacing(Metrics::spacing);
    auto *head = new QVBoxLayout;
    head->setContentsMargins(Metrics::margin, Metrics::gap, Metrics::margin,
                             Metrics::spacing - ScrollArea::focusBorder);
    head->setSpacing(Metrics::tight);
    head->addWidget(Labels::title(title, this));
    head->addWidget(Labels::paragraph(summary, this));
    ScrollArea *area = makeArea();
    area->setAccessibleName(title);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(area, 1);
}

ScrollArea *Page::makeArea()
{
    auto *area = new ScrollArea(this);
    area->showFocus();
    auto *contents = new OxaWidget(area->viewport());
    contents->setLayout(m_body);
    const QScrollBar *bar = area->verticalScrollBar();
    // Cards are as wide with a scroll bar beside them as without.
    const auto followBar = [contents, bar] {
        constexpr int side = Metrics::margin - ScrollArea::focusBorder;
        const int barWidth = bar->maximum() > 0 ? Metrics::scrollBar : 0;
        contents->setLayoutContentsMargins(side, 0, side - barWidth, side);
    };
    connect(bar, &QScrollBar::rangeChanged, contents, followBar);
    followBar();
    area->setContents(contents);
    return area;
}

ColumnsLayout *Page::makeColumns()
{
    auto *columns = new ColumnsLayout(Metrics::spacing, Metrics::spacing);
    m_body->addLayout(columns);
    return columns;
}

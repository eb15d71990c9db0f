// SPDX-License-Identifier: Apache-2.0
#include "LongListView.h"

#include "RowDelegate.h"
#include "looks/TextSettings.h"
#include "shell/GalleryApplication.h"
#include "widgets/ListView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

LongListView::LongListView(QAbstractItemModel *model, QWidget *parent)
    : QAbstractScrollArea(parent), m_model(model), m_delegate(new RowDelegate(this))
{
    setCSS(ListView::frameStyleText());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    m_themeBlock.followTheme();

    connect(m_model, &QAbstractItemModel::dataChanged, this, &LongListView::repaintRows);
    // A paged model updates its row count only after it has signalled the change.
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &LongListView::fitScrollBar,
            Qt::QueuedConnection);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &LongListView::fitScrollBar,
            Qt::QueuedConnection);
    connect(GalleryApplication::get()->textSettings(), &TextSettings::sizesChanged, this,
            &LongListView::refresh);
}

int LongListView::firstRow() const { return verticalScrollBar()->value() / m_rowHeight; }

int LongListView::lastRow() const
{
    const int bottom = verticalScrollBar()->value() + viewport()->height() - 1;
    return qMin(bottom / m_rowHeight, m_model->rowCount() - 1);
}

void LongListView::scrollToRow(int row) { verticalScrollBar()->setValue(row * m_rowHeight); }

void LongListView::onThemeChanged() { refresh(); }

void LongListView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    option.initFrom(viewport());
    option.state = QStyle::State_Enabled;
    for (int row = firstRow(); row <= lastRow(); ++row) {
        option.rect = rectOf(row);
        if (option.rect.intersects(event->rect()))
            m_delegate->paint(&painter, option, m_model->index(row, 0));
    }
}

void LongListView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitScrollBar();
    Q_EMIT moved(firstRow());
}

void LongListView::scrollContentsBy(int, int)
{
    viewport()->update();
    Q_EMIT moved(firstRow());
}

QRect LongListView::rectOf(int row) const
{
    return { 0, row * m_rowHeight - verticalScrollBar()->value(), viewport()->width(),
             m_rowHeight };
}

void LongListView::fitScrollBar()
{
    const int height = viewport()->height();
    verticalScrollBar()->setRange(0, qMax(0, m_model->rowCount() * m_rowHeight - height));
    verticalScrollBar()->setPageStep(height);
    verticalScrollBar()->setSingleStep(m_rowHeight);
}

void LongListView::refresh()
{
    m_delegate->refresh(getThemeType());
    viewport()->update();
    const int height = m_delegate->rowHeight();
    if (height == m_rowHeight)
        return;
    const int row = firstRow();
    m_rowHeight = height;
    fitScrollBar();
    scrollToRow(row);
}

void LongListView::repaintRows(const QModelIndex &first, const QModelIndex &last)
{
    if (first.row() <= lastRow() && last.row() >= firstRow())
        viewport()->update(rectOf(first.row()).united(rectOf(last.row())));
}

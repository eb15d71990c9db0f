// SPDX-License-Identifier: Apache-2.0
#include "ColorSetTable.h"

#include "ColorSetDelegate.h"
#include "ColorSetModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

ColorSetTable::ColorSetTable(ColorSetModel *model, QWidget *parent)
    : ColorSetTable(model, new ColorSetDelegate, parent)
{
}

ColorSetTable::ColorSetTable(ColorSetModel *model, ColorSetDelegate *delegate, QWidget *parent)
    : TableView(model, delegate, parent), m_delegate(delegate)
{
    setAccessibleName(tr("Colour sets"));
    setSelectionMode(NoSelection);
    ColorSetTable::refresh();
    connect(model, &ColorSetModel::modelReset, this, &ColorSetTable::spanHeadings);
    connect(this, &QTableView::clicked, this, &ColorSetTable::copy);
    connect(this, &QTableView::activated, this, &ColorSetTable::copy);
}

void ColorSetTable::refresh()
{
    TableView::refresh();
    verticalHeader()->setDefaultSectionSize(m_delegate->rowHeight());
    for (int column = 1; column < model()->columnCount(); ++column)
        setColumnWidth(column, m_delegate->swatchColumnWidth());
    fitFirstColumn();
    spanHeadings();
}

void ColorSetTable::spanHeadings()
{
    clearSpans();
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (!model()->index(row, 0).data(ColorSetModel::HeadingRole).toBool())
            continue;
        setSpan(row, 0, 1, model()->columnCount());
        setRowHeight(row, m_delegate->headingHeight());
    }
}

void ColorSetTable::copy(const QModelIndex &index)
{
    const QString text = index.data().toString();
    QGuiApplication::clipboard()->setText(text);
    Q_EMIT copied(text);
}

// SPDX-License-Identifier: Apache-2.0
#include "IconTable.h"

#include "IconDelegate.h"
#include "IconModel.h"
#include "IconRenderers.h"

#include <QHeaderView>

IconTable::IconTable(IconModel *model, IconRenderers *renderers, QWidget *parent)
    : IconTable(model, renderers, new IconDelegate(model, renderers), parent)
{
}

IconTable::IconTable(IconModel *model, IconRenderers *renderers, IconDelegate *delegate,
                     QWidget *parent)
    : TableView(model, delegate, parent), m_delegate(delegate)
{
    setAccessibleName(tr("Icons"));
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    connect(renderers, &IconRenderers::repaintNeeded, viewport(), qOverload<>(&QWidget::update));
}

void IconTable::setColorSetName(const QString &name)
{
    m_colorSetName = name;
    refresh();
}

void IconTable::setIconPixels(int size)
{
    m_delegate->setIconSize(size);
    refresh();
}

OxaColorSet IconTable::colorSet() const
{
    return OxaThemeUtils::getColorSet(m_colorSetName.toStdString(), getThemeType());
}

void IconTable::refresh()
{
    TableView::refresh();
    m_delegate->setColorSet(colorSet());
    verticalHeader()->setDefaultSectionSize(m_delegate->rowHeight());
    for (int column = IconModel::FirstStateColumn; column < IconModel::ColumnCount; ++column)
        setColumnWidth(column, m_delegate->stateColumnWidth());
    fitFirstColumn();
    Q_EMIT colorsChanged();
}

void IconTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    TableView::currentChanged(current, previous);
    Q_EMIT currentIconChanged();
}

// SPDX-License-Identifier: Apache-2.0
#include "OverflowListProxyModel.h"

#include <QPointer>

OverflowListProxyModel::OverflowListProxyModel(QObject *parent) : QSortFilterProxyModel(parent) { }

OverflowListProxyModel::OverflowListProxyModel(QObject *parent, int firstVisibleIndex)
    : QSortFilterProxyModel(parent), m_firstVisibleIndex(firstVisibleIndex)
{
}

OverflowListProxyModel::~OverflowListProxyModel() = default;

int OverflowListProxyModel::firstVisibleIndex() const { return m_firstVisibleIndex; }

void OverflowListProxyModel::setFirstVisibleIndex(int index)
{
    if (index == m_firstVisibleIndex)
        return;
    m_firstVisibleIndex = index;
    const QPointer<OverflowListProxyModel> self = this;
    Q_EMIT firstVisibleIndexChanged();
    if (self)
        invalidateFilter();
}

QString OverflowListProxyModel::header() const { return m_header; }

void OverflowListProxyModel::setHeader(const QString &text)
{
    if (text == m_header)
        return;
    m_header = text;
    Q_EMIT headerChanged();
}

void OverflowListProxyModel::unsetSourceModel() { setSourceModel(nullptr); }

bool OverflowListProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &) const
{
    return sourceRow > m_firstVisibleIndex;
}

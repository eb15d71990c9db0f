// SPDX-License-Identifier: Apache-2.0
#include "HistoryModel.h"

#include "RowRole.h"

#include <QLocale>
#include <QStandardItem>

HistoryModel::HistoryModel(QObject *parent) : LazyLoadedListModel(parent)
{
    setPagingConfig(pageSize, pagesInWindow);
    setSize(messageCount);
}

int HistoryModel::loadedCount() const
{
    int count = 0;
    for (int row = getStartIndex(); row < endIndex(); ++row)
        count += getItemAt(row) ? 1 : 0;
    return count;
}

int HistoryModel::endIndex() const { return qMin(getStartIndex() + getStorageSize(), size()); }

bool HistoryModel::wantsPage(int page) const
{
    const int first = indexToPage(getStartIndex());
    return page >= first && page < first + pagesInWindow && pageToIndex(page) < size();
}

QString HistoryModel::textOf(int row) { return QLocale(QLocale::English).toString(row + 1); }

QHash<int, QByteArray> HistoryModel::roleNames() const
{
    return { { RowRole::Title, "title" },
             { RowRole::Detail, "detail" },
             { RowRole::Time, "time" },
             { RowRole::Avatar, "avatar" } };
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    const QStandardItem *item = getItemAt(index);
    return item ? item->data(role) : QVariant();
}

// SPDX-License-Identifier: Apache-2.0
#include "PagedFiles.h"

#include <QStandardItem>

PagedFiles::PagedFiles(Link &, QObject *parent) : LazyLoadedListModel(parent) { }

QHash<int, QByteArray> PagedFiles::roleNames() const
{
    return { { NameRole, "name" },
             { KindRole, "kind" },
             { SizeRole, "size" },
             { OwnerRole, "owner" },
             { AtRole, "at" } };
}

QVariant PagedFiles::data(const QModelIndex &index, int role) const
{
    const QStandardItem *item = getItemAt(index);
    return item ? item->data(role == Qt::DisplayRole ? int(NameRole) : role) : QVariant();
}

int PagedFiles::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : size(); }

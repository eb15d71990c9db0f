// SPDX-License-Identifier: Apache-2.0
#include "SmallListModel.h"

#include <QPointer>

#include <algorithm>
#include <utility>

SmallListModel::SmallListModel(const QHash<int, QByteArray> &roleNames, QObject *parent,
                               QVariant header)
    : QAbstractListModel(parent), m_header(std::move(header)), m_roleNames(roleNames)
{
}

SmallListModel::~SmallListModel() = default;

int SmallListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant SmallListModel::data(const QModelIndex &index, int role) const
{
    // Usable roles start above Qt::UserRole, which is refused itself.
    if (!index.isValid() || role <= Qt::UserRole || index.row() >= int(m_rows.size()))
        return QVariant();
    const Row &values = m_rows[index.row()];
    const auto value = values.find(role);
    return value == values.end() ? QVariant() : value->second;
}

QVariant SmallListModel::data(int row, int role) const
{
    return data(index(row, 0, QModelIndex()), role);
}

QVariant SmallListModel::headerData(int, Qt::Orientation, int) const { return m_header; }

QHash<int, QByteArray> SmallListModel::roleNames() const { return m_roleNames; }

void SmallListModel::add(const std::vector<Row> &rows)
{
    const int first = int(m_rows.size());
    beginInsertRows(QModelIndex(), first, first + int(rows.size()) - 1);
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    endInsertRows();
}

void SmallListModel::remove(const std::vector<Row> &rows)
{
    const QPointer<SmallListModel> self = this;
    for (const Row &row : rows) {
        const auto found = std::find(m_rows.begin(), m_rows.end(), row);
        if (found == m_rows.end())
            continue;
        const int position = int(found - m_rows.begin());
        beginRemoveRows(QModelIndex(), position, position);
        m_rows.erase(found);
        endRemoveRows();
        if (!self)
            return;
    }
}

void SmallListModel::replace(const std::vector<Row> &rows)
{
    const QPointer<SmallListModel> self = this;
    beginResetModel();
    if (!self)
        return;
    m_rows = rows;
    endResetModel();
}

void SmallListModel::clear()
{
    const QPointer<SmallListModel> self = this;
    beginResetModel();
    if (!self)
        return;
    m_rows.clear();
    endResetModel();
}

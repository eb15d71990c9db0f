// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QAbstractListModel>
#include <QVariant>

#include <unordered_map>
#include <vector>

/// A table of role values for short lists whose rows are built by hand, without ids and without a
/// limit. If rows are found by id or replaced often, use BaseListModel.
///
/// A slot may delete the model, but not in rowsAboutToBeInserted() and rowsAboutToBeRemoved(),
/// because Qt uses the model after them.
class UIELEMENTS_EXPORT SmallListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// A row: its values by role. Usable roles are those above Qt::UserRole, from 257 up.
    using Row = std::unordered_map<int, QVariant>;

    /// Makes an empty model with \a roleNames, which stay, and \a header for headerData().
    SmallListModel(const QHash<int, QByteArray> &roleNames, QObject *parent, QVariant header);
    ~SmallListModel() override;

    /// Returns the number of rows; 0 for a row as \a parent.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Returns the value of \a role in the row at \a index. It is invalid, without a message, when
    /// there is no such row, the row lacks the role, or \a role is not above Qt::UserRole.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Returns the same for the position \a row.
    QVariant data(int row, int role) const;

    /// Returns the header that the model was made with, for any arguments.
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// Returns the names that the model was made with.
    QHash<int, QByteArray> roleNames() const override;

    /// Appends \a rows, which must not be empty: the announced range would run backwards.
    void add(const std::vector<Row> &rows);

    /// Removes, for each of \a rows in order, the first row that has equal values in equal roles. A
    /// row without a match is silently skipped; each removal is reported by itself.
    void remove(const std::vector<Row> &rows);

    /// Takes over \a rows with a model reset, also when nothing differs.
    void replace(const std::vector<Row> &rows);

    /// Removes all rows with a model reset, also when there are none.
    void clear();

private:
    std::vector<Row> m_rows;
    QVariant m_header;
    QHash<int, QByteArray> m_roleNames;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QAbstractListModel>
#include <QMap>
#include <QVariant>

#include <cstddef>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// A row of a BaseListModel: its id, compared byte by byte, and its values by role. Usable roles
/// are those above Qt::UserRole, from 257 up.
using ModelRow = std::pair<std::string, std::unordered_map<int, QVariant>>;

/// The general row store for item views and QML: finds rows by id and reports exactly what changed.
///
/// Derive from it, implement roleNames(), and for Qt's item views a data() for Qt::DisplayRole. Use
/// it for lists that fit in memory, 10,000 rows at most; LazyLoadedListModel serves longer ones.
///
/// Each operation copies its arguments. The signals of each, their order and their arguments are
/// part of the contract; docs/list-models.md says which to avoid under a proxy and in QML. A slot
/// may delete the model, but not in rowsAboutToBeInserted() and rowsAboutToBeRemoved(), because Qt
/// uses the model after them. Don't change the model from a slot of its own signals. Insert and
/// remove in ranges: each call takes time for all rows of the model, however few move.
///
/// Not supported: moved rows, editing in views (flags() stays Qt's), trees.
class UIELEMENTS_EXPORT BaseListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ getCount NOTIFY countChanged)
    Q_PROPERTY(QString header READ header WRITE setHeader NOTIFY headerChanged)

public:
    /// How many rows the model has at most after appendRows() and insertRows().
    static constexpr int maximumRowCount = 10000;

    /// Makes an empty model.
    explicit BaseListModel(QObject *parent = nullptr);
    ~BaseListModel() override;

    /// Returns the number of rows; 0 for a row as \a parent.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Returns the number of rows in the list.
    int getCount() const;

    /// Returns the header text. Empty by default.
    QString header() const;

    /// Stores \a text and emits headerChanged(); does nothing if it is the same.
    void setHeader(const QString &text);

    /// Returns the names of the roles for QML and views.
    QHash<int, QByteArray> roleNames() const override = 0;

    /// Returns the value of \a role in the row at \a index. It is invalid if there is no such row
    /// or \a role is not above Qt::UserRole, and, with a warning, if the row lacks the role.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// True when a row has the id \a id.
    bool hasRow(const std::string &id) const { return m_idIndex.find(id) != m_idIndex.end(); }

    /// Returns the position of the row with the id \a id, the last one if the id is repeated; -1 if
    /// there is none.
    int getRowIndex(const std::string &id) const
    {
        const auto found = m_idIndex.find(id);
        return found == m_idIndex.end() ? -1 : int(found->second);
    }

    /// Returns a copy of the first row with the id \a id, or a row with an empty id and no roles.
    /// Searches all rows: use getRowIndex() if the position is enough.
    ModelRow getRowById(const std::string &id) const;

    /// Returns a copy of all rows.
    std::vector<ModelRow> getRows() const;

    /// Appends \a rows and emits countChanged(). A row with a known id is skipped with a warning,
    /// but counts in the announced range. More rows than the model may hold change nothing and log
    /// a warning. An empty list does nothing.
    void appendRows(const std::vector<ModelRow> &rows);

    /// Overwrites rows with known ids, and passes the others to appendRows().
    ///
    /// Emits dataChanged() without roles for each run of consecutive positions, in the order of
    /// \a rows, before the row after it is overwritten. The first run starts at row 0, whether or
    /// not that is among them, so a list that overwrites nothing or is empty reports row 0.
    void appendOrUpdate(const std::vector<ModelRow> &rows);

    /// Qt's function of the same name, which inserts nothing here.
    using QAbstractListModel::insertRows;

    /// Inserts \a rows before the position \a row and emits countChanged(). Ids are not compared: a
    /// repeated one is stored. If \a row is not a position in the model, calls appendRows(). More
    /// rows than the model may hold change nothing and log a warning.
    void insertRows(int row, const std::vector<ModelRow> &rows);

    /// Makes the model equal to \a rows, position by position: removes or appends at the end, with
    /// countChanged(), and then emits dataChanged() without roles for each maximal run of changed
    /// rows, in ascending order and before the next one is assigned. Equal contents emit nothing.
    /// An empty list calls clear(), and an empty model appendRows(); otherwise the number of rows
    /// is not limited, and repeated ids are kept.
    void replace(const std::vector<ModelRow> &rows);

    /// Removes \a count rows from \a row on and emits countChanged(). Returns false with a warning
    /// if the range is empty or not completely inside the model.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    /// Removes all rows with a model reset and emits countChanged(). Does nothing when empty.
    void clear();

    /// Writes \a values into the row with the id \a id; does nothing, silently, without such a row.
    void setRoleValueForRow(const std::string &id, const QMap<int, QVariant> &values);

    /// Writes \a values into the row at \a index, adding roles that it lacks, and emits one
    /// dataChanged() with the roles written, equal values included. Skips a role that is not above
    /// Qt::UserRole, and an invalid value, with a warning.
    void setRoleValueForRow(const QModelIndex &&index, const QMap<int, QVariant> &values);

Q_SIGNALS:
    /// Rows were added or removed. Follows Qt's own signals of the change.
    void countChanged(int count);
    /// The header was set to another value.
    void headerChanged();

protected:
    /// Changes the value of a role that the row has, and emits dataChanged(), also for an equal
    /// value. False for an invalid value, outside the model, and, with a warning, if the row lacks
    /// the role.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    void warnOfUndefinedRole(int row, int role) const;
    void reserveFor(std::size_t moreRows);
    void indexRows(const std::vector<ModelRow> &rows, std::size_t first);
    void shiftIndex(std::size_t first, int distance);
    void eraseRows(std::size_t row, std::size_t count);
    void finishInsertion();
    void appendRest(const std::vector<ModelRow> &rows);
    void assignChangedRows(const std::vector<ModelRow> &rows);

    std::vector<ModelRow> m_rows;
    std::unordered_map<std::string, std::size_t> m_idIndex;
    QString m_header;
};

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

/// The general row store for item views and QML: rows found by id, and changes told exactly.
///
/// Derive from it, supply roleNames(), and for Qt's item views a data() for Qt::DisplayRole. Use it
/// for lists that fit in memory, 10,000 rows at most; LazyLoadedListModel serves longer ones.
///
/// Each operation copies what it is given. The signals of each, their order and their arguments are
/// part of the contract; docs/list-models.md says which to avoid under a proxy and in QML. A slot
/// may delete the model, but not in rowsAboutToBeInserted() and rowsAboutToBeRemoved(), after which
/// Qt goes on with it. Don't change the model from a slot of its own signals.
/// Insert and remove in ranges: each call costs time for all rows of the model, however few move.
///
/// Not supported: moved rows, editing in views (flags() stays Qt's), trees.
class UIELEMENTS_EXPORT BaseListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ getCount NOTIFY countChanged)
    Q_PROPERTY(QString header READ header WRITE setHeader NOTIFY headerChanged)

public:
    /// How many rows appendRows() and insertRows() fill the model to.
    static constexpr int maximumRowCount = 10000;

    /// Makes an empty model.
    explicit BaseListModel(QObject *parent = nullptr);
    ~BaseListModel() override;

    /// Returns the number of rows; 0 below a row.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// Returns what rowCount() says of the whole list.
    int getCount() const;

    /// Returns the header text. Empty by default.
    QString header() const;

    /// Stores \a text and emits headerChanged(); the present text does nothing.
    void setHeader(const QString &text);

    /// Returns the names that QML and views know the roles by.
    QHash<int, QByteArray> roleNames() const override = 0;

    /// Returns the value of \a role in the row at \a index. It is invalid when there is no such row
    /// or \a role is not above Qt::UserRole, and, with a warning, when the row lacks the role.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// True when a row has the id \a id.
    bool hasRow(const std::string &id) const { return m_idIndex.find(id) != m_idIndex.end(); }

    /// Returns the position of the row with the id \a id, the last one where the id is repeated; -1
    /// without one.
    int getRowIndex(const std::string &id) const
    {
        const auto found = m_idIndex.find(id);
        return found == m_idIndex.end() ? -1 : int(found->second);
    }

    /// Returns a copy of the first row with the id \a id, or one with an empty id and no roles.
    /// Goes through the rows: for the position alone, take getRowIndex().
    ModelRow getRowById(const std::string &id) const;

    /// Returns a copy of all rows.
    std::vector<ModelRow> getRows() const;

    /// Appends \a rows and emits countChanged(). A row whose id is known already is skipped with a
    /// warning, and the announced range still counts it. More rows than the model may hold change
    /// nothing and log a warning. An empty list does nothing.
    void appendRows(const std::vector<ModelRow> &rows);

    /// Overwrites rows whose ids are known, and hands the others to appendRows().
    ///
    /// Emits dataChanged() without roles for each run of consecutive positions, in the order of
    /// \a rows, before the row after it is overwritten. The first run starts at row 0, whether or
    /// not that is among them, so a list that overwrites nothing or is empty reports row 0.
    void appendOrUpdate(const std::vector<ModelRow> &rows);

    /// Qt's function of the same name, which inserts nothing here.
    using QAbstractListModel::insertRows;

    /// Inserts \a rows before the position \a row and emits countChanged(). Ids are not compared: a
    /// repeated one is stored. Any \a row that is not a position in the model means appendRows().
    /// More rows than the model may hold change nothing and log a warning.
    void insertRows(int row, const std::vector<ModelRow> &rows);

    /// Makes the model equal to \a rows, position by position: removes or appends at the end, with
    /// countChanged(), and then emits dataChanged() without roles for each maximal run of changed
    /// rows, in ascending order and before the next one is assigned. The present contents emit
    /// nothing. An empty list is clear(), and an empty model takes appendRows(); otherwise there is
    /// no limit to the rows, and repeated ids are kept.
    void replace(const std::vector<ModelRow> &rows);

    /// Removes \a count rows from \a row on and emits countChanged(). A range that is not wholly in
    /// the model, or empty, returns false with a warning.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    /// Removes all rows with a model reset and emits countChanged(). Does nothing when empty.
    void clear();

    /// Writes \a values into the row with the id \a id; silently nothing without one.
    void setRoleValueForRow(const std::string &id, const QMap<int, QVariant> &values);

    /// Writes \a values into the row at \a index, adding roles that it lacks, and emits one
    /// dataChanged() with the roles written, equal values included. A role that is not above
    /// Qt::UserRole and an invalid value are left out with a warning.
    void setRoleValueForRow(const QModelIndex &&index, const QMap<int, QVariant> &values);

Q_SIGNALS:
    /// Rows came or went. Follows Qt's own signals of the change.
    void countChanged(int count);
    /// The header was set to another value.
    void headerChanged();

protected:
    /// Changes the value of a role that the row has, and emits dataChanged(), also for an equal
    /// value. False for an invalid value, outside the model, and, with a warning, where the row
    /// lacks the role.
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

// SPDX-License-Identifier: Apache-2.0
#include "BaseListModel.h"

#include <QDebug>
#include <QPointer>

#include <algorithm>

namespace {

constexpr char tooManyRowsWarning[] = "Too many rows!";
constexpr char repeatedIdWarning[] = "Row id: %1 is not unique! Skipping row";
constexpr char undefinedRoleWarning[][40] = { "[", "] - Role is undefined! Row:", " Role:" };
constexpr char lowRoleWarning[] = "Role is less than Qt::UserRole! Role:";
constexpr char invalidValueWarning[][30] = { "Role value is invalid! Row:", " Role:" };
constexpr char outOfRangeWarning[] = "Out of range! This should never happen!";
constexpr char invalidIndexWarning[] =
        "BaseListModel::replace() - Invalid index! This should never happen";
constexpr char invalidRangeWarning[][50] = { "BaseListModel::removeRows - invalid row! row:",
                                             "count:", "size:" };

constexpr std::size_t firstReservedRows = 100;

/// Usable roles start above Qt::UserRole, which is refused itself.
bool isUsableRole(int role) { return role > Qt::UserRole; }

} // namespace

BaseListModel::BaseListModel(QObject *parent) : QAbstractListModel(parent)
{
    reserveFor(firstReservedRows);
}

BaseListModel::~BaseListModel() = default;

int BaseListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int BaseListModel::getCount() const { return rowCount(QModelIndex()); }

QString BaseListModel::header() const { return m_header; }

void BaseListModel::setHeader(const QString &text)
{
    if (text == m_header)
        return;
    m_header = text;
    Q_EMIT headerChanged();
}

QVariant BaseListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !isUsableRole(role) || index.row() >= int(m_rows.size()))
        return QVariant();
    const auto &values = m_rows[index.row()].second;
    const auto value = values.find(role);
    if (value != values.end())
        return value->second;
    warnOfUndefinedRole(index.row(), role);
    return QVariant();
}

bool BaseListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!value.isValid() || !hasIndex(index.row(), index.column(), index.parent()))
        return false;
    auto &values = m_rows[index.row()].second;
    const auto present = values.find(role);
    if (present == values.end()) {
        warnOfUndefinedRole(index.row(), role);
        return false;
    }
    present->second = value;
    Q_EMIT dataChanged(index, index, { role });
    return true;
}

void BaseListModel::warnOfUndefinedRole(int row, int role) const
{
    QMessageLogger().warning() << undefinedRoleWarning[0] << metaObject()->className()
                               << undefinedRoleWarning[1] << row << undefinedRoleWarning[2] << role;
}

ModelRow BaseListModel::getRowById(const std::string &id) const
{
    if (!hasRow(id))
        return ModelRow();
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&id](const ModelRow &row) { return row.first == id; });
    return found == m_rows.end() ? ModelRow() : *found;
}

std::vector<ModelRow> BaseListModel::getRows() const { return m_rows; }

void BaseListModel::appendRows(const std::vector<ModelRow> &rows)
{
    if (rows.empty())
        return;
    if (m_rows.size() + rows.size() > maximumRowCount) {
        QMessageLogger().warning() << tooManyRowsWarning;
        return;
    }
    // Skipped rows are announced too: listeners rely on the range of the whole list.
    const int first = int(m_rows.size());
    beginInsertRows(QModelIndex(), first, first + int(rows.size()) - 1);
    reserveFor(rows.size());
    for (const ModelRow &row : rows) {
        if (m_idIndex.try_emplace(row.first, m_rows.size()).second)
            m_rows.push_back(row);
        else
            QMessageLogger().warning() << QString::fromLatin1(repeatedIdWarning)
                                                  .arg(QString::fromStdString(row.first));
    }
    finishInsertion();
}

void BaseListModel::appendOrUpdate(const std::vector<ModelRow> &rows)
{
    const QPointer<BaseListModel> self = this;
    std::vector<ModelRow> newRows;
    newRows.reserve(rows.size());
    // A run is always open, at first at row 0: listeners rely on the reports of row 0.
    int first = 0;
    int last = 0;
    const auto reportRun = [this, &first, &last] {
        Q_EMIT dataChanged(index(first, 0, QModelIndex()), index(last, 0, QModelIndex()));
    };
    for (const ModelRow &row : rows) {
        const int position = getRowIndex(row.first);
        if (position < 0) {
            newRows.push_back(row);
            continue;
        }
        if (position >= int(m_rows.size())) {
            QMessageLogger().warning() << outOfRangeWarning;
            return;
        }
        if (position != last + 1) {
            // Reported before the row changes: a sorting proxy looks up the reported rows, and
            // relies on the order of all others.
            reportRun();
            if (!self)
                return;
            first = position;
        }
        last = position;
        m_rows[position] = row;
    }
    reportRun();
    if (self)
        appendRows(newRows);
}

void BaseListModel::insertRows(int row, const std::vector<ModelRow> &rows)
{
    if (rows.empty())
        return;
    if (row < 0 || row >= int(m_rows.size())) {
        appendRows(rows);
        return;
    }
    if (m_rows.size() + rows.size() > maximumRowCount) {
        QMessageLogger().warning() << tooManyRowsWarning;
        return;
    }
    beginInsertRows(QModelIndex(), row, row + int(rows.size()) - 1);
    m_rows.insert(m_rows.begin() + row, rows.begin(), rows.end());
    shiftIndex(row, int(rows.size()));
    for (std::size_t i = row; i < row + rows.size(); ++i) {
        // Of a repeated id the last position counts.
        std::size_t &position = m_idIndex[m_rows[i].first];
        position = std::max(position, i);
    }
    finishInsertion();
}

void BaseListModel::replace(const std::vector<ModelRow> &rows)
{
    if (rows.empty()) {
        clear();
        return;
    }
    if (m_rows.empty()) {
        appendRows(rows);
        return;
    }
    const QPointer<BaseListModel> self = this;
    if (rows.size() < m_rows.size())
        removeRows(int(rows.size()), int(m_rows.size() - rows.size()), QModelIndex());
    if (!self)
        return;
    const std::size_t indexedRows = std::min(rows.size(), m_rows.size());
    if (rows.size() > m_rows.size())
        appendRest(rows);
    if (!self)
        return;
    indexRows(rows, indexedRows);
    assignChangedRows(rows);
}

bool BaseListModel::removeRows(int row, int count, const QModelIndex &parent)
{
    const int size = int(m_rows.size());
    if (row < 0 || count < 1 || row >= size || count > size - row) {
        QMessageLogger().warning() << invalidRangeWarning[0] << row << invalidRangeWarning[1]
                                   << count << invalidRangeWarning[2] << size;
        return false;
    }
    const QPointer<BaseListModel> self = this;
    beginRemoveRows(parent, row, row + count - 1);
    eraseRows(row, count);
    endRemoveRows();
    if (self)
        Q_EMIT countChanged(getCount());
    return true;
}

void BaseListModel::clear()
{
    if (m_rows.empty())
        return;
    const QPointer<BaseListModel> self = this;
    beginResetModel();
    if (!self)
        return;
    m_rows.clear();
    m_idIndex.clear();
    endResetModel();
    if (self)
        Q_EMIT countChanged(getCount());
}

void BaseListModel::setRoleValueForRow(const std::string &id, const QMap<int, QVariant> &values)
{
    const int position = getRowIndex(id);
    if (position >= 0)
        setRoleValueForRow(index(position, 0, QModelIndex()), values);
}

void BaseListModel::setRoleValueForRow(const QModelIndex &&index, const QMap<int, QVariant> &values)
{
    if (!index.isValid() || m_rows.empty() || index.row() >= getCount())
        return;
    QVector<int> written;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const int role = value.key();
        if (!isUsableRole(role)) {
            QMessageLogger().warning() << lowRoleWarning << role;
        } else if (!value->isValid()) {
            QMessageLogger().warning()
                    << invalidValueWarning[0] << index.row() << invalidValueWarning[1] << role;
        } else {
            m_rows[index.row()].second[role] = *value;
            written += role;
        }
    }
    if (!written.isEmpty())
        Q_EMIT dataChanged(index, index, written);
}

/// Reserves room for \a moreRows. At least doubles the capacity, so that many small appends don't
/// move the rows each time.
void BaseListModel::reserveFor(std::size_t moreRows)
{
    const std::size_t rows = m_rows.size() + moreRows;
    if (rows <= m_rows.capacity())
        return;
    const std::size_t capacity = std::max(rows, 2 * m_rows.capacity());
    m_rows.reserve(capacity);
    m_idIndex.reserve(capacity);
}

/// Adds \a distance to the positions of the ids from \a first on. Goes through the index, since
/// looking up the id of each row takes longer.
void BaseListModel::shiftIndex(std::size_t first, int distance)
{
    for (auto &entry : m_idIndex) {
        if (entry.second >= first)
            entry.second += distance;
    }
}

/// Removes \a count rows from \a row on, and their ids.
void BaseListModel::eraseRows(std::size_t row, std::size_t count)
{
    const auto first = m_rows.begin() + std::ptrdiff_t(row);
    const auto end = first + std::ptrdiff_t(count);
    // Without repeated ids, each row has an entry of its own.
    if (m_idIndex.size() == m_rows.size()) {
        for (auto removed = first; removed != end; ++removed)
            m_idIndex.erase(removed->first);
        m_rows.erase(first, end);
        if (row < m_rows.size())
            shiftIndex(row, -int(count));
    } else {
        m_rows.erase(first, end);
        m_idIndex.clear();
        indexRows(m_rows, 0);
    }
}

/// Finishes an insertion of rows and emits what follows it.
void BaseListModel::finishInsertion()
{
    const QPointer<BaseListModel> self = this;
    endInsertRows();
    if (self)
        Q_EMIT countChanged(getCount());
}

/// Adds the ids of \a rows to the index, from the position \a first on.
void BaseListModel::indexRows(const std::vector<ModelRow> &rows, std::size_t first)
{
    for (std::size_t i = first; i < rows.size(); ++i)
        m_idIndex[rows[i].first] = i;
}

/// Appends the rows of \a rows that are past the model's end.
void BaseListModel::appendRest(const std::vector<ModelRow> &rows)
{
    const std::size_t size = m_rows.size();
    beginInsertRows(QModelIndex(), int(size), int(rows.size()) - 1);
    reserveFor(rows.size() - size);
    m_rows.insert(m_rows.end(), rows.begin() + std::ptrdiff_t(size), rows.end());
    finishInsertion();
}

/// Assigns the rows that differ from \a rows and reports each maximal run of them. The index is
/// rebuilt only if an id changes its place: filling it costs as much as all the comparing.
void BaseListModel::assignChangedRows(const std::vector<ModelRow> &rows)
{
    const QPointer<BaseListModel> self = this;
    bool isReindexed = false;
    QModelIndex first;
    QModelIndex last;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (m_rows[i] == rows[i])
            continue;
        if (!isReindexed && m_rows[i].first != rows[i].first) {
            m_idIndex.clear();
            indexRows(rows, 0);
            isReindexed = true;
        }
        const QModelIndex changed = index(int(i), 0, QModelIndex());
        const bool continuesRun = first.isValid() && int(i) == last.row() + 1;
        if (first.isValid() && !continuesRun) {
            // Reported before the row changes, as in appendOrUpdate().
            Q_EMIT dataChanged(first, last);
            if (!self)
                return;
        }
        if (!continuesRun)
            first = changed;
        last = changed;
        m_rows[i] = rows[i];
    }
    if (!first.isValid())
        return;
    if (!last.isValid()) {
        QMessageLogger().warning() << invalidIndexWarning;
        last = first;
    }
    Q_EMIT dataChanged(first, last);
}

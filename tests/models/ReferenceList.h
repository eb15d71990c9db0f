// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than headers are here: it has every operation of the model.

#include "LetterListModel.h"

/// A simple reference implementation of BaseListModel, without an index. Rows are letters, with or
/// without a number.
class ReferenceList
{
public:
    std::vector<ModelRow> rows;
    QStringList emitted;  ///< By the last operation, as in ModelLog.
    QStringList warnings; ///< Of the last operation.

    /// Returns a row as text: "b:B" or "b:B7".
    static QString text(const ModelRow &row)
    {
        const auto value = [&row](int role) {
            const auto found = row.second.find(role);
            return found == row.second.end() ? QString() : found->second.toString();
        };
        return QString::fromStdString(row.first) + QLatin1Char(':') + value(LetterListModel::Letter)
                + value(LetterListModel::Number);
    }

    int firstPosition(const std::string &id) const
    {
        for (int i = 0; i < size(); ++i) {
            if (rows[i].first == id)
                return i;
        }
        return -1;
    }

    int lastPosition(const std::string &id) const
    {
        for (int i = size() - 1; i >= 0; --i) {
            if (rows[i].first == id)
                return i;
        }
        return -1;
    }

    void append(const std::vector<ModelRow> &given)
    {
        if (given.empty())
            return;
        note("ins", size(), size() + int(given.size()) - 1);
        for (const ModelRow &row : given) {
            if (lastPosition(row.first) < 0)
                rows.push_back(row);
            else
                warnings += QStringLiteral("\"Row id: %1 is not unique! Skipping row\"")
                                    .arg(QString::fromStdString(row.first));
        }
        noteCount();
    }

    void appendOrUpdate(const std::vector<ModelRow> &given)
    {
        std::vector<ModelRow> newRows;
        int first = 0;
        int last = 0;
        for (const ModelRow &row : given) {
            const int position = lastPosition(row.first);
            if (position < 0) {
                newRows.push_back(row);
                continue;
            }
            rows[position] = row;
            if (position != last + 1) {
                noteChange(first, last);
                first = position;
            }
            last = position;
        }
        noteChange(first, last);
        append(newRows);
    }

    void insert(int row, const std::vector<ModelRow> &given)
    {
        if (row < 0 || row >= size()) {
            append(given);
            return;
        }
        if (given.empty())
            return;
        note("ins", row, row + int(given.size()) - 1);
        rows.insert(rows.begin() + row, given.begin(), given.end());
        noteCount();
    }

    void clear()
    {
        if (rows.empty())
            return;
        rows.clear();
        emitted += QStringLiteral("reset");
        noteCount();
    }

    void replace(const std::vector<ModelRow> &given)
    {
        if (given.empty()) {
            clear();
            return;
        }
        if (rows.empty()) {
            append(given);
            return;
        }
        const std::vector<ModelRow> before = rows;
        const int oldSize = size();
        rows = given;
        if (size() < oldSize)
            note("rem", size(), oldSize - 1);
        if (size() > oldSize)
            note("ins", oldSize, size() - 1);
        if (size() != oldSize)
            noteCount();
        noteMaximalRuns(before);
    }

    void remove(int row, int count)
    {
        if (row < 0 || count < 1 || row + count > size()) {
            warnings += QStringLiteral("BaseListModel::removeRows - invalid row! row: %1 count: %2 "
                                       "size: %3")
                                .arg(row)
                                .arg(count)
                                .arg(size());
            return;
        }
        note("rem", row, row + count - 1);
        rows.erase(rows.begin() + row, rows.begin() + row + count);
        noteCount();
    }

    void setNumber(const std::string &id, int number)
    {
        const int position = lastPosition(id);
        if (position < 0)
            return;
        rows[position].second[LetterListModel::Number] = number;
        emitted += QStringLiteral("chg %1,%1 [258]").arg(position);
    }

private:
    int size() const { return int(rows.size()); }

    void note(const char *what, int first, int last)
    {
        emitted += QStringLiteral("%1 %2,%3").arg(QLatin1String(what)).arg(first).arg(last);
    }

    /// The index of a missing row is invalid, and its row is -1.
    void noteChange(int first, int last)
    {
        note("chg", first < size() ? first : -1, last < size() ? last : -1);
    }

    void noteCount() { emitted += QStringLiteral("count %1").arg(size()); }

    void noteMaximalRuns(const std::vector<ModelRow> &before)
    {
        int first = -1;
        for (int i = 0; i <= size(); ++i) {
            const bool isChanged = i < size() && i < int(before.size())
                    && text(before[i]) != text(rows[i]);
            if (isChanged && first < 0)
                first = i;
            if (!isChanged && first >= 0) {
                note("chg", first, i - 1);
                first = -1;
            }
        }
    }
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ModelLog.h"

#include <UiElements/models/BaseListModel.h>

/// A list of letters. A row's id is its letter in lower case, and the letter itself a value, so
/// that "aBc" is "abc" with its second row changed.
class LetterListModel : public BaseListModel
{
    Q_OBJECT

public:
    enum Role { Letter = Qt::UserRole + 1, Number };

    explicit LetterListModel(const QString &letters = QString()) { appendRows(rowsOf(letters)); }

    static ModelRow rowOf(QChar letter)
    {
        return { std::string(1, letter.toLower().toLatin1()), { { Letter, QString(letter) } } };
    }

    static std::vector<ModelRow> rowsOf(const QString &letters)
    {
        std::vector<ModelRow> rows;
        for (const QChar letter : letters)
            rows.push_back(rowOf(letter));
        return rows;
    }

    /// Returns \a count rows with the ids "0", "1" and so on.
    static std::vector<ModelRow> numberedRows(int count)
    {
        std::vector<ModelRow> rows;
        for (int i = 0; i < count; ++i)
            rows.push_back({ std::to_string(i), { { Number, i } } });
        return rows;
    }

    /// Returns the letters: "aBc".
    QString text() const { return ModelLog::rows(*this, Letter); }

    /// Returns where the index finds the id of each row: "0 1 2"; of a repeated id that is always
    /// one of its positions.
    QString positions() const
    {
        QStringList positions;
        for (const ModelRow &row : getRows())
            positions += QString::number(getRowIndex(row.first));
        return positions.join(QLatin1Char(' '));
    }

    QHash<int, QByteArray> roleNames() const override
    {
        return { { Letter, "letter" }, { Number, "number" } };
    }

    using BaseListModel::setData;
};

/// A list that reports two rows at most.
class CappedListModel : public LetterListModel
{
    Q_OBJECT

public:
    using LetterListModel::LetterListModel;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return qMin(LetterListModel::rowCount(parent), 2);
    }
};

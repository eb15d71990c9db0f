// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/models/BaseListModel.h>

#include <algorithm>
#include <random>

/// Rows of a list of conversations, with 8 roles each.
namespace ConversationRows {

constexpr int rowCount = 10000;
constexpr int firstRole = Qt::UserRole + 1;
constexpr int roleCount = 8;

/// Returns the row at \a position. Rows of another \a generation differ in the last message and its
/// number. Nothing is shared with earlier rows, as when a client builds new rows.
inline ModelRow make(int position, int generation)
{
    const auto text = [position](const char *what) {
        return QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(position);
    };
    return { "conversation-" + std::to_string(position),
             { { firstRole, text("Title of conversation") },
               { firstRole + 1, text("Last message") + QString::number(generation) },
               { firstRole + 2, text("Sender") },
               { firstRole + 3, text("qrc:/avatars/") },
               { firstRole + 4, position },
               { firstRole + 5, generation },
               { firstRole + 6, position % 3 == 0 },
               { firstRole + 7, position * 0.5 } } };
}

/// Returns all rows. Each \a nth has the generation \a generation, the others 0; all have 0 when
/// \a nth is 0.
inline std::vector<ModelRow> makeAll(int nth = 0, int generation = 0)
{
    std::vector<ModelRow> rows;
    rows.reserve(rowCount);
    for (int i = 0; i < rowCount; ++i)
        rows.push_back(make(i, nth > 0 && i % nth == 0 ? generation : 0));
    return rows;
}

/// Returns the ids of \a rows in an unrelated order.
inline std::vector<std::string> shuffledIds(const std::vector<ModelRow> &rows)
{
    std::vector<std::string> ids;
    for (const ModelRow &row : rows)
        ids.push_back(row.first);
    std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
    return ids;
}

/// A BaseListModel of such rows.
class Model : public BaseListModel
{
public:
    QHash<int, QByteArray> roleNames() const override { return { { firstRole, "title" } }; }
};

} // namespace ConversationRows

// SPDX-License-Identifier: Apache-2.0
#include "Conversations.h"

#include "RowRole.h"

#include <QTime>

#include <iterator>

namespace {

constexpr const char *names[] = { "Ada",   "Benno", "Carla", "Deniz", "Emil",  "Fatou",
                                  "Goran", "Hana",  "Ivo",   "Jun",   "Kaja",  "Lina",
                                  "Mateo", "Noor",  "Oskar", "Paula", "Ruben", "Selma" };

constexpr const char *messages[] = {
    "The room is booked from ten",    "Could you look at the second draft?", "Thanks, that was it",
    "I am running five minutes late", "The pictures are in the folder",      "See you after lunch",
    "Let us move it to Thursday"
};

template <std::size_t size>
QString pick(const char *const (&texts)[size], int number)
{
    return QString::fromLatin1(texts[std::size_t(number) % size]);
}

QString timeText(int minutes)
{
    return QTime(9, 0).addSecs(60 * minutes).toString(QStringLiteral("hh:mm"));
}

ModelRow makeRow(int number)
{
    return { "conversation-" + std::to_string(number),
             { { RowRole::Title, pick(names, number) },
               { RowRole::Detail, pick(messages, number) },
               { RowRole::Time, timeText(number) },
               { RowRole::Unread, number % 4 == 1 ? number % 3 + 1 : 0 },
               { RowRole::Avatar, number } } };
}

} // namespace

std::vector<ModelRow> Conversations::make(int first, int count)
{
    std::vector<ModelRow> rows;
    for (int number = first; number < first + count; ++number)
        rows.push_back(makeRow(number));
    return rows;
}

ModelRow Conversations::answered(ModelRow row, int step)
{
    QVariant &unread = row.second[RowRole::Unread];
    unread = unread.toInt() + 1;
    row.second[RowRole::Detail] = pick(messages, step + unread.toInt());
    row.second[RowRole::Time] = timeText(60 + step);
    return row;
}

std::vector<ModelRow> Conversations::withShareAnswered(std::vector<ModelRow> rows, int percent,
                                                       int step)
{
    const std::size_t count = rows.size();
    const std::size_t share = (count * std::size_t(percent) + 99) / 100;
    for (std::size_t i = 0; i < count; ++i) {
        if (i * share / count != (i + 1) * share / count)
            rows[i] = answered(rows[i], step);
    }
    return rows;
}

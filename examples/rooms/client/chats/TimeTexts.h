// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>

/// When something was, in the words of the user's language.
namespace TimeTexts {

/// The time of day.
QString time(const QDateTime &at);

/// "Today", "Yesterday", or the day with its name; with the year where that is another one.
QString day(const QDate &day);

/// As short as can be: the time of today, the day's name in the last week, else the date.
QString brief(const QDateTime &at);

} // namespace TimeTexts

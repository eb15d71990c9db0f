// SPDX-License-Identifier: Apache-2.0
#include "TimeTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

QString tr(const char *text) { return QCoreApplication::translate("TimeTexts", text); }

bool isThisYear(const QDate &day) { return day.year() == QDate::currentDate().year(); }

} // namespace

QString TimeTexts::time(const QDateTime &at)
{
    // Some locales have seconds in their short times.
    const QString format = QLocale().timeFormat(QLocale::ShortFormat);
    return QLocale().toString(at.toLocalTime().time(),
                              QString(format).remove(QLatin1String(":ss")));
}

QString TimeTexts::day(const QDate &day)
{
    const qint64 age = day.daysTo(QDate::currentDate());
    if (age == 0)
        return tr("Today");
    if (age == 1)
        return tr("Yesterday");
    return QLocale().toString(day, isThisYear(day) ? tr("dddd, d MMMM") : tr("d MMMM yyyy"));
}

QString TimeTexts::brief(const QDateTime &at)
{
    const QDate day = at.toLocalTime().date();
    const qint64 age = day.daysTo(QDate::currentDate());
    if (age == 0)
        return time(at);
    if (age > 0 && age < 7)
        return QLocale().toString(day, QStringLiteral("ddd"));
    return QLocale().toString(day, isThisYear(day) ? tr("d MMM") : tr("MMM yyyy"));
}

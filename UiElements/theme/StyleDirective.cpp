// SPDX-License-Identifier: Apache-2.0
#include "StyleDirective_p.h"

std::optional<StyleDirective> StyleDirective::find(const QString &text, QStringView tag, int from)
{
    const int position = positionOf(tag, text, from);
    if (position < 0)
        return std::nullopt;
    const int valuePosition = position + int(tag.size());
    const int end = text.indexOf(QLatin1Char(';'), valuePosition);
    if (end < 0)
        return std::nullopt;
    return StyleDirective { position, end + 1 - position, valuePosition };
}

QString StyleDirective::valueIn(const QString &text) const
{
    const int end = position + length - 1;
    return QStringView(text).mid(valuePosition, end - valuePosition).trimmed().toString();
}

int positionOf(QStringView word, const QString &text, int from)
{
    const QChar first = word.first();
    int position = text.indexOf(first, from);
    while (position >= 0 && !QStringView(text).mid(position).startsWith(word))
        position = text.indexOf(first, position + 1);
    return position;
}

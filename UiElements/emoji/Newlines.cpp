// SPDX-License-Identifier: Apache-2.0
#include "Newlines_p.h"

#include <algorithm>

namespace {

constexpr ushort newlines[] = { 0x000C, 0x000F, 0x2029, 0x2028, 0x000D, 0x000A };

QRegularExpression makeExpression()
{
    QString pattern;
    for (const ushort newline : newlines) {
        if (!pattern.isEmpty())
            pattern += QLatin1Char('|');
        pattern += QChar(newline);
    }
    return QRegularExpression(pattern);
}

} // namespace

QSet<QChar> Newlines::characters()
{
    QSet<QChar> characters;
    for (const ushort newline : newlines)
        characters.insert(QChar(newline));
    return characters;
}

const QRegularExpression &Newlines::expression()
{
    static const QRegularExpression expression = makeExpression();
    return expression;
}

bool Newlines::isIn(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar character) {
        return std::find(std::begin(newlines), std::end(newlines), character.unicode())
                != std::end(newlines);
    });
}

QStringList Newlines::split(const QString &text)
{
    return text.split(expression(), Qt::SkipEmptyParts);
}

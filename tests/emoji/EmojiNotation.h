// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRegularExpression>
#include <QString>

#include <initializer_list>

/// A readable notation for emoji in tests.
namespace EmojiNotation {

/// Returns the text of \a codePoints.
inline QString text(std::initializer_list<uint> codePoints)
{
    return QString::fromUcs4(codePoints.begin(), int(codePoints.size()));
}

/// Returns the placeholder tag for \a emoji with artwork \a stem.
inline QString tag(const char *stem, const QString &emoji)
{
    return QStringLiteral("<img src=\"svgFile=:/emojis/%1.svg%2unicode\" alt=\"%2\">")
            .arg(QLatin1String(stem), emoji);
}

/// Returns \a markup with tags as stems in brackets and other non-ASCII characters as numbers:
/// "Hi[1f600]", "{1f600}".
inline QString describe(const QString &markup)
{
    static const QRegularExpression tags(
            QStringLiteral("<img src=\"svgFile=:/emojis/([^.]*)\\.svg([^\"]*)unicode\" "
                           "alt=\"\\2\">"));
    QString described;
    const auto codePoints = QString(markup).replace(tags, QStringLiteral("[\\1]")).toUcs4();
    for (const uint codePoint : codePoints) {
        described += codePoint < 0x80 ? QString(QChar(codePoint))
                                      : QStringLiteral("{%1}").arg(codePoint, 0, 16);
    }
    return described;
}

} // namespace EmojiNotation

// SPDX-License-Identifier: Apache-2.0
#include "EmojiMarkup_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace {

const QLatin1String tagStart("<img src=");
const QLatin1String sourceStart("src=\"");
const QLatin1String altStart("alt=\"");
const QLatin1String placeholderStart("svgFile=");
const QLatin1String placeholderEnd("unicode");
const QLatin1String suffix(".svg");

// A mark's number is two digits of this base, which are characters of the private use area.
constexpr std::size_t markBase = 0x1000;
constexpr ushort firstDigit = 0xE000;

void appendMark(QString &markup, std::size_t number)
{
    markup += QChar::ObjectReplacementCharacter;
    markup += QChar(ushort(firstDigit + number / markBase));
    markup += QChar(ushort(firstDigit + number % markBase));
}

void appendAlt(QString &markup, const QString &emoji)
{
    markup += QLatin1String(" alt=\"");
    markup += emoji;
    markup += QLatin1String("\">");
}

/// Returns the text that \a tag stands for, or \a tag itself.
QString textOf(const QString &tag)
{
    const int source = tag.lastIndexOf(sourceStart);
    if (source < 0)
        return tag;
    const int nameStart = source + sourceStart.size();
    const int bar = tag.indexOf(QLatin1Char('|'), nameStart);
    if (bar >= 0)
        return tag.mid(nameStart, bar - nameStart);

    const int alt = tag.lastIndexOf(altStart);
    if (alt < 0)
        return tag;
    const int textStart = alt + altStart.size();
    const int textEnd = tag.indexOf(QLatin1Char('"'), textStart);
    return textEnd < 0 ? tag : tag.mid(textStart, textEnd - textStart);
}

/// Returns the end of the tag that begins at \a start, at most the end of its line.
int endOfTag(const QString &markup, int start)
{
    const auto isEnd = [](QChar character) {
        return character == QLatin1Char('>') || character == QLatin1Char('\n');
    };
    const auto end = std::find_if(markup.cbegin() + start + tagStart.size(), markup.cend(), isEnd);
    return int(end - markup.cbegin());
}

/// Returns the end of the tag that begins at \a start, which may span lines.
int behindTag(const QString &markup, int start)
{
    const int end = markup.indexOf(QLatin1Char('>'), start);
    return end < 0 ? markup.size() : end + 1;
}

} // namespace

void EmojiMarkup::appendPlaceholder(QString &markup, const Source &source)
{
    markup += QLatin1String("<img src=\"svgFile=");
    markup += source.path;
    markup += source.text;
    markup += QLatin1String("unicode\"");
    appendAlt(markup, source.text);
}

void EmojiMarkup::appendImage(QString &markup, const Source &source, int edge)
{
    const QString length = QString::number(edge);
    markup += QLatin1String("<img src=\"qrc") + source.path + QLatin1String("\" width=\"") + length
            + QLatin1String("\" height=\"") + length + QLatin1String("\" align=\"middle\"");
    appendAlt(markup, source.text);
}

std::optional<EmojiMarkup::Source> EmojiMarkup::parseName(const QString &name)
{
    const int start = name.indexOf(placeholderStart);
    if (start < 0)
        return {};
    const int pathStart = start + placeholderStart.size();
    const int pathEnd = name.indexOf(suffix, pathStart);
    if (pathEnd < 0)
        return {};
    const int textStart = pathEnd + suffix.size();
    const int textEnd = name.indexOf(placeholderEnd, textStart);
    if (textEnd < 0)
        return {};
    return Source { name.mid(pathStart, textStart - pathStart),
                    name.mid(textStart, textEnd - textStart) };
}

QString EmojiMarkup::pictureName(const QString &emoji, int number)
{
    return emoji + QLatin1Char('|') + QString::number(number);
}

bool EmojiMarkup::hasBlocks(const QString &markup)
{
    static const QRegularExpression blocks(
            QStringLiteral(
                    "<(?!/?(a|b|big|br|code|em|font|i|img|s|small|span|strong|sub|sup|u)\\b)"),
            QRegularExpression::CaseInsensitiveOption);
    return markup.contains(blocks);
}

QString EmojiMarkup::marked(const QString &markup, std::vector<Source> &sources)
{
    QString result;
    result.reserve(markup.size());
    for (int start = 0; start < markup.size();) {
        const QChar character = markup.at(start);
        const bool isTag = character == QLatin1Char('<');
        const int end = isTag ? behindTag(markup, start) : start + 1;
        const QStringRef part = markup.midRef(start, end - start);
        std::optional<Source> source;
        if (character == QChar::ObjectReplacementCharacter)
            source = Source { {}, character };
        else if (isTag && part.startsWith(tagStart))
            source = parseName(part.toString());

        if (source) {
            appendMark(result, sources.size());
            sources.push_back(*source);
        } else {
            result += part;
        }
        start = end;
    }
    return result;
}

std::size_t EmojiMarkup::markNumber(const QString &text, int position)
{
    if (position + markLength > text.size())
        return std::numeric_limits<std::size_t>::max();
    return std::size_t(text.at(position + 1).unicode() - firstDigit) * markBase
            + std::size_t(text.at(position + 2).unicode() - firstDigit);
}

QString EmojiMarkup::restored(const QString &markup)
{
    QString text;
    int copied = 0;
    for (int start = markup.indexOf(tagStart); start >= 0;) {
        const int end = endOfTag(markup, start);
        if (end == markup.size())
            break;
        if (markup.at(end) == QLatin1Char('>')) {
            text += markup.midRef(copied, start - copied);
            text += textOf(markup.mid(start, end + 1 - start));
            copied = end + 1;
        }
        start = markup.indexOf(tagStart, end);
    }
    return text + markup.midRef(copied);
}

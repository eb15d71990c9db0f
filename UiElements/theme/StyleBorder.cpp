// SPDX-License-Identifier: Apache-2.0
#include "StyleBorder_p.h"
#include "StyleDirective_p.h"

#include <QStringBuilder>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

/// The corners in the order of OxaCSSData::radiusCorner, from 1, and of the mask's bits.
constexpr std::array<QStringView, 4> corners = { u"top-left", u"top-right", u"bottom-left",
                                                 u"bottom-right" };
constexpr int allCorners = 0;
constexpr int topCorners = 5;

/// Enough for usual selectors. A longer rule takes more memory as it grows.
constexpr int expectedRuleLength = 256;

/// A side's word and its flag, in the order in which sides are written.
struct Side
{
    QStringView word;
    bool OxaCSSData::*flag;
};
constexpr std::array<Side, 4> sides = { {
        { u"top", &OxaCSSData::borderTop },
        { u"right", &OxaCSSData::borderRight },
        { u"bottom", &OxaCSSData::borderBottom },
        { u"left", &OxaCSSData::borderLeft },
} };

bool hasAllSides(const OxaCSSData &data)
{
    return data.borderTop && data.borderRight && data.borderBottom && data.borderLeft;
}

bool hasAnySide(const OxaCSSData &data)
{
    return data.borderTop || data.borderRight || data.borderBottom || data.borderLeft;
}

/// Four sides of width 0 are no border at all, and a radius is dropped with them.
bool hasNothing(const OxaCSSData &data)
{
    return (hasAllSides(data) && data.borderWidth == 0) || (!hasAnySide(data) && !data.noBorder);
}

// Reading

quint8 readWidth(const QString &value)
{
    return static_cast<quint8>(std::max(value.toInt(), 1)); // toInt() gives 0 for no number.
}

void readSides(const QString &value, OxaCSSData &data)
{
    const bool all = value.contains(QLatin1String("all"));
    for (const Side &side : sides)
        data.*side.flag = all || value.contains(side.word);
}

/// Returns a bit for each corner that \a sheet does not round. Plain declarations that round some
/// corners leave the others square; a radius directive, known by its capital R, rounds all.
quint8 squareCorners(const QString &sheet)
{
    constexpr QStringView radius = u"-radius";
    constexpr unsigned all = 0xf;
    unsigned mask = all;
    for (int at = -1; (at = positionOf(radius, sheet, at + 1)) >= 0;) {
        for (std::size_t i = 0; i < corners.size(); ++i) {
            if (sheet.leftRef(at).endsWith(corners[i]))
                mask &= ~(1U << i);
        }
    }
    const bool isRoundByDirective = mask == all && positionOf(u"Radius", sheet) >= 0;
    return isRoundByDirective ? quint8(0) : static_cast<quint8>(mask);
}

int readCorner(const QString &word)
{
    const int hyphens = word.count(QLatin1Char('-'));
    if (hyphens == 0 && word == QLatin1String("top"))
        return topCorners;
    for (std::size_t i = 0; hyphens == 1 && i < corners.size(); ++i) {
        if (word.contains(corners[i]))
            return static_cast<int>(i) + 1;
    }
    return allCorners;
}

void readRadius(const QString &value, OxaCSSData &data)
{
    const QStringList parts = value.split(QLatin1Char(' '));
    const bool hasCorner = parts.size() == 2;
    data.borderRadius = static_cast<quint8>((hasCorner ? parts[0] : value).toUInt());
    data.radiusCorner = hasCorner ? readCorner(parts[1]) : allCorners;
}

/// Removes the first directive of \a tag at \a from or later from \a sheet and returns its value.
/// If the value is not empty, \a position becomes the directive's.
QString takeDirective(QString &sheet, QStringView tag, int from, int &position)
{
    const auto directive = StyleDirective::find(sheet, tag, from);
    if (!directive)
        return {};
    QString value = directive->valueIn(sheet);
    if (!value.isEmpty())
        position = directive->position;
    sheet.remove(directive->position, directive->length);
    return value;
}

/// Removes the border directives from \a sheet and fills the border fields of \a data. Returns
/// where the border rule belongs, or -1 for no rule.
int takeDirectives(QString &sheet, OxaCSSData &data)
{
    const bool hasBorderSet = !data.borderColorSetName.isEmpty();
    const bool hasSet = hasBorderSet || !data.backgroundColorSetName.isEmpty()
            || !data.textColorSetName.isEmpty();
    for (const Side &side : sides)
        data.*side.flag = hasBorderSet;
    data.borderWidth = hasBorderSet ? 1 : 0;
    int position = hasSet ? 0 : -1;
    const int begin = std::max(sheet.indexOf(QLatin1Char('$')), 0); // No tag begins before it.
    int widthPosition = -1; // A width alone makes no border.

    const QString width = takeDirective(sheet, StyleTag::borderWidth, begin, widthPosition);
    if (!width.isEmpty())
        data.borderWidth = readWidth(width);
    const QString borders = takeDirective(sheet, StyleTag::borders, begin, position);
    if (!borders.isEmpty()) {
        readSides(borders, data);
        data.rectangularCornerMask = squareCorners(sheet);
    }
    const QString radius = takeDirective(sheet, StyleTag::borderRadius, begin, position);
    if (!radius.isEmpty())
        readRadius(radius, data);
    data.noBorder = !hasBorderSet && data.borderRadius != 0;
    return position;
}

// Writing

/// Returns the word for the corners that a radius applies to, empty for all of them.
QStringView cornerWord(int corner)
{
    if (corner == topCorners)
        return u"top";
    const bool isOneCorner = corner > allCorners && corner < topCorners;
    return isOneCorner ? corners[static_cast<std::size_t>(corner - 1)] : u"";
}

void appendRadius(QString &rule, const OxaCSSData &data)
{
    if (data.borderRadius == 0)
        return;
    const QString end = u"-radius:" % QString::number(data.borderRadius) % u"px;";
    const QStringView corner = cornerWord(data.radiusCorner);
    if (data.radiusCorner == topCorners)
        rule += u"border-top-left" % end % u" border-top-right" % end;
    else
        rule += u"border" % QStringView(corner.isEmpty() ? u"" : u"-") % corner % end;
}

void appendSides(QString &rule, const OxaCSSData &data)
{
    const QString end = u"width:" % QString::number(data.borderWidth) % u"px;";
    rule += QLatin1String("border-style:solid;");
    if (hasAllSides(data))
        rule += u" border-" % end;
    for (const Side &side : sides) {
        if (data.*side.flag && !hasAllSides(data))
            rule += u"border-" % side.word % u'-' % end;
    }
}

QString borderRule(const QString &selector, const OxaCSSData &data)
{
    QString rule = selector % u'{';
    rule.reserve(expectedRuleLength);
    if (hasNothing(data)) {
        rule += QLatin1String("border:none;");
    } else {
        if (!data.noBorder)
            appendSides(rule, data);
        appendRadius(rule, data);
    }
    return rule + QLatin1Char('}');
}

QString radiusDirective(const OxaCSSData &data)
{
    if (data.borderRadius == 0)
        return {};
    const QStringView corner = cornerWord(data.radiusCorner);
    return StyleTag::borderRadius % QString::number(data.borderRadius)
            % QStringView(corner.isEmpty() ? u"" : u" ") % corner % u';';
}

QString sideWords(const OxaCSSData &data)
{
    if (hasAllSides(data))
        return QStringLiteral(" all");
    QString words;
    for (const Side &side : sides) {
        if (data.*side.flag)
            words += u' ' % side.word;
    }
    return words;
}

} // namespace

void StyleBorder::expandDirectives(QString &sheet, const QString &selector, OxaCSSData &data)
{
    const int position = takeDirectives(sheet, data);
    if (position >= 0)
        sheet.insert(position, borderRule(selector, data));
}

QString StyleBorder::toDirectives(const OxaCSSData &data)
{
    if (hasNothing(data))
        return {};
    if (data.noBorder)
        return radiusDirective(data);
    return StyleTag::borders % sideWords(data) % u"; " % StyleTag::borderWidth
            % QString::number(data.borderWidth) % u';' % radiusDirective(data);
}

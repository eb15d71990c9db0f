// SPDX-License-Identifier: Apache-2.0
#include "StyleBorder_p.h"
#include "StyleDirective_p.h"

#include <QStringBuilder>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

/// The corners that OxaCSSData::radiusCorner numbers from 1 and whose squareness is a bit each.
constexpr std::array<QStringView, 4> corners = { u"top-left", u"top-right", u"bottom-left",
                                                 u"bottom-right" };
constexpr int allCorners = 0;
constexpr int topCorners = 5;

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

/// Four sides of no width are no border at all, and a radius is dropped with them.
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
/// corners leave the others square; the capital R of a radius directive rounds all of them.
quint8 squareCorners(const QString &sheet)
{
    constexpr quint8 all = 0xf;
    quint8 mask = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (!sheet.contains(QString(corners[i] % u"-radius")))
            mask = static_cast<quint8>(mask | 1U << i);
    }
    return mask == all && sheet.contains(QLatin1String("Radius")) ? quint8(0) : mask;
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

/// Takes the border directives out of \a sheet and fills the border fields of \a data. Returns
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

    const auto width = StyleDirective::take(sheet, StyleTag::borderWidth);
    if (width && !width->value.isEmpty())
        data.borderWidth = readWidth(width->value);

    const auto borders = StyleDirective::take(sheet, StyleTag::borders);
    if (borders && !borders->value.isEmpty()) {
        readSides(borders->value, data);
        position = borders->position;
        data.rectangularCornerMask = squareCorners(sheet);
    }

    const auto radius = StyleDirective::take(sheet, StyleTag::borderRadius);
    if (radius && !radius->value.isEmpty()) {
        readRadius(radius->value, data);
        position = radius->position;
    }
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

QString radiusDeclarations(const OxaCSSData &data)
{
    if (data.borderRadius == 0)
        return {};
    const QString end = u"-radius:" % QString::number(data.borderRadius) % u"px;";
    if (data.radiusCorner == topCorners)
        return u"border-top-left" % end % u" border-top-right" % end;
    const QStringView corner = cornerWord(data.radiusCorner);
    return u"border" % QStringView(corner.isEmpty() ? u"" : u"-") % corner % end;
}

QString borderDeclarations(const OxaCSSData &data)
{
    if (hasNothing(data))
        return QStringLiteral("border:none;");
    if (data.noBorder)
        return radiusDeclarations(data);

    const QString end = u"width:" % QString::number(data.borderWidth) % u"px;";
    QString text = QStringLiteral("border-style:solid;");
    if (hasAllSides(data))
        return text % u" border-" % end % radiusDeclarations(data);
    for (const Side &side : sides) {
        if (data.*side.flag)
            text += u"border-" % side.word % u'-' % end;
    }
    return text + radiusDeclarations(data);
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
        sheet.insert(position, selector % u'{' % borderDeclarations(data) % u'}');
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

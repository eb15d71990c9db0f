// SPDX-License-Identifier: Apache-2.0
#include "StyleBorder_p.h"
#include "StyleDraft_p.h"
#include "StyleTag_p.h"
#include "TextWriter_p.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// The corners that OxaCSSData::radiusCorner numbers from 1, and whose squareness is a bit each.
constexpr std::array<QStringView, 4> corners = { u"top-left", u"top-right", u"bottom-left",
                                                 u"bottom-right" };
constexpr int allCorners = 0;
constexpr int topCorners = 5;

/// Room for the longest text of a border: four sides and two corners.
constexpr int borderLength = 256;

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

void setAllSides(OxaCSSData &data, bool on)
{
    for (const Side &side : sides)
        data.*side.flag = on;
}

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

bool isOneCorner(int corner) { return corner > allCorners && corner < topCorners; }

QStringView cornerWord(int corner) { return corners[static_cast<std::size_t>(corner - 1)]; }

/// QStringView::contains(), quicker where both are a few characters.
bool holds(QStringView text, QStringView word)
{
    return std::search(text.begin(), text.end(), word.begin(), word.end()) != text.end();
}

/// Removes the first directive of \a tag and returns what it says; \a position becomes its own
/// unless that is nothing.
QStringView takeDirective(StyleDraft &draft, StyleTag tag, int &position)
{
    const auto directive = draft.findDirective(tag);
    if (!directive)
        return {};
    if (!directive->value.isEmpty())
        position = draft.positionOf(*directive);
    draft.remove(*directive);
    return directive->value;
}

/// The number that \a text is, if that is a few digits and nothing else, as it is nearly always.
/// What else Qt takes for a number is left to it: QStringView::toInt() makes a QString first.
std::optional<int> plainNumber(QStringView text)
{
    constexpr int mostDigits = 9;
    int number = 0;
    for (const QChar digit : text) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9') || text.size() > mostDigits)
            return std::nullopt;
        number = 10 * number + digit.unicode() - u'0';
    }
    return number;
}

quint8 readWidth(QStringView value)
{
    const auto number = plainNumber(value);
    const int width = number ? *number : value.toInt(); // 0 for what is no number.
    return width >= 1 ? static_cast<quint8>(width) : quint8(1);
}

void readSides(QStringView value, OxaCSSData &data)
{
    if (holds(value, u"all")) {
        setAllSides(data, true);
        return;
    }
    for (const Side &side : sides)
        data.*side.flag = holds(value, side.word);
}

/// The bit of the corner that \a text ends with; none without one.
unsigned cornerBit(QStringView text)
{
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (text.endsWith(corners[i]))
            return 1U << i;
    }
    return 0;
}

/// The corners that \a text does not round. The capital R of the radius directive means that all
/// of them are round; plain declarations that round some leave the others square.
quint8 squareCorners(QStringView text)
{
    constexpr unsigned all = 0xf;
    unsigned mask = all;
    bool hasDirective = false;
    constexpr QStringView word = u"adius";
    for (auto at = text.begin();
         (at = std::search(at, text.end(), word.begin(), word.end())) != text.end(); ++at) {
        const QStringView before(text.begin(), at);
        if (before.endsWith(QLatin1Char('R')))
            hasDirective = true;
        else if (before.endsWith(QStringView(u"-r")))
            mask &= ~cornerBit(before.chopped(2));
    }
    return static_cast<quint8>(mask == all && hasDirective ? 0 : mask);
}

/// The corners that the text of \a draft, whose rules begin with \a selector, does not round.
quint8 squareCorners(const StyleDraft &draft, const QString &selector)
{
    QVarLengthArray<QChar, 1024> text(draft.length());
    TextWriter writer(text.data());
    // Rules hold no corners, but their selector may, or complete what stands before it.
    draft.writeBeginnings(writer, selector.size() + 1);
    return squareCorners(QStringView(text.data(), writer.end()));
}

int readCorner(QStringView word)
{
    const auto hyphens = std::count(word.begin(), word.end(), QLatin1Char('-'));
    if (hyphens == 0)
        return word == u"top" ? topCorners : allCorners;
    if (hyphens != 1)
        return allCorners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (holds(word, corners[i]))
            return static_cast<int>(i) + 1;
    }
    return allCorners;
}

void readRadius(QStringView value, OxaCSSData &data)
{
    const auto blank = value.indexOf(QLatin1Char(' '));
    const bool hasCorner = blank >= 0 && value.lastIndexOf(QLatin1Char(' ')) == blank;
    const QStringView radius = hasCorner ? value.left(blank) : value;
    const auto number = plainNumber(radius);
    data.borderRadius = static_cast<quint8>(number ? static_cast<uint>(*number) : radius.toUInt());
    if (hasCorner)
        data.radiusCorner = readCorner(value.mid(blank + 1));
}

void writeRadius(TextWriter &sheet, const OxaCSSData &data)
{
    if (data.borderRadius == 0)
        return;
    const quint8 radius = data.borderRadius;
    if (data.radiusCorner == topCorners)
        sheet << u"border-top-left-radius:" << radius << u"px; border-top-right-radius:" << radius;
    else if (isOneCorner(data.radiusCorner))
        sheet << u"border-" << cornerWord(data.radiusCorner) << u"-radius:" << radius;
    else
        sheet << u"border-radius:" << radius;
    sheet << u"px;";
}

void writeSides(TextWriter &sheet, const OxaCSSData &data)
{
    if (hasAllSides(data)) {
        sheet << u"border-style:solid; border-width:" << data.borderWidth << u"px;";
        return;
    }
    sheet << u"border-style:solid;";
    for (const Side &side : sides) {
        if (data.*side.flag)
            sheet << u"border-" << side.word << u"-width:" << data.borderWidth << u"px;";
    }
}

void writeBorder(TextWriter &sheet, const OxaCSSData &data)
{
    if (hasNothing(data)) {
        sheet << u"border:none;";
        return;
    }
    if (!data.noBorder)
        writeSides(sheet, data);
    writeRadius(sheet, data);
}

void writeRadiusDirective(TextWriter &text, const OxaCSSData &data)
{
    if (data.borderRadius == 0)
        return;
    text << textOf(StyleTag::BorderRadius) << data.borderRadius;
    if (data.radiusCorner == topCorners)
        text << u" top";
    else if (isOneCorner(data.radiusCorner))
        text << u" " << cornerWord(data.radiusCorner);
    text << u";";
}

void writeSidesDirectives(TextWriter &text, const OxaCSSData &data)
{
    text << textOf(StyleTag::Borders);
    if (hasAllSides(data))
        text << u" all";
    for (const Side &side : sides) {
        if (data.*side.flag && !hasAllSides(data))
            text << u" " << side.word;
    }
    text << u"; " << textOf(StyleTag::BorderWidth) << data.borderWidth << u";";
}

void writeDirectives(TextWriter &text, const OxaCSSData &data)
{
    if (!data.noBorder)
        writeSidesDirectives(text, data);
    writeRadiusDirective(text, data);
}

/// Takes the border directives out of \a draft and fills the border fields of \a data. Returns
/// where the border rule belongs, or -1 when there is none.
int readDirectives(StyleDraft &draft, const QString &selector, OxaCSSData &data)
{
    const bool hasBorderSet = !data.borderColorSetName.isEmpty();
    const bool hasSet = hasBorderSet || !data.backgroundColorSetName.isEmpty()
            || !data.textColorSetName.isEmpty();
    setAllSides(data, hasBorderSet);
    data.borderWidth = hasBorderSet ? 1 : 0;
    int position = hasSet ? 0 : -1;
    int widthPosition = -1; // A width alone makes no border.

    const QStringView width = takeDirective(draft, StyleTag::BorderWidth, widthPosition);
    if (!width.isEmpty())
        data.borderWidth = readWidth(width);

    const QStringView borders = takeDirective(draft, StyleTag::Borders, position);
    if (!borders.isEmpty()) {
        readSides(borders, data);
        data.rectangularCornerMask = squareCorners(draft, selector);
    }

    const QStringView radius = takeDirective(draft, StyleTag::BorderRadius, position);
    if (!radius.isEmpty())
        readRadius(radius, data);
    data.noBorder = !hasBorderSet && data.borderRadius != 0;
    return position;
}

} // namespace

int StyleBorder::roomFor(const QString &selector) { return selector.size() + borderLength; }

void StyleBorder::expandDirectives(StyleDraft &draft, const QString &selector, OxaCSSData &data)
{
    const int position = readDirectives(draft, selector, data);
    if (position < 0)
        return;
    draft.insert(position, [&](TextWriter &sheet) {
        sheet << selector << u"{";
        writeBorder(sheet, data);
        sheet << u"}";
    });
}

QString StyleBorder::toDirectives(const OxaCSSData &data)
{
    if (hasNothing(data))
        return {};
    return writtenText(borderLength, [&data](TextWriter &text) { writeDirectives(text, data); });
}

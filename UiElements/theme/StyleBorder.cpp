// SPDX-License-Identifier: Apache-2.0
#include "StyleBorder_p.h"
#include "StyleText_p.h"

#include <QStringList>

#include <array>

namespace {

enum class Form { StyleSheet, Directives };

/// The corners that OxaCSSData::radiusCorner numbers from 1, and whose squareness is a bit each.
constexpr std::array<const char *, 4> corners = { "top-left", "top-right", "bottom-left",
                                                  "bottom-right" };
constexpr int allCorners = 0;
constexpr int topCorners = 5;

/// A side's word and its flag, in the order in which sides are written.
struct Side
{
    const char *word;
    bool OxaCSSData::*flag;
};
constexpr std::array<Side, 4> sides = { {
        { "top", &OxaCSSData::borderTop },
        { "right", &OxaCSSData::borderRight },
        { "bottom", &OxaCSSData::borderBottom },
        { "left", &OxaCSSData::borderLeft },
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

quint8 readWidth(const QString &value)
{
    bool ok = false;
    const int width = value.toInt(&ok);
    return ok && width >= 1 ? static_cast<quint8>(width) : quint8(1);
}

void readSides(const QString &value, OxaCSSData &data)
{
    if (value.contains(QLatin1String("all"))) {
        setAllSides(data, true);
        return;
    }
    for (const Side &side : sides)
        data.*side.flag = value.contains(QLatin1String(side.word));
}

/// The corners that \a text does not round. The capital R of the radius directive means that all
/// of them are round; plain declarations that round some leave the others square.
quint8 squareCorners(const QString &text)
{
    constexpr unsigned all = 0xf;
    unsigned mask = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (!text.contains(QLatin1String(corners[i]) + QStringLiteral("-radius")))
            mask |= 1U << i;
    }
    if (mask == all && text.contains(QLatin1String("Radius")))
        mask = 0;
    return static_cast<quint8>(mask);
}

int readCorner(const QString &word)
{
    const QStringList parts = word.split(QLatin1Char('-'));
    if (parts.size() == 1)
        return word == QLatin1String("top") ? topCorners : allCorners;
    if (parts.size() != 2)
        return allCorners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (word.contains(QLatin1String(corners[i])))
            return static_cast<int>(i) + 1;
    }
    return allCorners;
}

void readRadius(const QString &value, OxaCSSData &data)
{
    const QStringList parts = value.split(QLatin1Char(' '));
    const bool hasCorner = parts.size() == 2;
    data.borderRadius = static_cast<quint8>((hasCorner ? parts.first() : value).toUInt());
    if (hasCorner)
        data.radiusCorner = readCorner(parts.last());
}

QString radiusText(const OxaCSSData &data, Form form)
{
    if (data.borderRadius == 0)
        return {};

    const QString radius = QString::number(data.borderRadius);
    const bool isOneCorner = data.radiusCorner > allCorners && data.radiusCorner < topCorners;
    const QLatin1String corner(
            isOneCorner ? corners[static_cast<std::size_t>(data.radiusCorner - 1)] : "");
    if (form == Form::StyleSheet) {
        if (data.radiusCorner == topCorners)
            return QLatin1String("border-top-left-radius:") + radius
                    + QLatin1String("px; border-top-right-radius:") + radius + QLatin1String("px;");
        if (isOneCorner)
            return QLatin1String("border-") + corner + QLatin1String("-radius:") + radius
                    + QLatin1String("px;");
        return QLatin1String("border-radius:") + radius + QLatin1String("px;");
    }
    const QString directive = QLatin1String(StyleBorder::radiusTag) + radius;
    if (data.radiusCorner == topCorners)
        return directive + QLatin1String(" top;");
    return isOneCorner ? directive + QLatin1Char(' ') + corner + QLatin1Char(';')
                       : directive + QLatin1Char(';');
}

QString allSidesText(const QString &width, Form form)
{
    return form == Form::StyleSheet
            ? QLatin1String("border-style:solid; border-width:") + width
            : QLatin1String("$borders: all; ") + QLatin1String(StyleBorder::widthTag) + width;
}

QString someSidesText(const OxaCSSData &data, const QString &width, Form form)
{
    const bool isSheet = form == Form::StyleSheet;
    QString text = QLatin1String(isSheet ? "border-style:solid;" : StyleBorder::bordersTag);
    for (const Side &side : sides) {
        if (!(data.*side.flag))
            continue;
        if (isSheet)
            text += QLatin1String("border-") + QLatin1String(side.word) + QLatin1String("-width:")
                    + width;
        else
            text += QLatin1Char(' ') + QLatin1String(side.word);
    }
    if (!isSheet)
        text += QLatin1String("; ") + QLatin1String(StyleBorder::widthTag) + width;
    return text;
}

QString borderText(const OxaCSSData &data, Form form)
{
    const bool isSheet = form == Form::StyleSheet;
    const bool allSides = hasAllSides(data);
    // A radius is dropped with the border: four sides of no width are no border at all.
    if ((allSides && data.borderWidth == 0) || (!hasAnySide(data) && !data.noBorder))
        return isSheet ? QStringLiteral("border:none;") : QString();
    if (data.noBorder)
        return radiusText(data, form);

    const QString width = QString::number(data.borderWidth) + QLatin1String(isSheet ? "px;" : ";");
    return (allSides ? allSidesText(width, form) : someSidesText(data, width, form))
            + radiusText(data, form);
}

} // namespace

int StyleBorder::readDirectives(QString &text, OxaCSSData &data)
{
    const bool hasBorderSet = !data.borderColorSetName.isEmpty();
    const bool hasSet = hasBorderSet || !data.backgroundColorSetName.isEmpty()
            || !data.textColorSetName.isEmpty();
    setAllSides(data, hasBorderSet);
    data.borderWidth = hasBorderSet ? 1 : 0;
    int position = hasSet ? 0 : -1;
    if (text.isEmpty())
        return position;

    const auto width = StyleText::takeDirective(text, QLatin1String(widthTag));
    if (width && !width->value.isEmpty())
        data.borderWidth = readWidth(width->value);

    const auto borders = StyleText::takeDirective(text, QLatin1String(bordersTag));
    if (borders && !borders->value.isEmpty()) {
        readSides(borders->value, data);
        position = borders->position;
        data.rectangularCornerMask = squareCorners(text);
    }

    const auto radius = StyleText::takeDirective(text, QLatin1String(radiusTag));
    if (radius && !radius->value.isEmpty()) {
        readRadius(radius->value, data);
        position = radius->position;
    }
    data.noBorder = !hasBorderSet && data.borderRadius != 0;
    return position;
}

QString StyleBorder::toStyleSheet(const OxaCSSData &data)
{
    return borderText(data, Form::StyleSheet);
}

QString StyleBorder::toDirectives(const OxaCSSData &data)
{
    return borderText(data, Form::Directives);
}

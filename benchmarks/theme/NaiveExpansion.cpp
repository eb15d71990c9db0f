// SPDX-License-Identifier: Apache-2.0
#include "NaiveExpansion.h"

#include <QRegularExpression>

#include <initializer_list>

namespace {

QRegularExpression directive(const QString &word)
{
    return QRegularExpression(QStringLiteral("\\$%1:\\s*([^;]*?)\\s*;").arg(word));
}

QString filled(QString text, const QString &mark, const QString &value)
{
    return text.replace(QRegularExpression(QStringLiteral("%%1%").arg(mark)), value);
}

QString rule(const QString &selector, const QString &suffix, const QString &property,
             const QColor &color)
{
    QString text = QStringLiteral("%selector%%suffix%{%property%:%color%;}");
    text = filled(text, QStringLiteral("selector"), selector);
    text = filled(text, QStringLiteral("suffix"), suffix);
    text = filled(text, QStringLiteral("property"), property);
    return filled(text, QStringLiteral("color"), color.name(QColor::HexArgb));
}

void substituteReferences(QString &text, const OxaColorSetMap &colorSets)
{
    const QRegularExpression reference(QStringLiteral("\\$\\((.*?)\\)"));
    QRegularExpressionMatch match = reference.match(text);
    while (match.hasMatch()) {
        const QStringList parts = match.captured(1).split(
                QRegularExpression(QStringLiteral("\\.")));
        const OxaColorSet set = colorSets.at(parts.first().toStdString());
        const QColor color = parts.size() > 1 ? set.colorForState(parts.last()) : set.normal;
        text.replace(match.capturedStart(), match.capturedLength(), color.name(QColor::HexArgb));
        match = reference.match(text);
    }
}

OxaColorSet expandColors(QString &text, const QString &word, const QString &property,
                         const QString &selector, const OxaColorSetMap &colorSets)
{
    const QRegularExpressionMatch match = directive(word).match(text);
    const OxaColorSet set = colorSets.at(match.captured(1).toStdString());
    QString rules = rule(selector, QString(), property, set.normal);
    const std::initializer_list<std::pair<QString, QColor>> states = {
        { QStringLiteral(":checked"), set.checked },   { QStringLiteral(":focus"), set.focused },
        { QStringLiteral(":hover"), set.hovered },     { QStringLiteral(":pressed"), set.pressed },
        { QStringLiteral(":disabled"), set.disabled },
    };
    for (const auto &[suffix, color] : states) {
        if (color != set.normal)
            rules += rule(selector, suffix, property, color);
    }
    if (word == QLatin1String("borderColors") && set.focused != set.normal)
        rules += filled(QStringLiteral("%selector%{outline:none;}"), QStringLiteral("selector"),
                        selector);
    text.replace(match.capturedStart(), match.capturedLength(), rules);
    return set;
}

QString take(QString &text, const QString &word, int *position = nullptr)
{
    const QRegularExpressionMatch match = directive(word).match(text);
    if (position)
        *position = match.capturedStart();
    text.remove(match.capturedStart(), match.capturedLength());
    return match.captured(1);
}

bool has(const QString &text, const char *word)
{
    return text.contains(QRegularExpression(QLatin1String(word)));
}

void expandBorder(QString &text, const QString &selector, OxaCSSData &data)
{
    data.borderWidth = quint8(take(text, QStringLiteral("borderWidth")).toInt());
    const QString sides = take(text, QStringLiteral("borders"));
    data.borderTop = has(sides, "top|all");
    data.borderRight = has(sides, "right|all");
    data.borderBottom = has(sides, "bottom|all");
    data.borderLeft = has(sides, "left|all");
    int position = 0;
    data.borderRadius = quint8(take(text, QStringLiteral("borderRadius"), &position).toInt());

    QString border = QStringLiteral("%selector%{border-style:solid;");
    for (const auto &[isOn, side] :
         { std::pair(data.borderTop, "top"), std::pair(data.borderRight, "right"),
           std::pair(data.borderBottom, "bottom"), std::pair(data.borderLeft, "left") }) {
        if (isOn)
            border += filled(QStringLiteral("border-%side%-width:%width%px;"),
                             QStringLiteral("side"), QLatin1String(side));
    }
    border += QStringLiteral("border-radius:%radius%px;}");
    border = filled(border, QStringLiteral("selector"), selector);
    border = filled(border, QStringLiteral("width"), QString::number(data.borderWidth));
    border = filled(border, QStringLiteral("radius"), QString::number(data.borderRadius));
    text.insert(position, border);
}

} // namespace

OxaThemeUtils::CSSParserResult NaiveExpansion::parseCSS(const QString &selector,
                                                        const QString &styleText,
                                                        const OxaColorSetMap &colorSets)
{
    OxaThemeUtils::CSSParserResult result;
    QString &text = result.expandedStyleSheet;
    text = styleText;
    substituteReferences(text, colorSets);
    result.backgroundColorSet = expandColors(text, QStringLiteral("backgroundColors"),
                                             QStringLiteral("background-color"), selector,
                                             colorSets);
    result.borderColorSet = expandColors(text, QStringLiteral("borderColors"),
                                         QStringLiteral("border-color"), selector, colorSets);
    result.textColorSet = expandColors(text, QStringLiteral("textColors"), QStringLiteral("color"),
                                       selector, colorSets);
    result.oxaCSS.backgroundColorSetName = result.backgroundColorSet.name;
    result.oxaCSS.borderColorSetName = result.borderColorSet.name;
    result.oxaCSS.textColorSetName = result.textColorSet.name;
    expandBorder(text, selector, result.oxaCSS);

    result.oxaCSS.plainStyleSheet = styleText;
    for (const char *word : { "backgroundColors", "borderColors", "textColors", "borders",
                              "borderRadius", "borderWidth" })
        take(result.oxaCSS.plainStyleSheet, QLatin1String(word));
    result.oxaCSS.plainStyleSheet = result.oxaCSS.plainStyleSheet.trimmed();
    return result;
}

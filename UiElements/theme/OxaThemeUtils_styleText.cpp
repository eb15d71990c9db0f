// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include "StyleBorder_p.h"
#include "StyleColors_p.h"
#include "StyleDirective_p.h"

#include <QStringBuilder>

namespace {

QString nameIfValid(const OxaColorSet &set) { return set.isValid() ? set.name : QString(); }

void appendNameDirective(QString &text, OxaThemeUtils::ColorSetType type, const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return;
    if (!text.isEmpty())
        text += QLatin1Char(' ');
    text += StyleTag::of(type) % u' ' % trimmed % u';';
}

} // namespace

OxaThemeUtils::CSSParserResult OxaThemeUtils::parseCSS(const QString &selector,
                                                       const QString &styleText,
                                                       const OxaColorSetMap &colorSets)
{
    CSSParserResult result;
    result.expandedStyleSheet = styleText;
    if (styleText.isEmpty() || selector.isEmpty() || colorSets.empty())
        return result;

    QString sheet = StyleColors::substituteReferences(styleText, colorSets);
    const auto expand = [&](ColorSetType type) {
        return StyleColors::expandDirective(sheet, type, selector, colorSets);
    };
    result.backgroundColorSet = expand(ColorSetType::Background);
    result.borderColorSet = expand(ColorSetType::Border);
    result.textColorSet = expand(ColorSetType::Text);

    OxaCSSData &data = result.oxaCSS;
    data.backgroundColorSetName = nameIfValid(result.backgroundColorSet);
    data.borderColorSetName = nameIfValid(result.borderColorSet);
    data.textColorSetName = nameIfValid(result.textColorSet);
    StyleBorder::expandDirectives(sheet, selector, data);
    data.plainStyleSheet = styleText;
    removeOxaCSSFromStyleSheet(data.plainStyleSheet);

    sheet.squeeze(); // Widgets keep it: frees the spare capacity.
    result.expandedStyleSheet = sheet;
    return result;
}

QString OxaThemeUtils::convertToOxaCSS(OxaCSSData data)
{
    data.noBorder = !data.borderTop && !data.borderRight && !data.borderBottom && !data.borderLeft
            && data.borderRadius != 0;
    QString text = StyleBorder::toDirectives(data);
    appendNameDirective(text, ColorSetType::Background, data.backgroundColorSetName);
    if (!data.noBorder)
        appendNameDirective(text, ColorSetType::Border, data.borderColorSetName);
    appendNameDirective(text, ColorSetType::Text, data.textColorSetName);
    return text + data.plainStyleSheet;
}

void OxaThemeUtils::removeOxaCSSFromStyleSheet(QString &styleText)
{
    for (const QStringView tag : StyleTag::directives) {
        if (const auto directive = StyleDirective::find(styleText, tag))
            styleText.remove(directive->position, directive->length);
    }
    styleText = styleText.trimmed();
}

QString OxaThemeUtils::getColorSetNameFromString(ColorSetType type, const QString &styleText)
{
    const auto directive = StyleDirective::find(styleText, StyleTag::of(type));
    return directive ? directive->valueIn(styleText) : QString();
}

QString OxaThemeUtils::getHyperlinkCSS(AppThemeType themeType)
{
    // Starts at %2: arg() replaces the lowest markers, whatever their numbers.
    const OxaColorSet links = getColorSet("button-hyperlink-text", themeType);
    return QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; "
                          "color:%2;} a:visited{color:%2;} a:hover{ color:%3;}</style>")
            .arg(links.normal.name(), links.hovered.name());
}

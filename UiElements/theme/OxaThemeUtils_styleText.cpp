// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include "StyleBorder_p.h"
#include "StyleDraft_p.h"
#include "StyleText_p.h"

#include <array>

namespace {

QString nameIfValid(const OxaColorSet &set) { return set.isValid() ? set.name : QString(); }

void appendNameDirective(QString &text, OxaThemeUtils::ColorSetType type, const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return;
    if (!text.isEmpty())
        text += QLatin1Char(' ');
    text += StyleText::colorTag(type).toString() + QLatin1Char(' ') + trimmed + QLatin1Char(';');
}

/// Returns \a draft's text without the first directive of each kind, trimmed.
QString withoutDirectives(StyleDraft draft)
{
    using OxaThemeUtils::ColorSetType;
    const std::array<QStringView, 6> tags = {
        StyleText::colorTag(ColorSetType::Background),
        StyleText::colorTag(ColorSetType::Border),
        StyleText::colorTag(ColorSetType::Text),
        StyleBorder::bordersTag,
        StyleBorder::radiusTag,
        StyleBorder::widthTag,
    };
    for (const QStringView tag : tags) {
        if (const auto directive = draft.findDirective(tag))
            draft.remove(*directive);
    }
    return draft.text().trimmed();
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

    StyleDraft draft(styleText, StyleText::roomFor(styleText, selector));
    result.oxaCSS.plainStyleSheet = withoutDirectives(draft);

    const auto expand = [&](ColorSetType type) {
        return StyleText::expandColorDirective(draft, type, selector, colorSets);
    };
    StyleText::substituteColorReferences(draft, colorSets);
    result.backgroundColorSet = expand(ColorSetType::Background);
    result.borderColorSet = expand(ColorSetType::Border);
    result.textColorSet = expand(ColorSetType::Text);

    OxaCSSData &data = result.oxaCSS;
    data.backgroundColorSetName = nameIfValid(result.backgroundColorSet);
    data.borderColorSetName = nameIfValid(result.borderColorSet);
    data.textColorSetName = nameIfValid(result.textColorSet);

    const int position = StyleBorder::readDirectives(draft, selector, data);
    if (position >= 0) {
        const QString rule = StyleBorder::toRule(selector, data);
        result.expandedStyleSheet = draft.text(rule.size()).insert(position, rule);
    } else {
        result.expandedStyleSheet = draft.text();
    }
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
    styleText = withoutDirectives(StyleDraft(styleText));
}

QString OxaThemeUtils::getColorSetNameFromString(ColorSetType type, const QString &styleText)
{
    const auto directive = StyleDraft(styleText).findDirective(StyleText::colorTag(type));
    return directive ? directive->value.toString() : QString();
}

QString OxaThemeUtils::getHyperlinkCSS(AppThemeType themeType)
{
    // There is no %1: arg() fills the lowest markers, whatever their numbers.
    const OxaColorSet links = getColorSet("button-hyperlink-text", themeType);
    return QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; "
                          "color:%2;} a:visited{color:%2;} a:hover{ color:%3;}</style>")
            .arg(links.normal.name(), links.hovered.name());
}

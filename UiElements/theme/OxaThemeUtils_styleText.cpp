// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include "StyleBorder_p.h"
#include "StyleDraft_p.h"
#include "StyleTag_p.h"
#include "StyleText_p.h"

namespace {

QString nameIfValid(const OxaColorSet &set) { return set.isValid() ? set.name : QString(); }

void appendNameDirective(QString &text, OxaThemeUtils::ColorSetType type, const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return;
    if (!text.isEmpty())
        text += QLatin1Char(' ');
    text += textOf(tagOf(type)).toString() + QLatin1Char(' ') + trimmed + QLatin1Char(';');
}

/// Returns \a draft's text without the first directive of each kind, trimmed.
QString withoutDirectives(StyleDraft draft)
{
    for (const StyleTag tag : styleTags) {
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

    StyleDraft draft(styleText);
    result.oxaCSS.plainStyleSheet = withoutDirectives(draft);
    draft.reserve(StyleText::roomFor(draft, selector) + StyleBorder::roomFor(selector));

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

    StyleBorder::expandDirectives(draft, selector, data);
    result.expandedStyleSheet = draft.text();
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
    const auto directive = StyleDraft(styleText).findDirective(tagOf(type));
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

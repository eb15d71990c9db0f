// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include "WidgetStyleText_p.h"

#include <QVariant>
#include <QWidget>

using OxaThemeUtils::AppThemeType;

namespace {

QString selectorOf(const QWidget *widget)
{
    const QString name = widget->objectName();
    return name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                          : QLatin1Char('#') + name;
}

AppThemeType ownThemeType(const QWidget *widget)
{
    return OxaThemeUtils::stringToThemeType(widget->property("themeType").toString());
}

} // namespace

QString OxaThemeUtils::themeTypeToString(AppThemeType themeType)
{
    switch (themeType) {
    case AppThemeType::Light:
        return QStringLiteral("light");
    case AppThemeType::Dark:
        return QStringLiteral("dark");
    case AppThemeType::Inverted:
        return QStringLiteral("inverted");
    case AppThemeType::Global:
        break;
    }
    return QStringLiteral("global");
}

AppThemeType OxaThemeUtils::stringToThemeType(const QString &text)
{
    if (text == QLatin1String("light"))
        return AppThemeType::Light;
    if (text == QLatin1String("dark"))
        return AppThemeType::Dark;
    if (text == QLatin1String("inverted"))
        return AppThemeType::Inverted;
    return AppThemeType::Global;
}

AppThemeType OxaThemeUtils::getThemeTypeOfWidget(const QWidget *widget)
{
    if (!widget)
        return AppThemeType::Global;
    const AppThemeType own = ownThemeType(widget);
    const QWidget *window = widget->window();
    return own != AppThemeType::Global || window == widget ? own : ownThemeType(window);
}

OxaThemeUtils::CSSParserResult OxaThemeUtils::parseCSS(QWidget *widget, const QString &styleText,
                                                       const OxaColorSetMap &colorSets)
{
    return WidgetStyleText::parse(widget, getThemeTypeOfWidget(widget), styleText, colorSets);
}

OxaThemeUtils::CSSParserResult WidgetStyleText::parse(QWidget *widget, AppThemeType themeType,
                                                      const QString &styleText,
                                                      const OxaColorSetMap &globalColorSets)
{
    const OxaColorSetMap &store = themeType == AppThemeType::Global
            ? globalColorSets
            : OxaThemeUtils::getOxaColorSetsByThemeType(themeType);
    auto result = OxaThemeUtils::parseCSS(selectorOf(widget), styleText, store);
    // The focus frame reads both. A radius is kept when a later text has none.
    if (result.oxaCSS.borderRadius != 0)
        widget->setProperty("focusBorderRadius", int(result.oxaCSS.borderRadius));
    widget->setProperty("rectangularCornerMask", int(result.oxaCSS.rectangularCornerMask));
    return result;
}

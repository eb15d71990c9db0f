// SPDX-License-Identifier: Apache-2.0
#include "MissingColors_p.h"
#include "WidgetStyleText_p.h"

#include <QVariant>
#include <QWidget>

namespace {

QString selectorOf(const QWidget *widget)
{
    const QString name = widget->objectName();
    return name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                          : QLatin1Char('#') + name;
}

} // namespace

OxaThemeUtils::CSSParserResult WidgetStyleText::parse(QWidget *widget,
                                                      OxaThemeUtils::AppThemeType themeType,
                                                      const QString &styleText,
                                                      const OxaColorSetMap &globalColorSets)
{
    const OxaColorSetMap &store = themeType == OxaThemeUtils::AppThemeType::Global
            ? globalColorSets
            : OxaThemeUtils::getOxaColorSetsByThemeType(themeType);
    auto result = OxaThemeUtils::parseCSS(selectorOf(widget), styleText, store);
    // The focus frame reads both. A radius is kept when a later text has none.
    if (result.oxaCSS.borderRadius != 0)
        widget->setProperty("focusBorderRadius", int(result.oxaCSS.borderRadius));
    widget->setProperty("rectangularCornerMask", int(result.oxaCSS.rectangularCornerMask));
    MissingColors::tellOfLeftovers(result.expandedStyleSheet, widget);
    return result;
}

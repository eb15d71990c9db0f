// SPDX-License-Identifier: Apache-2.0
#include "OxaThemeUtils.h"

#include "MissingColors_p.h"
#include "ThemeChange_p.h"
#include "WidgetStyleText_p.h"

#include <QApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QVariant>
#include <QVector>
#include <QWidget>

using OxaThemeUtils::AppThemeType;

namespace {

constexpr char themeTypeProperty[] = "themeType";

AppThemeType ownThemeType(const QWidget *widget)
{
    return OxaThemeUtils::stringToThemeType(widget->property(themeTypeProperty).toString());
}

/// Returns \a root and the widgets below it, parents before their children.
QWidgetList withDescendants(QWidget *root)
{
    return QWidgetList { root } + root->findChildren<QWidget *>();
}

/// Returns all widgets, parents before their children.
QWidgetList allWidgets()
{
    QWidgetList all;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (!window->parentWidget())
            all += withDescendants(window);
    }
    return all;
}

/// Makes \a widget, and no other with it, take the current colours.
void refresh(QWidget *widget)
{
    const ThemeChange change(widget);
    const QMetaObject *type = widget->metaObject();
    const QMetaMethod refreshCSS = type->method(type->indexOfSlot("refreshCSS()"));
    const QMetaMethod themeTypeChanged = type->method(type->indexOfSignal("themeTypeChanged()"));
    if (!refreshCSS.isValid() || !themeTypeChanged.isValid()) {
        widget->setProperty(themeTypeProperty, widget->property(themeTypeProperty));
        return;
    }
    const QPointer<QWidget> alive(widget);
    refreshCSS.invoke(widget, Qt::DirectConnection);
    if (alive)
        themeTypeChanged.invoke(widget, Qt::DirectConnection);
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

OxaColorSet OxaThemeUtils::getColorSet(const std::string &name, const QWidget *widget)
{
    return getColorSet(name, getThemeTypeOfWidget(widget), widget);
}

OxaColorSet OxaThemeUtils::getColorSet(const std::string &name, AppThemeType themeType,
                                       const QWidget *widget)
{
    OxaColorSet set = getColorSet(name, themeType);
    if (widget && !set.isValid() && !name.empty())
        MissingColors::tell(QString::fromStdString(name), widget);
    return set;
}

void OxaThemeUtils::refreshThemedWidgets(QWidget *root)
{
    QVector<QPointer<QWidget>> themed;
    const QWidgetList widgets = root ? withDescendants(root) : allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->property(themeTypeProperty).isValid())
            themed.append(widget);
    }
    for (const QPointer<QWidget> &widget : qAsConst(themed)) {
        if (widget)
            refresh(widget);
    }
}

OxaThemeUtils::CSSParserResult OxaThemeUtils::parseCSS(QWidget *widget, const QString &styleText,
                                                       const OxaColorSetMap &colorSets)
{
    return WidgetStyleText::parse(widget, getThemeTypeOfWidget(widget), styleText, colorSets);
}

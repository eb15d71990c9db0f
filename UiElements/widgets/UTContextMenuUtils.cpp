// SPDX-License-Identifier: Apache-2.0
#include "UTContextMenuUtils.h"

#include <QGuiApplication>
#include <QMenu>
#include <QScreen>

QString UTContextMenuUtils::getContextMenuStyleSheet()
{
    return QStringLiteral(
            "QMenu {"
            "     background-color: $(menulistbackground-secondary-background.normal); } "
            "QMenu::item {     color: $(listitem-textprimary.normal);"
            "     background-color: $(listitem-background.normal);     height: 32px;"
            "     width: 238px;     padding-top: 5px;     padding-bottom: 5px;"
            "     padding-left: 12px;     padding-right: 12px; } "
            "QMenu::item:hover {     color: $(listitem-textprimary.hovered);"
            "     background-color: $(listitem-background.hovered); } "
            "QMenu::item:selected {     color: $(listitem-textprimary.hovered);"
            "     background-color: $(listitem-background.hovered); } "
            "QMenu::item:disabled {     color: $(listitem-textprimary.disabled);"
            "     background-color: $(listitem-background.disabled); } "
            "QMenu::separator {     height: 1px;"
            "     background: $(separator-primary.normal);     margin-left: 12px;"
            "     margin-right: 12px; } ");
}

void UTContextMenuUtils::updateYPositionOnScreen(QMenu *menu)
{
    if (!menu)
        return;
    const QScreen *screen = QGuiApplication::screenAt(menu->mapToGlobal(menu->rect().center()));
    QRect geometry = menu->geometry();
    if (!screen || screen->geometry().contains(geometry))
        return;
    // The bottom stays where it was: the menu grows upwards.
    geometry.setTop(qMax(geometry.top() - geometry.height(),
                         screen->geometry().bottom() - geometry.height()));
    menu->setGeometry(geometry);
}

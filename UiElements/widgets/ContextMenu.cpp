// SPDX-License-Identifier: Apache-2.0
#include "ContextMenu_p.h"
#include "UTContextMenuUtils.h"

#include <UiElements/fonts/OxaFont.h>
#include <UiElements/theme/OxaThemeUtils.h>

#include <QMenu>

void ContextMenu::popUp(QMenu *menu, QWidget *field, const QPoint &globalPosition)
{
    if (!menu)
        return;
    menu->setStyleSheet(OxaThemeUtils::parseCSS(field,
                                                UTContextMenuUtils::getContextMenuStyleSheet(),
                                                OxaThemeUtils::getAppOxaColorSets())
                                .expandedStyleSheet);
    menu->setFont(OxaFont(OxaFont::Token::BodySecondary, false));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(globalPosition);
}

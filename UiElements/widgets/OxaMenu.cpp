// SPDX-License-Identifier: Apache-2.0
#include "OxaMenu.h"

#include <QAccessible>

namespace {

/// Lets Qt make the interfaces of actions that are in other menus, too, for \a menu: it keeps those
/// for the menu that was told of first, which may be closed or gone.
void takeInterfaces(const QMenu &menu)
{
    const auto actions = menu.actions();
    for (QAction *action : actions) {
        QAccessibleInterface *item = QAccessible::queryAccessibleInterface(action);
        if (!item)
            continue;
        const QAccessibleInterface *owner = item->parent();
        if (!owner || owner->object() != &menu)
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(item));
    }
}

} // namespace

OxaMenu::OxaMenu(QWidget *parent, bool) : QMenu(parent) { m_themeBlock.followTheme(); }

OxaMenu::OxaMenu(QMenu *other, QWidget *parent) : OxaMenu(parent) { copyActions(other); }

OxaMenu::OxaMenu(QMenu *other) { copyActions(other); }

void OxaMenu::addAction(QAction *action)
{
    QMenu::addAction(action);
    becomeFirst(action);
}

QAction *OxaMenu::addAction(const QString &text)
{
    QAction *action = QMenu::addAction(text);
    becomeFirst(action);
    return action;
}

void OxaMenu::popupAt(const QPoint &position)
{
    m_popupPosition = position;
    popup(position);
    setActiveAction(m_firstAction);
}

QPoint OxaMenu::getPopupPosition() const { return m_popupPosition; }

void OxaMenu::setFirstAction(QAction *action) { m_firstAction = action; }

void OxaMenu::showEvent(QShowEvent *event)
{
    takeInterfaces(*this);
    const QSize before = size();
    QWidget::showEvent(event);
    adjustSize();
    // That is at most two thirds of the screen, which would cut the last actions of a long menu
    // off.
    resize(size().expandedTo(before.boundedTo(sizeHint())));
}

void OxaMenu::onThemeChanged() { }

void OxaMenu::becomeFirst(QAction *action)
{
    if (!m_firstAction)
        m_firstAction = action;
}

void OxaMenu::copyActions(const QMenu *other)
{
    if (other)
        insertActions(nullptr, other->actions());
}

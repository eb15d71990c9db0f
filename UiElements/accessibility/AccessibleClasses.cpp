// SPDX-License-Identifier: Apache-2.0
#include "AccessibleButton_p.h"
#include "AccessibleClasses_p.h"

#include <UiElements/widgets/OxaPushButton.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QLayout>

namespace {

template <typename Interface>
QAccessibleInterface *make(QWidget *widget, QAccessible::Role role)
{
    return new Interface(widget, role);
}

const AccessibleClass classes[] = {
    { &OxaPushButton::staticMetaObject, QAccessible::PushButton, QAccessible::NoRole,
      make<AccessibleButton> },
    { &OxaSeparator::staticMetaObject, QAccessible::Separator, QAccessible::NoRole,
      make<AccessibleWidget> },
    { &OxaTabBar::staticMetaObject, QAccessible::PageTabList, QAccessible::PageTab,
      make<AccessibleWidget> },
    { &OxaVMenu::staticMetaObject, QAccessible::PopupMenu, QAccessible::MenuItem,
      make<AccessibleWidget> },
};

/// Returns the row of the class of \a object or of its nearest base class that has one, or null.
const AccessibleClass *classOf(const QObject &object)
{
    for (const QMetaObject *each = object.metaObject(); each; each = each->superClass()) {
        for (const AccessibleClass &row : classes) {
            if (row.metaObject == each)
                return &row;
        }
    }
    return nullptr;
}

/// Qt asks for one class after the other, from that of \a object to its base classes, and other
/// factories for each: the row is given for its own class, so that theirs can come before it.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    const AccessibleClass *row = classOf(*object);
    if (!row || className != QLatin1String(row->metaObject->className()))
        return nullptr;
    return row->makeInterface(static_cast<QWidget *>(object), row->role);
}

} // namespace

void AccessibleClasses::install() { QAccessible::installFactory(makeInterface); }

void AccessibleClasses::remove() { QAccessible::removeFactory(makeInterface); }

QAccessible::Role AccessibleClasses::memberRole(QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent || !parent->layout() || parent->layout()->indexOf(widget) < 0)
        return QAccessible::NoRole;
    const AccessibleClass *row = classOf(*parent);
    return row ? row->memberRole : QAccessible::NoRole;
}

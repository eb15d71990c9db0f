// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickItem>
#include <qqml.h>

/// Gives \a item, which is complete, the \a role that it has where its file sets no
/// `Accessible.role`. A file that does not import QtQuick has no such property.
inline void setNaturalRole(QQuickItem *item, QAccessible::Role role)
{
    const QQmlProperty property(item, QStringLiteral("Accessible.role"), qmlContext(item));
    if (property.isValid() && property.read().toInt() == QAccessible::NoRole)
        property.write(role);
}

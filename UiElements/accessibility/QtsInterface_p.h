// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>

/// The interface that Qt makes of an object which has another one of ours.
///
/// Qt keeps one interface for each object, and finds it in a cache. Ours are made when it looks
/// there in vain: they have Qt make its own at that moment, which it then registers, and have it
/// forget that the object has one.
class QtsInterface
{
    Q_DISABLE_COPY_MOVE(QtsInterface)

public:
    /// Takes \a interface, from make(), over.
    explicit QtsInterface(QAccessibleInterface *interface)
        : m_interface(interface), m_id(QAccessible::uniqueId(interface))
    {
    }
    // By its id: at the end of the process Qt deletes all interfaces, in any order.
    ~QtsInterface() { QAccessible::deleteAccessibleInterface(m_id); }

    QAccessibleInterface *operator->() const { return m_interface; }

    /// Returns what Qt makes of \a object, which has no interface yet; null where that is nothing.
    static QAccessibleInterface *make(QObject *object);

    /// True while Qt is asked for its own interface of \a object: then factories of ours make none.
    static bool isBeingMade(const QObject *object);

private:
    QAccessibleInterface *const m_interface;
    const QAccessible::Id m_id;
};

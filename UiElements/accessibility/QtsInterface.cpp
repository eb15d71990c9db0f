// SPDX-License-Identifier: Apache-2.0
#include "QtsInterface_p.h"

#include <QAccessibleObject>
#include <QScopedValueRollback>

namespace {

const QObject *objectInTheMaking = nullptr;

/// An interface whose removal has Qt forget which one an object has.
class Unregistration : public QAccessibleApplication
{
    Q_DISABLE_COPY_MOVE(Unregistration)

public:
    Unregistration() = default;
    ~Unregistration() override = default;

    QObject *object() const override { return m_object; }

    static void run(QObject *object)
    {
        auto *interface = new Unregistration;
        // Of no object yet: one that has an interface cannot be registered with another.
        const QAccessible::Id id = QAccessible::registerAccessibleInterface(interface);
        interface->m_object = object;
        QAccessible::deleteAccessibleInterface(id);
    }

private:
    QObject *m_object = nullptr;
};

} // namespace

QAccessibleInterface *QtsInterface::make(QObject *object)
{
    const QScopedValueRollback<const QObject *> making(objectInTheMaking, object);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(object);
    if (interface)
        Unregistration::run(object);
    return interface;
}

bool QtsInterface::isBeingMade(const QObject *object) { return object == objectInTheMaking; }

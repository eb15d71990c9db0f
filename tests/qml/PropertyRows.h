// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "QmlScript.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

#include <functional>

/// One property of an \a Item, a class of objects. Values are the texts that a QVariant of them
/// gives.
template <typename Item>
struct PropertyRow
{
    const char *name;
    const char *type;
    const char *signal;
    const char *first;
    const char *second;
    const char *script;       ///< The second value in QML.
    void (*set)(Item &);      ///< Sets the second value, null where C++ has no setter.
    bool repaintsInQml;       ///< A setter of C++ always does.
    bool emitsAlways = false; ///< Also for the same value, and repaints then too.
};

/// Tables of properties.
namespace PropertyRows {

/// Adds a row for each of \a properties.
template <typename Item, std::size_t Count>
void addRows(const PropertyRow<Item> (&properties)[Count])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < Count; ++i)
        QTest::newRow(properties[i].name) << int(i);
}

/// Adds a row for each of \a properties that has a setter.
template <typename Item, std::size_t Count>
void addSetterRows(const PropertyRow<Item> (&properties)[Count])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < Count; ++i) {
        if (properties[i].set)
            QTest::newRow(properties[i].name) << int(i);
    }
}

/// Returns the signal of \a property.
template <typename Item>
QMetaMethod signalOf(const PropertyRow<Item> &property)
{
    const QMetaObject &type = Item::staticMetaObject;
    return type.method(type.indexOfSignal(property.signal));
}

/// Returns the value of the property \a name as a text, that of an enumeration as its name.
inline QString textOf(const QObject &item, const char *name)
{
    const QMetaObject &type = *item.metaObject();
    const QMetaProperty property = type.property(type.indexOfProperty(name));
    const QVariant value = property.read(&item);
    return property.isEnumType()
            ? QString::fromLatin1(property.enumerator().valueToKey(value.toInt()))
            : value.toString();
}

/// Checks the declaration and the first value of \a property, which is \a index of its class.
template <typename Item>
void checkDeclaration(const PropertyRow<Item> &property, int index)
{
    const QMetaObject &type = Item::staticMetaObject;
    const QMetaProperty declared = type.property(type.propertyOffset() + index);
    QCOMPARE(declared.name(), property.name);
    QCOMPARE(declared.typeName(), property.type);
    QCOMPARE(declared.notifySignal().methodSignature(), QByteArray(property.signal));
    QCOMPARE(textOf(Item(), property.name), QString::fromLatin1(property.first));
}

/// Returns a function that sets the second value of \a property in QML.
template <typename Item>
std::function<void(Item &)> setterInQml(const PropertyRow<Item> &property)
{
    const QString script = QStringLiteral("it.%1 = %2")
                                   .arg(QLatin1String(property.name),
                                        QLatin1String(property.script));
    return [script](Item &item) { QmlScript::run(item, script); };
}

/// Checks that \a set, which runs twice, sets the second value of \a property. Calls \a then after
/// each time, with whether it counts as a change.
template <typename Item>
void checkChange(
        const PropertyRow<Item> &property, Item &item, const std::function<void(Item &)> &set,
        const std::function<void(bool)> &then = [](bool) {})
{
    int signalCount = 0;
    const QSignalSpy spy(&item, signalOf(property));
    for (const bool isFirst : { true, false }) {
        const bool isChange = isFirst || property.emitsAlways;
        set(item);
        QCOMPARE(textOf(item, property.name), QString::fromLatin1(property.second));
        signalCount += isChange;
        QCOMPARE(spy.count(), signalCount);
        then(isChange);
    }
}

} // namespace PropertyRows

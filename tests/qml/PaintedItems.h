// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "QmlScript.h"

#include <QImage>
#include <QMetaProperty>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <functional>

/// Helpers for tests of items that paint themselves.
namespace PaintedItems {

/// An \a Item that counts how often it is painted.
template <typename Item>
class Counted : public Item
{
public:
    void paint(QPainter *painter) override
    {
        ++paints;
        Item::paint(painter);
    }

    int paints = 0;
};

/// A white window with one item in it, rendered by hand: the platform keeps no pictures of windows.
class Stage
{
public:
    static constexpr QSize size { 160, 120 };

    explicit Stage(QQuickItem &item)
    {
        item.setParentItem(m_window.contentItem());
        m_window.setColor(Qt::white);
        m_window.resize(size);
        m_control.initialize(nullptr);
    }

    qreal devicePixelRatio() const { return m_window.effectiveDevicePixelRatio(); }

    /// Renders what has changed, and returns the picture in device pixels.
    QImage picture() { return m_control.grab(); }

private:
    QQuickRenderControl m_control;
    QQuickWindow m_window { &m_control };
};

/// Returns what \a draw paints on a white image of the size of a stage.
inline QImage drawn(qreal devicePixelRatio, const std::function<void(QPainter *)> &draw)
{
    QImage image(Stage::size * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(&painter);
    return image;
}

/// Returns where a channel of two pictures differs by more than \a tolerance; empty if none does.
inline QString differenceOf(const QImage &one, const QImage &other, int tolerance)
{
    if (one.size() != other.size())
        return QStringLiteral("the size: %1 is not %2").arg(one.width()).arg(other.width());
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            if (std::max({ qAbs(a.red() - b.red()), qAbs(a.green() - b.green()),
                           qAbs(a.blue() - b.blue()) })
                > tolerance)
                return QStringLiteral("(%1, %2): %3 is not %4")
                        .arg(QString::number(x), QString::number(y), a.name(), b.name());
        }
    }
    return {};
}

/// One property of an \a Item. Values are the texts that a QVariant of them gives.
template <typename Item>
struct Property
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

/// Adds a row for each of \a properties.
template <typename Item, std::size_t Count>
void addRows(const Property<Item> (&properties)[Count])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < Count; ++i)
        QTest::newRow(properties[i].name) << int(i);
}

/// Adds a row for each of \a properties that has a setter.
template <typename Item, std::size_t Count>
void addSetterRows(const Property<Item> (&properties)[Count])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < Count; ++i) {
        if (properties[i].set)
            QTest::newRow(properties[i].name) << int(i);
    }
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
void checkDeclaration(const Property<Item> &property, int index)
{
    const QMetaObject &type = Item::staticMetaObject;
    const QMetaProperty declared = type.property(type.propertyOffset() + index);
    QCOMPARE(declared.name(), property.name);
    QCOMPARE(declared.typeName(), property.type);
    QCOMPARE(declared.notifySignal().methodSignature(), QByteArray(property.signal));
    QCOMPARE(textOf(Item(), property.name), QString::fromLatin1(property.first));
}

/// Checks that \a set, twice with the same value, sets the second value of \a property.
template <typename Item>
void checkChange(const Property<Item> &property, const std::function<void(Item &)> &set,
                 bool repaints)
{
    Counted<Item> item;
    item.setSize(QSizeF(60, 40));
    Stage stage(item);
    stage.picture();
    QCOMPARE(item.paints, 1);

    int signalCount = 0;
    int paints = 1;
    const QMetaObject &type = Item::staticMetaObject;
    const QSignalSpy spy(&item, type.method(type.indexOfSignal(property.signal)));
    for (const bool isFirst : { true, false }) {
        set(item);
        QCOMPARE(textOf(item, property.name), QString::fromLatin1(property.second));
        stage.picture();
        const bool counts = isFirst || property.emitsAlways;
        signalCount += counts;
        paints += counts && repaints;
        QCOMPARE(spy.count(), signalCount);
        QCOMPARE(item.paints, paints);
    }
}

/// Checks the setter of C++.
template <typename Item>
void checkSetter(const Property<Item> &property)
{
    checkChange<Item>(property, property.set, true);
}

/// Checks that QML sets the property.
template <typename Item>
void checkQml(const Property<Item> &property)
{
    const QString script = QStringLiteral("it.%1 = %2")
                                   .arg(QLatin1String(property.name),
                                        QLatin1String(property.script));
    const auto set = [&script](Item &item) { QmlScript::run(item, script); };
    checkChange<Item>(property, set, property.repaintsInQml);
}

} // namespace PaintedItems

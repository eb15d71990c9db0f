// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PropertyRows.h"

#include <QImage>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

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
    ~Stage() { m_control.invalidate(); } // The window would leave the pictures of its items behind.
    Q_DISABLE_COPY_MOVE(Stage)

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

/// Checks that \a set sets the second value of \a property, and repaints the item if \a repaints.
template <typename Item>
void checkChange(const PropertyRow<Item> &property, const std::function<void(Item &)> &set,
                 bool repaints)
{
    Counted<Item> item;
    item.setSize(QSizeF(60, 40));
    Stage stage(item);
    stage.picture();
    int paints = 1;
    QCOMPARE(item.paints, paints);

    PropertyRows::checkChange<Item>(property, item, set, [&](bool isChange) {
        stage.picture();
        paints += isChange && repaints;
        QCOMPARE(item.paints, paints);
    });
}

/// Checks the setter of C++.
template <typename Item>
void checkSetter(const PropertyRow<Item> &property)
{
    checkChange<Item>(property, property.set, true);
}

/// Checks that QML sets the property.
template <typename Item>
void checkQml(const PropertyRow<Item> &property)
{
    checkChange<Item>(property, PropertyRows::setterInQml(property), property.repaintsInQml);
}

} // namespace PaintedItems

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQmlController.h>

#include <QColor>
#include <QPointer>
#include <QQuickItem>

/// Gives a painted item's QML the colours of the page's theme, and the page the item.
class PaintedItemController : public OxaQmlController
{
    Q_OBJECT
    Q_PROPERTY(QColor surface MEMBER m_surface NOTIFY colorsChanged)
    Q_PROPERTY(QColor background MEMBER m_background NOTIFY colorsChanged)
    Q_PROPERTY(QColor border MEMBER m_border NOTIFY colorsChanged)
    Q_PROPERTY(QQuickItem *item READ item WRITE setItem NOTIFY itemChanged)

public:
    using OxaQmlController::OxaQmlController;

    /// Returns the item, which the QML sets.
    QQuickItem *item() const { return m_item; }
    void setItem(QQuickItem *item);

    /// Sets the colour around the item, and those of the item.
    void setColors(const QColor &surface, const QColor &background, const QColor &border);

Q_SIGNALS:
    void colorsChanged();
    void itemChanged();

private:
    QColor m_surface;
    QColor m_background;
    QColor m_border;
    QPointer<QQuickItem> m_item;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QColor>
#include <QQuickPaintedItem>

/// A bar with one round end and a border on the sides that are chosen. QML knows it as OxaHalfPill.
///
/// In QML, write the borders and the edge before the item is shown: they do not repaint it, and are
/// seen with the next repaint.
class UIELEMENTS_EXPORT OxaQmlHalfPill : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY
                       backgroundColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    /// Whether the sides have a border; the round end has one if its side does. True by default.
    Q_PROPERTY(bool borderBottom MEMBER m_borderBottom NOTIFY borderChanged)
    Q_PROPERTY(bool borderLeft MEMBER m_borderLeft NOTIFY borderChanged)
    Q_PROPERTY(bool borderRight MEMBER m_borderRight NOTIFY borderChanged)
    Q_PROPERTY(bool borderTop MEMBER m_borderTop NOTIFY borderChanged)
    /// 1 by default, and one device pixel for 0.
    Q_PROPERTY(int borderWidth MEMBER m_borderWidth NOTIFY borderChanged)
    /// The round end. Left by default.
    Q_PROPERTY(RoundEdge edge MEMBER m_edge NOTIFY edgeChanged)

public:
    /// The end that is round.
    enum RoundEdge { Left, Right, None };
    Q_ENUM(RoundEdge)

    /// Makes a bar that nothing of is seen until it has colours and a size.
    explicit OxaQmlHalfPill(QQuickItem *parent = nullptr);

    /// Transparent by default.
    QColor backgroundColor() const;

    /// Stores \a color, emits backgroundColorChanged() and repaints, also if it is the same.
    void setBackgroundColor(const QColor &color);

    /// Transparent by default.
    QColor borderColor() const;

    /// Stores \a color, emits borderColorChanged() and repaints, also if it is the same.
    void setBorderColor(const QColor &color);

    void paint(QPainter *painter) override;

    /// Sets `Accessible.role` to Accessible.Grouping if the file sets none.
    void componentComplete() override;

Q_SIGNALS:
    /// backgroundColor was set, to whatever value.
    void backgroundColorChanged();
    /// borderColor was set, to whatever value.
    void borderColorChanged();
    /// One of the borders or their width was set to another value.
    void borderChanged();
    /// edge was set to another value.
    void edgeChanged();

private:
    void drawSemiCircle(QPainter *painter, const QSizeF &size) const;
    void drawRect(QPainter *painter, const QSizeF &size) const;
    void drawBorders(QPainter *painter, const QSizeF &size, const QColor &color, int width,
                     bool left, bool top, bool right, bool bottom) const;

    QColor m_backgroundColor = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    bool m_borderBottom = true;
    bool m_borderLeft = true;
    bool m_borderRight = true;
    bool m_borderTop = true;
    int m_borderWidth = 1;
    RoundEdge m_edge = Left;
};

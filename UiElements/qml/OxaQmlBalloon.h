// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QColor>
#include <QPainterPath>
#include <QPoint>
#include <QQuickPaintedItem>

#include <tuple>

/// A rounded rectangle with an arrow on one side, drawn as one outline, so that the border runs
/// around the arrow without a seam: the shape of a popup. QML knows it as OxaBalloon.
///
/// In QML, write arrowSize, radius, borderWidth and topMargin before the item is shown: they do not
/// repaint it, and are seen with the next repaint.
class UIELEMENTS_EXPORT OxaQmlBalloon : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(ArrowAlignment arrowAlignment READ arrowAlignment WRITE setArrowAlignment NOTIFY
                       arrowAlignmentChanged)
    Q_PROPERTY(
            ArrowAnchor arrowAnchor READ arrowAnchor WRITE setArrowAnchor NOTIFY arrowAnchorChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY
                       backgroundColorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    Q_PROPERTY(int arrowOffset READ arrowOffset WRITE setArrowOffset NOTIFY arrowOffsetChanged)
    Q_PROPERTY(int arrowSize READ arrowSize MEMBER m_arrowSize NOTIFY arrowSizeChanged)
    Q_PROPERTY(int radius READ radius MEMBER m_radius NOTIFY radiusChanged)
    Q_PROPERTY(int borderWidth READ borderWidth MEMBER m_borderWidth NOTIFY borderWidthChanged)
    Q_PROPERTY(int topMargin READ topMargin MEMBER m_topMargin NOTIFY topMarginChanged)

public:
    /// The side of the balloon that has the arrow. Qt::ArrowType has the same numbers.
    enum ArrowAnchor { None, Top, Bottom, Left, Right };
    Q_ENUM(ArrowAnchor)

    /// Where on its side the arrow is. An alignment along the other axis centres it.
    enum ArrowAlignment {
        LeftAlignment,
        CenterAlignment,
        RightAlignment,
        TopAlignment,
        BottomAlignment
    };
    Q_ENUM(ArrowAlignment)

    /// Makes a balloon that nothing of is seen until it has colours and a size.
    explicit OxaQmlBalloon(QQuickItem *parent = nullptr);

    /// CenterAlignment by default.
    ArrowAlignment arrowAlignment() const;
    /// Top by default.
    ArrowAnchor arrowAnchor() const;
    /// Transparent by default.
    QColor backgroundColor() const;
    /// Transparent by default.
    QColor borderColor() const;
    /// Returns how far the arrow is moved from its alignment, to the right or downwards. 0 by
    /// default. It stops where it would run into a corner.
    int arrowOffset() const;
    /// Returns the height of the arrow, which is half its base. 10 by default. The body is smaller
    /// by as much on the arrow's side.
    int arrowSize() const;
    /// Returns the radius of the corners. 0 by default.
    int radius() const;
    /// Returns the width of the border, half of which is outside of the outline. 1 by default, and
    /// one device pixel for 0.
    int borderWidth() const;
    /// Returns by how much the balloon is shortened, at its bottom in spite of the name. 0 by
    /// default.
    int topMargin() const;

    /// \name Setters
    /// \{

    /// Does nothing if the value is the same. Otherwise it emits the signal, then repaints.
    void setArrowAlignment(ArrowAlignment alignment);
    void setArrowAnchor(ArrowAnchor anchor);
    void setBackgroundColor(const QColor &color);
    void setBorderColor(const QColor &color);
    void setArrowOffset(int offset);
    void setArrowSize(int size);
    void setBorderWidth(int width);
    void setTopMargin(int margin);
    /// \}

    void paint(QPainter *painter) override;

    /// Sets `Accessible.role` to Accessible.ToolTip if the file sets none.
    void componentComplete() override;

    /// Returns the value of the same number, None for other than the four directions.
    static ArrowAnchor arrowAnchorFromArrowType(Qt::ArrowType arrow);

    /// Returns the value of the same number, Qt::NoArrow for other than the four sides.
    static Qt::ArrowType arrowTypeFromArrowAnchor(ArrowAnchor anchor);

    /// Returns the opposite side, None for other than the four sides.
    static ArrowAnchor flipAnchor(ArrowAnchor anchor);

    /// Returns the global position of a box of \a size beside \a item, so that an arrow on the side
    /// \a anchor of the box, \a inset from the end that \a alignment names, points at the item's
    /// centre. \a offset moves the box to the left or upwards. (0, 0) without an item.
    static QPoint calcArrowPos(QQuickItem *item, const QSize &size, ArrowAnchor anchor,
                               ArrowAlignment alignment, int offset, int inset);

Q_SIGNALS:
    /// \name Changes
    /// \{

    /// The property was set to another value.
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void backgroundColorChanged();
    void borderColorChanged();
    void arrowOffsetChanged();
    void arrowSizeChanged();
    void radiusChanged();
    void borderWidthChanged();
    void topMarginChanged();
    /// \}

private:
    template <typename Value>
    void change(Value &member, const Value &value, void (OxaQmlBalloon::*changed)());

    double getXCenter(const QSizeF &size) const;
    double getYCenter(const QSizeF &size) const;
    QPainterPath outline(const QSizeF &size) const;

    static int getGlobalXCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &rect,
                                int offset, int inset, int width);
    static int getGlobalYCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &rect,
                                int offset, int inset, int height);

    ArrowAlignment m_arrowAlignment = CenterAlignment;
    ArrowAnchor m_arrowAnchor = Top;
    QColor m_backgroundColor = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    int m_arrowOffset = 0;
    int m_arrowSize = 10;
    int m_radius = 0;
    int m_borderWidth = 1;
    int m_topMargin = 0;

    /// What the outline was computed from: the size, the anchor, the centre, the arrow's size and
    /// the radius.
    std::tuple<double, double, ArrowAnchor, double, double, int, int> m_outlineParts;
    QPainterPath m_outline;
};

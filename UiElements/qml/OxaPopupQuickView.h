// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/qml/OxaQuickView.h>

#include <QPointer>
#include <QRectF>

#include <utility>

class QQuickItem;

/// A view that opens beside a rectangle, with an arrow towards it.
///
/// The rectangle is the activation rectangle. An arrow names the side of the popup that bears it:
/// with Qt::UpArrow the popup is below the rectangle. Where the screen has no room there, the popup
/// opens on the opposite side. Once it has a rectangle, a popup whose size changes across the arrow
/// opens again, also one that is hidden.
class UIELEMENTS_EXPORT OxaPopupQuickView : public OxaQuickView
{
    Q_OBJECT

public:
    /// Where setPositionFromWidget() puts the popup.
    enum Alignment { BottomAlignment = 0 };
    Q_ENUM(Alignment)

    /// Makes a view as OxaQuickView does: an ordinary window with a background.
    explicit OxaPopupQuickView(QWindow *parent = nullptr);

    /// Makes a popup of \a engine, without a background.
    OxaPopupQuickView(OxaQmlEngine *engine, QWindow *parent, const ViewOptions &options);

    /// Sets the property of the activation item to false.
    ~OxaPopupQuickView() override;

    /// Returns the rectangle that the popup opened beside. Empty before it was first shown.
    QRectF activationRect() const { return m_activationRect; }

    /// True when \a item is the activation item. Null means that there is none, or none any more.
    bool hasActivationItem(QQuickItem *item) const;

    /// Sets \a property of \a item to true for as long as the popup lives. Escape gives activation
    /// back to the window of \a item. Logs a warning where the property cannot be set. An item that
    /// was set before keeps its property.
    void setupActivationItem(QQuickItem *item, const QString &property);

    /// Returns how far a popup with \a arrow, placed beside the activation rectangle, would cross
    /// the screen's edges at the sides of the arrow, in pixels: positive at the right and at the
    /// bottom, negative at the left and at the top. 0 for no arrow.
    int adjustArrowOffset(Qt::ArrowType arrow);

    /// Returns the top left corner of a popup beside \a rect; without an arrow the centre of
    /// \a rect. The screen is not asked.
    QPointF getPointFromRect(const QRectF &rect, Qt::ArrowType arrow) const;

    /// Returns the top left corner of a popup beside the geometry of \a widget, which is relative
    /// to the widget's parent. Null counts as an empty rectangle.
    QPointF getPointFromWidget(QWidget *widget, Qt::ArrowType arrow) const;

    /// Moves the popup below \a widget, centred, and away from the right and the left edge of the
    /// screen there. Does not show it, and does nothing without a widget.
    void setPositionFromWidget(const QWidget *widget, Alignment alignment);

    /// Tells the view's OxaQmlPopupController, if there is one, that this is its view.
    void setControllerView();

    /// Makes \a rect, in global coordinates, the activation rectangle, and opens the popup beside
    /// it. A visible popup moves there. Emits arrowFlipped() if the popup is on the side opposite
    /// to \a arrow, then arrowOrthogonalChanged(). While the application is inactive, signals are
    /// emitted but the popup is neither moved nor shown.
    ///
    /// Ends all connections of the popup's xChanged(), yChanged(), widthChanged() and
    /// heightChanged() to the popup itself, a client's too: give a lambda another context.
    void showAtRect(const QRectF &rect, Qt::ArrowType arrow);

    /// Opens the popup beside the geometry of \a widget, which is relative to the widget's parent:
    /// pass a window, or accept that. Null counts as an empty rectangle.
    void showAtWidget(QWidget *widget, Qt::ArrowType arrow);

Q_SIGNALS:
    /// The popup opens with \a arrow, the opposite of what was asked for.
    void arrowFlipped(Qt::ArrowType arrow);

    /// What adjustArrowOffset() returns may have changed.
    void arrowOrthogonalChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void showFrom(Qt::ArrowType arrow);

private:
    void setActivationRectAndShow(const QRectF &rect, Qt::ArrowType arrow);
    void setActivationRectAndShow(QWidget *widget, Qt::ArrowType arrow);
    void followSize(Qt::ArrowType arrow);
    void showAndNotify(Qt::ArrowType arrow);
    QPointF getPointFromActivationRect(Qt::ArrowType arrow) const;
    std::pair<QRectF, QRectF> getScreenAndPopupViewRects(Qt::ArrowType arrow) const;
    bool shouldFlipArrow(Qt::ArrowType arrow) const;
    static Qt::ArrowType flipArrow(Qt::ArrowType arrow);

    QPointer<QQuickItem> m_activationItem;
    QString m_activationProperty;
    QRectF m_activationRect;
};

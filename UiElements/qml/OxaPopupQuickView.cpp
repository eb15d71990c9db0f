// SPDX-License-Identifier: Apache-2.0
#include "OxaPopupQuickView.h"

#include <UiElements/app/BoundedPixels_p.h>
#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlPopupController.h>

#include <QAccessible>
#include <QDebug>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QScreen>
#include <QWidget>

using BoundedPixels::bounded;

namespace {

constexpr char setWarning[] = "OxaPopupQuickView::setupActivationItem - unable to set property";
constexpr char resetWarning[] = "~OxaPopupQuickView - unable to set property";

/// Returns by how much the range from \a start to \a end leaves the one of the screen: positive at
/// its end, negative at its start.
double overhang(double start, double end, double screenStart, double screenEnd)
{
    if (end > screenEnd)
        return end - screenEnd;
    return screenStart > start ? start - screenStart : 0;
}

void setPropertyOrWarn(QQuickItem *item, const QString &property, bool value, const char *warning)
{
    if (!item->setProperty(property.toUtf8().constData(), value))
        QMessageLogger().warning() << warning << property;
}

/// Tells assistive technology of \a type, in what \a popup shows if that has a role, such as the
/// tool tip that a balloon is, or else in the popup. Qt tells nothing: the items are visible
/// already.
void tellAccessibility(OxaPopupQuickView *popup, QAccessible::Event type)
{
    if (!QAccessible::isActive())
        return;
    QObject *const content = popup->rootObject();
    const bool hasRole = QAccessible::queryAccessibleInterface(content);
    QAccessibleEvent event(hasRole ? content : popup, type);
    QAccessible::updateAccessibility(&event);
}

} // namespace

OxaPopupQuickView::OxaPopupQuickView(QWindow *parent) : OxaQuickView(parent) { }

OxaPopupQuickView::OxaPopupQuickView(OxaQmlEngine *engine, QWindow *parent,
                                     const ViewOptions &options)
    : OxaQuickView(engine, parent, options)
{
    setFlag(Qt::Popup, true);
    setColor(Qt::transparent);
}

OxaPopupQuickView::~OxaPopupQuickView()
{
    delete rootObject(); // Its QML may change the size of the view, which is still a popup here.
    if (m_activationItem && !m_activationProperty.isEmpty())
        setPropertyOrWarn(m_activationItem, m_activationProperty, false, resetWarning);
}

bool OxaPopupQuickView::hasActivationItem(QQuickItem *item) const
{
    return m_activationItem == item;
}

void OxaPopupQuickView::setupActivationItem(QQuickItem *item, const QString &property)
{
    m_activationItem = item;
    m_activationProperty = property;
    if (item && !property.isEmpty())
        setPropertyOrWarn(item, property, true, setWarning);
}

int OxaPopupQuickView::adjustArrowOffset(Qt::ArrowType arrow)
{
    const auto [screen, popup] = getScreenAndPopupViewRects(arrow);
    switch (arrow) {
    case Qt::UpArrow:
    case Qt::DownArrow:
        return static_cast<int>(
                bounded(overhang(popup.left(), popup.right(), screen.left(), screen.right())));
    case Qt::LeftArrow:
    case Qt::RightArrow:
        return static_cast<int>(
                bounded(overhang(popup.top(), popup.bottom(), screen.top(), screen.bottom())));
    default:
        return 0;
    }
}

QPointF OxaPopupQuickView::getPointFromRect(const QRectF &rect, Qt::ArrowType arrow) const
{
    const QPointF centre = rect.center();
    const int halfWidth = width() / 2;
    const int halfHeight = height() / 2;
    switch (arrow) {
    case Qt::UpArrow:
        return { centre.x() - halfWidth, rect.bottom() };
    case Qt::DownArrow:
        return { centre.x() - halfWidth, rect.top() - height() };
    case Qt::LeftArrow:
        return { rect.right(), centre.y() - halfHeight };
    case Qt::RightArrow:
        return { rect.left() - width(), centre.y() - halfHeight };
    default:
        return centre;
    }
}

QPointF OxaPopupQuickView::getPointFromWidget(QWidget *widget, Qt::ArrowType arrow) const
{
    return getPointFromRect(widget ? QRectF(widget->geometry()) : QRectF(), arrow);
}

void OxaPopupQuickView::setPositionFromWidget(const QWidget *widget, Alignment alignment)
{
    if (!widget)
        return;
    const QPoint centre = bounded(QPointF(widget->mapToGlobal(widget->rect().center())));
    QPoint point = centre + QPoint(-(width() / 2), widget->height() / 2);
    const QScreen *const screen = QGuiApplication::screenAt(centre);
    if (screen && alignment == BottomAlignment) {
        const QRect area = screen->geometry();
        const int excess = QRect(point, size()).right() - area.right();
        if (excess > 0)
            point.rx() -= excess;
        if (!area.contains(point))
            point.setX(area.left());
    }
    setPosition(point);
}

void OxaPopupQuickView::setControllerView()
{
    const QPointer<OxaQmlController> controller = findController();
    if (auto *popupController = qobject_cast<OxaQmlPopupController *>(controller.data()))
        popupController->setPopupQuickView(this);
}

void OxaPopupQuickView::showAtRect(const QRectF &rect, Qt::ArrowType arrow)
{
    setActivationRectAndShow(rect, arrow);
}

void OxaPopupQuickView::showAtWidget(QWidget *widget, Qt::ArrowType arrow)
{
    setActivationRectAndShow(widget, arrow);
}

void OxaPopupQuickView::setActivationRectAndShow(const QRectF &rect, Qt::ArrowType arrow)
{
    m_activationRect = rect;
    followSize(arrow);
    showAndNotify(arrow);
}

void OxaPopupQuickView::setActivationRectAndShow(QWidget *widget, Qt::ArrowType arrow)
{
    setActivationRectAndShow(widget ? QRectF(widget->geometry()) : QRectF(), arrow);
}

/// Places the popup again when its size across the arrow changes, from \a arrow as it was asked
/// for: what flipped before may have room now.
void OxaPopupQuickView::followSize(Qt::ArrowType arrow)
{
    disconnect(this, &QWindow::heightChanged, this, nullptr);
    disconnect(this, &QWindow::widthChanged, this, nullptr);
    disconnect(this, &QWindow::xChanged, this, nullptr);
    disconnect(this, &QWindow::yChanged, this, nullptr);
    const auto showAgain = [this, arrow] { showAndNotify(arrow); };
    if (arrow == Qt::UpArrow || arrow == Qt::DownArrow) {
        connect(this, &QWindow::widthChanged, this, showAgain, Qt::DirectConnection);
        connect(this, &QWindow::xChanged, this, &OxaPopupQuickView::arrowOrthogonalChanged);
    } else if (arrow == Qt::LeftArrow || arrow == Qt::RightArrow) {
        connect(this, &QWindow::heightChanged, this, showAgain, Qt::DirectConnection);
        connect(this, &QWindow::yChanged, this, &OxaPopupQuickView::arrowOrthogonalChanged);
    }
}

void OxaPopupQuickView::showAndNotify(Qt::ArrowType arrow)
{
    const QPointer<OxaPopupQuickView> self(this); // A slot may delete the popup.
    showFrom(arrow);
    if (self)
        Q_EMIT arrowOrthogonalChanged();
}

void OxaPopupQuickView::showFrom(Qt::ArrowType arrow)
{
    if (shouldFlipArrow(arrow)) {
        const QPointer<OxaPopupQuickView> self(this); // A slot may delete the popup.
        arrow = flipArrow(arrow);
        Q_EMIT arrowFlipped(arrow);
        if (!self)
            return;
    }
    const QPoint point = bounded(getPointFromActivationRect(arrow));
    if (QGuiApplication::applicationState() == Qt::ApplicationActive)
        showAt(point, QGuiApplication::screenAt(point));
}

QPointF OxaPopupQuickView::getPointFromActivationRect(Qt::ArrowType arrow) const
{
    return getPointFromRect(m_activationRect, arrow);
}

/// Returns the available geometry of the screen that a popup with \a arrow opens on, and the
/// popup's geometry there.
std::pair<QRectF, QRectF> OxaPopupQuickView::getScreenAndPopupViewRects(Qt::ArrowType arrow) const
{
    const QPointF point = getPointFromActivationRect(arrow);
    const QScreen *screenThere = QGuiApplication::screenAt(bounded(point));
    if (!screenThere)
        screenThere = screen();
    const QRectF area = screenThere ? QRectF(screenThere->availableGeometry()) : QRectF();
    return { area, QRectF(point, size()) };
}

bool OxaPopupQuickView::shouldFlipArrow(Qt::ArrowType arrow) const
{
    const auto [screen, popup] = getScreenAndPopupViewRects(arrow);
    switch (arrow) {
    case Qt::UpArrow:
        return popup.bottom() > screen.bottom();
    case Qt::DownArrow:
        return screen.top() > popup.top();
    case Qt::LeftArrow:
        return popup.right() > screen.right();
    case Qt::RightArrow:
        return screen.left() > popup.left();
    default:
        return false;
    }
}

Qt::ArrowType OxaPopupQuickView::flipArrow(Qt::ArrowType arrow)
{
    const auto anchor = OxaQmlBalloon::arrowAnchorFromArrowType(arrow);
    return OxaQmlBalloon::arrowTypeFromArrowAnchor(OxaQmlBalloon::flipAnchor(anchor));
}

// The base class comes last: a slot or handler in QML may delete the popup.
void OxaPopupQuickView::showEvent(QShowEvent *event)
{
    tellAccessibility(this, QAccessible::ObjectShow);
    OxaQuickView::showEvent(event);
}

void OxaPopupQuickView::hideEvent(QHideEvent *event)
{
    tellAccessibility(this, QAccessible::ObjectHide);
    OxaQuickView::hideEvent(event);
}

void OxaPopupQuickView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        OxaQuickView::keyPressEvent(event);
        return;
    }
    const QPointer<OxaPopupQuickView> self(this); // The popup may hide, and be deleted, meanwhile.
    if (m_activationItem && m_activationItem->window())
        m_activationItem->window()->requestActivate();
    if (self)
        close();
}

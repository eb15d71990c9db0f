// SPDX-License-Identifier: Apache-2.0
#include "ResizeHandle.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int handleSize = 20;
constexpr int keyStep = 16;
constexpr int lineCount = 3;
constexpr int lineDistance = 5;
constexpr int focusWidth = 2;
constexpr int radius = 4;

/// Returns \a by with x positive towards the end of a line.
QPoint logical(const QPoint &by)
{
    return QGuiApplication::isRightToLeft() ? QPoint(-by.x(), by.y()) : by;
}

} // namespace

ResizeHandle::ResizeHandle(QWidget *parent) : QWidget(parent)
{
    setFixedSize(handleSize, handleSize);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Size"));
    setProperty("accessibleRole", QVariant::fromValue(QAccessible::Grip));
    setToolTip(tr("Drag, or use the arrow keys"));
    m_themeBlock.followTheme();
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &ResizeHandle::fitCursor);
    fitCursor();
}

void ResizeHandle::onThemeChanged()
{
    m_color = OxaThemeUtils::getColorSet("gallery-icon", getThemeType()).normal;
    m_focusBorder = OxaThemeUtils::getColorSet("gallery-focus-border", getThemeType()).normal;
    update();
}

void ResizeHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (QGuiApplication::isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    // Lines across the corner where the contents end.
    painter.setPen(QPen(m_color, 1.5, Qt::SolidLine, Qt::RoundCap));
    for (int i = 1; i <= lineCount; ++i)
        painter.drawLine(QPointF(1, i * lineDistance), QPointF(i * lineDistance, 1));
    if (!hasFocus())
        return;
    painter.setPen(QPen(m_focusBorder, focusWidth));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), radius, radius);
}

void ResizeHandle::mousePressEvent(QMouseEvent *event) { m_pressedAt = event->pos(); }

void ResizeHandle::mouseMoveEvent(QMouseEvent *event)
{
    // The handle moves with the pointer, so that its position is compared with the press.
    Q_EMIT dragged(logical(event->pos() - m_pressedAt));
}

void ResizeHandle::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        Q_EMIT dragged(logical(QPoint(-keyStep, 0)));
        break;
    case Qt::Key_Right:
        Q_EMIT dragged(logical(QPoint(keyStep, 0)));
        break;
    case Qt::Key_Up:
        Q_EMIT dragged(QPoint(0, -keyStep));
        break;
    case Qt::Key_Down:
        Q_EMIT dragged(QPoint(0, keyStep));
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ResizeHandle::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ResizeHandle::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void ResizeHandle::fitCursor()
{
    setCursor(QGuiApplication::isRightToLeft() ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor);
    update();
}

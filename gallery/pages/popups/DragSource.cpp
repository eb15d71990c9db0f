// SPDX-License-Identifier: Apache-2.0
#include "DragSource.h"

#include "widgets/Buttons.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

constexpr int keyStep = 16;

/// Returns the step of an arrow key; null for other keys.
QPoint stepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return { -keyStep, 0 };
    case Qt::Key_Right:
        return { keyStep, 0 };
    case Qt::Key_Up:
        return { 0, -keyStep };
    case Qt::Key_Down:
        return { 0, keyStep };
    default:
        return {};
    }
}

} // namespace

DragSource::DragSource(QWidget *parent) : OxaPushButton(parent)
{
    setText(tr("Drag or click"));
    Buttons::setUp(*this);
    setToolTip(tr("Drag, or use the arrow keys"));
    connect(this, &OxaPushButton::clicked, this, [this] {
        if (!m_isDragged)
            Q_EMIT chosen();
    });
}

QRect DragSource::onScreen() const { return { mapToGlobal(QPoint(0, 0)), size() }; }

void DragSource::moveInside(const QPoint &place)
{
    const QSize room = parentWidget()->size() - size();
    const QPoint inside(qBound(0, place.x(), qMax(0, room.width())),
                        qBound(0, place.y(), qMax(0, room.height())));
    if (inside == pos())
        return;
    move(inside);
    Q_EMIT moved();
}

void DragSource::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = event->pos();
    m_isDragged = false;
    OxaPushButton::mousePressEvent(event);
}

void DragSource::mouseMoveEvent(QMouseEvent *event)
{
    OxaPushButton::mouseMoveEvent(event);
    const QPoint by = event->pos() - m_pressedAt;
    if (!(event->buttons() & Qt::LeftButton)
        || (!m_isDragged && by.manhattanLength() < QApplication::startDragDistance()))
        return;
    m_isDragged = true;
    moveInside(pos() + by);
}

void DragSource::keyPressEvent(QKeyEvent *event)
{
    m_isDragged = false;
    const QPoint step = stepOf(event->key());
    if (step.isNull())
        OxaPushButton::keyPressEvent(event);
    else
        moveInside(pos() + step);
}

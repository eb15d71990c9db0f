// SPDX-License-Identifier: Apache-2.0
#include "WindowWatcher.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace {

bool isAboutTheTabOrder(QEvent::Type type)
{
    switch (type) {
    case QEvent::EnabledChange:
    case QEvent::Hide:
    case QEvent::LayoutRequest:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        return true;
    default:
        return false;
    }
}

} // namespace

WindowWatcher::WindowWatcher(QWidget *window) : QObject(window), m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &WindowWatcher::announceLater);
}

bool WindowWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (isAboutTheTabOrder(event->type()) && watched->isWidgetType()
        && static_cast<QWidget *>(watched)->window() == m_window)
        announceLater();
    return QObject::eventFilter(watched, event);
}

void WindowWatcher::announceLater()
{
    if (m_isAnnounced)
        return;
    m_isAnnounced = true;
    QMetaObject::invokeMethod(this, &WindowWatcher::announce, Qt::QueuedConnection);
}

void WindowWatcher::announce()
{
    m_isAnnounced = false;
    Q_EMIT changed();
}

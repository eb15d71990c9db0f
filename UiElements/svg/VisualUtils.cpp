// SPDX-License-Identifier: Apache-2.0
#include "VisualUtils.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

using VisualUtils::EventFilter;

namespace {

/// AltGr arrives as Ctrl+Alt and types one printable character.
bool isTypedWithAltGr(const QKeyEvent &event)
{
    const QString text = event.text();
    return event.modifiers().testFlag(Qt::ControlModifier)
            && event.modifiers().testFlag(Qt::AltModifier) && text.size() == 1
            && text.front().isPrint();
}

bool acceptAltGr(QEvent *event)
{
    if (isTypedWithAltGr(*static_cast<QKeyEvent *>(event)))
        event->accept();
    return false;
}

} // namespace

EventFilter::EventFilter(QObject *parent, std::vector<QEvent::Type> eventTypes, Handler handler)
    : QObject(parent), m_eventTypes(std::move(eventTypes)), m_handler(std::move(handler))
{
    if (parent)
        parent->installEventFilter(this);
}

EventFilter::~EventFilter()
{
    if (parent())
        parent()->removeEventFilter(this);
}

void EventFilter::setRemoveAfterFirstUse(bool remove) { m_removeAfterFirstUse = remove; }

QObject *EventFilter::overrideShortcutOverride(QObject *target)
{
    return new EventFilter(target, { QEvent::ShortcutOverride }, acceptAltGr);
}

bool EventFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (!isHandled(watched, event))
        return QObject::eventFilter(watched, event);
    if (m_removeAfterFirstUse) {
        watched->removeEventFilter(this);
        deleteLater();
    }
    // Copied: the handler may delete the filter, and must exist until it returns.
    const Handler handler = m_handler;
    return handler(event);
}

bool EventFilter::isHandled(const QObject *watched, const QEvent *event) const
{
    const bool hasType = m_eventTypes.empty()
            || std::find(m_eventTypes.cbegin(), m_eventTypes.cend(), event->type())
                    != m_eventTypes.cend();
    return hasType && watched == parent();
}

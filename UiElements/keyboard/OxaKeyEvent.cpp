// SPDX-License-Identifier: Apache-2.0
#include "OxaKeyEvent.h"

#include <QKeyEvent>

OxaKeyEvent::OxaKeyEvent(QObject *parent) : QObject(parent) { }

Qt::KeyboardModifiers OxaKeyEvent::modifiers() const { return m_modifiers; }

void OxaKeyEvent::setModifiers(Qt::KeyboardModifiers modifiers)
{
    if (modifiers == m_modifiers)
        return;
    m_modifiers = modifiers;
    Q_EMIT modifiersChanged();
}

QKeyEvent *OxaKeyEvent::keyEvent() const { return m_keyEvent; }

void OxaKeyEvent::setKeyEvent(QKeyEvent *event)
{
    m_keyEvent = event;
    if (event)
        setModifiers(event->modifiers());
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QObject>

class QKeyEvent;

/// Gives QML access to the modifiers of a key event.
class UIELEMENTS_EXPORT OxaKeyEvent : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Qt::KeyboardModifiers modifiers READ modifiers NOTIFY modifiersChanged)

public:
    /// Makes an object without modifiers and without an event.
    explicit OxaKeyEvent(QObject *parent = nullptr);

    /// Returns the modifiers. None by default.
    Qt::KeyboardModifiers modifiers() const;

    /// Stores \a modifiers, and emits modifiersChanged() when they differ.
    void setModifiers(Qt::KeyboardModifiers modifiers);

    /// Returns the event last set, or null. It belongs to the code that set it, and the pointer is
    /// valid only as long as that event exists.
    QKeyEvent *keyEvent() const;

    /// Stores \a event and takes its modifiers; modifiersChanged() follows when they differ. Null
    /// forgets the event and keeps the modifiers.
    void setKeyEvent(QKeyEvent *event);

Q_SIGNALS:
    /// modifiers() has changed.
    void modifiersChanged();

private:
    Qt::KeyboardModifiers m_modifiers = Qt::NoModifier;
    QKeyEvent *m_keyEvent = nullptr;
};

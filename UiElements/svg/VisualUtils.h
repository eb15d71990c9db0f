// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QEvent>
#include <QObject>

#include <functional>
#include <vector>

/// Small helpers for widgets on screen.
namespace VisualUtils {

/// Passes the events of one object to a function.
///
/// The filter is a child of the object that it watches and installs itself on it. Events of other
/// objects are ignored, also when the filter was installed on them directly.
class UIELEMENTS_EXPORT EventFilter : public QObject
{
    Q_OBJECT

public:
    /// Handles an event; returns true to keep it from the watched object.
    using Handler = std::function<bool(QEvent *)>;

    /// Makes a filter that \a parent owns and that passes its events of the types \a eventTypes to
    /// \a handler. An empty list means all events.
    EventFilter(QObject *parent, std::vector<QEvent::Type> eventTypes, Handler handler);
    ~EventFilter() override;

    /// With \a remove the filter deletes itself after the handler's first event. Off by default.
    void setRemoveAfterFirstUse(bool remove);

    /// Keeps characters typed with AltGr from shortcuts: on \a target, a Ctrl+Alt chord that types
    /// one printable character is text; any other chord may still be a shortcut. Returns the
    /// filter, which \a target owns.
    static QObject *overrideShortcutOverride(QObject *target);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isHandled(const QObject *watched, const QEvent *event) const;

    std::vector<QEvent::Type> m_eventTypes;
    Handler m_handler;
    bool m_removeAfterFirstUse = false;
};

} // namespace VisualUtils

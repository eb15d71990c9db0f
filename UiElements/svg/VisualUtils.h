// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QEvent>
#include <QObject>

#include <functional>
#include <vector>

/// Small helpers for what widgets do on screen.
namespace VisualUtils {

/// Hands the events of one object to a function.
///
/// The filter is a child of the object that it watches and installs itself on it. Events of other
/// objects pass, also when the filter was installed on them by hand.
class UIELEMENTS_EXPORT EventFilter : public QObject
{
    Q_OBJECT

public:
    /// What is done with an event; true keeps it from the watched object.
    using Handler = std::function<bool(QEvent *)>;

    /// Makes a filter that \a parent owns and hands its events of the types \a eventTypes to
    /// \a handler. No types at all means all of them.
    EventFilter(QObject *parent, std::vector<QEvent::Type> eventTypes, Handler handler);
    ~EventFilter() override;

    /// With \a remove the filter deletes itself once the handler has had one event. Off by default.
    void setRemoveAfterFirstUse(bool remove);

    /// Keeps what AltGr types away from shortcuts: on \a target, a Ctrl+Alt chord that gives one
    /// printable character is text, every other one stays a candidate for a shortcut. Returns the
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

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/SignalLog.h"

#include <QAccessible>
#include <QWidget>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

/// What assistive technology is told, as texts.
namespace Told {

inline QAccessibleInterface *of(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

inline QString nameOf(const QAccessibleInterface *told) { return told->text(QAccessible::Name); }

/// Returns the states of \a told that matter for controls: "focusable checkable checked".
inline QString states(const QAccessibleInterface *told)
{
    const QAccessible::State state = told->state();
    const std::pair<bool, const char *> all[] = {
        { state.disabled, "disabled" },     { state.invisible, "invisible" },
        { state.focusable, "focusable" },   { state.focused, "focused" },
        { state.selectable, "selectable" }, { state.selected, "selected" },
        { state.checkable, "checkable" },   { state.checked, "checked" },
        { state.checkStateMixed, "mixed" }, { state.editable, "editable" },
        { state.readOnly, "read-only" },    { state.passwordEdit, "password" },
        { state.modal, "modal" },           { state.pressed, "pressed" },
        { state.defaultButton, "default" }, { state.hasPopup, "popup" },
    };
    QStringList names;
    for (const auto &[isSet, name] : all) {
        if (isSet)
            names += QLatin1String(name);
    }
    return names.join(QLatin1Char(' '));
}

/// Returns role and name: "PageTab a".
inline QString describe(const QAccessibleInterface *told)
{
    const QLatin1String role(qAccessibleRoleString(told->role()));
    return QStringLiteral("%1 %2").arg(role, nameOf(told)).trimmed();
}

/// Returns the children of \a told: "PageTab a | PageTab b".
inline QString children(const QAccessibleInterface *told)
{
    QStringList all;
    for (int i = 0; i < told->childCount(); ++i)
        all += describe(told->child(i));
    return all.join(QLatin1String(" | "));
}

/// Has the platform pretend that assistive technology is running, while it lives, and records the
/// events with the names of their objects: "SelectionRemove a | Selection b".
class Events
{
    Q_DISABLE_COPY_MOVE(Events)

public:
    /// Records events of the type \a type, or all.
    explicit Events(QAccessible::Event type = QAccessible::InvalidEvent)
        : m_before(QAccessible::installUpdateHandler(hear))
    {
        s_log = &m_log;
        s_type = type;
        setActive(true);
    }
    ~Events()
    {
        setActive(false);
        QAccessible::installUpdateHandler(m_before);
    }

    /// Returns the events since the last call.
    QString take() { return m_log.take(); }

private:
    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }

    static void hear(QAccessibleEvent *event)
    {
        if (s_type != QAccessible::InvalidEvent && event->type() != s_type)
            return;
        const QLatin1String type(qAccessibleEventString(event->type()));
        s_log->note(QStringLiteral("%1 %2%3").arg(type, nameOf(event->accessibleInterface()),
                                                  rowsOf(*event)));
    }

    /// Returns the rows that a table says have changed: " changed 3-5", or nothing for other
    /// events.
    static QString rowsOf(const QAccessibleEvent &event)
    {
        if (event.type() != QAccessible::TableModelChanged)
            return {};
        static const char *const changes[] = { "reset",    "changed",
                                               "inserted", "columns inserted",
                                               "removed",  "columns removed" };
        const auto &change = static_cast<const QAccessibleTableModelChangeEvent &>(event);
        return QStringLiteral(" %1 %2-%3")
                .arg(QLatin1String(changes[change.modelChangeType()]))
                .arg(change.firstRow())
                .arg(change.lastRow());
    }

    static inline SignalLog *s_log = nullptr;
    static inline QAccessible::Event s_type = QAccessible::InvalidEvent;

    SignalLog m_log;
    const QAccessible::UpdateHandler m_before;
};

} // namespace Told

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

#include <functional>

/// Receives all signals of an object.
///
/// Slots are usually declared at compile time. This class has a slot for each signal of another
/// class at run time: Qt calls a receiver by a number through qt_metacall(), and does not check
/// whether the class declares a slot of that number. Here the numbers after QObject's own are the
/// signals. The class must not have Q_OBJECT, which would implement qt_metacall().
class SignalWatcher : public QObject
{
public:
    /// Called during the emission, with the signal and the texts of its arguments.
    using Heard = std::function<void(const QMetaMethod &signal, const QStringList &arguments)>;

    /// Listens to the signals that the class of \a sender declares itself.
    SignalWatcher(QObject *sender, Heard heard, QObject *parent = nullptr);

    /// Listens to the signals of \a sender from the method numbered \a first on.
    SignalWatcher(QObject *sender, Heard heard, QObject *parent, int first);

    /// Returns the signal that is emitted for \a signal: itself, or the form with all arguments for
    /// a form with default arguments. Qt lists the full form first.
    static QMetaMethod wholeForm(const QMetaMethod &signal);

    /// Returns how many connections \a signal of \a sender has, those of watchers included. A form
    /// with fewer arguments has those of the full one.
    static int connectionCount(const QObject *sender, const QMetaMethod &signal);

    int qt_metacall(QMetaObject::Call call, int method, void **arguments) override;

private:
    const QMetaObject *const m_senderClass;
    const Heard m_heard;
};

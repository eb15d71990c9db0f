// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

#include <functional>

/// Hears all signals of an object, whatever they are.
///
/// A slot belongs to a class and is known when it is compiled. This one has a slot for each signal
/// of another class, known when the program runs: Qt calls a receiver by a number through
/// qt_metacall(), and does not ask whether the class declared a slot of that number. The numbers
/// behind QObject's own stand for the signals here, which is why the class must not have Q_OBJECT:
/// that would bring a qt_metacall() of its own.
class SignalWatcher : public QObject
{
public:
    /// Called in the emitter's call, with the signal and the texts of its arguments.
    using Heard = std::function<void(const QMetaMethod &signal, const QStringList &arguments)>;

    /// Listens to the signals that the class of \a sender declares itself.
    SignalWatcher(QObject *sender, Heard heard, QObject *parent = nullptr);

    /// Listens to the signals of \a sender from the method numbered \a first on.
    SignalWatcher(QObject *sender, Heard heard, QObject *parent, int first);

    /// Returns the signal that is emitted for \a signal: itself, or for a form that leaves
    /// arguments to their defaults the one with all of them. Qt lists the whole form first.
    static QMetaMethod wholeForm(const QMetaMethod &signal);

    /// Returns how many connections \a signal of \a sender has, those of watchers included. A form
    /// with fewer arguments has those of the whole one.
    static int connectionCount(const QObject *sender, const QMetaMethod &signal);

    int qt_metacall(QMetaObject::Call call, int method, void **arguments) override;

private:
    const QMetaObject *const m_senderClass;
    const Heard m_heard;
};

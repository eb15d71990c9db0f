// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QObject>

/// Receives signals and does nothing with them.
class SignalReceiver : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Connects \a signal of \a sender once more.
    void connectTo(const QObject *sender, const QMetaMethod &signal);

    /// Removes all its connections to \a signal of \a sender.
    void disconnectFrom(const QObject *sender, const QMetaMethod &signal);

private Q_SLOTS:
    void receive() { }
};

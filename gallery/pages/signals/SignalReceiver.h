// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QObject>

/// Receives signals, and does nothing with them: somebody to connect to.
class SignalReceiver : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Connects \a signal of \a sender once more.
    void connectTo(const QObject *sender, const QMetaMethod &signal);

    /// Takes all connections to \a signal of \a sender back.
    void disconnectFrom(const QObject *sender, const QMetaMethod &signal);

private Q_SLOTS:
    void receive() { }
};

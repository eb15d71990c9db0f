// SPDX-License-Identifier: Apache-2.0
#include "SignalReceiver.h"

#include "SignalWatcher.h"

void SignalReceiver::connectTo(const QObject *sender, const QMetaMethod &signal)
{
    const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("receive()"));
    connect(sender, SignalWatcher::wholeForm(signal), this, slot);
}

void SignalReceiver::disconnectFrom(const QObject *sender, const QMetaMethod &signal)
{
    disconnect(sender, SignalWatcher::wholeForm(signal), this, QMetaMethod());
}

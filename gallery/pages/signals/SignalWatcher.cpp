// SPDX-License-Identifier: Apache-2.0
#include "SignalWatcher.h"

#include "SignalArguments.h"

namespace {

/// Gives access to protected functions of QObject.
struct Connections : QObject
{
    static int count(const QObject *sender, const char *signal)
    {
        return (sender->*(&Connections::receivers))(signal);
    }
};

bool isShorterForm(const QMetaMethod &signal) { return signal.attributes() & QMetaMethod::Cloned; }

} // namespace

SignalWatcher::SignalWatcher(QObject *sender, Heard heard, QObject *parent)
    : SignalWatcher(sender, std::move(heard), parent, sender->metaObject()->methodOffset())
{
}

SignalWatcher::SignalWatcher(QObject *sender, Heard heard, QObject *parent, int first)
    : QObject(parent), m_senderClass(sender->metaObject()), m_heard(std::move(heard))
{
    const int firstSlot = QObject::staticMetaObject.methodCount();
    for (int i = first; i < m_senderClass->methodCount(); ++i) {
        const QMetaMethod method = m_senderClass->method(i);
        if (method.methodType() == QMetaMethod::Signal && !isShorterForm(method))
            QMetaObject::connect(sender, i, this, firstSlot + i, Qt::DirectConnection);
    }
}

QMetaMethod SignalWatcher::wholeForm(const QMetaMethod &signal)
{
    QMetaMethod form = signal;
    while (isShorterForm(form))
        form = form.enclosingMetaObject()->method(form.methodIndex() - 1);
    return form;
}

int SignalWatcher::connectionCount(const QObject *sender, const QMetaMethod &signal)
{
    // The macro SIGNAL puts a "2" before a signal's signature.
    return Connections::count(sender, ("2" + signal.methodSignature()).constData());
}

int SignalWatcher::qt_metacall(QMetaObject::Call call, int method, void **arguments)
{
    const int index = QObject::qt_metacall(call, method, arguments);
    if (index < 0 || call != QMetaObject::InvokeMetaMethod)
        return index;
    const QMetaMethod signal = m_senderClass->method(index);
    const QByteArrayList types = signal.parameterTypes();
    QStringList texts;
    for (int i = 0; i < types.size(); ++i)
        texts += SignalArguments::text(types[i], arguments[i + 1]); // The result comes first.
    m_heard(signal, texts);
    return -1;
}

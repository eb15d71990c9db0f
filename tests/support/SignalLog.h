// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QStringList>

/// Records the emitted signals in their order as one short text: "cssChanged | themeTypeChanged".
class SignalLog
{
    Q_DISABLE_COPY_MOVE(SignalLog)

public:
    SignalLog() = default;

    /// Records \a entry whenever \a signal of \a sender is emitted.
    template <typename Sender, typename Signal>
    void record(const Sender *sender, Signal signal, const QString &entry)
    {
        QObject::connect(sender, signal, &m_context, [this, entry] { m_entries += entry; });
    }

    /// Records \a entry now.
    void note(const QString &entry) { m_entries += entry; }

    /// Returns the entries since the last call.
    QString take()
    {
        const QString text = m_entries.join(QLatin1String(" | "));
        m_entries.clear();
        return text;
    }

private:
    QObject m_context;
    QStringList m_entries;
};

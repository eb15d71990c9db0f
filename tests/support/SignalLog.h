// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QStringList>

/// Records which signals fired, in which order, as one short text: "cssChanged | themeTypeChanged".
class SignalLog
{
    Q_DISABLE_COPY_MOVE(SignalLog)

public:
    SignalLog() = default;

    /// Notes \a entry whenever \a signal of \a sender fires.
    template <typename Sender, typename Signal>
    void record(const Sender *sender, Signal signal, const QString &entry)
    {
        QObject::connect(sender, signal, &m_context, [this, entry] { m_entries += entry; });
    }

    /// Notes \a entry now.
    void note(const QString &entry) { m_entries += entry; }

    /// Returns what fired since the last call.
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

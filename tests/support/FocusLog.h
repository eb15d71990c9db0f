// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>
#include <QStringList>
#include <QWidget>

/// Records which widgets get the focus, by their object names: "first second"; "nothing" where the
/// window becomes inactive.
class FocusLog
{
    Q_DISABLE_COPY_MOVE(FocusLog)

public:
    FocusLog()
    {
        QObject::connect(qApp, &QApplication::focusChanged, &m_context,
                         [this](const QWidget *, const QWidget *now) {
                             m_names += now ? now->objectName() : QStringLiteral("nothing");
                         });
    }

    /// Returns the names since the last clear().
    QString names() const { return m_names.join(QLatin1Char(' ')); }

    void clear() { m_names.clear(); }

private:
    QStringList m_names;
    QObject m_context; ///< Destroyed first: the focus changes while a window is destroyed.
};

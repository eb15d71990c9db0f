// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QtGlobal>

/// Collects the warnings that are logged while it exists, instead of printing them.
///
/// Other messages go to the earlier handler. Collectors may be nested: the innermost
/// gets the warnings. GUI thread only.
class WarningCollector
{
    Q_DISABLE_COPY_MOVE(WarningCollector)

public:
    WarningCollector();
    ~WarningCollector();

    /// Returns the texts of the warnings so far, in order.
    QStringList texts() const { return m_texts; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    static WarningCollector *s_innermost;

    WarningCollector *const m_outer;
    const QtMessageHandler m_previousHandler;
    QStringList m_texts;
};

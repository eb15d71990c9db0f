// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>

/// Adds a row for a call: the letters before it, the given ones, those after it, and the signals.
inline void addChangeColumns()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("emitted");
}

inline QTestData &addChange(const char *name, const char *before, const char *given,
                            const char *after, const char *emitted)
{
    return QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(given)
                               << QString::fromLatin1(after) << QString::fromLatin1(emitted);
}

/// Announces the warnings that the rows with these one-letter ids are skipped.
inline void expectSkipped(const QString &ids)
{
    for (const QChar id : ids) {
        const QString text = QStringLiteral("\"Row id: %1 is not unique! Skipping row\"").arg(id);
        QTest::ignoreMessage(QtWarningMsg, text.toUtf8().constData());
    }
}

// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <QApplication>
#include <QDebug>

#include <looks/WarningCollector.h>

/// WarningCollector: warnings are kept for a while, instead of being printed.
class tst_WarningCollector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWarningsInOrder();
    void letsOtherMessagesPass();
    void givesNestedWarningsToTheInnermost();
    void restoresTheEarlierHandler();
};

void tst_WarningCollector::keepsWarningsInOrder()
{
    const WarningCollector warnings;
    qWarning("first");
    qWarning("second");
    QCOMPARE(warnings.texts(), QStringList({ QStringLiteral("first"), QStringLiteral("second") }));
}

void tst_WarningCollector::letsOtherMessagesPass()
{
    QTest::ignoreMessage(QtDebugMsg, "passes");
    const WarningCollector warnings;
    qDebug("passes");
    QCOMPARE(warnings.texts(), QStringList());
}

void tst_WarningCollector::givesNestedWarningsToTheInnermost()
{
    const WarningCollector outer;
    {
        const WarningCollector inner;
        qWarning("inside");
        QCOMPARE(inner.texts(), QStringList(QStringLiteral("inside")));
    }
    qWarning("outside");
    QCOMPARE(outer.texts(), QStringList(QStringLiteral("outside")));
}

void tst_WarningCollector::restoresTheEarlierHandler()
{
    {
        const WarningCollector warnings;
    }
    QTest::ignoreMessage(QtWarningMsg, "seen by the test");
    qWarning("seen by the test");
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_WarningCollector)
#include "tst_warningcollector.moc"

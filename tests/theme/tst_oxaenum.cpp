// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"

#include <UiElements/theme/OxaEnum.h>

#include <QMetaEnum>
#include <QTest>

class tst_OxaEnum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isRegisteredWithItsNamesAndValues_data();
    void isRegisteredWithItsNamesAndValues();
};

void tst_OxaEnum::isRegisteredWithItsNamesAndValues_data()
{
    QTest::addColumn<QString>("enumerators");
    QTest::newRow("Alignment") << "Left 0, Right 1, Top 2, Bottom 3";
    QTest::newRow("HorAlign") << "LeftAlign 0, CenterAlign 1, RightAlign 2";
    QTest::newRow("BorderStyle") << "None 0, RoundLeft 1, RoundRight 2, Round 3";
}

void tst_OxaEnum::isRegisteredWithItsNamesAndValues()
{
    QFETCH(const QString, enumerators);
    const QMetaObject &type = OxaEnum::staticMetaObject;
    const QMetaEnum found = type.enumerator(type.indexOfEnumerator(QTest::currentDataTag()));
    QStringList entries;
    for (int i = 0; i < found.keyCount(); ++i)
        entries += QLatin1String(found.key(i)) + QLatin1Char(' ') + QString::number(found.value(i));
    QCOMPARE(entries.join(QLatin1String(", ")), enumerators);
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaEnum)
#include "tst_oxaenum.moc"

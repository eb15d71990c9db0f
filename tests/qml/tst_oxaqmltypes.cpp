// SPDX-License-Identifier: Apache-2.0
#include "QmlScript.h"
#include "support/TestApplication.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

/// The types of the QML module.
class tst_OxaQmlTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registersItsTypesInOrder();
    void makesEachType_data();
    void makesEachType();
    void hasNoOtherTypes_data();
    void hasNoOtherTypes();
    void hasOneVersion();
    void knowsTheEnumerations_data();
    void knowsTheEnumerations();
};

void tst_OxaQmlTypes::registersItsTypesInOrder()
{
    OxaQmlTypes::registerQmlTypes();
    int last = -1;
    for (const char *name : { "OverflowListProxyModel", "OxaBalloon", "OxaHalfPill",
                              "OxaQmlPopupController", "OxaQmlDialogController" }) {
        const int id = qmlTypeId("UiElements", 1, 0, name);
        QVERIFY2(id > last, name);
        last = id;
    }
}

void tst_OxaQmlTypes::makesEachType_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("OverflowListProxyModel") << QByteArray("OverflowListProxyModel");
    QTest::newRow("OxaBalloon") << QByteArray("OxaQmlBalloon");
    QTest::newRow("OxaHalfPill") << QByteArray("OxaQmlHalfPill");
    QTest::newRow("OxaQmlPopupController") << QByteArray("OxaQmlPopupController");
    QTest::newRow("OxaQmlDialogController") << QByteArray("OxaQmlDialogController");
}

void tst_OxaQmlTypes::makesEachType()
{
    QFETCH(const QByteArray, className);
    QQmlEngine engine;
    const auto object = QmlScript::create(engine,
                                          QLatin1String(QTest::currentDataTag())
                                                  + QStringLiteral(" { }"));
    QVERIFY(object);
    QCOMPARE(object->metaObject()->className(), className.constData());
}

void tst_OxaQmlTypes::hasNoOtherTypes_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         { "OxaQmlBalloon", "OxaQmlHalfPill", "OxaQmlController", "OxaQuickView" })
        QTest::newRow(name) << QByteArray(name);
}

void tst_OxaQmlTypes::hasNoOtherTypes()
{
    QFETCH(const QByteArray, name);
    OxaQmlTypes::registerQmlTypes();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import UiElements 1.0\n" + name + " { }", QUrl());
    QVERIFY(component.errorString().contains(
            QStringLiteral("%1 is not a type").arg(QLatin1String(name))));
}

void tst_OxaQmlTypes::hasOneVersion()
{
    OxaQmlTypes::registerQmlTypes();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import UiElements 1.1\nOxaBalloon { }", QUrl());
    QVERIFY(component.isError());
}

void tst_OxaQmlTypes::knowsTheEnumerations_data()
{
    QTest::addColumn<int>("value");
    int value = 0;
    for (const char *name : { "None", "Top", "Bottom", "Left", "Right" })
        QTest::addRow("OxaBalloon.%s", name) << value++;
    value = 0;
    for (const char *name : { "Left", "Center", "Right", "Top", "Bottom" })
        QTest::addRow("OxaBalloon.%sAlignment", name) << value++;
    value = 0;
    for (const char *name : { "Left", "Right", "None" })
        QTest::addRow("OxaHalfPill.%s", name) << value++;
}

void tst_OxaQmlTypes::knowsTheEnumerations()
{
    QFETCH(const int, value);
    const QVariant found = QmlScript::run(*this,
                                          QStringLiteral("return ")
                                                  + QLatin1String(QTest::currentDataTag()));
    QCOMPARE(found, QVariant(value));
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlTypes)
#include "tst_oxaqmltypes.moc"

// SPDX-License-Identifier: Apache-2.0
#include "qml/DiskFolder.h"
#include "qml/EngineFixture.h"

#include <QAction>
#include <QQmlComponent>
#include <QQmlContext>

namespace {

OxaQmlEngine::ComponentCallback callbackWithObject()
{
    return [](QObject *object, OxaQmlController *controller) {
        EngineLog::note(QStringLiteral("callback with %1 and %2")
                                .arg(object->objectName(),
                                     QLatin1String(controller->metaObject()->className())));
    };
}

} // namespace

/// Objects that OxaQmlEngine makes of QML without a view.
class tst_OxaQmlEngine_Components : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportTheirLife_data();
    void reportTheirLife();
    void areMadeLaterAsChildrenOfTheParent();
    void areLoadedTwiceFromTheCache();
    void areReadFromDisk();
    void reportTheErrorOfAFile();
    void reportNothingMoreWhereNoObjectIsMade();
    void warnOfAnEmptySource();
    void areNotMadeAfterTheParentDied();
    void dieWithAParentThatTheyDelete();
    void surviveACallbackThatDeletes_data();
    void surviveACallbackThatDeletes();
};

void tst_OxaQmlEngine_Components::reportTheirLife_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("life");
    QTest::addColumn<QString>("end");
    QTest::newRow("controller") << QStringLiteral("Controlled.qml")
                                << QStringLiteral("Creating % | Initializing % | init Ada | "
                                                  "callback with Controlled and TestController | "
                                                  "Ready %")
                                << QStringLiteral("DestroyedView % | DestroyedController %");
    QTest::newRow("no controller") << QStringLiteral("Plain.qml")
                                   << QStringLiteral("Creating % | Initializing % | Ready %")
                                   << QStringLiteral("DestroyedView %");
    QTest::newRow("two controllers")
            << QStringLiteral("TwoControllers.qml")
            << QStringLiteral("Creating % | Error %: The Qml view should have only one controller!")
            << QStringLiteral("DestroyedView %");
    QTest::newRow("nested controller") << QStringLiteral("NestedController.qml")
                                       << QStringLiteral("Creating % | Initializing % | Ready %")
                                       << QStringLiteral("DestroyedView %");
    QTest::newRow("no item") << QStringLiteral("NoItem.qml")
                             << QStringLiteral("Creating % | Initializing % | Ready %")
                             << QStringLiteral("DestroyedView %");
}

void tst_OxaQmlEngine_Components::reportTheirLife()
{
    QFETCH(const QString, source);
    QFETCH(QString, life);
    QFETCH(QString, end);
    life.replace(QLatin1Char('%'), source);
    end.replace(QLatin1Char('%'), source);
    const EngineFixture fixture;
    auto parent = std::make_unique<QObject>();
    OxaQmlEngine::createQmlComponent(source, parent.get(),
                                     EngineFixture::named(QStringLiteral("Ada")),
                                     callbackWithObject());
    QTRY_COMPARE(EngineLog::text(), life);
    EngineLog::take();
    parent.reset();
    QCOMPARE(EngineLog::take(), end);
}

void tst_OxaQmlEngine_Components::areMadeLaterAsChildrenOfTheParent()
{
    const EngineFixture fixture;
    QObject parent;
    OxaQmlEngine::createQmlComponent(QStringLiteral("dotted.folder/Card.small.qml"), &parent, {},
                                     {});
    QCOMPARE(EngineLog::take(), QStringLiteral("Creating dotted.folder/Card.small.qml"));
    const QPointer<QQmlComponent> component = parent.findChild<QQmlComponent *>();
    QVERIFY(component);
    QCOMPARE(component->parent(), &parent);
    QCOMPARE(component->engine(), fixture.engine());
    QTRY_VERIFY(parent.findChild<QObject *>(QStringLiteral("Card"), Qt::FindDirectChildrenOnly));
    QVERIFY(component);
    QCOMPARE(component->parent(), &parent);
}

void tst_OxaQmlEngine_Components::areLoadedTwiceFromTheCache()
{
    const EngineFixture fixture;
    QObject parent;
    const QString source = QStringLiteral("Plain.qml");
    for (int i = 1; i <= 2; ++i) {
        OxaQmlEngine::createQmlComponent(source, &parent, {}, {});
        QTRY_COMPARE(EngineLog::text(),
                     QStringLiteral("Creating Plain.qml | Initializing Plain.qml | Ready "
                                    "Plain.qml"));
        EngineLog::take();
        QCOMPARE(parent.findChildren<QObject *>(QStringLiteral("Plain")).size(), i);
    }
}

void tst_OxaQmlEngine_Components::areReadFromDisk()
{
    const EngineFixture fixture;
    const DiskFolder folder;
    QVERIFY(folder.write(QStringLiteral("Card.small.qml"), "import QtQml 2.15\nQtObject {}\n"));
    fixture.engine()->setReadQmlFromDisk(true);
    QObject parent;
    OxaQmlEngine::createQmlComponent(folder.sourceOf(QStringLiteral("Card.small.qml")), &parent, {},
                                     {});
    QTRY_VERIFY(parent.findChild<QObject *>(QStringLiteral("Card")));
}

void tst_OxaQmlEngine_Components::reportTheErrorOfAFile()
{
    const EngineFixture fixture;
    QObject parent;
    OxaQmlEngine::createQmlComponent(QStringLiteral("UnknownType.qml"), &parent, {},
                                     callbackWithObject());
    QTRY_COMPARE(EngineLog::text(),
                 QStringLiteral("Creating UnknownType.qml | Error UnknownType.qml: "
                                "qrc:/Qml/UnknownType.qml:5 Missing is not a type\n"));
    QVERIFY(parent.findChild<QQmlComponent *>());
    EngineLog::take();
}

void tst_OxaQmlEngine_Components::reportNothingMoreWhereNoObjectIsMade()
{
    const EngineFixture fixture;
    QObject parent;
    OxaQmlEngine::createQmlComponent(QStringLiteral("Incomplete.qml"), &parent, {},
                                     callbackWithObject());
    const auto *const component = parent.findChild<QQmlComponent *>();
    QTRY_VERIFY(!component->isLoading());
    QCOMPARE(EngineLog::take(), QStringLiteral("Creating Incomplete.qml"));
    QCOMPARE(parent.children().size(), 1); // The component.
}

void tst_OxaQmlEngine_Components::warnOfAnEmptySource()
{
    const EngineFixture fixture;
    QObject parent;
    QTest::ignoreMessage(QtWarningMsg,
                         "Trying to create a Qml view for an empty source! This should never "
                         "happen! Resource:  \"\"");
    OxaQmlEngine::createQmlComponent(QString(), &parent, {}, callbackWithObject());
    QCOMPARE(EngineLog::take(), QString());
    QVERIFY(parent.children().isEmpty());
}

void tst_OxaQmlEngine_Components::areNotMadeAfterTheParentDied()
{
    const EngineFixture fixture;
    auto parent = std::make_unique<QObject>();
    OxaQmlEngine::createQmlComponent(QStringLiteral("Controlled.qml"), parent.get(), {},
                                     callbackWithObject());
    parent.reset();
    QObject other; // Is ready later than the first one would be.
    OxaQmlEngine::createQmlComponent(QStringLiteral("Plain.qml"), &other, {}, {});
    QTRY_VERIFY(EngineLog::text().endsWith(QStringLiteral("Ready Plain.qml")));
    QCOMPARE(EngineLog::take(),
             QStringLiteral("Creating Controlled.qml | Creating Plain.qml | "
                            "Initializing Plain.qml | Ready Plain.qml"));
}

void tst_OxaQmlEngine_Components::dieWithAParentThatTheyDelete()
{
    const EngineFixture fixture;
    const DiskFolder folder;
    QVERIFY(folder.write(QStringLiteral("Client.qml"),
                         "import QtQuick 2.15\nItem { Component.onCompleted: client.trigger() }"));
    fixture.engine()->setReadQmlFromDisk(true);
    const QPointer<QObject> parent = new QObject;
    QAction client;
    fixture.engine()->rootContext()->setContextProperty(QStringLiteral("client"), &client);
    connect(&client, &QAction::triggered, this, [&parent] { delete parent; });
    const QString source = folder.sourceOf(QStringLiteral("Client.qml"));
    OxaQmlEngine::createQmlComponent(source, parent, {}, callbackWithObject());
    QTRY_VERIFY(!parent);
    QCOMPARE(EngineLog::take(), QStringLiteral("Creating ") + source);
}

void tst_OxaQmlEngine_Components::surviveACallbackThatDeletes_data()
{
    QTest::addColumn<QString>("victim");
    for (const char *victim : { "object", "parent", "engine", "controller" })
        QTest::newRow(victim) << QString(QLatin1String(victim));
}

void tst_OxaQmlEngine_Components::surviveACallbackThatDeletes()
{
    QFETCH(const QString, victim);
    const EngineFixture fixture;
    const QPointer<QObject> parent = new QObject;
    QPointer<OxaQmlEngine> engine = fixture.engine();
    bool isCalled = false;
    bool isKept = false;
    QPointer<QQmlComponent> component;
    OxaQmlEngine::createQmlComponent(QStringLiteral("Controlled.qml"), parent, {},
                                     [&](QObject *object, OxaQmlController *controller) {
                                         isCalled = true;
                                         const QMap<QString, QObject *> all {
                                             { QStringLiteral("object"), object },
                                             { QStringLiteral("parent"), parent },
                                             { QStringLiteral("engine"), engine },
                                             { QStringLiteral("controller"), controller }
                                         };
                                         delete all.value(victim);
                                         isKept = !component.isNull(); // Qt still uses it.
                                     });
    component = parent->findChild<QQmlComponent *>();
    QTRY_VERIFY(isCalled);
    const bool isReady = victim == QStringLiteral("controller");
    QCOMPARE(EngineLog::take().endsWith(QStringLiteral("Ready Controlled.qml")), isReady);
    QVERIFY(isKept);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(component.isNull(), victim == QStringLiteral("parent"));
    delete parent;
    QVERIFY(!component);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlEngine_Components)
#include "tst_oxaqmlengine_components.moc"

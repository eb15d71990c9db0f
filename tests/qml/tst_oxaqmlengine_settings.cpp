// SPDX-License-Identifier: Apache-2.0
#include "qml/EngineFixture.h"

#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

const char severalWarning[] =
        "QML2_IMPORT_PATH should have only one path! This should NEVER happen!";
const char missingWarning[] = "QML2_IMPORT_PATH is invalid! This should NEVER happen! isEmpty: "
                              "true isRelative: false";
const char relativeWarning[] = "QML2_IMPORT_PATH is invalid! This should NEVER happen! isEmpty: "
                               "true isRelative: true";
const char noneWarning[] = "QML2_IMPORT_PATH isn't being set! This should NEVER happen!";

/// Sets the variable of import paths, and removes it when it is destroyed.
class ImportPathGuard
{
    Q_DISABLE_COPY_MOVE(ImportPathGuard)

public:
    explicit ImportPathGuard(const QByteArray &value) { qputenv("QML2_IMPORT_PATH", value); }
    ~ImportPathGuard() { qunsetenv("QML2_IMPORT_PATH"); }
};

} // namespace

/// How the application makes its QML engine, and what that can be set to.
class tst_OxaQmlEngine_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { EngineFixture::application()->qmlEngineHook = nullptr; }

    void isMadeOnDemand();
    void isMadeAgainAfterItsDeletion();
    void isNullIfTheHookDeletesIt();
    void isMadeByTheFactory_data();
    void isMadeByTheFactory();
    void showsItsMembers_data();
    void showsItsMembers();
    void registersTheStatusByName();

    void takesItsImportPathFromTheEnvironment_data();
    void takesItsImportPathFromTheEnvironment();

    void readsFromResourcesAndMeasuresNothingAtFirst();
    void measuresViewsThatAreMadeLater();
    void doesNotMeasureTheDevTools();
    void forgetsWhatItReceivesOfItselfWhenItStopsToMeasure();
    void reportsWhereThereAreNoGraphics();
};

void tst_OxaQmlEngine_Settings::isMadeOnDemand()
{
    TestApplication *const app = EngineFixture::application();
    OxaQmlEngine *hooked = nullptr;
    app->qmlEngineHook = [app, &hooked](OxaQmlEngine *engine) {
        QCOMPARE(app->getQmlEngine(), engine);
        hooked = engine;
    };
    QTest::ignoreMessage(QtDebugMsg, "[UILifecycle][Startup] Creating OxaQmlEngine.");
    QTest::ignoreMessage(QtDebugMsg, "[UILifecycle][Startup] Finished creating OxaQmlEngine.");
    const std::unique_ptr<OxaQmlEngine> engine(app->getQmlEngine());
    QVERIFY(engine);
    QCOMPARE(hooked, engine.get());
    QVERIFY(!engine->parent());
    QCOMPARE(app->getQmlEngine(), engine.get());
}

void tst_OxaQmlEngine_Settings::isMadeAgainAfterItsDeletion()
{
    TestApplication *const app = EngineFixture::application();
    int count = 0;
    app->qmlEngineHook = [&count](OxaQmlEngine *) { ++count; };
    delete app->getQmlEngine();
    delete app->getQmlEngine();
    QCOMPARE(count, 2);
}

void tst_OxaQmlEngine_Settings::isNullIfTheHookDeletesIt()
{
    TestApplication *const app = EngineFixture::application();
    app->qmlEngineHook = [](OxaQmlEngine *engine) { delete engine; };
    QVERIFY(!app->getQmlEngine());
    QTest::ignoreMessage(QtWarningMsg,
                         "Unable to create QML view! OxaQmlEngine is not attached to "
                         "OxaApplication! This should never happen!");
    QVERIFY(!OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), nullptr, {}, {}));
}

void tst_OxaQmlEngine_Settings::isMadeByTheFactory_data()
{
    QTest::addColumn<int>("factory");
    QTest::addColumn<QString>("className");
    QTest::newRow("none") << 0 << QStringLiteral("OxaQmlEngine");
    QTest::newRow("a client's") << 1 << QStringLiteral("ClientEngine");
    QTest::newRow("one that makes nothing") << 2 << QStringLiteral("OxaQmlEngine");
}

void tst_OxaQmlEngine_Settings::isMadeByTheFactory()
{
    QFETCH(const int, factory);
    const OxaQmlEngine::Factory factories[] = { nullptr, &ClientEngine::make,
                                                []() -> OxaQmlEngine * { return nullptr; } };
    OxaQmlEngine::setFactory(factories[factory]);
    const std::unique_ptr<OxaQmlEngine> engine(EngineFixture::application()->getQmlEngine());
    OxaQmlEngine::setFactory(nullptr);
    QTEST(QString(QLatin1String(engine->metaObject()->className())), "className");
}

void tst_OxaQmlEngine_Settings::showsItsMembers_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access");
    const auto addSignal = [](const char *signature) {
        QTest::newRow(signature) << QByteArray(signature) << int(QMetaMethod::Signal)
                                 << int(QMetaMethod::Public);
    };
    addSignal("qmlViewStatusChanged(QmlViewStatus,QString,QString)");
    addSignal("qmlViewStatusChanged(QmlViewStatus,QString)");
    addSignal("reloadAllQmlViews()");
    addSignal("finishedRendering(QString,qlonglong)");
    addSignal("sceneGraphCriticalError()");
    QTest::newRow("public slot") << QByteArray("onSceneGraphCriticalError()")
                                 << int(QMetaMethod::Slot) << int(QMetaMethod::Public);
    QTest::newRow("private slot") << QByteArray("reload()") << int(QMetaMethod::Slot)
                                  << int(QMetaMethod::Private);
}

void tst_OxaQmlEngine_Settings::showsItsMembers()
{
    QFETCH(const QByteArray, signature);
    const QMetaObject &metaObject = OxaQmlEngine::staticMetaObject;
    const QMetaMethod method = metaObject.method(metaObject.indexOfMethod(signature.constData()));
    QVERIFY(method.isValid());
    QTEST(int(method.methodType()), "type");
    QTEST(int(method.access()), "access");
}

void tst_OxaQmlEngine_Settings::registersTheStatusByName()
{
    const EngineFixture fixture;
    QCOMPARE(QMetaType::type("QmlViewStatus"), qMetaTypeId<OxaQmlEngine::QmlViewStatus>());
}

void tst_OxaQmlEngine_Settings::takesItsImportPathFromTheEnvironment_data()
{
    using Warnings = QList<QByteArray>;
    QTest::addColumn<QString>("value"); // % is the test's folder
    QTest::addColumn<QList<QByteArray>>("warnings");
    QTest::addColumn<QStringList>("paths"); // empty for Qt's own
    const QString existing = QStringLiteral("%/a");

    QTest::newRow("empty") << QString() << Warnings() << QStringList();
    QTest::newRow("blank") << QStringLiteral(" \t") << Warnings() << QStringList();
    QTest::newRow("separators only") << QStringLiteral("::") << Warnings() << QStringList();
    QTest::newRow("one folder") << existing << Warnings() << QStringList(existing);
    QTest::newRow("one folder in blanks")
            << QStringLiteral(" %/a \n") << Warnings() << QStringList(existing);
    QTest::newRow("non-ASCII name") << QStringLiteral("%/\u00e4 \u6f22") << Warnings()
                                    << QStringList(QStringLiteral("%/\u00e4 \u6f22"));
    QTest::newRow("two folders") << QStringLiteral("%/b:%/a") << Warnings({ severalWarning })
                                 << QStringList({ QStringLiteral("%/b"), existing });
    QTest::newRow("no such folder") << QStringLiteral("%/none")
                                    << Warnings({ missingWarning, noneWarning }) << QStringList();
    QTest::newRow("no such relative folder")
            << QStringLiteral("no/such") << Warnings({ relativeWarning, noneWarning })
            << QStringList();
    QTest::newRow("one of two exists")
            << QStringLiteral("%/none:%/a") << Warnings({ severalWarning, missingWarning })
            << QStringList(existing);
    QTest::newRow("none of two exists")
            << QStringLiteral("%/none:no/such")
            << Warnings({ severalWarning, missingWarning, relativeWarning, noneWarning })
            << QStringList();
}

void tst_OxaQmlEngine_Settings::takesItsImportPathFromTheEnvironment()
{
    QFETCH(QString, value);
    QFETCH(const QList<QByteArray>, warnings);
    QFETCH(QStringList, paths);
    const QTemporaryDir folder;
    for (const QString &name :
         { QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("\u00e4 \u6f22") })
        QVERIFY(QDir(folder.path()).mkdir(name));
    paths.replaceInStrings(QStringLiteral("%"), folder.path());
    value.replace(QLatin1Char('%'), folder.path());

    const ImportPathGuard guard(value.toUtf8());
    if (paths.isEmpty())
        paths = QQmlEngine().importPathList();
    for (const QByteArray &warning : warnings)
        QTest::ignoreMessage(QtWarningMsg, warning.constData());
    QCOMPARE(OxaQmlEngine(nullptr).importPathList(), paths);
}

void tst_OxaQmlEngine_Settings::readsFromResourcesAndMeasuresNothingAtFirst()
{
    const OxaQmlEngine engine;
    QVERIFY(!engine.isReadingQmlFromDisk());
    QVERIFY(!engine.isWatchingPerformance());
}

void tst_OxaQmlEngine_Settings::measuresViewsThatAreMadeLater()
{
    const EngineFixture fixture;
    const QString source = QStringLiteral("Plain.qml");
    QSignalSpy spy(fixture.engine(), &OxaQmlEngine::finishedRendering);
    const std::unique_ptr<OxaQuickView> before(
            OxaQmlEngine::createQmlWindow(source, nullptr, {}, {}));
    fixture.engine()->setPerformanceWatcherEnabled(true);
    QVERIFY(fixture.engine()->isWatchingPerformance());
    QVERIFY(!before->getPerformanceWatcherEnabled());
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(source, nullptr, {}, {}));
    QWidget parent;
    auto *const widget = OxaQmlEngine::createQmlWidget(source, &parent, {}, {}).data();
    QVERIFY(view->getPerformanceWatcherEnabled());
    QVERIFY(widget->getPerformanceWatcherEnabled());

    fixture.engine()->setPerformanceWatcherEnabled(false);
    QVERIFY(view->getPerformanceWatcherEnabled());
    Q_EMIT before->finishedRendering(QStringLiteral("before"), 1);
    Q_EMIT view->finishedRendering(QStringLiteral("view"), 2);
    Q_EMIT widget->finishedRendering(QStringLiteral("widget"), 3);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0), QVariantList({ QStringLiteral("view"), 2 }));
    QCOMPARE(spy.at(1), QVariantList({ QStringLiteral("widget"), 3 }));
}

void tst_OxaQmlEngine_Settings::doesNotMeasureTheDevTools()
{
    const EngineFixture fixture;
    fixture.engine()->setPerformanceWatcherEnabled(true);
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("DevToolsView.qml"), nullptr, {}, {}));
    QVERIFY(!view->getPerformanceWatcherEnabled());
}

void tst_OxaQmlEngine_Settings::forgetsWhatItReceivesOfItselfWhenItStopsToMeasure()
{
    const EngineFixture fixture;
    ClientEngine *const engine = fixture.engine();
    int own = 0;
    int others = 0;
    QObject other;
    connect(engine, &OxaQmlEngine::finishedRendering, engine, [&own] { ++own; });
    connect(engine, &OxaQmlEngine::finishedRendering, &other, [&others] { ++others; });
    engine->setPerformanceWatcherEnabled(false); // Nothing: it did not measure.
    Q_EMIT engine->finishedRendering(QString(), 0);
    engine->setPerformanceWatcherEnabled(true);
    engine->setPerformanceWatcherEnabled(false);
    Q_EMIT engine->finishedRendering(QString(), 0);
    QCOMPARE(own, 1);
    QCOMPARE(others, 2);
}

/// Runs with the software scene graph, and once more with OpenGL, for which there is no display.
void tst_OxaQmlEngine_Settings::reportsWhereThereAreNoGraphics()
{
    const bool areMissing = !qEnvironmentVariableIsSet("QT_QUICK_BACKEND");
    const EngineFixture fixture;
    const std::unique_ptr<OxaQuickView> first(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), nullptr, {}, {}));
    const std::unique_ptr<OxaQuickView> second(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Controlled.qml"), nullptr, {}, {}));
    EngineLog::take();
    for (OxaQuickView *const view : { first.get(), second.get() }) {
        QSignalSpy rendered(view, &QQuickWindow::afterRendering);
        int errors = 0;
        connect(view, &QQuickWindow::sceneGraphError, this, [&errors] { ++errors; });
        if (areMissing)
            ignoreWarningOfQml(
                    QStringLiteral("Critical Scene Graph Error creating:  \"%1\"  with message:")
                            .arg(view->objectName()));
        view->show();
        QTRY_VERIFY(errors > 0 || !rendered.isEmpty());
        QCOMPARE(errors, areMissing ? 1 : 0);
    }
    QCOMPARE(EngineLog::take(), areMissing ? QStringLiteral("sceneGraphCriticalError") : QString());
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlEngine_Settings)
#include "tst_oxaqmlengine_settings.moc"

// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/app/OxaGlobalSignalListener.h>
#include <UiElements/fonts/OxaFontManager.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QMetaType>

namespace {

constexpr auto search = OxaAppSignals::Shortcut::OpenGlobalSearch;

/// An application for one test.
class Application
{
public:
    TestApplication *operator->() { return &m_application; }
    TestApplication &operator*() { return m_application; }

private:
    int m_argumentCount = 1;
    char m_name[5] = "test";
    char *m_arguments[2] = { m_name, nullptr };
    TestApplication m_application { m_argumentCount, m_arguments };
};

} // namespace

/// The application's signal hub and global signal listener. Each test makes its own.
class tst_OxaApplicationHubs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesItsChildrenInOrder();
    void registersTheTypeOfShortcuts();
    void asksTheHubForKeys();
    void answersThroughTheMetaObject();
    void takesItsChildrenWithIt();
    void survivesTheEndOfItsChildren();
    void makesNoQmlEngineToDeleteIt();
    void deletesItsQmlEngineLater();
};

void tst_OxaApplicationHubs::makesItsChildrenInOrder()
{
    Application application;
    QStringList made;
    for (const QObject *child : application->children()) {
        const QString name = QLatin1String(child->metaObject()->className());
        if (name.startsWith(QLatin1String("Oxa")))
            made += name;
    }
    QCOMPARE(made.join(QLatin1String(" | ")),
             QStringLiteral("OxaAppSignals | OxaFontManager | OxaGlobalSignalListener"));
}

void tst_OxaApplicationHubs::registersTheTypeOfShortcuts()
{
    const Application application;
    QVERIFY(QMetaType::type("OxaAppSignals::Shortcut") != QMetaType::UnknownType);
}

void tst_OxaApplicationHubs::asksTheHubForKeys()
{
    Application application;
    QTest::ignoreMessage(QtWarningMsg,
                         "ShortcutId ( 17 ) is not registered! This should never happen");
    QCOMPARE(application->getKeySequence(search), QKeySequence());

    QWidget window;
    application->getAppSignals()->registerShortcuts(&window, OxaShortcut::General);
    QCOMPARE(application->getKeySequence(search), QKeySequence(Qt::CTRL | Qt::Key_F));
}

void tst_OxaApplicationHubs::answersThroughTheMetaObject()
{
    Application application;
    QWidget window;
    application->getAppSignals()->registerShortcuts(&window, OxaShortcut::General);
    QKeySequence keys;
    QVERIFY(QMetaObject::invokeMethod(&*application, "getKeySequence",
                                      Q_RETURN_ARG(QKeySequence, keys),
                                      Q_ARG(OxaAppSignals::Shortcut, search)));
    QCOMPARE(keys, QKeySequence(Qt::CTRL | Qt::Key_F));
}

void tst_OxaApplicationHubs::takesItsChildrenWithIt()
{
    auto application = std::make_unique<Application>();
    const QPointer<OxaAppSignals> hub = (*application)->getAppSignals();
    const QPointer<OxaGlobalSignalListener> listener = (*application)->getGlobalSignalListener();
    const QPointer<OxaFontManager> fontManager = (*application)->getOxaFontManager();
    QVERIFY(hub && listener && fontManager);
    application.reset();
    QVERIFY(!hub);
    QVERIFY(!fontManager);
    QVERIFY(!listener);
}

void tst_OxaApplicationHubs::survivesTheEndOfItsChildren()
{
    Application application;
    delete application->getAppSignals();
    delete application->getGlobalSignalListener();
    delete application->getOxaFontManager();
    QVERIFY(!application->getAppSignals());
    QVERIFY(!application->getOxaFontManager());
    QVERIFY(!application->getGlobalSignalListener());
    QVERIFY(!OxaAppSignals::get());
    QVERIFY(!OxaGlobalSignalListener::get());
    QVERIFY(!OxaFontManager::get());
    QCOMPARE(application->getKeySequence(search), QKeySequence());

    OxaWidget widget;
    widget.setFontToken(OxaFont::Token::Title);
    widget.setFontType(FontManagerEnum::FontType::MessagingView);
    QCOMPARE(widget.font().pixelSize(), 20);
}

void tst_OxaApplicationHubs::makesNoQmlEngineToDeleteIt()
{
    static int count;
    OxaQmlEngine::setFactory([]() -> OxaQmlEngine * {
        ++count;
        return nullptr;
    });
    {
        const Application application;
    }
    OxaQmlEngine::setFactory(nullptr);
    QCOMPARE(count, 0);
}

void tst_OxaApplicationHubs::deletesItsQmlEngineLater()
{
    static QPointer<OxaQmlEngine> engine;
    static bool wasAlive;
    {
        Application application;
        engine = application->getQmlEngine();
        // Runs between the destructors of this application and of Qt's.
        qAddPostRoutine([] {
            wasAlive = !engine.isNull();
            QCoreApplication::sendPostedEvents(engine, QEvent::DeferredDelete);
        });
    }
    QVERIFY(wasAlive);
    QVERIFY(!engine);
}

UIELEMENTS_APPLESS_TEST_MAIN(tst_OxaApplicationHubs)
#include "tst_oxaapplication_hubs.moc"

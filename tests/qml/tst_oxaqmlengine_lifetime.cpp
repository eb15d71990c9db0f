// SPDX-License-Identifier: Apache-2.0
#include "qml/DiskFolder.h"
#include "qml/EngineFixture.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QQmlComponent>
#include <QQuickItem>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QString source = QStringLiteral("Controlled.qml");

/// A server of an import that answers when it is told to.
class SlowServer
{
public:
    SlowServer() { m_server.listen(QHostAddress::LocalHost); }

    /// Returns a file that needs the import.
    QByteArray viewWithImport() const
    {
        return "import QtQuick 2.15\nimport Tests 1.0\nimport \"http://127.0.0.1:"
                + QByteArray::number(m_server.serverPort())
                + "/slow\"\nItem { TestController {} }\n";
    }

    /// Answers all requests so far, and those that follow from it.
    void answer()
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { reply(); });
        reply();
    }

    bool isAsked() const { return m_server.hasPendingConnections(); }

private:
    void reply()
    {
        while (QTcpSocket *const socket = m_server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] { send(socket); });
            if (socket->bytesAvailable() > 0)
                send(socket);
        }
    }

    static void send(QTcpSocket *socket)
    {
        socket->readAll();
        const QByteArray qmldir = "Piece 1.0 Piece.qml\n";
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(qmldir.size())
                      + "\r\nConnection: close\r\n\r\n" + qmldir);
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
};

} // namespace

/// What may be deleted while views are made.
class tst_OxaQmlEngine_Lifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesDeletionWhileAViewIsMade_data();
    void survivesDeletionWhileAViewIsMade();
    void survivesDeletionOfTheParentWhileAViewIsMade_data();
    void survivesDeletionOfTheParentWhileAViewIsMade();
    void survivesDeletionOfTheEngineBeforeItsViews();
    void reportsASlowFileOnceItIsReady();
    void survivesDeletionByTheCallbackOfASlowFile_data();
    void survivesDeletionByTheCallbackOfASlowFile();
};

void tst_OxaQmlEngine_Lifetime::survivesDeletionWhileAViewIsMade_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("victim");
    for (const char *kind : { "window", "dialog", "popup", "widget" }) {
        for (const char *moment : { "Creating", "Initializing", "callback", "Ready" }) {
            for (const char *victim : { "view", "engine" }) {
                if (qstrcmp(moment, "Creating") != 0 || qstrcmp(victim, "view") != 0)
                    QTest::addRow("%s of %s at %s", victim, kind, moment)
                            << QString(QLatin1String(kind)) << QString(QLatin1String(moment))
                            << QString(QLatin1String(victim));
            }
        }
    }
}

void tst_OxaQmlEngine_Lifetime::survivesDeletionWhileAViewIsMade()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, moment);
    QFETCH(const QString, victim);
    const EngineFixture fixture;
    const QPointer<OxaQmlEngine> engine = fixture.engine();
    QWidget parent;
    // The view is not handed out yet: it is the parent of the root item, or the only widget.
    const auto findView = [&parent]() -> QObject * {
        if (auto *const widget = parent.findChild<OxaQuickWidget *>())
            return widget;
        for (QWindow *const window : QGuiApplication::allWindows()) {
            if (qobject_cast<OxaQuickView *>(window))
                return window;
        }
        return nullptr;
    };
    const auto strike = [&](const QString &now) {
        if (now == moment)
            delete (victim == QStringLiteral("view") ? findView() : engine.data());
    };
    connect(engine, &OxaQmlEngine::qmlViewStatusChanged, this,
            [&strike](OxaQmlEngine::QmlViewStatus status) {
                strike(QLatin1String(QMetaEnum::fromType<OxaQmlEngine::QmlViewStatus>().valueToKey(
                        static_cast<int>(status))));
            });
    const auto callback = [&strike](OxaQmlController *) { strike(QStringLiteral("callback")); };

    QPointer<QObject> view;
    if (kind == QStringLiteral("window"))
        view = OxaQmlEngine::createQmlWindow(source, nullptr, {}, callback);
    else if (kind == QStringLiteral("dialog"))
        view = OxaQmlEngine::createQmlDialog(source, nullptr, {}, callback, true);
    else if (kind == QStringLiteral("popup"))
        view = OxaQmlEngine::createQmlPopup(source, nullptr, {}, callback, true);
    else
        view = OxaQmlEngine::createQmlWidget(source, &parent, {}, callback);
    QCOMPARE(view.isNull(),
             victim == QStringLiteral("view") || moment == QStringLiteral("Creating"));
    QCOMPARE(engine.isNull(), victim == QStringLiteral("engine"));
    delete view;
}

void tst_OxaQmlEngine_Lifetime::survivesDeletionOfTheParentWhileAViewIsMade_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isMade");
    QTest::newRow("window") << QStringLiteral("window") << false;
    QTest::newRow("dialog") << QStringLiteral("dialog") << true;
    QTest::newRow("popup") << QStringLiteral("popup") << true;
    QTest::newRow("widget") << QStringLiteral("widget") << false;
    QTest::newRow("component") << QStringLiteral("component") << false;
}

void tst_OxaQmlEngine_Lifetime::survivesDeletionOfTheParentWhileAViewIsMade()
{
    QFETCH(const QString, kind);
    const EngineFixture fixture;
    const QPointer<QWindow> window = new QWindow;
    const QPointer<QWidget> widget = new QWidget;
    connect(fixture.engine(), &OxaQmlEngine::qmlViewStatusChanged, this,
            [&window, &widget](OxaQmlEngine::QmlViewStatus status) {
                if (status != OxaQmlEngine::QmlViewStatus::Creating)
                    return;
                delete window;
                delete widget;
            });
    QPointer<QObject> view;
    if (kind == QStringLiteral("window"))
        view = OxaQmlEngine::createQmlWindow(source, window, {}, {});
    else if (kind == QStringLiteral("dialog"))
        view = OxaQmlEngine::createQmlDialog(source, window, {}, {}, true);
    else if (kind == QStringLiteral("popup"))
        view = OxaQmlEngine::createQmlPopup(source, window, {}, {}, true);
    else if (kind == QStringLiteral("widget"))
        view = OxaQmlEngine::createQmlWidget(source, widget, {}, {});
    else
        OxaQmlEngine::createQmlComponent(source, widget, {}, {});
    QTEST(!view.isNull(), "isMade");
    delete view;
    QVERIFY(!window && !widget);
}

void tst_OxaQmlEngine_Lifetime::survivesDeletionOfTheEngineBeforeItsViews()
{
    const EngineFixture fixture;
    QWidget parent;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(source, nullptr, {}, {}));
    OxaQmlEngine::createQmlWidget(source, &parent, {}, {});
    // It does not load any more.
    OxaQmlEngine::createQmlComponent(QStringLiteral("Plain.qml"), &parent, {}, {});
    EngineLog::take();
    delete fixture.engine();
    QCOMPARE(EngineLog::take(), QString());
    Q_EMIT EngineFixture::application()->getAppSignals()->reloadAllQmlViews();
    Q_EMIT view->sceneGraphError(QQuickWindow::ContextNotAvailable, QString());
}

void tst_OxaQmlEngine_Lifetime::reportsASlowFileOnceItIsReady()
{
    const EngineFixture fixture;
    SlowServer server;
    const DiskFolder folder;
    QVERIFY(folder.write(QStringLiteral("Slow.qml"), server.viewWithImport()));
    fixture.engine()->setReadQmlFromDisk(true);
    const QString slow = folder.sourceOf(QStringLiteral("Slow.qml"));
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(slow, nullptr,
                                          EngineFixture::named(QStringLiteral("Ada")),
                                          EngineFixture::callback()));
    QCOMPARE(view->status(), QQuickView::Loading);
    QTRY_VERIFY(server.isAsked());
    QCOMPARE(EngineLog::take(), QStringLiteral("Creating ") + slow);
    server.answer();
    QTRY_COMPARE(EngineLog::text(),
                 QStringLiteral("Initializing % | init Ada | callback | Ready %")
                         .replace(QLatin1Char('%'), slow));
}

void tst_OxaQmlEngine_Lifetime::survivesDeletionByTheCallbackOfASlowFile_data()
{
    QTest::addColumn<bool>("isWidget");
    QTest::addColumn<bool>("isEngine");
    QTest::newRow("window") << false << false;
    QTest::newRow("widget") << true << false;
    QTest::newRow("engine of a window") << false << true;
    QTest::newRow("engine of a widget") << true << true;
}

void tst_OxaQmlEngine_Lifetime::survivesDeletionByTheCallbackOfASlowFile()
{
    QFETCH(const bool, isWidget);
    QFETCH(const bool, isEngine);
    const EngineFixture fixture;
    SlowServer server;
    const DiskFolder folder;
    QVERIFY(folder.write(QStringLiteral("Slow.qml"), server.viewWithImport()));
    fixture.engine()->setReadQmlFromDisk(true);
    const QString slow = folder.sourceOf(QStringLiteral("Slow.qml"));
    QWidget parent;
    QPointer<QObject> view;
    QPointer<QObject> engine = fixture.engine();
    bool isCalled = false;
    bool isKept = false;
    QPointer<QQmlComponent> component;
    const auto callback = [&, isEngine](OxaQmlController *) {
        isCalled = true;
        delete (isEngine ? engine : view);
        isKept = !component.isNull(); // Qt still uses it.
    };
    if (isWidget)
        view = OxaQmlEngine::createQmlWidget(slow, &parent, {}, callback);
    else
        view = OxaQmlEngine::createQmlWindow(slow, nullptr, {}, callback);
    QVERIFY(view);
    component = view->findChild<QQmlComponent *>();
    server.answer();
    QTRY_VERIFY(isCalled);
    QVERIFY(isEngine ? !engine : !view);
    QVERIFY(!EngineLog::take().contains(QStringLiteral("Ready")));
    QVERIFY(isKept);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete view;
    QVERIFY(!component);
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlEngine_Lifetime)
#include "tst_oxaqmlengine_lifetime.moc"

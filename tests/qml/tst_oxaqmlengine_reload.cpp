// SPDX-License-Identifier: Apache-2.0
#include "qml/DiskFolder.h"
#include "qml/EngineFixture.h"

#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QQuickItem>

namespace {

const QString viewFile = QStringLiteral("View.qml");

QByteArray viewOfHeight(int height)
{
    return "import QtQuick 2.15\nimport Tests 1.0\nItem {\n    implicitHeight: "
            + QByteArray::number(height) + "\n    property Part part: Part {}\n"
            + "    TestController {}\n}\n";
}

QByteArray partCalled(const QByteArray &name)
{
    return "import QtQml 2.15\nQtObject { property string name: \"" + name + "\" }\n";
}

QString partOf(const QQuickItem *root)
{
    return root->property("part").value<QObject *>()->property("name").toString();
}

void reloadAll() { Q_EMIT EngineFixture::application()->getAppSignals()->reloadAllQmlViews(); }

/// Announces what the debug stream says when the view of \a url is loaded again.
void expectReload(const QUrl &url)
{
    QString text;
    QDebug(&text) << "Reloading QML view:" << url;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(text.trimmed()));
}

/// A folder with a view and a part of it, and an engine that reads them from disk.
struct DiskFixture : EngineFixture
{
    DiskFixture()
    {
        engine()->setReadQmlFromDisk(true);
        isComplete = folder.write(viewFile, viewOfHeight(10))
                && folder.write(QStringLiteral("Part.qml"), partCalled("first"));
    }

    QString source() const { return folder.sourceOf(viewFile); }

    DiskFolder folder;
    bool isComplete = false;
};

} // namespace

/// Views that are read from disk, and loaded again there.
class tst_OxaQmlEngine_Reload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsFromDisk();
    void showsChangedFiles();
    void showsChangedFilesInAWidget();
    void initialisesTheNewController();
    void reportsAFileThatBecameWrongAndGoodAgain();
    void leavesViewsFromResourcesAlone();
    void leavesAViewWithoutSourceAlone();
    void leavesTheDevToolsAlone();
    void leavesAViewAloneThatIsNamedLikeTheDevTools();
    void survivesACallbackThatDeletesViewsWhileTheyReload();

private:
    static QString reloaded(const QString &source)
    {
        return QStringLiteral("DestroyedController % | Initializing % | init Ada | callback | "
                              "Ready %")
                .replace(QLatin1Char('%'), source);
    }
};

void tst_OxaQmlEngine_Reload::readsFromDisk()
{
    const DiskFixture fixture;
    QVERIFY(fixture.isComplete);
    QVERIFY(fixture.engine()->isReadingQmlFromDisk());
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(fixture.source(), nullptr,
                                          EngineFixture::named(QStringLiteral("Ada")),
                                          EngineFixture::callback()));
    QCOMPARE(view->source(), fixture.folder.urlOf(viewFile));
    QCOMPARE(view->status(), QQuickView::Ready);
    QVERIFY(view->source().toString(QUrl::FullyEncoded).startsWith(QStringLiteral("file:///")));
    QCOMPARE(view->objectName(), QStringLiteral("View"));
    QCOMPARE(EngineLog::take(),
             QStringLiteral("Creating % | Initializing % | init Ada | callback | Ready %")
                     .replace(QLatin1Char('%'), fixture.source()));
}

void tst_OxaQmlEngine_Reload::showsChangedFiles()
{
    const DiskFixture fixture;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(fixture.source(), nullptr, {}, {}));
    QCOMPARE(view->rootObject()->implicitHeight(), 10.0);
    QCOMPARE(partOf(view->rootObject()), QStringLiteral("first"));

    QVERIFY(fixture.folder.write(viewFile, viewOfHeight(20)));
    QVERIFY(fixture.folder.write(QStringLiteral("Part.qml"), partCalled("second")));
    QTest::ignoreMessage(QtDebugMsg, "Reloading OxaQmlEngine");
    expectReload(fixture.folder.urlOf(viewFile));
    reloadAll();
    QCOMPARE(view->rootObject()->implicitHeight(), 20.0);
    QCOMPARE(partOf(view->rootObject()), QStringLiteral("second"));
}

void tst_OxaQmlEngine_Reload::showsChangedFilesInAWidget()
{
    const DiskFixture fixture;
    QWidget parent;
    const auto *const widget = OxaQmlEngine::createQmlWidget(fixture.source(), &parent, {}, {})
                                       .data();
    QVERIFY(fixture.folder.write(viewFile, viewOfHeight(20)));
    expectReload(fixture.folder.urlOf(viewFile));
    reloadAll();
    QCOMPARE(widget->rootObject()->implicitHeight(), 20.0);
}

void tst_OxaQmlEngine_Reload::initialisesTheNewController()
{
    const DiskFixture fixture;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(fixture.source(), nullptr,
                                          EngineFixture::named(QStringLiteral("Ada")),
                                          EngineFixture::callback()));
    EngineLog::take();
    reloadAll();
    QCOMPARE(EngineLog::take(), reloaded(fixture.source()));
}

void tst_OxaQmlEngine_Reload::reportsAFileThatBecameWrongAndGoodAgain()
{
    const DiskFixture fixture;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(fixture.source(), nullptr,
                                          EngineFixture::named(QStringLiteral("Ada")),
                                          EngineFixture::callback()));
    EngineLog::take();
    QVERIFY(fixture.folder.write(viewFile, "import QtQuick 2.15\nMissing {}\n"));
    ignoreWarningOfQml(fixture.folder.urlOf(viewFile).toString()
                       + QStringLiteral(":2:1: Missing is not a type"));
    reloadAll();
    QCOMPARE(EngineLog::take(),
             QStringLiteral("DestroyedController % | Error %: Unable to load the qml view!")
                     .replace(QLatin1Char('%'), fixture.source()));
    QVERIFY(fixture.folder.write(viewFile, viewOfHeight(30)));
    reloadAll();
    QCOMPARE(EngineLog::take(),
             QStringLiteral("Initializing % | init Ada | callback | Ready %")
                     .replace(QLatin1Char('%'), fixture.source()));
    QCOMPARE(view->rootObject()->implicitHeight(), 30.0);
}

void tst_OxaQmlEngine_Reload::leavesViewsFromResourcesAlone()
{
    const EngineFixture fixture;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Controlled.qml"), nullptr, {}, {}));
    const QPointer<QQuickItem> root = view->rootObject();
    EngineLog::take();
    QTest::ignoreMessage(QtDebugMsg, "Reloading OxaQmlEngine");
    QTest::ignoreMessage(
            QtWarningMsg,
            "Reloading views from QRC is not supported. QUrl(\"qrc:/Qml/Controlled.qml\")");
    reloadAll();
    QVERIFY(root);
    QCOMPARE(EngineLog::take(), QString());
}

void tst_OxaQmlEngine_Reload::leavesAViewWithoutSourceAlone()
{
    const EngineFixture fixture;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), nullptr, {}, {}));
    view->setSource(QUrl());
    QTest::ignoreMessage(QtWarningMsg, "Trying to reload an empty QML view");
    reloadAll();
}

void tst_OxaQmlEngine_Reload::leavesTheDevToolsAlone()
{
    const DiskFixture fixture;
    const QString name = QStringLiteral("DevToolsView.qml");
    QVERIFY(fixture.folder.write(name, viewOfHeight(10)));
    std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(fixture.folder.sourceOf(name), nullptr,
                                          EngineFixture::named(QStringLiteral("Ada")),
                                          EngineFixture::callback()));
    const QString source = fixture.folder.sourceOf(name);
    QCOMPARE(EngineLog::take(),
             QStringLiteral("Creating % | Initializing % | init Ada | callback | Ready %")
                     .replace(QLatin1Char('%'), source));
    const QPointer<QQuickItem> root = view->rootObject();
    reloadAll();
    QVERIFY(root);
    view.reset();
    QCOMPARE(EngineLog::take(),
             QStringLiteral("DestroyedController % | DestroyedView %")
                     .replace(QLatin1Char('%'), source));
}

void tst_OxaQmlEngine_Reload::leavesAViewAloneThatIsNamedLikeTheDevTools()
{
    const DiskFixture fixture;
    const std::unique_ptr<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(fixture.source(), nullptr, {}, {}));
    const QPointer<QQuickItem> root = view->rootObject();
    view->setObjectName(QStringLiteral("DevToolsView"));
    reloadAll();
    QVERIFY(root);
    view->setSource(QUrl(QStringLiteral("qrc:/Qml/Plain.qml"))); // Which warns all the same.
    QTest::ignoreMessage(QtWarningMsg,
                         "Reloading views from QRC is not supported. QUrl(\"qrc:/Qml/Plain.qml\")");
    reloadAll();
}

void tst_OxaQmlEngine_Reload::survivesACallbackThatDeletesViewsWhileTheyReload()
{
    const DiskFixture fixture;
    QList<QPointer<OxaQuickView>> views;
    bool isReloading = false;
    const auto deleteAll = [&views, &isReloading](OxaQmlController *) {
        if (!isReloading)
            return;
        for (const QPointer<OxaQuickView> &view : qAsConst(views))
            delete view;
    };
    for (int i = 0; i < 3; ++i)
        views.append(OxaQmlEngine::createQmlWindow(fixture.source(), nullptr, {}, deleteAll));
    EngineLog::take();
    isReloading = true;
    reloadAll();
    QVERIFY(!views.at(0) && !views.at(1) && !views.at(2));
    QVERIFY(!EngineLog::take().contains(QStringLiteral("Ready")));
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlEngine_Reload)
#include "tst_oxaqmlengine_reload.moc"

// SPDX-License-Identifier: Apache-2.0
#include "qml/EngineFixture.h"

#include <UiElements/qml/OxaPopupQuickView.h>
#include <UiElements/qml/OxaQuickView.h>
#include <UiElements/qml/OxaQuickWidget.h>

#include <QMetaEnum>
#include <QQuickItem>
#include <QSignalSpy>

namespace {

using Callback = OxaQmlEngine::ControllerCallback;

/// Makes a view by one of the engine's functions. A view or widget of the function's class results.
using ViewMaker = QPointer<QObject> (*)(const QString &source, const QVariantMap &properties,
                                        const Callback &callback);

QPointer<QObject> makeWindow(const QString &source, const QVariantMap &properties,
                             const Callback &callback)
{
    return OxaQmlEngine::createQmlWindow(source, nullptr, properties, callback).data();
}

QPointer<QObject> makeDialog(const QString &source, const QVariantMap &properties,
                             const Callback &callback)
{
    return OxaQmlEngine::createQmlDialog(source, nullptr, properties, callback, true).data();
}

QPointer<QObject> makePopup(const QString &source, const QVariantMap &properties,
                            const Callback &callback)
{
    return OxaQmlEngine::createQmlPopup(source, nullptr, properties, callback, true).data();
}

QPointer<QObject> makeControllerWindow(const QString &source, const QVariantMap &properties,
                                       const Callback &callback)
{
    return OxaQmlEngine::createControllerQmlWindow(source, nullptr, properties, callback).data();
}

QPointer<QObject> makeControllerDialog(const QString &source, const QVariantMap &properties,
                                       const Callback &callback)
{
    return OxaQmlEngine::createControllerQmlDialog(source, nullptr, properties, callback).data();
}

QPointer<QObject> makeWidget(const QString &source, const QVariantMap &properties,
                             const Callback &callback)
{
    QTest::ignoreMessage(QtWarningMsg,
                         "OxaQuickWidget should be created with a valid parent! Use "
                         "OxaQmlEngine::createQmlWindow to create a popout window!");
    return OxaQmlEngine::createQmlWidget(source, nullptr, properties, callback).data();
}

/// Sets all options of the view whose QML has loaded.
void setOptions(OxaQmlController *controller)
{
    auto *const window = static_cast<QQuickItem *>(controller->parent())->window();
    qobject_cast<OxaQuickView *>(window)->setViewOptions({ true, true, false, true, window });
}

QQuickItem *rootOf(const QObject *view)
{
    const auto *window = qobject_cast<const QQuickView *>(view);
    const auto *widget = qobject_cast<const QQuickWidget *>(view);
    return window ? window->rootObject() : widget ? widget->rootObject() : nullptr;
}

} // namespace

Q_DECLARE_METATYPE(ViewMaker)

/// The views that OxaQmlEngine makes, and what it says of them.
class tst_OxaQmlEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsTheLifeOfAView_data();
    void reportsTheLifeOfAView();
    void warnsOfAnEmptySource_data() { addMakers(); }
    void warnsOfAnEmptySource();
    void namesAViewByItsFile_data();
    void namesAViewByItsFile();
    void sizesTheRootItemToTheView();
    void rendersTextAsQtDoes();

    void makesAWidgetInItsParent();
    void makesAWindowOfItsParent();
    void makesADialogAboveItsParent();
    void givesADialogTheSizeOfItsRootItemIfAskedTo();
    void givesADialogDefaultOptions();
    void makesAPopup_data();
    void makesAPopup();
    void findsTheOutermostWindowOfAnOwner_data();
    void findsTheOutermostWindowOfAnOwner();

    void reportsOnlyTheFirstMissingContext();
    void ignoresOtherErrorsOfTheSceneGraph();
    void reportsAViewWithoutRootObject();
    void saysNothingWhileAViewLoads();

private:
    static void addMakers();
};

void tst_OxaQmlEngine::addMakers()
{
    QTest::addColumn<ViewMaker>("make");
    QTest::newRow("window") << &makeWindow;
    QTest::newRow("dialog") << &makeDialog;
    QTest::newRow("popup") << &makePopup;
    QTest::newRow("controller's window") << &makeControllerWindow;
    QTest::newRow("controller's dialog") << &makeControllerDialog;
    QTest::newRow("widget") << &makeWidget;
}

void tst_OxaQmlEngine::reportsTheLifeOfAView_data()
{
    QTest::addColumn<ViewMaker>("make");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("warning"); // Qt's own, for files with errors
    QTest::addColumn<QString>("life");
    QTest::addColumn<QString>("end");

    const struct
    {
        const char *name;
        ViewMaker make;
    } makers[] = { { "window", &makeWindow },
                   { "dialog", &makeDialog },
                   { "popup", &makePopup },
                   { "controller's window", &makeControllerWindow },
                   { "controller's dialog", &makeControllerDialog },
                   { "widget", &makeWidget } };
    const struct
    {
        const char *source;
        const char *warning;
        const char *life;
        const char *end;
    } files[] = {
        { "Controlled.qml", "", "Creating % | Initializing % | init Ada | callback | Ready %",
          "DestroyedController % | DestroyedView %" },
        { "Plain.qml", "", "Creating % | Initializing % | Ready %", "DestroyedView %" },
        { "NestedController.qml", "", "Creating % | Initializing % | Ready %", "DestroyedView %" },
        { "TwoControllers.qml", "",
          "Creating % | Error %: The Qml view should have only one controller!",
          "DestroyedView %" },
        { "UnknownType.qml", "qrc:/Qml/UnknownType.qml:5:5: Missing is not a type",
          "Creating % | Error %: Unable to load the qml view!", "DestroyedView %" },
        { "MissingImport.qml",
          "qrc:/Qml/MissingImport.qml:3:1: module \"Missing\" is not installed",
          "Creating % | Error %: Unable to load the qml view!", "DestroyedView %" },
        { "NoSuchFile.qml", "qrc:/Qml/NoSuchFile.qml: No such file or directory",
          "Creating % | Error %: Unable to load the qml view!", "DestroyedView %" },
        { "50%20 gr\u00f6\u00dfer.qml", "",
          "Creating % | Initializing % | init Ada | callback | Ready %",
          "DestroyedController % | DestroyedView %" },
    };
    for (const auto &maker : makers) {
        for (const auto &file : files) {
            const QString source = QString::fromUtf8(file.source);
            QTest::addRow("%s of %s", maker.name, file.source)
                    << maker.make << source << QString(QLatin1String(file.warning))
                    << QString(QLatin1String(file.life)).replace(QLatin1String("%"), source)
                    << QString(QLatin1String(file.end)).replace(QLatin1String("%"), source);
        }
    }
}

void tst_OxaQmlEngine::reportsTheLifeOfAView()
{
    QFETCH(const ViewMaker, make);
    QFETCH(const QString, source);
    QFETCH(const QString, warning);
    QFETCH(const QString, life);
    const EngineFixture fixture;
    if (!warning.isEmpty())
        ignoreWarningOfQml(warning);

    const QPointer<QObject> view = make(source, EngineFixture::named(QStringLiteral("Ada")),
                                        EngineFixture::callback());
    QVERIFY(view);
    QCOMPARE(EngineLog::take(), life);
    QCOMPARE(rootOf(view) != nullptr, warning.isEmpty());
    delete view;
    QTEST(EngineLog::take(), "end");
}

void tst_OxaQmlEngine::warnsOfAnEmptySource()
{
    QFETCH(const ViewMaker, make);
    const EngineFixture fixture;
    QTest::ignoreMessage(
            QtWarningMsg,
            "Trying to create a Qml view for an empty source! This should never happen!");
    QVERIFY(!make(QString(), {}, EngineFixture::callback()));
    QCOMPARE(EngineLog::take(), QString());
}

void tst_OxaQmlEngine::namesAViewByItsFile_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");

    QTest::newRow("file") << QStringLiteral("Controlled.qml") << QStringLiteral("Controlled");
    QTest::newRow("dots in folder and file")
            << QStringLiteral("dotted.folder/Card.small.qml") << QStringLiteral("Card");
}

void tst_OxaQmlEngine::namesAViewByItsFile()
{
    QFETCH(const QString, source);
    const EngineFixture fixture;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(source, nullptr, {}, EngineFixture::callback()));
    QTEST(view->objectName(), "name");
    QVERIFY(EngineLog::take().endsWith(QStringLiteral("callback | Ready ") + source));
}

void tst_OxaQmlEngine::sizesTheRootItemToTheView()
{
    const EngineFixture fixture;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Controlled.qml"), nullptr, {}, {}));
    QCOMPARE(view->resizeMode(), QQuickView::SizeRootObjectToView);
    QWidget parent;
    const auto *widget =
            OxaQmlEngine::createQmlWidget(QStringLiteral("Controlled.qml"), &parent, {}, {}).data();
    QCOMPARE(widget->resizeMode(), QQuickWidget::SizeRootObjectToView);
}

void tst_OxaQmlEngine::rendersTextAsQtDoes()
{
    const EngineFixture fixture;
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), nullptr, {}, {}));
    QCOMPARE(QQuickWindow::textRenderType(), QQuickWindow::QtTextRendering);
}

void tst_OxaQmlEngine::makesAWidgetInItsParent()
{
    const EngineFixture fixture;
    auto parent = std::make_unique<QWidget>();
    const QPointer<OxaQuickWidget> widget = OxaQmlEngine::createQmlWidget(QStringLiteral(
                                                                                  "Plain.qml"),
                                                                          parent.get(), {}, {});
    QCOMPARE(widget->parentWidget(), parent.get());
    QCOMPARE(widget->engine(), fixture.engine());
    parent.reset();
    QVERIFY(!widget);
}

void tst_OxaQmlEngine::makesAWindowOfItsParent()
{
    const EngineFixture fixture;
    QWindow parent;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), &parent, {}, {}));
    QCOMPARE(view->parent(), &parent);
    QCOMPARE(view->engine(), fixture.engine());
    QVERIFY(!view->isVisible());
    QVERIFY(view->getViewOptions().deleteOnClose);
}

void tst_OxaQmlEngine::makesADialogAboveItsParent()
{
    const EngineFixture fixture;
    QWindow parent;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlDialog(QStringLiteral("Controlled.qml"), &parent, {}, {},
                                          false));
    QVERIFY(!view->parent());
    QCOMPARE(view->transientParent(), &parent);
    QCOMPARE(view->type(), Qt::Dialog);
    QVERIFY(!view->isVisible());
}

void tst_OxaQmlEngine::givesADialogTheSizeOfItsRootItemIfAskedTo()
{
    const EngineFixture fixture;
    const QString source = QStringLiteral("Controlled.qml");
    const QScopedPointer<OxaQuickView> fixed(
            OxaQmlEngine::createQmlDialog(source, nullptr, {}, {}, true));
    QCOMPARE(fixed->minimumSize(), QSize(120, 80));
    QCOMPARE(fixed->maximumSize(), QSize(120, 80));
    QCOMPARE(fixed->size(), QSize(120, 80));
    const QScopedPointer<OxaQuickView> resizable(
            OxaQmlEngine::createQmlDialog(source, nullptr, {}, {}, false));
    QCOMPARE(resizable->minimumSize(), QSize(0, 0));
}

void tst_OxaQmlEngine::givesADialogDefaultOptions()
{
    const EngineFixture fixture;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlDialog(QStringLiteral("Controlled.qml"), nullptr, {},
                                          &setOptions, false));
    const ViewOptions options = view->getViewOptions();
    QVERIFY(!options.deferShow && !options.hideOnDeactivate && options.deleteOnClose
            && !options.focusContentOnActivate && !options.watchedWindow);
}

void tst_OxaQmlEngine::makesAPopup_data()
{
    QTest::addColumn<bool>("isDialog");
    QTest::addColumn<Qt::WindowType>("type");
    QTest::newRow("popup") << false << Qt::Popup;
    QTest::newRow("popup with the bits of a dialog") << true << Qt::Tool;
}

void tst_OxaQmlEngine::makesAPopup()
{
    QFETCH(const bool, isDialog);
    const EngineFixture fixture;
    QWindow parent;
    const QScopedPointer<OxaPopupQuickView> view(
            OxaQmlEngine::createQmlPopup(QStringLiteral("Controlled.qml"), &parent, {}, &setOptions,
                                         isDialog));
    QTEST(view->type(), "type");
    QVERIFY(view->flags() & Qt::FramelessWindowHint);
    QVERIFY(!view->parent());
    QCOMPARE(view->screen(), parent.screen());
    QCOMPARE(view->minimumSize(), QSize(120, 80));
    QCOMPARE(view->maximumSize(), QSize(120, 80));
    const ViewOptions options = view->getViewOptions();
    QVERIFY(!options.deferShow && options.hideOnDeactivate && options.deleteOnClose
            && !options.focusContentOnActivate);
    QCOMPARE(options.watchedWindow.data(), &parent);
}

void tst_OxaQmlEngine::findsTheOutermostWindowOfAnOwner_data()
{
    QTest::addColumn<QString>(
            "ancestry");               // windows and objects, from the outermost one to the owner
    QTest::addColumn<int>("expected"); // its index, or -1
    QTest::newRow("no owner") << QString() << -1;
    QTest::newRow("an owner that is a window itself") << QStringLiteral("w") << -1;
    QTest::newRow("no window") << QStringLiteral("ooo") << -1;
    QTest::newRow("the parent") << QStringLiteral("wo") << 0;
    QTest::newRow("the outermost of two") << QStringLiteral("owowo") << 1;
}

void tst_OxaQmlEngine::findsTheOutermostWindowOfAnOwner()
{
    QFETCH(const QString, ancestry);
    QFETCH(const int, expected);
    const EngineFixture fixture;
    QObjectList line;
    for (const QChar kind : ancestry)
        line.append(kind == QLatin1Char('w') ? new QWindow : new QObject);
    for (int i = 1; i < line.size(); ++i)
        line.at(i)->setParent(line.at(i - 1));
    QObject *const owner = line.isEmpty() ? nullptr : line.constLast();
    QObject *const window = line.value(expected);

    const QString source = QStringLiteral("Controlled.qml");
    QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createControllerQmlWindow(source, owner, {}, {}));
    QCOMPARE(static_cast<QObject *>(view->parent()), window);
    const QScopedPointer<OxaQuickView> dialog(
            OxaQmlEngine::createControllerQmlDialog(source, owner, {}, {}));
    QCOMPARE(static_cast<QObject *>(dialog->transientParent()), window);
    QCOMPARE(dialog->maximumSize(), QSize(120, 80));
    view.reset();
    delete line.value(0);
}

void tst_OxaQmlEngine::reportsOnlyTheFirstMissingContext()
{
    const EngineFixture fixture;
    const QString source = QStringLiteral("Plain.qml");
    const QScopedPointer<OxaQuickView> view(OxaQmlEngine::createQmlWindow(source, nullptr, {}, {}));
    QWidget parent;
    auto *const widget = OxaQmlEngine::createQmlWidget(QStringLiteral("DevToolsView.qml"), &parent,
                                                       {}, {})
                                 .data();
    EngineLog::take();
    QTest::ignoreMessage(
            QtWarningMsg,
            "Critical Scene Graph Error creating:  \"Plain\"  with message:  \"no context\"");
    Q_EMIT view->sceneGraphError(QQuickWindow::ContextNotAvailable, QStringLiteral("no context"));
    QCOMPARE(EngineLog::take(), QStringLiteral("sceneGraphCriticalError"));
    QTest::ignoreMessage(QtWarningMsg,
                         "Critical Scene Graph Error creating:  \"DevToolsView\"  with message:  "
                         "\"no context\"");
    Q_EMIT widget->sceneGraphError(QQuickWindow::ContextNotAvailable, QStringLiteral("no context"));
    QCOMPARE(EngineLog::take(), QString());
}

void tst_OxaQmlEngine::ignoresOtherErrorsOfTheSceneGraph()
{
    const EngineFixture fixture;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), nullptr, {}, {}));
    EngineLog::take();
    Q_EMIT view->sceneGraphError(static_cast<QQuickWindow::SceneGraphError>(0), QString());
    QCOMPARE(EngineLog::take(), QString());
}

void tst_OxaQmlEngine::reportsAViewWithoutRootObject()
{
    const EngineFixture fixture;
    const char warning[] = "QQuickView only supports loading of root objects that derive from "
                           "QQuickItem.";
    ignoreWarningOfQml(QLatin1String(warning));
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("NoItem.qml"), nullptr, {}, {}));
    QCOMPARE(EngineLog::take(),
             QStringLiteral(
                     "Creating NoItem.qml | Error NoItem.qml: Unable to load the qml view!"));
    Q_EMIT view->statusChanged(QQuickView::Ready);
    QCOMPARE(EngineLog::take(),
             QStringLiteral(
                     "Creating NoItem.qml: Unable to find the rootObject for this qml view."));
}

void tst_OxaQmlEngine::saysNothingWhileAViewLoads()
{
    const EngineFixture fixture;
    const QScopedPointer<OxaQuickView> view(
            OxaQmlEngine::createQmlWindow(QStringLiteral("Plain.qml"), nullptr, {}, {}));
    EngineLog::take();
    Q_EMIT view->statusChanged(QQuickView::Loading);
    QCOMPARE(EngineLog::take(), QString());
    Q_EMIT view->statusChanged(QQuickView::Null);
    QCOMPARE(EngineLog::take(), QStringLiteral("Error Plain.qml: Unable to load the qml view!"));
}

UIELEMENTS_TEST_MAIN(tst_OxaQmlEngine)
#include "tst_oxaqmlengine.moc"

// SPDX-License-Identifier: Apache-2.0
#include "QuickViews.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/qml/OxaQmlPopupController.h>
#include <UiElements/qml/OxaQmlTypes.h>

#include <QAbstractNativeEventFilter>
#include <QCursor>
#include <QSignalSpy>

using namespace QuickViews;

namespace {

/// Gives access to protected functions.
class OpenView : public OxaQuickView
{
public:
    using OxaQuickView::findController;
    using OxaQuickView::nativeEvent;
    using OxaQuickView::OxaQuickView;

    SignalLog log;

protected:
    void showEvent(QShowEvent *event) override
    {
        log.note(QStringLiteral("showEvent"));
        OxaQuickView::showEvent(event);
    }
};

/// Answers each native event with the same result.
class Answer : public QAbstractNativeEventFilter
{
public:
    explicit Answer(bool isHandled) : m_isHandled(isHandled) { }

    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override
    {
        types += eventType;
        *static_cast<int *>(message) += 1;
        *result = 7;
        return m_isHandled;
    }

    QByteArray types;

private:
    const bool m_isHandled;
};

constexpr char controllerInside[] = R"(
    import QtQuick 2.15
    import UiElements 1.0
    Item {
        width: 100; height: 50
        OxaQmlPopupController { objectName: "named" }
    })";

constexpr char refusingToClose[] = R"(
    import QtQuick 2.15
    import QtQuick.Window 2.15
    Item {
        id: root
        property bool isAsked: false
        Connections {
            target: root.Window.window
            function onClosing(close) { root.isAsked = true; close.accepted = false; }
        }
    })";

constexpr char controllerDeeper[] = R"(
    import QtQuick 2.15
    import UiElements 1.0
    Item {
        width: 100; height: 50
        Item { OxaQmlPopupController { } }
    })";

} // namespace

class tst_OxaQuickView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void startsWithTheDefaultOptions();
    void hasNoIconAndShowsNothingDeferredWithoutAnEngine();
    void hasATransparentIconOnlyWithAParent();
    void keepsACopyOfItsOptions();

    void showsAndActivatesLaterWhereAsked();

    void hasTheSizeOfItsRootItem();
    void staysResizableWithoutARootItem();
    void findsTheControllerOfTheRootItem();
    void callsNothingWithoutControllerOrCallback();

    void tellsThatItShowsAndCloses();
    void isDeletedWhereQmlRefusesToClose();
    void survivesAClosingWithoutDeletion();
    void sendsNoCloseEventBeforeItWasShown();
    void asksItsNativeHandlerAlone();
    void knowsWhetherThePointerIsInside();

private:
    std::unique_ptr<OxaQmlEngine> m_engine;
};

void tst_OxaQuickView::initTestCase()
{
    OxaQmlTypes::registerQmlTypes();
    m_engine = std::make_unique<OxaQmlEngine>(nullptr);
}

void tst_OxaQuickView::startsWithTheDefaultOptions()
{
    const ViewOptions options = OxaQuickView().getViewOptions();
    QVERIFY(!options.deferShow);
    QVERIFY(!options.hideOnDeactivate);
    QVERIFY(options.deleteOnClose);
    QVERIFY(!options.focusContentOnActivate);
    QVERIFY(!options.watchedWindow);
}

void tst_OxaQuickView::hasNoIconAndShowsNothingDeferredWithoutAnEngine()
{
    QWindow parent;
    OxaQuickView view(&parent);
    QCOMPARE(view.parent(), &parent);
    QVERIFY(view.icon().isNull());
    Q_EMIT view._dispatchShow();
    QCoreApplication::processEvents();
    QVERIFY(!view.isVisible());
}

void tst_OxaQuickView::hasATransparentIconOnlyWithAParent()
{
    QWindow parent;
    const OxaQuickView child(m_engine.get(), &parent, {});
    QCOMPARE(child.engine(), m_engine.get());
    QCOMPARE(child.parent(), &parent);
    const QImage icon = child.icon().pixmap(32).toImage();
    QCOMPARE(icon.size(), QSize(32, 32));
    QCOMPARE(icon.pixelColor(16, 16), QColor(Qt::transparent));
    // The application has no logo.
    const OxaQuickView single(m_engine.get(), nullptr, {});
    QVERIFY(single.icon().isNull());
}

void tst_OxaQuickView::keepsACopyOfItsOptions()
{
    QWindow watched;
    const ViewOptions given { true, true, false, true, &watched };
    OxaQuickView view(m_engine.get(), nullptr, given);
    const ViewOptions options = view.getViewOptions();
    QVERIFY(options.deferShow);
    QVERIFY(options.hideOnDeactivate);
    QVERIFY(!options.deleteOnClose);
    QVERIFY(options.focusContentOnActivate);
    QCOMPARE(options.watchedWindow, &watched);
    view.setViewOptions({});
    QVERIFY(!view.getViewOptions().hideOnDeactivate);
    QVERIFY(!view.getViewOptions().watchedWindow);
}

void tst_OxaQuickView::showsAndActivatesLaterWhereAsked()
{
    ViewOptions options;
    options.deferShow = true;
    OxaQuickView view(m_engine.get(), nullptr, options);
    view.setFlags(Qt::ToolTip | Qt::FramelessWindowHint); // Showing it does not activate it.
    SignalLog log;
    log.record(&view, &OxaQuickView::_dispatchShow, QStringLiteral("_dispatchShow"));
    log.record(&view, &OxaQuickView::aboutToShow, QStringLiteral("aboutToShow"));
    view.showAt(QPoint(30, 40), nullptr);
    QCOMPARE(log.take(), QStringLiteral("_dispatchShow"));
    QVERIFY(!view.isVisible());
    QCOMPARE(view.position(), QPoint(30, 40));
    QCoreApplication::processEvents();
    QCOMPARE(log.take(), QStringLiteral("aboutToShow"));
    QVERIFY(view.isVisible());
    QTRY_COMPARE(QGuiApplication::focusWindow(), &view);
    // A view that another window covers comes back.
    QWindow other;
    QVERIFY(showActive(other));
    view.showAt(QPoint(30, 40), nullptr);
    QTRY_COMPARE(QGuiApplication::focusWindow(), &view);
}

void tst_OxaQuickView::hasTheSizeOfItsRootItem()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    QQuickItem *root = load(view, "import QtQuick 2.15\nItem { width: 100.6; height: 50.4 }");
    root->setSize(QSizeF(100.6, 50.4));
    view.setupFixedSize();
    QCOMPARE(view.size(), QSize(101, 50));
    QCOMPARE(view.minimumSize(), QSize(101, 50));
    QCOMPARE(view.maximumSize(), QSize(101, 50));
    SignalLog log;
    log.record(&view, &QWindow::minimumWidthChanged, QStringLiteral("minimum"));
    log.record(&view, &QWindow::maximumWidthChanged, QStringLiteral("maximum"));
    log.record(&view, &QWindow::widthChanged, QStringLiteral("size"));
    root->setWidth(200);
    QCOMPARE(log.take(), QStringLiteral("minimum | maximum | size"));
    QCOMPARE(view.size(), QSize(200, 50));
    root->setHeight(20);
    QCOMPARE(view.size(), QSize(200, 20));
    QCOMPARE(view.minimumSize(), QSize(200, 20));
    QCOMPARE(view.maximumSize(), QSize(200, 20));
    root->setWidth(qInf()); // As large as windows can be, though not shown so.
    QVERIFY(view.minimumWidth() > 1000000);
}

void tst_OxaQuickView::staysResizableWithoutARootItem()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.resize(70, 80);
    view.setupFixedSize();
    QCOMPARE(view.size(), QSize(70, 80));
    QQuickItem *root = loadItem(view);
    root->setWidth(300);
    QCOMPARE(view.minimumSize(), QSize(0, 0));
}

void tst_OxaQuickView::findsTheControllerOfTheRootItem()
{
    OpenView view(m_engine.get(), nullptr, ViewOptions());
    QVERIFY(!view.findController());
    const QQuickItem *root = load(view, controllerInside);
    auto *controller = root->findChild<OxaQmlController *>(QStringLiteral("named"));
    QVERIFY(controller);
    QCOMPARE(view.findController(), controller);
    const OxaQmlController *called = nullptr;
    view.callControllerCallback([&called](const OxaQmlController *given) { called = given; });
    QCOMPARE(called, controller);
}

void tst_OxaQuickView::callsNothingWithoutControllerOrCallback()
{
    OpenView view(m_engine.get(), nullptr, ViewOptions());
    int calls = 0;
    const auto count = [&calls](OxaQmlController *) { ++calls; };
    view.callControllerCallback(count);
    load(view, controllerDeeper);
    QVERIFY(!view.findController());
    view.callControllerCallback(count);
    QCOMPARE(calls, 0);
    load(view, controllerInside);
    view.callControllerCallback(nullptr);
    view.callControllerCallback(count);
    QCOMPARE(calls, 1);
}

void tst_OxaQuickView::tellsThatItShowsAndCloses()
{
    const Owned<OpenView> view(m_engine.get(), nullptr, ViewOptions());
    SignalLog &log = view->log;
    log.record(view.get(), &OxaQuickView::aboutToShow, QStringLiteral("aboutToShow"));
    log.record(view.get(), &OxaQuickView::aboutToClose, QStringLiteral("aboutToClose"));
    QSignalSpy ends(view.get(), &QObject::destroyed);
    view->show();
    view->hide();
    QCOMPARE(log.take(), QStringLiteral("aboutToShow | showEvent"));
    view->show();
    QVERIFY(view->close());
    QCOMPARE(log.take(), QStringLiteral("aboutToShow | showEvent | aboutToClose"));
    QVERIFY(view);
    QVERIFY(!view->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!view);
    QCOMPARE(ends.size(), 1);
}

void tst_OxaQuickView::isDeletedWhereQmlRefusesToClose()
{
    const Owned<OxaQuickView> view(m_engine.get(), nullptr, ViewOptions());
    const QQuickItem *root = load(*view, refusingToClose);
    QVariant isAskedBefore;
    connect(view.get(), &OxaQuickView::aboutToClose, this,
            [root, &isAskedBefore] { isAskedBefore = root->property("isAsked"); });
    view->show();
    QVERIFY(!view->close());
    QVERIFY(view->isVisible());
    QCOMPARE(isAskedBefore, QVariant(false));
    QCOMPARE(root->property("isAsked"), QVariant(true));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!view);
}

void tst_OxaQuickView::survivesAClosingWithoutDeletion()
{
    ViewOptions options;
    options.deleteOnClose = false;
    const Owned<OxaQuickView> view(m_engine.get(), nullptr, options);
    QSignalSpy closes(view.get(), &OxaQuickView::aboutToClose);
    for (int i = 1; i <= 2; ++i) {
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
        QVERIFY(view->close());
        QCOMPARE(closes.size(), i);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(view);
        QVERIFY(!view->isVisible());
    }
}

void tst_OxaQuickView::sendsNoCloseEventBeforeItWasShown()
{
    const Owned<OxaQuickView> view(m_engine.get(), nullptr, ViewOptions());
    QSignalSpy closes(view.get(), &OxaQuickView::aboutToClose);
    QVERIFY(view->close());
    QCOMPARE(closes.size(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(view);
}

void tst_OxaQuickView::asksItsNativeHandlerAlone()
{
    OpenView view(m_engine.get(), nullptr, ViewOptions());
    int message = 0;
    long result = 0;
    QVERIFY(!view.nativeEvent("a", &message, &result));
    QCOMPARE(message, 0);
    const auto yes = std::make_shared<Answer>(true);
    view.setCustomNativeHandler(yes);
    QVERIFY(view.nativeEvent("b", &message, &result));
    QCOMPARE(message, 1);
    QCOMPARE(result, 7L);
    const auto no = std::make_shared<Answer>(false);
    view.setCustomNativeHandler(no);
    QVERIFY(!view.nativeEvent("c", &message, &result));
    view.setCustomNativeHandler(nullptr);
    QVERIFY(!view.nativeEvent("d", &message, &result));
    QCOMPARE(message, 2);
    QCOMPARE(yes->types, QByteArray("b"));
    QCOMPARE(no->types, QByteArray("c"));
}

void tst_OxaQuickView::knowsWhetherThePointerIsInside()
{
    OxaQuickView view(m_engine.get(), nullptr, {});
    view.setFlag(Qt::FramelessWindowHint);
    view.setGeometry(100, 200, 50, 30);
    view.show();
    const QPoint before = QCursor::pos();
    for (const QPoint &inside : { QPoint(100, 200), QPoint(149, 229) }) {
        QCursor::setPos(inside);
        QVERIFY(view.underMouse());
    }
    for (const QPoint &outside : { QPoint(99, 200), QPoint(150, 229), QPoint(149, 230) }) {
        QCursor::setPos(outside);
        QVERIFY(!view.underMouse());
    }
    QCursor::setPos(before);
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickView)
#include "tst_oxaquickview.moc"

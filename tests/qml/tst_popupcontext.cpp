// SPDX-License-Identifier: Apache-2.0
#include "qml/PopupTrace.h"

#include <UiElements/app/OxaAppSignals.h>
#include <UiElements/qml/PopupTimers.h>

#include <QMetaMethod>
#include <QQuickItem>
#include <QSignalSpy>

namespace {

/// Returns a callback that notes \a name in the log.
PopupContext::ControllerCallback noting(const QString &name)
{
    return [name](OxaQmlController *) { EngineLog::note(name); };
}

OxaQmlPopupController *controllerOf(const OxaPopupQuickView *popup)
{
    return popup->rootObject()->findChild<OxaQmlPopupController *>();
}

} // namespace

/// What PopupContext does with requests, besides the states that they lead to.
class tst_PopupContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesHalfASecond();
    void showsItsSlots();
    void knowsNothingAtFirst();
    void makesNothingOfAnEmptySource();
    void makesADeferredPopupOfItsView();
    void initialisesTheController();
    void makesOnePopupForASource();
    void makesTimersForEachSource();
    void givesTheControllerTheAnchorAfterTheCallback();

    void showsBesideAWidget();
    void ignoresAWidgetThatIsNullOrDies();
    void mapsAnchorsToPlaces_data();
    void mapsAnchorsToPlaces();
    void callsTheCallbackOfTheRequestThatShows();
    void keepsTheRequestThatWaits();
    void keepsThePositionForTheSameRectangle();
    void startsTheCloseDelayOnce();
    void startsTheDelayAgainForANewRequest();
    void connectsEachPopupOnce();
    void stopsOnlyActiveTimersWhenTheViewChanges();

    void closesAPopupThatWasNeverShown();
    void forgetsAPopupThatDies();
    void emitsStoppedOnlyForAPendingRequest();
    void stopsAndDeletesItsTimers();
};

void tst_PopupContext::takesHalfASecond()
{
    QCOMPARE(PopupContext::DELAY_POPUP_DURATION, 500);
    PopupTrace trace;
    trace.create();
    trace.context()->showQmlPopup(trace.source, trace.a, true, OxaQmlBalloon::Top, {});
    QCOMPARE(trace.openTimer()->interval(), 500);
    QVERIFY(!trace.openTimer()->isSingleShot());
    QVERIFY(trace.closeTimer()->isSingleShot());
    QMetaObject::invokeMethod(trace.openTimer(), "timeout");
    QCOMPARE(trace.closeTimer()->interval(), 500);
}

void tst_PopupContext::showsItsSlots()
{
    const QMetaObject &metaObject = PopupContext::staticMetaObject;
    const QMetaMethod changed = metaObject.method(
            metaObject.indexOfMethod("requestingViewChanged()"));
    const QMetaMethod stop = metaObject.method(metaObject.indexOfMethod("stopAllQmlPopupTimers()"));
    QCOMPARE(changed.methodType(), QMetaMethod::Slot);
    QCOMPARE(changed.access(), QMetaMethod::Public);
    QCOMPARE(stop.methodType(), QMetaMethod::Slot);
    QCOMPARE(stop.access(), QMetaMethod::Private);
}

void tst_PopupContext::knowsNothingAtFirst()
{
    PopupContext context;
    const QString source = QStringLiteral("Popup.qml");
    QVERIFY(!context.isVisible(source));
    QVERIFY(!context.findDelayOpenTimer(source));
    QVERIFY(!context.findDelayCloseTimer(source));
    QVERIFY(!context.oxaQuickViewExists(source.toStdString()));
    context.requestingViewChanged();
    context.closeAllOxaQuickViews();
}

void tst_PopupContext::makesNothingOfAnEmptySource()
{
    const EngineFixture fixture;
    PopupContext context;
    QTest::ignoreMessage(
            QtWarningMsg,
            "Trying to create a Qml view for an empty source! This should never happen!");
    QVERIFY(!context.createQmlPopup(QString(), nullptr, OxaQmlBalloon::Top, {}, noting({})));
    context.showQmlPopup(QString(), QRectF(), false, OxaQmlBalloon::Top, noting({}));
    QVERIFY(!context.oxaQuickViewExists(std::string()));
    QVERIFY(!context.findDelayOpenTimer(QString()));
    QCOMPARE(EngineLog::take(), QString());
}

void tst_PopupContext::makesADeferredPopupOfItsView()
{
    PopupTrace trace;
    QWindow parent;
    const auto popup = trace.context()->createQmlPopup(trace.source, &parent, OxaQmlBalloon::Left,
                                                       {}, {});
    QCOMPARE(popup->type(), Qt::Tool);
    const ViewOptions options = popup->getViewOptions();
    QVERIFY(options.deferShow && options.hideOnDeactivate && options.deleteOnClose
            && !options.focusContentOnActivate);
    QCOMPARE(options.watchedWindow.data(), &parent);
    Q_EMIT popup->arrowFlipped(Qt::RightArrow); // Which only the view's controller hears.
    QCOMPARE(controllerOf(popup)->arrowAnchor(), OxaQmlBalloon::Right);
}

void tst_PopupContext::initialisesTheController()
{
    const EngineFixture fixture;
    PopupContext context;
    const QScopedPointer<OxaPopupQuickView> popup(
            context.createQmlPopup(QStringLiteral("Controlled.qml"), nullptr, OxaQmlBalloon::Top,
                                   EngineFixture::named(QStringLiteral("Ada")),
                                   EngineFixture::callback()));
    QCOMPARE(EngineLog::take(),
             QStringLiteral("Creating Controlled.qml | Initializing Controlled.qml | init Ada | "
                            "callback | Ready Controlled.qml"));
}

void tst_PopupContext::makesOnePopupForASource()
{
    PopupTrace trace;
    const auto first = trace.context()->createQmlPopup(trace.source, nullptr, OxaQmlBalloon::Left,
                                                       {}, noting(QStringLiteral("first")));
    EngineLog::take();
    const auto second = trace.context()->createQmlPopup(trace.source, nullptr, OxaQmlBalloon::Right,
                                                        {}, noting(QStringLiteral("second")));
    QVERIFY(first);
    QCOMPARE(second, first);
    QCOMPARE(EngineLog::take(), QString());
    QCOMPARE(controllerOf(first)->arrowAnchor(), OxaQmlBalloon::Left);
}

void tst_PopupContext::makesTimersForEachSource()
{
    PopupTrace trace;
    trace.create();
    const QString other = QStringLiteral("OtherPopup.qml");
    const auto popup = trace.context()->createQmlPopup(other, nullptr, OxaQmlBalloon::Top, {}, {});
    QVERIFY(popup != trace.popup());
    QVERIFY(trace.openTimer() != trace.closeTimer());
    QVERIFY(trace.openTimer() != trace.context()->findDelayOpenTimer(other));
    QVERIFY(!trace.openTimer()->parent());
    trace.showNow(trace.a);
    QVERIFY(trace.context()->isVisible(trace.source));
    QVERIFY(!trace.context()->isVisible(other));
    delete popup;
    QVERIFY(!trace.context()->findDelayOpenTimer(other));
    QVERIFY(trace.openTimer());
}

void tst_PopupContext::givesTheControllerTheAnchorAfterTheCallback()
{
    PopupTrace trace;
    const auto setsLeft = [](OxaQmlController *controller) {
        static_cast<OxaQmlPopupController *>(controller)->setArrowAnchor(OxaQmlBalloon::Left);
    };
    trace.context()->createQmlPopup(trace.source, nullptr, OxaQmlBalloon::Bottom, {}, setsLeft);
    auto *const controller = controllerOf(trace.popup());
    QCOMPARE(controller->arrowAnchor(), OxaQmlBalloon::Bottom);
    const QSignalSpy spy(controller, &OxaQmlPopupController::arrowAnchorChanged);
    trace.show(trace.a, false, OxaQmlBalloon::Top, setsLeft);
    QCOMPARE(controller->arrowAnchor(), OxaQmlBalloon::Top);
    QCOMPARE(spy.size(), 2);
    trace.popup()->hide();
    trace.show(trace.a, false, OxaQmlBalloon::Top, {});
    QCOMPARE(spy.size(), 2);
}

void tst_PopupContext::showsBesideAWidget()
{
    PopupTrace trace;
    trace.create();
    QWidget parent;
    parent.setGeometry(300, 300, 50, 50);
    QWidget widget(&parent);
    widget.setGeometry(100, 100, 40, 20);
    trace.context()->showQmlPopup(trace.source, &widget, true, OxaQmlBalloon::Top, {});
    QCOMPARE(trace.openTimer()->requestedRect(), QRectF(100, 100, 40, 20)); // As it stands.
    trace.settle();
    widget.setAttribute(Qt::WA_UnderMouse, true);
    trace.poll();
    QCOMPARE(trace.state(), QStringLiteral("shown open"));
    QCOMPARE(trace.popup()->position(), QPoint(60, 120));
    widget.setAttribute(Qt::WA_UnderMouse, false);
    PopupTrace::point(trace.popup()->geometry().center());
    trace.poll();
    QCOMPARE(trace.state(), QStringLiteral("shown open"));
    trace.popup()->hide();
    trace.poll(); // A hidden popup is under no pointer.
    QCOMPARE(trace.state(), QStringLiteral("hidden open close"));
    trace.context()->showQmlPopup(trace.source, &widget, false, OxaQmlBalloon::Top, {});
    trace.settle();
    QCOMPARE(trace.state(), QStringLiteral("shown open"));
}

void tst_PopupContext::ignoresAWidgetThatIsNullOrDies()
{
    PopupTrace trace;
    trace.create();
    QWidget *none = nullptr;
    trace.context()->showQmlPopup(trace.source, none, false, OxaQmlBalloon::Top, {});
    trace.settle();
    QCOMPARE(trace.state(), QStringLiteral("hidden"));

    auto widget = std::make_unique<QWidget>();
    widget->setGeometry(100, 100, 40, 20);
    trace.context()->showQmlPopup(trace.source, widget.get(), true, OxaQmlBalloon::Top, {});
    trace.settle();
    widget.reset();
    trace.poll();
    QCOMPARE(trace.state(), QStringLiteral("hidden open close"));

    widget = std::make_unique<QWidget>();
    const auto deletesWidget = [&widget](OxaQmlController *) { widget.reset(); };
    trace.context()->showQmlPopup(trace.source, widget.get(), false, OxaQmlBalloon::Top,
                                  deletesWidget);
    trace.settle();
    QVERIFY(!widget);
    QCOMPARE(trace.state(), QStringLiteral("hidden open close"));
}

void tst_PopupContext::mapsAnchorsToPlaces_data()
{
    QTest::addColumn<OxaQmlBalloon::ArrowAnchor>("anchor");
    QTest::addColumn<QPoint>("position"); // of a popup of 120 by 80 beside 40 by 20 at (300, 300)
    QTest::newRow("top arrow, below") << OxaQmlBalloon::Top << QPoint(260, 320);
    QTest::newRow("bottom arrow, above") << OxaQmlBalloon::Bottom << QPoint(260, 220);
    QTest::newRow("left arrow, right") << OxaQmlBalloon::Left << QPoint(340, 270);
    QTest::newRow("right arrow, left") << OxaQmlBalloon::Right << QPoint(180, 270);
    QTest::newRow("no arrow, at the centre") << OxaQmlBalloon::None << QPoint(320, 310);
}

void tst_PopupContext::mapsAnchorsToPlaces()
{
    QFETCH(const OxaQmlBalloon::ArrowAnchor, anchor);
    PopupTrace trace;
    trace.create();
    trace.show(QRectF(300, 300, 40, 20), false, anchor, {});
    QTEST(trace.popup()->position(), "position");
    QCOMPARE(controllerOf(trace.popup())->arrowAnchor(), anchor);
}

void tst_PopupContext::callsTheCallbackOfTheRequestThatShows()
{
    PopupTrace trace;
    trace.create();
    PopupTrace::point(trace.a.center().toPoint());
    EngineLog::take();
    connect(trace.popup(), &OxaQuickView::_dispatchShow, this,
            [] { EngineLog::note(QStringLiteral("show")); });
    trace.show(trace.a, true, OxaQmlBalloon::Top, noting(QStringLiteral("A")));
    QCOMPARE(EngineLog::take(), QString());
    trace.poll();
    QCOMPARE(EngineLog::take(), QStringLiteral("A | show"));
    trace.poll();
    trace.show(trace.a, false, OxaQmlBalloon::Top, noting(QStringLiteral("A again")));
    QCOMPARE(EngineLog::take(), QString());

    PopupTrace::point(trace.b.center().toPoint());
    trace.show(trace.b, true, OxaQmlBalloon::Bottom, noting(QStringLiteral("B")));
    trace.poll();
    trace.passCloseTime();
    QCOMPARE(EngineLog::take(), QString());
    trace.poll();
    QCOMPARE(EngineLog::take(), QStringLiteral("B | show"));
    QCOMPARE(trace.popup()->activationRect(), trace.b);
    QCOMPARE(controllerOf(trace.popup())->arrowAnchor(), OxaQmlBalloon::Bottom);
}

void tst_PopupContext::keepsTheRequestThatWaits()
{
    PopupTrace trace;
    trace.create();
    PopupTrace::point(trace.a.center().toPoint());
    trace.showDelayed(trace.a);
    trace.poll();
    bool isHeard = false;
    connect(trace.openTimer(), &PopupContextTimer::stopped, this, [&isHeard] { isHeard = true; });
    trace.show(trace.b, true, OxaQmlBalloon::Top, noting(QStringLiteral("B")));
    QCOMPARE(trace.openTimer()->requestedRect(), trace.b);
    trace.show(trace.b, true, OxaQmlBalloon::Top, noting(QStringLiteral("B again")));
    trace.show(trace.a, true, OxaQmlBalloon::Top, noting(QStringLiteral("A again")));
    QCOMPARE(trace.openTimer()->requestedRect(), trace.b);

    PopupTrace::point(trace.b.center().toPoint());
    EngineLog::take();
    trace.poll();
    trace.passCloseTime();
    trace.poll();
    QCOMPARE(EngineLog::take(), QStringLiteral("B"));
    QVERIFY(!isHeard); // A request removes all other receivers.
}

void tst_PopupContext::keepsThePositionForTheSameRectangle()
{
    PopupTrace trace;
    trace.create();
    PopupTrace::point(trace.a.center().toPoint());
    trace.showDelayed(trace.a);
    trace.poll();
    trace.popup()->setPosition(10, 10);
    trace.showDelayed(trace.a.translated(1e-13, 0)); // Equal to QRectF.
    QCOMPARE(trace.state(), QStringLiteral("shown open"));
    QCOMPARE(trace.popup()->position(), QPoint(10, 10));
}

void tst_PopupContext::startsTheCloseDelayOnce()
{
    PopupTrace trace;
    trace.create();
    trace.showDelayed(trace.a);
    trace.poll();
    QCOMPARE(trace.closeTimer()->interval(), PopupTrace::never);
    QMetaObject::invokeMethod(trace.openTimer(), "timeout");
    QCOMPARE(trace.closeTimer()->interval(), PopupTrace::never); // Otherwise 500.
}

void tst_PopupContext::startsTheDelayAgainForANewRequest()
{
    PopupTrace trace;
    trace.create();
    trace.showDelayed(trace.a);
    QCOMPARE(trace.openTimer()->interval(), PopupTrace::never);
    for (const QRectF &rect : { trace.b, trace.b }) { // Also for the same rectangle.
        trace.context()->showQmlPopup(trace.source, rect, true, OxaQmlBalloon::Top, {});
        QCOMPARE(trace.openTimer()->interval(), 500);
        QCOMPARE(trace.openTimer()->requestedRect(), trace.b);
        QVERIFY(!trace.openTimer()->popupPending());
        trace.settle();
    }
}

void tst_PopupContext::connectsEachPopupOnce()
{
    PopupTrace trace;
    trace.create();
    PopupTrace::point(trace.a.center().toPoint());
    for (int i = 0; i < 3; ++i)
        trace.showDelayed(trace.a);
    trace.poll();
    for (PopupContextTimer *const timer : { trace.openTimer(), trace.closeTimer() }) {
        disconnect(timer, &PopupContextTimer::stopped, nullptr, nullptr);
        timer->setPopupPending(true); // So that receivers stay.
    }
    const QSignalSpy opens(trace.openTimer(), &PopupContextTimer::stopped);
    const QSignalSpy closes(trace.closeTimer(), &PopupContextTimer::stopped);
    Q_EMIT trace.popup()->aboutToClose();
    Q_EMIT trace.popup()->aboutToShow();
    QCOMPARE(opens.size(), 1);
    QCOMPARE(closes.size(), 1);
}

void tst_PopupContext::stopsOnlyActiveTimersWhenTheViewChanges()
{
    PopupTrace trace;
    trace.create();
    trace.openTimer()->setPopupPending(true); // So that receivers stay.
    const QSignalSpy stops(trace.openTimer(), &PopupContextTimer::stopped);
    trace.context()->requestingViewChanged();
    QCOMPARE(stops.size(), 0);
    trace.openTimer()->start(PopupTrace::never);
    trace.context()->requestingViewChanged();
    QCOMPARE(stops.size(), 1);
}

void tst_PopupContext::closesAPopupThatWasNeverShown()
{
    PopupTrace trace;
    trace.create();
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    const QSignalSpy closes(popup, &OxaQuickView::aboutToClose);
    trace.context()->closeAllOxaQuickViews();
    QVERIFY(popup);
    trace.settle();
    QVERIFY(!popup);
    QCOMPARE(closes.size(), 0);
    QVERIFY(!trace.context()->oxaQuickViewExists(trace.source.toStdString()));
    QVERIFY(!trace.openTimer());
    QVERIFY(!trace.closeTimer());
}

void tst_PopupContext::forgetsAPopupThatDies()
{
    PopupTrace trace;
    trace.create();
    trace.showDelayed(trace.a);
    const QPointer<PopupContextTimer> openTimer = trace.openTimer();
    const QPointer<PopupContextTimer> closeTimer = trace.closeTimer();
    delete trace.popup();
    QVERIFY(!trace.openTimer());
    QVERIFY(!openTimer->isActive());
    trace.settle();
    QVERIFY(!openTimer && !closeTimer);
    trace.create();
    trace.showNow(trace.a);
    QCOMPARE(trace.state(), QStringLiteral("shown"));
}

void tst_PopupContext::emitsStoppedOnlyForAPendingRequest()
{
    PopupContextTimer timer;
    int first = 0;
    int second = 0;
    connect(&timer, &PopupContextTimer::stopped, this, [&first] { ++first; });
    timer.start(PopupTrace::never);
    timer.setPopupPending(true);
    timer.stopAndEmit();
    QVERIFY(!timer.isActive());
    QCOMPARE(first, 1);
    timer.setPopupPending(false);
    timer.stopAndEmit();
    QCOMPARE(first, 1);
    connect(&timer, &PopupContextTimer::stopped, this, [&second] { ++second; });
    timer.setPopupPending(true);
    timer.stopAndEmit();
    QCOMPARE(first, 1); // It was removed for good.
    QCOMPARE(second, 1);
}

void tst_PopupContext::stopsAndDeletesItsTimers()
{
    auto timers = std::make_unique<PopupTimers>();
    const QPointer<PopupContextTimer> openTimer = timers->openTimer;
    const QPointer<PopupContextTimer> closeTimer = timers->closeTimer;
    QVERIFY(!openTimer->popupPending());
    QCOMPARE(openTimer->requestedRect(), QRectF());
    openTimer->start(PopupTrace::never);
    closeTimer->start(PopupTrace::never);
    timers.reset();
    QVERIFY(!openTimer->isActive() && !closeTimer->isActive());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!openTimer && !closeTimer);

    timers = std::make_unique<PopupTimers>();
    delete timers->openTimer;
    delete timers->closeTimer;
}

UIELEMENTS_TEST_MAIN(tst_PopupContext)
#include "tst_popupcontext.moc"

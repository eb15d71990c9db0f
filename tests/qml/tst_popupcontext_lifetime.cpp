// SPDX-License-Identifier: Apache-2.0
#include "qml/PopupTrace.h"

#include <QQuickItem>

namespace {

const char *const victims[] = { "popup",  "controller", "root item",  "context",
                                "engine", "open timer", "close timer" };

void kill(const PopupTrace &trace, const QString &victim)
{
    OxaPopupQuickView *const popup = trace.popup();
    QQuickItem *const root = popup ? popup->rootObject() : nullptr;
    if (victim == QStringLiteral("popup"))
        delete popup;
    else if (victim == QStringLiteral("controller"))
        delete (root ? root->findChild<OxaQmlController *>() : nullptr);
    else if (victim == QStringLiteral("root item"))
        delete root;
    else if (victim == QStringLiteral("context"))
        delete trace.context();
    else if (victim == QStringLiteral("engine"))
        delete trace.engine();
    else if (victim == QStringLiteral("open timer"))
        delete trace.openTimer();
    else if (victim == QStringLiteral("close timer"))
        delete trace.closeTimer();
}

/// Goes to a state. Each is reached through those before it.
void goTo(PopupTrace &trace, const QString &state)
{
    const QStringList all { QStringLiteral("created"), QStringLiteral("waiting"),
                            QStringLiteral("visible"), QStringLiteral("pending"),
                            QStringLiteral("closing"), QStringLiteral("hidden") };
    const int last = all.indexOf(state);
    PopupTrace::point(trace.a.center().toPoint());
    trace.create();
    if (last >= 1)
        trace.showDelayed(trace.a);
    if (last >= 2)
        trace.poll();
    if (last >= 3)
        trace.showDelayed(trace.b);
    PopupTrace::point(trace.b.center().toPoint());
    if (last >= 4)
        trace.poll();
    if (last >= 5)
        trace.passCloseTime();
}

/// Does everything that can be done with what is left.
void goOn(PopupTrace &trace)
{
    trace.poll();
    trace.passCloseTime();
    trace.showDelayed(trace.a);
    trace.poll();
    trace.passCloseTime();
    trace.showNow(trace.b);
    if (trace.context())
        trace.context()->requestingViewChanged();
    Q_EMIT EngineFixture::application()->getAppSignals()->closeQmlPopups();
    trace.settle();
}

/// Calls \a strike at the emission of one signal, or in a callback.
void arm(PopupTrace &trace, const QString &signal, const std::function<void()> &strike)
{
    OxaPopupQuickView *const popup = trace.popup();
    QObject *const receiver = EngineFixture::application();
    if (signal == QStringLiteral("aboutToShow"))
        QObject::connect(popup, &OxaQuickView::aboutToShow, receiver, strike);
    else if (signal == QStringLiteral("aboutToClose"))
        QObject::connect(popup, &OxaQuickView::aboutToClose, receiver, strike);
    else if (signal == QStringLiteral("visibleChanged"))
        QObject::connect(popup, &QWindow::visibleChanged, receiver, strike);
    else if (signal == QStringLiteral("arrowOrthogonalChanged"))
        QObject::connect(popup, &OxaPopupQuickView::arrowOrthogonalChanged, receiver, strike);
    else if (signal == QStringLiteral("destroyed"))
        QObject::connect(popup, &QObject::destroyed, receiver, strike);
    else if (signal == QStringLiteral("stopped"))
        QObject::connect(trace.openTimer(), &PopupContextTimer::stopped, receiver, strike);
    else if (signal == QStringLiteral("open timeout"))
        QObject::connect(trace.openTimer(), &QTimer::timeout, receiver, strike);
    else if (signal == QStringLiteral("close timeout"))
        QObject::connect(trace.closeTimer(), &QTimer::timeout, receiver, strike);
}

} // namespace

/// What may be deleted while a context has a popup.
class tst_PopupContext_Lifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesDeletionInAState_data();
    void survivesDeletionInAState();
    void survivesDeletionInASlot_data();
    void survivesDeletionInASlot();
    void survivesDeletionInACallback_data();
    void survivesDeletionInACallback();
    void takesItsTimersWithIt_data();
    void takesItsTimersWithIt();
    void isNotCalledByViewsThatOutliveIt();
    void keepsAPopupThatIsMadeWhenTheOldOneDies();
    void closesAllWhileOneClosesAll();
};

void tst_PopupContext_Lifetime::survivesDeletionInAState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("victim");
    for (const char *state : { "created", "waiting", "visible", "pending", "closing", "hidden" }) {
        for (const char *victim : victims)
            QTest::addRow("%s, %s", state, victim)
                    << QString(QLatin1String(state)) << QString(QLatin1String(victim));
    }
}

void tst_PopupContext_Lifetime::survivesDeletionInAState()
{
    QFETCH(const QString, state);
    QFETCH(const QString, victim);
    PopupTrace trace;
    goTo(trace, state);
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    QVERIFY(popup);
    kill(trace, victim);
    goOn(trace);
    if (popup && !trace.context())
        QTest::keyPress(popup, Qt::Key_Escape);
    delete popup;
}

void tst_PopupContext_Lifetime::survivesDeletionInASlot_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QString>("victim");
    const struct
    {
        const char *state;
        const char *signal;
        bool isPopupInUse; // by Qt, so that a slot must delete it later
    } moments[] = { { "waiting", "aboutToShow", true },
                    { "waiting", "visibleChanged", true },
                    { "waiting", "arrowOrthogonalChanged", true },
                    { "waiting", "open timeout", false },
                    { "waiting", "stopped", false },
                    { "visible", "aboutToClose", false },
                    { "visible", "destroyed", true },
                    { "closing", "close timeout", false },
                    { "closing", "stopped", false },
                    { "closing", "visibleChanged", true } };
    for (const auto &moment : moments) {
        for (const char *victim : victims) {
            if (moment.isPopupInUse && qstrcmp(victim, "popup") == 0)
                continue;
            QTest::addRow("%s in %s, %s", moment.signal, moment.state, victim)
                    << QString(QLatin1String(moment.state)) << QString(QLatin1String(moment.signal))
                    << QString(QLatin1String(victim));
        }
    }
}

void tst_PopupContext_Lifetime::survivesDeletionInASlot()
{
    QFETCH(const QString, state);
    QFETCH(const QString, signal);
    QFETCH(const QString, victim);
    PopupTrace trace;
    goTo(trace, state);
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    bool isStruck = false;
    arm(trace, signal, [&trace, &victim, &isStruck] {
        if (!isStruck)
            kill(trace, victim);
        isStruck = true;
    });
    PopupTrace::point(state == QStringLiteral("waiting") ? trace.a.center().toPoint()
                                                         : trace.b.center().toPoint());
    if (signal == QStringLiteral("stopped") && state == QStringLiteral("waiting")) {
        trace.openTimer()->setPopupPending(true); // So that the slot stays.
        trace.context()->requestingViewChanged();
    }
    goOn(trace);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete popup;
    QCOMPARE(isStruck, true);
}

void tst_PopupContext_Lifetime::survivesDeletionInACallback_data()
{
    QTest::addColumn<bool>("isDelayed");
    QTest::addColumn<QString>("victim");
    for (const char *victim : victims) {
        QTest::addRow("%s, at once", victim) << false << QString(QLatin1String(victim));
        QTest::addRow("%s, later", victim) << true << QString(QLatin1String(victim));
    }
}

void tst_PopupContext_Lifetime::survivesDeletionInACallback()
{
    QFETCH(const bool, isDelayed);
    QFETCH(const QString, victim);
    PopupTrace trace;
    trace.create();
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    PopupTrace::point(trace.a.center().toPoint());
    bool isCalled = false;
    trace.show(trace.a, isDelayed, OxaQmlBalloon::Top, [&](OxaQmlController *) {
        isCalled = true;
        kill(trace, victim);
    });
    trace.poll();
    QVERIFY(isCalled);
    goOn(trace);
    delete popup;
}

void tst_PopupContext_Lifetime::takesItsTimersWithIt_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : { "created", "waiting", "visible", "pending", "closing", "hidden" })
        QTest::newRow(state) << QString(QLatin1String(state));
}

void tst_PopupContext_Lifetime::takesItsTimersWithIt()
{
    QFETCH(const QString, state);
    PopupTrace trace;
    goTo(trace, state);
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    const QPointer<PopupContextTimer> openTimer = trace.openTimer();
    const QPointer<PopupContextTimer> closeTimer = trace.closeTimer();
    const bool isVisible = popup->isVisible();
    delete trace.context();
    QVERIFY(!openTimer->isActive() && !closeTimer->isActive());
    trace.settle();
    QVERIFY(!openTimer && !closeTimer);
    QVERIFY(popup);
    QCOMPARE(popup->isVisible(), isVisible); // It closes nothing.
    delete popup;
}

void tst_PopupContext_Lifetime::isNotCalledByViewsThatOutliveIt()
{
    struct CountingContext : PopupContext
    {
        explicit CountingContext(int *counter) : count(counter) { }
        void removeOxaQuickView(const std::string &source) override
        {
            ++*count;
            PopupContext::removeOxaQuickView(source);
        }
        int *count;
    };
    const PopupTrace trace;
    int count = 0;
    auto context = std::make_unique<CountingContext>(&count);
    const auto make = [&context, &trace] {
        return context->createQmlPopup(trace.source, nullptr, OxaQmlBalloon::Top, {}, {});
    };
    delete make();
    QCOMPARE(count, 1);
    const auto popup = make();
    context.reset();
    delete popup;
    QCOMPARE(count, 1);
}

void tst_PopupContext_Lifetime::keepsAPopupThatIsMadeWhenTheOldOneDies()
{
    PopupTrace trace;
    bool isMade = false;
    // Connected by the callback, so that this slot comes before that of the context.
    trace.context()
            ->createQmlPopup(trace.source, nullptr, OxaQmlBalloon::Top, {},
                             [&](OxaQmlController *controller) {
                                 const QQuickWindow *const window =
                                         static_cast<QQuickItem *>(controller->parent())->window();
                                 connect(window, &QObject::destroyed, this, [&trace, &isMade] {
                                     isMade = true;
                                     trace.create();
                                 });
                             });
    delete trace.popup();
    QVERIFY(isMade);
    QVERIFY(trace.popup());
    QVERIFY(trace.openTimer());
    trace.showNow(trace.a);
    QCOMPARE(trace.state(), QStringLiteral("shown"));
}

void tst_PopupContext_Lifetime::closesAllWhileOneClosesAll()
{
    PopupTrace trace;
    trace.create();
    trace.showNow(trace.a);
    int count = 0;
    connect(trace.popup(), &OxaQuickView::aboutToClose, this, [&trace, &count] {
        if (++count < 3)
            trace.context()->closeAllOxaQuickViews();
    });
    trace.context()->closeAllOxaQuickViews();
    trace.settle();
    QCOMPARE(trace.state(), QStringLiteral("none"));
}

UIELEMENTS_TEST_MAIN(tst_PopupContext_Lifetime)
#include "tst_popupcontext_lifetime.moc"

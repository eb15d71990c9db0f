// SPDX-License-Identifier: Apache-2.0
#include "qml/PopupTrace.h"
#include "support/Screens.h"

#include <QMap>
#include <QQuickItem>

namespace {

const char *const victims[] = { "popup",      "controller",  "root item",     "context", "engine",
                                "open timer", "close timer", "parent window", "screen" };

const char *const states[] = { "created",          "waiting", "waiting and left", "visible",
                               "visible and left", "pending", "closing",          "hidden" };

/// A popup with a parent, on a screen of its own. Beside A it flips and moves.
struct Scene : PopupTrace
{
    Scene()
    {
        a = QRectF(1750, 560, 40, 20);
        b = QRectF(1400, 300, 40, 20);
        parent = std::make_unique<QWindow>(screen->screen());
    }

    /// Returns what is called \a name, or null.
    QObject *find(const QString &name) const
    {
        QQuickItem *const root = popup() ? popup()->rootObject() : nullptr;
        const QMap<QString, QObject *> all {
            { QStringLiteral("popup"), popup() },
            { QStringLiteral("controller"),
              root ? root->findChild<OxaQmlController *>() : nullptr },
            { QStringLiteral("root item"), root },
            { QStringLiteral("context"), context() },
            { QStringLiteral("engine"), engine() },
            { QStringLiteral("open timer"), openTimer() },
            { QStringLiteral("close timer"), closeTimer() },
            { QStringLiteral("application"), EngineFixture::application()->getAppSignals() },
        };
        return all.value(name);
    }

    void kill(const QString &victim)
    {
        if (victim == QStringLiteral("parent window"))
            parent.reset();
        else if (victim == QStringLiteral("screen"))
            screen.reset();
        else
            delete find(victim);
    }

    std::unique_ptr<ScreenGuard> screen = std::make_unique<ScreenGuard>(QRect(1000, 0, 800, 600),
                                                                        QRect(1000, 0, 800, 600));
};

/// Goes to a state. Each is reached through those before it, or from one by leaving the rectangle.
void goTo(PopupTrace &trace, const QString &state)
{
    const QStringList all { QStringLiteral("created"), QStringLiteral("waiting"),
                            QStringLiteral("visible"), QStringLiteral("pending"),
                            QStringLiteral("closing"), QStringLiteral("hidden") };
    const int last = all.indexOf(state.section(QLatin1Char(' '), 0, 0));
    PopupTrace::point(trace.a.center().toPoint());
    trace.create();
    if (last >= 1)
        trace.showDelayed(trace.a);
    if (last >= 2)
        trace.poll();
    if (last >= 3)
        trace.showDelayed(trace.b);
    PopupTrace::point(trace.b.center().toPoint());
    if (last >= 4 || state.endsWith(QLatin1String("left")))
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

/// Calls a function when a signal is emitted, and only then.
class Striker : public QObject
{
    Q_OBJECT

public:
    Striker(const QObject *sender, const char *signal, const std::function<void()> &strike)
        : m_strike(strike)
    {
        const QMetaObject *const meta = sender->metaObject();
        connect(sender, meta->method(meta->indexOfSignal(signal)), this,
                metaObject()->method(metaObject()->indexOfSlot("run()")));
    }

    bool isRun = false;

public Q_SLOTS:
    void run()
    {
        if (!isRun) {
            isRun = true;
            m_strike();
        }
    }

private:
    const std::function<void()> m_strike;
};

/// When something is deleted in a slot.
struct Moment
{
    const char *state;
    const char *sender;
    const char *signal;
    QByteArrayList used; ///< By Qt: a slot must delete it later.
};

const std::vector<Moment> &moments()
{
    const QByteArrayList none;
    const QByteArrayList popup { "popup" };
    const QByteArrayList view { "popup", "root item", "controller" };
    static const std::vector<Moment> all = {
        { "waiting", "popup", "aboutToShow()", popup },
        { "waiting", "popup", "_dispatchShow()", none },
        { "waiting", "popup", "visibleChanged(bool)", popup },
        { "waiting", "popup", "activeChanged()", popup },
        { "waiting", "popup", "xChanged(int)", popup },
        { "waiting", "popup", "arrowFlipped(Qt::ArrowType)", none },
        { "waiting", "popup", "arrowOrthogonalChanged()", popup },
        { "waiting", "popup", "finishedRendering(QString,qlonglong)", popup },
        { "waiting", "controller", "arrowAnchorChanged()", none },
        { "waiting", "controller", "arrowOffsetChanged()", popup },
        { "waiting", "open timer", "timeout()", none },
        { "waiting", "open timer", "stopped()", none },
        { "waiting", "application", "closeQmlPopups()", none },
        { "visible", "popup", "aboutToClose()", none },
        { "visible", "popup", "destroyed()", view },
        { "visible", "engine", "qmlViewStatusChanged(QmlViewStatus,QString)", view },
        { "visible", "application", "closeQmlPopups()", none },
        { "visible and left", "close timer", "timeout()", none },
        { "visible and left", "close timer", "destroyed()", none },
        { "visible and left", "open timer", "destroyed()", none },
        { "closing", "close timer", "timeout()", none },
        { "closing", "open timer", "stopped()", none },
        { "closing", "popup", "visibleChanged(bool)", popup },
    };
    return all;
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
    for (const char *state : states) {
        for (const char *victim : victims)
            QTest::addRow("%s, %s", state, victim)
                    << QString(QLatin1String(state)) << QString(QLatin1String(victim));
    }
}

void tst_PopupContext_Lifetime::survivesDeletionInAState()
{
    QFETCH(const QString, state);
    QFETCH(const QString, victim);
    Scene trace;
    goTo(trace, state);
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    QVERIFY(popup);
    QCOMPARE(popup->screen(), trace.screen->screen());
    trace.kill(victim);
    goOn(trace);
    if (popup && !trace.context())
        QTest::keyPress(popup, Qt::Key_Escape);
    delete popup;
}

void tst_PopupContext_Lifetime::survivesDeletionInASlot_data()
{
    QTest::addColumn<int>("moment");
    QTest::addColumn<QString>("victim");
    for (std::size_t i = 0; i < moments().size(); ++i) {
        const Moment &moment = moments().at(i);
        for (const char *victim : victims) {
            if (!moment.used.contains(victim))
                QTest::addRow("%s of %s, %s: %s", moment.signal, moment.sender, moment.state,
                              victim)
                        << int(i) << QString(QLatin1String(victim));
        }
    }
}

void tst_PopupContext_Lifetime::survivesDeletionInASlot()
{
    QFETCH(const int, moment);
    QFETCH(const QString, victim);
    const Moment &now = moments().at(std::size_t(moment));
    Scene trace;
    goTo(trace, QString::fromLatin1(now.state));
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    popup->setPerformanceWatcherEnabled(true);
    // Found before: a view that is being destroyed is not to be found any more.
    const QPointer<QObject> found = trace.find(victim);
    const auto strike = [&trace, &victim, &found] {
        if (found)
            delete found;
        else
            trace.kill(victim);
    };
    const Striker striker(trace.find(QString::fromLatin1(now.sender)), now.signal, strike);
    const bool waits = qstrcmp(now.state, "waiting") == 0;
    PopupTrace::point((waits ? trace.a : trace.b).center().toPoint());
    if (waits && qstrcmp(now.signal, "stopped()") == 0) {
        trace.openTimer()->setPopupPending(true); // So that the slot stays.
        trace.context()->requestingViewChanged();
    }
    goOn(trace);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete popup;
    QVERIFY(striker.isRun);
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
    Scene trace;
    trace.create();
    const QPointer<OxaPopupQuickView> popup = trace.popup();
    PopupTrace::point(trace.a.center().toPoint());
    bool isCalled = false;
    trace.show(trace.a, isDelayed, OxaQmlBalloon::Top, [&](OxaQmlController *) {
        isCalled = true;
        trace.kill(victim);
    });
    trace.poll();
    QVERIFY(isCalled);
    goOn(trace);
    delete popup;
}

void tst_PopupContext_Lifetime::takesItsTimersWithIt_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : states)
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

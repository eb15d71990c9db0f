// SPDX-License-Identifier: Apache-2.0
#include "qml/PopupTrace.h"

#include <QMap>

namespace {

using Step = std::function<void(PopupTrace &)>;

/// The pointer is inside the popup where that opens beside A, and not in A.
const QPoint inPopupOfA(150, 180);

void setStaysWhenInactive(PopupTrace &trace)
{
    ViewOptions options = trace.popup()->getViewOptions();
    options.hideOnDeactivate = false;
    trace.popup()->setViewOptions(options);
}

const QMap<QString, Step> &steps()
{
    static const QMap<QString, Step> all {
        { QStringLiteral("create"), [](PopupTrace &trace) { trace.create(); } },
        { QStringLiteral("A later"), [](PopupTrace &trace) { trace.showDelayed(trace.a); } },
        { QStringLiteral("B later"), [](PopupTrace &trace) { trace.showDelayed(trace.b); } },
        { QStringLiteral("A now"), [](PopupTrace &trace) { trace.showNow(trace.a); } },
        { QStringLiteral("B now"), [](PopupTrace &trace) { trace.showNow(trace.b); } },
        { QStringLiteral("to A"),
          [](PopupTrace &trace) { PopupTrace::point(trace.a.center().toPoint()); } },
        { QStringLiteral("to B"),
          [](PopupTrace &trace) { PopupTrace::point(trace.b.center().toPoint()); } },
        { QStringLiteral("to popup"), [](PopupTrace &) { PopupTrace::point(inPopupOfA); } },
        { QStringLiteral("away"), [](PopupTrace &) { PopupTrace::point(QPoint(790, 10)); } },
        { QStringLiteral("poll"), [](PopupTrace &trace) { trace.poll(); } },
        { QStringLiteral("pass"), [](PopupTrace &trace) { trace.passCloseTime(); } },
        { QStringLiteral("escape"),
          [](PopupTrace &trace) {
              QTest::keyPress(trace.popup(), Qt::Key_Escape);
              trace.settle();
          } },
        { QStringLiteral("closeQmlPopups"),
          [](PopupTrace &trace) {
              Q_EMIT EngineFixture::application()->getAppSignals()->closeQmlPopups();
              trace.settle();
          } },
        { QStringLiteral("leave application"),
          [](PopupTrace &trace) { trace.setApplicationActive(false); } },
        { QStringLiteral("enter application"),
          [](PopupTrace &trace) { trace.setApplicationActive(true); } },
        { QStringLiteral("view changed"),
          [](PopupTrace &trace) {
              trace.context()->requestingViewChanged();
              trace.settle();
          } },
        { QStringLiteral("stays when inactive"), &setStaysWhenInactive },
        { QStringLiteral("no close timer"), [](PopupTrace &trace) { delete trace.closeTimer(); } },
        { QStringLiteral("no open timer"), [](PopupTrace &trace) { delete trace.openTimer(); } },
    };
    return all;
}

} // namespace

/// The state of one popup, step by step. A step is "name: state after it".
class tst_PopupContext_States : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesThroughItsStates_data();
    void goesThroughItsStates();
};

void tst_PopupContext_States::goesThroughItsStates_data()
{
    QTest::addColumn<QStringList>("expected");
    const auto add = [](const char *name, const char *trace) {
        QTest::newRow(name) << QString(QLatin1String(trace)).split(QStringLiteral(", "));
    };

    add("no view: requests do nothing", "A later: none, A now: none, view changed: none");
    add("created: all ways out",
        "create: hidden, create: hidden, poll: hidden, view changed: hidden, "
        "closeQmlPopups: none, create: hidden, A later: hidden open");
    add("created: shown at once", "create: hidden, A now: shown");
    add("usual hover",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, poll: shown open, "
        "away: shown open, poll: shown open close, poll: shown open close, pass: none");
    add("waiting: the pointer has left",
        "create: hidden, A later: hidden open, poll: hidden open close, pass: hidden, "
        "poll: hidden");
    add("waiting: the pointer left and came back",
        "create: hidden, A later: hidden open, poll: hidden open close, to A: hidden open close, "
        "pass: hidden open, poll: shown open");
    add("waiting: shown before the close time has passed",
        "create: hidden, A later: hidden open, poll: hidden open close, to A: hidden open close, "
        "poll: shown open");
    add("waiting: closed", "create: hidden, A later: hidden open, closeQmlPopups: none");
    add("waiting: the view changes",
        "create: hidden, to A: hidden, A later: hidden open, view changed: hidden, poll: hidden");
    add("waiting: the same again", "create: hidden, A later: hidden open, A later: hidden open");
    add("waiting: shown at once",
        "create: hidden, A later: hidden open, A now: shown open, poll: shown open close, "
        "pass: none");
    add("waiting: another rectangle",
        "create: hidden, to A: hidden, A later: hidden open, B later: hidden open, "
        "poll: hidden open close, to B: hidden open close, poll: shown open");
    add("visible: over the popup",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "to popup: shown open, poll: shown open, away: shown open, poll: shown open close, "
        "to popup: shown open close, pass: shown open, poll: shown open");
    add("visible: back on the rectangle",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, away: shown open, "
        "poll: shown open close, to A: shown open close, pass: shown open");
    add("visible: escape",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, escape: none");
    add("visible: closed",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "closeQmlPopups: none");
    add("visible: the application is left",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "leave application: none");
    add("visible: the same rectangle",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "A later: shown open");
    add("visible: another rectangle",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, to B: shown open, "
        "B later: shown open pending, poll: shown open close pending, pass: hidden open, "
        "poll: shown open, away: shown open, poll: shown open close, to B: shown open close, "
        "pass: shown open, away: shown open, poll: shown open close, pass: none");
    add("visible: another rectangle and back",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "B later: shown open pending, A later: shown open pending, poll: shown open pending");
    add("visible: another rectangle, which is left too",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, to B: shown open, "
        "B later: shown open pending, poll: shown open close pending, pass: hidden open, "
        "away: hidden open, poll: hidden open close, pass: none");
    add("waiting: the pointer is where the hidden popup was",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, to B: shown open, "
        "B later: shown open pending, poll: shown open close pending, pass: hidden open, "
        "to popup: hidden open, poll: hidden open close");
    add("visible: another rectangle, escape",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "B later: shown open pending, escape: none");
    add("visible: another rectangle at once",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, B now: shown open");
    add("visible: the view changes",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "view changed: shown, away: shown, poll: shown, A later: shown open, "
        "poll: shown open close, pass: none");
    add("visible: the view changes while a request waits",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, "
        "B later: shown open pending, view changed: shown open, to B: shown open, "
        "poll: shown open");
    add("visible at once: all ways out",
        "create: hidden, A now: shown, away: shown, A now: shown, B now: shown, escape: none, "
        "create: hidden, A now: shown, closeQmlPopups: none, create: hidden, A now: shown, "
        "leave application: none");
    add("visible at once: a hover begins",
        "create: hidden, A now: shown, B later: shown open, poll: shown open close, pass: none");
    add("closing: the view changes",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, away: shown open, "
        "poll: shown open close, view changed: shown close, pass: none");
    add("closing: escape",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, away: shown open, "
        "poll: shown open close, escape: none");
    add("closing: closed",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, away: shown open, "
        "poll: shown open close, closeQmlPopups: none");
    add("closing: the application is left",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, away: shown open, "
        "poll: shown open close, leave application: none");
    add("closing: the same rectangle, later and at once",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, away: shown open, "
        "poll: shown open close, A later: shown open close, A now: shown open close, pass: none");
    add("closing, not shown yet: another rectangle",
        "create: hidden, A later: hidden open, poll: hidden open close, to B: hidden open close, "
        "B later: hidden open close, poll: shown open");
    add("closing, not shown yet: shown at once",
        "create: hidden, A later: hidden open, poll: hidden open close, A now: shown open");
    add("closing, not shown yet: closed",
        "create: hidden, A later: hidden open, poll: hidden open close, closeQmlPopups: none");
    add("closing, not shown yet: the view changes",
        "create: hidden, A later: hidden open, poll: hidden open close, view changed: hidden "
        "close, "
        "pass: hidden");
    add("closing: another rectangle",
        "create: hidden, to A: hidden, A later: hidden open, poll: shown open, to B: shown open, "
        "poll: shown open close, B later: shown open close pending, pass: hidden open, "
        "poll: shown open");
    add("inactive: nothing opens",
        "create: hidden, to A: hidden, leave application: hidden, A now: hidden close, "
        "pass: hidden, A later: hidden open, poll: hidden open close, pass: hidden open, "
        "poll: hidden open close, enter application: hidden open close, poll: shown open");
    add("inactive: the close delay starts, whatever the pointer does",
        "create: hidden, stays when inactive: hidden, to A: hidden, A later: hidden open, "
        "poll: shown open, leave application: shown open, poll: shown open close, "
        "pass: shown open, poll: shown open close, away: shown open close, pass: none");
    add("without close timer",
        "create: hidden, no close timer: hidden, to A: hidden, A later: hidden open, "
        "poll: shown open, away: shown open, poll: none");
    add("without open timer",
        "create: hidden, no open timer: hidden, to A: hidden, A later: hidden, A now: shown, "
        "view changed: shown, escape: none");
}

void tst_PopupContext_States::goesThroughItsStates()
{
    QFETCH(const QStringList, expected);
    PopupTrace trace;
    QStringList found;
    for (const QString &step : expected) {
        const QString name = step.section(QStringLiteral(": "), 0, 0);
        QVERIFY2(steps().contains(name), qPrintable(name));
        steps().value(name)(trace);
        found += name + QStringLiteral(": ") + trace.state();
    }
    QCOMPARE(found.join(QStringLiteral(",\n")), expected.join(QStringLiteral(",\n")));
}

UIELEMENTS_TEST_MAIN(tst_PopupContext_States)
#include "tst_popupcontext_states.moc"

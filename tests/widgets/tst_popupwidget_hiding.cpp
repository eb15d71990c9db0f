// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "support/TestApplication.h"

#include <QTimer>

using PopupParts::data;
using PopupParts::FilledPopup;
using PopupParts::nearMiddle;
using PopupParts::SourceWindow;

namespace {

int timersOf(const QObject &object) { return object.findChildren<QTimer *>().size(); }

} // namespace

/// What hides a popup, besides the activation of another window.
class tst_PopupWidgetHiding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void hidesOnEscapeWithItsSignalsInOrder();
    void passesOtherKeysOn();
    void ignoresKeysOfOthers();
    void tellsOfThePointer();
    void hidesAfterItsTime();
    void hasNoTimerWithoutATime_data();
    void hasNoTimerWithoutATime();
    void hidesWhenItsSourceMoves();
    void staysWhenItsSourceMoves();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidgetHiding::hidesOnEscapeWithItsSignalsInOrder()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    SignalLog log;
    PopupParts::record(log, &popup);
    connect(&popup, &PopupWidget::popupDismissed, &popup, [&] { QVERIFY(popup.isVisible()); });
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QVERIFY(QCoreApplication::sendEvent(&popup, &escape));
    QCOMPARE(log.take(), QStringLiteral("popupDismissed | widgetHidden"));
    QVERIFY(!popup.isVisible());
    popup.showSmooth();
    log.take();
    QTest::keyClick(popup.content, Qt::Key_Escape); // The content passes it on.
    QCOMPARE(log.take(), QStringLiteral("popupDismissed | widgetHidden"));
}

void tst_PopupWidgetHiding::passesOtherKeysOn()
{
    FilledPopup popup;
    popup.showSmooth(nearMiddle);
    SignalLog log;
    PopupParts::record(log, &popup);
    QTest::keyClick(&popup, Qt::Key_Return);
    QTest::keyRelease(&popup, Qt::Key_Escape);
    QCOMPARE(log.take(), QString());
    QVERIFY(popup.isVisible());
}

void tst_PopupWidgetHiding::ignoresKeysOfOthers()
{
    FilledPopup popup;
    QWidget other;
    other.installEventFilter(&popup);
    popup.showSmooth(nearMiddle);
    QTest::keyClick(&other, Qt::Key_Escape);
    QVERIFY(popup.isVisible());
}

void tst_PopupWidgetHiding::tellsOfThePointer()
{
    FilledPopup popup;
    SignalLog log;
    PopupParts::record(log, &popup);
    const QPointF place;
    QEnterEvent enter(place, place, place);
    QCoreApplication::sendEvent(&popup, &enter);
    QCOMPARE(log.take(), QStringLiteral("widgetHoverEntered"));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&popup, &leave);
    QCOMPARE(log.take(), QStringLiteral("widgetHoverLeaved"));
}

void tst_PopupWidgetHiding::hidesAfterItsTime()
{
    FilledPopup popup(data().dismissTimerTicks(20));
    QTimer *timer = popup.findChild<QTimer *>();
    QVERIFY(timer && timer->isSingleShot() && !timer->isActive());
    popup.showSmooth(nearMiddle);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 20);
    QTRY_VERIFY(!popup.isVisible());
    popup.showSmooth();
    QVERIFY(timer->isActive()); // Again.
    popup.hide();
    popup.show();
    QTRY_VERIFY(!timer->isActive());
}

void tst_PopupWidgetHiding::hasNoTimerWithoutATime_data()
{
    QTest::addColumn<int>("ticks");
    QTest::newRow("0") << 0;
    QTest::newRow("below 0") << -5;
}

void tst_PopupWidgetHiding::hasNoTimerWithoutATime()
{
    QFETCH(const int, ticks);
    FilledPopup popup(data().dismissTimerTicks(ticks));
    QCOMPARE(timersOf(popup), 0);
    popup.showSmooth(nearMiddle);
    QCOMPARE(timersOf(popup), 0);
}

void tst_PopupWidgetHiding::hidesWhenItsSourceMoves()
{
    struct Window : SourceWindow
    {
        int moves = 0;
        void moveEvent(QMoveEvent *) override { ++moves; }
    };
    Window window;
    window.show();
    FilledPopup popup(data().dismissPopupOnSourceMove(true), &window.button);
    popup.showSmooth(&window.button);
    window.button.move(5, 5); // Its window counts.
    QVERIFY(popup.isVisible());
    window.moves = 0;
    window.move(window.pos() + QPoint(10, 0));
    QTRY_VERIFY(!popup.isVisible());
    QVERIFY(window.moves > 0); // It is told too.
}

void tst_PopupWidgetHiding::staysWhenItsSourceMoves()
{
    SourceWindow window;
    window.show();
    FilledPopup popup(data().autoDismiss(false), &window.button);
    // Nothing to watch.
    FilledPopup orphan(data().autoDismiss(false).dismissPopupOnSourceMove(true));
    popup.showSmooth(&window.button);
    orphan.showSmooth(&window.button);
    window.move(window.pos() + QPoint(10, 0));
    QCoreApplication::processEvents();
    QVERIFY(popup.isVisible());
    QVERIFY(orphan.isVisible());
}

UIELEMENTS_TEST_MAIN(tst_PopupWidgetHiding)
#include "tst_popupwidget_hiding.moc"

// SPDX-License-Identifier: Apache-2.0
#include "FocusScenes.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QSignalSpy>
#include <qpa/qwindowsysteminterface.h>

namespace {

constexpr char countingKeys[] = R"(
    import QtQuick 2.15
    Item {
        id: root
        property int tabs: 0
        width: 100; height: 40
        Item {
            id: first
            activeFocusOnTab: true
            Keys.onTabPressed: { ++root.tabs; event.accepted = false; }
            Keys.onBacktabPressed: { ++root.tabs; event.accepted = false; }
        }
        Item { id: breakQmlFocus; activeFocusOnTab: true }
    })";

constexpr char withoutBorder[] = R"(
    import QtQuick 2.15
    Item {
        id: root
        width: 100; height: 40
        Item { id: first; activeFocusOnTab: true }
        Item { id: second; activeFocusOnTab: true }
    })";

constexpr char onlyTheBorder[] = R"(
    import QtQuick 2.15
    Item {
        width: 100; height: 40
        Item { id: breakQmlFocus; activeFocusOnTab: true }
    })";

constexpr char borderInsideAndOutside[] = R"(
    import QtQuick 2.15
    Item {
        id: root
        width: 100; height: 40
        component Part: Item {
            Item { id: inside; activeFocusOnTab: true }
            Item { id: breakQmlFocus; activeFocusOnTab: true }
        }
        Part { }
        Item { id: outside; activeFocusOnTab: true }
        Item { id: breakQmlFocus; activeFocusOnTab: true }
    })";

/// Records why it gets the focus.
class RecordingWidget : public OxaQuickWidget
{
public:
    using OxaQuickWidget::OxaQuickWidget;

    QVector<Qt::FocusReason> reasons;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        reasons += event->reason();
        OxaQuickWidget::focusInEvent(event);
    }
};

/// Sends \a widget the event of a changed focus.
void sendFocus(QWidget &widget, QEvent::Type type, Qt::FocusReason reason = Qt::OtherFocusReason)
{
    QFocusEvent event(type, reason);
    QCoreApplication::sendEvent(&widget, &event);
}

void sendFocusAboutToChange(QWidget &widget)
{
    QEvent event(QEvent::FocusAboutToChange);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_OxaQuickWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<OxaQmlEngine>(nullptr); }

    void startsWithItsDefaults();
    void movesTheFocusThroughQmlAndOut();
    void movesTheFocusBackThroughQmlAndOut();
    void comesBackToTheItemAfterTheBorder();
    void comesBackToTheFirstOfTwoBorders();
    void comesBackToItsLastItemWithoutABorder();
    void keepsEveryTabWithoutCustomAccessibility();
    void keepsEveryTabWithoutABorder();
    void staysOutOfQmlWithTheBorderAlone();
    void keepsOtherKeysInQml();
    void leavesAnItemThatIsHidden();
    void forgetsABorderThatDies();
    void takesTheFocusAgainOnceItsWindowIsActive_data();
    void takesTheFocusAgainOnceItsWindowIsActive();
    void asksForTheFocusAgainAsForAnActiveWindow_data();
    void asksForTheFocusAgainAsForAnActiveWindow();
    void asksForNoFocusAgainInTheFocusWindow();
    void tellsOfAFocusThatChangesOnlyWhereEnabled();

private:
    std::unique_ptr<OxaQmlEngine> m_engine;
};

void tst_OxaQuickWidget::startsWithItsDefaults()
{
    QWidget parent;
    const OxaQuickWidget plain(&parent);
    QCOMPARE(plain.parentWidget(), &parent);
    QVERIFY(!plain.isCustomAccessibilityEnabled());
    QVERIFY(!plain.getPerformanceWatcherEnabled());
    QCOMPARE(plain.quickWindow()->title(), QString());
    const OxaQuickWidget widget(m_engine.get(), &parent);
    QCOMPARE(widget.engine(), m_engine.get());
    QCOMPARE(widget.quickWindow()->title(), QString());
}

void tst_OxaQuickWidget::movesTheFocusThroughQmlAndOut()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    for (const char *expected : { "first", "second", "after", "before", "first" }) {
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
        QTRY_COMPARE(scene.focus(), QString::fromLatin1(expected));
    }
}

void tst_OxaQuickWidget::movesTheFocusBackThroughQmlAndOut()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    scene.quick->setFocus();
    QTRY_COMPARE(scene.focus(), QStringLiteral("first"));
    for (const char *expected : { "before", "after", "first", "before" }) {
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
        QTRY_COMPARE(scene.focus(), QString::fromLatin1(expected));
    }
}

void tst_OxaQuickWidget::comesBackToTheItemAfterTheBorder()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    // It left from the second item.
    QuickViews::FocusReasons log;
    scene.quick->rootObject()->childItems().constFirst()->installEventFilter(&log);
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("first"));
    QCOMPARE(log.reasons, QVector<Qt::FocusReason> { Qt::BacktabFocusReason });
}

void tst_OxaQuickWidget::comesBackToTheFirstOfTwoBorders()
{
    FocusScene scene(m_engine.get(), borderInsideAndOutside);
    QVERIFY(scene.show());
    for (const char *expected : { "inside", "after" }) {
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
        QTRY_COMPARE(scene.focus(), QString::fromLatin1(expected));
    }
    for (int round = 0; round < 2; ++round) {
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
        QTRY_COMPARE(scene.focus(), QStringLiteral("outside"));
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab); // By the other border.
        QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    }
}

void tst_OxaQuickWidget::comesBackToItsLastItemWithoutABorder()
{
    FocusScene scene(m_engine.get(), withoutBorder);
    QVERIFY(scene.show());
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("second"));
    scene.after->setFocus();
    QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    scene.quick->setFocus();
    QTRY_COMPARE(scene.focus(), QStringLiteral("second"));
}

void tst_OxaQuickWidget::keepsEveryTabWithoutCustomAccessibility()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    scene.quick->setCustomAccessibilityEnabled(false);
    QVERIFY(scene.show());
    scene.quick->setFocus();
    QTRY_COMPARE(scene.focus(), QStringLiteral("quick")); // It looks for no item.
    for (const char *expected : { "first", "second", "breakQmlFocus", "first" }) {
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
        QTRY_COMPARE(scene.focus(), QString::fromLatin1(expected));
    }
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("breakQmlFocus"));
}

void tst_OxaQuickWidget::keepsEveryTabWithoutABorder()
{
    FocusScene scene(m_engine.get(), withoutBorder);
    QVERIFY(scene.show());
    for (const char *expected : { "first", "second", "first", "second" }) {
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
        QTRY_COMPARE(scene.focus(), QString::fromLatin1(expected));
    }
}

void tst_OxaQuickWidget::staysOutOfQmlWithTheBorderAlone()
{
    FocusScene scene(m_engine.get(), onlyTheBorder);
    QVERIFY(scene.show());
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_VERIFY(scene.quick->hasFocus());
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
    QTRY_VERIFY(scene.quick->hasFocus());
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("before"));
}

void tst_OxaQuickWidget::keepsOtherKeysInQml()
{
    FocusScene scene(m_engine.get(), countingKeys);
    QVERIFY(scene.show());
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("first"));
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_A);
    QCOMPARE(scene.focus(), QStringLiteral("first"));
    // A Tab that leaves is not seen in the QML.
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    QCOMPARE(scene.quick->rootObject()->property("tabs").toInt(), 0);
}

void tst_OxaQuickWidget::leavesAnItemThatIsHidden()
{
    FocusScene scene(m_engine.get(), R"(
        import QtQuick 2.15
        Item {
            id: root
            width: 100; height: 40
            focus: true
            Item { id: breakQmlFocus; activeFocusOnTab: true }
        })");
    QVERIFY(scene.show());
    scene.quick->setFocus();
    scene.quick->rootObject()->forceActiveFocus();
    QTRY_COMPARE(scene.focus(), QStringLiteral("root"));
    scene.quick->rootObject()->setVisible(false);
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("before"));
}

void tst_OxaQuickWidget::forgetsABorderThatDies()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("after"));
    delete scene.quick->rootObject()->childItems().constLast();
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Backtab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("second")); // Where it was.
    QTest::keyClick(scene.window.windowHandle(), Qt::Key_Tab);
    QTRY_COMPARE(scene.focus(), QStringLiteral("first"));
}

void tst_OxaQuickWidget::takesTheFocusAgainOnceItsWindowIsActive_data()
{
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with the focus") << false << QStringLiteral("first");
    QTest::newRow("unless the focus left meanwhile") << true << QString();
}

void tst_OxaQuickWidget::takesTheFocusAgainOnceItsWindowIsActive()
{
    QFETCH(const bool, leaves);
    QFETCH(const QString, expected);
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    QWindow other;
    QVERIFY(QuickViews::showActive(other));
    // Qt gives no item the focus while the window is not the focus window.
    sendFocus(*scene.quick, QEvent::FocusIn);
    QVERIFY(!scene.quick->quickWindow()->activeFocusItem());
    QSignalSpy changes(scene.quick, &OxaQuickWidget::focusAboutToChange);
    sendFocusAboutToChange(*scene.quick);
    QCOMPARE(changes.size(), 1);
    if (leaves)
        sendFocus(*scene.quick, QEvent::FocusOut);
    scene.window.windowHandle()->requestActivate();
    QWindowSystemInterface::flushWindowSystemEvents();
    QCOMPARE(QGuiApplication::focusWindow(), scene.window.windowHandle());
    QVERIFY(!scene.quick->quickWindow()->activeFocusItem());
    QCoreApplication::processEvents(); // It tries again now.
    QCOMPARE(scene.activeItem(), expected);
    sendFocusAboutToChange(*scene.quick);
    QCOMPARE(changes.size(), 1);
}

void tst_OxaQuickWidget::asksForTheFocusAgainAsForAnActiveWindow_data()
{
    QTest::addColumn<bool>("isDisabled");
    QTest::newRow("later") << false;
    QTest::newRow("unless it was disabled meanwhile") << true;
}

void tst_OxaQuickWidget::asksForTheFocusAgainAsForAnActiveWindow()
{
    QFETCH(const bool, isDisabled);
    RecordingWidget widget(m_engine.get(), nullptr);
    widget.setCustomAccessibilityEnabled(true);
    QWindow other;
    QVERIFY(QuickViews::showActive(other));
    sendFocus(widget, QEvent::FocusIn, Qt::MouseFocusReason);
    sendFocusAboutToChange(widget);
    widget.setCustomAccessibilityEnabled(!isDisabled);
    QVector<Qt::FocusReason> expected { Qt::MouseFocusReason };
    QCOMPARE(widget.reasons, expected);
    QCoreApplication::processEvents();
    if (!isDisabled)
        expected += Qt::ActiveWindowFocusReason;
    QCOMPARE(widget.reasons, expected);
}

void tst_OxaQuickWidget::asksForNoFocusAgainInTheFocusWindow()
{
    FocusScene scene(m_engine.get(), FocusScene::twoItems);
    QVERIFY(scene.show());
    QSignalSpy changes(scene.quick, &OxaQuickWidget::focusAboutToChange);
    scene.quick->setFocus();
    QTRY_COMPARE(scene.focus(), QStringLiteral("first"));
    sendFocusAboutToChange(*scene.quick);
    QCOMPARE(changes.size(), 0);
}

void tst_OxaQuickWidget::tellsOfAFocusThatChangesOnlyWhereEnabled()
{
    OxaQuickWidget widget(m_engine.get(), nullptr);
    QSignalSpy changes(&widget, &OxaQuickWidget::focusAboutToChange);
    QWindow other;
    QVERIFY(QuickViews::showActive(other));
    sendFocus(widget, QEvent::FocusIn);
    sendFocusAboutToChange(widget);
    QCOMPARE(changes.size(), 0);
    widget.setCustomAccessibilityEnabled(true);
    QVERIFY(widget.isCustomAccessibilityEnabled());
    sendFocus(widget, QEvent::FocusIn);
    sendFocusAboutToChange(widget);
    QCOMPARE(changes.size(), 1);
}

UIELEMENTS_TEST_MAIN(tst_OxaQuickWidget)
#include "tst_oxaquickwidget.moc"

// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaPushButton.h>

#include <QDialog>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

namespace {

/// A window with two buttons side by side, and a log of the first one's signals.
class Window : public QDialog
{
public:
    Window() : first(QStringLiteral("first"), this), second(QStringLiteral("second"), this)
    {
        resize(300, 100);
        first.setGeometry(10, 10, 100, 40);
        second.setGeometry(150, 10, 100, 40);
        log.record(&first, &OxaPushButton::pressed, QStringLiteral("pressed"));
        log.record(&first, &OxaPushButton::released, QStringLiteral("released"));
        log.record(&first, &OxaPushButton::clicked, QStringLiteral("clicked"));
        log.record(&first, &OxaPushButton::longPressed, QStringLiteral("longPressed"));
        log.record(&first, &OxaPushButton::rightClick, QStringLiteral("rightClick"));
        log.record(&first, &OxaPushButton::mouseEntered, QStringLiteral("mouseEntered"));
        log.record(&first, &OxaPushButton::mouseExited, QStringLiteral("mouseExited"));
        log.record(&first, &OxaPushButton::onFocusIn, QStringLiteral("onFocusIn"));
        log.record(&first, &OxaPushButton::onFocusOut, QStringLiteral("onFocusOut"));
    }

    /// Shows the window with the focus on the second button and an empty log.
    bool appear()
    {
        QCursor::setPos(0, 0);
        move(200, 200);
        if (!Windows::activate(*this))
            return false;
        second.setFocus();
        log.take();
        return true;
    }

    QTimer *timer() const { return first.findChild<QTimer *>(); }

    OxaPushButton first;
    OxaPushButton second;
    SignalLog log;
};

} // namespace

/// Mouse, keys and focus, as Qt Test sends them.
class tst_OxaPushButtonInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stores = std::make_unique<StoreGuard>(OxaColorSetMap()); }
    void cleanupTestCase() { m_stores.reset(); }

    void clicksWhenItIsReleasedEarly();
    void isLongPressedOnceAfterHalfASecond();
    void isLongPressedAgain();
    void isNotLongPressedUnlessEnabled();
    void isNotLongPressedByAKey();
    void isNotLongPressedWhileThePointerIsOff();
    void startsTheTimerForTheRightButtonToo();
    void emitsRightClickBeforeQtHandlesThePress();
    void emitsNoRightClickWhileDisabled();
    void mayBeDeletedByARightClick();
    void clicksByItsKeys();
    void emitsFocusSignalsBeforeQtHandlesTheFocus();
    void emitsSignalsWhenThePointerEntersAndLeaves();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPushButtonInput::clicksWhenItIsReleasedEarly()
{
    Window window;
    window.first.setLongPressEnabled(true);
    QVERIFY(window.appear());
    window.first.setFocusPolicy(Qt::NoFocus);
    QTest::mousePress(&window.first, Qt::LeftButton);
    QVERIFY(window.timer()->isActive());
    QTest::mouseRelease(&window.first, Qt::LeftButton);
    QVERIFY(!window.timer()->isActive());
    QCOMPARE(window.log.take(), QStringLiteral("pressed | released | clicked"));
}

void tst_OxaPushButtonInput::isLongPressedOnceAfterHalfASecond()
{
    Window window;
    window.first.setLongPressEnabled(true);
    QVERIFY(window.appear());
    window.first.setFocusPolicy(Qt::NoFocus);
    QElapsedTimer elapsed;
    QSignalSpy longPressed(&window.first, &OxaPushButton::longPressed);
    elapsed.start();
    QTest::mousePress(&window.first, Qt::LeftButton);
    const QTimer *timer = window.timer();
    QVERIFY(timer);
    QCOMPARE(timer->interval(), 500);
    QVERIFY(timer->isSingleShot());
    QVERIFY(longPressed.wait());
    QVERIFY(elapsed.elapsed() >= 500);
    QVERIFY(!window.first.isDown());
    QTest::mouseRelease(&window.first, Qt::LeftButton);
    QCOMPARE(window.log.take(), QStringLiteral("pressed | longPressed"));
}

void tst_OxaPushButtonInput::isLongPressedAgain()
{
    Window window;
    window.first.setLongPressEnabled(true);
    QVERIFY(window.appear());
    for (int i = 0; i < 2; ++i) {
        QSignalSpy longPressed(&window.first, &OxaPushButton::longPressed);
        QTest::mousePress(&window.first, Qt::LeftButton);
        QVERIFY(longPressed.wait());
        QTest::mouseRelease(&window.first, Qt::LeftButton);
    }
    QCOMPARE(window.first.findChildren<QTimer *>().size(), 1);
}

void tst_OxaPushButtonInput::isNotLongPressedUnlessEnabled()
{
    Window window;
    QVERIFY(window.appear());
    QTest::mousePress(&window.first, Qt::LeftButton);
    QVERIFY(!window.timer());
    QTest::mouseRelease(&window.first, Qt::LeftButton);
}

void tst_OxaPushButtonInput::isNotLongPressedByAKey()
{
    Window window;
    window.first.setLongPressEnabled(true);
    QVERIFY(window.appear());
    QTest::keyPress(&window.first, Qt::Key_Space);
    QVERIFY(!window.timer());
    QTest::keyRelease(&window.first, Qt::Key_Space);
    QCOMPARE(window.log.take(), QStringLiteral("pressed | released | clicked"));
}

void tst_OxaPushButtonInput::isNotLongPressedWhileThePointerIsOff()
{
    Window window;
    window.first.setLongPressEnabled(true);
    QVERIFY(window.appear());
    window.first.setFocusPolicy(Qt::NoFocus);
    QTest::mousePress(&window.first, Qt::LeftButton);
    QMouseEvent away(QEvent::MouseMove, QPointF(200, 200), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&window.first, &away);
    QVERIFY(!window.first.isDown());
    QTRY_VERIFY(!window.timer()->isActive());
    QTest::mouseRelease(&window.first, Qt::LeftButton, Qt::NoModifier, QPoint(200, 200));
    QCOMPARE(window.log.take(), QStringLiteral("pressed | released"));
}

void tst_OxaPushButtonInput::startsTheTimerForTheRightButtonToo()
{
    Window window;
    window.first.setLongPressEnabled(true);
    QVERIFY(window.appear());
    window.first.setFocusPolicy(Qt::NoFocus);
    QTest::mousePress(&window.first, Qt::RightButton);
    QCOMPARE(window.log.take(), QStringLiteral("rightClick"));
    QVERIFY(window.timer()->isActive());
    QTRY_VERIFY(!window.timer()->isActive());
    QTest::mouseRelease(&window.first, Qt::RightButton);
    // The button was never down.
    QCOMPARE(window.log.take(), QString());
}

void tst_OxaPushButtonInput::emitsRightClickBeforeQtHandlesThePress()
{
    OxaPushButton button;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    QStringList accepted;
    connect(&button, &OxaPushButton::rightClick, &button, [&] {
        accepted += press.isAccepted() ? QStringLiteral("accepted") : QStringLiteral("ignored");
    });
    QCoreApplication::sendEvent(&button, &press);
    QCOMPARE(accepted, { QStringLiteral("accepted") });
    QVERIFY(!press.isAccepted()); // Buttons ignore other mouse buttons than the left one.
}

void tst_OxaPushButtonInput::emitsNoRightClickWhileDisabled()
{
    OxaPushButton button;
    button.setEnabled(false);
    const QSignalSpy rightClick(&button, &OxaPushButton::rightClick);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &press);
    QCOMPARE(rightClick.size(), 0);
}

void tst_OxaPushButtonInput::mayBeDeletedByARightClick()
{
    // A slot may open a menu that has an action which removes the button.
    const QPointer<OxaPushButton> button = new OxaPushButton;
    button->setLongPressEnabled(true);
    connect(button, &OxaPushButton::rightClick, this, [&] { delete button; });
    // QTest::mousePress() would expect a release.
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(button, &press);
    QVERIFY(!button);
}

void tst_OxaPushButtonInput::clicksByItsKeys()
{
    Window window;
    QVERIFY(window.appear());
    QTest::keyClick(&window.first, Qt::Key_Space);
    QCOMPARE(window.log.take(), QStringLiteral("pressed | released | clicked"));
    // In a dialog an auto-default button takes these keys as well.
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter }) {
        QTest::keyClick(&window.first, key);
        QCOMPARE(window.log.take(), QStringLiteral("pressed | released | clicked"));
    }
    QTest::keyClick(&window.first, Qt::Key_A);
    QCOMPARE(window.log.take(), QString());
}

void tst_OxaPushButtonInput::emitsFocusSignalsBeforeQtHandlesTheFocus()
{
    Window window;
    QVERIFY(window.appear());
    window.first.setFocus();
    QCOMPARE(window.log.take(), QStringLiteral("onFocusIn"));
    const auto note = [&window](const QString &signal) {
        window.log.note(signal
                        + (window.second.isDefault() ? QStringLiteral(" as default")
                                                     : QStringLiteral(" as usual")));
    };
    connect(&window.second, &OxaPushButton::onFocusIn, &window,
            [&] { note(QStringLiteral("in")); });
    connect(&window.second, &OxaPushButton::onFocusOut, &window,
            [&] { note(QStringLiteral("out")); });
    // Qt makes an auto-default button the dialog's default while it has the focus.
    window.second.setFocus();
    QVERIFY(window.second.isDefault());
    QCOMPARE(window.log.take(), QStringLiteral("onFocusOut | in as usual"));
    window.first.setFocus();
    QVERIFY(!window.second.isDefault());
    QCOMPARE(window.log.take(), QStringLiteral("out as default | onFocusIn"));
}

void tst_OxaPushButtonInput::emitsSignalsWhenThePointerEntersAndLeaves()
{
    Window window;
    QVERIFY(window.appear());
    QTest::mouseMove(&window.first);
    QTRY_VERIFY(window.first.underMouse());
    QCOMPARE(window.log.take(), QStringLiteral("mouseEntered"));
    QTest::mouseMove(&window.second);
    QTRY_VERIFY(!window.first.underMouse());
    QCOMPARE(window.log.take(), QStringLiteral("mouseExited"));
}

UIELEMENTS_TEST_MAIN(tst_OxaPushButtonInput)
#include "tst_oxapushbutton_input.moc"

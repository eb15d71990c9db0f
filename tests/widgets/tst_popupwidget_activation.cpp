// SPDX-License-Identifier: Apache-2.0
#include "PopupParts.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QApplication>
#include <QDialog>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QWindow>

using PopupParts::data;
using PopupParts::makeContent;
using PopupParts::SourceWindow;
using Windows::showActive;

namespace {

/// Lets the rules run that follow a change of the active window.
void settle()
{
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
}

/// An active window with a button that has the focus, and another window beside it.
struct Desktop
{
    SourceWindow window;
    QWidget other;

    Desktop()
    {
        other.setGeometry(700, 500, 200, 150);
        window.button.setFocusPolicy(Qt::StrongFocus);
        if (!showActive(other) || !showActive(window))
            qFatal("The windows do not become active.");
        window.button.setFocus();
    }
};

/// An active popup of the button.
struct Scene : Desktop
{
    PopupWidget *popup;

    explicit Scene(const WidgetData &widgetData)
        : popup(PopupWidget::createAndShow(&window.button, makeContent(), widgetData))
    {
        if (!showActive(*popup)) // The window manager leaves that to a tool window itself.
            qFatal("The popup does not become active.");
        settle();
    }

    /// Returns a dialog of the popup's content.
    QDialog *dialog() const
    {
        auto *dialog = new QDialog(popup->getRegisterWidget());
        dialog->setGeometry(700, 200, 100, 80);
        return dialog;
    }
};

/// Makes \a window a QML window that covers \a popup.
void cover(QQuickWindow &window, const PopupWidget &popup)
{
    window.setGeometry(popup.geometry().translated(30, 30));
}

} // namespace

/// What happens to a popup when windows are activated, on a real desktop.
class tst_PopupWidgetActivation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(PopupParts::store()); }
    void cleanup() { m_stores.reset(); }

    void isActivatedIfAsked();
    void hidesWhenAnotherWindowIsActivated_data();
    void hidesWhenAnotherWindowIsActivated();
    void hidesWhenItsParentIsActivated_data();
    void hidesWhenItsParentIsActivated();
    void hidesWithoutHavingBeenActive();
    void hidesOnARealClickElsewhere();
    void hidesWhenTheApplicationIsLeft();
    void staysWhileAWindowInsideItIsActive();
    void hidesWhenTheWindowInsideItIsLeft_data();
    void hidesWhenTheWindowInsideItIsLeft();
    void staysWhileAQmlWindowCoversIt();
    void hidesForOtherQmlWindows_data();
    void hidesForOtherQmlWindows();
    void hidesWhenTheQmlWindowIsLeft();
    void isNotHiddenInAHiddenWindow();
    void handsTheActivationToAWindowInsideIt_data();
    void handsTheActivationToAWindowInsideIt();
    void givesTheFocusBackToItsButton();
    void tellsOfTheRealPointer();
    void hidesOnARealEscape();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_PopupWidgetActivation::isActivatedIfAsked()
{
    SourceWindow window;
    PopupWidget *popup = PopupWidget::create(&window.button, makeContent(),
                                             data().activateOnShow(true).autoDismiss(false));
    popup->setAttribute(Qt::WA_ShowWithoutActivating);
    popup->showSmooth(&window.button);
    QTRY_COMPARE(QApplication::activeWindow(), popup);
}

void tst_PopupWidgetActivation::hidesWhenAnotherWindowIsActivated_data()
{
    QTest::addColumn<bool>("isAutoDismissed");
    QTest::addColumn<bool>("isHiddenWithParentFocused");
    QTest::addColumn<bool>("isFocusSkipped");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("by default") << true << true << false << true;
    QTest::newRow("without a look at the focus") << true << true << true << true;
    QTest::newRow("the focus is not in its parent") << true << false << false << true;
    QTest::newRow("wherever the focus is") << true << false << true << false;
    QTest::newRow("never") << false << true << false << false;
}

void tst_PopupWidgetActivation::hidesWhenAnotherWindowIsActivated()
{
    QFETCH(const bool, isAutoDismissed);
    QFETCH(const bool, isHiddenWithParentFocused);
    QFETCH(const bool, isFocusSkipped);
    QFETCH(const bool, isHidden);
    Scene scene(data().autoDismiss(isAutoDismissed)
                        .dismissWithParentFocused(isHiddenWithParentFocused)
                        .skipDeepFocusCheck(isFocusSkipped)
                        .focusSourceOnClose(false));
    QVERIFY(showActive(scene.other));
    settle();
    QCOMPARE(scene.popup->isHidden(), isHidden);
}

void tst_PopupWidgetActivation::hidesWhenItsParentIsActivated_data()
{
    QTest::addColumn<bool>("isHiddenWithParentFocused");
    QTest::newRow("whatever has the focus") << true;
    QTest::newRow("unless its parent has the focus") << false;
}

void tst_PopupWidgetActivation::hidesWhenItsParentIsActivated()
{
    QFETCH(const bool, isHiddenWithParentFocused);
    Scene scene(
            data().dismissWithParentFocused(isHiddenWithParentFocused).focusSourceOnClose(false));
    QVERIFY(showActive(scene.window));
    QVERIFY(scene.window.button.hasFocus());
    settle();
    QCOMPARE(scene.popup->isHidden(), isHiddenWithParentFocused);
}

void tst_PopupWidgetActivation::hidesWithoutHavingBeenActive()
{
    Desktop desktop;
    PopupWidget *popup = PopupWidget::create(&desktop.window.button, makeContent(), data());
    popup->setAttribute(Qt::WA_ShowWithoutActivating);
    popup->showSmooth(&desktop.window.button);
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    settle();
    QVERIFY(popup->isVisible());
    QVERIFY(desktop.window.isActiveWindow());
    QVERIFY(showActive(desktop.other));
    QTRY_VERIFY(popup->isHidden());
}

void tst_PopupWidgetActivation::hidesOnARealClickElsewhere()
{
    Scene scene(data().focusSourceOnClose(false));
    QVERIFY(RealInput::click(scene.other, QPoint(100, 100)));
    QTRY_VERIFY(scene.popup->isHidden());
    QVERIFY(scene.other.isActiveWindow());
}

void tst_PopupWidgetActivation::hidesWhenTheApplicationIsLeft()
{
    const Scene scene(data().focusSourceOnClose(false));
    // Another program's window, as far as Qt knows: a window that Qt has not made.
    QProcess stranger;
    stranger.start(QStringLiteral("xev"), QStringList());
    QTRY_VERIFY(!QApplication::activeWindow());
    QTRY_VERIFY(scene.popup->isHidden());
    stranger.kill();
    stranger.waitForFinished();
}

void tst_PopupWidgetActivation::staysWhileAWindowInsideItIsActive()
{
    const Scene scene(data());
    QDialog *dialog = scene.dialog();
    QVERIFY(showActive(*dialog));
    settle();
    QVERIFY(scene.popup->isVisible());
    QVERIFY(showActive(*scene.popup));
    settle();
    QVERIFY(scene.popup->isVisible());
}

void tst_PopupWidgetActivation::hidesWhenTheWindowInsideItIsLeft_data()
{
    QTest::addColumn<bool>("isHiddenWithParentFocused");
    QTest::addColumn<bool>("isFocusSkipped");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("by default") << true << false << true;
    QTest::newRow("the focus is not in its parent") << false << false << true;
    QTest::newRow("wherever the focus is") << false << true << false;
}

void tst_PopupWidgetActivation::hidesWhenTheWindowInsideItIsLeft()
{
    QFETCH(const bool, isHiddenWithParentFocused);
    QFETCH(const bool, isFocusSkipped);
    QFETCH(const bool, isHidden);
    Scene scene(data().dismissWithParentFocused(isHiddenWithParentFocused)
                        .skipDeepFocusCheck(isFocusSkipped)
                        .focusSourceOnClose(false));
    QVERIFY(showActive(*scene.dialog()));
    settle();
    QVERIFY(scene.popup->isVisible());
    QVERIFY(showActive(scene.other));
    settle();
    QCOMPARE(scene.popup->isHidden(), isHidden);
}

void tst_PopupWidgetActivation::staysWhileAQmlWindowCoversIt()
{
    const Scene scene(data());
    QQuickWindow window;
    cover(window, *scene.popup);
    QVERIFY(showActive(window));
    settle();
    QVERIFY(scene.popup->isVisible());
}

void tst_PopupWidgetActivation::hidesForOtherQmlWindows_data()
{
    QTest::addColumn<bool>("isCovering");
    QTest::addColumn<bool>("isFrontLayer");
    QTest::newRow("one in the front layer") << true << true;
    QTest::newRow("one beside it") << false << false;
}

void tst_PopupWidgetActivation::hidesForOtherQmlWindows()
{
    QFETCH(const bool, isCovering);
    QFETCH(const bool, isFrontLayer);
    const Scene scene(data().focusSourceOnClose(false));
    QQuickWindow window;
    window.setProperty("isFrontLayer", isFrontLayer);
    cover(window, *scene.popup);
    if (!isCovering)
        window.setPosition(900, 100);
    QVERIFY(showActive(window));
    QTRY_VERIFY(scene.popup->isHidden());
}

void tst_PopupWidgetActivation::hidesWhenTheQmlWindowIsLeft()
{
    Scene scene(data().focusSourceOnClose(false));
    QQuickWindow window;
    cover(window, *scene.popup);
    QVERIFY(showActive(window));
    settle();
    QVERIFY(scene.popup->isVisible());
    QVERIFY(showActive(scene.other));
    QTRY_VERIFY(scene.popup->isHidden());
}

/// A client has put it into a window of its own.
void tst_PopupWidgetActivation::isNotHiddenInAHiddenWindow()
{
    Desktop desktop;
    PopupWidget *popup = PopupWidget::create(&desktop.window.button, makeContent(), data());
    popup->setParent(&desktop.window, Qt::Widget);
    popup->show();
    QQuickWindow window;
    cover(window, *popup);
    QVERIFY(showActive(window));
    settle();
    QVERIFY(popup->isVisible());
    desktop.window.hide();
    QVERIFY(showActive(desktop.other));
    settle();
    QVERIFY(!popup->isHidden()); // It is shown again with its window.
}

void tst_PopupWidgetActivation::handsTheActivationToAWindowInsideIt_data()
{
    QTest::addColumn<bool>("isReactivated");
    QTest::addColumn<bool>("isHiddenWithParentFocused");
    QTest::addColumn<bool>("isFocused");
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("with itself first") << true << true << false << false;
    QTest::newRow("alone") << false << true << false << false;
    QTest::newRow("with the focus in it") << true << false << true << false;
    QTest::newRow("without any focus") << true << false << false << true;
}

void tst_PopupWidgetActivation::handsTheActivationToAWindowInsideIt()
{
    QFETCH(const bool, isReactivated);
    QFETCH(const bool, isHiddenWithParentFocused);
    QFETCH(const bool, isFocused);
    QFETCH(const bool, isHidden);
    const Scene scene(data().selfReactivate(isReactivated)
                              .dismissWithParentFocused(isHiddenWithParentFocused)
                              .focusSourceOnClose(false));
    QDialog *dialog = scene.dialog();
    if (isFocused)
        new QPushButton(dialog);
    QQuickWindow window;
    cover(window, *scene.popup);
    QVERIFY(showActive(window));
    settle();
    bool wasActive = false;
    connect(qApp, &QGuiApplication::focusWindowChanged, scene.popup, [&](const QWindow *focused) {
        wasActive = wasActive || focused == scene.popup->windowHandle();
    });
    QVERIFY(showActive(*dialog));
    QTRY_COMPARE(wasActive, isReactivated);
    QTRY_COMPARE(QApplication::activeWindow(), dialog);
    settle();
    QCOMPARE(scene.popup->isHidden(), isHidden);
}

void tst_PopupWidgetActivation::givesTheFocusBackToItsButton()
{
    Desktop desktop;
    desktop.window.setFocus();
    PopupWidget *popup = PopupWidget::create(&desktop.window.button, makeContent(),
                                             data().autoDismiss(false));
    popup->setAttribute(Qt::WA_ShowWithoutActivating);
    popup->showSmooth(&desktop.window.button);
    QVERIFY(showActive(desktop.other));
    popup->hide();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<const QWidget *>(&desktop.window));
    QTRY_VERIFY(desktop.window.button.hasFocus());
}

void tst_PopupWidgetActivation::tellsOfTheRealPointer()
{
    Scene scene(data());
    QVERIFY(RealInput::moveTo(scene.other, QPoint(5, 5)));
    const QSignalSpy entered(scene.popup, &PopupWidget::widgetHoverEntered);
    const QSignalSpy left(scene.popup, &PopupWidget::widgetHoverLeaved);
    QVERIFY(RealInput::moveTo(*scene.popup->getMainWidget(), QPoint(50, 40)));
    QTRY_COMPARE(entered.size(), 1);
    QCOMPARE(left.size(), 0);
    QVERIFY(RealInput::moveTo(scene.other, QPoint(5, 5)));
    QTRY_COMPARE(left.size(), 1);
    QCOMPARE(entered.size(), 1);
}

void tst_PopupWidgetActivation::hidesOnARealEscape()
{
    const Scene scene(data());
    const QSignalSpy dismissed(scene.popup, &PopupWidget::popupDismissed);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(scene.popup->isHidden());
    QCOMPARE(dismissed.size(), 1);
}

UIELEMENTS_TEST_MAIN(tst_PopupWidgetActivation)
#include "tst_popupwidget_activation.moc"

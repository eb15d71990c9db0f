// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

namespace {

const OxaColorSet groundColors = Faces::colors(QStringLiteral("ground"), 220);
const OxaColorSet underlineGround = Faces::colors(QStringLiteral("oxa-underlineButton-background"),
                                                  200);
const OxaColorSet underlineText = Faces::colors(QStringLiteral("oxa-underlineButton-text"), 120);
const QString left = QStringLiteral("1");

/// A window with one button of each kind, and what the first one tells.
class Window : public QWidget
{
public:
    Window()
        : plain(QStringLiteral("plain"), this), svg(QStringLiteral("svg"), this), underline(this)
    {
        resize(400, 300);
        int y = 20;
        for (OxaPushButton *button : { &plain, static_cast<OxaPushButton *>(&svg),
                                       static_cast<OxaPushButton *>(&underline) }) {
            button->setGeometry(50, y, 200, 60);
            y += 90;
        }
        for (OxaPushButton *button : { &plain, static_cast<OxaPushButton *>(&svg) })
            button->setCSS(QStringLiteral("$backgroundColors: ground;"));
        underline.setText(QStringLiteral("underline"));
        log.record(&plain, &OxaPushButton::clicked, QStringLiteral("clicked"));
        log.record(&plain, &OxaPushButton::longPressed, QStringLiteral("longPressed"));
        log.record(&plain, &OxaPushButton::rightClick, QStringLiteral("rightClick"));
        log.record(&plain, &OxaPushButton::mouseEntered, QStringLiteral("mouseEntered"));
        log.record(&plain, &OxaPushButton::mouseExited, QStringLiteral("mouseExited"));
        log.record(&svg, &OxaPushButton::onFocusIn, QStringLiteral("onFocusIn"));
        log.record(&svg, &OxaPushButton::onFocusOut, QStringLiteral("onFocusOut"));
    }

    /// Shows the window, with the pointer away from it.
    bool appear()
    {
        if (!RealInput::send(
                    { QStringLiteral("mousemove"), QStringLiteral("0"), QStringLiteral("0") }))
            return false;
        move(100, 100);
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }

    OxaPushButton plain;
    OxaSvgPushButton svg;
    OxaUnderlineButton underline;
    SignalLog log;
};

/// Returns what the X server shows of \a button.
QImage onScreen(const OxaPushButton &button)
{
    const QPoint position = button.mapTo(button.window(), QPoint());
    return button.screen()
            ->grabWindow(button.window()->winId(), position.x(), position.y(), button.width(),
                         button.height())
            .toImage();
}

/// Returns whether most of \a button is filled with \a color, over which the style may lay a veil
/// for the focus.
bool isFilled(const OxaPushButton &button, const QColor &color)
{
    return Pixels::countNear(onScreen(button), color) > button.width() * button.height() / 2;
}

} // namespace

/// Buttons in a real window, under a real pointer and keyboard.
class tst_OxaPushButtonInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void isClickedAndRightClicked();
    void isLongPressedWhileItIsHeld();
    void changesWithThePointer();
    void takesTheFocusByTabAndIsClickedByKeys();
    void changesUnderThePointerAsAnUnderlineButton();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPushButtonInteraction::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ groundColors, underlineGround, underlineText }));
}

void tst_OxaPushButtonInteraction::isClickedAndRightClicked()
{
    Window window;
    QVERIFY(window.appear());
    QVERIFY(RealInput::moveTo(window.plain, QPoint(20, 30)));
    QTRY_VERIFY(window.plain.underMouse());
    QCOMPARE(window.log.take(), QStringLiteral("mouseEntered"));
    QSignalSpy rightClick(&window.plain, &OxaPushButton::rightClick);
    QVERIFY(RealInput::send({ QStringLiteral("click"), QStringLiteral("3") }));
    QTRY_COMPARE(rightClick.size(), 1);
    QSignalSpy clicked(&window.plain, &OxaPushButton::clicked);
    QVERIFY(RealInput::send({ QStringLiteral("click"), left }));
    QTRY_COMPARE(clicked.size(), 1);
    QCOMPARE(window.log.take(), QStringLiteral("rightClick | clicked"));
}

void tst_OxaPushButtonInteraction::isLongPressedWhileItIsHeld()
{
    Window window;
    window.plain.setLongPressEnabled(true);
    QVERIFY(window.appear());
    QVERIFY(RealInput::moveTo(window.plain, QPoint(20, 30)));
    QSignalSpy longPressed(&window.plain, &OxaPushButton::longPressed);
    QVERIFY(RealInput::send({ QStringLiteral("mousedown"), left }));
    QTRY_COMPARE(longPressed.size(), 1);
    QVERIFY(!window.plain.isDown());
    QVERIFY(RealInput::send({ QStringLiteral("mouseup"), left }));
    // A click elsewhere shows that the release has been handled.
    QSignalSpy otherClicked(&window.svg, &OxaPushButton::clicked);
    QVERIFY(RealInput::click(window.svg, QPoint(20, 30)));
    QTRY_COMPARE(otherClicked.size(), 1);
    QVERIFY(!window.log.take().contains(QLatin1String("clicked")));
    QCOMPARE(longPressed.size(), 1);
}

void tst_OxaPushButtonInteraction::changesWithThePointer()
{
    Window window;
    window.setFocusPolicy(Qt::StrongFocus);
    QVERIFY(window.appear());
    window.setFocus();
    for (OxaPushButton *button : { &window.plain, static_cast<OxaPushButton *>(&window.svg) }) {
        button->setFocusPolicy(Qt::NoFocus);
        QTRY_VERIFY(isFilled(*button, groundColors.normal));
        QVERIFY(RealInput::moveTo(*button, QPoint(20, 30)));
        QTRY_VERIFY(isFilled(*button, groundColors.hovered));
        QVERIFY(RealInput::send({ QStringLiteral("mousedown"), left }));
        QTRY_VERIFY(isFilled(*button, groundColors.pressed));
        QVERIFY(RealInput::send({ QStringLiteral("mouseup"), left }));
        QTRY_VERIFY(isFilled(*button, groundColors.hovered));
        QVERIFY(RealInput::moveTo(window, QPoint(5, 5)));
        QTRY_VERIFY(isFilled(*button, groundColors.normal));
    }
    QCOMPARE(window.log.take(), QStringLiteral("mouseEntered | clicked | mouseExited"));
}

void tst_OxaPushButtonInteraction::takesTheFocusByTabAndIsClickedByKeys()
{
    Window window;
    QVERIFY(window.appear());
    window.plain.setFocus();
    QTRY_VERIFY(window.plain.hasFocus());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.svg.hasFocus());
    QTRY_VERIFY(isFilled(window.svg, groundColors.focused));
    QSignalSpy clicked(&window.svg, &OxaPushButton::clicked);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("space") }));
    QTRY_COMPARE(clicked.size(), 1);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.underline.hasFocus());
    QCOMPARE(window.log.take(), QStringLiteral("onFocusIn | onFocusOut"));
    // The dotted frame ends above the room under the text.
    const QColor dots(255, 255, 255 - 200);
    QTRY_COMPARE(Pixels::boundsNear(onScreen(window.underline), dots, 4), QRect(0, 0, 200, 58));
}

void tst_OxaPushButtonInteraction::changesUnderThePointerAsAnUnderlineButton()
{
    Window window;
    QVERIFY(window.appear());
    QTRY_VERIFY(!isFilled(window.underline, underlineGround.hovered));
    QVERIFY(RealInput::moveTo(window.underline, QPoint(20, 30)));
    QTRY_VERIFY(isFilled(window.underline, underlineGround.hovered));
    QVERIFY(RealInput::moveTo(window, QPoint(5, 5)));
    QTRY_VERIFY(!isFilled(window.underline, underlineGround.hovered));
}

UIELEMENTS_TEST_MAIN(tst_OxaPushButtonInteraction)
#include "tst_oxapushbutton_interaction.moc"

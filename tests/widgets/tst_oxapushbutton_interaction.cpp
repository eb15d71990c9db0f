// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/svg/OxaPillTabButton.h>
#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaToggleButton.h>
#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QScreen>
#include <QSignalSpy>
#include <QWindow>

namespace {

const OxaColorSet groundColors = Faces::colors(QStringLiteral("ground"), 220);
const OxaColorSet underlineGround = Faces::colors(QStringLiteral("oxa-underlineButton-background"),
                                                  200);
const OxaColorSet underlineText = Faces::colors(QStringLiteral("oxa-underlineButton-text"), 120);
const OxaColorSet pillText(QStringLiteral("oxa-contentTabViewButton-text"), Qt::black);
const OxaColorSet checkedPillText(QStringLiteral("oxa-contentTabViewButtonChecked-text"),
                                  Qt::black);
const OxaColorSet pillBorder(QStringLiteral("oxa-defaultBorderForButton"), Qt::black);
const QString left = QStringLiteral("1");

/// Shows \a window, with the pointer away from it. Returns whether that worked.
bool showWindow(QWidget &window)
{
    if (!RealInput::parkPointer())
        return false;
    window.move(100, 100);
    return Windows::activate(window);
}

/// A window with one button of each kind, and a log of the first one's signals.
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

    OxaPushButton plain;
    OxaSvgPushButton svg;
    OxaUnderlineButton underline;
    SignalLog log;
};

/// A window with one checkable button of each kind.
class Switches : public QWidget
{
public:
    Switches() : toggle(this), anchor(QStringLiteral("anchor"), this), pill(this)
    {
        resize(400, 300);
        int y = 20;
        for (OxaPushButton *button : all()) {
            button->setGeometry(50, y, 200, 60);
            button->setFocusPolicy(Qt::NoFocus);
            y += 90;
        }
        toggle.setCSS(QStringLiteral("$backgroundColors: ground;"));
        anchor.setCSS(QStringLiteral("$backgroundColors: ground;"));
        pill.setBackgroundColorSet(groundColors.name);
        pill.setBackgroundColorSetChecked(groundColors.name);
    }

    std::vector<OxaPushButton *> all() { return { &toggle, &anchor, &pill }; }

    OxaToggleButton toggle;
    OxaSvgAnchorButton anchor;
    OxaPillTabButton pill;
};

/// Returns whether most of \a button has the colour \a color. The focus may tint a part of it.
bool isFilled(const OxaPushButton &button, const QColor &color)
{
    return Pixels::countNear(Windows::onScreen(button), color)
            > button.width() * button.height() / 2;
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
    void isToggledByClicks();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPushButtonInteraction::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ groundColors, underlineGround, underlineText, pillText,
                                 checkedPillText, pillBorder }));
}

void tst_OxaPushButtonInteraction::isClickedAndRightClicked()
{
    Window window;
    QVERIFY(showWindow(window));
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
    QVERIFY(showWindow(window));
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
    QVERIFY(showWindow(window));
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
    QVERIFY(showWindow(window));
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
    // The dotted frame ends above the bottom padding.
    const QColor dots(255, 255, 255 - 200);
    QTRY_COMPARE(Pixels::boundsNear(Windows::onScreen(window.underline), dots, 4),
                 QRect(0, 0, 200, 58));
}

void tst_OxaPushButtonInteraction::changesUnderThePointerAsAnUnderlineButton()
{
    Window window;
    QVERIFY(showWindow(window));
    QTRY_VERIFY(!isFilled(window.underline, underlineGround.hovered));
    QVERIFY(RealInput::moveTo(window.underline, QPoint(20, 30)));
    QTRY_VERIFY(isFilled(window.underline, underlineGround.hovered));
    QVERIFY(RealInput::moveTo(window, QPoint(5, 5)));
    QTRY_VERIFY(!isFilled(window.underline, underlineGround.hovered));
}

void tst_OxaPushButtonInteraction::isToggledByClicks()
{
    Switches window;
    QVERIFY(showWindow(window));
    for (OxaPushButton *button : window.all()) {
        for (const bool isChecked : { true, false }) {
            QVERIFY(RealInput::click(*button, QPoint(60, 30)));
            QTRY_COMPARE(button->isChecked(), isChecked);
            QVERIFY(RealInput::moveTo(window, QPoint(5, 5)));
            QTRY_VERIFY(isFilled(*button, isChecked ? groundColors.checked : groundColors.normal));
        }
    }
}

UIELEMENTS_TEST_MAIN(tst_OxaPushButtonInteraction)
#include "tst_oxapushbutton_interaction.moc"

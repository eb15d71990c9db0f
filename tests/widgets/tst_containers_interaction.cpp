// SPDX-License-Identifier: Apache-2.0
#include "support/Pixels.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/widgets/OxaDialog.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QPointer>
#include <QProxyStyle>
#include <QScreen>
#include <QSignalSpy>
#include <QStyleOption>

namespace {

const QColor frameColor(0xf0, 0x00, 0xa8);

/// Fills a focus frame that has a rectangle of its own, and draws no other.
class FrameStyle : public QProxyStyle
{
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_FrameFocusRect)
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        else if (option->styleObject && option->styleObject->property("hasCustomRect").toBool())
            painter->fillRect(option->rect, frameColor);
    }
};

/// A window with two sliders, one above the other.
class Window : public QWidget
{
public:
    Window() : first(Qt::Horizontal, this), second(Qt::Horizontal, this)
    {
        resize(300, 200);
        first.setGeometry(50, 20, 200, 40);
        second.setGeometry(50, 120, 200, 40);
    }

    bool appear()
    {
        move(100, 100);
        return Windows::activate(*this);
    }

    OxaSlider first;
    OxaSlider second;
};

/// Returns where the X server shows a frame on \a slider.
QRect frameOn(const OxaSlider &slider)
{
    return Pixels::boundsNear(Windows::onScreen(slider), frameColor, 4);
}

/// What a slot of onClose() does with the dialog.
using Act = void (*)(OxaDialog &);

} // namespace

Q_DECLARE_METATYPE(Act)

/// OxaSlider and OxaDialog in real windows, under a real pointer, keyboard and window manager.
class tst_ContainersInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { QApplication::setStyle(QStringLiteral("Fusion")); }

    void sliderShowsItsFrameForFocusByTabOnly();
    void sliderMovesItsFrameWithTheHandle();
    void dialogIsClosedByTheWindowManager_data();
    void dialogIsClosedByTheWindowManager();
    void dialogIsClosedByEscapeWithoutTheSignal();
};

void tst_ContainersInteraction::initTestCase() { QApplication::setStyle(new FrameStyle); }

void tst_ContainersInteraction::sliderShowsItsFrameForFocusByTabOnly()
{
    Window window;
    QVERIFY(window.appear());
    const int before = window.second.value();
    QVERIFY(RealInput::click(window.second, QPoint(150, 20)));
    QTRY_VERIFY(window.second.value() != before);
    QVERIFY(window.second.hasFocus());
    QCOMPARE(frameOn(window.second), QRect());

    QVERIFY(RealInput::typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_COMPARE(frameOn(window.first), QRect(0, 11, 18, 18));
    QCOMPARE(frameOn(window.second), QRect());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab") }));
    QTRY_COMPARE(frameOn(window.first), QRect());
    QVERIFY(!frameOn(window.second).isNull());
}

void tst_ContainersInteraction::sliderMovesItsFrameWithTheHandle()
{
    Window window;
    QVERIFY(window.appear());
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Tab"), QStringLiteral("shift+Tab") }));
    QTRY_COMPARE(frameOn(window.first), QRect(0, 11, 18, 18));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("End") }));
    QTRY_COMPARE(frameOn(window.first), QRect(182, 11, 18, 18));
    QCOMPARE(window.first.value(), 99);
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Home"), QStringLiteral("Page_Up") }));
    QTRY_COMPARE(window.first.value(), 10);
    const int left = QStyle::sliderPositionFromValue(0, 99, 10, 182);
    QTRY_COMPARE(frameOn(window.first), QRect(left, 11, 18, 18));
}

void tst_ContainersInteraction::dialogIsClosedByTheWindowManager_data()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("with a slot that does nothing") << Act([](OxaDialog &) {});
    QTest::newRow("with a slot that deletes it") << Act([](OxaDialog &dialog) { delete &dialog; });
    QTest::newRow("with a slot that deletes its parent")
            << Act([](OxaDialog &dialog) { delete dialog.parent(); });
}

void tst_ContainersInteraction::dialogIsClosedByTheWindowManager()
{
    QFETCH(const Act, act);
    const QPointer<QWidget> parent = new QWidget;
    const QPointer<OxaDialog> dialog = new OxaDialog(parent);
    int emissions = 0;
    connect(dialog.data(), &OxaDialog::onClose, this, [&emissions, dialog, act] {
        ++emissions;
        act(*dialog);
    });
    QVERIFY(Windows::activate(*dialog));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("alt+F4") }));
    QTRY_VERIFY(!dialog);
    QCOMPARE(emissions, 1);
    delete parent;
}

void tst_ContainersInteraction::dialogIsClosedByEscapeWithoutTheSignal()
{
    const QPointer<OxaDialog> dialog = new OxaDialog;
    const QSignalSpy onClose(dialog.data(), &OxaDialog::onClose);
    const QSignalSpy rejected(dialog.data(), &QDialog::rejected);
    QVERIFY(Windows::activate(*dialog));
    QVERIFY(RealInput::typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!dialog);
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(onClose.size(), 0);
}

UIELEMENTS_TEST_MAIN(tst_ContainersInteraction)
#include "tst_containers_interaction.moc"

// SPDX-License-Identifier: Apache-2.0
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/RecordingStyle.h"
#include "support/TestMain.h"

#include <UiElements/svg/DrawUtils.h>

#include <QPainter>
#include <QTest>
#include <QWidget>

#include <functional>

namespace {

constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
const QColor ground(200, 100, 30);
const QColor inverse(55, 155, 225);

constexpr QSize paperSize(40, 30);

QImage paper() { return Pixels::paper(paperSize); }

QImage drawing(const std::function<void(QPainter *)> &draw)
{
    return Pixels::drawing(paperSize, draw);
}

/// Returns the picture of a frame just inside \a rect, every second pixel of which is \a dots.
QImage dottedFrame(const QRect &rect, const QColor &dots)
{
    QImage image = paper();
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const bool isDot = (x - rect.left() + y - rect.top()) % 2 == 1;
            const bool isEdge = x == rect.left() || x == rect.right() || y == rect.top()
                    || y == rect.bottom();
            if (isDot && isEdge)
                image.setPixelColor(x, y, dots);
        }
    }
    return image;
}

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

class tst_DrawUtilsFocusFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsADottedFrameInTheInverseColor_data();
    void paintsADottedFrameInTheInverseColor();
    void paintsTheSameWhateverThePainterWasSetTo();
    void leavesThePainterAsItWas();
    void paintsNothingForANullRectangle();
    void paintsNothingWithoutFocusByKeyboard_data();
    void paintsNothingWithoutFocusByKeyboard();

    void leavesTheFrameToTheApplicationsStyle_data();
    void leavesTheFrameToTheApplicationsStyle();
    void asksTheApplicationsStyleAndNotTheWidgets();
    void paintsTheDottedFrameWithoutAWidgetAllTheSame();
    void paintsNoLegacyFrameWhereTheStyleDrawsOne();
    void asksNoStyleWhereThePropertyIsFalse_data();
    void asksNoStyleWhereThePropertyIsFalse();
};

void tst_DrawUtilsFocusFrame::paintsADottedFrameInTheInverseColor_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("dots");
    QTest::newRow("at even positions") << QRect(4, 6, 20, 10) << ground << inverse;
    QTest::newRow("at odd positions") << QRect(5, 7, 20, 10) << ground << inverse;
    QTest::newRow("at mixed positions, of odd size") << QRect(4, 7, 21, 11) << ground << inverse;
    QTest::newRow("at the origin") << QRect(0, 0, 8, 8) << ground << inverse;
    QTest::newRow("one pixel high") << QRect(3, 3, 9, 1) << ground << inverse;
    QTest::newRow("of black") << QRect(4, 6, 20, 10) << QColor(Qt::black) << QColor(Qt::white);
    QTest::newRow("of a translucent color is opaque")
            << QRect(4, 6, 20, 10) << QColor(200, 100, 30, 40) << inverse;
}

void tst_DrawUtilsFocusFrame::paintsADottedFrameInTheInverseColor()
{
    QFETCH(const QRect, rect);
    QFETCH(const QColor, color);
    QFETCH(const QColor, dots);
    QWidget widget;
    const QImage expected = dottedFrame(rect, dots);
    QCOMPARE(drawing([&](QPainter *painter) {
                 DrawUtils::drawFocusRect(painter, keyboardFocus, rect, color, &widget);
             }),
             expected);
    QCOMPARE(drawing([&](QPainter *painter) {
                 DrawUtils::drawLegacyFocusRect(painter, keyboardFocus, rect, color);
             }),
             expected);
}

void tst_DrawUtilsFocusFrame::paintsTheSameWhateverThePainterWasSetTo()
{
    const QRect rect(5, 6, 20, 10);
    const QImage image = drawing([&rect](QPainter *painter) {
        painter->setPen(QPen(Qt::red, 3));
        painter->setBrush(Qt::green);
        painter->setBrushOrigin(1, 0);
        painter->setBackground(Qt::blue);
        painter->setBackgroundMode(Qt::OpaqueMode);
        DrawUtils::drawLegacyFocusRect(painter, keyboardFocus, rect, ground);
    });
    QCOMPARE(image, dottedFrame(rect, inverse));
}

void tst_DrawUtilsFocusFrame::leavesThePainterAsItWas()
{
    drawing([](QPainter *painter) {
        painter->setPen(Qt::red);
        painter->setBrush(Qt::green);
        painter->setBrushOrigin(1, 0);
        painter->setBackgroundMode(Qt::OpaqueMode);
        DrawUtils::drawLegacyFocusRect(painter, keyboardFocus, QRect(5, 6, 20, 10), ground);
        QCOMPARE(painter->pen(), QPen(Qt::red));
        QCOMPARE(painter->brush(), QBrush(Qt::green));
        QCOMPARE(painter->brushOrigin(), QPoint(1, 0));
        QCOMPARE(painter->backgroundMode(), Qt::OpaqueMode);
    });
}

void tst_DrawUtilsFocusFrame::paintsNothingForANullRectangle()
{
    QCOMPARE(drawing([](QPainter *painter) {
                 DrawUtils::drawFocusRect(painter, keyboardFocus, QRect(), ground, nullptr);
             }),
             paper());
}

void tst_DrawUtilsFocusFrame::paintsNothingWithoutFocusByKeyboard_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("useGlobalFocusBorders");
    const std::pair<const char *, QStyle::State> states[] = {
        { "no state", QStyle::State_None },
        { "focus by mouse", QStyle::State_Enabled | QStyle::State_HasFocus },
        { "keyboard use without focus", QStyle::State_Enabled | QStyle::State_KeyboardFocusChange },
        { "every other state", ~keyboardFocus },
    };
    for (const auto &[name, state] : states) {
        QTest::addRow("%s, dotted frame", name) << state << false;
        QTest::addRow("%s, the style's frame", name) << state << true;
    }
}

void tst_DrawUtilsFocusFrame::paintsNothingWithoutFocusByKeyboard()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const bool, useGlobalFocusBorders);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", useGlobalFocusBorders);
    const ApplicationStyleGuard style;
    QWidget widget;
    const QRect rect(5, 6, 20, 10);
    QCOMPARE(drawing([&](QPainter *painter) {
                 DrawUtils::drawFocusRect(painter, state, rect, ground, &widget);
                 DrawUtils::drawFocusRect(painter, state, rect, ground, nullptr);
                 DrawUtils::drawLegacyFocusRect(painter, state, rect, ground);
             }),
             paper());
    QCOMPARE(style.calls().size(), std::size_t(0));
}

void tst_DrawUtilsFocusFrame::leavesTheFrameToTheApplicationsStyle_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("framed");
    QTest::addColumn<QVariant>("hasCustomRect");
    QTest::newRow("around the given rectangle")
            << QRect(5, 6, 20, 10) << QRect(5, 6, 20, 10) << QVariant(true);
    QTest::newRow("around the widget without a rectangle")
            << QRect() << QRect(0, 0, 33, 22) << QVariant();
    QTest::newRow("around the widget for a rectangle of no size elsewhere")
            << QRect(5, 6, 0, 0) << QRect(0, 0, 33, 22) << QVariant();
    QTest::newRow("around a rectangle that only lacks height")
            << QRect(5, 6, 20, 0) << QRect(5, 6, 20, 0) << QVariant(true);
}

void tst_DrawUtilsFocusFrame::leavesTheFrameToTheApplicationsStyle()
{
    QFETCH(const QRect, rect);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    QWidget widget;
    widget.resize(33, 22);
    widget.setEnabled(false);
    QPainter *used = nullptr;
    const QImage image = drawing([&](QPainter *painter) {
        used = painter;
        DrawUtils::drawFocusRect(painter, keyboardFocus, rect, ground, &widget);
    });
    QCOMPARE(image, paper());
    QCOMPARE(style.calls().size(), std::size_t(1));
    const RecordingStyle::Call &call = style.calls().front();
    QCOMPARE(call.element, QStyle::PE_FrameFocusRect);
    QCOMPARE(call.optionType, int(QStyleOption::SO_FocusRect));
    QTEST(call.rect, "framed");
    // The option describes the widget, not the given state.
    QVERIFY(!call.state.testFlag(QStyle::State_Enabled));
    QVERIFY(!call.state.testFlag(QStyle::State_HasFocus));
    QCOMPARE(call.painter, used);
    QCOMPARE(call.widget, &widget);
    QTEST(widget.property("hasCustomRect"), "hasCustomRect");
}

void tst_DrawUtilsFocusFrame::asksTheApplicationsStyleAndNotTheWidgets()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    RecordingStyle widgetsStyle;
    QWidget widget;
    widget.setStyle(&widgetsStyle);
    drawing([&widget](QPainter *painter) {
        DrawUtils::drawFocusRect(painter, keyboardFocus, QRect(5, 6, 20, 10), ground, &widget);
    });
    QCOMPARE(style.calls().size(), std::size_t(1));
    QCOMPARE(widgetsStyle.calls.size(), std::size_t(0));
}

void tst_DrawUtilsFocusFrame::paintsTheDottedFrameWithoutAWidgetAllTheSame()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    const QRect rect(5, 6, 20, 10);
    QCOMPARE(drawing([&rect](QPainter *painter) {
                 DrawUtils::drawFocusRect(painter, keyboardFocus, rect, ground, nullptr);
             }),
             dottedFrame(rect, inverse));
    QCOMPARE(style.calls().size(), std::size_t(0));
}

void tst_DrawUtilsFocusFrame::paintsNoLegacyFrameWhereTheStyleDrawsOne()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    QCOMPARE(drawing([](QPainter *painter) {
                 DrawUtils::drawLegacyFocusRect(painter, keyboardFocus, QRect(5, 6, 20, 10),
                                                ground);
             }),
             paper());
    QCOMPARE(style.calls().size(), std::size_t(0));
}

void tst_DrawUtilsFocusFrame::asksNoStyleWhereThePropertyIsFalse_data()
{
    QTest::addColumn<QVariant>("useGlobalFocusBorders");
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("not set") << QVariant();
}

void tst_DrawUtilsFocusFrame::asksNoStyleWhereThePropertyIsFalse()
{
    QFETCH(const QVariant, useGlobalFocusBorders);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", useGlobalFocusBorders);
    const ApplicationStyleGuard style;
    QWidget widget;
    const QRect rect(5, 6, 20, 10);
    QCOMPARE(drawing([&](QPainter *painter) {
                 DrawUtils::drawFocusRect(painter, keyboardFocus, rect, ground, &widget);
             }),
             dottedFrame(rect, inverse));
    QCOMPARE(style.calls().size(), std::size_t(0));
    QVERIFY(!widget.property("hasCustomRect").isValid());
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_DrawUtilsFocusFrame)
#include "tst_drawutils_focusframe.moc"

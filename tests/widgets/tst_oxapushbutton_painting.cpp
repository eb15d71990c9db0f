// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaPushButton.h>

#include <QPainter>

#include <algorithm>

namespace {

const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);
const OxaColorSet groundColors = Faces::colors(QStringLiteral("ground"), 220);
const QColor orange(255, 128, 0);
const QColor frame(10, 200, 30);

/// A style whose push buttons fill the right half of a rectangle, and which records the arguments.
class HalfStyle : public QProxyStyle
{
public:
    mutable QString text;
    mutable QPainter::RenderHints hints;

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element != CE_PushButton) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        text = static_cast<const QStyleOptionButton *>(option)->text;
        hints = painter->renderHints();
        painter->fillRect(option->rect.adjusted(option->rect.width() / 2, 0, 0, 0), frame);
    }
};

/// Counts how often the application's style was asked for a focus frame at \a rect.
int framesAt(const ApplicationStyleGuard &style, const QRect &rect)
{
    return int(std::count_if(style.calls().cbegin(), style.calls().cend(),
                             [&rect](const RecordingStyle::Call &call) {
                                 return call.element == QStyle::PE_FrameFocusRect
                                         && call.rect == rect;
                             }));
}

QPixmap pixmapOf(const QColor &color)
{
    QPixmap pixmap(30, 20);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

class tst_OxaPushButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();
    void handsAnElidedTextToTheStyle_data();
    void handsAnElidedTextToTheStyle();
    void paintsItsPixmapUnderTheFrame();
    void smoothsWhatHasAnIconPixmapOrBadge();
    void paintsItsBadgeAtTheTopRight();
    void takesTheBadgesColorFromTheDefaultTheme();

    void paintsADottedFrameInTheInverseColor_data();
    void paintsADottedFrameInTheInverseColor();
    void paintsNoFrameWithoutColorsOrFocusByKeyboard();
    void followsTheThemeWithItsFrame();
    void leavesTheFrameToTheApplicationsStyle_data();
    void leavesTheFrameToTheApplicationsStyle();
    void asksForNoFrameWithoutFocusByKeyboard();
    void keepsTheKindOfFrameItWasMadeWith();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaPushButtonPainting::init()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ textColors, groundColors,
                                 OxaColorSet(QStringLiteral("badge-background"), orange) }),
            ColorSets::storeOf({ OxaColorSet(QStringLiteral("badge-background"), Qt::blue),
                                 OxaColorSet(QStringLiteral("ground"), orange) }));
}

void tst_OxaPushButtonPainting::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaPushButton button(QStringLiteral("abc"));
    button.setCSS(QStringLiteral("$textColors: text; $backgroundColors: ground; "
                                 "text-align: left; padding-left: 10px;"));
    button.resize(120, 40);
    QVERIFY(Faces::put(button, face));
    button.resize(120, 40);
    const QImage image = Pixels::render(button);
    QVERIFY(Pixels::countNear(image, Faces::colorOf(groundColors, face)) > 3000);
    QVERIFY(Pixels::countNear(image, Faces::colorOf(textColors, face)) > 10);
    for (const auto &[other, name] : Faces::all) {
        if (other != face)
            QVERIFY2(Pixels::countNear(image, Faces::colorOf(groundColors, other)) == 0, name);
    }
}

void tst_OxaPushButtonPainting::handsAnElidedTextToTheStyle_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<int>("padding");
    QTest::newRow("whole") << Qt::ElideNone << 0;
    QTest::newRow("whole, whatever the padding") << Qt::ElideNone << 80;
    QTest::newRow("elided at the right") << Qt::ElideRight << 0;
    QTest::newRow("elided in the middle, with a padding") << Qt::ElideMiddle << 40;
}

void tst_OxaPushButtonPainting::handsAnElidedTextToTheStyle()
{
    QFETCH(const Qt::TextElideMode, mode);
    QFETCH(const int, padding);
    HalfStyle style;
    const QString text = QStringLiteral("A text that is too long for its button");
    OxaPushButton button(text);
    button.setStyle(&style);
    button.setElideMode(mode);
    button.setElidePadding(padding);
    button.resize(120, 40);
    Pixels::render(button);
    QCOMPARE(style.text,
             mode == Qt::ElideNone ? text
                                   : button.fontMetrics().elidedText(text, mode, 120 - padding));
    QCOMPARE(button.text(), text);
}

void tst_OxaPushButtonPainting::paintsItsPixmapUnderTheFrame()
{
    HalfStyle style;
    OxaPushButton button;
    button.setStyle(&style);
    button.resize(40, 40);
    button.setPixmap(pixmapOf(orange));
    // The pixmap is 30 by 20 at the top left; the frame covers what is right of 20.
    QCOMPARE(Pixels::boundsNear(Pixels::render(button), orange), QRect(0, 0, 20, 20));
    button.setPixmapIconVisibility(false);
    QCOMPARE(Pixels::countNear(Pixels::render(button), orange), 0);
    button.setPixmapIconVisibility(true);
    QVERIFY(Pixels::countNear(Pixels::render(button), orange) > 0);
    button.setPixmap(QPixmap());
    QCOMPARE(Pixels::countNear(Pixels::render(button), orange), 0);
}

void tst_OxaPushButtonPainting::smoothsWhatHasAnIconPixmapOrBadge()
{
    HalfStyle style;
    const auto isSmooth = [&style](OxaPushButton &button) {
        button.setStyle(&style);
        Pixels::render(button);
        return style.hints.testFlag(QPainter::Antialiasing)
                && style.hints.testFlag(QPainter::SmoothPixmapTransform);
    };
    OxaPushButton button;
    QVERIFY(!isSmooth(button));
    button.setIcon(QIcon(pixmapOf(orange)));
    QVERIFY(isSmooth(button));
    button.setIcon(QIcon());
    QVERIFY(!isSmooth(button));
    button.setPixmap(pixmapOf(orange));
    QVERIFY(isSmooth(button));
    button.setPixmap(QPixmap());
    QVERIFY(!isSmooth(button));
    button.setBadgeVisible(true);
    QVERIFY(isSmooth(button));
    QVERIFY(button.setProperty("icon", QIcon(pixmapOf(orange))));
    button.setBadgeVisible(false);
    QVERIFY(isSmooth(button));
    OxaPushButton made(QIcon(pixmapOf(orange)), QString());
    QVERIFY(isSmooth(made));
    made.setPixmap(QPixmap()); // The last setter decides for both.
    QVERIFY(!isSmooth(made));
}

void tst_OxaPushButtonPainting::paintsItsBadgeAtTheTopRight()
{
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        const LayoutDirectionGuard layoutDirection(direction);
        HalfStyle style;
        OxaPushButton button;
        button.setStyle(&style);
        button.resize(60, 40);
        QCOMPARE(Pixels::countNear(Pixels::render(button), orange), 0);
        button.setBadgeVisible(true);
        const QImage image = Pixels::render(button);
        // Around (55, 5), 5 in radius, over the frame.
        QImage expected(60, 40, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.fillRect(30, 0, 30, 40, frame);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(orange);
        painter.drawEllipse(QPoint(55, 5), 5, 5);
        QCOMPARE(image.copy(40, 0, 20, 40), expected.copy(40, 0, 20, 40));
    }
}

void tst_OxaPushButtonPainting::takesTheBadgesColorFromTheDefaultTheme()
{
    OxaPushButton button;
    button.setThemeType(QStringLiteral("inverted"));
    button.resize(60, 40);
    button.setBadgeVisible(true);
    QVERIFY(Pixels::countNear(Pixels::render(button), orange) > 50);
}

void tst_OxaPushButtonPainting::paintsADottedFrameInTheInverseColor_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_OxaPushButtonPainting::paintsADottedFrameInTheInverseColor()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    HalfStyle style;
    QWidget window;
    OxaPushButton button(&window);
    button.setStyle(&style);
    button.resize(60, 40);
    button.setFocusRectColorSet(groundColors.name);
    QVERIFY(Faces::focusByKeyboard(button));
    const QColor inverse(255 - 220, 255, 255);
    const QImage image = Pixels::render(button);
    QCOMPARE(Pixels::boundsNear(image, inverse, 0), button.rect());
    // Every second pixel of an edge of 2 * 60 + 2 * 38.
    QCOMPARE(Pixels::countNear(image, inverse, QRect(), 0), 98);
}

void tst_OxaPushButtonPainting::paintsNoFrameWithoutColorsOrFocusByKeyboard()
{
    HalfStyle style;
    QWidget window;
    OxaPushButton button(&window);
    button.setStyle(&style);
    button.resize(60, 40);
    const QImage before = Pixels::render(button);
    QVERIFY(Faces::focusByKeyboard(button));
    QCOMPARE(Pixels::render(button), before);
    button.setFocusRectColorSet(groundColors.name);
    QVERIFY(Pixels::render(button) != before);
    window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    QCOMPARE(Pixels::render(button), before);
}

void tst_OxaPushButtonPainting::followsTheThemeWithItsFrame()
{
    HalfStyle style;
    QWidget window;
    OxaPushButton button(&window);
    button.setStyle(&style);
    button.resize(60, 40);
    button.setFocusRectColorSet(groundColors.name);
    button.setThemeType(QStringLiteral("inverted"));
    QVERIFY(Faces::focusByKeyboard(button));
    QCOMPARE(Pixels::countNear(Pixels::render(button), QColor(0, 127, 255), QRect(), 0), 98);
}

void tst_OxaPushButtonPainting::leavesTheFrameToTheApplicationsStyle_data()
{
    QTest::addColumn<QVariant>("customFocusRect");
    QTest::addColumn<QRect>("framed");
    QTest::addColumn<QVariant>("hasCustomRect");
    QTest::newRow("around the button") << QVariant() << QRect(0, 0, 60, 40) << QVariant();
    QTest::newRow("around the button for a null rectangle")
            << QVariant(QRect()) << QRect(0, 0, 60, 40) << QVariant();
    QTest::newRow("around a rectangle of the caller's")
            << QVariant(QRect(5, 6, 7, 8)) << QRect(5, 6, 7, 8) << QVariant(true);
}

void tst_OxaPushButtonPainting::leavesTheFrameToTheApplicationsStyle()
{
    QFETCH(const QVariant, customFocusRect);
    QFETCH(const QRect, framed);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    HalfStyle buttonStyle;
    QWidget window;
    OxaPushButton button(&window);
    button.setStyle(&buttonStyle);
    button.resize(60, 40);
    button.setProperty("customFocusRect", customFocusRect);
    button.setFocusRectColorSet(groundColors.name);
    QVERIFY(Faces::focusByKeyboard(button));
    const int before = framesAt(style, framed);
    const QImage image = Pixels::render(button);
    QCOMPARE(framesAt(style, framed), before + 1);
    QTEST(button.property("hasCustomRect"), "hasCustomRect");
    QCOMPARE(Pixels::countNear(image, QColor(255 - 220, 255, 255), QRect(), 0), 0);
}

void tst_OxaPushButtonPainting::asksForNoFrameWithoutFocusByKeyboard()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    HalfStyle buttonStyle;
    QWidget window;
    OxaPushButton button(&window);
    button.setStyle(&buttonStyle);
    button.resize(60, 40);
    Pixels::render(button);
    QVERIFY(Faces::focusByKeyboard(button));
    window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    const int before = framesAt(style, button.rect());
    Pixels::render(button);
    QCOMPARE(framesAt(style, button.rect()), before);
}

void tst_OxaPushButtonPainting::keepsTheKindOfFrameItWasMadeWith()
{
    HalfStyle buttonStyle;
    QWidget window;
    OxaPushButton button(&window);
    button.setStyle(&buttonStyle);
    button.resize(60, 40);
    button.setFocusRectColorSet(groundColors.name);
    QVERIFY(Faces::focusByKeyboard(button));
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    Pixels::render(button);
    // It asks no style, and paints no frame of its own where the application wants the style's.
    QCOMPARE(framesAt(style, button.rect()), 0);
    QCOMPARE(Pixels::countNear(Pixels::render(button), QColor(255 - 220, 255, 255), QRect(), 0), 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaPushButtonPainting)
#include "tst_oxapushbutton_painting.moc"

// SPDX-License-Identifier: Apache-2.0
#include "Frames.h"
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgAnchorButton.h>

namespace {

const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);
const OxaColorSet otherTextColors = Faces::colors(QStringLiteral("other"), 70);
const OxaColorSet iconColors = Faces::colors(QStringLiteral("icon"), 175);
const OxaColorSet anchorColors = Faces::colors(QStringLiteral("anchor"), 230);
const QColor orange(255, 128, 0);

} // namespace

class tst_OxaSvgAnchorButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();
    void paintsAPictureForOnAndOneForOff();
    void paintsNoAnchorWhileHidden();
    void paintsTheAnchorBesideTheTextWhenAsked_data();
    void paintsTheAnchorBesideTheTextWhenAsked();
    void takesTheTextsColorsWithoutASetOfItsOwn();
    void takesTheTextsColorsForASetThatTheThemeLacks();
    void followsTheTheme();
    void paintsItsPixmapInsteadOfTheIcon();
    void repaintsOnceMoreForThePixmapsSize();
    void paintsARichText();
    void paintsOverItsBackgroundAndUnderItsBadge();
    void paintsTheFrameOfTheFocus();
    void doesNotRepaintForTheFramesOfItsAnchor_data();
    void doesNotRepaintForTheFramesOfItsAnchor();

private:
    /// Sets up a button of 120 by 40 with an icon, a text, and a square anchor of 8 by 8.
    void setUp(OxaSvgAnchorButton &button) const;

    SvgFiles m_files;
    QString m_square;
    QString m_half;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSvgAnchorButtonPainting::initTestCase()
{
    m_square = m_files.square();
    m_half = m_files.write(QStringLiteral("half.svg"),
                           SvgFiles::document("<path d='M0 0H16V8H0Z'/>"));
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf({ textColors, otherTextColors,
                                                                 iconColors, anchorColors }),
                                            ColorSets::storeOf(
                                                    { textColors, iconColors,
                                                      OxaColorSet(QStringLiteral("anchor"),
                                                                  orange) }));
}

void tst_OxaSvgAnchorButtonPainting::setUp(OxaSvgAnchorButton &button) const
{
    button.setText(QStringLiteral("abc"));
    button.setCSS(QStringLiteral("$textColors: text;"));
    button.setSvgIcon(m_square);
    button.setSvgIconSize(QSize(17, 17));
    button.setSvgIconColorSet(iconColors.name);
    button.setAnchorSvgOn(m_square);
    button.setAnchorSvgOff(m_square);
    button.setAnchorIconSize(QSize(8, 8));
    button.setAnchorSvgColorSet(anchorColors.name);
    button.setAnchorSvgOffset(QPoint(5, 2));
    button.resize(120, 40);
}

void tst_OxaSvgAnchorButtonPainting::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgAnchorButton button;
    setUp(button);
    QVERIFY(Faces::put(button, face));
    button.resize(120, 40);
    const QImage image = Pixels::render(button);
    for (const OxaColorSet &colors : { textColors, iconColors, anchorColors })
        QCOMPARE(Faces::facesIn(image, colors), Faces::nameOf(face));
    const QRect anchor = Pixels::boundsNear(image, Faces::colorOf(anchorColors, face));
    const QRect icon = Pixels::boundsNear(image, Faces::colorOf(iconColors, face));
    const QRect text = Pixels::boundsNear(image, Faces::colorOf(textColors, face));
    // The middle is at 19: minus half of the anchor, plus its offset.
    if (direction == Qt::LeftToRight) {
        QCOMPARE(anchor, QRect(119 - 8 - 5, 17, 8, 8));
        QVERIFY(icon.right() < text.left() && text.right() < anchor.left());
    } else {
        QCOMPARE(anchor, QRect(5, 17, 8, 8));
        QVERIFY(anchor.right() < text.left() && text.right() < icon.left());
    }
}

void tst_OxaSvgAnchorButtonPainting::paintsAPictureForOnAndOneForOff()
{
    OxaSvgAnchorButton button;
    setUp(button);
    button.setAnchorSvgOff(m_half);
    QCOMPARE(Pixels::boundsNear(Pixels::render(button), anchorColors.normal).size(), QSize(8, 4));
    button.setChecked(true);
    QCOMPARE(Pixels::boundsNear(Pixels::render(button), anchorColors.checked).size(), QSize(8, 8));
    button.setAnchorSvgOn(QString());
    QCOMPARE(Faces::facesIn(Pixels::render(button), anchorColors), QString());
    QCOMPARE(Faces::facesIn(Pixels::render(button), iconColors), QStringLiteral("checked"));
}

void tst_OxaSvgAnchorButtonPainting::paintsNoAnchorWhileHidden()
{
    OxaSvgAnchorButton button;
    setUp(button);
    button.setTextHorAlign(OxaEnum::HorAlign::RightAlign);
    const QRect before = Pixels::boundsNear(Pixels::render(button), textColors.normal);
    button.setAnchorIconVisible(false);
    const QImage image = Pixels::render(button);
    QCOMPARE(Faces::facesIn(image, anchorColors), QString());
    // The text gets the space beside a picture of -1 pixel.
    QCOMPARE(Pixels::boundsNear(image, textColors.normal), before.translated(9, 0));
}

void tst_OxaSvgAnchorButtonPainting::paintsTheAnchorBesideTheTextWhenAsked_data()
{
    QTest::addColumn<bool>("isLeftAnchor");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("right") << false << Qt::LeftToRight;
    QTest::newRow("left") << true << Qt::LeftToRight;
    QTest::newRow("right, right to left") << false << Qt::RightToLeft;
    QTest::newRow("left, right to left") << true << Qt::RightToLeft;
}

void tst_OxaSvgAnchorButtonPainting::paintsTheAnchorBesideTheTextWhenAsked()
{
    QFETCH(const bool, isLeftAnchor);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgAnchorButton button;
    setUp(button);
    button.setIsLeftAnchor(isLeftAnchor);
    button.setAlignAnchorIconToText(true);
    const QImage image = Pixels::render(button);
    const QRect anchor = Pixels::boundsNear(image, anchorColors.normal);
    const QRect icon = Pixels::boundsNear(image, iconColors.normal);
    const bool isLeading = isLeftAnchor == (direction == Qt::LeftToRight);
    const bool isIconOnTheLeft = direction == Qt::LeftToRight;
    // The block ends at the icon on one side, and at the text on the other.
    const int textWidth = button.fontMetrics().horizontalAdvance(button.text());
    const int left = isIconOnTheLeft ? icon.left() : icon.left() - textWidth;
    const int right = isIconOnTheLeft ? icon.right() + textWidth : icon.right();
    QCOMPARE(anchor.size(), QSize(8, 8));
    QCOMPARE(anchor.left(), isLeading ? left - 5 - 8 : right + 5);
}

void tst_OxaSvgAnchorButtonPainting::takesTheTextsColorsWithoutASetOfItsOwn()
{
    OxaSvgAnchorButton button;
    button.setAnchorSvgOn(m_square);
    button.setAnchorSvgOff(m_square);
    button.resize(120, 40);
    for (const OxaColorSet &colors : { textColors, otherTextColors }) {
        button.setCSS(QStringLiteral("$textColors: %1;").arg(colors.name));
        button.setChecked(false);
        QCOMPARE(Pixels::countNear(Pixels::render(button), colors.normal), 256);
        button.setChecked(true);
        QCOMPARE(Pixels::countNear(Pixels::render(button), colors.checked), 256);
    }
    button.setAnchorSvgColorSet(anchorColors.name);
    button.setCSS(QStringLiteral("$textColors: text;"));
    QCOMPARE(Pixels::countNear(Pixels::render(button), anchorColors.checked), 256);
    button.setChecked(false);
    QCOMPARE(Pixels::countNear(Pixels::render(button), anchorColors.normal), 256);
}

void tst_OxaSvgAnchorButtonPainting::takesTheTextsColorsForASetThatTheThemeLacks()
{
    OxaSvgAnchorButton button;
    setUp(button);
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"late\"");
    button.setAnchorSvgColorSet(QStringLiteral("late"));
    const QRect place(119 - 8 - 5, 17, 8, 8);
    QCOMPARE(Pixels::countNear(Pixels::render(button), textColors.normal, place), 64);
}

void tst_OxaSvgAnchorButtonPainting::followsTheTheme()
{
    OxaSvgAnchorButton button;
    setUp(button);
    button.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(Pixels::countNear(Pixels::render(button), orange), 64);
}

void tst_OxaSvgAnchorButtonPainting::paintsItsPixmapInsteadOfTheIcon()
{
    OxaSvgAnchorButton button;
    setUp(button);
    QPixmap pixmap(20, 11);
    pixmap.fill(orange);
    button.setPixmap(pixmap);
    button.setPixmapIconVisibility(false); // So that it is not painted under the frame too.
    const QImage image = Pixels::render(button);
    QCOMPARE(button.iconSize(), QSize(20, 11));
    QCOMPARE(Pixels::boundsNear(image, orange).size(), QSize(20, 11));
    QCOMPARE(Pixels::countNear(image, orange), 220);
    QCOMPARE(Faces::facesIn(image, iconColors), QString());
    QCOMPARE(Faces::facesIn(image, textColors), QStringLiteral("normal"));
    QCOMPARE(Faces::facesIn(image, anchorColors), QStringLiteral("normal"));
}

void tst_OxaSvgAnchorButtonPainting::repaintsOnceMoreForThePixmapsSize()
{
    OxaSvgAnchorButton button;
    PaintCounter paints(button);
    button.setPixmap(QPixmap(20, 11));
    button.update();
    // Painting sets it as the icon's size, which causes one more repaint.
    QCOMPARE(paints.take(), 2);
    button.update();
    QCOMPARE(paints.take(), 1);
}

void tst_OxaSvgAnchorButtonPainting::paintsARichText()
{
    OxaSvgAnchorButton button;
    setUp(button);
    button.setText(QStringLiteral("abc<br>def"));
    button.setTextFormat(Qt::RichText);
    const QRect text = Pixels::boundsNear(Pixels::render(button), textColors.normal);
    QVERIFY(text.height() > button.fontMetrics().height());
}

void tst_OxaSvgAnchorButtonPainting::paintsOverItsBackgroundAndUnderItsBadge()
{
    const QColor ground(250, 240, 200);
    const StoreGuard stores(ColorSets::storeOf(
            { textColors, iconColors, anchorColors, OxaColorSet(QStringLiteral("ground"), ground),
              OxaColorSet(QStringLiteral("badge-background"), orange) }));
    OxaSvgAnchorButton button;
    setUp(button);
    button.setCSS(QStringLiteral("$textColors: text; $backgroundColors: ground;"));
    button.setBadgeVisible(true);
    const QImage image = Pixels::render(button);
    QCOMPARE(image.pixelColor(2, 20), ground);
    QVERIFY(Pixels::countNear(image, orange) > 50);
    QCOMPARE(Pixels::countNear(image, anchorColors.normal), 64);
}

void tst_OxaSvgAnchorButtonPainting::paintsTheFrameOfTheFocus()
{
    QWidget window;
    OxaSvgAnchorButton button(&window);
    setUp(button);
    button.setCSS(QStringLiteral("QPushButton { border: none; }"));
    button.setFocusRectColorSet(anchorColors.name);
    QVERIFY(Faces::focusByKeyboard(button));
    // Every second pixel of an edge of 2 * 120 + 2 * 38.
    const QColor inverse(255 - 230, 255, 255);
    QCOMPARE(Pixels::countNear(Pixels::render(button), inverse, QRect(), 0), 158);
}

void tst_OxaSvgAnchorButtonPainting::doesNotRepaintForTheFramesOfItsAnchor_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void tst_OxaSvgAnchorButtonPainting::doesNotRepaintForTheFramesOfItsAnchor()
{
    QFETCH(const bool, isChecked);
    const QString animated = m_files.animated();
    OxaSvgAnchorButton button;
    button.setChecked(isChecked);
    button.setAnchorSvgOn(animated);
    button.setAnchorSvgOff(animated);
    PaintCounter paints(button);
    QVERIFY(passFrames(animated));
    QCOMPARE(paints.take(), 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaSvgAnchorButtonPainting)
#include "tst_oxasvganchorbutton_painting.moc"

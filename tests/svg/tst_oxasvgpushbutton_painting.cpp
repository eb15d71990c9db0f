// SPDX-License-Identifier: Apache-2.0
#include "Frames.h"
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgPushButton.h>

namespace {

const OxaColorSet textColors = Faces::colors(QStringLiteral("text"), 130);
const OxaColorSet otherTextColors = Faces::colors(QStringLiteral("other"), 70);
const OxaColorSet iconColors = Faces::colors(QStringLiteral("icon"), 220);
/// As odd as the height of the text, so that icons stand on whole pixels.
constexpr QSize oddSize(17, 17);

QImage picture(OxaSvgPushButton &button)
{
    button.resize(120, 40);
    return Pixels::render(button);
}

} // namespace

class tst_OxaSvgPushButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();
    void paintsTheCheckedIconInEachState_data() { Faces::addRows(); }
    void paintsTheCheckedIconInEachState();
    void showsThePlainIconAgainWithoutACheckedOne();
    void takesTheTextsColorsForBothIcons();
    void takesTheTextsColorsForACheckedIconAlone();
    void fetchesTheNamedColorsAgainForAStyleText();
    void hasNoColorsAfterAStyleTextWhenTheThemeLacksThem();
    void doesNotRepaintForTheFramesOfItsCheckedIcon();
    void paintsRichTextInTheTextsColors_data() { Faces::addRows(); }
    void paintsRichTextInTheTextsColors();
    void repaintsForARichTextAlsoWhenItIsTheSame();
    void paintsItsTextOnce();
    void elidesATextThatIsTooLong();
    void paintsOverItsBackgroundAndUnderItsBadge();
    void followsTheThemeWithItsFrame();

private:
    SvgFiles m_files;
    QString m_square;
    QString m_half;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaSvgPushButtonPainting::initTestCase()
{
    m_square = m_files.square();
    m_half = m_files.write(QStringLiteral("half.svg"),
                           SvgFiles::document("<path d='M0 0H16V8H0Z'/>"));
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf(
                    { textColors, otherTextColors, iconColors,
                      OxaColorSet(QStringLiteral("ground"), QColor(250, 240, 200)),
                      OxaColorSet(QStringLiteral("badge-background"), QColor(255, 128, 0)) }),
            ColorSets::storeOf({ OxaColorSet(iconColors.name, QColor(255, 128, 0)) }));
}

void tst_OxaSvgPushButtonPainting::paintsEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setCSS(QStringLiteral("$textColors: text;"));
    button.setSvgIcon(m_square);
    button.setSvgIconSize(oddSize);
    button.setSvgIconColorSet(iconColors.name);
    button.setTextHorAlign(OxaEnum::HorAlign::LeftAlign);
    button.resize(120, 40);
    QVERIFY(Faces::put(button, face));
    const QImage image = picture(button);
    QCOMPARE(Faces::facesIn(image, iconColors), Faces::nameOf(face));
    QCOMPARE(Faces::facesIn(image, textColors), Faces::nameOf(face));
    const QRect icon = Pixels::boundsNear(image, Faces::colorOf(iconColors, face));
    const QRect text = Pixels::boundsNear(image, Faces::colorOf(textColors, face));
    QCOMPARE(icon, QRect(direction == Qt::LeftToRight ? 0 : 103, 12, 17, 17));
    QCOMPARE(text.left() > icon.right(), direction == Qt::LeftToRight);
    QCOMPARE(text.right() < icon.left(), direction == Qt::RightToLeft);
}

void tst_OxaSvgPushButtonPainting::paintsTheCheckedIconInEachState()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgPushButton button;
    button.setSvgIcon(m_square);
    button.setSvgIconSize(oddSize);
    button.setSvgIconColorSet(iconColors.name);
    button.setSvgIconChecked(m_half);
    button.setCheckable(true);
    button.resize(120, 40);
    QVERIFY(Faces::put(button, face));
    const QColor plain = Faces::colorOf(iconColors, face);
    QCOMPARE(Pixels::boundsNear(picture(button), plain).height(),
             face == Faces::Face::Checked ? 8 : 17);
    button.setChecked(true);
    // States that win over checked keep their colour.
    const QColor checked = face == Faces::Face::Normal ? iconColors.checked : plain;
    QCOMPARE(Pixels::boundsNear(picture(button), checked).height(), 8);
}

void tst_OxaSvgPushButtonPainting::showsThePlainIconAgainWithoutACheckedOne()
{
    OxaSvgPushButton button;
    button.setCheckable(true);
    button.setChecked(true);
    button.setSvgIcon(m_square);
    button.setSvgIconSize(oddSize);
    button.setSvgIconColorSet(iconColors.name);
    button.setSvgIconChecked(m_half);
    QCOMPARE(Pixels::boundsNear(picture(button), iconColors.checked).height(), 8);
    button.setSvgIconVisible(false);
    QCOMPARE(Faces::facesIn(picture(button), iconColors), QString());
    button.setSvgIconVisible(true);
    button.setSvgIconChecked(QString());
    QCOMPARE(Pixels::boundsNear(picture(button), iconColors.checked).height(), 17);
}

void tst_OxaSvgPushButtonPainting::takesTheTextsColorsForBothIcons()
{
    OxaSvgPushButton button;
    button.setCheckable(true);
    button.setSvgIconChecked(m_square);
    button.setSvgIcon(m_square);
    for (const OxaColorSet &colors : { textColors, otherTextColors }) {
        button.setCSS(QStringLiteral("$textColors: %1;").arg(colors.name));
        button.setChecked(false);
        QCOMPARE(Faces::facesIn(picture(button), colors), QStringLiteral("normal"));
        button.setChecked(true);
        QCOMPARE(Faces::facesIn(picture(button), colors), QStringLiteral("checked"));
    }
    // The set reaches both icons; a new checked icon takes it from the plain one.
    button.setSvgIconColorSet(iconColors.name);
    QCOMPARE(Faces::facesIn(picture(button), iconColors), QStringLiteral("checked"));
    button.setSvgIconChecked(QString());
    button.setSvgIconChecked(m_half);
    QCOMPARE(Faces::facesIn(picture(button), iconColors), QStringLiteral("checked"));
    button.setSvgIconSize(QSize(30, 30));
    QCOMPARE(Pixels::boundsNear(picture(button), iconColors.checked).width(), 30);
}

void tst_OxaSvgPushButtonPainting::takesTheTextsColorsForACheckedIconAlone()
{
    OxaSvgPushButton button;
    button.setCheckable(true);
    button.setChecked(true);
    button.setCSS(QStringLiteral("$textColors: text;"));
    for (const QString &path : { m_square, m_half }) {
        button.setSvgIconChecked(path);
        QCOMPARE(Faces::facesIn(picture(button), textColors), QStringLiteral("checked"));
    }
}

void tst_OxaSvgPushButtonPainting::fetchesTheNamedColorsAgainForAStyleText()
{
    OxaSvgPushButton button;
    button.setSvgIcon(m_square);
    button.setSvgIconColorSet(iconColors.name);
    button.setInnerSvgIcon(m_square);
    button.setInnerSvgIconSize(QSize(7, 7));
    button.setInnerSvgIconColorSet(iconColors.name);
    OxaColorSet changed = iconColors;
    changed.normal = QColor(255, 128, 0);
    const StoreGuard stores(ColorSets::storeOf({ changed, textColors }));
    button.setCSS(QStringLiteral("$textColors: text;"));
    const QImage image = picture(button);
    QVERIFY(Pixels::countNear(image, changed.normal) > 0);
    // The inner picture keeps its colours.
    QVERIFY(Pixels::countNear(image, iconColors.normal) > 0);
}

void tst_OxaSvgPushButtonPainting::hasNoColorsAfterAStyleTextWhenTheThemeLacksThem()
{
    OxaSvgPushButton button;
    button.setCheckable(true);
    button.setSvgIcon(m_square);
    button.setSvgIconColorSet(iconColors.name);
    button.setSvgIconChecked(m_square);
    const StoreGuard stores(ColorSets::storeOf({ textColors }));
    QTest::ignoreMessage(QtWarningMsg, "ColorSet name does not exist!  \"icon\"");
    button.setCSS(QStringLiteral("$textColors: text;"));
    // The text's colours are for an empty name. The icons are in the middle of the frame.
    const QRect middle(20, 10, 80, 20);
    OxaSvgPushButton plain;
    plain.setCheckable(true);
    plain.setCSS(button.getCSS());
    for (const bool isChecked : { false, true }) {
        button.setChecked(isChecked);
        plain.setChecked(isChecked);
        QCOMPARE(picture(button).copy(middle), picture(plain).copy(middle));
    }
}

void tst_OxaSvgPushButtonPainting::doesNotRepaintForTheFramesOfItsCheckedIcon()
{
    const QString animated = m_files.animated();
    OxaSvgPushButton button;
    button.setCheckable(true);
    button.setChecked(true);
    button.setSvgIconChecked(animated);
    PaintCounter paints(button);
    QVERIFY(passFrames(animated));
    QCOMPARE(paints.take(), 0);
}

void tst_OxaSvgPushButtonPainting::paintsRichTextInTheTextsColors()
{
    QFETCH(const Faces::Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaSvgPushButton button(QStringLiteral("<b>abc</b><br>def"));
    button.setCSS(QStringLiteral("$textColors: text;"));
    button.setTextFormat(Qt::RichText);
    button.resize(120, 60);
    QVERIFY(Faces::put(button, face));
    button.resize(120, 60);
    const QImage image = Pixels::render(button);
    QCOMPARE(Faces::facesIn(image, textColors), Faces::nameOf(face));
    const QRect text = Pixels::boundsNear(image, Faces::colorOf(textColors, face));
    QVERIFY(text.height() > button.fontMetrics().height());
}

void tst_OxaSvgPushButtonPainting::repaintsForARichTextAlsoWhenItIsTheSame()
{
    OxaSvgPushButton button(QStringLiteral("<b>abc</b>"));
    button.setTextFormat(Qt::RichText);
    PaintCounter paints(button);
    button.setText(button.text());
    QCOMPARE(paints.take(), 1);
    button.setFont(button.font());
    QCOMPARE(paints.take(), 1);
}

void tst_OxaSvgPushButtonPainting::paintsItsTextOnce()
{
    // Beside a wide icon, the style would paint the text under it.
    OxaSvgPushButton button(QStringLiteral("abc"));
    button.setCSS(QStringLiteral("$textColors: text;"));
    button.setSvgIcon(m_square);
    button.setSvgIconSize(QSize(40, 1));
    const QRect text = Pixels::boundsNear(picture(button), textColors.normal);
    const int width = button.fontMetrics().horizontalAdvance(button.text());
    QVERIFY(text.right() <= 60 + (40 + width) / 2);
    button.setSvgIconVisible(false);
    const QRect alone = Pixels::boundsNear(picture(button), textColors.normal);
    QVERIFY(alone.width() <= width);
}

void tst_OxaSvgPushButtonPainting::elidesATextThatIsTooLong()
{
    OxaSvgPushButton button(QStringLiteral("A text that is too long for its button"));
    button.setCSS(QStringLiteral("$textColors: text;"));
    button.setElidePadding(40);
    const QRect text = Pixels::boundsNear(picture(button), textColors.normal);
    QVERIFY(text.width() <= 80);
    QVERIFY(text.width() > 50);
}

void tst_OxaSvgPushButtonPainting::paintsOverItsBackgroundAndUnderItsBadge()
{
    OxaSvgPushButton button;
    button.setCSS(QStringLiteral("$textColors: text; $backgroundColors: ground;"));
    button.setSvgIcon(m_square);
    button.setBadgeVisible(true);
    const QImage image = picture(button);
    QCOMPARE(image.pixelColor(2, 20), QColor(250, 240, 200));
    QCOMPARE(image.pixelColor(60, 20), textColors.normal);
    QVERIFY(Pixels::countNear(image, QColor(255, 128, 0)) > 50);
}

void tst_OxaSvgPushButtonPainting::followsTheThemeWithItsFrame()
{
    QWidget window;
    OxaSvgPushButton button(&window);
    button.setCSS(QStringLiteral("QPushButton { border: none; }"));
    button.resize(60, 40);
    button.setFocusRectColorSet(iconColors.name);
    QVERIFY(Faces::focusByKeyboard(button));
    // Every second pixel of an edge of 2 * 60 + 2 * 38, in the inverse of the set's colour.
    QCOMPARE(Pixels::countNear(Pixels::render(button), QColor(255 - 220, 255, 255), QRect(), 0),
             98);
    button.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(Pixels::countNear(Pixels::render(button), QColor(0, 127, 255), QRect(), 0), 98);
}

UIELEMENTS_TEST_MAIN(tst_OxaSvgPushButtonPainting)
#include "tst_oxasvgpushbutton_painting.moc"

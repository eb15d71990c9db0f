// SPDX-License-Identifier: Apache-2.0
#include "support/Faces.h"
#include "support/Guards.h"
#include "support/RecordingStyle.h"
#include "support/SvgFiles.h"
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaUnderlineButton.h>

#include <QPainter>

namespace {

const OxaColorSet ground = Faces::colors(QStringLiteral("oxa-underlineButton-background"), 220);
const OxaColorSet text = Faces::colors(QStringLiteral("oxa-underlineButton-text"), 130);
const OxaColorSet tabs = Faces::colors(QStringLiteral("oxa-spaceTabs-text"), 75);
const OxaColorSet line = Faces::colors(QStringLiteral("line"), 175);
const QColor orange(255, 128, 0);

/// Sets up a button of 120 by 40 with an underline of a colour of its own.
void setUp(OxaUnderlineButton &button)
{
    button.resize(120, 40);
    button.setCheckable(true);
    button.setText(QStringLiteral("abc"));
    button.setUnderlineColorSet(line.name);
}

/// Returns where the text is, by its colour \a color.
QRect textIn(const QImage &image, const QColor &color = text.normal)
{
    return Pixels::boundsNear(image, color);
}

int centreOf(const QRect &rect) { return (rect.left() + rect.right()) / 2; }

void addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

QImage square(const QColor &color)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

class tst_OxaUnderlineButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_stores.reset(); }

    void paintsEachState_data() { Faces::addRows(); }
    void paintsEachState();
    void fillsARoundedRectangleUnderThePointer();
    void fillsNothingWhileDisabled();
    void underlinesFromSideToSide();
    void underlinesWhileItIsHeldDownUnchecked();
    void underlinesADisabledButtonThatIsChecked();
    void centresItsTextAboveTheBottomPadding();
    void placesTheLeftImage_data() { addDirections(); }
    void placesTheLeftImage();
    void makesRoomForTheUnreadDot_data() { addDirections(); }
    void makesRoomForTheUnreadDot();
    void showsTheDotInsteadOfTheImage();
    void placesTheAnchorIconAtTheRight_data() { addDirections(); }
    void placesTheAnchorIconAtTheRight();
    void paintsTheAnchorInTheStatesColor();
    void elidesItsTextInTheRoomThatIsLeft();
    void paintsNoFrameOfTheStyle();

    void paintsADottedFrameAboveTheBottomPadding();
    void leavesTheFrameToTheApplicationsStyle();

private:
    SvgFiles m_files;
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaUnderlineButtonPainting::init()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ground, text, tabs, line,
              OxaColorSet(QStringLiteral("oxa-unreadCountCircle-background"), orange) }));
}

void tst_OxaUnderlineButtonPainting::paintsEachState()
{
    using Faces::Face;
    QFETCH(const Face, face);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaUnderlineButton button;
    setUp(button);
    QVERIFY(Faces::put(button, face));
    button.resize(120, 40);
    const QImage image = Pixels::render(button);
    const bool isUnderlined = face == Face::Pressed || face == Face::Checked;
    // A checked text takes the pressed colour, and a focused one the normal one.
    const bool hasOwnColor = face == Face::Hovered || face == Face::Disabled;
    const Face textFace = isUnderlined ? Face::Pressed : hasOwnColor ? face : Face::Normal;
    QCOMPARE(Faces::facesIn(image, text, QRect(20, 4, 80, 30)), Faces::nameOf(textFace));
    QCOMPARE(Faces::facesIn(image, ground, QRect(20, 4, 80, 30)),
             face == Face::Hovered ? QStringLiteral("hovered") : QString());
    QCOMPARE(image.pixelColor(60, 39) == line.normal, isUnderlined);
    // The frame of the focus, in the inverse of the pressed background.
    QCOMPARE(Pixels::countNear(image, QColor(255, 255, 35), QRect(), 0) > 100,
             face == Face::Focused);
}

void tst_OxaUnderlineButtonPainting::fillsARoundedRectangleUnderThePointer()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setText(QString());
    Faces::hover(button);
    const QImage image = Pixels::render(button);
    QCOMPARE(image.pixelColor(60, 20), ground.hovered);
    QCOMPARE(image.pixelColor(2, 20), ground.hovered);
    // Rounded by 14 pixels.
    for (const QPoint &corner : { QPoint(1, 1), QPoint(118, 1), QPoint(1, 38), QPoint(118, 38) })
        QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
    QCOMPARE(image.pixelColor(20, 3), ground.hovered);
    // The outline is the painter's own pen.
    QVERIFY(Pixels::countNear(image, button.palette().color(QPalette::ButtonText),
                              QRect(30, 0, 60, 1), 140)
            > 50);
}

void tst_OxaUnderlineButtonPainting::fillsNothingWhileDisabled()
{
    OxaUnderlineButton button;
    setUp(button);
    Faces::hover(button);
    button.setEnabled(false);
    const QImage image = Pixels::render(button);
    QCOMPARE(Faces::facesIn(image, ground), QString());
    QCOMPARE(Faces::facesIn(image, text), QStringLiteral("disabled"));
}

void tst_OxaUnderlineButtonPainting::underlinesFromSideToSide()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setText(QString());
    button.setChecked(true);
    const QRect underline = Pixels::boundsNear(Pixels::render(button), line.normal);
    // From 4 to 115 on the line 39, and a square cap of half the width at each end.
    QCOMPARE(underline, QRect(3, 38, 113, 2));
}

void tst_OxaUnderlineButtonPainting::underlinesWhileItIsHeldDownUnchecked()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setCheckable(false);
    QVERIFY(Pixels::render(button).pixelColor(60, 39) != line.normal);
    button.setDown(true);
    const QImage image = Pixels::render(button);
    QCOMPARE(image.pixelColor(60, 39), line.normal);
    QCOMPARE(Faces::facesIn(image, text), QStringLiteral("pressed"));
}

void tst_OxaUnderlineButtonPainting::underlinesADisabledButtonThatIsChecked()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setChecked(true);
    button.setEnabled(false);
    const QImage image = Pixels::render(button);
    QCOMPARE(image.pixelColor(60, 39), line.normal);
    QCOMPARE(Faces::facesIn(image, text), QStringLiteral("pressed"));
}

void tst_OxaUnderlineButtonPainting::centresItsTextAboveTheBottomPadding()
{
    OxaUnderlineButton button;
    setUp(button);
    const QRect before = textIn(Pixels::render(button));
    QVERIFY(qAbs(centreOf(before) - 60) <= 1);
    button.setBottomPadding(12);
    QCOMPARE(textIn(Pixels::render(button)), before.translated(0, -5));
}

void tst_OxaUnderlineButtonPainting::placesTheLeftImage()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaUnderlineButton button;
    setUp(button);
    button.setLeftIcon(square(orange));
    const QImage image = Pixels::render(button);
    // It is on the left side in both directions.
    QCOMPARE(Pixels::boundsNear(image, orange), QRect(3, 12, 17, 17));
    QVERIFY(qAbs(centreOf(textIn(image)) - (23 + 119) / 2) <= 1);
    button.resize(120, 41);
    QCOMPARE(Pixels::boundsNear(Pixels::render(button), orange), QRect(3, 12, 17, 17));
}

void tst_OxaUnderlineButtonPainting::makesRoomForTheUnreadDot()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaUnderlineButton button;
    setUp(button);
    button.setShowUnreadIndicator(true);
    const QImage image = Pixels::render(button);
    QImage dot(12, 40, QImage::Format_ARGB32_Premultiplied);
    dot.fill(Qt::white);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(orange);
    painter.drawEllipse(0, 12, 10, 10);
    QCOMPARE(image.copy(dot.rect()), dot);
    QVERIFY(qAbs(centreOf(textIn(image)) - (12 + 119) / 2) <= 1);
}

void tst_OxaUnderlineButtonPainting::showsTheDotInsteadOfTheImage()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setLeftIcon(square(QColor(0, 128, 255)));
    button.setShowUnreadIndicator(true);
    const QImage image = Pixels::render(button);
    QCOMPARE(Pixels::countNear(image, QColor(0, 128, 255)), 0);
    QVERIFY(qAbs(centreOf(textIn(image)) - (12 + 119) / 2) <= 1);
}

void tst_OxaUnderlineButtonPainting::placesTheAnchorIconAtTheRight()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaUnderlineButton button;
    setUp(button);
    const QRect before = textIn(Pixels::render(button));
    button.setAnchorIcon(m_files.square());
    const QImage image = Pixels::render(button);
    // 119 - 8 - 3 across, 39 / 2 - 4 down.
    QCOMPARE(Pixels::boundsNear(image, tabs.normal), QRect(108, 15, 8, 8));
    QVERIFY(qAbs(centreOf(textIn(image)) - (108 - 6) / 2) <= 1);
    button.setAnchorIcon(QString());
    QCOMPARE(textIn(Pixels::render(button)), before);
}

void tst_OxaUnderlineButtonPainting::paintsTheAnchorInTheStatesColor()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setAnchorIcon(m_files.square());
    button.setChecked(true);
    QCOMPARE(Pixels::countNear(Pixels::render(button), tabs.checked), 64);
    button.setDown(true);
    QCOMPARE(Pixels::countNear(Pixels::render(button), tabs.pressed), 64);
    button.setEnabled(false);
    QCOMPARE(Pixels::countNear(Pixels::render(button), tabs.disabled), 64);
}

void tst_OxaUnderlineButtonPainting::elidesItsTextInTheRoomThatIsLeft()
{
    const QString longText = QStringLiteral("A text that is too long for its button");
    const auto picture = [this](const QString &shown, Qt::TextElideMode mode) {
        OxaUnderlineButton button;
        setUp(button);
        button.setText(shown);
        button.setLeftIcon(square(orange));
        button.setAnchorIcon(m_files.square());
        button.setElideMode(mode);
        return Pixels::render(button);
    };
    const QFontMetrics metrics = OxaUnderlineButton().fontMetrics();
    for (const Qt::TextElideMode mode : { Qt::ElideLeft, Qt::ElideMiddle, Qt::ElideRight }) {
        // First to the whole button, then to the space that is left, from 23 to 102.
        const QString elided = metrics.elidedText(metrics.elidedText(longText, mode, 120), mode,
                                                  80);
        QCOMPARE(picture(longText, mode), picture(elided, Qt::ElideNone));
    }
}

void tst_OxaUnderlineButtonPainting::paintsNoFrameOfTheStyle()
{
    OxaUnderlineButton button;
    setUp(button);
    button.setText(QString());
    QImage paper(120, 40, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QCOMPARE(Pixels::render(button), paper);
}

void tst_OxaUnderlineButtonPainting::paintsADottedFrameAboveTheBottomPadding()
{
    QWidget window;
    OxaUnderlineButton button(&window);
    setUp(button);
    button.setBottomPadding(7);
    QVERIFY(Faces::focusByKeyboard(button));
    QCOMPARE(Pixels::boundsNear(Pixels::render(button), QColor(255, 255, 35), 0),
             QRect(0, 0, 120, 33));
}

void tst_OxaUnderlineButtonPainting::leavesTheFrameToTheApplicationsStyle()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    QWidget window;
    OxaUnderlineButton button(&window);
    setUp(button);
    button.setBottomPadding(7);
    QVERIFY(Faces::focusByKeyboard(button));
    const auto before = style.calls().size();
    Pixels::render(button);
    QVERIFY(style.calls().size() > before);
    QCOMPARE(style.calls().back().element, QStyle::PE_FrameFocusRect);
    QCOMPARE(style.calls().back().rect, QRect(0, 0, 120, 33));
    QCOMPARE(style.calls().back().widget, &button);
    QCOMPARE(button.property("hasCustomRect"), QVariant(true));
}

UIELEMENTS_TEST_MAIN(tst_OxaUnderlineButtonPainting)
#include "tst_oxaunderlinebutton_painting.moc"

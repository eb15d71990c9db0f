// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"
#include "support/Guards.h"
#include "support/TestApplication.h"

using OxaEnum::Alignment;
using OxaEnum::HorAlign;
using namespace CheckBoxPictures;

namespace {

using SetUp = std::function<void(OxaCheckBox &)>;

const QString longText = QStringLiteral("A text that is too long for one line of its check box");

const std::unique_ptr<OxaSvgIcon> noTick;

/// Sets \a checkBox up with a text in one line.
void plain(OxaCheckBox &checkBox)
{
    checkBox.setCheckboxSize(oddSize);
    checkBox.setText(QStringLiteral("abc"));
    checkBox.resize(120, 40);
}

/// Returns where a box of the odd size begins below the top of \a checkBox, with one line of text.
int topOf(const OxaCheckBox &checkBox)
{
    return (checkBox.fontMetrics().height() - oddSize.height()) / 2;
}

/// Returns how wide the text of \a checkBox is, with what its letters overhang.
int textWidth(const OxaCheckBox &checkBox)
{
    return checkBox.fontMetrics()
            .boundingRect(QRect(0, 0, 100, 100), Qt::AlignVCenter, checkBox.text())
            .width();
}

const std::pair<const char *, SetUp> setUps[] = {
    { "a text", [](OxaCheckBox &) {} },
    { "no text", [](OxaCheckBox &box) { box.setText(QString()); } },
    { "a long text", [](OxaCheckBox &box) { box.setText(longText); } },
    { "a long text, not wrapped",
      [](OxaCheckBox &box) {
          box.setWordWrap(false);
          box.setText(longText);
      } },
    { "a text of two lines", [](OxaCheckBox &box) { box.setText(QStringLiteral("ab\nc")); } },
    { "a text from right to left",
      [](OxaCheckBox &box) { box.setText(QString::fromUtf8("\u05d0\u05d1\u05d2")); } },
    { "elided on the right",
      [](OxaCheckBox &box) {
          box.setWordWrap(false);
          box.setElideMode(Qt::ElideRight);
          box.setText(longText);
      } },
    { "elided on the left",
      [](OxaCheckBox &box) {
          box.setWordWrap(false);
          box.setElideMode(Qt::ElideLeft);
          box.setText(longText);
      } },
    { "elided in the middle",
      [](OxaCheckBox &box) {
          box.setWordWrap(false);
          box.setElideMode(Qt::ElideMiddle);
          box.setText(longText);
      } },
    { "elided to the wrapped text's width",
      [](OxaCheckBox &box) {
          box.setElideMode(Qt::ElideRight);
          box.setText(longText);
      } },
    { "a padding that only its own elision counts",
      [](OxaCheckBox &box) {
          box.setWordWrap(false);
          box.setElideMode(Qt::ElideRight);
          box.setElidePadding(50);
          box.setText(longText);
      } },
    { "the box on the right", [](OxaCheckBox &box) { box.setSvgIconAlignment(Alignment::Right); } },
    { "the box above", [](OxaCheckBox &box) { box.setSvgIconAlignment(Alignment::Top); } },
    { "the box below", [](OxaCheckBox &box) { box.setSvgIconAlignment(Alignment::Bottom); } },
    { "both in the centre", [](OxaCheckBox &box) { box.setTextHorAlign(HorAlign::CenterAlign); } },
    { "both on the right", [](OxaCheckBox &box) { box.setTextHorAlign(HorAlign::RightAlign); } },
    { "paddings of the text",
      [](OxaCheckBox &box) {
          box.setTextLeftPadding(3);
          box.setTextRightPadding(7);
      } },
    { "paddings of the icon",
      [](OxaCheckBox &box) {
          box.setSvgIconPadding(QMargins(2, 5, 9, 6));
          box.setTextHorAlign(HorAlign::RightAlign);
      } },
    { "a box that is wide", [](OxaCheckBox &box) { box.setCheckboxSize(QSize(31, 9)); } },
    { "a box larger than the text", [](OxaCheckBox &box) { box.setCheckboxSize(QSize(33, 33)); } },
    { "a box of no size", [](OxaCheckBox &box) { box.setCheckboxSize(QSize(0, 0)); } },
    { "a tick of another size",
      [](OxaCheckBox &box) {
          box.setCheckboxSize(QSize(21, 19));
          box.setSvgIconSize(QSize(8, 6));
      } },
    { "a tick larger than the box", [](OxaCheckBox &box) { box.setSvgIconSize(QSize(23, 19)); } },
};

} // namespace

/// What DrawUtils::drawCheckbox() paints, but for the focus frame.
class tst_OxaCheckBoxDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanup() { m_stores.reset(); }

    void paintsBoxTickAndText_data();
    void paintsBoxTickAndText();
    void wrapsAndElidesAtEachWidth_data();
    void wrapsAndElidesAtEachWidth();
    void wrapsInAFontThatIsTooLargeForTheLine();
    void placesTheBoxBesideTheText_data();
    void placesTheBoxBesideTheText();
    void placesTheTickInTheMiddleOfTheBox_data();
    void placesTheTickInTheMiddleOfTheBox();
    void takesHalfTheRadiusOffARoundedBox_data();
    void takesHalfTheRadiusOffARoundedBox();
    void paintsInTheColorsOfTheState_data();
    void paintsInTheColorsOfTheState();
    void leavesThePainterAtItsPlace_data();
    void leavesThePainterAtItsPlace();
    void warnsOfAnAlignmentThatItDoesNotKnow();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaCheckBoxDrawing::paintsBoxTickAndText_data()
{
    QTest::addColumn<int>("setUp");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isRounded");
    int row = 0;
    for (const auto &[name, setUp] : setUps) {
        QTest::addRow("%s", name) << row << Qt::LeftToRight << false;
        QTest::addRow("%s, rounded", name) << row << Qt::LeftToRight << true;
        QTest::addRow("%s, right to left", name) << row << Qt::RightToLeft << false;
        QTest::addRow("%s, rounded, right to left", name) << row << Qt::RightToLeft << true;
        ++row;
    }
}

void tst_OxaCheckBoxDrawing::paintsBoxTickAndText()
{
    QFETCH(const int, setUp);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, isRounded);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaCheckBox checkBox;
    plain(checkBox);
    setUps[setUp].second(checkBox);
    const auto tick = makeTick(checkBox);
    for (const bool hasTick : { false, true }) {
        for (const int radius : { 0, 2, 5 }) {
            const Look look { isRounded, hasTick, radius };
            const QImage image = drawing(checkBox, [&](QPainter *painter) {
                drawCheckbox(painter, checkBox, look, hasTick ? tick : noTick);
            });
            const QImage expected = drawing(checkBox, [&](QPainter *painter) {
                paint(painter, checkBox, look);
            });
            QCOMPARE(image, expected);
        }
    }
}

void tst_OxaCheckBoxDrawing::wrapsAndElidesAtEachWidth_data()
{
    QTest::addColumn<bool>("wordWrap");
    QTest::newRow("wrapped") << true;
    QTest::newRow("elided") << false;
}

void tst_OxaCheckBoxDrawing::wrapsAndElidesAtEachWidth()
{
    QFETCH(const bool, wordWrap);
    OxaCheckBox checkBox;
    plain(checkBox);
    checkBox.setText(QStringLiteral("one two three"));
    checkBox.setWordWrap(wordWrap);
    checkBox.setElideMode(wordWrap ? Qt::ElideNone : Qt::ElideRight);
    const int enough = checkBox.geTextPadding()
            + checkBox.fontMetrics().horizontalAdvance(checkBox.text());
    for (int width = enough - 4; width < enough + 4; ++width) {
        checkBox.resize(width, 40);
        const QImage image = drawing(checkBox, [&checkBox](QPainter *painter) {
            drawCheckbox(painter, checkBox, { false, false }, noTick);
        });
        const QImage expected = drawing(checkBox, [&checkBox](QPainter *painter) {
            paint(painter, checkBox, { false, false });
        });
        QCOMPARE(image, expected);
    }
}

void tst_OxaCheckBoxDrawing::wrapsInAFontThatIsTooLargeForTheLine()
{
    OxaCheckBox checkBox;
    plain(checkBox);
    checkBox.setText(QStringLiteral("one two"));
    checkBox.setWordWrap(false); // Counts for the place of the text, not for its painting.
    QFont large = checkBox.font();
    large.setPixelSize(18);
    const QImage image = drawing(checkBox, [&](QPainter *painter) {
        painter->setFont(large);
        drawCheckbox(painter, checkBox, { false, false }, noTick);
    });
    const QImage expected = drawing(checkBox, [&](QPainter *painter) {
        painter->setFont(large);
        paint(painter, checkBox, { false, false });
    });
    QCOMPARE(image, expected);
}

void tst_OxaCheckBoxDrawing::placesTheBoxBesideTheText_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<HorAlign>("align");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("left"); // Of the box; less than 0 is where the text begins.
    QTest::newRow("left") << Alignment::Left << HorAlign::LeftAlign << Qt::LeftToRight << 0;
    QTest::newRow("after the text")
            << Alignment::Right << HorAlign::LeftAlign << Qt::LeftToRight << 10 - 1000;
    QTest::newRow("left, right to left")
            << Alignment::Left << HorAlign::LeftAlign << Qt::RightToLeft << 120 - 15;
    QTest::newRow("right, right to left")
            << Alignment::Right << HorAlign::RightAlign << Qt::RightToLeft << 0;
}

void tst_OxaCheckBoxDrawing::placesTheBoxBesideTheText()
{
    QFETCH(const Alignment, alignment);
    QFETCH(const HorAlign, align);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(int, left);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaCheckBox checkBox;
    plain(checkBox);
    checkBox.setSvgIconAlignment(alignment);
    checkBox.setTextHorAlign(align);
    if (left < 0)
        left += 1000 + textWidth(checkBox);
    const QImage image = drawing(checkBox, [&checkBox](QPainter *painter) {
        drawCheckbox(painter, checkBox, { false, false }, noTick);
    });
    // The line around the box covers half of the pixels inside its edge.
    QCOMPARE(Pixels::boundsNear(image, uncheckedColors.checked),
             QRect(left + 1, topOf(checkBox) + 1, 13, 13));
    const bool isBoxFirst = (alignment == Alignment::Left) == (direction == Qt::LeftToRight);
    const QRect before(0, 0, left, 40);
    const QRect behind(left + 16, 0, 120 - left, 40);
    QVERIFY(Pixels::countNear(image, textColors.checked, isBoxFirst ? behind : before, 60) > 0);
    if (!isBoxFirst)
        QCOMPARE(Pixels::countNear(image, textColors.checked, behind, 60), 0);
}

void tst_OxaCheckBoxDrawing::placesTheTickInTheMiddleOfTheBox_data()
{
    QTest::addColumn<bool>("isRounded");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("tick"); // From the top of the box.
    // The margin counts also where the box is not rounded and begins before it.
    QTest::newRow("rounded") << true << Qt::LeftToRight << QRect(3 + 2, 2, 11, 11);
    QTest::newRow("not rounded") << false << Qt::LeftToRight << QRect(3 + 2, 2, 11, 11);
    QTest::newRow("rounded, right to left")
            << true << Qt::RightToLeft << QRect(120 - 15 + 2 - 3, 2, 11, 11);
    QTest::newRow("not rounded, right to left")
            << false << Qt::RightToLeft << QRect(120 - 15 + 2 - 3, 2, 11, 11);
}

void tst_OxaCheckBoxDrawing::placesTheTickInTheMiddleOfTheBox()
{
    QFETCH(const bool, isRounded);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QRect, tick);
    const LayoutDirectionGuard layoutDirection(direction);
    OxaCheckBox checkBox;
    plain(checkBox);
    const QImage image = drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, { isRounded, true }, makeTick(checkBox));
    });
    QCOMPARE(Pixels::boundsNear(image, iconColors.checked, 2), tick.translated(0, topOf(checkBox)));
    QCOMPARE(Pixels::countNear(image, iconColors.checked, QRect(), 2), 121);
}

void tst_OxaCheckBoxDrawing::takesHalfTheRadiusOffARoundedBox_data()
{
    QTest::addColumn<int>("radius");
    QTest::addColumn<bool>("isRounded");
    QTest::addColumn<QRect>("box"); // Without its line, from its top.
    QTest::newRow("not rounded") << 5 << false << QRect(1, 1, 13, 13);
    QTest::newRow("radius 0") << 0 << true << QRect(4, 1, 13, 13);
    QTest::newRow("radius 1 halves to 0") << 1 << true << QRect(4, 1, 13, 13);
    QTest::newRow("radius 2") << 2 << true << QRect(4, 1, 12, 12);
    QTest::newRow("radius 5 halves to 2") << 5 << true << QRect(4, 1, 11, 11);
}

void tst_OxaCheckBoxDrawing::takesHalfTheRadiusOffARoundedBox()
{
    QFETCH(const int, radius);
    QFETCH(const bool, isRounded);
    QFETCH(const QRect, box);
    OxaCheckBox checkBox;
    plain(checkBox);
    const QImage image = drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, { isRounded, false, radius }, noTick);
    });
    QCOMPARE(Pixels::boundsNear(image, uncheckedColors.checked),
             box.translated(0, topOf(checkBox)));
}

void tst_OxaCheckBoxDrawing::paintsInTheColorsOfTheState_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("face");
    const QStyle::State enabled = QStyle::State_Enabled;
    const auto addRow = [](const char *name, QStyle::State state, const char *face) {
        QTest::newRow(name) << state << QString::fromLatin1(face);
    };
    addRow("off", enabled | QStyle::State_Off, "normal");
    addRow("on", enabled | QStyle::State_On, "checked");
    addRow("partly on", enabled | QStyle::State_NoChange, "normal");
    addRow("disabled", QStyle::State_On, "disabled");
    addRow("pressed", enabled | QStyle::State_Sunken | QStyle::State_On, "pressed");
    addRow("hovered", enabled | QStyle::State_MouseOver | QStyle::State_On, "hovered");
    addRow("focused", enabled | QStyle::State_HasFocus | QStyle::State_On, "focused");
}

void tst_OxaCheckBoxDrawing::paintsInTheColorsOfTheState()
{
    QFETCH(const QStyle::State, state);
    QFETCH(const QString, face);
    OxaCheckBox checkBox;
    plain(checkBox);
    // Of an even height beside an odd one, so that the lines above and below fill whole pixels.
    checkBox.setCheckboxSize(QSize(24, 14));
    const QRect box(0, 0, 30, 23);
    for (const bool isRounded : { false, true }) {
        const QImage image = drawing(checkBox, [&](QPainter *painter) {
            drawCheckbox(painter, checkBox, { isRounded, true, boxRadius, state },
                         makeTick(checkBox));
        });
        QVERIFY(Faces::facesIn(image, borderColors, box).contains(face));
        QCOMPARE(Faces::facesIn(image, iconColors, insideOfBox(120)), face);
        QCOMPARE(Faces::facesIn(image, checkedColors, insideOfBox(120)), face);
        QCOMPARE(Faces::facesIn(image, textColors, QRect(32, 0, 80, 30)), face);
    }
}

void tst_OxaCheckBoxDrawing::leavesThePainterAtItsPlace_data()
{
    QTest::addColumn<HorAlign>("align");
    QTest::addColumn<QSize>("boxSize");
    QTest::addColumn<double>("part"); // The share of the free space that is before the block.
    QTest::newRow("left") << HorAlign::LeftAlign << QSize(15, 15) << 0.0;
    QTest::newRow("centre") << HorAlign::CenterAlign << QSize(15, 15) << 0.5;
    QTest::newRow("right") << HorAlign::RightAlign << QSize(15, 15) << 1.0;
    QTest::newRow("right, above the top") << HorAlign::RightAlign << QSize(33, 33) << 1.0;
}

void tst_OxaCheckBoxDrawing::leavesThePainterAtItsPlace()
{
    QFETCH(const HorAlign, align);
    QFETCH(const QSize, boxSize);
    QFETCH(const double, part);
    OxaCheckBox checkBox;
    plain(checkBox);
    checkBox.setTextHorAlign(align);
    checkBox.setCheckboxSize(boxSize);
    const int width = boxSize.width() + 10 + textWidth(checkBox);
    const QPoint place(qRound((120 - width) * part),
                       qMin(0, (checkBox.fontMetrics().height() - boxSize.height()) / 2));
    drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, {}, makeTick(checkBox));
        QCOMPARE(painter->transform(), QTransform::fromTranslate(place.x(), place.y()));
    });
}

void tst_OxaCheckBoxDrawing::warnsOfAnAlignmentThatItDoesNotKnow()
{
    OxaCheckBox checkBox;
    plain(checkBox);
    checkBox.setTextHorAlign(HorAlign(3));
    QTest::ignoreMessage(QtWarningMsg, "Unsupported OxaEnum::HorAlign!");
    const QImage image = drawing(checkBox, [&checkBox](QPainter *painter) {
        drawCheckbox(painter, checkBox, { false, false }, noTick);
        QCOMPARE(painter->transform(), QTransform());
    });
    QCOMPARE(Pixels::boundsNear(image, uncheckedColors.checked),
             QRect(1, topOf(checkBox) + 1, 13, 13));
}

UIELEMENTS_TEST_MAIN(tst_OxaCheckBoxDrawing)
#include "tst_oxacheckbox_drawing.moc"

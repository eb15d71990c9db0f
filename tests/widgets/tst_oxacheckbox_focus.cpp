// SPDX-License-Identifier: Apache-2.0
#include "CheckBoxPictures.h"
#include "support/Guards.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"

using OxaEnum::HorAlign;
using namespace CheckBoxPictures;

namespace {

constexpr QStyle::State keyboardFocus = QStyle::State_Enabled | QStyle::State_HasFocus
        | QStyle::State_KeyboardFocusChange;
const QColor inverse(55, 155, 225); // Of the focus set's colour.
const std::unique_ptr<OxaSvgIcon> noTick;

/// Sets \a checkBox up with paddings that differ and a text in one line.
void setUp(OxaCheckBox &checkBox)
{
    checkBox.setCheckboxSize(oddSize);
    checkBox.setText(QStringLiteral("abc"));
    checkBox.setTextRightPadding(6);
    checkBox.setSvgIconPadding(QMargins(2, 1, 4, 1));
    checkBox.resize(140, 40);
}

} // namespace

/// The focus frame of a check box.
class tst_OxaCheckBoxFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(store()); }
    void cleanup() { m_stores.reset(); }

    void leavesTheFrameToTheApplicationsStyle_data();
    void leavesTheFrameToTheApplicationsStyle();
    void framesABoxAboveTheTop_data();
    void framesABoxAboveTheTop();
    void framesTheWidgetForABoxOfNoSize();
    void framesAsTheApplicationsStyleWhateverTheFocusSet();
    void asksNoStyleWithoutFocusByKeyboard_data();
    void asksNoStyleWithoutFocusByKeyboard();
    void paintsTheDottedFrameAroundItsRectangle_data();
    void paintsTheDottedFrameAroundItsRectangle();
    void paintsNoDottedFrameWithoutAFocusSet();
    void showsTheFrameWhileItHasTheFocusByKeyboard();
    void showsTheDottedFrameInTheThemesColor();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaCheckBoxFocus::leavesTheFrameToTheApplicationsStyle_data()
{
    QTest::addColumn<HorAlign>("align");
    QTest::addColumn<bool>("isRounded");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("x"); // From the block, without the width of the text.
    QTest::addColumn<int>("textWidths");
    // The box begins 2 pixels after the block.
    QTest::newRow("not rounded") << HorAlign::LeftAlign << false << Qt::LeftToRight << 2 << 0;
    QTest::newRow("rounded") << HorAlign::LeftAlign << true << Qt::LeftToRight << 5 << 0;
    QTest::newRow("on the right") << HorAlign::RightAlign << true << Qt::LeftToRight << 5 << 0;
    // Right to left, what is beside the box counts once more: the lead of 4, the text with its
    // paddings of 10 and 6, and the same again with the padding of 4.
    QTest::newRow("not rounded, right to left")
            << HorAlign::LeftAlign << false << Qt::RightToLeft << 4 + 16 + 16 + 4 << 2;
    QTest::newRow("rounded, right to left")
            << HorAlign::LeftAlign << true << Qt::RightToLeft << 4 + 16 + 16 + 4 - 3 << 2;
    QTest::newRow("in the centre, right to left")
            << HorAlign::CenterAlign << true << Qt::RightToLeft << 4 + 16 + 16 + 4 - 3 << 2;
}

void tst_OxaCheckBoxFocus::leavesTheFrameToTheApplicationsStyle()
{
    QFETCH(const HorAlign, align);
    QFETCH(const bool, isRounded);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, x);
    QFETCH(const int, textWidths);
    const LayoutDirectionGuard layoutDirection(direction);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setTextHorAlign(align);
    const Look look { isRounded, false, 5, keyboardFocus };
    QPainter *used = nullptr;
    drawing(checkBox, [&](QPainter *painter) {
        used = painter;
        drawCheckbox(painter, checkBox, look, noTick, focusColors);
    });
    const Places places = placesIn(checkBox);
    const QPoint topLeft(places.block.x() + x + textWidths * places.textRect.width(),
                         (checkBox.fontMetrics().height() - oddSize.height() - 2) / 2);
    QCOMPARE(style.calls().size(), std::size_t(1));
    const RecordingStyle::Call &call = style.calls().front();
    QCOMPARE(call.element, QStyle::PE_FrameFocusRect);
    QCOMPARE(call.optionType, int(QStyleOption::SO_FocusRect));
    // Half of the radius is taken off the box in either form.
    QCOMPARE(call.rect, QRect(topLeft, QSize(13, 13)));
    QCOMPARE(call.painter, used);
    QCOMPARE(call.widget, &checkBox);
    QCOMPARE(checkBox.property("hasCustomRect"), QVariant(true));
}

void tst_OxaCheckBoxFocus::framesABoxAboveTheTop_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("left to right") << Qt::LeftToRight << true;
    // The block's height does not count there.
    QTest::newRow("right to left") << Qt::RightToLeft << false;
}

void tst_OxaCheckBoxFocus::framesABoxAboveTheTop()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, isMoved);
    const LayoutDirectionGuard layoutDirection(direction);
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    OxaCheckBox checkBox;
    checkBox.setText(QStringLiteral("abc"));
    checkBox.setCheckboxSize(QSize(45, 45));
    checkBox.resize(140, 40);
    drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, { false, false, 2, keyboardFocus }, noTick, focusColors);
    });
    const int top = placesIn(checkBox).block.y();
    QVERIFY(top < -5);
    QCOMPARE(style.calls().size(), std::size_t(1));
    QCOMPARE(style.calls().front().rect.top(), isMoved ? top : 0);
}

void tst_OxaCheckBoxFocus::framesTheWidgetForABoxOfNoSize()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setCheckboxSize(QSize(2, 2));
    drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, { false, false, 5, keyboardFocus }, noTick, focusColors);
    });
    QCOMPARE(style.calls().size(), std::size_t(1));
    QCOMPARE(style.calls().front().rect, checkBox.rect());
    QCOMPARE(checkBox.property("hasCustomRect"), QVariant());
}

void tst_OxaCheckBoxFocus::framesAsTheApplicationsStyleWhateverTheFocusSet()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    OxaCheckBox checkBox;
    setUp(checkBox);
    const QImage image = drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, { true, false, 2, keyboardFocus }, noTick, OxaColorSet());
    });
    QCOMPARE(style.calls().size(), std::size_t(1));
    QCOMPARE(Pixels::countNear(image, inverse), 0);
}

void tst_OxaCheckBoxFocus::asksNoStyleWithoutFocusByKeyboard_data()
{
    QTest::addColumn<QStyle::State>("state");
    const QStyle::State enabled = QStyle::State_Enabled;
    QTest::newRow("no focus") << enabled;
    QTest::newRow("focus by mouse") << (enabled | QStyle::State_HasFocus);
    QTest::newRow("keyboard use without focus") << (enabled | QStyle::State_KeyboardFocusChange);
}

void tst_OxaCheckBoxFocus::asksNoStyleWithoutFocusByKeyboard()
{
    QFETCH(const QStyle::State, state);
    const ApplicationStyleGuard style;
    OxaCheckBox checkBox;
    setUp(checkBox);
    for (const bool isGlobal : { true, false }) {
        const ApplicationPropertyGuard borders("useGlobalFocusBorders", isGlobal);
        const QImage image = drawing(checkBox, [&](QPainter *painter) {
            drawCheckbox(painter, checkBox, { true, false, 2, state }, noTick, focusColors);
        });
        QCOMPARE(Pixels::countNear(image, inverse), 0);
    }
    QCOMPARE(style.calls().size(), std::size_t(0));
    QCOMPARE(checkBox.property("hasCustomRect"), QVariant());
}

void tst_OxaCheckBoxFocus::paintsTheDottedFrameAroundItsRectangle_data()
{
    QTest::addColumn<HorAlign>("align");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left") << HorAlign::LeftAlign << Qt::LeftToRight;
    QTest::newRow("left, right to left") << HorAlign::LeftAlign << Qt::RightToLeft;
    QTest::newRow("centre") << HorAlign::CenterAlign << Qt::LeftToRight;
}

void tst_OxaCheckBoxFocus::paintsTheDottedFrameAroundItsRectangle()
{
    QFETCH(const HorAlign, align);
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard layoutDirection(direction);
    const ApplicationStyleGuard style;
    OxaCheckBox checkBox;
    setUp(checkBox);
    checkBox.setTextHorAlign(align);
    const Look look { true, false, 2, keyboardFocus };
    const QImage image = drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, look, noTick, focusColors);
    });
    const QImage plain = drawing(checkBox, [&](QPainter *painter) {
        drawCheckbox(painter, checkBox, look, noTick, OxaColorSet());
    });
    // The frame moves along with box and text, and may leave the widget.
    const QPoint place = placesIn(checkBox).block;
    QImage expected = plain;
    QPainter painter(&expected);
    painter.translate(place);
    DrawUtils::drawLegacyFocusRect(&painter, keyboardFocus, checkBox.rect(), focusColors.normal);
    painter.end();
    QVERIFY(expected != plain);
    QCOMPARE(image, expected);
    QCOMPARE(style.calls().size(), std::size_t(0));
    QCOMPARE(checkBox.property("hasCustomRect"), QVariant());
}

void tst_OxaCheckBoxFocus::paintsNoDottedFrameWithoutAFocusSet()
{
    OxaCheckBox checkBox;
    setUp(checkBox);
    OxaColorSet incomplete = focusColors;
    incomplete.checked = QColor();
    for (const OxaColorSet &focus : { OxaColorSet(), incomplete }) {
        const QImage image = drawing(checkBox, [&](QPainter *painter) {
            drawCheckbox(painter, checkBox, { true, false, 2, keyboardFocus }, noTick, focus);
        });
        QCOMPARE(Pixels::countNear(image, inverse), 0);
    }
}

void tst_OxaCheckBoxFocus::showsTheFrameWhileItHasTheFocusByKeyboard()
{
    const ApplicationPropertyGuard borders("useGlobalFocusBorders", true);
    const ApplicationStyleGuard style;
    QWidget window;
    OxaCheckBox checkBox(&window, true);
    checkBox.setText(QStringLiteral("abc"));
    QVERIFY(Faces::focusByKeyboard(checkBox));
    checkBox.resize(checkBox.sizeHint());
    const auto frames = [&style] {
        return std::count_if(style.calls().begin(), style.calls().end(), [](const auto &call) {
            return call.element == QStyle::PE_FrameFocusRect;
        });
    };
    const auto before = frames();
    Pixels::render(checkBox);
    QCOMPARE(frames(), before + 1);
    checkBox.clearFocus();
    const auto after = frames();
    Pixels::render(checkBox);
    QCOMPARE(frames(), after);
}

void tst_OxaCheckBoxFocus::showsTheDottedFrameInTheThemesColor()
{
    const StoreGuard stores(store(),
                            ColorSets::storeOf({ textColors, borderColors, iconColors,
                                                 checkedColors, uncheckedColors,
                                                 OxaColorSet(focusColors.name, Qt::cyan) }));
    QWidget window;
    OxaCheckBox checkBox(&window);
    checkBox.setText(QStringLiteral("abc"));
    QVERIFY(Faces::focusByKeyboard(checkBox));
    checkBox.resize(80, 17);
    // Every second pixel of an edge of 2 * 80 + 2 * 15.
    QCOMPARE(Pixels::countNear(Pixels::render(checkBox), inverse, QRect(), 0), 95);
    checkBox.setThemeType(QStringLiteral("inverted"));
    QCOMPARE(Pixels::countNear(Pixels::render(checkBox), Qt::red, QRect(), 0), 95);
}

UIELEMENTS_TEST_MAIN(tst_OxaCheckBoxFocus)
#include "tst_oxacheckbox_focus.moc"

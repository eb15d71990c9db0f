// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/RealInput.h"
#include "support/RecordingStyle.h"
#include "support/TestApplication.h"

#include <QSignalSpy>

using ComboBoxes::OpenBox;
using Faces::Face;

namespace {

const QSize boxSize(120, 30);
const OxaColorSet arrowColors = Faces::colors(ComboBoxes::arrowName, 240);

/// Returns where \a box has its arrow in the colour \a color.
QRect arrowIn(OxaComboBox &box, const QColor &color = arrowColors.normal)
{
    return Pixels::boundsNear(Pixels::render(box), color, 4);
}

} // namespace

/// What a combo box paints itself, and where it is clicked.
class tst_OxaComboBoxPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(ComboBoxes::store()); }
    void cleanup() { m_stores.reset(); }

    void paintsTheArrow_data();
    void paintsTheArrow();
    void paintsTheArrowByTheApplicationsDirection();
    void paintsAnotherArrowWhileTheListShows_data();
    void paintsAnotherArrowWhileTheListShows();
    void paintsTheArrowInColorsOfItsState_data();
    void paintsTheArrowInColorsOfItsState();
    void framesKeyboardFocus();
    void framesNoFocusByMouse();

    void isClickedBesideTheArrow_data();
    void isClickedBesideTheArrow();
    void opensTheListByTheLeftButton();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBoxPainting::paintsTheArrow_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("padding");
    QTest::addColumn<QRect>("place");
    const QSize usual(12, 12);
    QTest::newRow("as it starts") << Qt::LeftToRight << usual << 5 << QRect(98, 9, 12, 12);
    QTest::newRow("right to left") << Qt::RightToLeft << usual << 5 << QRect(10, 9, 12, 12);
    QTest::newRow("more space") << Qt::LeftToRight << usual << 8 << QRect(92, 9, 12, 12);
    QTest::newRow("more space, right to left")
            << Qt::RightToLeft << usual << 8 << QRect(16, 9, 12, 12);
    QTest::newRow("other size") << Qt::LeftToRight << QSize(20, 20) << 5 << QRect(90, 5, 20, 20);
    QTest::newRow("other size, right to left")
            << Qt::RightToLeft << QSize(20, 20) << 5 << QRect(10, 5, 20, 20);
    QTest::newRow("taller than the box")
            << Qt::LeftToRight << QSize(40, 40) << 5 << QRect(70, 0, 40, 30);
}

void tst_OxaComboBoxPainting::paintsTheArrow()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QSize, size);
    QFETCH(const int, padding);
    QFETCH(const QRect, place);
    const LayoutDirectionGuard guard(direction);
    OpenBox box;
    box.setFixedSize(boxSize);
    box.setSvgDropdownIconSize(size);
    box.setSvgDropdownIconPaddingRight(padding);
    QCOMPARE(arrowIn(box), place);
}

void tst_OxaComboBoxPainting::paintsTheArrowByTheApplicationsDirection()
{
    OpenBox box;
    box.setFixedSize(boxSize);
    box.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(arrowIn(box), QRect(98, 9, 12, 12));
}

void tst_OxaComboBoxPainting::paintsAnotherArrowWhileTheListShows_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("place");
    QTest::newRow("left to right") << Qt::LeftToRight << QRect(98, 9, 12, 6);
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(10, 9, 12, 6);
}

void tst_OxaComboBoxPainting::paintsAnotherArrowWhileTheListShows()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QRect, place);
    const LayoutDirectionGuard guard(direction);
    OpenBox box;
    box.setComboBoxAnimationEnabled(false);
    box.setFixedSize(boxSize);
    box.show();
    box.showPopup();
    QCOMPARE(arrowIn(box, arrowColors.checked).size(), QSize(12, 6));
    QCOMPARE(arrowIn(box, arrowColors.checked).left(), place.left());
    box.hidePopup();
    QCOMPARE(arrowIn(box).size(), QSize(12, 12));
    box.showPopup();
    QTest::keyClick(box.view(), Qt::Key_Escape); // Qt hides the list by itself.
    QTRY_VERIFY(!box.view()->isVisible());
    QCOMPARE(arrowIn(box).size(), QSize(12, 12));
}

void tst_OxaComboBoxPainting::paintsTheArrowInColorsOfItsState_data()
{
    QTest::addColumn<Face>("face");
    QTest::newRow("normal") << Face::Normal;
    QTest::newRow("hovered") << Face::Hovered;
    QTest::newRow("disabled") << Face::Disabled;
    QTest::newRow("focused") << Face::Focused;
}

void tst_OxaComboBoxPainting::paintsTheArrowInColorsOfItsState()
{
    QFETCH(const Face, face);
    QVERIFY(RealInput::parkPointer());
    OpenBox box;
    box.setFixedSize(boxSize);
    box.move(200, 200);
    QVERIFY(Faces::put(box, face));
    QCOMPARE(Faces::facesIn(Pixels::render(box), arrowColors, QRect(98, 9, 12, 12)),
             Faces::nameOf(face));
}

void tst_OxaComboBoxPainting::framesKeyboardFocus()
{
    ApplicationStyleGuard style;
    QWidget window;
    OpenBox box(&window);
    box.setGeometry(5, 6, 120, 30);
    QVERIFY(Faces::focusByKeyboard(box));
    const auto before = style.calls().size();
    Pixels::render(box);
    QVERIFY(style.calls().size() > before);
    const RecordingStyle::Call &last = style.calls().back();
    QCOMPARE(last.element, QStyle::PE_FrameFocusRect);
    QCOMPARE(last.optionType, int(QStyleOption::SO_FocusRect));
    QCOMPARE(last.rect, QRect(0, 0, 120, 30));
    QCOMPARE(last.widget, &box);
    QVERIFY(last.state.testFlag(QStyle::State_KeyboardFocusChange));
}

void tst_OxaComboBoxPainting::framesNoFocusByMouse()
{
    ApplicationStyleGuard style;
    QWidget window;
    OpenBox box(&window);
    box.setGeometry(5, 6, 120, 30);
    QVERIFY(Faces::focusByKeyboard(box));
    window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    const auto before = style.calls().size();
    Pixels::render(box);
    for (auto call = style.calls().begin() + before; call != style.calls().end(); ++call)
        QVERIFY(call->element != QStyle::PE_FrameFocusRect || call->rect != box.rect());
}

void tst_OxaComboBoxPainting::isClickedBesideTheArrow_data()
{
    QTest::addColumn<bool>("isPopupEnabled");
    QTest::addColumn<bool>("isLeft");
    QTest::addColumn<int>("x");
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("left edge") << true << true << 0 << true;
    QTest::newRow("before the arrow") << true << true << 97 << true;
    QTest::newRow("at the arrow") << true << true << 98 << false;
    QTest::newRow("right edge") << true << true << 119 << false;
    QTest::newRow("right button") << true << false << 50 << false;
    QTest::newRow("no popup, left edge") << false << true << 0 << true;
    QTest::newRow("no popup, right edge") << false << true << 119 << true;
    QTest::newRow("no popup, outside") << false << true << 120 << false;
    QTest::newRow("no popup, right button") << false << false << 50 << false;
}

void tst_OxaComboBoxPainting::isClickedBesideTheArrow()
{
    QFETCH(const bool, isPopupEnabled);
    QFETCH(const bool, isLeft);
    QFETCH(const int, x);
    QFETCH(const bool, isClicked);
    const Qt::MouseButton button = isLeft ? Qt::LeftButton : Qt::RightButton;
    OpenBox box;
    box.setFixedSize(boxSize);
    box.setShowPopupEnabled(isPopupEnabled);
    int clicks = 0;
    connect(&box, &OxaComboBox::contentAreaClicked, &box, [&](QMouseEvent *event) {
        ++clicks;
        QCOMPARE(event->pos(), QPoint(x, 4));
        QVERIFY(!box.view()->isVisible()); // Before Qt sees the press.
    });
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(x, 4), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &press);
    QCOMPARE(clicks, isClicked ? 1 : 0);
    QCOMPARE(box.view()->isVisible(), isPopupEnabled && isLeft);
    box.hidePopup();
}

void tst_OxaComboBoxPainting::opensTheListByTheLeftButton()
{
    OpenBox box;
    box.setFixedSize(boxSize);
    box.show();
    for (const int x : { 20, 110 }) {
        QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(x, 4));
        QVERIFY(box.view()->isVisible());
        box.hidePopup();
    }
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxPainting)
#include "tst_oxacombobox_painting.moc"

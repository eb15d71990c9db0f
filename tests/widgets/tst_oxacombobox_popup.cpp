// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/TestApplication.h"

#include <QScreen>
#include <QSignalSpy>

#include <algorithm>

using ComboBoxes::OpenBox;
using ComboBoxes::styled;

namespace {

/// Sets whether lists open with an animation, and restores what was before.
class EffectGuard
{
    Q_DISABLE_COPY_MOVE(EffectGuard)

public:
    explicit EffectGuard(bool isAnimated)
    {
        QApplication::setEffectEnabled(Qt::UI_General);
        QApplication::setEffectEnabled(Qt::UI_AnimateCombo, isAnimated);
    }
    ~EffectGuard() { QApplication::setEffectEnabled(Qt::UI_AnimateCombo, m_before); }

private:
    const bool m_before = QApplication::isEffectEnabled(Qt::UI_AnimateCombo);
};

/// A combo box at a place on the screen.
class PlacedBox : public OpenBox
{
public:
    explicit PlacedBox(const QPoint &place)
    {
        setComboBoxAnimationEnabled(false);
        setItemViewDropdownOffset({});
        setFixedSize(120, 30);
        setWindowFlag(Qt::X11BypassWindowManagerHint); // No frame, and no other place.
        move(place);
        show();
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("The box does not show.");
    }

    /// Opens the list, closes it and returns where it was.
    QRect open()
    {
        showPopup();
        const QRect place = view()->window()->geometry();
        hidePopup();
        return place;
    }
};

const QPoint nearTop(100, 100);
const QPoint nearBottom(100, 984); // The screen is 1024 pixels high.

/// Returns whether a list is opening with an animation.
bool isAnimating()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.cbegin(), windows.cend(),
                       [](const QWidget *window) { return window->inherits("QRollEffect"); });
}

} // namespace

/// Opening and closing the list, and its events.
class tst_OxaComboBoxPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(ComboBoxes::store()); }
    void cleanup() { m_stores.reset(); }

    void opensBelow();
    void opensAboveWhereThereIsNoRoomBelow();
    void movesTheListByItsOffset_data();
    void movesTheListByItsOffset();
    void opensUpwards();
    void opensUpwardsByTheOffsetAloneWhereQtDoesSo();
    void setsTheAnimationWhileItOpens_data();
    void setsTheAnimationWhileItOpens();
    void opensNothingWithoutAPopup();
    void opensNothingWithoutItems();

    void isStyledWhenTheListComesAndGoes();
    void isStyledForEventsOfTheList_data();
    void isStyledForEventsOfTheList();
    void choosesTheHighlightedRowBySpace();
    void leavesOtherKeysToTheList();
    void tellsOfKeysWithoutAPopup();
    void ignoresEventsOfOthers();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBoxPopup::opensBelow()
{
    PlacedBox box(nearTop);
    QCOMPARE(box.open().topLeft(), nearTop + QPoint(0, 29)); // Over the box's last line, as in Qt.
}

void tst_OxaComboBoxPopup::opensAboveWhereThereIsNoRoomBelow()
{
    PlacedBox box(nearBottom);
    QCOMPARE(box.open().bottomLeft(), nearBottom); // Over the box's first line, as in Qt.
}

void tst_OxaComboBoxPopup::movesTheListByItsOffset_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QPoint>("offset");
    QTest::newRow("below") << nearTop << QPoint(7, 9);
    QTest::newRow("below, back") << nearTop << QPoint(-7, -9);
    QTest::newRow("above") << nearBottom << QPoint(7, 9);
}

void tst_OxaComboBoxPopup::movesTheListByItsOffset()
{
    QFETCH(const QPoint, place);
    QFETCH(const QPoint, offset);
    PlacedBox box(place);
    const QRect before = box.open();
    box.setItemViewDropdownOffset(offset);
    QCOMPARE(box.open(), before.translated(offset));
    QCOMPARE(box.open(), before.translated(offset)); // Each time from where Qt puts it.
}

void tst_OxaComboBoxPopup::opensUpwards()
{
    PlacedBox box(nearTop + QPoint(0, 200));
    const QRect below = box.open();
    box.setOpenedUpwards(true);
    QCOMPARE(box.open(), below.translated(0, -below.height() - box.height()));
    box.setItemViewDropdownOffset({ 7, 9 });
    QCOMPARE(box.open(), below.translated(7, -9 - below.height() - box.height()));
}

void tst_OxaComboBoxPopup::opensUpwardsByTheOffsetAloneWhereQtDoesSo()
{
    PlacedBox box(nearBottom);
    const QRect above = box.open();
    box.setOpenedUpwards(true);
    box.setItemViewDropdownOffset({ 7, 9 });
    QCOMPARE(box.open(), above.translated(7, -9));
}

void tst_OxaComboBoxPopup::setsTheAnimationWhileItOpens_data()
{
    QTest::addColumn<bool>("isAnimatedBefore");
    QTest::addColumn<bool>("isBoxAnimated");
    for (const bool before : { false, true }) {
        for (const bool own : { false, true })
            QTest::addRow("%s, then %s", before ? "on" : "off", own ? "on" : "off")
                    << before << own;
    }
}

void tst_OxaComboBoxPopup::setsTheAnimationWhileItOpens()
{
    QFETCH(const bool, isAnimatedBefore);
    QFETCH(const bool, isBoxAnimated);
    const EffectGuard effect(isAnimatedBefore);
    PlacedBox box(nearTop);
    box.setComboBoxAnimationEnabled(isBoxAnimated);
    box.showPopup();
    QCOMPARE(isAnimating(), isBoxAnimated);
    QCOMPARE(QApplication::isEffectEnabled(Qt::UI_AnimateCombo), isAnimatedBefore);
    QTRY_VERIFY(!isAnimating());
    QVERIFY(box.view()->isVisible());
    box.hidePopup();
}

void tst_OxaComboBoxPopup::opensNothingWithoutAPopup()
{
    PlacedBox box(nearTop);
    box.setShowPopupEnabled(false);
    const QImage before = Pixels::render(box);
    box.log.take();
    box.showPopup();
    QVERIFY(!box.view()->isVisible());
    QCOMPARE(box.log.take(), QString());
    QCOMPARE(Pixels::render(box), before); // The arrow is that of a closed list.
}

void tst_OxaComboBoxPopup::opensNothingWithoutItems()
{
    PlacedBox box(nearTop);
    box.clear();
    const QPoint before = box.view()->window()->pos();
    box.setItemViewDropdownOffset({ 7, 9 });
    box.showPopup();
    QVERIFY(!box.view()->isVisible());
    QCOMPARE(box.view()->window()->pos(), before + QPoint(7, 9));
}

void tst_OxaComboBoxPopup::isStyledWhenTheListComesAndGoes()
{
    PlacedBox box(nearTop);
    box.log.take();
    box.showPopup(); // At the first time Qt also sends QEvent::ShowToParent.
    QVERIFY(box.view()->isVisible());
    QCOMPARE(box.log.take(), styled + QStringLiteral(" | ") + styled);
    box.hidePopup();
    QCOMPARE(box.log.take(), QStringLiteral("hidePopup | ") + styled);
    box.showPopup();
    QCOMPARE(box.log.take(), styled);
    box.hidePopup();
    QVERIFY(!box.view()->isVisible());
    QCOMPARE(box.log.take(), QStringLiteral("hidePopup | ") + styled);
}

void tst_OxaComboBoxPopup::isStyledForEventsOfTheList_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<bool>("styles");
    QTest::newRow("Show") << QEvent::Show << true;
    QTest::newRow("Hide") << QEvent::Hide << true;
    QTest::newRow("ShowToParent") << QEvent::ShowToParent << true;
    QTest::newRow("HideToParent") << QEvent::HideToParent << true;
    QTest::newRow("WindowTitleChange") << QEvent::WindowTitleChange << false;
}

void tst_OxaComboBoxPopup::isStyledForEventsOfTheList()
{
    QFETCH(const QEvent::Type, type);
    QFETCH(const bool, styles);
    OpenBox box;
    QEvent event(type);
    QVERIFY(!box.eventFilter(box.view(), &event));
    QCOMPARE(box.log.take(), styles ? styled : QString());
}

void tst_OxaComboBoxPopup::choosesTheHighlightedRowBySpace()
{
    PlacedBox box(nearTop);
    const auto note = [&box](const char *format) {
        return [&box, format](int index) {
            box.log.note(QString::fromLatin1(format).arg(index));
            QVERIFY(box.view()->isVisible());
        };
    };
    connect(&box, QOverload<int>::of(&QComboBox::currentIndexChanged), &box, note("current %1"));
    connect(&box, QOverload<int>::of(&QComboBox::activated), &box, note("activated %1"));
    box.showPopup();
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Down);
    box.log.take();
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QVERIFY(!box.eventFilter(box.view(), &space));
    QCOMPARE(box.log.take(), QStringLiteral("current 2 | activated 2 | hidePopup | ") + styled);
    QCOMPARE(box.currentIndex(), 2);
    QVERIFY(!box.view()->isVisible());
}

void tst_OxaComboBoxPopup::leavesOtherKeysToTheList()
{
    PlacedBox box(nearTop);
    int clicks = 0;
    connect(&box, &OxaComboBox::contentAreaClicked, &box, [&clicks] { ++clicks; });
    const QSignalSpy activations(&box, QOverload<int>::of(&QComboBox::activated));
    box.showPopup();
    QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_A);
    QTest::keyRelease(box.view(), Qt::Key_Space);
    QVERIFY(box.view()->isVisible());
    QCOMPARE(clicks + activations.size(), 0);
    box.hidePopup();
}

void tst_OxaComboBoxPopup::tellsOfKeysWithoutAPopup()
{
    OpenBox box;
    box.setShowPopupEnabled(false);
    const QSignalSpy activations(&box, QOverload<int>::of(&QComboBox::activated));
    int clicks = 0;
    connect(&box, &OxaComboBox::contentAreaClicked, &box, [&clicks](const QMouseEvent *event) {
        ++clicks;
        QVERIFY(!event);
    });
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_A, Qt::Key_Escape, Qt::Key_Shift }) {
        QTest::keyPress(box.view(), key);
        QCOMPARE(std::exchange(clicks, 0), 1);
    }
    QTest::keyRelease(box.view(), Qt::Key_Space);
    QCOMPARE(clicks + activations.size(), 0);
}

void tst_OxaComboBoxPopup::ignoresEventsOfOthers()
{
    OpenBox box;
    box.setShowPopupEnabled(false);
    int clicks = 0;
    connect(&box, &OxaComboBox::contentAreaClicked, &box, [&clicks] { ++clicks; });
    QWidget other;
    QEvent show(QEvent::ShowToParent);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    for (QObject *watched : { static_cast<QObject *>(&other), static_cast<QObject *>(&box) }) {
        QVERIFY(!box.eventFilter(watched, &show));
        QVERIFY(!box.eventFilter(watched, &space));
    }
    QCOMPARE(clicks, 0);
    QCOMPARE(box.log.take(), QString());
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxPopup)
#include "tst_oxacombobox_popup.moc"

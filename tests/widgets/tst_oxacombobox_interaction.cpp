// SPDX-License-Identifier: Apache-2.0
#include "ComboBoxes.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

#include <algorithm>

using RealInput::typeKeys;

namespace {

const QString down = QStringLiteral("Down");
const QString space = QStringLiteral("space");

/// A window with a button and a combo box, in a real window with the pointer away from it.
class Window : public QWidget
{
public:
    Window() : button(this), box(this)
    {
        resize(300, 100);
        button.setGeometry(10, 10, 80, 30);
        box.setGeometry(100, 10, 160, 30);
        box.setObjectName(QStringLiteral("box"));
        box.setComboBoxAnimationEnabled(false);
        box.addItems({ QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three"),
                       QStringLiteral("four") });
        log.record(&box, &OxaComboBox::contentAreaClicked, QStringLiteral("contentAreaClicked"));
        QObject::connect(&box, QOverload<int>::of(&QComboBox::activated), &box, [this](int index) {
            log.note(QStringLiteral("activated %1").arg(index));
        });
    }

    /// Shows the window at \a place and waits until it is active there.
    bool open(const QPoint &place = { 200, 200 })
    {
        if (!RealInput::parkPointer())
            return false;
        move(place);
        return Windows::activate(*this);
    }

    bool isListOpen() const { return box.view()->isVisible() && box.view()->hasFocus(); }

    QPoint contentArea() const { return { box.isLeftToRight() ? 20 : 140, 15 }; }
    QPoint arrow() const { return { box.isLeftToRight() ? 149 : 11, 15 }; }

    QPushButton button;
    OxaComboBox box;
    SignalLog log;
};

/// Returns the middle of the row \a row in the list of \a box.
QPoint rowOf(const OxaComboBox &box, int row)
{
    return box.view()->visualRect(box.model()->index(row, 0)).center();
}

/// In whatever state: Qt does not notice at once that the pointer has left the box.
bool showsTheArrowOfAClosedList(OxaComboBox &box)
{
    const QImage image = Pixels::render(box);
    const OxaColorSet colors = Faces::colors(ComboBoxes::arrowName, 240);
    return std::any_of(std::begin(Faces::all), std::end(Faces::all), [&](const auto &face) {
        return Pixels::countNear(image, Faces::colorOf(colors, face.first)) >= 12 * 12;
    });
}

} // namespace

/// Combo boxes in a real window, under a real pointer and keyboard.
class tst_OxaComboBoxInteraction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_stores = std::make_unique<StoreGuard>(ComboBoxes::store()); }
    void cleanup() { m_stores.reset(); }

    void opensByClicks_data();
    void opensByClicks();
    void closesByAClickElsewhere();
    void followsTheWheel();
    void followsKeys();
    void opensAndChoosesByKeys();
    void leavesTheRowByEscape();
    void choosesBySpace();
    void takesTheFocusByTabAndClick();
    void opensWhereThereIsRoom_data();
    void opensWhereThereIsRoom();
    void isOneButtonWithoutAPopup();

    void tellsWhatItIs();
    void opensByItsAction();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaComboBoxInteraction::opensByClicks_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isArrow");
    QTest::addColumn<QString>("log");
    const QString content = QStringLiteral("contentAreaClicked | activated 2");
    const QString arrow = QStringLiteral("activated 2");
    QTest::newRow("content") << Qt::LeftToRight << false << content;
    QTest::newRow("arrow") << Qt::LeftToRight << true << arrow;
    // The arrow's part of the box is always on its right.
    QTest::newRow("content, right to left") << Qt::RightToLeft << false << arrow;
    QTest::newRow("arrow, right to left") << Qt::RightToLeft << true << content;
}

void tst_OxaComboBoxInteraction::opensByClicks()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, isArrow);
    QFETCH(const QString, log);
    const LayoutDirectionGuard guard(direction);
    Window window;
    QVERIFY(window.open());
    const QPoint place = isArrow ? window.arrow()
                                 : QPoint(direction == Qt::LeftToRight ? 20 : 145, 15);
    QVERIFY(RealInput::click(window.box, place));
    QTRY_VERIFY(window.isListOpen());
    QVERIFY(RealInput::moveTo(*window.box.view(), rowOf(window.box, 1)));
    QTRY_COMPARE(window.box.view()->currentIndex().row(), 1);
    QVERIFY(RealInput::click(*window.box.view(), rowOf(window.box, 2)));
    QTRY_VERIFY(!window.box.view()->isVisible());
    QCOMPARE(window.box.currentIndex(), 2);
    QCOMPARE(window.log.take(), log);
}

void tst_OxaComboBoxInteraction::closesByAClickElsewhere()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(RealInput::click(window.box, window.arrow()));
    QTRY_VERIFY(window.isListOpen());
    QVERIFY(RealInput::click(window, QPoint(290, 90)));
    QTRY_VERIFY(!window.box.view()->isVisible());
    QCOMPARE(window.log.take(), QString());
    QVERIFY(showsTheArrowOfAClosedList(window.box));
}

void tst_OxaComboBoxInteraction::followsTheWheel()
{
    Window window;
    QVERIFY(window.open());
    QVERIFY(RealInput::click(window.box, window.contentArea(), 5));
    QTRY_COMPARE(window.box.currentIndex(), 1);
    QVERIFY(RealInput::click(window.box, window.contentArea(), 4));
    QTRY_COMPARE(window.box.currentIndex(), 0);
    QCOMPARE(window.log.take(), QStringLiteral("activated 1 | activated 0"));
}

void tst_OxaComboBoxInteraction::followsKeys()
{
    Window window;
    QVERIFY(window.open());
    window.box.setFocus();
    QVERIFY(typeKeys({ down }));
    QTRY_COMPARE(window.box.currentIndex(), 1);
    QVERIFY(typeKeys({ QStringLiteral("f") })); // Type-ahead: "four".
    QTRY_COMPARE(window.box.currentIndex(), 3);
    QVERIFY(typeKeys({ QStringLiteral("Home") }));
    QTRY_COMPARE(window.box.currentIndex(), 0);
    QVERIFY(!window.box.view()->isVisible());
}

void tst_OxaComboBoxInteraction::opensAndChoosesByKeys()
{
    Window window;
    QVERIFY(window.open());
    window.box.setFocus();
    for (const QString &key : { space, QStringLiteral("F4"), QStringLiteral("alt+Down") }) {
        window.box.setCurrentIndex(0);
        QVERIFY(typeKeys({ key }));
        QTRY_VERIFY2(window.isListOpen(), qPrintable(key));
        QVERIFY(typeKeys({ down, down }));
        QTRY_COMPARE(window.box.view()->currentIndex().row(), 2);
        QCOMPARE(window.box.currentIndex(), 0);
        QVERIFY(typeKeys({ QStringLiteral("Return") }));
        QTRY_VERIFY(!window.box.view()->isVisible());
        QCOMPARE(window.box.currentIndex(), 2);
    }
}

void tst_OxaComboBoxInteraction::leavesTheRowByEscape()
{
    Window window;
    QVERIFY(window.open());
    window.box.setFocus();
    QVERIFY(typeKeys({ space }));
    QTRY_VERIFY(window.isListOpen());
    QVERIFY(typeKeys({ down, QStringLiteral("Escape") }));
    QTRY_VERIFY(!window.box.view()->isVisible());
    QCOMPARE(window.box.currentIndex(), 0);
    QCOMPARE(window.log.take(), QString());
}

void tst_OxaComboBoxInteraction::choosesBySpace()
{
    Window window;
    QVERIFY(window.open());
    window.box.setFocus();
    QVERIFY(typeKeys({ space }));
    QTRY_VERIFY(window.isListOpen());
    QVERIFY(typeKeys({ QStringLiteral("t"), down, space })); // To "two", and a row further.
    QTRY_VERIFY(!window.box.view()->isVisible());
    QCOMPARE(window.box.currentIndex(), 2);
    QCOMPARE(window.log.take(), QStringLiteral("activated 2"));
}

void tst_OxaComboBoxInteraction::takesTheFocusByTabAndClick()
{
    Window window;
    QVERIFY(window.open());
    window.button.setFocus();
    QTRY_VERIFY(window.button.hasFocus());
    QVERIFY(typeKeys({ QStringLiteral("Tab") }));
    QTRY_VERIFY(window.box.hasFocus());
    QVERIFY(typeKeys({ QStringLiteral("shift+Tab") }));
    QTRY_VERIFY(window.button.hasFocus());
    QVERIFY(RealInput::click(window.box, window.contentArea()));
    QTRY_VERIFY(window.isListOpen());
    QVERIFY(typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(window.box.hasFocus());
}

void tst_OxaComboBoxInteraction::opensWhereThereIsRoom_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<bool>("isUpwards");
    QTest::addColumn<bool>("isAbove");
    for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        const char *suffix = direction == Qt::LeftToRight ? "" : ", right to left";
        QTest::addRow("below%s", suffix) << direction << 500 << false << false;
        QTest::addRow("upwards%s", suffix) << direction << 500 << true << true;
        QTest::addRow("lower edge%s", suffix) << direction << 1000 << false << true;
        QTest::addRow("upwards at the lower edge%s", suffix) << direction << 1000 << true << true;
    }
}

void tst_OxaComboBoxInteraction::opensWhereThereIsRoom()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, bottom);
    QFETCH(const bool, isUpwards);
    QFETCH(const bool, isAbove);
    const LayoutDirectionGuard guard(direction);
    Window window;
    window.box.setOpenedUpwards(isUpwards);
    window.box.setItemViewDropdownOffset({ 0, isAbove && !isUpwards ? -4 : 4 });
    QVERIFY(window.open({ 200, bottom - 100 }));
    QVERIFY(RealInput::click(window.box, window.arrow()));
    QTRY_VERIFY(window.isListOpen());
    const QRect list = window.box.view()->window()->frameGeometry();
    const QRect box(window.box.mapToGlobal(QPoint()), window.box.size());
    QVERIFY(window.screen()->geometry().contains(list));
    QVERIFY(!list.intersects(box));
    QCOMPARE(list.bottom() < box.top(), isAbove);
    QCOMPARE(list.left(), box.left());
    QCOMPARE(list.width(), box.width());
    QVERIFY(typeKeys({ QStringLiteral("Escape") }));
    QTRY_VERIFY(!window.box.view()->isVisible());
}

void tst_OxaComboBoxInteraction::isOneButtonWithoutAPopup()
{
    Window window;
    window.box.setShowPopupEnabled(false);
    QVERIFY(window.open());
    QSignalSpy buttonClicked(&window.button, &QPushButton::clicked);
    window.box.setFocus();
    QVERIFY(typeKeys({ space }));
    for (const QPoint &place : { window.contentArea(), window.arrow() })
        QVERIFY(RealInput::click(window.box, place));
    QVERIFY(RealInput::click(window.button, QPoint(10, 10)));
    QTRY_COMPARE(buttonClicked.size(), 1); // All that came before has been handled.
    QCOMPARE(window.log.take(), QStringLiteral("contentAreaClicked | contentAreaClicked"));
    QVERIFY(!window.box.view()->isVisible());
}

void tst_OxaComboBoxInteraction::tellsWhatItIs()
{
    Window window;
    QLabel label(QStringLiteral("Number"), &window);
    label.setBuddy(&window.box);
    window.box.setCurrentIndex(1);
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(&window.box);
    QCOMPARE(box->role(), QAccessible::ComboBox);
    // Under X11 Qt names a combo box after what it shows, and relates it to its label.
    QCOMPARE(box->text(QAccessible::Name), QStringLiteral("two"));
    QCOMPARE(box->relations(QAccessible::Label).value(0).first->text(QAccessible::Name),
             label.text());
    QCOMPARE(box->childCount(), 1);
    QAccessibleInterface *list = box->child(0);
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(list->childCount(), 4);
    QCOMPARE(list->child(2)->role(), QAccessible::ListItem);
    QCOMPARE(list->child(2)->text(QAccessible::Name), QStringLiteral("three"));
}

void tst_OxaComboBoxInteraction::opensByItsAction()
{
    Window window;
    QVERIFY(window.open());
    QAccessibleActionInterface *actions = QAccessible::queryAccessibleInterface(&window.box)
                                                  ->actionInterface();
    QVERIFY(actions);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(window.isListOpen());
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(!window.box.view()->isVisible());
    window.box.setShowPopupEnabled(false);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!window.box.view()->isVisible());
}

UIELEMENTS_TEST_MAIN(tst_OxaComboBoxInteraction)
#include "tst_oxacombobox_interaction.moc"

// SPDX-License-Identifier: Apache-2.0
#include "Told.h"
#include "support/TestApplication.h"

#include <UiElements/accessibility/AccessibleClasses_p.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaTabBar.h>

#include <QAccessibleWidget>
#include <QMenu>
#include <QSignalSpy>

namespace {

using SetUp = void (*)(OxaPushButton &button);

void addRow(const char *name, QAccessible::Role role, const QStringList &actions, SetUp setUp)
{
    QTest::newRow(name) << int(role) << actions << setUp;
}

const QString press = QStringLiteral("Press");
const QString toggle = QStringLiteral("Toggle");
const QString showMenu = QStringLiteral("ShowMenu");
const QString setFocus = QStringLiteral("SetFocus");

/// Gives all tab bars another role.
QAccessibleInterface *makeToolBars(const QString &className, QObject *object)
{
    if (className != QLatin1String(OxaTabBar::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::ToolBar);
}

} // namespace

Q_DECLARE_METATYPE(SetUp)

/// What assistive technology is told of buttons, and who tells it.
class tst_AccessibleButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasARoleByWhatItIs_data();
    void hasARoleByWhatItIs();
    void hasTheRoleThatItWasMadeWith();
    void isAButtonInADisabledParent();
    void tellsItsStatesAndItsKey();
    void doesNothingButItsActions();
    void togglesLikeAClick();
    void survivesASlotThatDeletesIt();
    void isNotClickedOnceASlotHasDisabledIt();
    void showsItsMenu();
    void asksFactoriesOfTheApplicationFirst();
    void leavesAllOfItToQt();
};

void tst_AccessibleButtons::hasARoleByWhatItIs_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<SetUp>("setUp");
    addRow("a button", QAccessible::PushButton, { press, setFocus }, [](OxaPushButton &) {});
    addRow("checkable", QAccessible::CheckBox, { toggle, setFocus },
           [](OxaPushButton &button) { button.setCheckable(true); });
    addRow("checkable, one of several", QAccessible::RadioButton, { toggle, setFocus },
           [](OxaPushButton &button) {
               button.setCheckable(true);
               button.setAutoExclusive(true);
           });
    addRow("with a menu", QAccessible::ButtonMenu, { showMenu, setFocus },
           [](OxaPushButton &button) { button.setMenu(new QMenu(&button)); });
    addRow("with a stored role", QAccessible::Link, { press, setFocus },
           [](OxaPushButton &button) { button.setAccessibleRole(QAccessible::Link); });
    addRow("a picture, which cannot be pressed", QAccessible::Graphic, { setFocus },
           [](OxaPushButton &button) { button.setAccessibleRole(QAccessible::Graphic); });
    addRow("without a focus", QAccessible::PushButton, { press },
           [](OxaPushButton &button) { button.setFocusPolicy(Qt::NoFocus); });
    addRow("disabled", QAccessible::PushButton, {},
           [](OxaPushButton &button) { button.setEnabled(false); });
}

void tst_AccessibleButtons::hasARoleByWhatItIs()
{
    QFETCH(const SetUp, setUp);
    OxaPushButton button(QStringLiteral("text"));
    const QAccessibleInterface *before = Told::of(&button); // Follows what the button becomes.
    setUp(button);
    QAccessibleInterface *told = Told::of(&button);
    QCOMPARE(told, before);
    QTEST(int(told->role()), "role");
    QTEST(told->actionInterface()->actionNames(), "actions");
}

void tst_AccessibleButtons::hasTheRoleThatItWasMadeWith()
{
    OxaSvgPushButton link(QStringLiteral("text"), nullptr, QAccessible::Link);
    QCOMPARE(Told::describe(Told::of(&link)), QStringLiteral("Link text"));
}

void tst_AccessibleButtons::isAButtonInADisabledParent()
{
    QWidget window;
    window.setEnabled(false);
    OxaSvgPushButton button(QStringLiteral("text"), &window, QAccessible::Link);
    QCOMPARE(Told::describe(Told::of(&button)), QStringLiteral("Link text"));
    QCOMPARE(Told::states(Told::of(&button)), QStringLiteral("disabled invisible focusable"));
}

void tst_AccessibleButtons::tellsItsStatesAndItsKey()
{
    OxaPushButton button(QStringLiteral("&text"));
    QAccessibleInterface *told = Told::of(&button);
    QCOMPARE(told->text(QAccessible::Accelerator), QStringLiteral("Alt+T"));
    QCOMPARE(told->actionInterface()->keyBindingsForAction(press),
             QStringList(QStringLiteral("Alt+T")));
    QCOMPARE(told->actionInterface()->keyBindingsForAction(setFocus), QStringList());
    button.setShortcut(QKeySequence(QStringLiteral("F7")));
    QCOMPARE(told->text(QAccessible::Accelerator), QStringLiteral("F7"));
    button.setDefault(true);
    QCOMPARE(told->text(QAccessible::Accelerator), QStringLiteral("Enter"));
    QVERIFY(Told::states(told).contains(QStringLiteral("default")));
    button.setDown(true);
    QVERIFY(Told::states(told).contains(QStringLiteral("pressed")));
    button.setMenu(new QMenu(&button));
    QVERIFY(Told::states(told).contains(QStringLiteral("popup")));
}

void tst_AccessibleButtons::doesNothingButItsActions()
{
    OxaPushButton button;
    for (const auto role : { QAccessible::Graphic, QAccessible::PushButton }) {
        button.setAccessibleRole(role);
        button.setEnabled(role == QAccessible::Graphic);
        for (const QString &action : { press, toggle, showMenu, QString() }) {
            Told::of(&button)->actionInterface()->doAction(action);
            QVERIFY(!button.isDown());
        }
    }
}

void tst_AccessibleButtons::togglesLikeAClick()
{
    OxaPushButton button;
    button.setCheckable(true);
    SignalLog log;
    log.record(&button, &QPushButton::toggled, QStringLiteral("toggled"));
    log.record(&button, &QPushButton::clicked, QStringLiteral("clicked"));
    Told::of(&button)->actionInterface()->doAction(toggle);
    QTRY_VERIFY(button.isChecked());
    QCOMPARE(log.take(), QStringLiteral("toggled | clicked"));
}

void tst_AccessibleButtons::survivesASlotThatDeletesIt()
{
    QPointer<OxaPushButton> button = new OxaPushButton;
    connect(button, &QPushButton::pressed, this, [button] { delete button; });
    Told::of(button)->actionInterface()->doAction(press);
    QVERIFY(!button);
}

void tst_AccessibleButtons::isNotClickedOnceASlotHasDisabledIt()
{
    OxaPushButton button;
    SignalLog log;
    log.record(&button, &QPushButton::pressed, QStringLiteral("pressed"));
    log.record(&button, &QPushButton::released, QStringLiteral("released"));
    log.record(&button, &QPushButton::clicked, QStringLiteral("clicked"));
    connect(&button, &QPushButton::pressed, &button, [&button] { button.setEnabled(false); });
    Told::of(&button)->actionInterface()->doAction(press);
    OxaPushButton later;
    QSignalSpy clicks(&later, &QPushButton::clicked);
    later.animateClick(); // Takes as long as a click may.
    QVERIFY(clicks.wait(20'000));
    QCOMPARE(log.take(), QStringLiteral("pressed | released"));
}

void tst_AccessibleButtons::showsItsMenu()
{
    OxaPushButton button;
    QMenu menu;
    menu.addAction(QStringLiteral("item"));
    button.setMenu(&menu);
    button.show();
    bool wasShown = false;
    connect(&menu, &QMenu::aboutToShow, &menu, [&] {
        wasShown = true;
        QMetaObject::invokeMethod(&menu, &QMenu::close, Qt::QueuedConnection);
    });
    Told::of(&button)->actionInterface()->doAction(showMenu);
    QVERIFY(!wasShown);
    QTRY_VERIFY(wasShown);
}

void tst_AccessibleButtons::asksFactoriesOfTheApplicationFirst()
{
    QAccessible::installFactory(makeToolBars);
    OxaTabBar bar;
    QCOMPARE(Told::of(&bar)->role(), QAccessible::ToolBar);
    QAccessible::removeFactory(makeToolBars);
    OxaTabBar other;
    QCOMPARE(Told::of(&other)->role(), QAccessible::PageTabList);
}

void tst_AccessibleButtons::leavesAllOfItToQt()
{
    OxaTabBar before;
    QCOMPARE(Told::of(&before)->role(), QAccessible::PageTabList);
    OxaApplication::leaveAccessibilityToQt();
    OxaTabBar bar;
    bar.addTab(QStringLiteral("a"));
    const QAccessible::Role told = Told::of(&bar)->role();
    const QString children = Told::children(Told::of(&bar));
    AccessibleClasses::install();
    QCOMPARE(told, QAccessible::Client);
    QCOMPARE(children, QStringLiteral("CheckBox a"));
    QCOMPARE(Told::of(&before)->role(), QAccessible::PageTabList);
}

UIELEMENTS_TEST_MAIN(tst_AccessibleButtons)
#include "tst_accessiblebuttons.moc"

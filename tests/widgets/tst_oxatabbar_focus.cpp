// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <QLineEdit>
#include <QVBoxLayout>

using TabBars::Bar;
using TabBars::describe;

namespace {

/// A shown window with a field and a bar of \a tabs tabs, of which one is current.
class Window : public QWidget
{
public:
    explicit Window(int tabs, int current = -1) : bar(tabs)
    {
        auto *column = new QVBoxLayout(this);
        column->setSizeConstraint(QLayout::SetNoConstraint);
        column->addWidget(&field);
        column->addWidget(&bar);
        bar.setCurrentIndex(current);
    }

    bool appear() { return Windows::activate(*this); }

    QLineEdit field;
    Bar bar;
};

} // namespace

/// Which tab has the focus, and which one Tab reaches.
class tst_OxaTabBarFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsTheFocusOfARemovedTabOn_data();
    void handsTheFocusOfARemovedTabOn();
    void letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus_data();
    void letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus();
    void letsTabReachTheCurrentTabAgain();
    void letsTabReachACurrentTabThatIsYetToBeShown();
    void keepsTheCurrentTabInTheTabChainWhileTheBarIsDisabled();
    void letsTabReachItselfWhileNoTabTakesTheFocus();
};

void tst_OxaTabBarFocus::handsTheFocusOfARemovedTabOn_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("focused");
    QTest::newRow("to the first tab") << 3 << 2 << QStringLiteral("tab_OxaTabBar_0");
    QTest::newRow("to the second, where the first goes")
            << 3 << 0 << QStringLiteral("tab_OxaTabBar_1");
    QTest::newRow("to the bar, where the last one goes") << 1 << 0 << QStringLiteral("OxaTabBar");
}

void tst_OxaTabBarFocus::handsTheFocusOfARemovedTabOn()
{
    QFETCH(const int, tabs);
    QFETCH(const int, removed);
    QFETCH(const QString, focused);
    Window window(tabs, 0);
    QVERIFY(window.appear());
    window.bar.getTab(removed)->setFocus();
    window.bar.removeTab(removed);
    QVERIFY(QApplication::focusWidget());
    QCOMPARE(QApplication::focusWidget()->objectName(), focused);
    window.field.setFocus();
    window.bar.removeTab(0);
    QVERIFY(window.field.hasFocus());
}

void tst_OxaTabBarFocus::letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("hidden") << true << true;
    QTest::newRow("disabled") << false << true;
    QTest::newRow("hidden, in a bar that is not shown yet") << true << false;
    QTest::newRow("disabled, in a bar that is not shown yet") << false << false;
}

void tst_OxaTabBarFocus::letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus()
{
    QFETCH(const bool, isHidden);
    QFETCH(const bool, isShown);
    Window window(4, 2);
    OxaTabBar &bar = window.bar;
    QVERIFY(!isShown || window.appear());
    const auto setUsable = [&](int index, bool usable) {
        if (isHidden)
            bar.setTabVisible(index, usable);
        else
            bar.setTabEnabled(index, usable);
    };
    setUsable(0, false);
    QCOMPARE(describe(bar), QStringLiteral("a b c*!^ d"));
    setUsable(2, false);
    QCOMPARE(describe(bar), QStringLiteral("a b!^ c*! d"));
    setUsable(1, false);
    QCOMPARE(describe(bar), QStringLiteral("a b c*! d!^"));
    QCOMPARE(bar.currentIndex(), 2);
    setUsable(2, true);
    QCOMPARE(describe(bar), QStringLiteral("a b c*!^ d"));
    // One that takes no focus may also become current.
    bar.setCurrentIndex(1);
    QCOMPARE(describe(bar), QStringLiteral("a b*! c!^ d"));
    bar.setCurrentIndex(3);
    QCOMPARE(describe(bar), QStringLiteral("a b c d*!^"));
}

void tst_OxaTabBarFocus::letsTabReachTheCurrentTabAgain()
{
    Window window(2, 1);
    QVERIFY(window.appear());
    window.bar.setTabVisible(1, false);
    window.bar.setTabEnabled(1, false);
    window.bar.setTabVisible(1, true);
    QCOMPARE(describe(window.bar), QStringLiteral("a!^ b*!"));
    window.bar.setTabEnabled(1, true);
    QCOMPARE(describe(window.bar), QStringLiteral("a b*!^"));
}

void tst_OxaTabBarFocus::letsTabReachACurrentTabThatIsYetToBeShown()
{
    Window window(1, 0);
    QVERIFY(window.appear());
    window.bar.addTab(QStringLiteral("b"));
    QVERIFY(window.bar.isTabHidden(1));
    QCOMPARE(window.bar.selectFirstTab(), 0);
    window.bar.setCurrentIndex(1);
    QCOMPARE(describe(window.bar), QStringLiteral("a b*!^"));
    QTRY_VERIFY(window.bar.isTabVisible(1));
    QCOMPARE(describe(window.bar), QStringLiteral("a b*!^"));
}

void tst_OxaTabBarFocus::keepsTheCurrentTabInTheTabChainWhileTheBarIsDisabled()
{
    Window window(3, 1);
    QVERIFY(window.appear());
    window.bar.setEnabled(false);
    QCOMPARE(describe(window.bar), QStringLiteral("a b*!^ c"));
    window.bar.setCurrentIndex(2);
    QCOMPARE(describe(window.bar), QStringLiteral("a b c*!^"));
    window.bar.hide();
    window.bar.setEnabled(true);
    window.bar.show();
    QCOMPARE(describe(window.bar), QStringLiteral("a b c*!^"));
}

void tst_OxaTabBarFocus::letsTabReachItselfWhileNoTabTakesTheFocus()
{
    Window window(2, 1);
    QVERIFY(window.appear());
    window.bar.setTabEnabled(0, false);
    window.bar.setTabVisible(1, false);
    QVERIFY(!window.bar.focusProxy());
    window.bar.setFocus();
    QVERIFY(window.bar.hasFocus());
    // A tab that can take it gets it.
    window.bar.setTabVisible(1, true);
    QVERIFY(window.bar.getTab(1)->hasFocus());
}

UIELEMENTS_TEST_MAIN(tst_OxaTabBarFocus)
#include "tst_oxatabbar_focus.moc"

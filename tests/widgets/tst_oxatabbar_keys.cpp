// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/FocusLog.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

using TabBars::Bar;
using TabBars::describe;

namespace {

/// A window with a bar of \a tabs tabs between two fields, of which \a current is current. A tab's
/// object name is its text. The window leaves the way of Tab to Qt, or walks it by TabOrderUtils.
class Window : public QWidget
{
public:
    explicit Window(int tabs, int current, bool walksByUs = false)
        : bar(tabs), m_walksByUs(walksByUs)
    {
        before.setObjectName(QStringLiteral("before"));
        after.setObjectName(QStringLiteral("after"));
        bar.setObjectName(QStringLiteral("bar"));
        nameTabs();
        bar.setCurrentIndex(current);
        auto *column = new QVBoxLayout(this);
        for (QWidget *widget : { static_cast<QWidget *>(&before), static_cast<QWidget *>(&bar),
                                 static_cast<QWidget *>(&after) })
            column->addWidget(widget);
    }

    void nameTabs()
    {
        for (int i = 0; i < bar.count(); ++i)
            bar.getTab(i)->setObjectName(bar.tabText(i));
    }

    /// Shows the window with the focus on \a widget.
    bool appear(QWidget &widget)
    {
        if (!Windows::activate(*this))
            return false;
        widget.setFocus();
        visited.clear();
        return true;
    }

    QLineEdit before;
    Bar bar;
    QLineEdit after;
    FocusLog visited;

protected:
    bool focusNextPrevChild(bool next) override
    {
        return m_walksByUs ? TabOrderUtils::focusNextPrevChild(next, focusWidget(), nullptr)
                           : QWidget::focusNextPrevChild(next);
    }

private:
    const bool m_walksByUs;
};

bool type(const char *keys)
{
    return RealInput::typeKeys(QString::fromLatin1(keys).split(QLatin1Char(' ')));
}

/// Changes tabs of a bar, and says what Tab reaches then.
struct Change
{
    const char *name;
    void (*apply)(OxaTabBar &bar);
    const char *forward;
    const char *back;
};

const Change changes[] = {
    { "none", [](OxaTabBar &) {}, "c after before c", "c before after c" },
    { "another tab hidden", [](OxaTabBar &bar) { bar.setTabVisible(1, false); }, "c after before c",
      "c before after c" },
    { "another tab disabled", [](OxaTabBar &bar) { bar.setTabEnabled(3, false); },
      "c after before c", "c before after c" },
    { "the current tab hidden", [](OxaTabBar &bar) { bar.setTabVisible(2, false); },
      "a after before a", "a before after a" },
    { "the current tab disabled", [](OxaTabBar &bar) { bar.setTabEnabled(2, false); },
      "a after before a", "a before after a" },
    { "the current and the first tab hidden",
      [](OxaTabBar &bar) {
          bar.setTabVisible(0, false);
          bar.setTabVisible(2, false);
      },
      "b after before b", "b before after b" },
    { "no current tab any more", [](OxaTabBar &bar) { bar.removeTab(2); }, "a after before a",
      "a before after a" },
    { "all tabs disabled",
      [](OxaTabBar &bar) {
          for (int i = 0; i < 4; ++i)
              bar.setTabEnabled(i, false);
      },
      "bar after before bar", "bar before after bar" },
    { "no tabs", [](OxaTabBar &bar) { bar.removeAllTabs(); }, "bar after before bar",
      "bar before after bar" },
    { "the bar disabled", [](OxaTabBar &bar) { bar.setEnabled(false); },
      "after before after before", "before after before after" },
    { "the bar hidden", [](OxaTabBar &bar) { bar.hide(); }, "after before after before",
      "before after before after" },
};

} // namespace

/// A tab bar in a real window, under a real keyboard.
class tst_OxaTabBarKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOneStopOfTab_data();
    void isOneStopOfTab();
    void movesInsideByArrowKeys();
    void becomesCurrentBySpace();
    void comesBackToTheCurrentTab();
    void comesBackToTheTabThatHadTheFocus_data();
    void comesBackToTheTabThatHadTheFocus();
    void keepsTheFocusWhileTabsAreAdded();
    void keepsAPlaceInTheWindowWhileTabsAreRemoved();
    void leavesATabThatIsHiddenOrDisabledUnderTheFocus_data();
    void leavesATabThatIsHiddenOrDisabledUnderTheFocus();
};

void tst_OxaTabBarKeys::isOneStopOfTab_data()
{
    QTest::addColumn<int>("change");
    QTest::addColumn<bool>("walksByUs");
    for (int i = 0; i < int(std::size(changes)); ++i) {
        for (const bool walksByUs : { false, true })
            QTest::addRow("%s, by %s", changes[i].name, walksByUs ? "us" : "Qt") << i << walksByUs;
    }
}

void tst_OxaTabBarKeys::isOneStopOfTab()
{
    QFETCH(const int, change);
    QFETCH(const bool, walksByUs);
    Window window(4, 2, walksByUs);
    QVERIFY(window.appear(window.before));
    changes[change].apply(window.bar);
    QVERIFY(type("Tab Tab Tab Tab"));
    QTRY_COMPARE(window.visited.names(), QString::fromLatin1(changes[change].forward));
    window.after.setFocus();
    window.visited.clear();
    QVERIFY(type("shift+Tab shift+Tab shift+Tab shift+Tab"));
    QTRY_COMPARE(window.visited.names(), QString::fromLatin1(changes[change].back));
}

void tst_OxaTabBarKeys::movesInsideByArrowKeys()
{
    Window window(5, 1);
    window.bar.setTabEnabled(2, false);
    window.bar.setTabVisible(3, false);
    QVERIFY(window.appear(window.before));
    QVERIFY(type("Tab Right Right Up Down Left Left Left Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("b e b a after"));
    QCOMPARE(window.bar.currentIndex(), 1);
}

void tst_OxaTabBarKeys::becomesCurrentBySpace()
{
    Window window(3, 0);
    QVERIFY(window.appear(window.bar));
    QVERIFY(type("Right Right space"));
    QTRY_COMPARE(describe(window.bar), QStringLiteral("a b c*!^"));
    QVERIFY(window.bar.getTab(2)->hasFocus());
}

void tst_OxaTabBarKeys::comesBackToTheCurrentTab()
{
    Window window(4, 1);
    QVERIFY(window.appear(window.bar));
    QVERIFY(type("Right Right Tab shift+Tab Left shift+Tab Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("c d after b a before b"));
}

void tst_OxaTabBarKeys::comesBackToTheTabThatHadTheFocus_data()
{
    QTest::addColumn<bool>("isMenu");
    QTest::newRow("after a menu") << true;
    QTest::newRow("after another window") << false;
}

void tst_OxaTabBarKeys::comesBackToTheTabThatHadTheFocus()
{
    QFETCH(const bool, isMenu);
    Window window(4, 1);
    QVERIFY(window.appear(*window.bar.getTab(3)));
    QMenu menu;
    menu.addAction(QStringLiteral("close"));
    QWidget other;
    if (isMenu) {
        menu.popup(window.mapToGlobal(QPoint(10, 10)));
        QTRY_VERIFY(menu.isActiveWindow() || menu.isVisible());
        QVERIFY(type("Escape"));
        QTRY_VERIFY(!menu.isVisible());
    } else {
        QVERIFY(Windows::activate(other));
        QVERIFY(!window.isActiveWindow());
        other.close();
    }
    window.activateWindow();
    QTRY_VERIFY(window.bar.getTab(3)->hasFocus());
    QVERIFY(type("Left"));
    QTRY_VERIFY(window.bar.getTab(2)->hasFocus());
}

void tst_OxaTabBarKeys::keepsTheFocusWhileTabsAreAdded()
{
    Window window(2, 0);
    QVERIFY(window.appear(*window.bar.getTab(1)));
    window.bar.addTab(QStringLiteral("c"));
    window.nameTabs();
    QVERIFY(window.bar.getTab(1)->hasFocus());
    QTRY_VERIFY(window.bar.isTabVisible(2));
    QVERIFY(type("Right Left Left Tab shift+Tab shift+Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("c b a after a before"));
}

void tst_OxaTabBarKeys::keepsAPlaceInTheWindowWhileTabsAreRemoved()
{
    Window window(3, 1);
    QVERIFY(window.appear(*window.bar.getTab(2)));
    window.bar.removeTab(2);
    QVERIFY(window.bar.getTab(0)->hasFocus());
    QVERIFY(type("Right"));
    QTRY_VERIFY(window.bar.getTab(1)->hasFocus());
    window.bar.removeAllTabs();
    QVERIFY(window.bar.hasFocus());
    window.visited.clear();
    QVERIFY(type("Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("after"));
}

void tst_OxaTabBarKeys::leavesATabThatIsHiddenOrDisabledUnderTheFocus_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("hidden") << true;
    QTest::newRow("disabled") << false;
}

void tst_OxaTabBarKeys::leavesATabThatIsHiddenOrDisabledUnderTheFocus()
{
    QFETCH(const bool, isHidden);
    Window window(3, 1);
    QVERIFY(window.appear(*window.bar.getTab(1)));
    if (isHidden)
        window.bar.setTabVisible(1, false);
    else
        window.bar.setTabEnabled(1, false);
    QVERIFY(window.after.hasFocus());
    QVERIFY(type("shift+Tab"));
    QTRY_VERIFY(window.bar.getTab(0)->hasFocus());
}

UIELEMENTS_TEST_MAIN(tst_OxaTabBarKeys)
#include "tst_oxatabbar_keys.moc"

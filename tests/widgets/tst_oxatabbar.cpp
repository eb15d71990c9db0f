// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>

#include <memory>

using TabBars::Bar;
using TabBars::describe;

namespace {

/// Records what \a bar emits, with the numbers.
void record(SignalLog &log, const OxaTabBar &bar)
{
    QObject::connect(&bar, &OxaTabBar::currentChanged, &bar,
                     [&log](int index) { log.note(QStringLiteral("current %1").arg(index)); });
    QObject::connect(&bar, &OxaTabBar::tabClicked, &bar, [&log](int previous, int now) {
        log.note(QStringLiteral("clicked %1 %2").arg(previous).arg(now));
    });
}

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

    bool appear()
    {
        show();
        activateWindow();
        return QTest::qWaitForWindowActive(this);
    }

    QLineEdit field;
    Bar bar;
};

} // namespace

/// The tabs of a bar, and which of them is current.
class tst_OxaTabBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutTabs();
    void setsUpATab();
    void limitsATabToItsTextInTheBarsFont();
    void givesATabWithoutATextNoMaximumWidth();
    void makesTabsByItsFunction();
    void survivesWhatItsFunctionDoes();
    void refusesItemsOfOtherKinds();
    void makesATabCurrent();
    void changesNothingWithoutATabAtTheIndex_data();
    void changesNothingWithoutATabAtTheIndex();
    void checksTheCurrentTabAgainWithoutASignal();
    void tellsOfTheCurrentTabBeforeTheClick();
    void tellsOfAClickOnTheCurrentTabWithoutAChange();
    void tellsOfAClickOnATabThatIsNotInItsLayout();
    void selectsTheFirstTabThatIsEnabledAndVisible();
    void leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval_data();
    void leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval();
    void hasNoCurrentTabAfterTheLastRemoval();
    void ignoresTheRemovalOfNoTab();
    void removesAllTabsWithOneSignal();
    void unblocksItsSignalsWhenAllTabsAreRemoved();
    void handsTheFocusOfARemovedTabOn_data();
    void handsTheFocusOfARemovedTabOn();
    void letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus_data();
    void letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus();
    void letsTabReachTheCurrentTabAgain();
    void letsTabReachACurrentTabThatIsYetToBeShown();
    void keepsTheCurrentTabInTheTabChainWhileTheBarIsDisabled();
    void letsTabReachItselfWhileNoTabTakesTheFocus();
    void hintsAtTheWidthOfItsTextsAndItsHeight();
    void isDeletedInASlot_data();
    void isDeletedInASlot();
    void losesATabInASlot_data();
    void losesATabInASlot();
    void losesATabWhileAnotherIsChecked();
};

void tst_OxaTabBar::startsWithoutTabs()
{
    const OxaTabBar bar;
    QCOMPARE(bar.objectName(), QStringLiteral("OxaTabBar"));
    QCOMPARE(bar.focusPolicy(), Qt::StrongFocus);
    QVERIFY(qobject_cast<QHBoxLayout *>(bar.layout()));
    QCOMPARE(bar.layout()->spacing(), 0);
    QCOMPARE(bar.layout()->contentsMargins(), QMargins());
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentIndex(), -1);
    QCOMPARE(bar.property("horizontalPadding"), QVariant(8));
    QVERIFY(!bar.focusProxy());
}

void tst_OxaTabBar::setsUpATab()
{
    OxaTabBar bar;
    bar.setHorizontalPadding(11);
    QCOMPARE(bar.addTab(QStringLiteral("first"), QStringLiteral("the first tab")), 0);
    bar.setObjectName(QStringLiteral("%1"));
    QCOMPARE(bar.addTab(QStringLiteral("second")), 1);
    QCOMPARE(bar.count(), 2);
    QCOMPARE(bar.currentIndex(), -1);
    const OxaPushButton *tab = bar.getTab(0);
    QCOMPARE(tab->parent(), &bar);
    QCOMPARE(tab->objectName(), QStringLiteral("tab_OxaTabBar_0"));
    QCOMPARE(bar.getTab(1)->objectName(), QStringLiteral("tab_%1_1"));
    QCOMPARE(tab->text(), QStringLiteral("first"));
    QCOMPARE(tab->toolTip(), QStringLiteral("first"));
    QVERIFY(tab->isCheckable());
    QVERIFY(!tab->isChecked());
    QCOMPARE(int(tab->getAcceleratorType()), 1);
    QCOMPARE(tab->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(tab->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(tab->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(tab->getElideMode(), Qt::ElideRight);
    QCOMPARE(tab->getElidePadding(), 11);
    QCOMPARE(tab->accessibleName(), QStringLiteral("the first tab"));
    QCOMPARE(tab->accessibleDescription(), QStringLiteral("the first tab"));
    QCOMPARE(tab->getAccessibleRole(), QAccessible::PushButton);
}

void tst_OxaTabBar::limitsATabToItsTextInTheBarsFont()
{
    OxaTabBar bar;
    QFont large = bar.font();
    large.setPixelSize(40);
    bar.setFont(large);
    bar.setNewTabButtonFunc([](QWidget *parent) {
        auto *button = new OxaPushButton(parent);
        button->setFontToken(OxaFont::Token::BodySecondary);
        return button;
    });
    bar.addTab(QStringLiteral("a long text"));
    QCOMPARE(bar.getTab(0)->maximumWidth(),
             QFontMetrics(large).horizontalAdvance(QStringLiteral("a long text")) + 16);
}

void tst_OxaTabBar::givesATabWithoutATextNoMaximumWidth()
{
    OxaTabBar bar;
    bar.addTab(QString());
    QCOMPARE(bar.getTab(0)->maximumWidth(), QWIDGETSIZE_MAX);
}

void tst_OxaTabBar::makesTabsByItsFunction()
{
    OxaTabBar bar;
    QWidget *parent = nullptr;
    const auto make = [&parent](QWidget *given) {
        parent = given;
        return new OxaPushButton(given, QAccessible::PageTab);
    };
    bar.setNewTabButtonFunc(make);
    bar.setNewTabButtonFunc({});
    QCOMPARE(bar.addTab(QStringLiteral("a")), 0);
    QCOMPARE(parent, &bar);
    QCOMPARE(bar.getTab(0)->getAccessibleRole(), QAccessible::PageTab);
    bar.setNewTabButtonFunc([](QWidget *) -> OxaPushButton * { return nullptr; });
    QCOMPARE(bar.addTab(QStringLiteral("b")), -1);
    QCOMPARE(bar.count(), 1);
}

void tst_OxaTabBar::survivesWhatItsFunctionDoes()
{
    auto *bar = new OxaTabBar;
    auto capture = std::make_shared<int>();
    const std::weak_ptr<int> captured = capture;
    bool isKept = false;
    bar->setNewTabButtonFunc([bar, capture, &captured, &isKept](QWidget *parent) {
        bar->setNewTabButtonFunc([](QWidget *) -> OxaPushButton * { return nullptr; });
        isKept = !captured.expired();
        return new OxaPushButton(parent);
    });
    capture.reset();
    QCOMPARE(bar->addTab(QStringLiteral("a")), 0);
    QVERIFY(isKept);
    QCOMPARE(bar->addTab(QStringLiteral("b")), -1);
    const QPointer<OxaTabBar> guard(bar);
    bar->setNewTabButtonFunc([bar](QWidget *parent) {
        auto *button = new OxaPushButton(parent);
        delete bar;
        return button;
    });
    QCOMPARE(bar->addTab(QStringLiteral("c")), -1);
    QVERIFY(!guard);
}

void tst_OxaTabBar::refusesItemsOfOtherKinds()
{
    Bar bar;
    QWidget owner;
    QPushButton plain(&owner);
    for (QWidget *other : { static_cast<QWidget *>(&plain), static_cast<QWidget *>(nullptr) }) {
        QTest::ignoreMessage(QtWarningMsg,
                             "OxaTabBar: invalid parameter for tabItem. Expected 'OxaPushButton'");
        QCOMPARE(bar.addTabItem(other), -1);
    }
    QCOMPARE(plain.parent(), &owner);
    QCOMPARE(bar.count(), 0);
    auto *button = new OxaPushButton;
    QCOMPARE(bar.addTabItem(button), 0);
    QCOMPARE(button->parent(), &bar);
    QCOMPARE(button->objectName(), QStringLiteral("tab_OxaTabBar_0"));
}

void tst_OxaTabBar::makesATabCurrent()
{
    Bar bar(3);
    SignalLog log;
    record(log, bar);
    bar.setCurrentIndex(1);
    QCOMPARE(bar.currentIndex(), 1);
    QCOMPARE(describe(bar), QStringLiteral("a b*!^ c"));
    QCOMPARE(log.take(), QStringLiteral("current 1"));
    bar.setCurrentIndex(2);
    QCOMPARE(describe(bar), QStringLiteral("a b c*!^"));
    QCOMPARE(bar.getTab(1)->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(bar.getTab(2)->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(log.take(), QStringLiteral("current 2"));
}

void tst_OxaTabBar::changesNothingWithoutATabAtTheIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("the number of tabs") << 2;
    QTest::newRow("the smallest number") << INT_MIN;
    QTest::newRow("the largest number") << INT_MAX;
}

void tst_OxaTabBar::changesNothingWithoutATabAtTheIndex()
{
    QFETCH(const int, index);
    Bar bar(2);
    bar.setCurrentIndex(0);
    SignalLog log;
    record(log, bar);
    bar.setCurrentIndex(index);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(describe(bar), QStringLiteral("a*!^ b"));
    QCOMPARE(log.take(), QString());
}

void tst_OxaTabBar::checksTheCurrentTabAgainWithoutASignal()
{
    Bar bar(2);
    bar.setCurrentIndex(1);
    SignalLog log;
    record(log, bar);
    bar.getTab(1)->setChecked(false);
    bar.getTab(1)->setFocusPolicy(Qt::NoFocus);
    bar.setCurrentIndex(1);
    QCOMPARE(describe(bar), QStringLiteral("a b*!^"));
    QCOMPARE(log.take(), QString());
}

void tst_OxaTabBar::tellsOfTheCurrentTabBeforeTheClick()
{
    Bar bar(3);
    SignalLog log;
    record(log, bar);
    bar.getTab(2)->click();
    QCOMPARE(log.take(), QStringLiteral("current 2 | clicked -1 2"));
    bar.getTab(0)->click();
    QCOMPARE(log.take(), QStringLiteral("current 0 | clicked 2 0"));
    QCOMPARE(describe(bar), QStringLiteral("a*!^ b c"));
}

void tst_OxaTabBar::tellsOfAClickOnTheCurrentTabWithoutAChange()
{
    Bar bar(2);
    bar.setCurrentIndex(1);
    SignalLog log;
    record(log, bar);
    bar.getTab(1)->click();
    QCOMPARE(log.take(), QStringLiteral("clicked 1 1"));
    QCOMPARE(describe(bar), QStringLiteral("a b*!^"));
}

void tst_OxaTabBar::tellsOfAClickOnATabThatIsNotInItsLayout()
{
    Bar bar(2);
    bar.setCurrentIndex(1);
    OxaPushButton *tab = bar.getTab(0);
    bar.layout()->removeWidget(tab);
    SignalLog log;
    record(log, bar);
    tab->click();
    QCOMPARE(log.take(), QStringLiteral("clicked 1 1"));
}

void tst_OxaTabBar::selectsTheFirstTabThatIsEnabledAndVisible()
{
    Bar bar(3);
    bar.setTabVisible(0, false);
    bar.setTabEnabled(1, false);
    SignalLog log;
    record(log, bar);
    QCOMPARE(bar.selectFirstTab(), 2);
    QCOMPARE(bar.currentIndex(), 2);
    QCOMPARE(log.take(), QStringLiteral("current 2"));
    bar.setTabEnabled(2, false);
    QCOMPARE(bar.selectFirstTab(), -1);
    QCOMPARE(bar.currentIndex(), 2);
    bar.setTabVisible(0, true);
    QCOMPARE(bar.selectFirstTab(), 0);
    QCOMPARE(Bar().selectFirstTab(), -1);
}

void tst_OxaTabBar::leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("tabs");
    QTest::newRow("the current one") << 1 << 1 << QStringLiteral("a*!^ c d");
    QTest::newRow("the first and current one") << 0 << 0 << QStringLiteral("b*!^ c d");
    QTest::newRow("one before the current one") << 2 << 0 << QStringLiteral("b*!^ c d");
    QTest::newRow("one behind the current one") << 2 << 3 << QStringLiteral("a*!^ b c");
    QTest::newRow("the one before the current one") << 1 << 0 << QStringLiteral("b*!^ c d");
    QTest::newRow("another, the first being current") << 0 << 2 << QStringLiteral("a*!^ b d");
    QTest::newRow("one without a current one") << -1 << 2 << QStringLiteral("a*!^ b d");
}

void tst_OxaTabBar::leavesExactlyOneTabCheckedAndInTheTabChainAfterARemoval()
{
    QFETCH(const int, current);
    QFETCH(const int, removed);
    QFETCH(const QString, tabs);
    Bar bar(4);
    bar.setCurrentIndex(current);
    const QPointer<QWidget> tab = bar.getTab(removed);
    SignalLog log;
    record(log, bar);
    bar.removeTab(removed);
    QVERIFY(!tab);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(describe(bar), tabs);
    QCOMPARE(log.take(), QStringLiteral("current 0"));
}

void tst_OxaTabBar::hasNoCurrentTabAfterTheLastRemoval()
{
    Bar bar(1);
    bar.setCurrentIndex(0);
    SignalLog log;
    record(log, bar);
    bar.removeTab(0);
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.currentIndex(), -1);
    QVERIFY(!bar.focusProxy());
    QCOMPARE(log.take(), QStringLiteral("current -1"));
}

void tst_OxaTabBar::ignoresTheRemovalOfNoTab()
{
    Bar bar(2);
    bar.setCurrentIndex(1);
    SignalLog log;
    record(log, bar);
    for (const int index : { -1, 2, INT_MIN, INT_MAX })
        bar.removeTab(index);
    QCOMPARE(describe(bar), QStringLiteral("a b*!^"));
    QCOMPARE(log.take(), QString());
}

void tst_OxaTabBar::removesAllTabsWithOneSignal()
{
    for (const int tabs : { 3, 0 }) {
        Bar bar(tabs);
        bar.setCurrentIndex(1);
        SignalLog log;
        record(log, bar);
        bar.removeAllTabs();
        QCOMPARE(bar.count(), 0);
        QCOMPARE(bar.currentIndex(), -1);
        QCOMPARE(log.take(), QStringLiteral("current -1"));
    }
}

void tst_OxaTabBar::unblocksItsSignalsWhenAllTabsAreRemoved()
{
    Bar bar(2);
    SignalLog log;
    record(log, bar);
    bar.blockSignals(true);
    bar.removeAllTabs();
    QCOMPARE(log.take(), QStringLiteral("current -1"));
    QVERIFY(!bar.signalsBlocked());
}

void tst_OxaTabBar::handsTheFocusOfARemovedTabOn_data()
{
    QTest::addColumn<int>("tabs");
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("focused");
    QTest::newRow("to the first tab") << 3 << 2 << QStringLiteral("tab_OxaTabBar_0");
    QTest::newRow("to the second, where the first goes")
            << 3 << 0 << QStringLiteral("tab_OxaTabBar_1");
    QTest::newRow("to the bar, where the last one goes") << 1 << 0 << QStringLiteral("OxaTabBar");
}

void tst_OxaTabBar::handsTheFocusOfARemovedTabOn()
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

void tst_OxaTabBar::letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::addColumn<bool>("isShown");
    QTest::newRow("hidden") << true << true;
    QTest::newRow("disabled") << false << true;
    QTest::newRow("hidden, in a bar that is not shown yet") << true << false;
    QTest::newRow("disabled, in a bar that is not shown yet") << false << false;
}

void tst_OxaTabBar::letsTabReachAnotherTabWhileTheCurrentOneTakesNoFocus()
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

void tst_OxaTabBar::letsTabReachTheCurrentTabAgain()
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

void tst_OxaTabBar::letsTabReachACurrentTabThatIsYetToBeShown()
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

void tst_OxaTabBar::keepsTheCurrentTabInTheTabChainWhileTheBarIsDisabled()
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

void tst_OxaTabBar::letsTabReachItselfWhileNoTabTakesTheFocus()
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

void tst_OxaTabBar::hintsAtTheWidthOfItsTextsAndItsHeight()
{
    OxaTabBar bar;
    bar.resize(300, 37);
    bar.setHorizontalPadding(5);
    QCOMPARE(bar.sizeHint(), QSize(0, 37));
    bar.addTab(QStringLiteral("one"));
    bar.addTab(QStringLiteral("three"));
    bar.setTabVisible(1, false);
    const QFontMetrics metrics(bar.font());
    QCOMPARE(bar.sizeHint(),
             QSize(metrics.horizontalAdvance(QStringLiteral("one"))
                           + metrics.horizontalAdvance(QStringLiteral("three")) + 20,
                   37));
}

void tst_OxaTabBar::isDeletedInASlot_data()
{
    QTest::addColumn<bool>("isByClick");
    QTest::addColumn<bool>("isInTabClicked");
    QTest::newRow("of currentChanged(), by a click") << true << false;
    QTest::newRow("of currentChanged(), by a removal") << false << false;
    QTest::newRow("of tabClicked()") << true << true;
}

void tst_OxaTabBar::isDeletedInASlot()
{
    QFETCH(const bool, isByClick);
    QFETCH(const bool, isInTabClicked);
    auto *bar = new Bar(3);
    const QPointer<Bar> guard(bar);
    if (isInTabClicked)
        connect(bar, &OxaTabBar::tabClicked, this, [bar] { delete bar; });
    else
        connect(bar, &OxaTabBar::currentChanged, this, [bar] { delete bar; });
    if (isByClick)
        QTest::mouseClick(bar->getTab(1), Qt::LeftButton);
    else
        bar->removeTab(1);
    QVERIFY(!guard);
}

void tst_OxaTabBar::losesATabInASlot_data()
{
    QTest::addColumn<int>("removed");
    QTest::addColumn<bool>("isInTabClicked");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("the clicked one, in currentChanged()")
            << 1 << false << QStringLiteral("current 1 | current 0 | clicked -1 0");
    QTest::newRow("another, in currentChanged()")
            << 2 << false << QStringLiteral("current 1 | current 0 | clicked -1 0");
    QTest::newRow("the clicked one, in tabClicked()")
            << 1 << true << QStringLiteral("current 1 | clicked -1 1 | current 0");
}

void tst_OxaTabBar::losesATabInASlot()
{
    QFETCH(const int, removed);
    QFETCH(const bool, isInTabClicked);
    QFETCH(const QString, emitted);
    Bar bar(3);
    SignalLog log;
    record(log, bar);
    const auto removeOnce = [&bar, removed] {
        if (bar.count() == 3)
            bar.removeTab(removed);
    };
    if (isInTabClicked)
        connect(&bar, &OxaTabBar::tabClicked, this, removeOnce);
    else
        connect(&bar, &OxaTabBar::currentChanged, this, removeOnce);
    QTest::mouseClick(bar.getTab(1), Qt::LeftButton);
    QCOMPARE(log.take(), emitted);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(describe(bar), removed == 1 ? QStringLiteral("a*!^ c") : QStringLiteral("a*!^ b"));
}

void tst_OxaTabBar::losesATabWhileAnotherIsChecked()
{
    Bar bar(3);
    SignalLog log;
    record(log, bar);
    connect(bar.getTab(2), &OxaPushButton::toggled, this, [&bar] {
        if (bar.count() == 3)
            bar.removeTab(0);
    });
    bar.setCurrentIndex(2);
    QCOMPARE(bar.currentIndex(), 1);
    QCOMPARE(describe(bar), QStringLiteral("b c*!^"));
    QCOMPARE(log.take(), QStringLiteral("current 0 | current 1"));
}

UIELEMENTS_TEST_MAIN(tst_OxaTabBar)
#include "tst_oxatabbar.moc"

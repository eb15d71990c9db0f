// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/SignalLog.h"
#include "support/TestApplication.h"

#include <QHBoxLayout>
#include <QPointer>

#include <memory>

using TabBars::Bar;
using TabBars::describe;
using TabBars::record;

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
    void hintsAtTheWidthOfItsTextsAndItsHeight();
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

UIELEMENTS_TEST_MAIN(tst_OxaTabBar)
#include "tst_oxatabbar.moc"

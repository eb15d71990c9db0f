// SPDX-License-Identifier: Apache-2.0
#include "TabBars.h"
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/PaintCounter.h"
#include "support/TestApplication.h"

#include <QLayout>

using TabBars::Bar;

namespace {

/// One function of the bar that sets something of a tab, and the one that returns it.
struct Accessor
{
    QVariant (*get)(const OxaTabBar &bar, int index);
    void (*set)(OxaTabBar &bar, int index);
    QVariant before;
    QVariant after;
    QVariant withoutTab;
};

} // namespace

Q_DECLARE_METATYPE(Accessor)

namespace {

void addRow(const char *name, const Accessor &accessor) { QTest::newRow(name) << accessor; }

} // namespace

/// What a bar forwards to its tabs.
class tst_OxaTabBarTabs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsAndReturnsWhatATabHas_data();
    void setsAndReturnsWhatATabHas();
    void isHiddenWithoutATab();
    void returnsTheFirstStyleTextOfATab();
    void expandsTheStyleTextOfATab();
    void repaintsATabWithAnotherElidePadding();
    void findsTabsByTheirData();
    void opensAMenuForATab();
    void returnsWhereATabIs();
    void spacesItsTabs();
    void returnsOnlyButtonsOfOursAsTabs();
};

void tst_OxaTabBarTabs::setsAndReturnsWhatATabHas_data()
{
    QTest::addColumn<Accessor>("accessor");
    const QVariant text = QStringLiteral("another");
    const QVariant none = QString();
    addRow("text",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.tabText(i); },
             [](OxaTabBar &bar, int i) { bar.setTabText(i, QStringLiteral("another")); },
             QStringLiteral("b"), text, none });
    addRow("tool tip",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.tabToolTip(i); },
             [](OxaTabBar &bar, int i) { bar.setTabToolTip(i, QStringLiteral("another")); },
             QStringLiteral("b"), text, none });
    addRow("accessible name",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.accessibleTabName(i); },
             [](OxaTabBar &bar, int i) { bar.setAccessibleTabName(i, QStringLiteral("another")); },
             none, text, none });
    addRow("style sheet",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.tabStyleSheet(i); },
             [](OxaTabBar &bar, int i) { bar.setTabStyleSheet(i, QStringLiteral("color: red;")); },
             none, QStringLiteral("color: red;"), none });
    addRow("enabled",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.isTabEnabled(i); },
             [](OxaTabBar &bar, int i) { bar.setTabEnabled(i, false); }, true, false, false });
    addRow("hidden",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.isTabHidden(i); },
             [](OxaTabBar &bar, int i) { bar.setTabVisible(i, false); }, false, true, true });
    addRow("visible",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.isTabVisible(i); },
             [](OxaTabBar &bar, int i) { bar.setTabVisible(i, false); }, true, false, false });
    addRow("elide padding",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.tabElidePadding(i); },
             [](OxaTabBar &bar, int i) { bar.setTabElidePadding(i, 3); }, 8, 3, 0 });
    addRow("property",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.tabProperty(i, "key"); },
             [](OxaTabBar &bar, int i) { bar.setTabProperty(i, "key", 7); }, QVariant(), 7,
             QVariant() });
    addRow("data",
           { [](const OxaTabBar &bar, int i) -> QVariant { return bar.tabData(i); },
             [](OxaTabBar &bar, int i) { bar.setTabData(i, 9); }, QVariant(), 9, QVariant() });
}

void tst_OxaTabBarTabs::setsAndReturnsWhatATabHas()
{
    QFETCH(const Accessor, accessor);
    QWidget window;
    Bar bar(3, &window);
    window.show();
    QCOMPARE(accessor.get(bar, 1), accessor.before);
    for (const int index : { -1, 3 }) {
        accessor.set(bar, index);
        QCOMPARE(accessor.get(bar, index), accessor.withoutTab);
    }
    accessor.set(bar, 1);
    QCOMPARE(accessor.get(bar, 1), accessor.after);
    // The others stay as they were.
    for (const int index : { 0, 2 })
        QVERIFY(accessor.get(bar, index) != accessor.after);
}

void tst_OxaTabBarTabs::isHiddenWithoutATab()
{
    const OxaTabBar bar;
    QVERIFY(bar.isTabHidden(0));
    QVERIFY(!bar.isTabVisible(0));
}

void tst_OxaTabBarTabs::returnsTheFirstStyleTextOfATab()
{
    Bar bar(1);
    bar.setTabStyleSheet(0, QStringLiteral("color: red;"));
    QCOMPARE(bar.getTab(0)->getCSS(), QStringLiteral("color: red;"));
    bar.setTabStyleSheet(0, QStringLiteral("color: blue;"));
    QCOMPARE(bar.tabStyleSheet(0), QStringLiteral("color: blue;"));
    QCOMPARE(bar.getTab(0)->getCSS(), QStringLiteral("color: red;"));
}

void tst_OxaTabBarTabs::expandsTheStyleTextOfATab()
{
    const StoreGuard stores(
            ColorSets::storeOf({ ColorSets::make(QStringLiteral("panel"), { "#112233" }) }));
    Bar bar(1);
    OxaCSSData style;
    style.textColorSetName = QStringLiteral("panel");
    style.borderRadius = 4;
    bar.setTabCSS(0, style);
    QCOMPARE(bar.getTab(0)->getCSS(), OxaThemeUtils::convertToOxaCSS(style));
    QVERIFY(bar.tabStyleSheet(0).contains(QLatin1String("#ff112233")));
    bar.setTabCSS(1, style);
}

void tst_OxaTabBarTabs::repaintsATabWithAnotherElidePadding()
{
    QWidget window;
    Bar bar(1, &window);
    PaintCounter paints(*bar.getTab(0));
    bar.setTabElidePadding(0, 2);
    QVERIFY(paints.take() > 0);
}

void tst_OxaTabBarTabs::findsTabsByTheirData()
{
    Bar bar(4);
    QCOMPARE(bar.findTabIndexByData(QVariant()), 0);
    bar.setTabData(0, QStringLiteral("x"));
    bar.setTabData(2, QStringLiteral("y"));
    bar.setTabData(3, QStringLiteral("y"));
    QCOMPARE(bar.getTab(0)->property("tab_property"), QVariant(QStringLiteral("x")));
    QCOMPARE(bar.findTabIndexByData(QVariant()), 1);
    QCOMPARE(bar.findTabIndexByData(QStringLiteral("y")), 2);
    QCOMPARE(bar.findTabIndexByData(QStringLiteral("z")), -1);
    QCOMPARE(OxaTabBar().findTabIndexByData(QVariant()), -1);
}

void tst_OxaTabBarTabs::opensAMenuForATab()
{
    Bar bar(2);
    QVector<QPushButton *> buttons;
    const auto show = [&buttons](QPushButton *button) { buttons += button; };
    bar.createAndShowTabMenu(1, show);
    bar.createAndShowTabMenu(5, show);
    bar.createAndShowTabMenu(1, {});
    QCOMPARE(buttons, QVector<QPushButton *>({ bar.getTab(1), nullptr }));
}

void tst_OxaTabBarTabs::returnsWhereATabIs()
{
    Bar bar(2);
    bar.getTab(1)->setGeometry(30, 2, 4, 20);
    QCOMPARE(bar.tabGeometry(1), QRect(30, 2, 4, 20));
    QCOMPARE(bar.tabGeometry(2), QRect());
}

void tst_OxaTabBarTabs::spacesItsTabs()
{
    Bar bar(2);
    bar.setTabsSpacing(6);
    QCOMPARE(bar.layout()->spacing(), 6);
}

void tst_OxaTabBarTabs::returnsOnlyButtonsOfOursAsTabs()
{
    OxaTabBar bar;
    auto *plain = new QPushButton(QStringLiteral("plain"));
    bar.layout()->addWidget(plain);
    bar.addTab(QStringLiteral("a"));
    QVERIFY(!bar.getTab(0));
    QCOMPARE(bar.tabText(0), QString());
    QCOMPARE(bar.tabText(1), QStringLiteral("a"));
    // Any push button can be current.
    bar.setCurrentIndex(0);
    QCOMPARE(bar.currentIndex(), 0);
    QCOMPARE(plain->focusPolicy(), Qt::StrongFocus);
}

UIELEMENTS_TEST_MAIN(tst_OxaTabBarTabs)
#include "tst_oxatabbar_tabs.moc"

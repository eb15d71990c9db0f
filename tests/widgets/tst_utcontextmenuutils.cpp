// SPDX-License-Identifier: Apache-2.0
#include "TextEditParts.h"
#include "support/TestApplication.h"

#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/UTContextMenuUtils.h>

#include <QScreen>

using namespace TextEditParts;

class tst_UTContextMenuUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheStyleTextOfContextMenus();
    void namesNoOtherSetsThanThose();
    void leavesAMenuInsideItsScreenAlone_data();
    void leavesAMenuInsideItsScreenAlone();
    void movesTheTopOfAMenuThatHangsOut_data();
    void movesTheTopOfAMenuThatHangsOut();
    void keepsTheBottomWhereItWas();
    void doesNothingWithoutAMenu();
    void doesNothingWhereNoScreenIs();

private:
    QRect screen() const { return QGuiApplication::primaryScreen()->geometry(); }
};

void tst_UTContextMenuUtils::hasTheStyleTextOfContextMenus()
{
    QCOMPARE(UTContextMenuUtils::getContextMenuStyleSheet(),
             QStringLiteral(
                     "QMenu {     background-color: "
                     "$(menulistbackground-secondary-background.normal); } QMenu::item {     "
                     "color: $(listitem-textprimary.normal);     background-color: "
                     "$(listitem-background.normal);     height: 32px;     width: 238px;     "
                     "padding-top: 5px;     padding-bottom: 5px;     padding-left: 12px;     "
                     "padding-right: 12px; } QMenu::item:hover {     color: "
                     "$(listitem-textprimary.hovered);     background-color: "
                     "$(listitem-background.hovered); } QMenu::item:selected {     color: "
                     "$(listitem-textprimary.hovered);     background-color: "
                     "$(listitem-background.hovered); } QMenu::item:disabled {     color: "
                     "$(listitem-textprimary.disabled);     background-color: "
                     "$(listitem-background.disabled); } QMenu::separator {     height: 1px;     "
                     "background: $(separator-primary.normal);     margin-left: 12px;     "
                     "margin-right: 12px; } "));
}

void tst_UTContextMenuUtils::namesNoOtherSetsThanThose()
{
    QWidget widget;
    // A set that the store lacks would be warned of.
    const QString sheet = OxaThemeUtils::parseCSS(&widget,
                                                  UTContextMenuUtils::getContextMenuStyleSheet(),
                                                  menuStore("#112233"))
                                  .expandedStyleSheet;
    QVERIFY(!sheet.contains(QLatin1Char('$')));
    QCOMPARE(sheet.count(QStringLiteral("#ff112233")), 10);
}

void tst_UTContextMenuUtils::leavesAMenuInsideItsScreenAlone_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("in its middle") << QRect(200, 200, 100, 50);
    QTest::newRow("at its upper left corner") << QRect(screen().topLeft(), QSize(100, 50));
    QTest::newRow("at its lower right corner")
            << QRect(screen().bottomRight() - QPoint(99, 49), QSize(100, 50));
}

void tst_UTContextMenuUtils::leavesAMenuInsideItsScreenAlone()
{
    QFETCH(const QRect, geometry);
    QMenu menu;
    menu.setGeometry(geometry);
    UTContextMenuUtils::updateYPositionOnScreen(&menu);
    QCOMPARE(menu.geometry(), geometry);
}

void tst_UTContextMenuUtils::movesTheTopOfAMenuThatHangsOut_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<int>("top");
    const int bottom = screen().bottom();
    const int right = screen().right();
    // Its bottom edge counts where that is lower than one height above the menu.
    QTest::newRow("below") << QRect(100, bottom - 99, 100, 150) << bottom - 150;
    QTest::newRow("below, far up") << QRect(100, bottom - 760, 100, 1000) << bottom - 1000;
    QTest::newRow("above") << QRect(100, -20, 100, 50) << bottom - 50;
    QTest::newRow("on the left alone") << QRect(-20, 200, 100, 50) << bottom - 50;
    QTest::newRow("on the right alone") << QRect(right - 60, 200, 100, 50) << bottom - 50;
}

void tst_UTContextMenuUtils::movesTheTopOfAMenuThatHangsOut()
{
    QFETCH(const QRect, geometry);
    QFETCH(const int, top);
    QMenu menu;
    menu.setGeometry(geometry);
    UTContextMenuUtils::updateYPositionOnScreen(&menu);
    QCOMPARE(menu.geometry().topLeft(), QPoint(geometry.left(), top));
    QCOMPARE(menu.width(), geometry.width());
}

void tst_UTContextMenuUtils::keepsTheBottomWhereItWas()
{
    QMenu menu;
    const QRect geometry(100, screen().bottom() - 99, 100, 150);
    menu.setGeometry(geometry);
    UTContextMenuUtils::updateYPositionOnScreen(&menu);
    QCOMPARE(menu.geometry().bottom(), geometry.bottom());
    QVERIFY(menu.height() > geometry.height());
}

void tst_UTContextMenuUtils::doesNothingWithoutAMenu()
{
    UTContextMenuUtils::updateYPositionOnScreen(nullptr);
    QVERIFY(!openMenu());
}

void tst_UTContextMenuUtils::doesNothingWhereNoScreenIs()
{
    QMenu menu;
    const QRect geometry(100, screen().bottom() + 500, 100, 50);
    menu.setGeometry(geometry);
    UTContextMenuUtils::updateYPositionOnScreen(&menu);
    QCOMPARE(menu.geometry(), geometry);
}

UIELEMENTS_TEST_MAIN(tst_UTContextMenuUtils)
#include "tst_utcontextmenuutils.moc"

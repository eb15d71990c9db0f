// SPDX-License-Identifier: Apache-2.0
#include "support/TestApplication.h"

#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/UTContextMenuUtils.h>

#include <QScreen>

namespace {

const QRect smallScreen(0, 0, 800, 600);
const QRect largeScreen(0, 0, 1280, 1024);

void addActions(OxaMenu &menu, int count)
{
    for (int i = 0; i < count; ++i)
        menu.addAction(QStringLiteral("action %1").arg(i));
}

} // namespace

/// Menus on a desktop of two screens of unlike size, of which the small one covers the top left of
/// the large one.
class tst_MenusTwoScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void opensAMenuOnTheScreenUnderThePoint_data();
    void opensAMenuOnTheScreenUnderThePoint();
    void growsAMenuUpwardsOnItsScreen_data();
    void growsAMenuUpwardsOnItsScreen();
};

void tst_MenusTwoScreens::initTestCase()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QCOMPARE(screens.size(), 2);
    QCOMPARE(screens.at(0)->geometry(), smallScreen);
    QCOMPARE(screens.at(1)->geometry(), largeScreen);
}

void tst_MenusTwoScreens::opensAMenuOnTheScreenUnderThePoint_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<bool>("fits");
    QTest::newRow("on the small one") << QPoint(100, 100) << smallScreen << true;
    QTest::newRow("at the corner of the small one") << QPoint(799, 599) << smallScreen << false;
    QTest::newRow("on the large one") << QPoint(900, 700) << largeScreen << true;
    QTest::newRow("at the corner of the large one") << QPoint(1279, 1023) << largeScreen << false;
}

void tst_MenusTwoScreens::opensAMenuOnTheScreenUnderThePoint()
{
    QFETCH(const QPoint, point);
    QFETCH(const QRect, screen);
    QFETCH(const bool, fits);
    OxaMenu menu;
    addActions(menu, 5);
    const QAction *first = menu.actions().constFirst();
    menu.popupAt(point);
    QVERIFY(menu.isVisible());
    QCOMPARE(menu.size(), menu.sizeHint());
    QVERIFY(screen.contains(menu.geometry()));
    QCOMPARE(menu.pos() == point, fits);
    QVERIFY(fits || menu.geometry().bottomRight() == screen.bottomRight());
    QCOMPARE(menu.activeAction(), first);
}

void tst_MenusTwoScreens::growsAMenuUpwardsOnItsScreen_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<int>("top");
    QTest::newRow("below the small one") << QRect(100, 550, 100, 80) << 599 - 80;
    QTest::newRow("below the large one") << QRect(900, 950, 100, 140) << 1023 - 140;
    QTest::newRow("below the small one, on the large one") << QRect(100, 590, 100, 80) << 590;
}

void tst_MenusTwoScreens::growsAMenuUpwardsOnItsScreen()
{
    QFETCH(const QRect, geometry);
    QFETCH(const int, top);
    QMenu menu;
    menu.setGeometry(geometry);
    UTContextMenuUtils::updateYPositionOnScreen(&menu);
    QCOMPARE(menu.geometry(), QRect(QPoint(geometry.left(), top), geometry.bottomRight()));
}

UIELEMENTS_TEST_MAIN(tst_MenusTwoScreens)
#include "tst_menus_twoscreens.moc"

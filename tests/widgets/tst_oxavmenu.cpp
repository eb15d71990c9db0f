// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/Guards.h"
#include "support/Pixels.h"
#include "support/TestApplication.h"

#include <UiElements/svg/OxaSvgAnchorButton.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/widgets/OxaSeparator.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QPointer>
#include <QVBoxLayout>

namespace {

const OxaColorSet itemColors = ColorSets::make(QStringLiteral("mainList-item"), { "#204060" });
const OxaColorSet textColors = ColorSets::make(QStringLiteral("oxa-menuItemButton-text"),
                                               { "#a0c0e0" });
const OxaColorSet oldLine = ColorSets::make(QStringLiteral("legacy-separator-primary"),
                                            { "#ff0000" });
const OxaColorSet newLine = ColorSets::make(QStringLiteral("line"), { "#00ff00" });
const OxaColorSet links = ColorSets::make(QStringLiteral("button-hyperlink-text"), { "#000000" });

void doNothing() { }

} // namespace

class tst_OxaVMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void startsEmpty();
    void setsUpAnItem();
    void givesItemsItsFont();
    void givesTheFocusToItsFirstItem();
    void keepsTheFocusIfSomethingElseComesFirst_data();
    void keepsTheFocusIfSomethingElseComesFirst();
    void passesTheFocusOnToAnyButtonThatTakesIt();
    void callsTheFunctionOfAnItem();
    void isDeletedInTheFunctionOfAnItem();
    void isClearedInTheFunctionOfAnItem();
    void limitsButtonsAndTitlesToItsMaximumWidth();
    void showsASeparatorInItsOwnColorAtOnce();
    void leavesASeparatorWithoutAColorSetItsOwn();
    void insetsASeparator_data();
    void insetsASeparator();
    void addsSpace();
    void addsOtherWidgets();
    void deletesEverythingWhenItIsCleared();
    void givesTheFocusToTheFirstItemAfterItWasCleared();
    void mirrorsItsMargins();
    void setsItsBackgroundAndKeepsTheRest();
    void setsItsRadiusAndKeepsTheRest();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaVMenu::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(
            ColorSets::storeOf({ itemColors, textColors, oldLine, newLine, links }));
}

void tst_OxaVMenu::startsEmpty()
{
    const OxaVMenu menu;
    QCOMPARE(menu.objectName(), QStringLiteral("OxaVMenu"));
    QCOMPARE(menu.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(menu.getFontToken(), OxaFont::Token::Default);
    QVERIFY(qobject_cast<QVBoxLayout *>(menu.layout()));
    QCOMPARE(menu.layout()->spacing(), 0);
    QCOMPARE(menu.layout()->contentsMargins(), QMargins());
    QCOMPARE(menu.count(), 0);
}

void tst_OxaVMenu::setsUpAnItem()
{
    OxaVMenu menu;
    menu.addSpacer(1);
    const OxaSvgPushButton *item = menu.addMenuItem(&doNothing).get();
    QCOMPARE(menu.count(), 2);
    QCOMPARE(item->parent(), &menu);
    QCOMPARE(item->objectName(), QStringLiteral("menu_item_1"));
    QCOMPARE(item->getAccessibleRole(), QAccessible::MenuItem);
    const OxaCSSData style = item->getOxaCSS();
    QCOMPARE(style.backgroundColorSetName, itemColors.name);
    QCOMPARE(style.textColorSetName, textColors.name);
    QCOMPARE(style.borderColorSetName, itemColors.name);
    QVERIFY(style.borderTop && style.borderRight && style.borderBottom && style.borderLeft);
    QCOMPARE(int(style.borderWidth), 1);
    QVERIFY(item->styleSheet().contains(QLatin1String("#ff204060")));
    QCOMPARE(item->getTextHorAlign(), OxaEnum::HorAlign::LeftAlign);
    QCOMPARE(item->getTextRightPadding(), 12);
    QCOMPARE(item->minimumSize(), QSize(240, 40));
    QCOMPARE(item->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(item->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QVERIFY(!item->isCheckable());
    QCOMPARE(item->getSvgIconAlignment(), OxaEnum::Alignment::Left);
    QCOMPARE(item->getSvgIconPadding(), QMargins(12, 0, 12, 0));
}

void tst_OxaVMenu::givesItemsItsFont()
{
    OxaVMenu menu;
    QFont large = menu.font();
    large.setPixelSize(31);
    menu.setFont(large);
    QCOMPARE(menu.addMenuItem(&doNothing)->font().pixelSize(), 31);
}

void tst_OxaVMenu::givesTheFocusToItsFirstItem()
{
    OxaVMenu menu;
    menu.show(); // Items that are added now are shown later.
    const auto first = menu.addMenuItem(&doNothing);
    menu.addMenuItem(&doNothing);
    QCOMPARE(menu.focusProxy(), first.get());
}

void tst_OxaVMenu::keepsTheFocusIfSomethingElseComesFirst_data()
{
    QTest::addColumn<bool>("isSpace");
    QTest::newRow("a title") << false;
    QTest::newRow("space") << true;
}

void tst_OxaVMenu::keepsTheFocusIfSomethingElseComesFirst()
{
    QFETCH(const bool, isSpace);
    OxaVMenu menu;
    if (isSpace)
        menu.addSpacer(3);
    else
        menu.addSectionTitle();
    menu.addMenuItem(&doNothing);
    QVERIFY(!menu.focusProxy());
}

void tst_OxaVMenu::passesTheFocusOnToAnyButtonThatTakesIt()
{
    QWidget window;
    window.resize(300, 300);
    OxaVMenu menu(&window);
    menu.addMenuItem(doNothing);
    OxaSvgPushButton *second = menu.addButton();
    QPushButton third;
    menu.addWidget(&third, 0, {});
    window.show();
    QPointer<QWidget> first = menu.focusProxy();
    first->hide();
    QCOMPARE(menu.focusProxy(), second);
    second->hide();
    QCOMPARE(menu.focusProxy(), &third);
    delete first;
    second->show();
    QCOMPARE(menu.focusProxy(), second);
    third.setParent(nullptr);
}

void tst_OxaVMenu::callsTheFunctionOfAnItem()
{
    OxaVMenu menu;
    int calls = 0;
    const auto item = menu.addMenuItem([&calls] { ++calls; });
    const auto silent = menu.addMenuItem({});
    item->click();
    silent->click();
    item->click();
    QCOMPARE(calls, 2);
}

void tst_OxaVMenu::isDeletedInTheFunctionOfAnItem()
{
    auto *menu = new OxaVMenu;
    const QPointer<OxaVMenu> guard(menu);
    QString text = QStringLiteral("kept until the function ends");
    QString read;
    const auto item = menu->addMenuItem([menu, text, &read] {
        delete menu;
        read = text;
    });
    QTest::mouseClick(item.get(), Qt::LeftButton);
    QVERIFY(!guard);
    QVERIFY(!item.get());
    QCOMPARE(read, text);
}

void tst_OxaVMenu::isClearedInTheFunctionOfAnItem()
{
    OxaVMenu menu;
    const auto item = menu.addMenuItem([&menu] { menu.clear(); });
    QTest::mouseClick(item.get(), Qt::LeftButton);
    QVERIFY(!item.get());
    QCOMPARE(menu.count(), 0);
}

void tst_OxaVMenu::limitsButtonsAndTitlesToItsMaximumWidth()
{
    OxaVMenu menu;
    menu.setMaximumWidth(310);
    const OxaSvgAnchorButton *anchor = menu.addAnchorButton();
    const OxaSvgLabel *title = menu.addSectionTitle();
    QVERIFY(anchor->isCheckable());
    QCOMPARE(title->getFontToken(), OxaFont::Token::BodySecondary);
    int index = 0;
    for (const QWidget *widget :
         { static_cast<const QWidget *>(anchor), static_cast<const QWidget *>(title),
           static_cast<const QWidget *>(menu.addButton()) }) {
        QCOMPARE(menu.layout()->itemAt(index++)->widget(), widget);
        QCOMPARE(widget->parent(), &menu);
        QCOMPARE(widget->maximumWidth(), 310);
        QCOMPARE(widget->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
        QCOMPARE(widget->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    }
}

void tst_OxaVMenu::showsASeparatorInItsOwnColorAtOnce()
{
    OxaVMenu menu;
    OxaSeparator *separator = menu.addSeparator(newLine.name);
    QCOMPARE(separator->getColorSetName(), newLine.name);
    menu.resize(20, 11);
    const QImage image = Pixels::render(menu);
    QCOMPARE(Pixels::boundsNear(image, newLine.normal), QRect(0, 5, 20, 1));
}

void tst_OxaVMenu::leavesASeparatorWithoutAColorSetItsOwn()
{
    OxaVMenu menu;
    OxaSeparator *separator = menu.addSeparator(QString(), 0);
    QCOMPARE(separator->getColorSetName(), oldLine.name);
    QCOMPARE(separator->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(menu.layout()->itemAt(0)->widget(), separator);
    QCOMPARE(menu.layout()->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_OxaVMenu::insetsASeparator_data()
{
    QTest::addColumn<int>("inset");
    QTest::addColumn<int>("width");
    QTest::newRow("by 10 pixels") << 10 << 300 - 20 - 7;
    QTest::newRow("by 1 pixel") << 1 << 300 - 2 - 7;
    QTest::newRow("by more than there is") << 200 << 0;
}

void tst_OxaVMenu::insetsASeparator()
{
    QFETCH(const int, inset);
    QFETCH(const int, width);
    OxaVMenu menu;
    menu.setMaximumWidth(300);
    menu.setMargin(QMargins(3, 50, 4, 60));
    const OxaSeparator *separator = menu.addSeparator(newLine.name, inset);
    QCOMPARE(separator->minimumWidth(), width);
    QCOMPARE(separator->maximumWidth(), width);
    QCOMPARE(menu.layout()->itemAt(0)->alignment(), Qt::AlignHCenter);
}

void tst_OxaVMenu::addsSpace()
{
    OxaVMenu menu;
    menu.addSpacer(17);
    const QSpacerItem *spacer = menu.layout()->itemAt(0)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(1, 17));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void tst_OxaVMenu::addsOtherWidgets()
{
    OxaVMenu menu;
    auto *widget = new QWidget;
    menu.addWidget(widget, 3, Qt::AlignRight);
    QCOMPARE(widget->parent(), &menu);
    QCOMPARE(static_cast<QVBoxLayout *>(menu.layout())->stretch(0), 3);
    QCOMPARE(menu.layout()->itemAt(0)->alignment(), Qt::AlignRight);
}

void tst_OxaVMenu::deletesEverythingWhenItIsCleared()
{
    OxaVMenu menu;
    const QPointer<QWidget> other(new QWidget);
    const auto item = menu.addMenuItem(&doNothing);
    const QPointer<QWidget> separator(menu.addSeparator());
    menu.addSpacer(3);
    menu.addWidget(other);
    QCOMPARE(menu.count(), 4);
    menu.clear();
    QCOMPARE(menu.count(), 0);
    QVERIFY(!item.get() && !separator && !other);
    QVERIFY(!menu.focusProxy());
}

void tst_OxaVMenu::givesTheFocusToTheFirstItemAfterItWasCleared()
{
    OxaVMenu menu;
    menu.addMenuItem(&doNothing);
    menu.clear();
    const auto item = menu.addMenuItem(&doNothing);
    QCOMPARE(item->objectName(), QStringLiteral("menu_item_0"));
    QCOMPARE(menu.focusProxy(), item.get());
}

void tst_OxaVMenu::mirrorsItsMargins()
{
    const LayoutDirectionGuard direction(Qt::RightToLeft);
    OxaVMenu menu;
    menu.setMargin(QMargins(1, 2, 3, 4));
    menu.setSpacing(5);
    QCOMPARE(menu.layout()->contentsMargins(), QMargins(3, 2, 1, 4));
    QCOMPARE(menu.layout()->spacing(), 5);
}

void tst_OxaVMenu::setsItsBackgroundAndKeepsTheRest()
{
    OxaVMenu menu;
    menu.setBorderRadius(9);
    menu.setBackgroundColorSet(itemColors.name);
    QCOMPARE(menu.getOxaCSS().backgroundColorSetName, itemColors.name);
    QCOMPARE(int(menu.getOxaCSS().borderRadius), 9);
    menu.resize(60, 60);
    const QImage image = Pixels::render(menu);
    QCOMPARE(image.pixelColor(30, 30), itemColors.normal);
    // A round corner lets the window through.
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
}

void tst_OxaVMenu::setsItsRadiusAndKeepsTheRest()
{
    OxaVMenu menu;
    menu.setCSS(QStringLiteral("$backgroundColors: mainList-item; $borderTopLeftRadius: 3;"));
    menu.setBorderRadius(12);
    const OxaCSSData style = menu.getOxaCSS();
    QCOMPARE(style.backgroundColorSetName, itemColors.name);
    QVERIFY(style.borderTop && style.borderRight && style.borderBottom && style.borderLeft);
    QCOMPARE(int(style.borderWidth), 1);
    QCOMPARE(int(style.borderRadius), 12);
    QCOMPARE(style.radiusCorner, 0);
}

UIELEMENTS_TEST_MAIN(tst_OxaVMenu)
#include "tst_oxavmenu.moc"

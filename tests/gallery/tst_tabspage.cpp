// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaSlider.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QLayout>

#include <looks/ThemeSwitcher.h>
#include <shell/Page.h>
#include <shell/PageRegistry.h>
#include <specimens/EmissionLog.h>

namespace {

/// The page in a window that is shown.
struct TabsWindow
{
    TabsWindow()
    {
        window.resize(1000, 800);
        page->resize(window.size());
        window.show();
    }

    void click(const char *button) const { Controls::withText(*page, button)->click(); }
    QString log() const { return page->findChild<EmissionLog *>()->toPlainText(); }
    QString shownText() const
    {
        const auto *label = qobject_cast<OxaLabel *>(pages->currentWidget());
        return label ? label->text() : QString();
    }

    QWidget window;
    Page *page = findPageEntry(QStringLiteral("tabs"))->make(&window);
    OxaTabBar *bar = page->findChild<OxaTabBar *>();
    OxaStackedWidget *pages = page->findChild<OxaStackedWidget *>();
    OxaMenu *menu = page->findChild<OxaMenu *>();
};

/// Returns the colour of the most opaque pixel of \a icon.
QColor inkOf(const QIcon &icon)
{
    const QImage image = icon.pixmap(QSize(16, 16)).toImage();
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > ink.alpha())
                ink = image.pixelColor(x, y);
        }
    }
    return ink;
}

} // namespace

/// The page Tabs and menus.
class tst_TabsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void showsThePageOfTheTabThatIsClicked();
    void removesTheCurrentTabWithItsPage();
    void stopsAddingWhereTheBarIsFull();
    void startsAgainAfterAllTabsWereRemoved();
    void leavesRoomForLargerTexts();
    void setsThePaddingAndTheSpacingOfTheBar();
    void checksOneOfTheTabsWithIcons();
    void tintsTheIconsOfAMenuWithTheTheme();
    void tellsWhichItemOfAVerticalMenuWasChosen();
};

void tst_TabsPage::cleanup()
{
    GalleryApplication::get()->themeSwitcher()->setAppearance(ThemeSwitcher::Appearance::Light);
    GalleryApplication::get()->textSettings()->setFontScale(1.0F);
}

void tst_TabsPage::showsThePageOfTheTabThatIsClicked()
{
    const TabsWindow shown;
    QCOMPARE(shown.shownText(), QStringLiteral("The page of the tab Chat."));
    shown.bar->getTab(2)->click();
    QCOMPARE(shown.shownText(), QStringLiteral("The page of the tab Members."));
    QCOMPARE(shown.log(), QStringLiteral("currentChanged(2)\ntabClicked(0, 2)"));
}

void tst_TabsPage::removesTheCurrentTabWithItsPage()
{
    const TabsWindow shown;
    shown.bar->setCurrentIndex(1);
    shown.click("Remove the current one");
    QCOMPARE(shown.bar->count(), 3);
    QCOMPARE(shown.pages->count(), 3);
    QCOMPARE(shown.shownText(), QStringLiteral("The page of the tab Chat."));
    shown.click("Remove the current one");
    QCOMPARE(shown.bar->tabText(0), QStringLiteral("Members"));
    QCOMPARE(shown.shownText(), QStringLiteral("The page of the tab Members."));
}

void tst_TabsPage::stopsAddingWhereTheBarIsFull()
{
    const TabsWindow shown;
    const auto *add = Controls::withText(*shown.page, "Add a tab");
    for (int i = shown.bar->count(); i < 10; ++i) {
        QVERIFY(add->isEnabled());
        shown.click("Add a tab");
    }
    QVERIFY(!add->isEnabled());
    QCOMPARE(shown.pages->count(), 10);
    shown.click("Remove the current one");
    QVERIFY(add->isEnabled());
}

void tst_TabsPage::startsAgainAfterAllTabsWereRemoved()
{
    const TabsWindow shown;
    shown.click("Remove all");
    QCOMPARE(shown.log(), QStringLiteral("currentChanged(-1)"));
    QCOMPARE(shown.pages->count(), 0);
    for (const char *button : { "Remove the current one", "Remove all" })
        QVERIFY2(!Controls::withText(*shown.page, button)->isEnabled(), button);
    shown.click("Add a tab");
    shown.bar->getTab(0)->click();
    QCOMPARE(shown.shownText(), QStringLiteral("The page of the tab Tasks."));
    QVERIFY(Controls::withText(*shown.page, "Remove the current one")->isEnabled());
}

void tst_TabsPage::leavesRoomForLargerTexts()
{
    const TabsWindow shown;
    const auto barWidth = [&shown] { return shown.bar->getTab(3)->geometry().right(); };
    const int before = barWidth();
    GalleryApplication::get()->textSettings()->setFontScale(1.5F);
    QTRY_VERIFY(barWidth() > before);
    const auto bars = shown.page->findChildren<OxaTabBar *>();
    for (const OxaTabBar *bar : bars) {
        for (int i = 0; i < bar->count(); ++i) {
            const OxaPushButton *tab = bar->getTab(i);
            const int text = tab->fontMetrics().horizontalAdvance(tab->text());
            QTRY_VERIFY2(tab->width() >= text + 2 * bar->getHorizontalPadding(),
                         qPrintable(tab->text()));
        }
    }
}

void tst_TabsPage::setsThePaddingAndTheSpacingOfTheBar()
{
    const TabsWindow shown;
    auto *padding = Controls::called<OxaSlider>(*shown.page, "horizontalPadding");
    QCOMPARE(padding->value(), shown.bar->getHorizontalPadding());
    padding->setValue(4);
    QCOMPARE(shown.bar->getHorizontalPadding(), 4);
    Controls::called<OxaSlider>(*shown.page, "setTabsSpacing()")->setValue(8);
    QCOMPARE(shown.bar->layout()->spacing(), 8);
}

void tst_TabsPage::checksOneOfTheTabsWithIcons()
{
    const TabsWindow shown;
    const auto bars = shown.page->findChildren<OxaTabBar *>();
    QCOMPARE(bars.size(), 3);
    for (OxaTabBar *bar : bars) {
        bar->getTab(1)->click();
        QVERIFY(bar->getTab(1)->isChecked() && !bar->getTab(0)->isChecked());
        QCOMPARE(bar->currentIndex(), 1);
    }
    QVERIFY(bars[2]->getTab(1)->isBadgeVisible());
}

void tst_TabsPage::tintsTheIconsOfAMenuWithTheTheme()
{
    const TabsWindow shown;
    ThemeSwitcher *switcher = GalleryApplication::get()->themeSwitcher();
    for (const auto appearance :
         { ThemeSwitcher::Appearance::Dark, ThemeSwitcher::Appearance::HighContrast }) {
        switcher->setAppearance(appearance);
        const QColor text = OxaThemeUtils::getColorSet("listitem-textprimary",
                                                       OxaThemeUtils::AppThemeType::Global)
                                    .normal;
        QCOMPARE(inkOf(shown.menu->actions().constFirst()->icon()), text);
    }
}

void tst_TabsPage::tellsWhichItemOfAVerticalMenuWasChosen()
{
    const TabsWindow shown;
    auto *menu = shown.page->findChild<OxaVMenu *>();
    Controls::withText<OxaSvgPushButton>(*menu, "Lock")->click();
    const auto labels = shown.page->findChildren<OxaLabel *>();
    const auto tells = [](const OxaLabel *label) {
        return label->text() == QLatin1String("Chosen: Lock");
    };
    QCOMPARE(std::count_if(labels.begin(), labels.end(), tells), 1);
    Controls::called<OxaSlider>(*shown.page, "setSpacing()")->setValue(6);
    QCOMPARE(menu->layout()->spacing(), 6);
}

GALLERY_TEST_MAIN(tst_TabsPage)
#include "tst_tabspage.moc"

// SPDX-License-Identifier: Apache-2.0
#include "Controls.h"
#include "GalleryTest.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/AlertBanner.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaMenu.h>
#include <UiElements/widgets/OxaStackedWidget.h>
#include <UiElements/widgets/OxaTabBar.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QSignalSpy>

#include <shell/GalleryWindow.h>
#include <shell/PageStack.h>
#include <specimens/EmissionLog.h>
#include <support/Guards.h>
#include <support/RealInput.h>
#include <widgets/Menus.h>

namespace {

/// A page in the gallery's window, shown and active.
class Shown
{
public:
    explicit Shown(const char *name)
    {
        m_window.showPage(QString::fromLatin1(name));
        m_window.show();
        isActive = QTest::qWaitForWindowActive(&m_window);
        page = m_window.findChild<PageStack *>()->currentWidget();
    }

    static bool type(const QStringList &keys) { return RealInput::typeKeys(keys); }

    QString focusedText() const
    {
        const auto *button = qobject_cast<const QAbstractButton *>(m_window.focusWidget());
        return button ? button->text() : QString();
    }

    QString log() const { return page->findChildren<EmissionLog *>().constLast()->toPlainText(); }

    bool isActive = false;
    QWidget *page = nullptr;

private:
    GalleryWindow m_window;
};

QMenu *openMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }

QString highlighted()
{
    const QMenu *menu = openMenu();
    return menu && menu->activeAction() ? menu->activeAction()->text() : QString();
}

const QString escape = QStringLiteral("Escape");
const QString space = QStringLiteral("space");
const QString down = QStringLiteral("Down");
const QString tab = QStringLiteral("Tab");
const QString backtab = QStringLiteral("shift+Tab");

} // namespace

/// The pages Tabs and menus and Notices with keys that come from the X server, where menus open as
/// they do for a user.
class tst_TabsPage_interaction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesFromTabToTabByArrowKeys();
    void reachesTheCurrentTabAgain();
    void opensAMenuByKeyAndReturnsTheFocus();
    void goesIntoASubmenuAndOut();
    void triggersAnActionByItsShortcut();
    void highlightsTheFirstActionThatIsChosen();
    void opensACopyOfTheMenuWithNothingHighlighted();
    void opensAMenuBelowItsButton_data();
    void opensAMenuBelowItsButton();
    void hidesATabByItsContextMenu();
    void disablesAndRemovesTabsByTheirContextMenus();
    void choosesAnItemOfAVerticalMenu();
    void followsTheLinksOfABanner();
};

void tst_TabsPage_interaction::goesFromTabToTabByArrowKeys()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    auto *bar = shown.page->findChild<OxaTabBar *>();
    bar->setTabVisible(1, false);
    bar->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ QStringLiteral("Right") }));
    QTRY_COMPARE(shown.focusedText(), QStringLiteral("Members"));
    QCOMPARE(bar->currentIndex(), 0);
    QVERIFY(shown.type({ space }));
    QTRY_COMPARE(bar->currentIndex(), 2);
    const auto *label = qobject_cast<OxaLabel *>(
            shown.page->findChild<OxaStackedWidget *>()->currentWidget());
    QCOMPARE(label->text(), QStringLiteral("The page of the tab Members."));
    QVERIFY(shown.type({ QStringLiteral("Left"), QStringLiteral("Left") }));
    QTRY_COMPARE(shown.focusedText(), QStringLiteral("Chat"));
}

void tst_TabsPage_interaction::reachesTheCurrentTabAgain()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    auto *bar = shown.page->findChild<OxaTabBar *>();
    bar->setCurrentIndex(2);
    bar->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ QStringLiteral("Right"), tab }));
    QTRY_COMPARE(shown.focusedText(), QStringLiteral("Add a tab"));
    QVERIFY(shown.type({ backtab }));
    QTRY_COMPARE(shown.focusedText(), QStringLiteral("Members"));
    QVERIFY(shown.type({ backtab }));
    QTRY_COMPARE(shown.focusedText(), QString());
}

void tst_TabsPage_interaction::opensAMenuByKeyAndReturnsTheFocus()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    auto *button = Controls::withText(*shown.page, "Options");
    button->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ space }));
    QTRY_COMPARE(highlighted(), QStringLiteral("Copy link"));
    QVERIFY(shown.type({ down }));
    QTRY_COMPARE(highlighted(), QStringLiteral("Download"));
    QVERIFY(shown.type({ escape }));
    QTRY_VERIFY(!openMenu());
    QTRY_VERIFY(button->hasFocus());
    QVERIFY(shown.type({ tab }));
    QTRY_VERIFY(!button->hasFocus());
}

void tst_TabsPage_interaction::goesIntoASubmenuAndOut()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    Controls::withText(*shown.page, "Options")->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ space, down, down, down, down }));
    QTRY_COMPARE(highlighted(), QStringLiteral("Notify me of"));
    QVERIFY(shown.type({ QStringLiteral("Right") }));
    QTRY_COMPARE(highlighted(), QStringLiteral("All messages"));
    QVERIFY(shown.type({ QStringLiteral("Left") }));
    QTRY_COMPARE(highlighted(), QStringLiteral("Notify me of"));
    QVERIFY(shown.type({ QStringLiteral("Right"), down, QStringLiteral("Return") }));
    QTRY_VERIFY(!openMenu());
    QTRY_VERIFY(shown.log().contains(QStringLiteral("triggered(“Mentions”)")));
}

void tst_TabsPage_interaction::triggersAnActionByItsShortcut()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    QVERIFY(shown.type({ QStringLiteral("ctrl+k") }));
    QTRY_COMPARE(shown.log(), QStringLiteral("triggered(“Copy link”)"));
}

void tst_TabsPage_interaction::highlightsTheFirstActionThatIsChosen()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    Controls::choose(*shown.page, "setFirstAction()", "Download");
    Controls::withText(*shown.page, "Options")->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ space }));
    QTRY_COMPARE(highlighted(), QStringLiteral("Download"));
    QVERIFY(shown.type({ escape }));
    QTRY_VERIFY(!openMenu());
}

void tst_TabsPage_interaction::opensACopyOfTheMenuWithNothingHighlighted()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    Controls::withText(*shown.page, "Options")->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ QStringLiteral("Menu") }));
    QTRY_VERIFY(openMenu());
    const QPointer<QMenu> copy = openMenu();
    const auto *menu = shown.page->findChild<OxaMenu *>();
    QVERIFY(copy != menu);
    QCOMPARE(copy->actions(), menu->actions());
    QCOMPARE(highlighted(), QString());
    QVERIFY(shown.type({ escape }));
    QTRY_VERIFY(!copy);
}

void tst_TabsPage_interaction::opensAMenuBelowItsButton_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void tst_TabsPage_interaction::opensAMenuBelowItsButton()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const LayoutDirectionGuard guard(direction);
    OxaPushButton button(QStringLiteral("Menu"));
    button.setGeometry(300, 100, 120, 40);
    button.show();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    OxaMenu *menu = Menus::make(&button);
    menu->addAction(QStringLiteral("A"));
    Menus::openBelow(menu, &button);
    const QRect below(button.mapToGlobal(QPoint(0, button.height())), button.size());
    QCOMPARE(menu->geometry().top(), below.top());
    if (direction == Qt::LeftToRight)
        QCOMPARE(menu->geometry().left(), below.left());
    else
        QCOMPARE(menu->geometry().right(), below.right());
    menu->close();
}

void tst_TabsPage_interaction::hidesATabByItsContextMenu()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    auto *bar = shown.page->findChild<OxaTabBar *>();
    bar->setFocus(Qt::TabFocusReason);
    QVERIFY(shown.type({ QStringLiteral("Menu") }));
    QTRY_COMPARE(highlighted(), QStringLiteral("Hide"));
    QVERIFY(shown.type({ QStringLiteral("Return") }));
    QTRY_VERIFY(bar->isTabHidden(0));
    bar->setFocus(Qt::TabFocusReason);
    QCOMPARE(shown.focusedText(), QStringLiteral("Files"));
}

void tst_TabsPage_interaction::disablesAndRemovesTabsByTheirContextMenus()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    auto *bar = shown.page->findChild<OxaTabBar *>();
    const auto choose = [bar](int index, const QStringList &keys) {
        return RealInput::click(*bar->getTab(index), QPoint(20, 20), 3)
                && QTest::qWaitFor([] { return openMenu() != nullptr; })
                && RealInput::typeKeys(keys + QStringList(QStringLiteral("Return")));
    };
    QVERIFY(choose(1, { down }));
    QTRY_VERIFY(!bar->isTabEnabled(1));
    QVERIFY(choose(2, { down, down }));
    QTRY_COMPARE(bar->count(), 3);
    QCOMPARE(bar->tabText(2), QStringLiteral("Meetings"));
    QCOMPARE(shown.page->findChild<OxaStackedWidget *>()->count(), 3);
    bar->setTabVisible(0, false);
    Controls::withText(*shown.page, "Show and enable all")->click();
    QVERIFY(!bar->isTabHidden(0) && bar->isTabEnabled(1));
}

void tst_TabsPage_interaction::choosesAnItemOfAVerticalMenu()
{
    const Shown shown("tabs");
    QVERIFY(shown.isActive);
    auto *menu = shown.page->findChild<OxaVMenu *>();
    menu->setFocus(Qt::TabFocusReason);
    QCOMPARE(shown.focusedText(), QStringLiteral("Search"));
    QVERIFY(shown.type({ tab, space }));
    const auto chosen = [&shown] {
        QStringList texts;
        const auto labels = shown.page->findChildren<OxaLabel *>();
        for (const OxaLabel *label : labels)
            texts += label->text();
        return texts.filter(QStringLiteral("Chosen: "));
    };
    QTRY_COMPARE(chosen(), QStringList { QStringLiteral("Chosen: Share") });
    QCOMPARE(shown.focusedText(), QStringLiteral("Share"));
    QVERIFY(shown.type({ backtab }));
    QTRY_COMPARE(shown.focusedText(), QStringLiteral("Search"));
    QVERIFY(shown.type({ backtab }));
    QTRY_COMPARE(shown.focusedText(), QString());
}

void tst_TabsPage_interaction::followsTheLinksOfABanner()
{
    const Shown shown("notices");
    QVERIFY(shown.isActive);
    Controls::choose(*shown.page, "alertText", "Long");
    auto *label = shown.page->findChild<AlertBanner *>()->findChild<QLabel *>(
            QStringLiteral("alertLabel"));
    const QSignalSpy followed(label, &QLabel::linkActivated);
    label->setFocus(Qt::TabFocusReason);
    const QString enter = QStringLiteral("Return");
    QVERIFY(shown.type({ tab, enter, tab, enter }));
    QTRY_COMPARE(followed.size(), 2);
    QCOMPARE(followed[0][0].toString(), QStringLiteral("who"));
    QCOMPARE(followed[1][0].toString(), QStringLiteral("stop"));
    QVERIFY(shown.type({ tab }));
    QTRY_COMPARE(shown.focusedText(), QStringLiteral("Close"));
}

GALLERY_TEST_MAIN(tst_TabsPage_interaction)
#include "tst_tabspage_interaction.moc"

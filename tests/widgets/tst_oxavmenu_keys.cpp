// SPDX-License-Identifier: Apache-2.0
#include "support/ColorSets.h"
#include "support/FocusLog.h"
#include "support/Guards.h"
#include "support/RealInput.h"
#include "support/TestApplication.h"
#include "support/Windows.h"

#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/widgets/ContainerWidget.h>
#include <UiElements/widgets/OxaVMenu.h>

#include <QLineEdit>
#include <QVBoxLayout>

namespace {

/// A window with a column between two fields.
template <typename Column>
class Window : public QWidget
{
public:
    Window()
    {
        before.setObjectName(QStringLiteral("before"));
        after.setObjectName(QStringLiteral("after"));
    }

    /// Shows the window with the focus on \a widget.
    bool appear(QWidget &widget)
    {
        auto *rows = new QVBoxLayout(this);
        for (QWidget *each : { static_cast<QWidget *>(&before), static_cast<QWidget *>(&column),
                               static_cast<QWidget *>(&after) })
            rows->addWidget(each);
        if (!Windows::activate(*this))
            return false;
        widget.setFocus();
        visited.clear();
        return true;
    }

    QLineEdit before;
    Column column;
    QLineEdit after;
    FocusLog visited;
};

/// A window with a menu of three items.
class MenuWindow : public Window<OxaVMenu>
{
public:
    MenuWindow()
    {
        int index = 0;
        for (const char *name : { "a", "b", "c" }) {
            items[index] = column.addMenuItem([this, name] {
                                     chosen += QLatin1String(name);
                                 }).get();
            items[index++]->setObjectName(QString::fromLatin1(name));
        }
    }

    OxaSvgPushButton *items[3];
    QString chosen;
};

/// A window with a container of three buttons.
class ContainerWindow : public Window<ContainerWidget>
{
public:
    ContainerWindow()
    {
        auto *rows = new QVBoxLayout(&column);
        for (const char *name : { "a", "b", "c" }) {
            auto *button = new OxaPushButton;
            button->setObjectName(QString::fromLatin1(name));
            rows->addWidget(button);
        }
        column.setupEventFilters();
    }
};

bool type(const char *keys)
{
    return RealInput::typeKeys(QString::fromLatin1(keys).split(QLatin1Char(' ')));
}

} // namespace

/// Columns of buttons in a real window, under a real keyboard.
class tst_OxaVMenuKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_stores.reset(); }

    void walksTheItemsOfAMenuByTab();
    void choosesItemsByKeys();
    void givesTheFocusOfAMenuToAnItemThatTakesIt_data();
    void givesTheFocusOfAMenuToAnItemThatTakesIt();
    void entersAContainerAtItsEndsAndLeavesItAtOnce();
    void movesInsideAContainerByArrowKeys();

private:
    std::unique_ptr<StoreGuard> m_stores;
};

void tst_OxaVMenuKeys::initTestCase()
{
    m_stores = std::make_unique<StoreGuard>(ColorSets::storeOf(
            { ColorSets::make(QStringLiteral("mainList-item"), { "#204060" }),
              ColorSets::make(QStringLiteral("oxa-menuItemButton-text"), { "#a0c0e0" }) }));
}

void tst_OxaVMenuKeys::walksTheItemsOfAMenuByTab()
{
    MenuWindow window;
    QVERIFY(window.appear(window.before));
    QVERIFY(type("Tab Tab Tab Tab shift+Tab shift+Tab shift+Tab shift+Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("a b c after c b a before"));
}

void tst_OxaVMenuKeys::choosesItemsByKeys()
{
    MenuWindow window;
    QVERIFY(window.appear(window.column));
    QVERIFY(window.items[0]->hasFocus());
    QVERIFY(type("space Tab Return Tab space"));
    QTRY_COMPARE(window.chosen, QStringLiteral("abc"));
}

void tst_OxaVMenuKeys::givesTheFocusOfAMenuToAnItemThatTakesIt_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("while the first is hidden") << true;
    QTest::newRow("while the first is disabled") << false;
}

void tst_OxaVMenuKeys::givesTheFocusOfAMenuToAnItemThatTakesIt()
{
    QFETCH(const bool, isHidden);
    MenuWindow window;
    QVERIFY(window.appear(window.before));
    const auto setUsable = [&window, isHidden](int index, bool usable) {
        if (isHidden)
            window.items[index]->setVisible(usable);
        else
            window.items[index]->setEnabled(usable);
    };
    setUsable(0, false);
    QVERIFY(type("Tab Tab Tab shift+Tab shift+Tab shift+Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("b c after c b before"));
    window.column.setFocus();
    QVERIFY(window.items[1]->hasFocus());
    setUsable(0, true);
    window.before.setFocus();
    window.column.setFocus();
    QVERIFY(window.items[0]->hasFocus());
}

void tst_OxaVMenuKeys::entersAContainerAtItsEndsAndLeavesItAtOnce()
{
    ContainerWindow window;
    QVERIFY(window.appear(window.before));
    QVERIFY(type("Tab Tab shift+Tab shift+Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("a after c before"));
}

void tst_OxaVMenuKeys::movesInsideAContainerByArrowKeys()
{
    ContainerWindow window;
    QVERIFY(window.appear(window.before));
    QVERIFY(type("Tab Down Down Down Left Right Up Tab"));
    QTRY_COMPARE(window.visited.names(), QStringLiteral("a b c b after"));
}

UIELEMENTS_TEST_MAIN(tst_OxaVMenuKeys)
#include "tst_oxavmenu_keys.moc"

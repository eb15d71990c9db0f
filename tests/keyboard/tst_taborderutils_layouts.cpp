// SPDX-License-Identifier: Apache-2.0
#include "support/TestMain.h"
#include "support/Windows.h"

#include <UiElements/keyboard/TabOrderUtils.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

/// A window with two buttons, and between them a layout of buttons A, B and C, a spacer and a
/// label. The focus chain begins with the two outer buttons.
class Window : public QWidget
{
public:
    Window() : before(QStringLiteral("<")), after(QStringLiteral(">"))
    {
        // The platform does not enforce a minimum size.
        row.setSizeConstraint(QLayout::SetNoConstraint);
        row.addWidget(&before);
        row.addWidget(&after);
        row.insertLayout(1, &items);
        for (const char *text : { "A", "B", "C" })
            items.addWidget(new QPushButton(QString::fromLatin1(text)));
        items.addSpacing(10);
        items.addWidget(new QLabel);
    }

    bool appear() { return Windows::activate(*this); }

    QWidget *item(int index) { return items.itemAt(index)->widget(); }

    /// Returns the texts of the buttons in the order of the focus chain.
    QString tabOrder() const
    {
        QString texts;
        const QWidget *widget = &before;
        do {
            if (const auto *button = qobject_cast<const QPushButton *>(widget))
                texts += button->text();
            widget = widget->nextInFocusChain();
        } while (widget != &before);
        return texts;
    }

    QHBoxLayout row { this };
    QHBoxLayout items;
    QPushButton before;
    QPushButton after;
};

} // namespace

/// The items of a layout: their tab order, and which of them the focus goes to.
class tst_TabOrderUtilsLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chainsTheItemsBehindAWidget();
    void chainsInTheOrderOfTheLayout();
    void chainsNothingWithoutALayout();
    void chainsTheItemsBetweenTwoWidgets();
    void breaksTheChainAtAWidgetThatTakesNoFocus();
    void leavesTheChainAloneWithoutItems_data();
    void leavesTheChainAloneWithoutItems();
    void leavesTheChainAloneWhenAllItemsAreHidden();
    void findsTheItemThatHasTheFocus();
    void findsTheNextItem_data();
    void findsTheNextItem();
    void passesOverItemsThatTakeNoFocus();
    void answersMinusOneWithoutALayout();
    void findsTheFirstWidgetThatPasses();
    void asksAboutItemsWithoutAWidgetToo();
    void findsTheFirstItemThatTakesTheFocus();
    void findsNothingInALayoutThatShowsNothing();
};

void tst_TabOrderUtilsLayouts::chainsTheItemsBehindAWidget()
{
    Window window;
    QCOMPARE(window.tabOrder(), QStringLiteral("<>ABC"));
    TabOrderUtils::fixFocusChainFromLayout(&window.before, &window.items);
    QCOMPARE(window.tabOrder(), QStringLiteral("<ABC>"));
}

void tst_TabOrderUtilsLayouts::chainsInTheOrderOfTheLayout()
{
    Window window;
    window.items.insertItem(2, window.items.takeAt(0));
    TabOrderUtils::fixFocusChainFromLayout(&window.after, &window.items);
    QCOMPARE(window.tabOrder(), QStringLiteral("<>BCA"));
}

void tst_TabOrderUtilsLayouts::chainsNothingWithoutALayout()
{
    Window window;
    TabOrderUtils::fixFocusChainFromLayout(&window.before, nullptr);
    QCOMPARE(window.tabOrder(), QStringLiteral("<>ABC"));
    // Without a first widget the items are chained to each other.
    window.items.insertItem(2, window.items.takeAt(0));
    TabOrderUtils::fixFocusChainFromLayout(nullptr, &window.items);
    QCOMPARE(window.tabOrder(), QStringLiteral("<>BCA"));
}

void tst_TabOrderUtilsLayouts::chainsTheItemsBetweenTwoWidgets()
{
    Window window;
    // The label takes no focus: it would end the chain.
    delete window.item(4);
    QPushButton last(QStringLiteral("!"), &window);
    TabOrderUtils::setCompoundTabOrder(&window.after, &window.items, &last);
    QCOMPARE(window.tabOrder(), QStringLiteral("<>ABC!"));
    TabOrderUtils::setCompoundTabOrder(&last, &window.items, &window.after);
    QCOMPARE(window.tabOrder(), QStringLiteral("<!ABC>"));
}

void tst_TabOrderUtilsLayouts::breaksTheChainAtAWidgetThatTakesNoFocus()
{
    Window window;
    window.items.addItem(window.items.takeAt(0));
    window.items.insertItem(0, window.items.takeAt(1));
    TabOrderUtils::fixFocusChainFromLayout(&window.before, &window.items);
    // The items are C, B, the label and A, which stays where it was.
    QCOMPARE(window.tabOrder(), QStringLiteral("<CB>A"));
}

void tst_TabOrderUtilsLayouts::leavesTheChainAloneWithoutItems_data()
{
    QTest::addColumn<bool>("hasFirst");
    QTest::addColumn<bool>("hasLayout");
    QTest::addColumn<bool>("hasLast");
    QTest::addColumn<bool>("hasItems");
    QTest::newRow("no first widget") << false << true << true << true;
    QTest::newRow("no layout") << true << false << true << true;
    QTest::newRow("no last widget") << true << true << false << true;
    QTest::newRow("an empty layout") << true << true << true << false;
}

void tst_TabOrderUtilsLayouts::leavesTheChainAloneWithoutItems()
{
    QFETCH(const bool, hasFirst);
    QFETCH(const bool, hasLayout);
    QFETCH(const bool, hasLast);
    QFETCH(const bool, hasItems);
    Window window;
    // Not the order of the chain, so that any change of the chain is noticed.
    window.items.insertItem(2, window.items.takeAt(0));
    QHBoxLayout empty;
    QHBoxLayout *layout = hasItems ? &window.items : &empty;
    TabOrderUtils::setCompoundTabOrder(hasFirst ? window.item(2) : nullptr,
                                       hasLayout ? layout : nullptr,
                                       hasLast ? &window.after : nullptr);
    QCOMPARE(window.tabOrder(), QStringLiteral("<>ABC"));
}

void tst_TabOrderUtilsLayouts::leavesTheChainAloneWhenAllItemsAreHidden()
{
    Window window;
    for (const int i : { 0, 1, 2, 4 })
        window.item(i)->hide();
    TabOrderUtils::setCompoundTabOrder(&window.before, &window.items, &window.after);
    QCOMPARE(window.tabOrder(), QStringLiteral("<>ABC"));
    // The items alone are chained all the same.
    TabOrderUtils::fixFocusChainFromLayout(&window.before, &window.items);
    QCOMPARE(window.tabOrder(), QStringLiteral("<ABC>"));
}

void tst_TabOrderUtilsLayouts::findsTheItemThatHasTheFocus()
{
    Window window;
    QVERIFY(window.appear());
    window.before.setFocus();
    QCOMPARE(TabOrderUtils::getItemFocusIndexInLayout(&window.items), -1);
    window.item(1)->setFocus();
    QCOMPARE(TabOrderUtils::getItemFocusIndexInLayout(&window.items), 1);
    // A widget has the focus when its proxy does, and the lowest index counts.
    window.item(0)->setFocusProxy(window.item(1));
    QCOMPARE(TabOrderUtils::getItemFocusIndexInLayout(&window.items), 0);
}

void tst_TabOrderUtilsLayouts::findsTheNextItem_data()
{
    QTest::addColumn<int>("focused");
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("previous");
    QTest::newRow("no item has the focus") << -1 << 0 << 2;
    QTest::newRow("the first has it") << 0 << 1 << -1;
    QTest::newRow("one in the middle has it") << 1 << 2 << 0;
    QTest::newRow("the last has it") << 2 << -1 << 1;
}

void tst_TabOrderUtilsLayouts::findsTheNextItem()
{
    QFETCH(const int, focused);
    Window window;
    QVERIFY(window.appear());
    (focused == -1 ? &window.before : window.item(focused))->setFocus();
    QTEST(TabOrderUtils::getNextFocusableItemFocusIndexInLayout(&window.items), "next");
    QTEST(TabOrderUtils::getPreviousFocusableItemFocusInLayout(&window.items), "previous");
}

void tst_TabOrderUtilsLayouts::passesOverItemsThatTakeNoFocus()
{
    Window window;
    QVERIFY(window.appear());
    window.item(0)->setFocus();
    window.item(1)->setFocusPolicy(Qt::ClickFocus);
    QCOMPARE(TabOrderUtils::getNextFocusableItemFocusIndexInLayout(&window.items), 2);
    window.item(2)->setFocus();
    QCOMPARE(TabOrderUtils::getPreviousFocusableItemFocusInLayout(&window.items), 0);
    window.item(0)->hide();
    QCOMPARE(TabOrderUtils::getPreviousFocusableItemFocusInLayout(&window.items), -1);
}

void tst_TabOrderUtilsLayouts::answersMinusOneWithoutALayout()
{
    QCOMPARE(TabOrderUtils::getItemFocusIndexInLayout(nullptr), -1);
    QCOMPARE(TabOrderUtils::getNextFocusableItemFocusIndexInLayout(nullptr), -1);
    QCOMPARE(TabOrderUtils::getPreviousFocusableItemFocusInLayout(nullptr), -1);
}

void tst_TabOrderUtilsLayouts::findsTheFirstWidgetThatPasses()
{
    Window window;
    const auto isButton = [](QWidget *widget) { return qobject_cast<QPushButton *>(widget); };
    const auto isLabel = [](QWidget *widget) { return qobject_cast<QLabel *>(widget); };
    const auto isField = [](QWidget *widget) { return qobject_cast<QLineEdit *>(widget); };
    const auto first = TabOrderUtils::getFirstItemInLayoutIf;
    QCOMPARE(first(&window.items, isButton, false), window.item(0));
    QCOMPARE(first(&window.items, isButton, true), window.item(2));
    QCOMPARE(first(&window.items, isLabel, false), window.item(4));
    QCOMPARE(first(&window.items, isField, false), nullptr);
    QCOMPARE(first(nullptr, isButton, false), nullptr);
}

void tst_TabOrderUtilsLayouts::asksAboutItemsWithoutAWidgetToo()
{
    Window window;
    std::vector<QWidget *> asked;
    const auto isNothing = [&asked](QWidget *widget) {
        asked.push_back(widget);
        return !widget;
    };
    QCOMPARE(TabOrderUtils::getFirstItemInLayoutIf(&window.items, isNothing, true), nullptr);
    const std::vector<QWidget *> expected { window.item(4), nullptr };
    QCOMPARE(asked, expected);
}

void tst_TabOrderUtilsLayouts::findsTheFirstItemThatTakesTheFocus()
{
    Window window;
    QCOMPARE(TabOrderUtils::getFirstFocusableItemInLayout(&window.items, false), nullptr);
    window.show();
    QCOMPARE(TabOrderUtils::getFirstFocusableItemInLayout(&window.items, false), window.item(0));
    QCOMPARE(TabOrderUtils::getFirstFocusableItemInLayout(&window.items, true), window.item(2));
    window.item(0)->setEnabled(false);
    window.item(2)->hide();
    QCOMPARE(TabOrderUtils::getFirstFocusableItemInLayout(&window.items, false), window.item(1));
    QCOMPARE(TabOrderUtils::getFirstFocusableItemInLayout(&window.items, true), window.item(1));
    QCOMPARE(TabOrderUtils::getFirstFocusableItemInLayout(nullptr, true), nullptr);
}

void tst_TabOrderUtilsLayouts::findsNothingInALayoutThatShowsNothing()
{
    const auto isAny = [](QWidget *) { return true; };
    Window window;
    QCOMPARE(TabOrderUtils::getFirstItemInLayoutIf(&window.items, isAny, false), window.item(0));
    for (const int i : { 0, 1, 2, 4 })
        window.item(i)->hide();
    QVERIFY(window.items.isEmpty());
    QCOMPARE(TabOrderUtils::getFirstItemInLayoutIf(&window.items, isAny, false), nullptr);
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_TabOrderUtilsLayouts)
#include "tst_taborderutils_layouts.moc"

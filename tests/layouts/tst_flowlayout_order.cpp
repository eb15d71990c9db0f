// SPDX-License-Identifier: Apache-2.0
#include "PlainFlow.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

#include <QPushButton>
#include <QTest>

namespace {

/// A widget whose layout has letters at given positions. Each is 20 pixels wide and 11 high.
class Placed : public Letters
{
public:
    explicit Placed(const std::vector<QPoint> &centres) : Letters(names(int(centres.size())))
    {
        for (std::size_t i = 0; i < centres.size(); ++i)
            widget(int(i))->setGeometry(QRect(centres[i] - QPoint(9, 5), QSize(20, 11)));
    }

    QWidget *widget(int index) const { return layout.widgetAt(index); }

    /// Returns the letter that \a key leads to from \a letter; empty when it leads nowhere.
    QString next(char letter, Qt::Key key) const
    {
        const auto *label = qobject_cast<QLabel *>(layout.nextWidget(widget(letter - 'A'), key));
        return label ? label->text() : QString();
    }

private:
    static QString names(int count)
    {
        return QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ").mid(0, count);
    }
};

/// A grid of \a rows rows of three, 30 pixels apart.
std::vector<QPoint> grid(int rows)
{
    std::vector<QPoint> centres;
    for (int i = 0; i < 3 * rows; ++i)
        centres.emplace_back(100 + 30 * (i % 3), 100 + 30 * (i / 3));
    return centres;
}

/// A window with a layout of buttons, one for each letter.
class Buttons : public QWidget
{
public:
    explicit Buttons(const QString &letters)
    {
        for (const QChar letter : letters)
            layout.addWidget(new QPushButton(letter));
    }

    void sort()
    {
        layout.sort([](QLayoutItem *a, QLayoutItem *b) { return textOf(a) < textOf(b); });
    }

    QString order() const
    {
        QString letters;
        for (int i = 0; i < layout.count(); ++i)
            letters += textOf(layout.itemAt(i));
        return letters;
    }

    /// Returns the letters in the order of the focus chain, from the first item on.
    QString tabOrder() const
    {
        const QWidget *first = nullptr;
        for (int i = 0; i < layout.count() && !first; ++i)
            first = layout.widgetAt(i);
        QString letters;
        const QWidget *widget = first;
        do {
            if (const auto *button = qobject_cast<const QPushButton *>(widget))
                letters += button->text();
            widget = widget->nextInFocusChain();
        } while (widget != first);
        return letters;
    }

    static QString textOf(QLayoutItem *item)
    {
        const auto *button = qobject_cast<QPushButton *>(item->widget());
        return button ? button->text() : QStringLiteral("-");
    }

    PlainFlow layout { this, QMargins(), 0, 0 };
};

} // namespace

Q_DECLARE_METATYPE(std::vector<QPoint>)

/// The order of the items: how keys move through it, and how it is sorted.
class tst_FlowLayoutOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesToTheNeighbour_data();
    void goesToTheNeighbour();
    void takesTheNearestCentre_data();
    void takesTheNearestCentre();
    void roundsHalfOfAnOddHeightDown_data();
    void roundsHalfOfAnOddHeightDown();
    void goesFourStepsAtMostByAPage();
    void measuresEachStepOfAPageFromTheOneBefore();
    void leadsNowhereFromAWidgetOutside();
    void leadsNowhereFromNull();
    void passesOverWhatIsNoWidget();
    void countsHiddenWidgets();
    void leadsNowhereAtADistanceBeyondInt();

    void sortsItemsAndTabOrder_data();
    void sortsItemsAndTabOrder();
    void sortsAnyOrder();
    void invalidates();
    void keepsEqualItems();
    void interruptsTheTabOrderAtWhatHasNoWidget();
    void chainsARepeatedWidgetOnce();
};

void tst_FlowLayoutOrder::goesToTheNeighbour_data()
{
    QTest::addColumn<char>("letter");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("next");
    QTest::newRow("left") << 'B' << Qt::Key_Left << QStringLiteral("A");
    QTest::newRow("left of the first") << 'A' << Qt::Key_Left << QString();
    QTest::newRow("left, into the row above") << 'D' << Qt::Key_Left << QStringLiteral("C");
    QTest::newRow("right") << 'B' << Qt::Key_Right << QStringLiteral("C");
    QTest::newRow("right of the last") << 'I' << Qt::Key_Right << QString();
    QTest::newRow("right, into the row below") << 'C' << Qt::Key_Right << QStringLiteral("D");
    QTest::newRow("up") << 'E' << Qt::Key_Up << QStringLiteral("B");
    QTest::newRow("up from the top") << 'B' << Qt::Key_Up << QString();
    QTest::newRow("down") << 'E' << Qt::Key_Down << QStringLiteral("H");
    QTest::newRow("down from the bottom") << 'H' << Qt::Key_Down << QString();
    QTest::newRow("page down stops in the last row")
            << 'B' << Qt::Key_PageDown << QStringLiteral("H");
    QTest::newRow("page down from the middle") << 'F' << Qt::Key_PageDown << QStringLiteral("I");
    QTest::newRow("page down from the bottom") << 'G' << Qt::Key_PageDown << QString();
    QTest::newRow("page up stops in the first row") << 'I' << Qt::Key_PageUp << QStringLiteral("C");
    QTest::newRow("page up from the top") << 'C' << Qt::Key_PageUp << QString();
    QTest::newRow("home") << 'E' << Qt::Key_Home << QString();
    QTest::newRow("tab") << 'E' << Qt::Key_Tab << QString();
    QTest::newRow("a letter") << 'E' << Qt::Key_A << QString();
}

void tst_FlowLayoutOrder::goesToTheNeighbour()
{
    QFETCH(const char, letter);
    QFETCH(const Qt::Key, key);
    const Placed placed(grid(3));
    QTEST(placed.next(letter, key), "next");
}

void tst_FlowLayoutOrder::takesTheNearestCentre_data()
{
    QTest::addColumn<std::vector<QPoint>>("centres");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("next");
    const std::vector<QPoint> near { { 100, 100 }, { 100, 160 }, { 110, 120 } };
    QTest::newRow("down, later in the list") << near << Qt::Key_Down << QStringLiteral("C");
    const std::vector<QPoint> across { { 100, 100 }, { 180, 120 }, { 100, 170 } };
    QTest::newRow("down, a little further down but less far away")
            << across << Qt::Key_Down << QStringLiteral("C");
    const std::vector<QPoint> below { { 100, 100 }, { 90, 130 }, { 110, 130 }, { 100, 200 } };
    QTest::newRow("down, the last of equally near ones")
            << below << Qt::Key_Down << QStringLiteral("C");
    const std::vector<QPoint> above { { 100, 100 }, { 90, 70 }, { 110, 70 }, { 100, 0 } };
    QTest::newRow("up, the first of equally near ones")
            << above << Qt::Key_Up << QStringLiteral("B");
}

void tst_FlowLayoutOrder::takesTheNearestCentre()
{
    QFETCH(const std::vector<QPoint>, centres);
    QFETCH(const Qt::Key, key);
    const Placed placed(centres);
    QTEST(placed.next('A', key), "next");
}

void tst_FlowLayoutOrder::roundsHalfOfAnOddHeightDown_data()
{
    QTest::addColumn<int>("distance");
    QTest::addColumn<QString>("next");
    QTest::newRow("in the same row") << 0 << QString();
    QTest::newRow("within half the height, which is 11") << 4 << QString();
    QTest::newRow("at half the height") << 5 << QString();
    QTest::newRow("a pixel beyond") << 6 << QStringLiteral("B");
}

void tst_FlowLayoutOrder::roundsHalfOfAnOddHeightDown()
{
    QFETCH(const int, distance);
    const Placed below({ { 100, 100 }, { 130, 100 + distance } });
    QTEST(below.next('A', Qt::Key_Down), "next");
    const Placed above({ { 100, 100 }, { 130, 100 - distance } });
    QTEST(above.next('A', Qt::Key_Up), "next");
}

void tst_FlowLayoutOrder::goesFourStepsAtMostByAPage()
{
    const Placed placed(grid(7));
    QCOMPARE(placed.next('B', Qt::Key_PageDown), QStringLiteral("N"));
    QCOMPARE(placed.next('T', Qt::Key_PageUp), QStringLiteral("H"));
    QCOMPARE(placed.next('N', Qt::Key_PageDown), QStringLiteral("T"));
}

void tst_FlowLayoutOrder::measuresEachStepOfAPageFromTheOneBefore()
{
    // A staircase: each step is nearest to the one before, not to the start.
    const Placed placed({ { 100, 100 }, { 150, 130 }, { 200, 160 }, { 100, 400 } });
    QCOMPARE(placed.next('A', Qt::Key_Down), QStringLiteral("B"));
    QCOMPARE(placed.next('B', Qt::Key_Down), QStringLiteral("C"));
    QCOMPARE(placed.next('A', Qt::Key_PageDown), QStringLiteral("D"));
}

void tst_FlowLayoutOrder::leadsNowhereFromAWidgetOutside()
{
    const Placed placed(grid(3));
    QWidget outside;
    for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_PageDown })
        QCOMPARE(placed.layout.nextWidget(&outside, key), nullptr);
}

void tst_FlowLayoutOrder::leadsNowhereFromNull()
{
    Placed placed(grid(1));
    QCOMPARE(placed.layout.nextWidget(nullptr, Qt::Key_Left), nullptr);
    // Null matches the first item without a widget, which has no place on the screen.
    placed.layout.addItem(new Blocks::Item(QSize(10, 10)));
    for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown })
        QCOMPARE(placed.layout.nextWidget(nullptr, key), nullptr);
}

void tst_FlowLayoutOrder::passesOverWhatIsNoWidget()
{
    Placed placed({ { 100, 100 } });
    placed.layout.addItem(new Blocks::Item(QSize(10, 10)));
    placed.layout.addWidget(new QLabel(QStringLiteral("C")));
    placed.widget(2)->setGeometry(90, 200, 20, 10);
    QCOMPARE(placed.next('A', Qt::Key_Down), QStringLiteral("C"));
    QCOMPARE(placed.next('C', Qt::Key_Up), QStringLiteral("A"));
    // To the side there is an item, but no widget.
    QCOMPARE(placed.next('A', Qt::Key_Right), QString());
}

void tst_FlowLayoutOrder::countsHiddenWidgets()
{
    const Placed placed(grid(3));
    placed.widget(4)->hide();
    QCOMPARE(placed.next('B', Qt::Key_Down), QStringLiteral("E"));
    QCOMPARE(placed.next('D', Qt::Key_Right), QStringLiteral("E"));
}

void tst_FlowLayoutOrder::leadsNowhereAtADistanceBeyondInt()
{
    const Placed near({ { 100, 100 }, { 100, 46440 } });
    QCOMPARE(near.next('A', Qt::Key_Down), QStringLiteral("B"));
    const Placed far({ { 100, 100 }, { 100, 46441 } });
    QCOMPARE(far.next('A', Qt::Key_Down), QString());
    const Placed farther({ { 100, 100 }, { 100, 100000 } });
    QCOMPARE(farther.next('A', Qt::Key_Down), QString());
}

void tst_FlowLayoutOrder::sortsItemsAndTabOrder_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("none") << QString();
    QTest::newRow("one") << QStringLiteral("A");
    QTest::newRow("sorted") << QStringLiteral("ABC");
    QTest::newRow("backwards") << QStringLiteral("EDCBA");
    QTest::newRow("mixed") << QStringLiteral("CAEBDF");
}

void tst_FlowLayoutOrder::sortsItemsAndTabOrder()
{
    QFETCH(const QString, letters);
    Buttons buttons(letters);
    QString sorted = letters;
    std::sort(sorted.begin(), sorted.end());
    buttons.sort();
    QCOMPARE(buttons.order(), sorted);
    if (!letters.isEmpty())
        QCOMPARE(buttons.tabOrder(), sorted);
}

void tst_FlowLayoutOrder::sortsAnyOrder()
{
    std::mt19937 generator = seededGenerator();
    const QString sorted = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    for (int i = 0; i < 50; ++i) {
        QString letters = sorted;
        std::shuffle(letters.begin(), letters.end(), generator);
        Buttons buttons(letters);
        buttons.sort();
        QCOMPARE(buttons.order(), sorted);
        QCOMPARE(buttons.tabOrder(), sorted);
    }
}

void tst_FlowLayoutOrder::invalidates()
{
    Buttons buttons(QStringLiteral("AB"));
    buttons.layout.invalidations = 0;
    buttons.sort();
    QVERIFY(buttons.layout.invalidations > 0);
}

void tst_FlowLayoutOrder::keepsEqualItems()
{
    Buttons buttons(QStringLiteral("BABAB"));
    buttons.sort();
    QCOMPARE(buttons.order(), QStringLiteral("AABBB"));
    QCOMPARE(buttons.tabOrder(), QStringLiteral("AABBB"));
}

void tst_FlowLayoutOrder::interruptsTheTabOrderAtWhatHasNoWidget()
{
    // The focus chain is B A C at first; "-" sorts before the letters, and chains nothing.
    Buttons buttons(QStringLiteral("BAC"));
    buttons.layout.addItem(new Blocks::Item(QSize(10, 10)));
    buttons.sort();
    QCOMPARE(buttons.order(), QStringLiteral("-ABC"));
    QCOMPARE(buttons.tabOrder(), QStringLiteral("ABC"));
    const auto byPlace = [](QLayoutItem *a, QLayoutItem *b) {
        const QString places = QStringLiteral("CA-B");
        return places.indexOf(Buttons::textOf(a)) < places.indexOf(Buttons::textOf(b));
    };
    buttons.layout.sort(byPlace);
    QCOMPARE(buttons.order(), QStringLiteral("CA-B"));
    QCOMPARE(buttons.tabOrder(), QStringLiteral("CAB"));
}

void tst_FlowLayoutOrder::chainsARepeatedWidgetOnce()
{
    // Sorted by a number, A comes first and third. Its neighbour is that of its first item.
    Buttons buttons(QStringLiteral("ACB"));
    buttons.layout.addItem(new QWidgetItem(buttons.layout.widgetAt(0)));
    std::map<QLayoutItem *, int> numbers;
    const int places[] = { 0, 3, 1, 2 };
    for (int i = 0; i < 4; ++i)
        numbers[buttons.layout.itemAt(i)] = places[i];
    buttons.layout.sort([&](QLayoutItem *a, QLayoutItem *b) { return numbers[a] < numbers[b]; });
    QCOMPARE(buttons.order(), QStringLiteral("ABAC"));
    QCOMPARE(buttons.tabOrder(), QStringLiteral("ABC"));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_FlowLayoutOrder)
#include "tst_flowlayout_order.moc"

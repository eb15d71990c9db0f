// SPDX-License-Identifier: Apache-2.0
#include "PlainFlow.h"
#include "support/RandomSeed.h"

#include <QPushButton>
#include <QTest>

namespace {

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

/// Sorting, and the tab order that comes of it.
class tst_FlowLayoutSort : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsItemsAndTabOrder_data();
    void sortsItemsAndTabOrder();
    void sortsAnyOrder();
    void invalidates();
    void keepsEqualItems();
    void interruptsTheTabOrderAtWhatHasNoWidget();
    void chainsAWidgetThatStandsInItTwiceOnce();
};

void tst_FlowLayoutSort::sortsItemsAndTabOrder_data()
{
    QTest::addColumn<QString>("letters");
    QTest::newRow("none") << QString();
    QTest::newRow("one") << QStringLiteral("A");
    QTest::newRow("sorted") << QStringLiteral("ABC");
    QTest::newRow("backwards") << QStringLiteral("EDCBA");
    QTest::newRow("mixed") << QStringLiteral("CAEBDF");
}

void tst_FlowLayoutSort::sortsItemsAndTabOrder()
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

void tst_FlowLayoutSort::sortsAnyOrder()
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

void tst_FlowLayoutSort::invalidates()
{
    Buttons buttons(QStringLiteral("AB"));
    buttons.layout.invalidations = 0;
    buttons.sort();
    QVERIFY(buttons.layout.invalidations > 0);
}

void tst_FlowLayoutSort::keepsEqualItems()
{
    Buttons buttons(QStringLiteral("BABAB"));
    buttons.sort();
    QCOMPARE(buttons.order(), QStringLiteral("AABBB"));
    QCOMPARE(buttons.tabOrder(), QStringLiteral("AABBB"));
}

void tst_FlowLayoutSort::interruptsTheTabOrderAtWhatHasNoWidget()
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

void tst_FlowLayoutSort::chainsAWidgetThatStandsInItTwiceOnce()
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

QTEST_MAIN(tst_FlowLayoutSort)
#include "tst_flowlayout_sort.moc"

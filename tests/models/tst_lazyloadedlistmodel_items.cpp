// SPDX-License-Identifier: Apache-2.0
#include "tst_lazyloadedlistmodel.h"

#include "LazyLetterModel.h"

#include <QTest>

#include <memory>
#include <new>

namespace {

QVector<QStandardItem *> itemsOf(const char *letters)
{
    return LazyLetterModel::itemsOf(QString::fromLatin1(letters));
}

/// An item whose memory stays valid after its deletion.
class PlacedItem : public CountedItem
{
public:
    static void *operator new(std::size_t, void *where) { return where; }
    static void operator delete(void *) { }
    static void operator delete(void *, void *) { }
};

/// An item that records on destruction what the model still holds.
class LastWords : public QStandardItem
{
    Q_DISABLE_COPY_MOVE(LastWords)

public:
    LastWords(QChar letter, const LazyLetterModel &model, SignalLog &log)
        : QStandardItem(letter), m_model(model), m_log(log)
    {
    }
    ~LastWords() override { m_log.note(text() + QLatin1Char(':') + m_model.window()); }

private:
    const LazyLetterModel &m_model;
    SignalLog &m_log;
};

} // namespace

void tst_LazyLoadedListModel::cleanup() { QCOMPARE(CountedItem::alive, 0); }

void tst_LazyLoadedListModel::takesAnItem()
{
    LazyLetterModel model(2, 2, 4);
    ModelLog log(model);
    connect(&model, &QAbstractItemModel::dataChanged, this, [&] { log.note(model.window()); });
    QVERIFY(model.setItemAtIndex(3, new CountedItem(QStringLiteral("d"))));
    QCOMPARE(log.take(), QStringLiteral("chg 3,3 | ...d"));
}

void tst_LazyLoadedListModel::givesItemsByIndexAndByModelIndex()
{
    LazyLetterModel model(2, 2, 100);
    model.setScrolledIndex(22);
    auto *item = new CountedItem;
    QVERIFY(model.setItemAtIndex(21, item));
    QCOMPARE(model.getItemAt(21), item);
    QCOMPARE(model.getItemAt(model.index(21)), item);
    QVERIFY(!model.getItemAt(QModelIndex()));
    QVERIFY(!model.getItemAt(model.index(20)));
    QVERIFY(!model.getItemAt(19));
    QVERIFY(!model.getItemAt(24));
    QVERIFY(!model.getItemAt(-1));
}

void tst_LazyLoadedListModel::unloadsARowThatIsGivenNull()
{
    LazyLetterModel model(2, 2, 4);
    model.setItemsAtPage(0, itemsOf("ab"));
    ModelLog log(model);
    QVERIFY(model.setItemAtIndex(1, nullptr));
    QCOMPARE(model.window(), QStringLiteral("a..."));
    QCOMPARE(CountedItem::alive, 1);
    QCOMPARE(log.take(), QStringLiteral("chg 1,1"));
}

void tst_LazyLoadedListModel::leavesARefusedItemToTheCaller_data()
{
    QTest::addColumn<unsigned>("pageSize");
    QTest::addColumn<int>("index");

    QTest::newRow("without paging") << 0U << 0;
    QTest::newRow("before the window") << 2U << 7;
    QTest::newRow("behind the window") << 2U << 12;
    QTest::newRow("before row 0") << 2U << -1;
}

void tst_LazyLoadedListModel::leavesARefusedItemToTheCaller()
{
    QFETCH(const unsigned, pageSize);
    QFETCH(const int, index);
    LazyLetterModel model(pageSize, 2, 100);
    model.setScrolledIndex(10);
    QCOMPARE(model.getStartIndex(), pageSize == 0 ? 0 : 8);
    ModelLog log(model);
    const auto item = std::make_unique<CountedItem>(QStringLiteral("x"));
    QVERIFY(!model.setItemAtIndex(index, item.get()));
    QCOMPARE(log.take(), QString());
    QCOMPARE(CountedItem::alive, 1);
    QCOMPARE(item->text(), QStringLiteral("x"));
}

void tst_LazyLoadedListModel::deletesAReplacedItem()
{
    LazyLetterModel model(2, 2, 4);
    model.setItemsAtPage(0, itemsOf("ab"));
    QVERIFY(model.setItemAtIndex(0, new CountedItem(QStringLiteral("x"))));
    QCOMPARE(model.window(), QStringLiteral("xb.."));
    QCOMPARE(CountedItem::alive, 2);
}

void tst_LazyLoadedListModel::deletesTheOldItemAlsoWhenItIsTheNewOne()
{
    alignas(PlacedItem) unsigned char memory[sizeof(PlacedItem)];
    LazyLetterModel model(2, 2, 4);
    auto *item = new (memory) PlacedItem;
    QVERIFY(model.setItemAtIndex(0, item));
    QCOMPARE(CountedItem::alive, 1);
    QVERIFY(model.setItemAtIndex(0, item));
    QCOMPARE(CountedItem::alive, 0);
    // The item that the model holds is deleted; another one is made at its address.
    QCOMPARE(model.getItemAt(0), new (memory) PlacedItem);
    model.reset();
    QCOMPARE(CountedItem::alive, 0);
}

void tst_LazyLoadedListModel::growsUpToAnItemPastTheEnd()
{
    LazyLetterModel model(2, 3, 2);
    model.setItemsAtPage(0, itemsOf("ab"));
    ModelLog log(model);
    QString windowWhenInserted;
    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [&] { windowWhenInserted = model.window(); });
    QVERIFY(model.setItemAtIndex(4, new CountedItem(QStringLiteral("e"))));
    QCOMPARE(log.take(), QStringLiteral("ins 2,4"));
    QCOMPARE(model.size(), 5);
    QCOMPARE(model.window(), QStringLiteral("ab..e."));
    QCOMPARE(windowWhenInserted, QStringLiteral("ab..e."));
}

void tst_LazyLoadedListModel::growsFromAnEmptyList()
{
    LazyLetterModel model(2, 2);
    ModelLog log(model);
    QVERIFY(model.setItemAtIndex(0, new CountedItem(QStringLiteral("a"))));
    QCOMPARE(log.take(), QStringLiteral("ins 0,0"));
    QCOMPARE(model.size(), 1);
}

void tst_LazyLoadedListModel::takesThePage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("window");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("emitted");

    const auto row = [](const char *name, int page, const char *letters, const char *window,
                        int size, const char *emitted) {
        QTest::newRow(name) << page << QString::fromLatin1(letters) << QString::fromLatin1(window)
                            << size << QString::fromLatin1(emitted);
    };
    // A window of two pages of three rows, at row 3 of 100.
    row("the first of the window", 1, "abc", "abc...", 100, "chg 3,3 | chg 4,4 | chg 5,5");
    row("the last of the window", 2, "abc", "...abc", 100, "chg 6,6 | chg 7,7 | chg 8,8");
    row("with an item missing", 1, "a.c", "a.c...", 100, "chg 3,3 | chg 4,4 | chg 5,5");
    row("with more items on the next", 1, "abcd", "abcd..", 100,
        "chg 3,3 | chg 4,4 | chg 5,5 | chg 6,6");
    row("short, at which the list ends", 2, "ab", "...ab.", 8, "chg 6,6 | chg 7,7 | rem 8,99");
    row("short, before another", 1, "a", "a.....", 4, "chg 3,3 | rem 4,99");
    row("empty, which changes nothing", 1, "", "......", 100, "");
}

void tst_LazyLoadedListModel::takesThePage()
{
    QFETCH(const int, page);
    QFETCH(const QString, letters);
    LazyLetterModel model(3, 2, 100);
    model.setScrolledIndex(6);
    ModelLog log(model);
    model.setItemsAtPage(page, LazyLetterModel::itemsOf(letters));
    QTEST(model.window(), "window");
    QTEST(model.size(), "size");
    QTEST(log.take(), "emitted");

    // In an empty list each item is inserted as a row of its own.
    LazyLetterModel empty(10, 5);
    ModelLog growth(empty);
    empty.setItemsAtPage(2, itemsOf("abc"));
    QCOMPARE(growth.take(), QStringLiteral("ins 0,20 | ins 21,21 | ins 22,22"));
    QCOMPARE(empty.size(), 23);
}

void tst_LazyLoadedListModel::leavesALatePageToTheCaller_data()
{
    QTest::addColumn<unsigned>("pageSize");
    QTest::addColumn<int>("page");

    QTest::newRow("without paging") << 0U << 0;
    QTest::newRow("before the window") << 2U << 3;
    QTest::newRow("behind the window") << 2U << 6;
    QTest::newRow("before page 0") << 2U << -1;
}

void tst_LazyLoadedListModel::leavesALatePageToTheCaller()
{
    QFETCH(const unsigned, pageSize);
    QFETCH(const int, page);
    LazyLetterModel model(pageSize, 2, 100);
    model.setScrolledIndex(10);
    ModelLog log(model);
    const QVector<QStandardItem *> items = itemsOf("x");
    model.setItemsAtPage(page, items);
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.size(), 100);
    QCOMPARE(CountedItem::alive, 1);
    qDeleteAll(items);
}

void tst_LazyLoadedListModel::deletesTheRestOfAShortPage()
{
    LazyLetterModel model(3, 2, 6);
    model.setItemsAtPage(0, itemsOf("abc"));
    model.setItemsAtPage(1, itemsOf("def"));
    ModelLog log(model);
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&] { log.note(model.window()); });
    model.setItemsAtPage(1, itemsOf("x"));
    QCOMPARE(model.window(), QStringLiteral("abcx.."));
    QCOMPARE(CountedItem::alive, 4);
    QCOMPARE(log.take(), QStringLiteral("chg 3,3 | abcx.. | rem 4,5"));
    // A short page in the middle ends the list as well.
    model.setItemsAtPage(0, itemsOf("y"));
    QCOMPARE(model.window(), QStringLiteral("y....."));
    QCOMPARE(CountedItem::alive, 1);
    QCOMPARE(log.take(), QStringLiteral("chg 0,0 | y..x.. | rem 1,3"));
}

void tst_LazyLoadedListModel::leavesItemsPastTheWindowToTheCaller()
{
    LazyLetterModel model(2, 2, 100);
    const QVector<QStandardItem *> items = itemsOf("abcd");
    model.setItemsAtPage(1, items);
    QCOMPARE(model.window(), QStringLiteral("..ab"));
    QCOMPARE(CountedItem::alive, 4);
    delete items.at(2);
    delete items.at(3);
}

void tst_LazyLoadedListModel::deletesItsItemsAtTheEnd()
{
    {
        LazyLetterModel model(2, 2, 4);
        model.setItemsAtPage(0, itemsOf("abcd"));
        QCOMPARE(CountedItem::alive, 4);
    }
    QCOMPARE(CountedItem::alive, 0);
}

void tst_LazyLoadedListModel::deletesItsItemsOnReset()
{
    LazyLetterModel model(2, 2, 4);
    model.setItemsAtPage(0, itemsOf("abcd"));
    ModelLog log(model);
    model.reset();
    QCOMPARE(CountedItem::alive, 0);
    QCOMPARE(log.take(), QStringLiteral("rem 0,3"));
    QCOMPARE(model.size(), 0);
    // The paging stays.
    QCOMPARE(model.window(), QStringLiteral("...."));
}

void tst_LazyLoadedListModel::deletesItemsThatItNoLongerHolds()
{
    LazyLetterModel model(2, 3, 100);
    SignalLog log;
    const auto fill = [&](int page, const char *letters) {
        QVector<QStandardItem *> items;
        for (const char letter : QByteArray(letters))
            items += new LastWords(QLatin1Char(letter), model, log);
        model.setItemsAtPage(page, items);
    };
    model.setScrolledIndex(10);
    fill(4, "abcdef");
    model.setScrolledIndex(8);
    QCOMPARE(log.take(), QStringLiteral("f:abcde. | e:abcd.."));
    QCOMPARE(model.window(), QStringLiteral("..abcd"));
    model.setScrolledIndex(12);
    QCOMPARE(log.take(), QStringLiteral("a:...bcd | b:....cd"));
    model.reset();
    QCOMPARE(log.take(), QStringLiteral("d:c..... | c:......"));
}

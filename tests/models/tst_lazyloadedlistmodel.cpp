// SPDX-License-Identifier: Apache-2.0
#include "LazyLetterModel.h"

#include <QTest>

#include <limits>

/// The rows and the window of a LazyLoadedListModel, and the pages that it asks for.
class tst_LazyLoadedListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutPagingAndRows();
    void hasNoValuesOfItsOwn();
    void hasItsRowsBelowARowToo();
    void convertsBetweenRowsAndPages();

    void ignoresPagingWithoutPages_data();
    void ignoresPagingWithoutPages();
    void startsAfreshWithNewPaging();
    void startsAfreshWithTheSamePaging();
    void resetsSilentlyWithoutRows();

    void changesItsSize_data();
    void changesItsSize();
    void changesItsCountAfterTheSignals();
    void shrinksTheWindowWithTheList_data();
    void shrinksTheWindowWithTheList();

    void staysWhereItIsWithoutPaging();
    void movesTheWindow_data();
    void movesTheWindow();
    void keepsWhatIsStillInReach_data();
    void keepsWhatIsStillInReach();
    void hasMovedWhenItAsks();
    void survivesAnyScrolledIndex();
    void holdsOneWindowOfItemsWhateverTheSize();
};

void tst_LazyLoadedListModel::startsWithoutPagingAndRows()
{
    const LazyLetterModel model;
    QCOMPARE(model.size(), 0);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.getStartIndex(), 0);
    QCOMPARE(model.getStorageSize(), 0);
    QVERIFY(!model.getItemAt(0));
    QVERIFY((std::is_base_of_v<QAbstractListModel, LazyLoadedListModel>));
}

void tst_LazyLoadedListModel::hasNoValuesOfItsOwn()
{
    LazyLoadedListModel model;
    model.setPagingConfig(2, 2);
    model.setSize(4);
    model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("ab")));
    QCOMPARE(model.data(model.index(0), Qt::DisplayRole), QVariant());
    QCOMPARE(model.data(model.index(0), Qt::UserRole + 1), QVariant());
}

void tst_LazyLoadedListModel::hasItsRowsBelowARowToo()
{
    const LazyLetterModel model(10, 5, 7);
    QCOMPARE(model.rowCount(QModelIndex()), 7);
    QCOMPARE(model.rowCount(model.index(0)), 7);
}

void tst_LazyLoadedListModel::convertsBetweenRowsAndPages()
{
    LazyLetterModel model;
    QCOMPARE(model.indexToPage(99), 0);
    QCOMPARE(model.pageToIndex(3), 0);
    model.setPagingConfig(10, 5);
    QCOMPARE(model.indexToPage(9), 0);
    QCOMPARE(model.indexToPage(10), 1);
    QCOMPARE(model.indexToPage(-9), 0);
    QCOMPARE(model.indexToPage(-19), -1);
    QCOMPARE(model.pageToIndex(3), 30);
    QCOMPARE(model.getStorageSize(), 50);
}

void tst_LazyLoadedListModel::ignoresPagingWithoutPages_data()
{
    QTest::addColumn<unsigned>("pageSize");
    QTest::addColumn<unsigned>("storagePages");

    QTest::newRow("no rows on a page") << 0U << 5U;
    QTest::newRow("no pages in the window") << 5U << 0U;
    QTest::newRow("neither") << 0U << 0U;
}

void tst_LazyLoadedListModel::ignoresPagingWithoutPages()
{
    QFETCH(const unsigned, pageSize);
    QFETCH(const unsigned, storagePages);
    LazyLetterModel fresh;
    fresh.setPagingConfig(pageSize, storagePages);
    QCOMPARE(fresh.getStorageSize(), 0);

    LazyLetterModel model(2, 3, 8);
    model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("ab")));
    ModelLog log(model);
    model.setPagingConfig(pageSize, storagePages);
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.window(), QStringLiteral("ab...."));
}

void tst_LazyLoadedListModel::startsAfreshWithNewPaging()
{
    LazyLetterModel model(2, 3, 100);
    model.setScrolledIndex(50);
    model.setItemsAtPage(24, LazyLetterModel::itemsOf(QStringLiteral("ab")));
    ModelLog log(model);
    model.setPagingConfig(4, 2);
    QCOMPARE(log.take(), QStringLiteral("rem 0,99"));
    QCOMPARE(model.size(), 0);
    QCOMPARE(model.getStartIndex(), 0);
    QCOMPARE(model.window(), QStringLiteral("........"));
    QCOMPARE(CountedItem::alive, 0);
}

void tst_LazyLoadedListModel::startsAfreshWithTheSamePaging()
{
    LazyLetterModel model(2, 2, 3);
    model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("ab")));
    ModelLog log(model);
    model.setPagingConfig(2, 2);
    QCOMPARE(log.take(), QStringLiteral("rem 0,2"));
    QCOMPARE(model.window(), QStringLiteral("...."));
}

void tst_LazyLoadedListModel::resetsSilentlyWithoutRows()
{
    LazyLetterModel model(2, 2);
    model.setScrolledIndex(50);
    ModelLog log(model);
    model.reset();
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.getStartIndex(), 0);
    QCOMPARE(model.window(), QStringLiteral("...."));
}

void tst_LazyLoadedListModel::changesItsSize_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("emitted");

    QTest::newRow("to the same") << 7 << 7 << QString();
    QTest::newRow("from none to none") << 0 << 0 << QString();
    QTest::newRow("from none") << 0 << 3 << QStringLiteral("ins 0,2");
    QTest::newRow("by one row more") << 7 << 8 << QStringLiteral("ins 7,7");
    QTest::newRow("to millions") << 7 << 10000000 << QStringLiteral("ins 7,9999999");
    QTest::newRow("by one row less") << 7 << 6 << QStringLiteral("rem 6,6");
    QTest::newRow("to none") << 7 << 0 << QStringLiteral("rem 0,6");
}

void tst_LazyLoadedListModel::changesItsSize()
{
    QFETCH(const int, before);
    QFETCH(const int, size);
    for (const unsigned pageSize : { 0U, 2U }) {
        LazyLetterModel model(pageSize, 3, before);
        ModelLog log(model);
        model.setSize(size);
        QCOMPARE(model.size(), size);
        QCOMPARE(model.rowCount(), size);
        QTEST(log.take(), "emitted");
    }
}

void tst_LazyLoadedListModel::changesItsCountAfterTheSignals()
{
    LazyLetterModel model(2, 2);
    SignalLog log;
    const auto note = [&log, &model] { log.note(QString::number(model.rowCount())); };
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this, note);
    connect(&model, &QAbstractItemModel::rowsInserted, this, note);
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, note);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, note);
    model.setSize(2);
    QCOMPARE(log.take(), QStringLiteral("0 | 0"));
    QVERIFY(model.setItemAtIndex(3, new CountedItem));
    QCOMPARE(log.take(), QStringLiteral("2 | 2"));
    model.setSize(1);
    QCOMPARE(log.take(), QStringLiteral("4 | 4"));
    model.reset();
    QCOMPARE(log.take(), QStringLiteral("1 | 1"));
    QCOMPARE(model.rowCount(), 0);
}

void tst_LazyLoadedListModel::shrinksTheWindowWithTheList_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("startIndex");
    QTest::addColumn<QString>("window");

    QTest::newRow("the end stays behind the window") << 12 << 4 << QStringLiteral("abcdef");
    QTest::newRow("the end is the window's") << 10 << 4 << QStringLiteral("abcdef");
    QTest::newRow("the end lies in the window") << 7 << 4 << QStringLiteral("abc...");
    QTest::newRow("the end lies before the window's first row")
            << 4 << 4 << QStringLiteral("......");
    QTest::newRow("the end lies before the window") << 3 << 0 << QStringLiteral("......");
    QTest::newRow("no rows are left") << 0 << 0 << QStringLiteral("......");
}

void tst_LazyLoadedListModel::shrinksTheWindowWithTheList()
{
    QFETCH(const int, size);
    LazyLetterModel model(2, 3, 100);
    model.setScrolledIndex(6);
    model.setItemsAtPage(2, LazyLetterModel::itemsOf(QStringLiteral("abcdef")));
    ModelLog log(model);
    model.setSize(size);
    QCOMPARE(log.take(), QStringLiteral("rem %1,99").arg(size));
    QTEST(model.getStartIndex(), "startIndex");
    QTEST(model.window(), "window");
    QCOMPARE(CountedItem::alive, 6 - model.window().count(QLatin1Char('.')));
}

void tst_LazyLoadedListModel::staysWhereItIsWithoutPaging()
{
    LazyLetterModel model;
    model.setSize(100);
    ModelLog log(model);
    model.setScrolledIndex(50);
    QCOMPARE(log.take(), QString());
    QCOMPARE(model.getStartIndex(), 0);
}

void tst_LazyLoadedListModel::movesTheWindow_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("startIndex");
    QTest::addColumn<QString>("emitted");

    const auto row = [](const char *name, int from, int to, int startIndex, const char *emitted) {
        QTest::newRow(name) << from << to << startIndex << QString::fromLatin1(emitted);
    };
    row("down to the third page", 0, 35, 20, "load 5,6");
    row("down by one page", 0, 20, 10, "load 5");
    row("down by all pages but one", 0, 59, 40, "load 5,6,7,8");
    row("down by as many pages as there are", 0, 60, 50, "load from 5");
    row("down by more pages than there are", 0, 1000, 990, "load from 99");
    row("from 20 on down", 35, 49, 30, "load 7");
    row("nowhere on the first page", 0, 5, 0, "");
    row("nowhere on the second page", 0, 19, 0, "");
    row("nowhere by a row above the list", 0, -3, 0, "");
    row("nowhere on the same page", 111, 119, 100, "");
    row("up by one page", 110, 105, 90, "load 9");
    row("up by all pages but one", 110, 75, 60, "load 6,7,8,9");
    row("up by as many pages as there are", 110, 65, 50, "load from 5");
    row("up by more pages than there are", 110, 12, 0, "load from 0");
    row("up to the very start", 35, 0, 0, "load 0,1");
    row("up by a row above the list", 35, -100, 0, "load 0,1");
    row("past the end of the list", 9970, 20000, 19990, "load from 1999");
}

void tst_LazyLoadedListModel::movesTheWindow()
{
    QFETCH(const int, from);
    QFETCH(const int, to);
    LazyLetterModel model(10, 5, 10000);
    model.setScrolledIndex(from);
    ModelLog log(model);
    model.setScrolledIndex(to);
    QTEST(model.getStartIndex(), "startIndex");
    QTEST(log.take(), "emitted");
    model.setScrolledIndex(to);
    QCOMPARE(log.take(), QString());
}

void tst_LazyLoadedListModel::keepsWhatIsStillInReach_data()
{
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("emitted");

    QTest::newRow("down by a page") << 24 << QStringLiteral("cdef..") << QStringLiteral("load 13");
    QTest::newRow("down by two") << 26 << QStringLiteral("ef....") << QStringLiteral("load 13,14");
    QTest::newRow("down by three")
            << 28 << QStringLiteral("......") << QStringLiteral("load from 13");
    QTest::newRow("up by a page") << 20 << QStringLiteral("..abcd") << QStringLiteral("load 9");
    QTest::newRow("up by two") << 18 << QStringLiteral("....ab") << QStringLiteral("load 8,9");
    QTest::newRow("up by three") << 16 << QStringLiteral("......") << QStringLiteral("load from 7");
}

void tst_LazyLoadedListModel::keepsWhatIsStillInReach()
{
    QFETCH(const int, to);
    LazyLetterModel model(2, 3, 100);
    model.setScrolledIndex(22);
    model.setItemsAtPage(10, LazyLetterModel::itemsOf(QStringLiteral("abcdef")));
    QCOMPARE(model.window(), QStringLiteral("abcdef"));
    ModelLog log(model);
    model.setScrolledIndex(to);
    QTEST(model.window(), "window");
    QTEST(log.take(), "emitted");
    QCOMPARE(CountedItem::alive, 6 - model.window().count(QLatin1Char('.')));
}

void tst_LazyLoadedListModel::hasMovedWhenItAsks()
{
    LazyLetterModel model(2, 3, 100);
    model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("abcdef")));
    SignalLog log;
    const auto note = [&] {
        log.note(QStringLiteral("%1 %2").arg(model.getStartIndex()).arg(model.window()));
    };
    connect(&model, &LazyLoadedListModel::loadPages, this, note);
    connect(&model, &LazyLoadedListModel::loadStorageAtPage, this, note);
    model.setScrolledIndex(4);
    model.setScrolledIndex(0);
    model.setScrolledIndex(50);
    QCOMPARE(log.take(), QStringLiteral("2 cdef.. | 0 ..cdef | 48 ......"));
}

void tst_LazyLoadedListModel::survivesAnyScrolledIndex()
{
    LazyLetterModel model(10, 5, 100);
    model.setScrolledIndex(std::numeric_limits<int>::max());
    QCOMPARE(model.getStartIndex(), 2147483630);
    QVERIFY(!model.getItemAt(0));
    QVERIFY(!model.getItemAt(std::numeric_limits<int>::min()));
    model.setScrolledIndex(std::numeric_limits<int>::max() - 10);
    model.setScrolledIndex(std::numeric_limits<int>::min());
    QCOMPARE(model.getStartIndex(), 0);
}

void tst_LazyLoadedListModel::holdsOneWindowOfItemsWhateverTheSize()
{
    LazyLetterModel model(50, 5, 10000000);
    int most = 0;
    const auto answer = [&](int page) {
        model.setItemsAtPage(page, LazyLetterModel::itemsOf(QString(50, QLatin1Char('x'))));
        most = qMax(most, CountedItem::alive);
    };
    connect(&model, &LazyLoadedListModel::loadPages, this, [&](const QVector<int> &pages) {
        for (const int page : pages)
            answer(page);
    });
    connect(&model, &LazyLoadedListModel::loadStorageAtPage, this, [&](int page) {
        for (int i = 0; i < 5; ++i)
            answer(page + i);
    });
    for (const int row : { 5000000, 5000100, 5000300, 9999000, 9998900, 3000, 100, 0 })
        model.setScrolledIndex(row);
    QCOMPARE(most, 250);
    QCOMPARE(CountedItem::alive, 250);
    QCOMPARE(model.rowCount(), 10000000);
}

QTEST_MAIN(tst_LazyLoadedListModel)
#include "tst_lazyloadedlistmodel.moc"

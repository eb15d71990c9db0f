// SPDX-License-Identifier: Apache-2.0
#include "tst_lazyloadedlistmodel.h"

#include "LazyLetterModel.h"
#include "support/TestMain.h"

#include <QTest>

#include <limits>

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

void tst_LazyLoadedListModel::takesAParent()
{
    QObject parent;
    const auto *model = new LazyLoadedListModel(&parent);
    QCOMPARE(model->parent(), &parent);
    QVERIFY(!LazyLoadedListModel().parent());
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

void tst_LazyLoadedListModel::movesTheWindowBeforeItAsks()
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

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_LazyLoadedListModel)
#include "moc_tst_lazyloadedlistmodel.cpp"

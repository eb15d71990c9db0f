// SPDX-License-Identifier: Apache-2.0
#include "tst_lazyloadedlistmodel.h"

#include "LazyLetterModel.h"

#include <QTest>

namespace {

/// Records at each signal of a removal where the window starts and what it holds: "20 ab..".
void recordWindow(SignalLog &log, const LazyLetterModel &model)
{
    const auto note = [&log, &model] {
        log.note(QStringLiteral("%1 %2").arg(model.getStartIndex()).arg(model.window()));
    };
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, note);
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, note);
}

} // namespace

void tst_LazyLoadedListModel::ignoresPagingThatMakesNoWindow_data()
{
    QTest::addColumn<unsigned>("pageSize");
    QTest::addColumn<unsigned>("storagePages");

    QTest::newRow("no rows on a page") << 0U << 5U;
    QTest::newRow("no pages in the window") << 5U << 0U;
    QTest::newRow("neither") << 0U << 0U;
    QTest::newRow("more rows than an int can count") << 100000U << 100000U;
    QTest::newRow("pages beyond an int") << 1U << 0x80000000U;
}

void tst_LazyLoadedListModel::ignoresPagingThatMakesNoWindow()
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

void tst_LazyLoadedListModel::startsOverWithNewPaging()
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

void tst_LazyLoadedListModel::startsOverWithTheSamePaging()
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

void tst_LazyLoadedListModel::unloadsBeforeItEmitsAReset()
{
    LazyLetterModel model(2, 2, 100);
    model.setScrolledIndex(22);
    model.setItemsAtPage(10, LazyLetterModel::itemsOf(QStringLiteral("abcd")));
    SignalLog log;
    recordWindow(log, model);
    model.reset();
    QCOMPARE(log.take(), QStringLiteral("20 .... | 20 ...."));
    QCOMPARE(model.getStartIndex(), 0);
}

void tst_LazyLoadedListModel::unloadsAfterItEmitsASmallerSize()
{
    LazyLetterModel model(2, 2, 100);
    model.setScrolledIndex(22);
    model.setItemsAtPage(10, LazyLetterModel::itemsOf(QStringLiteral("abcd")));
    SignalLog log;
    recordWindow(log, model);
    model.setSize(22);
    QCOMPARE(log.take(), QStringLiteral("20 abcd | 20 abcd"));
    QCOMPARE(model.window(), QStringLiteral("ab.."));
    model.setSize(7);
    QCOMPARE(log.take(), QStringLiteral("20 ab.. | 20 ab.."));
    QCOMPARE(model.getStartIndex(), 0);
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

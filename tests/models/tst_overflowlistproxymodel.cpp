// SPDX-License-Identifier: Apache-2.0
#include "LetterListModel.h"
#include "support/RandomSeed.h"
#include "support/TestMain.h"

#include <UiElements/models/OverflowListProxyModel.h>

#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

namespace {

/// A proxy with a public filter function that counts its calls.
class CountingProxy : public OverflowListProxyModel
{
    Q_OBJECT

public:
    using OverflowListProxyModel::OverflowListProxyModel;

    QString text() const { return ModelLog::rows(*this, LetterListModel::Letter); }

    mutable int asked = 0;

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override
    {
        ++asked;
        return OverflowListProxyModel::filterAcceptsRow(sourceRow, sourceParent);
    }
};

/// A simple reference implementation of the proxy.
struct ShownLetters
{
    explicit ShownLetters(const OverflowListProxyModel &model) : proxy(model) { }

    /// Filters \a row again.
    void look(int row)
    {
        const QChar letter = letters.at(row).toLower();
        letters[row] = row > proxy.firstVisibleIndex() ? letter.toUpper() : letter;
    }

    QString shown() const
    {
        QString text;
        for (const QChar letter : letters)
            text += letter.isUpper() ? QString(letter.toLower()) : QString();
        return text;
    }

    const OverflowListProxyModel &proxy;
    QString letters; ///< For each source row its letter, in upper case where the proxy shows it.
};

/// Does one random change to the models and to \a expected, and returns its name.
QString changeBoth(std::mt19937 &generator, LetterListModel &source, OverflowListProxyModel &proxy,
                   ShownLetters &expected)
{
    const int last = expected.letters.size() - 1;
    const int row = randomFrom(generator, 0, qMax(0, last));
    const QChar letter = QLatin1Char(char('a' + randomFrom(generator, 0, 25)));
    const std::string id(1, letter.toLatin1());
    switch (randomFrom(generator, 0, 3)) {
    case 0: {
        const int index = randomFrom(generator, -2, 12);
        const bool isNew = index != proxy.firstVisibleIndex();
        proxy.setFirstVisibleIndex(index);
        for (int each = 0; isNew && each <= last; ++each)
            expected.look(each);
        return QStringLiteral("show from %1").arg(index);
    }
    case 1:
        if (last < 0)
            return QStringLiteral("nothing");
        source.removeRows(row, 1);
        expected.letters.remove(row, 1);
        return QStringLiteral("remove %1").arg(row);
    case 2:
        source.setRoleValueForRow(id, { { LetterListModel::Number, row } });
        if (source.hasRow(id))
            expected.look(source.getRowIndex(id));
        return QStringLiteral("change %1").arg(letter);
    default:
        if (source.hasRow(id))
            return QStringLiteral("nothing");
        source.insertRows(row, LetterListModel::rowsOf(letter));
        expected.letters.insert(row, letter);
        expected.look(row);
        return QStringLiteral("insert %1 at %2").arg(letter).arg(row);
    }
}

} // namespace

/// The tail that an OverflowListProxyModel shows of its source.
class tst_OverflowListProxyModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAtZeroOrAtTheGivenIndex();
    void showsItsProperties();
    void showsTheRowsBehindTheIndex_data();
    void showsTheRowsBehindTheIndex();
    void ignoresTheParent();
    void emitsANewIndexBeforeItFilters();
    void doesNothingForTheSameIndex();
    void emitsOnlyForANewHeader();
    void losesItsRowsWithTheSourceAndKeepsItsProperties();
    void unsetsTheSourceThroughTheVirtualFunction();
    void keepsARowThatMovesInFrontOfTheIndex();
    void followsItsSourceThroughRandomChanges();
};

void tst_OverflowListProxyModel::startsAtZeroOrAtTheGivenIndex()
{
    QObject parent;
    QCOMPARE(OverflowListProxyModel().firstVisibleIndex(), 0);
    QCOMPARE(OverflowListProxyModel().header(), QString());
    QCOMPARE((new OverflowListProxyModel(&parent))->parent(), &parent);
    const OverflowListProxyModel *proxy = new OverflowListProxyModel(&parent, 7);
    QCOMPARE(proxy->firstVisibleIndex(), 7);
    QCOMPARE(proxy->parent(), &parent);
}

void tst_OverflowListProxyModel::showsItsProperties()
{
    const QMetaObject &type = OverflowListProxyModel::staticMetaObject;
    const QMetaProperty index = type.property(type.indexOfProperty("firstVisibleIndex"));
    QCOMPARE(index.typeName(), "int");
    QCOMPARE(index.notifySignal().methodSignature(), QByteArray("firstVisibleIndexChanged()"));
    const QMetaProperty header = type.property(type.indexOfProperty("header"));
    QCOMPARE(header.typeName(), "QString");
    QCOMPARE(header.notifySignal().methodSignature(), QByteArray("headerChanged()"));

    OverflowListProxyModel proxy;
    QVERIFY(proxy.setProperty("firstVisibleIndex", 3));
    QCOMPARE(proxy.firstVisibleIndex(), 3);
    QVERIFY(proxy.setProperty("header", QStringLiteral("More")));
    QCOMPARE(proxy.property("header").toString(), QStringLiteral("More"));
}

void tst_OverflowListProxyModel::showsTheRowsBehindTheIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("rows");

    QTest::newRow("2 of five rows") << 2 << QStringLiteral("de");
    QTest::newRow("0 hides the first row") << 0 << QStringLiteral("bcde");
    QTest::newRow("-1 passes all rows") << -1 << QStringLiteral("abcde");
    QTest::newRow("below -1") << -5 << QStringLiteral("abcde");
    QTest::newRow("the last row") << 4 << QString();
    QTest::newRow("past the last row") << 9 << QString();
}

void tst_OverflowListProxyModel::showsTheRowsBehindTheIndex()
{
    QFETCH(const int, index);
    QFETCH(const QString, rows);
    LetterListModel source(QStringLiteral("abcde"));
    CountingProxy given(nullptr, index);
    given.setSourceModel(&source);
    QCOMPARE(given.text(), rows);

    CountingProxy set;
    set.setSourceModel(&source);
    QCOMPARE(set.text(), QStringLiteral("bcde"));
    set.setFirstVisibleIndex(index);
    QCOMPARE(set.text(), rows);
}

void tst_OverflowListProxyModel::ignoresTheParent()
{
    const LetterListModel source(QStringLiteral("abc"));
    const CountingProxy proxy(nullptr, 1);
    QVERIFY(!proxy.filterAcceptsRow(1, source.index(0)));
    QVERIFY(proxy.filterAcceptsRow(2, source.index(0)));
}

void tst_OverflowListProxyModel::emitsANewIndexBeforeItFilters()
{
    LetterListModel source(QStringLiteral("abcd"));
    CountingProxy proxy;
    proxy.setSourceModel(&source);
    QCOMPARE(proxy.text(), QStringLiteral("bcd"));
    ModelLog log(proxy);
    connect(&proxy, &OverflowListProxyModel::firstVisibleIndexChanged, this, [&] {
        log.note(QStringLiteral("%1 %2").arg(proxy.firstVisibleIndex()).arg(proxy.text()));
    });
    proxy.setFirstVisibleIndex(2);
    QCOMPARE(log.take(), QStringLiteral("2 bcd | rem 0,1"));
    proxy.setFirstVisibleIndex(1);
    QCOMPARE(log.take(), QStringLiteral("1 d | ins 0,0"));
}

void tst_OverflowListProxyModel::doesNothingForTheSameIndex()
{
    LetterListModel source(QStringLiteral("abcd"));
    CountingProxy proxy;
    proxy.setSourceModel(&source);
    QCOMPARE(proxy.rowCount(), 3);
    QSignalSpy changed(&proxy, &OverflowListProxyModel::firstVisibleIndexChanged);
    proxy.asked = 0;
    proxy.setFirstVisibleIndex(0);
    QCOMPARE(proxy.asked, 0);
    QCOMPARE(changed.size(), 0);
    proxy.setFirstVisibleIndex(1);
    QCOMPARE(proxy.asked, 4);
    QCOMPARE(changed.size(), 1);
}

void tst_OverflowListProxyModel::emitsOnlyForANewHeader()
{
    OverflowListProxyModel proxy;
    QSignalSpy changed(&proxy, &OverflowListProxyModel::headerChanged);
    proxy.setHeader(QString());
    QCOMPARE(changed.size(), 0);
    proxy.setHeader(QStringLiteral("More"));
    proxy.setHeader(QStringLiteral("More"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(proxy.header(), QStringLiteral("More"));
}

void tst_OverflowListProxyModel::losesItsRowsWithTheSourceAndKeepsItsProperties()
{
    LetterListModel source(QStringLiteral("abcd"));
    OverflowListProxyModel proxy(nullptr, 1);
    proxy.setHeader(QStringLiteral("More"));
    proxy.setSourceModel(&source);
    QCOMPARE(proxy.rowCount(), 2);
    proxy.unsetSourceModel();
    QCOMPARE(proxy.rowCount(), 0);
    QVERIFY(!proxy.sourceModel());
    QCOMPARE(proxy.firstVisibleIndex(), 1);
    QCOMPARE(proxy.header(), QStringLiteral("More"));
}

void tst_OverflowListProxyModel::unsetsTheSourceThroughTheVirtualFunction()
{
    class NotingProxy : public OverflowListProxyModel
    {
    public:
        void setSourceModel(QAbstractItemModel *sourceModel) override { set += sourceModel; }
        QVector<QAbstractItemModel *> set;
    };
    NotingProxy proxy;
    proxy.unsetSourceModel();
    QCOMPARE(proxy.set, QVector<QAbstractItemModel *> { nullptr });
}

void tst_OverflowListProxyModel::keepsARowThatMovesInFrontOfTheIndex()
{
    LetterListModel source(QStringLiteral("abcde"));
    CountingProxy proxy(nullptr, 2);
    proxy.setSourceModel(&source);
    QCOMPARE(proxy.text(), QStringLiteral("de"));
    source.removeRows(0, 2);
    QCOMPARE(proxy.text(), QStringLiteral("de"));
    // A changed row is filtered again.
    source.setRoleValueForRow("d", { { LetterListModel::Letter, QStringLiteral("D") } });
    QCOMPARE(proxy.text(), QStringLiteral("e"));
}

void tst_OverflowListProxyModel::followsItsSourceThroughRandomChanges()
{
    std::mt19937 generator = seededGenerator();
    LetterListModel source;
    CountingProxy proxy;
    proxy.setSourceModel(&source);
    ShownLetters expected(proxy);
    for (int i = 0; i < 100000; ++i) {
        const QString before = expected.letters;
        const QString change = QStringLiteral("%1: %2 of %3: ")
                                       .arg(i)
                                       .arg(changeBoth(generator, source, proxy, expected), before);
        QCOMPARE(change + proxy.text(), change + expected.shown());
    }
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_OverflowListProxyModel)
#include "tst_overflowlistproxymodel.moc"

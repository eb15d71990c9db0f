// SPDX-License-Identifier: Apache-2.0
#include "tst_modelcontract.h"

#include "ModelScenario.h"
#include "support/TestMain.h"

#include <QAbstractItemModelTester>
#include <QListView>
#include <QPaintEvent>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QTest>
#include <QTreeView>

using namespace ModelScenarios;

namespace {

/// Collects all messages, those of QAbstractItemModelTester under the category "qt.modeltest".
class Complaints
{
    Q_DISABLE_COPY_MOVE(Complaints)

public:
    Complaints() : m_before(qInstallMessageHandler(&Complaints::handle)) { s_texts.clear(); }
    ~Complaints() { qInstallMessageHandler(m_before); }

    QStringList texts() const { return s_texts; }

    /// Returns those of QAbstractItemModelTester in short: "5 rows, not 6 | invalid topLeft".
    QString ofTester() const
    {
        static const QRegularExpression counts(QStringLiteral(
                R"(Actual +\(model->rowCount\(parent\)\) (-?\d+)\s+Expected \(.*\) (-?\d+))"));
        static const QRegularExpression index(QStringLiteral(R"((\w+)\.isValid\(\))"));
        QStringList complaints;
        for (const QString &text : s_texts.filter(QStringLiteral("qt.modeltest"))) {
            const QRegularExpressionMatch rows = counts.match(text);
            const QRegularExpressionMatch invalid = index.match(text);
            if (rows.hasMatch())
                complaints += rows.captured(1) + QStringLiteral(" rows, not ") + rows.captured(2);
            else
                complaints += invalid.hasMatch() ? QStringLiteral("invalid ") + invalid.captured(1)
                                                 : text;
        }
        return complaints.join(QStringLiteral(" | "));
    }

private:
    static void handle(QtMsgType, const QMessageLogContext &context, const QString &text)
    {
        s_texts += QString::fromLatin1(context.category) + QStringLiteral(": ") + text;
    }

    static inline QStringList s_texts;
    QtMessageHandler m_before;
};

/// A tree view, since QListView lays out all rows again for any change.
class PaintNotingView : public QTreeView
{
public:
    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted += event->region();
        QTreeView::paintEvent(event);
    }
};

} // namespace

void tst_ModelContract::keepsQtsContract_data()
{
    QTest::addColumn<Scenario>("scenario");
    const auto list = [](const char *name, const char *before,
                         std::function<void(LetterListModel &)> run) {
        QTest::newRow(name) << letters(before, std::move(run));
    };
    list("rows appended", "abc", [](auto &model) { model.appendRows(rows("de")); });
    list("rows appended to an empty list", "", [](auto &model) { model.appendRows(rows("ab")); });
    list("rows updated", "abcd", [](auto &model) { model.appendOrUpdate(rows("BD")); });
    list("rows updated and appended", "abcd",
         [](auto &model) { model.appendOrUpdate(rows("De")); });
    list("rows inserted", "abcd", [](auto &model) { model.insertRows(1, rows("xy")); });
    list("an id inserted again", "abcd", [](auto &model) { model.insertRows(1, rows("D")); });
    list("rows replaced by the same", "abcd", [](auto &model) { model.replace(rows("abcd")); });
    list("rows replaced in two runs", "abcd", [](auto &model) { model.replace(rows("AbcD")); });
    list("rows replaced by more", "abcd", [](auto &model) { model.replace(rows("aBcdef")); });
    list("rows replaced by fewer", "abcd", [](auto &model) { model.replace(rows("aB")); });
    list("rows replaced with an id twice", "ab", [](auto &model) { model.replace(rows("aAb")); });
    list("rows replaced by none", "abcd", [](auto &model) { model.replace({}); });
    list("rows removed", "abcd", [](auto &model) { model.removeRows(1, 2); });
    list("all rows removed", "abcd", [](auto &model) { model.removeRows(0, 4); });
    list("cleared", "abcd", [](auto &model) { model.clear(); });
    list("a role added", "abcd", [](auto &model) {
        model.setRoleValueForRow("b", { { 300, 1 } });
    });
    list("a value set", "abcd",
         [](auto &model) { model.setData(model.index(1), QStringLiteral("B"), letterRole); });

    QTest::newRow("small: rows added") << small([](auto &model) { model.add(Rows(2)); });
    QTest::newRow("small: no rows added") << small([](auto &model) { model.add({}); });
    QTest::newRow("small: rows removed") << small([](auto &model) {
        model.remove(Rows(2, { { letterRole, QStringLiteral("a") } }));
    });
    QTest::newRow("small: replaced") << small([](auto &model) { model.replace(Rows(3)); });
    QTest::newRow("small: cleared") << small([](auto &model) { model.clear(); });

    QTest::newRow("tail: it begins later")
            << tail([](auto &proxy, auto &) { proxy.setFirstVisibleIndex(3); });
    QTest::newRow("tail: it begins earlier")
            << tail([](auto &proxy, auto &) { proxy.setFirstVisibleIndex(-1); });
    QTest::newRow("tail: rows appended to its source")
            << tail([](auto &, auto &source) { source.appendRows(rows("gh")); });
    QTest::newRow("tail: rows of its source replaced")
            << tail([](auto &, auto &source) { source.replace(rows("AbCde")); });
    QTest::newRow("tail: rows removed across its beginning")
            << tail([](auto &, auto &source) { source.removeRows(1, 3); });
    QTest::newRow("tail: its source cleared") << tail([](auto &, auto &source) { source.clear(); });
    QTest::newRow("tail: its source taken away")
            << tail([](auto &proxy, auto &) { proxy.unsetSourceModel(); });

    QTest::newRow("empty state: texts set, rows appended") << emptyState([](auto &model) {
        model.setProperty("emptyStateHeader", QStringLiteral("Nothing here"));
        model.appendRows(rows("ab"));
    });

    QTest::newRow("pages: the window moved down") << pages(99, [](auto &model) {
        model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("ab")));
        model.setScrolledIndex(4);
    });
    QTest::newRow("pages: the window moved elsewhere")
            << pages(99, [](auto &model) { model.setScrolledIndex(70); });
    QTest::newRow("pages: a full page arrived") << pages(99, [](auto &model) {
        model.setItemsAtPage(1, LazyLetterModel::itemsOf(QStringLiteral("cd")));
    });
    QTest::newRow("pages: an item arrived")
            << pages(99, [](auto &model) { model.setItemAtIndex(3, new CountedItem); });
    QTest::newRow("pages: a short page at the known end") << pages(5, [](auto &model) {
        model.setItemsAtPage(2, LazyLetterModel::itemsOf(QStringLiteral("e")));
    });
}

void tst_ModelContract::keepsQtsContract()
{
    QFETCH(const Scenario, scenario);
    const ModelPointer model = scenario.make();
    const QAbstractItemModelTester tester(model.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(model.get());
    const QAbstractItemModelTester
            proxyTester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QListView view;
    view.setModel(&proxy);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    scenario.run(*model);
    QCOMPARE(ModelLog::rows(proxy, letterRole), ModelLog::rows(*model, letterRole));
    QCoreApplication::processEvents();
    if (model->rowCount() > 0)
        QVERIFY(view.visualRect(proxy.index(model->rowCount() - 1, 0)).isValid());
}

void tst_ModelContract::breaksQtsContract_data()
{
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<QString>("emitted");
    QTest::addColumn<QString>("complaints");
    QTest::addColumn<QString>("proxyRows");
    const auto row = [](const char *name, const char *emitted, const char *complaints,
                        const char *proxyRows, const Scenario &scenario) {
        QTest::newRow(name) << scenario << QString::fromLatin1(emitted)
                            << QString::fromLatin1(complaints) << QString::fromLatin1(proxyRows);
    };
    row("more rows announced than arrive", "ins 3,5", "5 rows, not 6", "abcde.",
        letters("abc", [](auto &model) { model.appendRows(rows("dbe")); }));
    row("an id twice in the rows appended", "ins 3,4", "4 rows, not 5", "abcd.",
        letters("abc", [](auto &model) { model.appendRows(rows("dD")); }));
    row("an id twice in the rows that replace nothing", "ins 0,2", "2 rows, not 3", "ab.",
        letters("", [](auto &model) { model.replace(rows("abA")); }));
    row("a known id inserted at the end", "ins 3,4", "4 rows, not 5", "abcd.",
        letters("abc", [](auto &model) { model.insertRows(3, rows("dA")); }));
    row("new rows with an id twice", "chg 0,0 | ins 3,4", "4 rows, not 5", "abcd.",
        letters("abc", [](auto &model) { model.appendOrUpdate(rows("dd")); }));
    row("row 0 reported, which isn't there", "chg -1,-1", "invalid topLeft", "",
        letters("", [](auto &model) { model.appendOrUpdate({}); }));
    row("row 0 reported before the first rows come", "chg -1,-1 | ins 0,1", "invalid topLeft", "ab",
        letters("", [](auto &model) { model.appendOrUpdate(rows("ab")); }));
    row("rows removed below a row", "rem 0,0 below 0", "0 rows, not -1", "bc.",
        letters("abc", [](auto &model) { model.removeRows(0, 1, model.index(0)); }));
    row("pages: a size set", "ins 0,3", "0 rows, not 4", "....",
        pages(0, [](auto &model) { model.setSize(4); }));
    row("pages: a larger size set", "ins 4,5", "4 rows, not 6", "......",
        pages(4, [](auto &model) { model.setSize(6); }));
    row("pages: a smaller size set", "rem 2,3", "4 rows, not 2", "..",
        pages(4, [](auto &model) { model.setSize(2); }));
    row("pages: reset", "rem 0,3", "4 rows, not 0", "",
        pages(4, [](auto &model) { model.reset(); }));
    row("pages: paging set again", "rem 0,3", "4 rows, not 0", "",
        pages(4, [](auto &model) { model.setPagingConfig(2, 2); }));
    row("pages: an item past the end", "ins 4,5", "4 rows, not 6", ".....f",
        pages(4, [](auto &model) { model.setItemAtIndex(5, item("f")); }));
    row("pages: a page past the end", "ins 2,2 | ins 3,3", "2 rows, not 3 | 3 rows, not 4", "..cd",
        pages(2, [](auto &model) {
            model.setItemsAtPage(1, { item("c"), item("d") });
        }));
    row("pages: a short page before the end", "chg 2,2 | rem 3,8", "9 rows, not 3", "..c",
        pages(9, [](auto &model) { model.setItemsAtPage(1, { item("c") }); }));
}

void tst_ModelContract::breaksQtsContract()
{
    QFETCH(const Scenario, scenario);
    const ModelPointer model = scenario.make();
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(model.get());
    QCOMPARE(proxy.rowCount(), model->rowCount());
    QListView view;
    view.setModel(model.get());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    ModelLog log(*model);
    const Complaints complaints;
    const QAbstractItemModelTester tester(model.get(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    QCOMPARE(complaints.texts(), QStringList());
    scenario.run(*model);
    QCoreApplication::processEvents();
    QTEST(log.take(), "emitted");
    QTEST(ModelLog::rows(proxy, letterRole), "proxyRows");
    QTEST(complaints.ofTester(), "complaints");
}

void tst_ModelContract::breaksQtsContractWithRowsBelowItsRows()
{
    LazyLetterModel model(2, 3, 4);
    const Complaints complaints;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    QCOMPARE(complaints.ofTester(), QStringLiteral("invalid childIndex"));
}

void tst_ModelContract::letsRowsThatGrowTheListBypassAFilter()
{
    FlatLazyLetterModel model(2, 3, 4);
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    proxy.setFilterRole(letterRole);
    proxy.setFilterFixedString(QStringLiteral("f"));
    QCOMPARE(proxy.rowCount(), 0);
    QVERIFY(model.setItemAtIndex(5, new CountedItem(QStringLiteral("f"))));
    QCOMPARE(ModelLog::rows(proxy, letterRole), QStringLiteral(".f"));
    proxy.invalidate();
    QCOMPARE(ModelLog::rows(proxy, letterRole), QStringLiteral("f"));
}

void tst_ModelContract::paintsNothingWhenNothingIsReplaced()
{
    LetterListModel model(QStringLiteral("abcd"));
    PaintNotingView view;
    view.setRootIsDecorated(false);
    view.setModel(&model);
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.viewport()->repaint();
    view.painted = QRegion();
    model.replace(rows("abcd"));
    // An update that the first replace() asked for would be painted with this row.
    model.replace(rows("abCd"));
    QTRY_VERIFY(!view.painted.isEmpty());
    QCOMPARE(view.painted, QRegion(view.visualRect(model.index(2))));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_ModelContract)
#include "moc_tst_modelcontract.cpp"

// SPDX-License-Identifier: Apache-2.0
#include "ModelChanges.h"
#include "ModelScenario.h"
#include "support/TestMain.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

#include <memory>

using namespace ModelScenarios;

namespace {

/// A list view that shows the role "letter" of any model.
constexpr char listView[] = R"(
    import QtQuick 2.15
    ListView {
        id: list
        width: 100; height: 1000
        model: given
        delegate: Text { text: letter === undefined ? "." : letter; height: 10 }
        function text() {
            var texts = "";
            for (var i = 0; i < count; ++i)
                texts += itemAtIndex(i).text;
            return texts;
        }
        %1
    })";

/// The same with a repeater. A row that it makes no item for is a question mark.
constexpr char repeater[] = R"(
    import QtQuick 2.15
    Column {
        Repeater {
            id: repeater
            model: given
            delegate: Text { text: letter === undefined ? "." : letter; height: 10 }
        }
        function text() {
            var texts = "";
            for (var i = 0; i < repeater.count; ++i)
                texts += repeater.itemAt(i) ? repeater.itemAt(i).text : "?";
            return texts;
        }
    })";

/// A scene with such a view, whose texts and properties can be read.
class Scene
{
public:
    explicit Scene(QObject *model, const char *more = "", const char *view = listView)
    {
        m_engine.rootContext()->setContextProperty(QStringLiteral("given"), model);
        QQmlComponent component(&m_engine);
        component.setData(QByteArray(view).replace("%1", more), QUrl());
        m_item.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!m_item)
            qWarning().noquote() << component.errorString();
    }

    QVariant property(const char *name) const { return m_item->property(name); }

    /// Returns the letters that the view shows.
    QString text() const
    {
        QMetaObject::invokeMethod(m_item.get(), "forceLayout");
        QVariant text;
        QMetaObject::invokeMethod(m_item.get(), "text", Q_RETURN_ARG(QVariant, text));
        return text.toString();
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickItem> m_item;
};

} // namespace

/// The models in QML, without wrappers.
class tst_ModelsInQml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsABaseListModel();
    void readsAndWritesCountAndHeader();
    void showsASmallListModel();
    void showsAPagedModel();
    void receivesRequestsForMissingPages();
    void showsTheTailThroughAProxy();
    void makesAProxyItself();
    void showsTheEmptyState();

    void showsChangesThatBreakQtsContract_data();
    void showsChangesThatBreakQtsContract();
    void showsTheTrueRowsAfterAReset();
    void leavesRowsEmptyThatAreAddedWhileARepeaterIsAttached();
};

void tst_ModelsInQml::showsABaseListModel()
{
    LetterListModel model(QStringLiteral("abc"));
    const Scene scene(&model);
    QCOMPARE(scene.text(), QStringLiteral("abc"));
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("de")));
    QCOMPARE(scene.text(), QStringLiteral("abcde"));
    model.insertRows(0, LetterListModel::rowsOf(QStringLiteral("x")));
    QCOMPARE(scene.text(), QStringLiteral("xabcde"));
    model.appendOrUpdate(LetterListModel::rowsOf(QStringLiteral("Bf")));
    QCOMPARE(scene.text(), QStringLiteral("xaBcdef"));
    model.removeRows(1, 3);
    QCOMPARE(scene.text(), QStringLiteral("xdef"));
    model.setRoleValueForRow("e", { { LetterListModel::Letter, QStringLiteral("E") } });
    QCOMPARE(scene.text(), QStringLiteral("xdEf"));
    model.replace(LetterListModel::rowsOf(QStringLiteral("xDEfgh")));
    QCOMPARE(scene.text(), QStringLiteral("xDEfgh"));
    model.clear();
    QCOMPARE(scene.text(), QString());
}

void tst_ModelsInQml::readsAndWritesCountAndHeader()
{
    LetterListModel model(QStringLiteral("abc"));
    const Scene scene(&model, R"(
        property string summary: given.header + " " + given.count
        Component.onCompleted: given.header = "Letters"
    )");
    QCOMPARE(scene.property("summary").toString(), QStringLiteral("Letters 3"));
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("d")));
    model.setHeader(QStringLiteral("More"));
    QCOMPARE(scene.property("summary").toString(), QStringLiteral("More 4"));
}

void tst_ModelsInQml::showsASmallListModel()
{
    const auto row = [](const char *letter) {
        return std::unordered_map<int, QVariant> { { 257, QLatin1String(letter) } };
    };
    SmallListModel model({ { 257, "letter" } }, nullptr, QVariant());
    const Scene scene(&model);
    model.add({ row("a"), row("b"), row("a") });
    QCOMPARE(scene.text(), QStringLiteral("aba"));
    model.remove({ row("a") });
    QCOMPARE(scene.text(), QStringLiteral("ba"));
    model.replace({ row("x") });
    QCOMPARE(scene.text(), QStringLiteral("x"));
}

void tst_ModelsInQml::showsAPagedModel()
{
    LazyLetterModel model(2, 2, 4);
    const Scene scene(&model);
    QCOMPARE(scene.text(), QStringLiteral("...."));
    model.setItemsAtPage(1, LazyLetterModel::itemsOf(QStringLiteral("cd")));
    model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("ab")));
    QCOMPARE(scene.text(), QStringLiteral("abcd"));
    model.setSize(6);
    QCOMPARE(scene.text(), QStringLiteral("abcd.."));
    model.setSize(3);
    QCOMPARE(scene.text(), QStringLiteral("abc"));
    QVERIFY(model.setItemAtIndex(3, new CountedItem(QStringLiteral("D"))));
    QCOMPARE(scene.text(), QStringLiteral("abcD"));
    model.reset();
    QCOMPARE(scene.text(), QString());
}

void tst_ModelsInQml::receivesRequestsForMissingPages()
{
    LazyLetterModel model(2, 2, 100);
    const Scene scene(&model, R"(
        property string asked
        Connections {
            target: given
            function onLoadPages(pages) { list.asked += "pages " + pages.join() + ";" }
            function onLoadStorageAtPage(page) { list.asked += "from " + page + ";" }
        }
    )");
    model.setScrolledIndex(4);
    model.setScrolledIndex(50);
    QCOMPARE(scene.property("asked").toString(), QStringLiteral("pages 2;from 24;"));
}

void tst_ModelsInQml::showsTheTailThroughAProxy()
{
    LetterListModel source(QStringLiteral("abcde"));
    OverflowListProxyModel proxy(nullptr, 2);
    proxy.setSourceModel(&source);
    const Scene scene(&proxy, R"(
        property string summary: given.header + " " + given.firstVisibleIndex
    )");
    QCOMPARE(scene.text(), QStringLiteral("de"));
    proxy.setFirstVisibleIndex(0);
    proxy.setHeader(QStringLiteral("More"));
    QCOMPARE(scene.text(), QStringLiteral("bcde"));
    QCOMPARE(scene.property("summary").toString(), QStringLiteral("More 0"));
    source.appendRows(LetterListModel::rowsOf(QStringLiteral("f")));
    QCOMPARE(scene.text(), QStringLiteral("bcdef"));
    proxy.unsetSourceModel();
    QCOMPARE(scene.text(), QString());
}

void tst_ModelsInQml::makesAProxyItself()
{
    qmlRegisterType<OverflowListProxyModel>("Test", 1, 0, "OverflowListProxyModel");
    LetterListModel source(QStringLiteral("abcde"));
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(QStringLiteral("given"), &source);
    QQmlComponent component(&engine);
    component.setData("import Test 1.0\n"
                      "OverflowListProxyModel { sourceModel: given; firstVisibleIndex: 3;"
                      " header: 'More' }",
                      QUrl());
    const std::unique_ptr<QObject> made(component.create());
    QVERIFY2(made, qPrintable(component.errorString()));
    const auto *proxy = qobject_cast<OverflowListProxyModel *>(made.get());
    QVERIFY(proxy);
    QCOMPARE(ModelLog::rows(*proxy, LetterListModel::Letter), QStringLiteral("e"));
    QCOMPARE(proxy->header(), QStringLiteral("More"));
}

void tst_ModelsInQml::showsTheEmptyState()
{
    EmptyStateLetters model;
    model.setProperty("emptyStateHeader", QStringLiteral("Nothing here"));
    const Scene scene(&model, R"(
        property string summary: given.count > 0 ? "" : given.emptyStateHeader + "/"
            + given.emptyStateSubtitle + "/" + given.emptyStateImage + "/"
            + given.emptyStateImageSize.width + "x" + given.emptyStateImageSize.height
        Component.onCompleted: {
            given.emptyStateImage = "qrc:/empty.svg"
            given.emptyStateImageSize = Qt.size(16, 24)
        }
    )");
    QCOMPARE(scene.property("summary").toString(),
             QStringLiteral("Nothing here//qrc:/empty.svg/16x24"));
    model.setProperty("emptyStateSubtitle", QStringLiteral("Yet"));
    QCOMPARE(scene.property("summary").toString(),
             QStringLiteral("Nothing here/Yet/qrc:/empty.svg/16x24"));
    model.appendRows(LetterListModel::rowsOf(QStringLiteral("a")));
    QCOMPARE(scene.property("summary").toString(), QString());
    QCOMPARE(scene.text(), QStringLiteral("a"));
}

void tst_ModelsInQml::showsChangesThatBreakQtsContract_data()
{
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("inListView");
    QTest::addColumn<QString>("inRepeater");
    QTest::addColumn<QString>("skipped");
    const auto row = [](const char *name, const char *rows, const char *inListView,
                        const char *inRepeater, const Scenario &scenario,
                        const char *skipped = "") {
        QTest::newRow(name) << scenario << QString::fromLatin1(rows)
                            << QString::fromLatin1(inListView) << QString::fromLatin1(inRepeater)
                            << QString::fromLatin1(skipped);
    };
    row("more rows announced than arrive", "abcde", "abcde.", "abcde.",
        letters("abc", [](auto &model) { model.appendRows(rows("dbe")); }), "b");
    row("a known id inserted at the end", "abcd", "abcd.", "abcd.",
        letters("abc", [](auto &model) { model.insertRows(3, rows("dA")); }), "a");
    row("an id twice in the rows that replace nothing", "ab", "ab.", "ab.",
        letters("", [](auto &model) { model.replace(rows("abA")); }), "a");
    row("new rows with an id twice", "abcd", "abcd.", "abcd.",
        letters("abc", [](auto &model) { model.appendOrUpdate(rows("dd")); }), "d");
    row("row 0 reported, which isn't there", "", "", "",
        letters("", [](auto &model) { model.appendOrUpdate({}); }));
    row("row 0 reported before the first rows come", "ab", "ab", "ab",
        letters("", [](auto &model) { model.appendOrUpdate(rows("ab")); }));
    row("rows removed below a row", "bc", "abc", "abc",
        letters("abc", [](auto &model) { model.removeRows(0, 1, model.index(0)); }));
    row("pages: a size set", "....", "....", "....",
        pages(0, [](auto &model) { model.setSize(4); }));
    row("pages: a larger size set", "......", "......", "......",
        pages(4, [](auto &model) { model.setSize(6); }));
    row("pages: a smaller size set", "..", "..", "..",
        pages(4, [](auto &model) { model.setSize(2); }));
    row("pages: reset", "", "", "", pages(4, [](auto &model) { model.reset(); }));
    row("pages: paging set again", "", "", "",
        pages(4, [](auto &model) { model.setPagingConfig(2, 2); }));
    row("pages: an item past the end", ".....f", ".....f", "......",
        pages(4, [](auto &model) { model.setItemAtIndex(5, item("f")); }));
    row("pages: a page past the end", "..cd", "..cd", "....", pages(2, [](auto &model) {
            model.setItemsAtPage(1, { item("c"), item("d") });
        }));
    row("pages: a short page before the end", "..c", "..c", "..c",
        pages(9, [](auto &model) { model.setItemsAtPage(1, { item("c") }); }));
}

void tst_ModelsInQml::showsChangesThatBreakQtsContract()
{
    QFETCH(const Scenario, scenario);
    const auto model = scenario.make();
    const Scene list(model.get());
    const Scene repeated(model.get(), "", repeater);
    QCOMPARE(list.text(), repeated.text());
    QFETCH(const QString, skipped);
    expectSkipped(skipped);
    scenario.run(*model);
    QTEST(ModelLog::rows(*model, letterRole), "rows");
    QTEST(list.text(), "inListView");
    QTEST(repeated.text(), "inRepeater");
}

void tst_ModelsInQml::showsTheTrueRowsAfterAReset()
{
    LetterListModel model(QStringLiteral("abc"));
    const Scene list(&model);
    const Scene repeated(&model, "", repeater);
    expectSkipped(QStringLiteral("a"));
    model.appendRows(rows("ad"));
    model.appendRows(rows("e"));
    QCOMPARE(list.text(), QStringLiteral("abcde."));
    QCOMPARE(repeated.text(), QStringLiteral("abcde."));
    model.clear();
    model.appendRows(rows("xy"));
    QCOMPARE(list.text(), QStringLiteral("xy"));
    QCOMPARE(repeated.text(), QStringLiteral("xy"));
}

// The repeater places its items while the model still has the old number of rows.
void tst_ModelsInQml::leavesRowsEmptyThatAreAddedWhileARepeaterIsAttached()
{
    FlatLazyLetterModel model(2, 3, 2);
    const Scene list(&model);
    const Scene attached(&model, "", repeater);
    model.setSize(4);
    model.setItemsAtPage(0, LazyLetterModel::itemsOf(QStringLiteral("ab")));
    model.setItemsAtPage(1, LazyLetterModel::itemsOf(QStringLiteral("cd")));
    QCOMPARE(list.text(), QStringLiteral("abcd"));
    QCOMPARE(attached.text(), QStringLiteral("ab.."));
    const Scene attachedLater(&model, "", repeater);
    QCOMPARE(attachedLater.text(), QStringLiteral("abcd"));
    model.setItemAtIndex(3, item("D"));
    QCOMPARE(attachedLater.text(), QStringLiteral("abcD"));
}

UIELEMENTS_TEST_MAIN_WITH(QApplication, tst_ModelsInQml)
#include "tst_modelsinqml.moc"

// SPDX-License-Identifier: Apache-2.0
#include "tst_modelcontract.h"

#include "ModelScenario.h"

#include <QMetaMethod>
#include <QPointer>
#include <QTest>

using namespace ModelScenarios;

namespace {

/// Deletes an object when a signal is emitted for the nth time.
class Deleter : public QObject
{
    Q_OBJECT

public:
    Deleter(QObject *victim, int emission) : m_victim(victim), m_emission(emission) { }

    void listenTo(const QObject &sender, const QMetaMethod &signal) const
    {
        const int slot = staticMetaObject.indexOfSlot("hear()");
        QObject::connect(&sender, signal, this, staticMetaObject.method(slot));
    }

public Q_SLOTS:
    void hear()
    {
        if (--m_emission == 0)
            delete m_victim.data();
    }

private:
    QPointer<QObject> m_victim;
    int m_emission;
};

/// After these signals, Qt's own functions use the model.
bool isFollowedByQt(const QAbstractItemModel &model, const QMetaMethod &signal)
{
    const QByteArray name = signal.name();
    const bool isOfQtsProxy = qobject_cast<const QSortFilterProxyModel *>(&model)
            && signal.methodIndex() < OverflowListProxyModel::staticMetaObject.methodOffset();
    return isOfQtsProxy || name == "destroyed" || name == "rowsAboutToBeInserted"
            || name == "rowsAboutToBeRemoved";
}

/// Runs \a scenario with a slot that deletes the model, or its parent, at the nth emission of the
/// signal with the number \a method. Returns whether there was one.
bool deletesAt(const Scenario &scenario, int method, int emission, bool withParent)
{
    const QPointer<QObject> parent = new QObject;
    const QPointer<QAbstractItemModel> model = scenario.make().release();
    model->setParent(parent);
    const QMetaMethod signal = model->metaObject()->method(method);
    const Deleter deleter(withParent ? parent.data() : model.data(), emission);
    const bool isSignal = signal.methodType() == QMetaMethod::Signal
            && !(signal.attributes() & QMetaMethod::Cloned);
    if (isSignal && !isFollowedByQt(*model, signal)) {
        deleter.listenTo(*model, signal);
        scenario.run(*model);
    }
    const bool isDeleted = !model;
    delete parent.data();
    return isDeleted;
}

} // namespace

void tst_ModelContract::letsASlotDeleteTheModel_data()
{
    QTest::addColumn<Scenario>("scenario");
    QTest::addColumn<QString>("deletions");
    const auto row = [](const char *name, const char *deletions, const Scenario &scenario) {
        QTest::newRow(name) << scenario << QString::fromLatin1(deletions);
    };
    row("rows appended", "rowsInserted countChanged",
        letters("abc", [](auto &model) { model.appendRows(rows("de")); }));
    row("rows updated in two runs and appended",
        "dataChanged dataChanged rowsInserted countChanged",
        letters("abcd", [](auto &model) { model.appendOrUpdate(rows("BDe")); }));
    row("rows inserted", "rowsInserted countChanged",
        letters("abcd", [](auto &model) { model.insertRows(1, rows("xy")); }));
    row("rows replaced by more", "dataChanged dataChanged rowsInserted countChanged",
        letters("abcd", [](auto &model) { model.replace(rows("AbCdef")); }));
    row("rows replaced by fewer", "dataChanged dataChanged rowsRemoved countChanged",
        letters("abcd", [](auto &model) { model.replace(rows("xbC")); }));
    row("rows removed", "rowsRemoved countChanged",
        letters("abcd", [](auto &model) { model.removeRows(1, 2); }));
    row("cleared", "modelAboutToBeReset modelReset countChanged",
        letters("abcd", [](auto &model) { model.clear(); }));
    row("a role written", "dataChanged", letters("abcd", [](auto &model) {
            model.setRoleValueForRow("b", { { letterRole, 1 } });
        }));
    row("a value set", "dataChanged",
        letters("abcd", [](auto &model) { model.setData(model.index(1), 1, letterRole); }));
    row("a header set", "headerChanged",
        letters("", [](auto &model) { model.setHeader(QStringLiteral("More")); }));
    row("empty state: a text set", "emptyStateDataChanged", emptyState([](auto &model) {
            model.setProperty("emptyStateHeader", QStringLiteral("Nothing here"));
        }));

    const Rows small2(2, { { letterRole, QStringLiteral("a") } });
    row("small: rows added", "rowsInserted", small([](auto &model) { model.add(Rows(2)); }));
    row("small: rows removed", "rowsRemoved rowsRemoved",
        small([small2](auto &model) { model.remove(small2); }));
    row("small: replaced", "modelAboutToBeReset modelReset",
        small([](auto &model) { model.replace(Rows(3)); }));
    row("small: cleared", "modelAboutToBeReset modelReset",
        small([](auto &model) { model.clear(); }));

    row("tail: it begins later", "firstVisibleIndexChanged",
        tail([](auto &proxy, auto &) { proxy.setFirstVisibleIndex(3); }));
    row("tail: a header set", "headerChanged",
        tail([](auto &proxy, auto &) { proxy.setHeader(QStringLiteral("More")); }));

    row("pages: a larger size set", "rowsInserted",
        pages(4, [](auto &model) { model.setSize(6); }));
    row("pages: a smaller size set", "rowsRemoved",
        pages(4, [](auto &model) { model.setSize(2); }));
    row("pages: reset", "rowsRemoved", pages(4, [](auto &model) { model.reset(); }));
    row("pages: paging set again", "rowsRemoved",
        pages(4, [](auto &model) { model.setPagingConfig(2, 2); }));
    row("pages: an item arrived", "dataChanged",
        pages(4, [](auto &model) { model.setItemAtIndex(1, item("b")); }));
    row("pages: an item past the end", "rowsInserted",
        pages(4, [](auto &model) { model.setItemAtIndex(5, item("f")); }));
    row("pages: a page past the end", "rowsInserted rowsInserted", pages(2, [](auto &model) {
            model.setItemsAtPage(1, { item("c"), item("d") });
        }));
    row("pages: a short page before the end", "dataChanged rowsRemoved",
        pages(9, [](auto &model) { model.setItemsAtPage(1, { item("c") }); }));
    row("pages: the window moved up", "loadPages", pages(99, [](auto &model) {
            model.blockSignals(true);
            model.setScrolledIndex(6);
            model.blockSignals(false);
            model.setScrolledIndex(4);
        }));
    row("pages: the window moved down", "loadPages",
        pages(99, [](auto &model) { model.setScrolledIndex(4); }));
    row("pages: the window moved elsewhere", "loadStorageAtPage",
        pages(99, [](auto &model) { model.setScrolledIndex(70); }));
}

// Deleting the model deletes what the call has handed to it, which counted items check. The address
// sanitizer checks that nothing of the deleted model is used.
void tst_ModelContract::letsASlotDeleteTheModel()
{
    QFETCH(const Scenario, scenario);
    const int methods = scenario.make()->metaObject()->methodCount();
    QStringList deletions;
    for (int method = 0; method < methods; ++method) {
        const QMetaMethod signal = scenario.make()->metaObject()->method(method);
        for (int emission = 1; deletesAt(scenario, method, emission, false); ++emission) {
            QVERIFY(deletesAt(scenario, method, emission, true));
            deletions += QString::fromLatin1(signal.name());
        }
    }
    QTEST(deletions.join(QLatin1Char(' ')), "deletions");
    QCOMPARE(CountedItem::alive, 0);
}

#include "tst_modelcontract_deletion.moc"

// SPDX-License-Identifier: Apache-2.0
#include "SignalTriggers.h"

// Signals that say what is about to change are left out, and those of a proxy that its filter
// causes: Qt goes on with the model after them.

#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/models/LazyLoadedListModel.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/models/SmallListModel.h>

#include <QStandardItem>
#include <QStringListModel>

namespace {

constexpr int role = Qt::UserRole + 1;

constexpr char rowsInserted[] = "rowsInserted(QModelIndex,int,int)";
constexpr char rowsRemoved[] = "rowsRemoved(QModelIndex,int,int)";
constexpr char dataChanged[] = "dataChanged(QModelIndex,QModelIndex,QVector<int>)";
constexpr char modelReset[] = "modelReset()";
constexpr char countChanged[] = "countChanged(int)";

/// Returns a row for each letter of \a letters; its id is the letter in lower case.
std::vector<ModelRow> rowsOf(const QString &letters)
{
    std::vector<ModelRow> rows;
    for (const QChar letter : letters)
        rows.push_back(
                { std::string(1, letter.toLower().toLatin1()), { { role, QString(letter) } } });
    return rows;
}

void fill(BaseListModel &model) { model.replace(rowsOf(QStringLiteral("abcde"))); }

void insertRows(BaseListModel &model) { model.insertRows(1, rowsOf(QStringLiteral("xy"))); }
void removeRows(BaseListModel &model) { model.removeRows(1, 2); }
void clear(BaseListModel &model) { model.clear(); }
void appendRows(BaseListModel &model) { model.appendRows(rowsOf(QStringLiteral("xy"))); }

/// Changes two runs of rows and appends one.
void appendOrUpdate(BaseListModel &model) { model.appendOrUpdate(rowsOf(QStringLiteral("ACx"))); }

void replaceByFewer(BaseListModel &model) { model.replace(rowsOf(QStringLiteral("AbC"))); }
void replaceByMore(BaseListModel &model) { model.replace(rowsOf(QStringLiteral("AbCdexy"))); }
void replaceByOthers(BaseListModel &model) { model.replace(rowsOf(QStringLiteral("AbxdE"))); }
void replaceByNone(BaseListModel &model) { model.replace({}); }

void setRole(BaseListModel &model)
{
    model.setRoleValueForRow(std::string("b"), { { role, QStringLiteral("x") } });
}

/// What changes the rows of a BaseListModel, and the signals that tell of it.
struct Change
{
    const char *cause;
    Act<BaseListModel> run;
    std::vector<const char *> signalNames;
};

void addBaseListTriggers(SignalTriggers &rows)
{
    const Change changes[] = {
        { "appendRows()", appendRows, { rowsInserted, countChanged } },
        { "insertRows()", insertRows, { rowsInserted, countChanged } },
        { "removeRows()", removeRows, { rowsRemoved, countChanged } },
        { "clear()", clear, { modelReset, countChanged } },
        { "appendOrUpdate()", appendOrUpdate, { dataChanged, rowsInserted, countChanged } },
        { "replace() by fewer", replaceByFewer, { dataChanged, rowsRemoved, countChanged } },
        { "replace() by more", replaceByMore, { dataChanged, rowsInserted, countChanged } },
        { "replace() by others", replaceByOthers, { dataChanged } },
        { "replace() by none", replaceByNone, { modelReset, countChanged } },
        { "setRoleValueForRow()", setRole, { dataChanged } },
    };
    for (const Change &change : changes) {
        for (const char *signal : change.signalNames)
            rows.push_back(row<BaseListModel>(signal, change.cause, change.run, fill));
    }
    rows.push_back(row<BaseListModel>("headerChanged()", "its setter", [](BaseListModel &model) {
        model.setHeader(QStringLiteral("header"));
    }));
    rows.push_back(row<EmptyStateBaseListModel>("emptyStateDataChanged()", "a property",
                                                [](EmptyStateBaseListModel &model) {
                                                    model.setProperty("emptyStateHeader",
                                                                      QStringLiteral("header"));
                                                }));
}

/// Pages of two rows, three of them in the window, of 20 rows.
void page(LazyLoadedListModel &model)
{
    model.setPagingConfig(2, 3);
    model.setSize(20);
}

QVector<QStandardItem *> items(int count)
{
    QVector<QStandardItem *> made;
    for (int i = 0; i < count; ++i)
        made += new QStandardItem;
    return made;
}

void addLazyListTriggers(SignalTriggers &rows)
{
    using Model = LazyLoadedListModel;
    const auto grow = [](Model &model) { model.setSize(30); };
    const auto shrink = [](Model &model) { model.setSize(3); };
    const auto scroll = [](Model &model) { model.setScrolledIndex(5); };
    const auto jump = [](Model &model) { model.setScrolledIndex(15); };
    const auto empty = [](Model &model) { model.setPagingConfig(2, 3); };
    const SignalTriggers own = {
        row<Model>("loadPages(QVector<int>)", "scrolling", scroll, page),
        row<Model>("loadStorageAtPage(int)", "a jump", jump, page),
        row<Model>(rowsInserted, "setSize()", grow, page),
        row<Model>(rowsRemoved, "setSize()", shrink, page),
        row<Model>(
                rowsRemoved, "reset()", [](Model &model) { model.reset(); }, page),
        row<Model>(rowsRemoved, "setPagingConfig()", empty, page),
        row<Model>(
                dataChanged, "setItemsAtPage()",
                [](Model &model) { model.setItemsAtPage(1, items(2)); }, page),
        row<Model>(
                rowsInserted, "setItemsAtPage()",
                [](Model &model) { model.setItemsAtPage(0, items(2)); }, empty),
        row<Model>(
                rowsRemoved, "setItemsAtPage() with a short page",
                [](Model &model) { model.setItemsAtPage(1, items(1)); }, page),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

void addSmallListTriggers(SignalTriggers &rows)
{
    using Model = SmallListModel;
    static const SmallListModel::Row one { { role, 1 } };
    static const SmallListModel::Row two { { role, 2 } };
    const auto fillIt = [](Model &model) { model.add({ one, two }); };
    const SignalTriggers own = {
        row<Model>(rowsInserted, "add()", fillIt),
        row<Model>(
                rowsRemoved, "remove()",
                [](Model &model) {
                    model.remove({ one, two });
                },
                fillIt),
        row<Model>(modelReset, "replace()", [](Model &model) { model.replace({ one }); }),
        row<Model>(modelReset, "clear()", [](Model &model) { model.clear(); }),
    };
    rows.insert(rows.end(), own.begin(), own.end());
}

void addProxyTriggers(SignalTriggers &rows)
{
    using Model = OverflowListProxyModel;
    rows.push_back(row<Model>(
            "firstVisibleIndexChanged()", "its setter",
            [](Model &model) { model.setFirstVisibleIndex(1); },
            [](Model &model) {
                model.setSourceModel(
                        new QStringListModel({ QStringLiteral("a"), QStringLiteral("b"),
                                               QStringLiteral("c") },
                                             &model));
            }));
    rows.push_back(row<Model>("headerChanged()", "its setter",
                              [](Model &model) { model.setHeader(QStringLiteral("header")); }));
}

} // namespace

void addModelTriggers(SignalTriggers &rows)
{
    addBaseListTriggers(rows);
    addLazyListTriggers(rows);
    addSmallListTriggers(rows);
    addProxyTriggers(rows);
}

// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <UiElements/widgets/OxaListView.h>
#include <UiElements/widgets/OxaListWidget.h>

#include <QAccessible>
#include <QStringListModel>

#include <memory>
#include <vector>

namespace {

QStringList texts(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts += QStringLiteral("Message %1").arg(i);
    return texts;
}

std::unique_ptr<OxaListView> makeView(int rows)
{
    auto view = std::make_unique<OxaListView>();
    view->setModel(new QStringListModel(texts(rows), view.get()));
    return view;
}

std::unique_ptr<OxaListWidget> makeList(int rows)
{
    auto list = std::make_unique<OxaListWidget>();
    list->addItems(texts(rows));
    return list;
}

/// Reads \a list as a screen reader does that collects all of it. Returns how many rows answer.
int read(QWidget &list)
{
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&list);
    const int count = told->childCount();
    int answers = 0;
    for (int i = 0; i < count; ++i) {
        const QAccessibleInterface *row = told->child(i);
        answers += int(row->text(QAccessible::Name) == QStringLiteral("Message %1").arg(i)
                       && row->role() == QAccessible::ListItem && row->state().selectable
                       && row->rect().isValid() && row->parent() == told
                       && told->indexOfChild(row) == i);
    }
    return answers;
}

template <typename Make>
void readRows(benchmark::State &state, Make make)
{
    QAccessible::setActive(true);
    Comparison comparison(state);
    for (auto _ : state) {
        // New ones for each round: of known rows Qt keeps what it has made.
        const auto one = make(1000);
        std::vector<decltype(make(0))> ten;
        for (int i = 0; i < 10; ++i)
            ten.push_back(make(100));
        one->show();
        for (const auto &list : ten)
            list->show();
        int oursAnswers = 0;
        int peerAnswers = 0;
        comparison.round([&] { oursAnswers = read(*one); },
                         [&] {
                             for (const auto &list : ten)
                                 peerAnswers += read(*list);
                         });
        if (oursAnswers != 1000 || peerAnswers != 1000) {
            state.SkipWithError("a row is not told");
            break;
        }
    }
    comparison.ratioAtMost(1.2);
}
BENCHMARK_CAPTURE(readRows, view, makeView)
        ->Name("1,000 rows of an OxaListView, read by assistive technology/10 times 100 rows")
        ->Iterations(50)
        ->UseManualTime();
BENCHMARK_CAPTURE(readRows, list, makeList)
        ->Name("1,000 rows of an OxaListWidget, read by assistive technology/10 times 100 rows")
        ->Iterations(50)
        ->UseManualTime();

} // namespace

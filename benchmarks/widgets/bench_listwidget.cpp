// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaLabel.h>
#include <UiElements/widgets/OxaListWidget.h>

#include <QCoreApplication>
#include <QScrollBar>

#include <malloc.h>

#include <memory>
#include <vector>

namespace {

constexpr int chatLength = 100000;
constexpr int pageRows = 14;
constexpr int rowHeight = 30;
constexpr QSize listSize(400, pageRows *rowHeight);

QListWidgetItem *makeItem(int row)
{
    auto *item = new QListWidgetItem(QStringLiteral("Message %1").arg(row));
    item->setSizeHint(QSize(100, rowHeight));
    return item;
}

OxaLabel *makeRow(const QListWidgetItem &item, QWidget *parent)
{
    auto *label = new OxaLabel(parent);
    label->setCSS(
            QStringLiteral("$backgroundColors: set-1; $textColors: set-2; $borderRadius: 4;"));
    label->setText(item.text());
    return label;
}

void prepare(QListWidget &list)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    list.setFrameShape(QFrame::NoFrame);
    list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.resize(listSize);
}

/// A list that loads the widgets of its rows.
class Chat : public OxaListWidget
{
public:
    explicit Chat(int rows = 0) : OxaListWidget(nullptr, false)
    {
        prepare(*this);
        setItemWidgetsDynamicLoadingEnabled(true);
        connect(this, &OxaListWidget::updateItemWidget, this,
                [this](QListWidgetItem *item) { setItemWidget(item, makeRow(*item, viewport())); });
        if (rows > 0)
            fill(rows);
    }

    void fill(int rows)
    {
        beginInsert();
        for (int row = 0; row < rows; ++row)
            insertItem(row, makeItem(row));
        endInsert();
    }
};

/// A QListWidget of the same rows.
class PlainList : public QListWidget
{
public:
    explicit PlainList(int rows = 0)
    {
        prepare(*this);
        fill(rows);
    }

    void fill(int rows)
    {
        for (int row = 0; row < rows; ++row)
            insertItem(row, makeItem(row));
    }

    void loadFirstPage()
    {
        for (int row = 0; row < pageRows; ++row)
            setItemWidget(item(row), makeRow(*item(row), viewport()));
    }
};

/// The same list, whose user makes and places the widgets of a page.
class ListByHand : public OxaListWidget
{
public:
    explicit ListByHand(int rows) : OxaListWidget(nullptr, false)
    {
        prepare(*this);
        for (int row = 0; row < rows; ++row)
            insertItem(row, makeItem(row));
    }

    void loadPage(int firstRow)
    {
        for (OxaLabel *row : m_rows)
            row->deleteLater();
        m_rows.clear();
        for (int row = firstRow; row < firstRow + pageRows; ++row) {
            m_rows.push_back(makeRow(*item(row), viewport()));
            m_rows.back()->setGeometry(visualItemRect(item(row)));
            m_rows.back()->show();
        }
    }

private:
    std::vector<OxaLabel *> m_rows;
};

void finish(QWidget &list)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    list.repaint();
}

template <typename List>
void show(List &list)
{
    list.show();
    finish(list);
}

void scrollToPage(QListWidget &list, int page)
{
    list.verticalScrollBar()->setValue(page * pageRows * rowHeight);
}

void pages(benchmark::State &state)
{
    Chat ours(chatLength);
    ListByHand peer(chatLength);
    show(ours);
    show(peer);
    peer.loadPage(0);
    int page = 0;
    Comparison comparison(state);
    for (auto _ : state) {
        ++page;
        comparison.round(
                [&ours, page] {
                    scrollToPage(ours, page);
                    finish(ours);
                },
                [&peer, page] {
                    scrollToPage(peer, page);
                    peer.loadPage(page * pageRows);
                    finish(peer);
                });
    }
    if (ours.grab().toImage() != peer.grab().toImage())
        state.SkipWithError("the lists don't look the same");
    comparison.ratioAtMost(1.10);
}
BENCHMARK(pages)
        ->Name("a page of 14 row widgets in 100,000 rows/making and placing them by hand")
        ->Iterations(1000)
        ->UseManualTime();

void length(benchmark::State &state)
{
    Chat ours(int(state.range(0)));
    Chat peer(1000);
    show(ours);
    show(peer);
    int page = 0;
    const auto scroll = [&page](Chat &list) {
        scrollToPage(list, page % (1000 / pageRows));
        finish(list);
    };
    Comparison comparison(state);
    for (auto _ : state) {
        ++page;
        comparison.round([&] { scroll(ours); }, [&] { scroll(peer); });
    }
    comparison.ratioAtMost(1.10);
}
BENCHMARK(length)
        ->Name("a page of row widgets in a long list/in 1,000 rows")
        ->Arg(100000)
        ->Arg(1000000)
        ->Iterations(500)
        ->UseManualTime();

void firstPaint(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state) {
        Chat ours;
        ours.beginInsert();
        for (int row = 0; row < chatLength; ++row)
            ours.insertItem(row, makeItem(row));
        PlainList peer(chatLength);
        comparison.round(
                [&ours] {
                    ours.endInsert();
                    show(ours);
                },
                [&peer] {
                    peer.show();
                    peer.loadFirstPage();
                    finish(peer);
                });
    }
    comparison.ratioAtMost(1.15);
}
BENCHMARK(firstPaint)
        ->Name("the first paint of 100,000 rows/QListWidget and a page of row widgets")
        ->Iterations(20)
        ->UseManualTime();

void filling(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state) {
        Chat ours;
        PlainList peer;
        show(ours);
        show(peer);
        comparison.round(
                [&ours] {
                    ours.fill(chatLength);
                    finish(ours);
                },
                [&peer] {
                    peer.fill(chatLength);
                    peer.loadFirstPage();
                    finish(peer);
                });
    }
    comparison.ratioAtMost(1.05);
}
BENCHMARK(filling)
        ->Name("filling a shown list with 100,000 rows/QListWidget and a page of row widgets")
        ->Iterations(20)
        ->UseManualTime();

void insertion(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state) {
        Chat ours;
        PlainList peer;
        ours.beginInsert();
        comparison.round(
                [&ours] {
                    for (int row = 0; row < chatLength; ++row)
                        ours.insertItem(row, makeItem(row));
                },
                [&peer] { peer.fill(chatLength); });
    }
    comparison.ratioAtMost(1.05);
}
BENCHMARK(insertion)
        ->Name("insertItem() of 100,000 rows/QListWidget::insertItem()")
        ->Iterations(20)
        ->UseManualTime();

double heap() { return double(mallinfo2().uordblks) + double(mallinfo2().hblkhd); }

void memory(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state) {
        const double before = heap();
        std::vector<std::unique_ptr<QListWidgetItem>> items;
        items.reserve(chatLength);
        for (int row = 0; row < chatLength; ++row)
            items.emplace_back(makeItem(row));
        const double peer = heap() - before;
        items.clear();

        const double beforeList = heap();
        Chat ours(chatLength);
        show(ours);
        comparison.add(heap() - beforeList, peer);
    }
    comparison.excessAtMost(3e6, "B");
}
BENCHMARK(memory)
        ->Name("memory of a list of 100,000 rows/its items alone")
        ->Iterations(3)
        ->UseManualTime();

} // namespace

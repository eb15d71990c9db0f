// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"

#include <UiElements/models/LazyLoadedListModel.h>

#include <QStandardItem>

#include <malloc.h>

#include <vector>

namespace {

constexpr int pageSize = 50;
constexpr int storagePages = 5;
constexpr int windowSize = pageSize * storagePages;
constexpr int listSize = 10000000;

QVector<QStandardItem *> makePage(int page)
{
    QVector<QStandardItem *> items(pageSize);
    for (int i = 0; i < pageSize; ++i)
        items[i] = new QStandardItem(QString::number(page * pageSize + i));
    return items;
}

/// The lower bound: only the window, as a ring buffer without signals.
class Ring
{
public:
    Ring() : m_items(windowSize, nullptr) { }
    ~Ring() { qDeleteAll(m_items); }
    Q_DISABLE_COPY_MOVE(Ring)

    void scrollTo(int row)
    {
        const int page = std::max(row - pageSize, 0) / pageSize;
        const int first = page > m_firstPage ? m_firstPage
                                             : std::max(page + storagePages, m_firstPage);
        const int last = page > m_firstPage ? std::min(page, m_firstPage + storagePages)
                                            : m_firstPage + storagePages;
        for (int leaving = first; leaving < last; ++leaving)
            drop(leaving);
        const int firstNew = page > m_firstPage ? std::max(page, m_firstPage + storagePages) : page;
        const int lastNew = page > m_firstPage ? page + storagePages
                                               : std::min(page + storagePages, m_firstPage);
        m_firstPage = page;
        for (int missing = firstNew; missing < lastNew; ++missing)
            fill(missing);
    }

    const QStandardItem *at(int row) const { return m_items[std::size_t(row % windowSize)]; }

private:
    void drop(int page)
    {
        for (int row = page * pageSize; row < (page + 1) * pageSize; ++row)
            delete std::exchange(m_items[std::size_t(row % windowSize)], nullptr);
    }

    void fill(int page)
    {
        const QVector<QStandardItem *> items = makePage(page);
        std::copy(items.begin(), items.end(), m_items.begin() + (page * pageSize) % windowSize);
    }

    std::vector<QStandardItem *> m_items;
    int m_firstPage = 0;
};

/// The model with a client that answers at once.
class AnsweredModel : public LazyLoadedListModel
{
public:
    AnsweredModel()
    {
        connect(this, &LazyLoadedListModel::loadPages, this, [this](const QVector<int> &pages) {
            for (const int page : pages)
                setItemsAtPage(page, makePage(page));
        });
        connect(this, &LazyLoadedListModel::loadStorageAtPage, this, [this](int first) {
            for (int page = first; page < first + storagePages; ++page)
                setItemsAtPage(page, makePage(page));
        });
        setPagingConfig(pageSize, storagePages);
        setSize(listSize);
    }

    bool holdsTheSameAs(const Ring &ring) const
    {
        for (int row = getStartIndex(); row < getStartIndex() + windowSize; ++row) {
            const QStandardItem *item = getItemAt(row);
            const QStandardItem *other = ring.at(row);
            if (!item || !other || item->text() != other->text())
                return false;
        }
        return true;
    }
};

/// Scrolls page by page to the end of the list and back.
int nextInOrder(int row)
{
    static int step = pageSize;
    if (row + step > listSize / 2 + 1000 * pageSize || row + step < listSize / 2 - 1000 * pageSize)
        step = -step;
    return row + step;
}

/// Every fourth row is out of reach of the window, as when the scroll bar is dragged.
int nextWithJumps(int row)
{
    static int count = 0;
    return ++count % 4 == 0 ? (row + 1234567) % (listSize - windowSize) : row + pageSize;
}

void scroll(benchmark::State &state, int (*next)(int))
{
    AnsweredModel model;
    Ring ring;
    int row = listSize / 2;
    for (int i = 0; i < 100; ++i) {
        model.setScrolledIndex(row);
        ring.scrollTo(row);
        if (!model.holdsTheSameAs(ring))
            state.SkipWithError("the ring holds other items");
        row = next(row);
    }

    Comparison comparison(state);
    std::vector<int> rows(20);
    for (auto _ : state) {
        for (int &each : rows)
            each = row = next(row);
        comparison.round(
                [&] {
                    for (const int each : rows)
                        model.setScrolledIndex(each);
                },
                [&] {
                    for (const int each : rows)
                        ring.scrollTo(each);
                });
    }
    if (!model.holdsTheSameAs(ring))
        state.SkipWithError("the ring holds other items in the end");
    comparison.ratioAtMost(1.1);
}
BENCHMARK_CAPTURE(scroll, inOrder, nextInOrder)
        ->Name("scroll by a page/ring of items")
        ->Iterations(500)
        ->UseManualTime();
BENCHMARK_CAPTURE(scroll, withJumps, nextWithJumps)
        ->Name("scroll with jumps/ring of items")
        ->Iterations(500)
        ->UseManualTime();

/// Fills a window of \a pages pages, past the end of the list, and scrolls it out of sight.
void fillAndScroll(int pages)
{
    LazyLoadedListModel model;
    model.setPagingConfig(pageSize, unsigned(pages));
    for (int page = 0; page < pages; ++page)
        model.setItemsAtPage(page, makePage(page));
    for (int page = 1; page < pages; ++page)
        model.setScrolledIndex((page + 1) * pageSize);
    benchmark::DoNotOptimize(model.getItemAt(pages * pageSize - 1));
}

void windowGrowth(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([] { fillAndScroll(200); }, [] { fillAndScroll(50); });
    // Four times the rows, of which fewer fit the caches.
    comparison.ratioAtMost(8);
}
BENCHMARK(windowGrowth)
        ->Name("10,000 rows: fill and scroll the window/2,500 rows")
        ->Iterations(20)
        ->UseManualTime();

void memoryHeld(benchmark::State &state)
{
    Comparison comparison(state);
    for (auto _ : state) {
        const double before = double(mallinfo2().uordblks);
        AnsweredModel model;
        for (const int row : { listSize / 2, listSize / 2 + 3 * pageSize, 0, listSize - 1000 })
            model.setScrolledIndex(row);
        comparison.add(double(mallinfo2().uordblks) - before, 0);
    }
    comparison.excessAtMost(500000, "bytes");
}
BENCHMARK(memoryHeld)->Name("memory for 10,000,000 rows/nothing")->Iterations(5)->UseManualTime();

} // namespace

// SPDX-License-Identifier: Apache-2.0
#include "Tiles.h"
#include "support/Comparison.h"

#include <QCoreApplication>

#include <array>
#include <string>

namespace {

/// Returns two sizes of a window that shows all of 1,000 tiles, or many of more: Qt's cost of
/// moving visible widgets grows faster than their number.
std::array<QSize, 2> sizesFor(int count)
{
    if (count <= 1000)
        return { QSize(1300, 1000), QSize(1100, 1200) };
    return { QSize(2000, 1500), QSize(1700, 1800) };
}

/// Two windows of the same tiles: one moves them by its layout, the other to the same places.
class Pair
{
public:
    Pair(Tiles::Kind kind, int count)
        : m_sizes(sizesFor(count)), m_ours(kind, count), m_peer(kind, count)
    {
        for (std::size_t i = 0; i < 2; ++i) {
            m_ours.layout->setGeometry(QRect(QPoint(), m_sizes[i]));
            for (const QLayoutItem *item : m_ours.items)
                m_rects[i].push_back(item->geometry());
        }
        delete m_peer.layout;
        for (QObject *child : m_peer.children())
            m_peerTiles.push_back(static_cast<QWidget *>(child));
        // The platform does not enforce a minimum size.
        m_ours.layout->setSizeConstraint(QLayout::SetNoConstraint);
        for (QWidget *window :
             { static_cast<QWidget *>(&m_ours), static_cast<QWidget *>(&m_peer) }) {
            window->resize(m_sizes[0]);
            window->show();
        }
        QCoreApplication::processEvents();
    }

    void layOut() { m_ours.layout->setGeometry(QRect(QPoint(), m_sizes[m_oursAt = 1 - m_oursAt])); }

    void layOutAgain() { m_ours.layout->setGeometry(QRect(QPoint(), m_sizes[m_oursAt])); }

    void move()
    {
        m_peerAt = 1 - m_peerAt;
        const std::vector<QRect> &rects = m_rects[m_peerAt];
        for (std::size_t i = 0; i < rects.size(); ++i)
            m_peerTiles[i]->setGeometry(rects[i]);
    }

    /// Reads all tiles of both, since painting has evicted them from the processor's caches.
    void touch()
    {
        layOutAgain();
        for (QWidget *tile : m_peerTiles)
            tile->setGeometry(tile->geometry());
    }

    /// True when both move their tiles to the same places.
    bool agrees()
    {
        for (int i = 0; i < 2; ++i) {
            layOut();
            move();
            for (std::size_t j = 0; j < m_peerTiles.size(); ++j) {
                if (m_ours.items[j]->geometry() != m_peerTiles[j]->geometry())
                    return false;
            }
        }
        return m_rects[0].back() != m_rects[1].back();
    }

private:
    const std::array<QSize, 2> m_sizes;
    Tiles::Window m_ours;
    Tiles::Window m_peer;
    std::vector<QWidget *> m_peerTiles;
    std::vector<QRect> m_rects[2];
    std::size_t m_oursAt = 0;
    std::size_t m_peerAt = 0;
};

/// Every call moves every tile.
void moveTiles(benchmark::State &state, Tiles::Kind kind, int count)
{
    Pair pair(kind, count);
    if (!pair.agrees())
        state.SkipWithError("the layout moves tiles elsewhere than its peer");
    Comparison comparison(state);
    for (auto _ : state) {
        comparison.round([&] { pair.layOut(); }, [&] { pair.move(); });
        QCoreApplication::processEvents(); // The region to repaint grows with each move.
    }
    comparison.ratioAtMost(1.03);
}

/// A pass that finds everything in its place, compared with moving everything. Such a pass only
/// calls the items, which right after painting is limited by memory access.
void moveNothing(benchmark::State &state, Tiles::Kind kind, int count)
{
    Pair pair(kind, count);
    Comparison comparison(state);
    for (auto _ : state) {
        pair.touch();
        comparison.round([&] { pair.layOutAgain(); }, [&] { pair.move(); });
        QCoreApplication::processEvents();
    }
    comparison.ratioAtMost(0.1);
}

/// Ten times the items, compared with ten passes. A thousand items stay in the processor's caches
/// between passes, ten thousand do not.
void moveNothingOfManyItems(benchmark::State &state, Tiles::Kind kind)
{
    Pair many(kind, 10000);
    Pair few(kind, 1000);
    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&] { many.layOutAgain(); },
                         [&] {
                             for (int i = 0; i < 10; ++i)
                                 few.layOutAgain();
                         });
    comparison.ratioAtMost(2.0);
}

const bool areAdded = [] {
    for (const auto &[kind, name] : Tiles::kinds) {
        const std::string thing = std::string(name) + "::setGeometry, ";
        for (const auto &[count, countName] : Tiles::counts) {
            benchmark::RegisterBenchmark((thing + countName + " items/QWidget::setGeometry")
                                                 .c_str(),
                                         moveTiles, kind, count)
                    ->Iterations(count <= 1000 ? 100 : 20)
                    ->UseManualTime();
            benchmark::RegisterBenchmark((thing + "nothing of " + countName
                                          + " moves/QWidget::setGeometry")
                                                 .c_str(),
                                         moveNothing, kind, count)
                    ->Iterations(count <= 1000 ? 30 : 10)
                    ->UseManualTime();
        }
        benchmark::RegisterBenchmark((thing + "nothing of 10,000 moves/10 times 1,000").c_str(),
                                     moveNothingOfManyItems, kind)
                ->Iterations(100)
                ->UseManualTime();
    }
    return true;
}();

} // namespace

// SPDX-License-Identifier: Apache-2.0
#include "ButtonWindow.h"
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaProgressBar.h>
#include <UiElements/widgets/OxaSlider.h>

#include <QPainter>

namespace {

constexpr int widgetCount = 100;
constexpr int barCount = 20;
constexpr int filledCount = 13;

class Bar : public OxaProgressBar
{
public:
    explicit Bar(QWidget *parent) : OxaProgressBar(parent, barCount) { setValue(65); }
};

/// A progress bar that fills the rectangles of the other, which it knows, in colours that it knows.
class Rectangles : public QProgressBar
{
public:
    explicit Rectangles(QWidget *parent) : QProgressBar(parent)
    {
        const int step = (buttonSize.width() - 2) / (barCount - 1);
        for (int i = 0; i < barCount; ++i) {
            const int height = i < filledCount ? 8 : 6;
            m_rectangles.push_back({ i * step, buttonSize.height() / 2 - height / 2, 2, height });
        }
        m_filled = OxaThemeUtils::getColorSet("oxa-percentage-indicator-possessive", this).normal;
        m_idle = OxaThemeUtils::getColorSet("oxa-progressbar", this).normal;
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        for (int i = 0; i < barCount; ++i)
            painter.fillRect(m_rectangles[std::size_t(i)], i < filledCount ? m_filled : m_idle);
    }

private:
    std::vector<QRect> m_rectangles;
    QColor m_filled;
    QColor m_idle;
};

/// Compares the painting of windows that look the same.
template <typename Ours, typename Peer, typename Prepare>
void painting(benchmark::State &state, Prepare prepare)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    ButtonWindow<Ours> ours(widgetCount, prepare);
    ButtonWindow<Peer> peer(widgetCount, prepare);
    if (ours.picture() != peer.picture())
        state.SkipWithError("the widgets don't look the same");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([&ours] { ours.repaint(); }, [&peer] { peer.repaint(); });
    comparison.ratioAtMost(1.10);
}

void progressBars(benchmark::State &state)
{
    painting<Bar, Rectangles>(state, [](QProgressBar &) {});
}
BENCHMARK(progressBars)
        ->Name("repainting 100 progress bars/QPainter::fillRect of their rectangles")
        ->Iterations(2000)
        ->UseManualTime();

void sliders(benchmark::State &state)
{
    painting<OxaSlider, QSlider>(state, [](QSlider &slider) {
        slider.setOrientation(Qt::Horizontal);
        slider.setValue(30);
    });
}
BENCHMARK(sliders)->Name("repainting 100 sliders/QSlider")->Iterations(1000)->UseManualTime();

} // namespace

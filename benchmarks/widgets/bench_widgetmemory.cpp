// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/emoji/OxaEmojiLabel.h>
#include <UiElements/svg/OxaSvgLabel.h>
#include <UiElements/svg/OxaSvgPushButton.h>
#include <UiElements/theme/OxaThemeUtils.h>
#include <UiElements/widgets/OxaWidget.h>

#include <QTextDocument>

#include <malloc.h>

#include <memory>
#include <vector>

namespace {

constexpr int widgetCount = 100;

const QString styleText = QStringLiteral("$backgroundColors: set-1; $textColors: set-2; "
                                         "$borderRadius: 4;");

/// Returns how many bytes of heap a widget of \a make takes.
template <typename Make>
double heapOf(Make make)
{
    std::vector<std::unique_ptr<QObject>> objects;
    objects.reserve(2 * widgetCount);
    const double before = double(mallinfo2().uordblks);
    for (int i = 0; i < widgetCount; ++i)
        make(objects);
    return (double(mallinfo2().uordblks) - before) / widgetCount;
}

/// What comes with the peer where a class of ours has it by its nature.
enum class Besides { Nothing, TextDocument };

/// A widget with a style text, in bytes of heap, against the Qt class with the finished sheet.
template <typename Widget, typename QtClass>
void heap(benchmark::State &state, Besides besides = Besides::Nothing)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    QString sheet;
    const auto makeOurs = [&sheet](auto &objects) {
        auto widget = std::make_unique<Widget>();
        widget->setObjectName(QStringLiteral("w"));
        widget->setCSS(styleText);
        widget->ensurePolished();
        sheet = widget->styleSheet();
        objects.push_back(std::move(widget));
    };
    const auto makePeer = [&](auto &objects) {
        auto widget = std::make_unique<QtClass>();
        widget->setObjectName(QStringLiteral("w"));
        widget->setStyleSheet(sheet);
        widget->ensurePolished();
        objects.push_back(std::move(widget));
        if (besides == Besides::TextDocument)
            objects.push_back(std::make_unique<QTextDocument>());
    };
    // What both share is made before it is counted.
    heapOf(makeOurs);
    heapOf(makePeer);

    Comparison comparison(state);
    for (auto _ : state) {
        const double ours = heapOf(makeOurs);
        comparison.add(ours, heapOf(makePeer));
    }
    comparison.ratioAtMost(1.15);
}

void container(benchmark::State &state) { heap<OxaWidget, QWidget>(state); }
BENCHMARK(container)->Name("heap of OxaWidget/QWidget")->Iterations(5)->UseManualTime();

void label(benchmark::State &state) { heap<OxaLabel, QLabel>(state); }
BENCHMARK(label)->Name("heap of OxaLabel/QLabel")->Iterations(5)->UseManualTime();

void svgLabel(benchmark::State &state) { heap<OxaSvgLabel, QLabel>(state); }
BENCHMARK(svgLabel)->Name("heap of OxaSvgLabel/QLabel")->Iterations(5)->UseManualTime();

void button(benchmark::State &state) { heap<OxaPushButton, QPushButton>(state); }
BENCHMARK(button)->Name("heap of OxaPushButton/QPushButton")->Iterations(5)->UseManualTime();

void svgButton(benchmark::State &state) { heap<OxaSvgPushButton, QPushButton>(state); }
BENCHMARK(svgButton)->Name("heap of OxaSvgPushButton/QPushButton")->Iterations(5)->UseManualTime();

void emojiLabel(benchmark::State &state)
{
    heap<OxaEmojiLabel, QLabel>(state, Besides::TextDocument);
}
BENCHMARK(emojiLabel)
        ->Name("heap of OxaEmojiLabel/QLabel and an empty QTextDocument")
        ->Iterations(5)
        ->UseManualTime();

} // namespace

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
const QString shortText = QStringLiteral("See you at four");

/// What is done with a widget before it is measured.
const auto asNew = [](auto &) {};
const auto withText = [](auto &widget) { widget.setText(shortText); };

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

/// Adds to a peer with a sheet what our class always has.
const auto nothing = [](const QString &) { return std::unique_ptr<QObject>(); };
const auto emptyDocument = [](const QString &) { return std::make_unique<QTextDocument>(); };
const auto filledDocument = [](const QString &sheet) {
    auto document = std::make_unique<QTextDocument>();
    document->setDefaultStyleSheet(sheet);
    document->setHtml(shortText);
    return document;
};

/// The heap use of a widget with a style text, compared with the Qt class with the finished sheet.
template <typename Widget, typename QtClass, typename Use, typename Besides>
void heap(benchmark::State &state, Use use, Besides besides)
{
    OxaThemeUtils::setAppOxaColorSets(Stores::make(600));
    QString sheet;
    const auto makeOurs = [&](auto &objects) {
        auto widget = std::make_unique<Widget>();
        widget->setObjectName(QStringLiteral("w"));
        widget->setCSS(styleText);
        widget->ensurePolished();
        use(*widget);
        sheet = widget->styleSheet();
        objects.push_back(std::move(widget));
    };
    const auto makePeer = [&](auto &objects) {
        auto widget = std::make_unique<QtClass>();
        widget->setObjectName(QStringLiteral("w"));
        widget->setStyleSheet(sheet);
        widget->ensurePolished();
        use(*widget);
        objects.push_back(std::move(widget));
        objects.push_back(besides(sheet));
    };
    // Shared data is made before counting.
    heapOf(makeOurs);
    heapOf(makePeer);

    Comparison comparison(state);
    for (auto _ : state) {
        const double ours = heapOf(makeOurs);
        comparison.add(ours, heapOf(makePeer));
    }
    comparison.ratioAtMost(1.15);
}

void container(benchmark::State &state) { heap<OxaWidget, QWidget>(state, asNew, nothing); }
BENCHMARK(container)->Name("heap of OxaWidget/QWidget")->Iterations(5)->UseManualTime();

template <typename Use>
void label(benchmark::State &state, Use use)
{
    heap<OxaLabel, QLabel>(state, use, nothing);
}
BENCHMARK_CAPTURE(label, asNew, asNew)
        ->Name("heap of OxaLabel/QLabel")
        ->Iterations(5)
        ->UseManualTime();
BENCHMARK_CAPTURE(label, withText, withText)
        ->Name("heap of OxaLabel with a text/QLabel")
        ->Iterations(5)
        ->UseManualTime();

template <typename Use>
void svgLabel(benchmark::State &state, Use use)
{
    heap<OxaSvgLabel, QLabel>(state, use, nothing);
}
BENCHMARK_CAPTURE(svgLabel, asNew, asNew)
        ->Name("heap of OxaSvgLabel/QLabel")
        ->Iterations(5)
        ->UseManualTime();
BENCHMARK_CAPTURE(svgLabel, withText, withText)
        ->Name("heap of OxaSvgLabel with a text/QLabel")
        ->Iterations(5)
        ->UseManualTime();

template <typename Use>
void button(benchmark::State &state, Use use)
{
    heap<OxaPushButton, QPushButton>(state, use, nothing);
}
BENCHMARK_CAPTURE(button, asNew, asNew)
        ->Name("heap of OxaPushButton/QPushButton")
        ->Iterations(5)
        ->UseManualTime();
BENCHMARK_CAPTURE(button, withText, withText)
        ->Name("heap of OxaPushButton with a text/QPushButton")
        ->Iterations(5)
        ->UseManualTime();

template <typename Use>
void svgButton(benchmark::State &state, Use use)
{
    heap<OxaSvgPushButton, QPushButton>(state, use, nothing);
}
BENCHMARK_CAPTURE(svgButton, asNew, asNew)
        ->Name("heap of OxaSvgPushButton/QPushButton")
        ->Iterations(5)
        ->UseManualTime();
BENCHMARK_CAPTURE(svgButton, withText, withText)
        ->Name("heap of OxaSvgPushButton with a text/QPushButton")
        ->Iterations(5)
        ->UseManualTime();

template <typename Use, typename Besides>
void emojiLabel(benchmark::State &state, Use use, Besides besides)
{
    heap<OxaEmojiLabel, QLabel>(state, use, besides);
}
BENCHMARK_CAPTURE(emojiLabel, asNew, asNew, emptyDocument)
        ->Name("heap of OxaEmojiLabel/QLabel and an empty QTextDocument")
        ->Iterations(5)
        ->UseManualTime();
BENCHMARK_CAPTURE(emojiLabel, withText, withText, filledDocument)
        ->Name("heap of OxaEmojiLabel with a text/QLabel and a QTextDocument")
        ->Iterations(5)
        ->UseManualTime();

} // namespace

// SPDX-License-Identifier: Apache-2.0
#include "support/Comparison.h"
#include "support/Stores.h"

#include <UiElements/theme/OxaThemeUtils.h>

#include <utility>

namespace {

constexpr int callsPerRound = 100;

const QString selector = QStringLiteral("#messageTitle");

/// Everything that the style language has: a set for each use, a border, references.
const QString styleText = QStringLiteral(
        "$backgroundColors: set-17; $borderColors: set-230; $textColors: set-411; "
        "$borders: top bottom; $borderWidth: 2; $borderRadius: 4; "
        "#messageTitle{padding: 4px 8px; selection-color:$(set-99.hovered); "
        "selection-background-color:$(set-512);}");

const OxaColorSetMap &store()
{
    static const OxaColorSetMap sets = Stores::make(600);
    return sets;
}

QString expanded()
{
    return OxaThemeUtils::parseCSS(selector, styleText, store()).expandedStyleSheet;
}

/// Writes one rule for each state of \a set, in the order of the expansion.
void writeRules(QString &sheet, QLatin1String property, const OxaColorSet &set)
{
    const std::pair<QLatin1String, const QColor &> states[] = {
        { QLatin1String(), set.normal },
        { QLatin1String(":checked"), set.checked },
        { QLatin1String(":focus"), set.focused },
        { QLatin1String(":hover"), set.hovered },
        { QLatin1String(":pressed"), set.pressed },
        { QLatin1String(":disabled"), set.disabled },
    };
    for (const auto &[pseudoState, color] : states) {
        sheet += selector;
        sheet += pseudoState;
        sheet += QLatin1Char('{');
        sheet += property;
        sheet += color.name(QColor::HexArgb);
        sheet += QLatin1String(";}");
    }
}

/// The lower bound: without parsing, the same sheet is written in a single pass, with one
/// QColor::name() per colour.
QString writtenByHand()
{
    QString sheet;
    sheet.reserve(1024);
    writeRules(sheet, QLatin1String("background-color:"), store().at("set-17"));
    sheet += QLatin1Char(' ');
    writeRules(sheet, QLatin1String("border-color:"), store().at("set-230"));
    sheet += selector;
    sheet += QLatin1String("{outline:none;} ");
    writeRules(sheet, QLatin1String("color:"), store().at("set-411"));
    sheet += QLatin1String("   ");
    sheet += selector;
    sheet += QLatin1String("{border-style:solid;border-top-width:2px;border-bottom-width:2px;"
                           "border-radius:4px;} ");
    sheet += selector;
    sheet += QLatin1String("{padding: 4px 8px; selection-color:");
    sheet += store().at("set-99").hovered.name(QColor::HexArgb);
    sheet += QLatin1String("; selection-background-color:");
    sheet += store().at("set-512").normal.name(QColor::HexArgb);
    sheet += QLatin1String(";}");
    return sheet;
}

void againstFloor(benchmark::State &state)
{
    if (writtenByHand() != expanded())
        state.SkipWithError("the floor writes another text");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([] { benchmark::DoNotOptimize(expanded()); },
                         [] { benchmark::DoNotOptimize(writtenByHand()); }, callsPerRound);
    comparison.ratioAtMost(2.0);
}
BENCHMARK(againstFloor)
        ->Name("parseCSS/a pass that only writes")
        ->Iterations(2000)
        ->UseManualTime();

/// Expands a text of 16,000 times \a piece, and one of 1,000 times \a piece 16 times. Quadratic
/// growth would make the first 16 times as slow.
void growth(benchmark::State &state, const char *piece)
{
    constexpr int factor = 16;
    constexpr int smallCount = 1000;
    const QString text = QString::fromLatin1(piece).repeated(smallCount);
    const QString longText = text.repeated(factor);
    const auto expand = [](const QString &expandedText) {
        benchmark::DoNotOptimize(OxaThemeUtils::parseCSS(selector, expandedText, store()));
    };

    Comparison comparison(state);
    for (auto _ : state) {
        comparison.round([&] { expand(longText); },
                         [&] {
                             for (int i = 0; i < factor; ++i)
                                 expand(text);
                         });
    }
    comparison.ratioAtMost(2.0);
}
BENCHMARK_CAPTURE(growth, unclosedReferences, "$(")
        ->Name("parseCSS of 16,000 unclosed references/16 times 1,000")
        ->Iterations(50)
        ->UseManualTime();
BENCHMARK_CAPTURE(growth, references, "$(set-99.hovered)")
        ->Name("parseCSS of 16,000 references/16 times 1,000")
        ->Iterations(50)
        ->UseManualTime();
BENCHMARK_CAPTURE(growth, unclosedTags, "$textColors: set-411 ")
        ->Name("parseCSS of 16,000 unclosed tags/16 times 1,000")
        ->Iterations(50)
        ->UseManualTime();
BENCHMARK_CAPTURE(growth, directives, "$textColors: set-411; $borders: all;")
        ->Name("parseCSS of 16,000 directives of two kinds/16 times 1,000")
        ->Iterations(50)
        ->UseManualTime();

} // namespace

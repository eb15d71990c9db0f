// SPDX-License-Identifier: Apache-2.0
#include "NaiveExpansion.h"
#include "support/Comparison.h"
#include "support/Stores.h"

#include <QRegularExpression>

#include <vector>

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

QString expandedNaively()
{
    return NaiveExpansion::parseCSS(selector, styleText, store()).expandedStyleSheet;
}

/// The floor: a single pass that knows all pieces of the finished text beforehand, and writes the
/// colours by Qt's own function.
class PieceWriter
{
public:
    explicit PieceWriter(const QString &text) : m_length(text.size())
    {
        int end = 0;
        auto colors = QRegularExpression(QStringLiteral("#[0-9a-f]{8}")).globalMatch(text);
        while (colors.hasNext()) {
            const QRegularExpressionMatch color = colors.next();
            m_pieces.push_back({ text.mid(end, color.capturedStart() - end), color.captured() });
            end = color.capturedEnd();
        }
        m_end = text.mid(end);
    }

    QString write() const
    {
        QString text;
        text.reserve(m_length);
        for (const Piece &piece : m_pieces) {
            text += piece.literal;
            text += piece.color.name(QColor::HexArgb);
        }
        return text += m_end;
    }

private:
    struct Piece
    {
        QString literal;
        QColor color;
    };
    std::vector<Piece> m_pieces;
    QString m_end;
    const int m_length;
};

void againstFloor(benchmark::State &state)
{
    const PieceWriter floor(expanded());
    if (floor.write() != expanded())
        state.SkipWithError("the floor writes another text");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([] { benchmark::DoNotOptimize(expanded()); },
                         [&floor] { benchmark::DoNotOptimize(floor.write()); }, callsPerRound);
    comparison.ratioAtMost(0.6);
}
BENCHMARK(againstFloor)
        ->Name("parseCSS/a pass that only writes")
        ->Iterations(2000)
        ->UseManualTime();

void againstNaiveExpansion(benchmark::State &state)
{
    if (expandedNaively() != expanded())
        state.SkipWithError("the naive expansion writes another text");

    Comparison comparison(state);
    for (auto _ : state)
        comparison.round([] { benchmark::DoNotOptimize(expanded()); },
                         [] { benchmark::DoNotOptimize(expandedNaively()); }, callsPerRound);
    comparison.gainAtLeast(95);
}
BENCHMARK(againstNaiveExpansion)
        ->Name("parseCSS/regular expressions")
        ->Iterations(50)
        ->UseManualTime();

} // namespace

// SPDX-License-Identifier: Apache-2.0
#include "Leftovers.h"

#include <QRegularExpression>

namespace {

QRegularExpression leftoverPattern()
{
    return QRegularExpression(QStringLiteral(
            R"(\$\([^)]*\)|\$(?:backgroundColors|borderColors|textColors|borders|borderRadius|borderWidth):[^;}]*;?)"));
}

Leftover::Effect effectAt(const QString &sheet, int start, int end)
{
    const QStringView before = QStringView(sheet).left(start);
    if (before.count(QLatin1Char('{')) > before.count(QLatin1Char('}')))
        return Leftover::Effect::LosesRuleAndRest;
    // A sheet without a rule is read as the inside of one.
    const bool isBareDeclaration = !sheet.contains(QLatin1Char('{'))
            && before.contains(QLatin1Char(':'));
    if (isBareDeclaration)
        return Leftover::Effect::LosesRuleAndRest;
    return QStringView(sheet).mid(end).contains(QLatin1Char('{')) ? Leftover::Effect::LosesRest
                                                                  : Leftover::Effect::Harmless;
}

} // namespace

std::vector<Leftover> findLeftovers(const QString &expandedStyleSheet)
{
    std::vector<Leftover> leftovers;
    auto matches = leftoverPattern().globalMatch(expandedStyleSheet);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        leftovers.push_back(
                { match.captured().trimmed(),
                  effectAt(expandedStyleSheet, match.capturedStart(), match.capturedEnd()) });
    }
    return leftovers;
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// A colour reference or a directive that an expansion left in the style sheet.
struct Leftover
{
    /// What the style sheet parser of Qt makes of it. Rules that stand before it hold in any case.
    enum class Effect {
        LosesRuleAndRest, ///< Inside a rule: this rule and all that follow are lost, with a
                          ///< warning.
        LosesRest,        ///< Before a rule: all rules that follow are lost, without a word.
        Harmless,         ///< Behind the last rule: nothing is lost.
    };

    QString text; ///< The reference or directive as it stands in the sheet.
    Effect effect = Effect::Harmless;
};

/// Returns what was left in \a expandedStyleSheet, in the order of the sheet.
std::vector<Leftover> findLeftovers(const QString &expandedStyleSheet);

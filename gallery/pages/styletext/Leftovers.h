// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// A colour reference or a directive that an expansion left in the style sheet.
struct Leftover
{
    /// The effect on Qt's style sheet parser. Rules before it are always kept.
    enum class Effect {
        LosesRuleAndRest, ///< Inside a rule: this rule and all that follow are lost, with a
                          ///< warning.
        LosesRest,        ///< Before a rule: all rules that follow are lost, without a warning.
        Harmless,         ///< Behind the last rule: nothing is lost.
    };

    QString text; ///< The reference or directive as in the sheet.
    Effect effect = Effect::Harmless;
};

/// Returns what was left in \a expandedStyleSheet, in the order of the sheet.
std::vector<Leftover> findLeftovers(const QString &expandedStyleSheet);

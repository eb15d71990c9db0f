// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// A style text to begin with.
struct StyleTextExample
{
    QString title;
    QString styleText;
};

/// Returns what shows the style language best, from the plain to the faulty.
std::vector<StyleTextExample> styleTextExamples();

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <vector>

/// An example of a style text.
struct StyleTextExample
{
    QString title;
    QString styleText;
};

/// Returns examples of the style language, from simple to faulty ones.
std::vector<StyleTextExample> styleTextExamples();

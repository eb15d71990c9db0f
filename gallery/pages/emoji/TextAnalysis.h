// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What the converter sees in a text, as lines to read.
namespace TextAnalysis {

/// Returns a line for each code point of \a text: its number, and what it is to a sequence.
QString codePoints(const QString &text);

/// Returns a line for each sequence in \a text: whether it is shown by artwork, and its stem.
QString stems(const QString &text);

} // namespace TextAnalysis

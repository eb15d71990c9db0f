// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What the converter finds in a text, as lines.
namespace TextAnalysis {

/// Returns a line for each code point of \a text: its number, and its class.
QString codePoints(const QString &text);

/// Returns a line for each sequence in \a text: whether it has artwork, and its stem.
QString stems(const QString &text);

} // namespace TextAnalysis

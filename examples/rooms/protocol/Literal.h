// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The text of a literal, as in `u"title"_s`.
inline QString operator""_s(const char16_t *text, std::size_t length)
{
    return QString::fromUtf16(text, int(length));
}

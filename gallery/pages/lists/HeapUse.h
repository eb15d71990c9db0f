// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <optional>

/// What the process has taken from its heap.
namespace HeapUse {

/// Returns the bytes in use, or nothing where the C library doesn't tell.
std::optional<qint64> bytes();

} // namespace HeapUse

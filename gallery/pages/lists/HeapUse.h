// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <optional>

/// The heap use of the process.
namespace HeapUse {

/// Returns the bytes in use, or nothing where the C library doesn't tell.
std::optional<qint64> bytes();

} // namespace HeapUse

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// Returns the names of the colour sets that the library itself uses, which every colour document
/// has to define.
QStringList libraryColorSetNames();

// SPDX-License-Identifier: Apache-2.0
// Compiles with an outer application's own types in place of the library's. Nothing is
// run.

#include <UiElements/app/OxaAppSignals.h>

#include <type_traits>

static_assert(std::is_same_v<fenn::guid, QUuid>);
static_assert(std::is_same_v<decltype(&OxaAppSignals::openApplicationMenuItem),
                             void (OxaAppSignals::*)(ApplicationMenuItem)>);
static_assert(std::is_class_v<ApplicationMenuItem>);

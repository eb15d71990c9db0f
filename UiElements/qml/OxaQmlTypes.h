// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

/// The QML module of the library: "import UiElements 1.0".
namespace OxaQmlTypes {

/// Registers the types of the module: OverflowListProxyModel, OxaBalloon, OxaHalfPill,
/// OxaQmlPopupController and OxaQmlDialogController. The application calls it once, before it loads
/// any QML.
UIELEMENTS_EXPORT void registerQmlTypes();

} // namespace OxaQmlTypes

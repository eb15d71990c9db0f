// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>

#include <QVariantMap>

class OxaQmlController;

/// Functions for an override of OxaQmlController::init(). They log nothing and report no failure.
namespace OxaQmlControllerHelpers {

/// Sets the property \a name of \a controller to the string of that name in \a initialProperties.
/// Does nothing without one, or if it is nothing that converts to a string.
UIELEMENTS_EXPORT void applyInitialStringPropertyToController(OxaQmlController *controller,
                                                              const QVariantMap &initialProperties,
                                                              const QString &name);

/// Does the same with a truth value.
UIELEMENTS_EXPORT void applyInitialBoolPropertyToController(OxaQmlController *controller,
                                                            const QVariantMap &initialProperties,
                                                            const QString &name);

} // namespace OxaQmlControllerHelpers

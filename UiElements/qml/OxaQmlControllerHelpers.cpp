// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlControllerHelpers.h"

#include <UiElements/qml/OxaQmlController.h>

template <typename Value>
static void applyInitialProperty(OxaQmlController *controller, const QVariantMap &initialProperties,
                                 const QString &name)
{
    // What is missing is an invalid value, and converts to nothing.
    const QVariant value = initialProperties.value(name);
    if (value.canConvert<Value>())
        controller->setProperty(name.toLatin1().constData(), value.value<Value>());
}

void OxaQmlControllerHelpers::applyInitialStringPropertyToController(
        OxaQmlController *controller, const QVariantMap &initialProperties, const QString &name)
{
    applyInitialProperty<QString>(controller, initialProperties, name);
}

void OxaQmlControllerHelpers::applyInitialBoolPropertyToController(
        OxaQmlController *controller, const QVariantMap &initialProperties, const QString &name)
{
    applyInitialProperty<bool>(controller, initialProperties, name);
}

// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlControllerHelpers.h"

#include <UiElements/qml/OxaQmlController.h>

// What is missing is an invalid value, and converts to nothing. QVariant's own functions convert
// what qvariant_cast() does not know, such as colours.

void OxaQmlControllerHelpers::applyInitialStringPropertyToController(
        OxaQmlController *controller, const QVariantMap &initialProperties, const QString &name)
{
    const QVariant value = initialProperties.value(name);
    if (value.canConvert<QString>())
        controller->setProperty(name.toLatin1().constData(), value.toString());
}

void OxaQmlControllerHelpers::applyInitialBoolPropertyToController(
        OxaQmlController *controller, const QVariantMap &initialProperties, const QString &name)
{
    const QVariant value = initialProperties.value(name);
    if (value.canConvert<bool>())
        controller->setProperty(name.toLatin1().constData(), value.toBool());
}

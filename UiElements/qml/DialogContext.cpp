// SPDX-License-Identifier: Apache-2.0
#include "DialogContext.h"

#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQuickView.h>

DialogContext::DialogContext(QObject *parent) : OxaQuickViewContext(parent) { }

DialogContext::~DialogContext() = default;

QPointer<OxaQuickView> DialogContext::createQmlDialog(const QString &source, QWindow *parent,
                                                      const QVariantMap &initialProperties,
                                                      const ControllerCallback &controllerCallback)
{
    return createOxaQuickView(source, parent, initialProperties, controllerCallback);
}

QPointer<OxaQuickView> DialogContext::instantiateOxaQuickView(
        const QString &source, QWindow *parent, const QVariantMap &initialProperties,
        const ControllerCallback &controllerCallback)
{
    return OxaQmlEngine::createQmlDialog(source, parent, initialProperties, controllerCallback,
                                         true);
}

// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlTypes.h"

#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/qml/OxaQmlBalloon.h>
#include <UiElements/qml/OxaQmlDialogController.h>
#include <UiElements/qml/OxaQmlHalfPill.h>
#include <UiElements/qml/OxaQmlPopupController.h>

#include <qqml.h>

template <typename Type>
static void registerType(const char *name)
{
    qmlRegisterType<Type>("UiElements", 1, 0, name);
}

void OxaQmlTypes::registerQmlTypes()
{
    registerType<OverflowListProxyModel>("OverflowListProxyModel");
    registerType<OxaQmlBalloon>("OxaBalloon");
    registerType<OxaQmlHalfPill>("OxaHalfPill");
    registerType<OxaQmlPopupController>("OxaQmlPopupController");
    registerType<OxaQmlDialogController>("OxaQmlDialogController");
}

// SPDX-License-Identifier: Apache-2.0
#include "OxaQmlController.h"

OxaQmlController::OxaQmlController(QObject *parent) : OxaObject(parent) { }

void OxaQmlController::init(const QVariantMap & /*initialProperties*/) { }

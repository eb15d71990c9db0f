// SPDX-License-Identifier: Apache-2.0
#include "ApplicationObject_p.h"

#include <UiElements/app/OxaApplication.h>

#include <QDebug>

OxaApplication *ApplicationObject::findOrWarn()
{
    auto *app = find<OxaApplication>();
    if (!app)
        QMessageLogger().warning() << "Unable to find OxaApplication";
    return app;
}

// SPDX-License-Identifier: Apache-2.0
#include "OxaGlobalSignalListener.h"

#include <UiElements/app/ApplicationObject_p.h>
#include <UiElements/app/OxaApplication.h>

OxaGlobalSignalListener::OxaGlobalSignalListener(QObject *parent) : OxaObject(parent) { }

OxaGlobalSignalListener *OxaGlobalSignalListener::get()
{
    const OxaApplication *app = ApplicationObject::findOrWarn();
    return app ? app->getGlobalSignalListener() : nullptr;
}

// SPDX-License-Identifier: Apache-2.0
#include "OxaGlobalSignalListener.h"

#include <UiElements/app/OxaApplication.h>

#include <QDebug>

namespace {

constexpr char noApplicationWarning[] = "Unable to find OxaApplication";

} // namespace

OxaGlobalSignalListener::OxaGlobalSignalListener(QObject *parent) : OxaObject(parent) { }

OxaGlobalSignalListener *OxaGlobalSignalListener::get()
{
    const auto *app = qobject_cast<OxaApplication *>(QCoreApplication::instance());
    if (!app) {
        QMessageLogger().warning() << noApplicationWarning;
        return nullptr;
    }
    return app->getGlobalSignalListener();
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "RenameController.h"

#include <UiElements/app/OxaApplication.h>
#include <UiElements/qml/OxaQmlEngine.h>
#include <UiElements/qml/OxaQmlTypes.h>

#include <QDebug>

/// The QML engine of this client.
class ClientEngine : public OxaQmlEngine
{
    Q_OBJECT

public:
    ClientEngine()
    {
        // For development: edit a file, and reload all views.
        setReadQmlFromDisk(qEnvironmentVariableIsSet("QML_FROM_DISK"));
    }
};

/// The application object of a client that shows QML.
class ClientApplication : public OxaApplication
{
    Q_OBJECT

public:
    ClientApplication(int &argc, char **argv) : OxaApplication(argc, argv)
    {
        OxaQmlTypes::registerQmlTypes();
        qmlRegisterType<RenameController>("Client", 1, 0, "RenameController");
        OxaQmlEngine::setFactory([]() -> OxaQmlEngine * { return new ClientEngine; });
    }

    void onQmlEngineCreated(OxaQmlEngine *engine) override
    {
        connect(engine, &OxaQmlEngine::qmlViewStatusChanged, this, &ClientApplication::reportError);
    }

    void restart() override { }
    void registerMainWindowShortcuts(OxaMainWindow *) override { }

private:
    void reportError(OxaQmlEngine::QmlViewStatus status, const QString &view,
                     const QString &message)
    {
        if (status == OxaQmlEngine::QmlViewStatus::Error)
            qWarning() << view << message;
    }
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/qml/OxaQmlController.h>

#include <QPointer>

class Backend;
class PagedFiles;

/// What the list of files in QML knows of the client.
class FilesController : public OxaQmlController
{
    Q_OBJECT
    Q_PROPERTY(QObject *files READ files NOTIFY backendChanged)

public:
    using OxaQmlController::OxaQmlController;

    /// Shows the files of \a backend.
    void setBackend(Backend *backend);

    QObject *files() const;

    /// The row \a index came into view.
    Q_INVOKABLE void scrollTo(int index);

    Q_INVOKABLE QString personName(const QString &id) const;
    Q_INVOKABLE QString sizeText(qint64 bytes) const;

Q_SIGNALS:
    void backendChanged();

    /// The user drags the file called \a name.
    void dragRequested(const QString &name);

private:
    QPointer<Backend> m_backend;
};

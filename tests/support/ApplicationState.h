// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What a test class may change of the application object and must put back, each thing as a text.
class ApplicationState
{
public:
    /// The state of this moment, once what waits to be deleted is gone. It is empty without an
    /// application object.
    static ApplicationState now();

    /// Returns a line for each thing that is not what it was in \a before.
    QStringList differencesTo(const ApplicationState &before) const;

private:
    void addProperties();
    void addWindows();
    void addStores();

    QMap<QString, QString> m_texts;
};

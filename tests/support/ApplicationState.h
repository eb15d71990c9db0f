// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// The state of the application object that a test class must restore, each part as a text.
class ApplicationState
{
public:
    /// The current state, after pending deletions. It is empty without an
    /// application object.
    static ApplicationState now();

    /// Returns a line for each part that differs from \a before.
    QStringList differencesTo(const ApplicationState &before) const;

private:
    void addProperties();
    void addWindows();
    void addStores();

    QMap<QString, QString> m_texts;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ColorDocuments.h"

#include <QObject>

/// Switches the colours of the whole application: its appearance, and the theme type of its
/// windows.
///
/// Themed widgets do not notice a new store. Only this class makes them take new colours.
class ThemeSwitcher : public QObject
{
    Q_OBJECT

public:
    /// The application's current theme.
    enum class Appearance { Light, Dark, HighContrast };
    Q_ENUM(Appearance)

    /// Switches between the sets of \a documents, and begins with the light ones.
    explicit ThemeSwitcher(const ColorDocuments &documents, QObject *parent = nullptr);

    Appearance appearance() const { return m_appearance; }

    /// Fills both stores, sets the application's flags and lets all widgets expand their style
    /// texts again. The ordinary store gets the sets of \a appearance, the inverted one the
    /// opposite.
    void setAppearance(Appearance appearance);

    QString themeType() const { return m_themeType; }

    /// Sets the theme type of all windows to the word \a themeType. It reaches the widgets inside
    /// through their parents.
    void setThemeType(const QString &themeType);

Q_SIGNALS:
    /// The colours changed, and all widgets show them.
    void switched();

private:
    void fillStores();

    const ColorDocuments m_documents;
    Appearance m_appearance = Appearance::Light;
    QString m_themeType = QStringLiteral("global");
};

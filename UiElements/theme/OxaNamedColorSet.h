// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

/// A colour set that a widget paints with, kept by its name and fetched again at each change of the
/// theme.
///
/// A member of the widget, which hands over its theme type: OxaNamedColorSet knows no widget. The
/// name stays where the theme lacks the set, for the next fetch(); the colours are not valid then.
class UIELEMENTS_EXPORT OxaNamedColorSet
{
public:
    using ThemeType = OxaThemeUtils::AppThemeType;

    /// Has no name, and colours that are not valid.
    OxaNamedColorSet() = default;

    /// Has the name \a name, and colours that are not valid before the first fetch().
    explicit OxaNamedColorSet(const QString &name) : m_name(name) { }

    /// Returns the name as it was given.
    const QString &name() const { return m_name; }

    /// Returns the set as the last fetch() found it.
    const OxaColorSet &colors() const { return m_colors; }

    /// Looks the set up in the colours of \a theme. Warnings as in OxaThemeUtils::getColorSet().
    void fetch(ThemeType theme)
    {
        m_colors = OxaThemeUtils::getColorSet(m_name.toStdString(), theme);
    }

    /// The same for the set called \a name from now on.
    void fetch(const QString &name, ThemeType theme)
    {
        m_name = name;
        fetch(theme);
    }

private:
    QString m_name;
    OxaColorSet m_colors;
};

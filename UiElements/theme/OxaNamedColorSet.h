// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeUtils.h>

/// A colour set that a widget paints with, kept by its name and looked up again at each change of
/// the theme.
///
/// The name is kept if the theme lacks the set, for the next fetch(); the colours are not valid
/// then.
class UIELEMENTS_EXPORT OxaNamedColorSet
{
public:
    /// Makes a set without a name, with colours that are not valid.
    OxaNamedColorSet() = default;

    /// Makes a set called \a name, with colours that are not valid before the first fetch().
    explicit OxaNamedColorSet(const QString &name) : m_name(name) { }

    /// Returns the name as it was given.
    const QString &name() const { return m_name; }

    /// Returns the set as the last fetch() found it.
    const OxaColorSet &colors() const { return m_colors; }

    /// Looks the set up in the theme of \a widget, a themed one. Warnings as in
    /// OxaThemeUtils::getColorSet().
    template <typename Widget>
    void fetch(const Widget *widget)
    {
        m_colors = OxaThemeUtils::getColorSet(m_name.toStdString(), widget->getThemeType(), widget);
    }

    /// Does the same with the set called \a name from now on.
    template <typename Widget>
    void fetch(const QString &name, const Widget *widget)
    {
        m_name = name;
        fetch(widget);
    }

private:
    QString m_name;
    OxaColorSet m_colors;
};

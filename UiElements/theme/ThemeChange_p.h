// SPDX-License-Identifier: Apache-2.0
#pragma once

class QObject;

/// A change of a theme type on its way from parents to children, or the refresh of one widget.
/// Changes nest: a slot may begin another one.
class ThemeChange
{
public:
    /// Begins a change, or the refresh of \a refreshed, whose children do not follow.
    explicit ThemeChange(const QObject *refreshed = nullptr) : m_outer(s_current)
    {
        s_current = { m_outer.depth + 1, refreshed };
    }
    ~ThemeChange() { s_current = m_outer; }
    ThemeChange(const ThemeChange &) = delete;
    ThemeChange &operator=(const ThemeChange &) = delete;

    /// Returns how many changes are in progress: a number of its own for each of them.
    static int depth() { return s_current.depth; }

    /// True when the innermost change is the refresh of \a widget.
    static bool refreshes(const QObject *widget) { return widget && s_current.refreshed == widget; }

private:
    struct State
    {
        int depth;
        const QObject *refreshed;
    };

    inline static State s_current = { 0, nullptr };
    const State m_outer;
};

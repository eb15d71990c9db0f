// SPDX-License-Identifier: Apache-2.0
#pragma once

/// A change of a theme type on its way from parents to children. Changes nest: a slot may begin
/// another one.
class ThemeChange
{
public:
    /// Whether children follow their parents.
    enum class Reach { Children, OneWidget };

    explicit ThemeChange(Reach reach = Reach::Children) : m_outer(s_current)
    {
        s_current = { m_outer.depth + 1, reach };
    }
    ~ThemeChange() { s_current = m_outer; }
    ThemeChange(const ThemeChange &) = delete;
    ThemeChange &operator=(const ThemeChange &) = delete;

    /// Returns how many changes are in progress: a number of its own for each of them.
    static int depth() { return s_current.depth; }

    /// True when children follow in the innermost change.
    static bool reachesChildren() { return s_current.reach == Reach::Children; }

private:
    struct State
    {
        int depth;
        Reach reach;
    };

    inline static State s_current = { 0, Reach::Children };
    const State m_outer;
};

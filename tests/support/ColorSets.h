// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaColorSet.h>

#include <QTest>

#include <initializer_list>

/// Colour sets and stores for tests.
namespace ColorSets {

/// Returns a set with "#rrggbb" or "#aarrggbb" texts as colours, in the order normal, hovered,
/// pressed, disabled, focused, checked. States beyond the given ones take the normal colour.
inline OxaColorSet make(const QString &name, std::initializer_list<const char *> colors)
{
    OxaColorSet set(name, QColor(QLatin1String(*colors.begin())));
    QColor *const states[] = { &set.normal,   &set.hovered, &set.pressed,
                               &set.disabled, &set.focused, &set.checked };
    int state = 0;
    for (const char *color : colors)
        *states[state++] = QColor(QLatin1String(color));
    return set;
}

/// Returns a store of \a sets under their names.
inline OxaColorSetMap storeOf(std::initializer_list<OxaColorSet> sets)
{
    OxaColorSetMap store;
    for (const OxaColorSet &set : sets)
        store.emplace(set.name.toStdString(), set);
    return store;
}

/// Returns \a color as "#aarrggbb", or "invalid".
inline QString describe(const QColor &color)
{
    return color.isValid() ? color.name(QColor::HexArgb) : QStringLiteral("invalid");
}

/// Returns the name and the six colours of \a set, in the order of make().
inline QString describe(const OxaColorSet &set)
{
    QStringList parts = { QLatin1Char('"') + set.name + QLatin1Char('"') };
    for (const QColor &color :
         { set.normal, set.hovered, set.pressed, set.disabled, set.focused, set.checked })
        parts += describe(color);
    return parts.join(QLatin1Char(' '));
}

} // namespace ColorSets

namespace QTest {

template <>
inline char *toString(const OxaColorSet &set)
{
    return toString(ColorSets::describe(set));
}

} // namespace QTest

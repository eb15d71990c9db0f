// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QtMath>

#include <algorithm>

/// The contrast of opaque colours, as the accessibility guidelines of the web define it.
namespace Contrast {

inline qreal linear(qreal channel)
{
    return channel <= 0.04045 ? channel / 12.92 : qPow((channel + 0.055) / 1.055, 2.4);
}

inline qreal luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
}

/// Returns the contrast of \a a and \a b, from 1 to 21.
inline qreal between(const QColor &a, const QColor &b)
{
    // A list, since minmax() of two temporaries would return references to them.
    const auto [darker, lighter] = std::minmax({ luminance(a), luminance(b) });
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace Contrast

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProxyStyle>

/// Fusion with focus frames in the client's colour, around what has no border of its own to show
/// the focus with.
class RoomsStyle : public QProxyStyle
{
    Q_OBJECT

public:
    RoomsStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;

    /// No animations while the user wants none.
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
};

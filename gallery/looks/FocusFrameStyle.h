// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProxyStyle>

/// The Fusion style with focus frames as the gallery's style texts have them: a line in the theme's
/// colour with the corners of the widget, and nothing over its contents.
class FocusFrameStyle : public QProxyStyle
{
    Q_OBJECT

public:
    FocusFrameStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/fonts/FontManagerEnum.h>

#include <QObject>

#include <map>

/// Sets how the whole application shows text: its direction, its size, and the scaling of its
/// views.
///
/// Existing fonts keep their size; this class applies a new scale to all widgets.
class TextSettings : public QObject
{
    Q_OBJECT

public:
    using FontType = FontManagerEnum::FontType;
    using ScalingFactor = FontManagerEnum::FontScalingFactor;

    explicit TextSettings(QObject *parent = nullptr);

    /// Sets the direction of layout and text.
    void setDirection(Qt::LayoutDirection direction);

    /// Sets the application's font scale factor, 0.5 to 1.5.
    void setFontScale(float scale);

    ScalingFactor scaling(FontType view) const;

    /// Scales the fonts of \a view.
    void setScaling(FontType view, ScalingFactor factor);

    /// Scales the messaging view \a steps factors up or down, as far as there are any.
    void zoomMessages(int steps);

Q_SIGNALS:
    /// The font scale or a view's scaling changed, and all widgets show it.
    void sizesChanged();

private:
    std::map<FontType, ScalingFactor> m_scaling;
};

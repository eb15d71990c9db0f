// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QSlider>

/// A slider that takes part in theming. The style paints it. While it has the focus by keyboard, it
/// has the application's style draw a focus frame around the place of a handle of 18 by 18 pixels.
///
/// The place is that of a slider from left to right, or from top to bottom: with right-to-left
/// layout, and in vertical sliders that are not inverted, it does not follow Qt's handle. It has no
/// font token.
class UIELEMENTS_EXPORT OxaSlider : public QSlider
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QSlider)

public:
    /// Makes a vertical slider.
    explicit OxaSlider(QWidget *parent = nullptr);

    /// Makes a slider along \a orientation.
    explicit OxaSlider(Qt::Orientation orientation, QWidget *parent = nullptr);

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
};

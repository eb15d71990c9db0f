// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/theme/OxaThemeBlock.h>

#include <QSlider>

/// A horizontal slider.
class Slider : public QSlider
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QSlider)

public:
    Slider(int minimum, int maximum, int value, QWidget *parent = nullptr);

protected Q_SLOTS:
    virtual void onThemeChanged();

private:
    void applyLook();
};

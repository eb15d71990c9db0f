// SPDX-License-Identifier: Apache-2.0
#include "Slider.h"

#include <QGuiApplication>

Slider::Slider(int minimum, int maximum, int value, QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    m_themeBlock.followTheme();
    setRange(minimum, maximum);
    setValue(value);
    setMinimumHeight(24);
    connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &Slider::applyLook);
    applyLook();
}

void Slider::onThemeChanged() { }

void Slider::applyLook()
{
    // In a style sheet, sub-page is the part left of the handle in both directions.
    const QString filledPage = QGuiApplication::isRightToLeft() ? QStringLiteral("add-page")
                                                                : QStringLiteral("sub-page");
    setCSS(QStringLiteral(
                   "Slider { background: transparent; border: 2px solid transparent;"
                   " border-radius: 6px; }"
                   "Slider:focus { border-color: $(gallery-focus-border); outline: none; }"
                   "Slider::groove:horizontal { height: 4px; border-radius: 2px;"
                   " background: $(gallery-slider-track); }"
                   "Slider::%1:horizontal { height: 4px; border-radius: 2px;"
                   " background: $(gallery-slider-fill); }"
                   "Slider::handle:horizontal { width: 14px; margin: -6px 0; border-radius: 8px;"
                   " background: $(gallery-slider-handle); border: 1px solid "
                   "$(gallery-slider-fill); }"
                   "Slider::handle:horizontal:hover { background: "
                   "$(gallery-slider-handle.hovered); }")
                   .arg(filledPage));
}

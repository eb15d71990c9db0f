// SPDX-License-Identifier: Apache-2.0
#include "ScalingControl.h"

ScalingControl::ScalingControl(TextSettings *settings, TextSettings::FontType view, QWidget *parent)
    : SegmentedControl({ tr("S"), tr("R"), tr("M"), tr("L") }, parent)
{
    setToolTip(tr("Small, regular, medium, large"));
    // The factors begin at -1.
    const auto showCurrent = [this, settings, view] {
        setCurrentIndex(1 + int(settings->scaling(view)));
    };
    connect(settings, &TextSettings::sizesChanged, this, showCurrent);
    showCurrent();
    connect(this, &SegmentedControl::chosen, settings, [settings, view](int i) {
        settings->setScaling(view, static_cast<TextSettings::ScalingFactor>(i - 1));
    });
}

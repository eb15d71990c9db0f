// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SegmentedControl.h"
#include "looks/TextSettings.h"

/// Scales the fonts of one of the views that the user can enlarge.
class ScalingControl : public SegmentedControl
{
    Q_OBJECT

public:
    ScalingControl(TextSettings *settings, TextSettings::FontType view, QWidget *parent = nullptr);
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

/// A control with a caption before it, for a row of several.
class ControlRow : public OxaWidget
{
    Q_OBJECT

public:
    ControlRow(const QString &caption, QWidget *control, QWidget *parent = nullptr);
};

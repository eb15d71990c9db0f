// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaWidget.h>

/// A control with a caption before it. The captions of rows below each other are equally wide.
class ControlRow : public OxaWidget
{
    Q_OBJECT

public:
    /// How wide the caption is.
    enum class Caption {
        Aligned, ///< As wide as those of other rows.
        Tight,   ///< As wide as its text, for a control that stands beside others.
    };

    ControlRow(const QString &caption, QWidget *control, QWidget *parent = nullptr,
               Caption width = Caption::Aligned);
};

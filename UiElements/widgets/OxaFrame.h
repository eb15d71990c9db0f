// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/UiElementsExport.h>
#include <UiElements/fonts/OxaFontBlock.h>
#include <UiElements/theme/OxaThemeBlock.h>

#include <QFrame>

/// A frame around other widgets that takes part in theming. Qt draws the frame; its shape is
/// QFrame::NoFrame at first.
class UIELEMENTS_EXPORT OxaFrame : public QFrame
{
    Q_OBJECT
    UIELEMENTS_THEME_BLOCK(QFrame)
    UIELEMENTS_FONT_BLOCK

public:
    /// Makes a frame without a shape.
    explicit OxaFrame(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

protected Q_SLOTS:
    /// Runs at each change of the theme type, for subclasses to look up what they paint with.
    virtual void onThemeChanged();
};

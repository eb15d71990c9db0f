// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaMainWindow.h>

/// Another main window, with a log of the shortcuts that are typed in it. It is deleted when it
/// closes.
class SecondWindow : public OxaMainWindow
{
    Q_OBJECT

public:
    explicit SecondWindow(QWidget *parent);
};

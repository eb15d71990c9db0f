// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/widgets/OxaDialog.h>

/// A list of the shortcuts that are registered, with a search.
class ShortcutsDialog : public OxaDialog
{
    Q_OBJECT

public:
    explicit ShortcutsDialog(QWidget *parent);
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Dialog.h"

/// A list of the shortcuts that are registered, with a search.
class ShortcutsDialog : public Dialog
{
    Q_OBJECT

public:
    explicit ShortcutsDialog(QWidget *parent);
};

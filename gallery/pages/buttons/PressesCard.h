// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class CodeEdit;
class OxaPushButton;

/// Shows what a button tells of the pointer and the focus: clicks, long presses, right clicks.
class PressesCard : public Card
{
    Q_OBJECT

public:
    explicit PressesCard(QWidget *parent = nullptr);

private:
    /// Writes a line when the button emits \a signal, which is called \a name.
    template <typename Signal>
    void note(Signal signal, const char *name);

    OxaPushButton *m_button;
    CodeEdit *m_log;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class OxaLabel;
class OxaToggleButton;

/// Shows OxaToggleButton and which of its tool tips it shows after what.
class ToggleCard : public Card
{
    Q_OBJECT

public:
    explicit ToggleCard(QWidget *parent = nullptr);

private:
    void setChecked(bool checked);
    void showTexts();

    OxaToggleButton *m_button;
    OxaLabel *m_toolTip;
    OxaLabel *m_accessibleName;
};

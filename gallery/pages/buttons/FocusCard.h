// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class OxaPushButton;

/// Shows the two kinds of frame that tell where the keyboard's focus is.
class FocusCard : public Card
{
    Q_OBJECT

public:
    explicit FocusCard(QWidget *parent = nullptr);

private:
    QWidget *makeFrameControl();
    void setCustomRect(bool isCustom);

    OxaPushButton *m_legacy;
    OxaPushButton *m_global;
    OxaPushButton *m_none;
};

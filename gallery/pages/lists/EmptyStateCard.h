// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

class Button;
class ConversationModel;

/// A list that begins empty, and shows the texts that its model carries for this case.
class EmptyStateCard : public Card
{
    Q_OBJECT

public:
    explicit EmptyStateCard(QWidget *parent = nullptr);

private:
    void fill();

    ConversationModel *m_model;
    Button *m_clear;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "widgets/Card.h"

/// A conversation, each message with its author, its text and the reactions to it.
class MessagesCard : public Card
{
    Q_OBJECT

public:
    explicit MessagesCard(QWidget *parent = nullptr);
};

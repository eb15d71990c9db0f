// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Page.h"

/// Shows labels that draw their emoji from artwork: messages, a playground, and the artwork itself.
class EmojiTextPage : public Page
{
    Q_OBJECT

public:
    explicit EmojiTextPage(QWidget *parent = nullptr);
};

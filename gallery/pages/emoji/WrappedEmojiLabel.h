// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/OxaEmojiLabel.h>

/// A label for a text of any length, aligned to the top.
class WrappedEmojiLabel : public OxaEmojiLabel
{
    Q_OBJECT

public:
    explicit WrappedEmojiLabel(const QString &text, QWidget *parent = nullptr);

    int heightForWidth(int width) const override;
};

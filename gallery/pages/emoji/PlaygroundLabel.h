// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/emoji/OxaEmojiLabel.h>

/// A label with public access to how it shows its emoji.
class PlaygroundLabel : public OxaEmojiLabel
{
    Q_OBJECT

public:
    using OxaEmojiLabel::OxaEmojiLabel;
    using OxaEmojiLabel::shouldDrawSvgEmojis;
};

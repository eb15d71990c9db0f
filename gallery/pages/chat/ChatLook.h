// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ChatHistory.h"
#include "widgets/ItemDelegate.h"

#include <QRect>

/// Where the parts of a message are, in a layout from left to right.
struct ChatParts
{
    QRect day;
    QRect avatar;
    QRect head; ///< The author's name and the time.
    QRect text;
    QRect reactions;
};

/// The colours, the fonts and the geometry of the chat's messages.
struct ChatLook
{
    /// Makes the look of \a themeType, with fonts at the current scale.
    explicit ChatLook(OxaThemeUtils::AppThemeType themeType);

    /// Returns the places in \a message of \a size, which begins \a start. The text has what the
    /// other parts leave.
    ChatParts partsOf(const ChatMessage &message, ChatStart start, const QSize &size) const;

    /// Returns the height of \a message without that of its text.
    int heightAroundText(const ChatMessage &message, ChatStart start) const;

    /// Returns the width of texts in messages of \a width.
    static int textWidth(int width);

    ItemLook item;
    QColor avatarText;
    std::vector<QColor> avatars;
    int dayHeight;
    int headHeight;
    int reactionHeight;
};

// SPDX-License-Identifier: Apache-2.0
#include "ChatLook.h"

#include "looks/Metrics.h"
#include "pages/emoji/ReactionButton.h"
#include "pages/lists/AvatarColors.h"

namespace {

constexpr int avatarSize = 32;
constexpr int side = Metrics::spacing;
constexpr int textLeft = side + avatarSize + Metrics::small;

/// Half of the space between two messages of one author.
constexpr int halfGap = Metrics::tight;

} // namespace

ChatLook::ChatLook(OxaThemeUtils::AppThemeType themeType)
    : item(themeType),
      avatarText(OxaThemeUtils::getColorSet("avatar-text", themeType).normal),
      dayHeight(QFontMetrics(item.captionFont).height()),
      headHeight(QFontMetrics(item.headingFont).height()),
      reactionHeight(ReactionButton(QStringLiteral("\u2705"), 1).sizeHint().height())
{
    for (int i = 0; i < AvatarColors::count(); ++i) {
        const std::string name = AvatarColors::setName(i).toStdString();
        avatars.push_back(OxaThemeUtils::getColorSet(name, themeType).normal);
    }
}

ChatParts ChatLook::partsOf(const ChatMessage &message, ChatStart start, const QSize &size) const
{
    ChatParts parts;
    const int width = textWidth(size.width());
    int top = halfGap;
    if (start == ChatStart::Day) {
        top += Metrics::small;
        parts.day = QRect(side, top, size.width() - 2 * side, dayHeight);
        top += dayHeight;
    }
    if (start != ChatStart::Nothing) {
        top += Metrics::spacing - 2 * halfGap;
        parts.avatar = QRect(side, top, avatarSize, avatarSize);
        parts.head = QRect(textLeft, top, width, headHeight);
        top += headHeight;
    }
    const int textHeight = size.height() - heightAroundText(message, start);
    parts.text = QRect(textLeft, top, width, textHeight);
    top += textHeight + Metrics::tight;
    if (message.reactions != 0)
        parts.reactions = QRect(textLeft, top, width, reactionHeight);
    return parts;
}

int ChatLook::heightAroundText(const ChatMessage &message, ChatStart start) const
{
    int height = 2 * halfGap;
    if (start == ChatStart::Day)
        height += Metrics::small + dayHeight;
    if (start != ChatStart::Nothing)
        height += Metrics::spacing - 2 * halfGap + headHeight;
    if (message.reactions != 0)
        height += Metrics::tight + reactionHeight;
    return height;
}

int ChatLook::textWidth(int width) { return qMax(1, width - textLeft - side); }

// SPDX-License-Identifier: Apache-2.0
#include "RowLayout.h"

#include "ReactionBar.h"
#include "data/History.h"

#include <UiElements/fonts/FontUtils.h>

#include <QMargins>

namespace {

constexpr int side = 16;
constexpr int widest = 640;
constexpr int indent = side + RowLayout::avatarSize + 12;
constexpr int groupGap = 12;
constexpr int rowGap = 3;
constexpr int groupMinutes = 5;

int lineHeight() { return FontUtils::fontMetrics(OxaFont::Token::BodyTertiary).height(); }

QDate dayOf(const Message &message) { return message.at.toLocalTime().date(); }

} // namespace

RowLook RowLook::of(const History &history, int row, const QString &me)
{
    const Message &message = history.at(row);
    const Message *before = row > 0 ? &history.at(row - 1) : nullptr;
    RowLook look;
    look.isOwn = message.author == me;
    look.hasDay = !before || dayOf(*before) != dayOf(message);
    look.isFirstUnread = message.seq >= 0 && message.seq == history.firstUnread();
    look.isGroupStart = look.hasDay || look.isFirstUnread || before->author != message.author
            || before->at.secsTo(message.at) > groupMinutes * 60;
    return look;
}

int RowLayout::contentWidth(int width)
{
    return qBound(80, width - indent - 2 * padding - 2 * side, widest);
}

RowLayout RowLayout::of(const RowLook &look, const Message &message, const QSize &size, int width)
{
    RowLayout row;
    int y = 0;
    const auto line = [&](int height) {
        const QRect rect(side, y, width - 2 * side, height);
        y += height;
        return rect;
    };
    if (look.hasDay)
        row.day = line(lineHeight() + 28);
    if (look.isFirstUnread)
        row.unread = line(lineHeight() + 16);
    y += look.isGroupStart ? groupGap : rowGap;

    const QMargins inside = message.kind == Message::Kind::Text ? QMargins(padding, 7, padding, 7)
                                                                : QMargins();
    const QSize bubble = size.grownBy(inside);
    const int left = look.isOwn ? width - side - bubble.width() : indent;
    if (look.isGroupStart) {
        row.avatar = look.isOwn ? QRect() : QRect(side, y, avatarSize, avatarSize);
        row.head = QRect(indent, y, width - indent - side, lineHeight());
        y += lineHeight() + 4;
    }
    row.bubble = QRect(QPoint(left, y), bubble);
    row.content = row.bubble.marginsRemoved(inside);
    y = row.bubble.bottom() + 1;
    if (!message.reactions.isEmpty()) {
        const int most = contentWidth(width) + 2 * padding;
        const QSize room = ReactionBar::room(message.reactions.size(), most);
        row.reactions = QRect(QPoint(look.isOwn ? width - side - room.width() : indent, y + 4),
                              room);
        y += 4 + room.height();
    }
    if (message.state == Message::State::Failed) {
        row.failure = QRect(indent, y + 4, width - indent - side, lineHeight() + 12);
        y = row.failure.bottom() + 1;
    }
    // An avatar of a single short message stands out below it.
    row.height = qMax(y, row.avatar.isNull() ? 0 : row.avatar.bottom() + 1) + rowGap;
    return row;
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "data/Records.h"

#include <QRect>

class History;

/// What a message's row shows beside the message: that depends on its neighbours.
struct RowLook
{
    bool hasDay = false; ///< It is the first of its day.
    bool isFirstUnread = false;
    bool isGroupStart = false; ///< It shows who wrote it and when.
    bool isOwn = false;

    /// The look of the message at \a row of \a history; \a me is the user.
    static RowLook of(const History &history, int row, const QString &me);
};

/// Where the parts of a row are, as from left to right. Measuring a row and placing its parts use
/// the same numbers, so that a row is as high as it was said to be.
struct RowLayout
{
    static constexpr int avatarSize = 36;
    static constexpr int padding = 12; ///< Inside a bubble, left and right.

    QRect day;
    QRect unread;
    QRect avatar;
    QRect head; ///< The name and the time.
    QRect bubble;
    QRect content;
    QRect reactions;
    QRect failure;
    int height = 0;

    /// How wide the content of a message may be in a row of \a width.
    static int contentWidth(int width);

    /// The layout of \a message, whose content has \a size, in a row of \a width.
    static RowLayout of(const RowLook &look, const Message &message, const QSize &size, int width);
};

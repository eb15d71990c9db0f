// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Qt>

/// What the rows of the page's lists say of themselves.
namespace RowRole {

enum Role {
    Title = Qt::UserRole + 1, ///< QString; a row without one is not loaded yet.
    Detail,                   ///< QString; the second line.
    Time,                     ///< QString.
    Unread,                   ///< int; how many messages are unread.
    Avatar,                   ///< int; which of the avatars' colours.
};

} // namespace RowRole

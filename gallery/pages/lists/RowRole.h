// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Qt>

/// The roles of the rows in the page's lists.
namespace RowRole {

enum Role {
    Title = Qt::UserRole + 1, ///< QString; a row without one is not loaded yet.
    Detail,                   ///< QString; the second line.
    Time,                     ///< QString.
    Unread,                   ///< int; the number of unread messages.
    Avatar,                   ///< int; the index of the avatar's colour.
};

} // namespace RowRole

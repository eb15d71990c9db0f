// SPDX-License-Identifier: Apache-2.0
#include "AvatarColors.h"

#include <iterator>

namespace {

constexpr const char *setNames[] = { "avatar-blue",   "avatar-teal", "avatar-green",
                                     "avatar-purple", "avatar-pink", "avatar-orange",
                                     "avatar-slate" };

} // namespace

int AvatarColors::count() { return int(std::size(setNames)); }

QString AvatarColors::setName(int index) { return QString::fromLatin1(setNames[index % count()]); }

// SPDX-License-Identifier: Apache-2.0
#include "SignalGroups.h"

#include <QCoreApplication>

namespace {

struct Group
{
    const char *heading;
    int count;
};

constexpr Group groups[] = {
    { QT_TRANSLATE_NOOP("SignalGroups", "Contacts"), 11 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Spaces and messages"), 40 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Navigation and search"), 16 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Content and whiteboards"), 5 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Space list and filters"), 9 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Meetings and calls"), 11 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Floating windows and coach marks"), 6 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Application windows and dialogs"), 16 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Meeting containers"), 4 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Phone widget and call windows"), 9 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Developer tools"), 2 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Sharing and annotation"), 17 },
    { QT_TRANSLATE_NOOP("SignalGroups", "Other"), 13 },
};

} // namespace

std::vector<SignalGroup> signalGroups()
{
    std::vector<SignalGroup> result;
    for (const Group &group : groups)
        result.push_back(
                { QCoreApplication::translate("SignalGroups", group.heading), group.count });
    return result;
}

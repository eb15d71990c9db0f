// SPDX-License-Identifier: Apache-2.0
#include "SignalGroups.h"

#include <QCoreApplication>

namespace {

struct Group
{
    const char *heading;
    const char *firstSignal;
};

constexpr Group groups[] = {
    { QT_TRANSLATE_NOOP("SignalGroups", "Contacts"), "closeContactCards" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Spaces and messages"), "copySpaceMetaDataToClipboard" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Navigation and search"), "navigateToRill" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Content and whiteboards"), "createWhiteboard" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Space list and filters"), "moveDownSpaceList" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Meetings and calls"), "preferenceMeetingSettingChanged" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Floating windows and coach marks"),
      "ShowHomeTabCoachMark" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Application windows and dialogs"), "reloadAllQmlViews" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Meeting containers"), "shareMeetingContainer" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Phone widget and call windows"),
      "phoneWidgetEnableChanged" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Developer tools"), "showDebugWindow" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Sharing and annotation"), "startLocalShare" },
    { QT_TRANSLATE_NOOP("SignalGroups", "Other"), "showVDIUpgradeCheckerWindow" },
};

} // namespace

std::vector<SignalGroup> signalGroups()
{
    std::vector<SignalGroup> result;
    for (const Group &group : groups)
        result.push_back({ QCoreApplication::translate("SignalGroups", group.heading),
                           QByteArray(group.firstSignal) });
    return result;
}

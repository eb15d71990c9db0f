// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <UiElements/app/OxaAppSignals.h>

#include <QKeySequence>

#include <vector>

/// What a registered shortcut must look like, and what it must do.
struct ShortcutData
{
    int number;
    const char *name;
    OxaShortcut::ShortcutGroup registeredWith;
    QKeySequence keys;
    const char *description;
    OxaShortcut::ShortcutGroup group;
    const char *signal;

    OxaAppSignals::Shortcut id() const { return OxaAppSignals::Shortcut(number); }
};
Q_DECLARE_METATYPE(const ShortcutData *)

/// Returns what registerShortcuts() makes, in its order. Needs an application object, since
/// standard keys depend on the platform.
inline const std::vector<ShortcutData> &shortcutsTable()
{
    const auto keys = [](const char *text) { return QKeySequence(QLatin1String(text)); };
    // clang-format off
    static const std::vector<ShortcutData> table = {
        { 7, "CopySpaceMetaDataToClipboard", OxaShortcut::General, keys("Ctrl+Shift+K"), "Copy space information to clipboard", OxaShortcut::General, "copySpaceMetaDataToClipboard" },
        { 17, "OpenGlobalSearch", OxaShortcut::General, keys("Ctrl+F"), "Search", OxaShortcut::General, "openGlobalSearch" },
        { 25, "SelectCallingTab", OxaShortcut::General, keys("Ctrl+4"), "Go to calling", OxaShortcut::General, "selectCallingTab" },
        { 24, "SelectContactsTab", OxaShortcut::General, keys("Ctrl+3"), "Go to contacts", OxaShortcut::General, "selectContactsTab" },
        { 30, "SelectMeetingsTab", OxaShortcut::General, keys("Ctrl+5"), "Go to meetings", OxaShortcut::General, "selectMeetingsTab" },
        { 31, "SelectMessagesTab", OxaShortcut::General, keys("Ctrl+1"), "Go to messaging", OxaShortcut::General, "selectMessagingTab" },
        { 35, "SelectRillsTab", OxaShortcut::General, keys("Ctrl+2"), "Go to rills", OxaShortcut::General, "selectRillsTab" },
        { 36, "SelectPersonalInsightsTab", OxaShortcut::General, keys("Ctrl+6"), "Go to personal insights", OxaShortcut::General, "selectPersonalInsightsTab" },
        { 56, "SelectVoicemailTab", OxaShortcut::General, keys("Ctrl+7"), "Go to voicemail", OxaShortcut::General, "selectVoicemailTab" },
        { 18, "OpenHelpPopUp", OxaShortcut::General, keys("F1"), "Open Help Center", OxaShortcut::General, "openHelpPopUp" },
        { 32, "SelectNextSpaceInHistory", OxaShortcut::General, QKeySequence(QKeySequence::Forward), "Go forward", OxaShortcut::General, "selectNextSpaceInHistory" },
        { 34, "SelectPrevSpaceInHistory", OxaShortcut::General, QKeySequence(QKeySequence::Back), "Go back", OxaShortcut::General, "selectPrevSpaceInHistory" },
        { 41, "ShowKeyboardShortcutsDialog", OxaShortcut::General, keys("Ctrl+/"), "Open keyboard shortcut search", OxaShortcut::General, "showKeyboardShortcutsDialog" },
        { 3, "AdvancedSearch", OxaShortcut::General, keys("Shift+Return"), "Advanced Search (when in search)", OxaShortcut::General, "advancedSearch" },
        { 10, "ExpandTabSelectorWidget", OxaShortcut::General, keys("Alt+Shift+Q"), "Expand or Collapse navigation menu", OxaShortcut::General, "expandTabSelectorWidget" },
        { 55, "OpenDiagnosticsDetails", OxaShortcut::General, keys("Ctrl+Alt+Shift+D"), "Open diagnostics dialog", OxaShortcut::General, "showDiagnosticsDetails" },
        { 16, "MoveUpSpaceList", OxaShortcut::Messaging, keys("Alt+Up"), "Move up the spaces list", OxaShortcut::Messaging, "moveUpSpaceList" },
        { 15, "MoveDownSpaceList", OxaShortcut::Messaging, keys("Alt+Down"), "Move down the spaces list", OxaShortcut::Messaging, "moveDownSpaceList" },
        { 8, "CreateSpace", OxaShortcut::Messaging, keys("Ctrl+Shift+N"), "Create a space", OxaShortcut::Messaging, "createSpace" },
        { 6, "ContactPerson", OxaShortcut::Messaging, keys("Ctrl+N"), "Send a direct message", OxaShortcut::Messaging, "contactPerson" },
        { 12, "FocusMainConversation", OxaShortcut::Messaging, keys("Ctrl+H"), "Go to last message in focus", OxaShortcut::Messaging, "focusMainConversation" },
        { 13, "FocusMainInputBox", OxaShortcut::Messaging, keys("Ctrl+Shift+I"), "Go to message compose area", OxaShortcut::Messaging, "focusMainInputBox" },
        { 23, "SelectAllSpacesTab", OxaShortcut::Messaging, keys("Alt+Shift+A"), "Show all spaces", OxaShortcut::Messaging, "selectAllSpacesTab" },
        { 29, "SelectFlagsFilter", OxaShortcut::Messaging, keys("Alt+Shift+F"), "Go to flagged messages list", OxaShortcut::Messaging, "selectFlagsFilter" },
        { 28, "SelectFavouritesFilter", OxaShortcut::Messaging, keys("Ctrl+Shift+U"), "Go to favorites list", OxaShortcut::Messaging, "selectFavouritesFilter" },
        { 33, "SelectNotificationsFilter", OxaShortcut::Messaging, keys("Alt+Shift+N"), "Go to message notifications list", OxaShortcut::Messaging, "selectNotificationsFilter" },
        { 37, "SelectUnreadFilter", OxaShortcut::Messaging, keys("Alt+Shift+E"), "Go to unread messages list", OxaShortcut::Messaging, "selectUnreadFilter" },
        { 27, "SelectDraftsFilter", OxaShortcut::Messaging, keys("Alt+Shift+D"), "Go to draft messages list", OxaShortcut::Messaging, "selectDraftsFilter" },
        { 9, "CreateWhiteboard", OxaShortcut::Messaging, keys("Ctrl+Shift+B"), "New whiteboard", OxaShortcut::Messaging, "createWhiteboard" },
        { 26, "SelectDirectMessagesTab", OxaShortcut::Messaging, keys("Ctrl+Shift+T"), "Go to direct messages list", OxaShortcut::Messaging, "selectDirectMessagesTab" },
        { 19, "OpenInActiveSpaceSearch", OxaShortcut::Messaging, keys("Ctrl+Shift+J"), "Search in space", OxaShortcut::Messaging, "openSearchInActiveSpace" },
        { 4, "AttachFile", OxaShortcut::Messaging, keys("Ctrl+O"), "Attach a file", OxaShortcut::Messaging, "attachFile" },
        { 1, "AddGif", OxaShortcut::Messaging, keys("Ctrl+G"), "Add a Gif", OxaShortcut::Messaging, "addGif" },
        { 14, "LeaveSpace", OxaShortcut::Messaging, keys("Ctrl+Shift+E"), "Leave the space", OxaShortcut::Messaging, "leaveSpace" },
        { 22, "SelectAddPeopleTab", OxaShortcut::Messaging, keys("Ctrl+Shift+P"), "Add people", OxaShortcut::Messaging, "selectAddPeopleTab" },
        { 2, "AddLink", OxaShortcut::Messaging, keys("Ctrl+E"), "Add link", OxaShortcut::Messaging, "addLink" },
        { 0, "AddBitmoji", OxaShortcut::Messaging, keys("Ctrl+J"), "Add a Bitmoji", OxaShortcut::Messaging, "addBitmoji" },
        { 52, "ZoomInMessageView", OxaShortcut::Messaging, QKeySequence(QKeySequence::ZoomIn), "Increase font size for messages", OxaShortcut::Messaging, "zoomInMessageView" },
        { 54, "ZoomOutMessageView", OxaShortcut::Messaging, QKeySequence(QKeySequence::ZoomOut), "Decrease font size for messages", OxaShortcut::Messaging, "zoomOutMessageView" },
        { 53, "ZoomInMessageViewAlternative", OxaShortcut::Messaging, keys("Ctrl+="), "", OxaShortcut::All, "zoomInMessageView" },
        { 57, "ToggleMarkdown", OxaShortcut::Messaging, keys("Alt+Shift+M"), "", OxaShortcut::All, "toggleMarkdown" },
        { 11, "EndCall", OxaShortcut::CallingAndMeeting, keys("Ctrl+L"), "End call", OxaShortcut::CallingAndMeeting, "endCall" },
        { 5, "AnswerCall", OxaShortcut::CallingAndMeeting, keys("Ctrl+Shift+C"), "Answer call", OxaShortcut::CallingAndMeeting, "answerCall" },
        { 49, "ToggleAudioMute", OxaShortcut::CallingAndMeeting, keys("Ctrl+M"), "Toggle audio mute", OxaShortcut::CallingAndMeeting, "toggleAudioMute" },
        { 50, "ToggleVideoMute", OxaShortcut::CallingAndMeeting, keys("Ctrl+Shift+V"), "Toggle video mute", OxaShortcut::CallingAndMeeting, "toggleVideoMute" },
        { 43, "StartAudioCall", OxaShortcut::CallingAndMeeting, keys("Ctrl+Shift+Return"), "Start an audio call (from search)", OxaShortcut::CallingAndMeeting, "startAudioCall" },
        { 44, "StartVideoCall", OxaShortcut::CallingAndMeeting, keys("Ctrl+Return"), "Start a video call (from search)", OxaShortcut::CallingAndMeeting, "startVideoCall" },
        { 51, "ShowMultiCall", OxaShortcut::CallingAndMeeting, keys("Ctrl+Shift+X"), "Show/Hide Multi Call", OxaShortcut::CallingAndMeeting, "showMultiCall" },
        { 38, "ShareContent", OxaShortcut::CallingAndMeeting, keys("Ctrl+Shift+D"), "Share content", OxaShortcut::CallingAndMeeting, "shareContentShortcut" },
        { 47, "StopSharing", OxaShortcut::CallingAndMeeting, keys("Ctrl+Shift+Z"), "Stop sharing", OxaShortcut::CallingAndMeeting, "stopSharingShortcut" },
        { 48, "SwitchBetweenFloatingWindows", OxaShortcut::CallingAndMeeting, keys("Ctrl+Alt+Shift+S"), "Switch between floating windows", OxaShortcut::CallingAndMeeting, "switchBetweenFloatingWindows" },
        { 20, "PauseResumeSharing", OxaShortcut::CallingAndMeeting, keys("Alt+Shift+S"), "Pause/Resume sharing", OxaShortcut::CallingAndMeeting, "pauseResumeSharing" },
        { 46, "ToggleRemoteControl", OxaShortcut::CallingAndMeeting, keys("Alt+Shift+R"), "Start or stop remote control", OxaShortcut::CallingAndMeeting, "toggleRemoteDesktopControlShortcut" },
        { 39, "ShareFileVideo", OxaShortcut::CallingAndMeeting, keys("Ctrl+Alt+O"), "Share a File", OxaShortcut::CallingAndMeeting, "shareFileVideoShortcut" },
        { 42, "StartAnnotation", OxaShortcut::CallingAndMeeting, keys("Alt+Shift+Z"), "Start annotation", OxaShortcut::CallingAndMeeting, "startAnnotateShortcut" },
        { 45, "StopAnnotation", OxaShortcut::CallingAndMeeting, keys("Alt+Shift+X"), "Stop annotation", OxaShortcut::CallingAndMeeting, "stopAnnotateShortcut" },
        { 21, "ReloadAllQmlViews", OxaShortcut::Tool, keys("Ctrl+Alt+Shift+R"), "", OxaShortcut::Tool, "reloadAllQmlViews" },
        { 40, "ShowDevToolsDialog", OxaShortcut::Tool, keys("Ctrl+Alt+Shift+P"), "", OxaShortcut::Tool, "showDevToolsDialog" },
    };
    // clang-format on
    return table;
}

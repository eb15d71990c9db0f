// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: the shortcuts and the signals are two tables, and moc needs both
// inside the class.

#include <UiElements/UiElementsExport.h>
#include <UiElements/app/OuterApplicationTypes.h>
#include <UiElements/app/OxaObject.h>
#include <UiElements/keyboard/OxaShortcut.h>

#include <QKeySequence>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QVariant>
#include <QWidget>
#include <QWindow>

#include <string>
#include <unordered_map>
#include <vector>

struct ShortcutRow;

/// The switchboard between the screens and the outer application.
///
/// A widget, a QML view or a keyboard shortcut says what the user wants by emitting a signal. The
/// outer application, which alone can do it, connects to the signals that it handles. Neither knows
/// the other. Emitting has no other effect, and a signal without a connection does nothing.
/// OxaApplication makes the only instance of the process.
///
/// The hub also owns the table of application-wide keyboard shortcuts: activating a shortcut emits
/// one of the signals.
class UIELEMENTS_EXPORT OxaAppSignals : public OxaObject
{
    Q_OBJECT

public:
    /// The shortcuts that the library registers. The numbers are stable.
    enum class Shortcut {
        AddBitmoji = 0,
        AddGif = 1,
        AddLink = 2,
        AdvancedSearch = 3,
        AttachFile = 4,
        AnswerCall = 5,
        ContactPerson = 6,
        CopySpaceMetaDataToClipboard = 7,
        CreateSpace = 8,
        CreateWhiteboard = 9,
        ExpandTabSelectorWidget = 10,
        EndCall = 11,
        FocusMainConversation = 12,
        FocusMainInputBox = 13,
        LeaveSpace = 14,
        MoveDownSpaceList = 15,
        MoveUpSpaceList = 16,
        OpenGlobalSearch = 17,
        OpenHelpPopUp = 18,
        OpenInActiveSpaceSearch = 19,
        PauseResumeSharing = 20,
        ReloadAllQmlViews = 21,
        SelectAddPeopleTab = 22,
        SelectAllSpacesTab = 23,
        SelectContactsTab = 24,
        SelectCallingTab = 25,
        SelectDirectMessagesTab = 26,
        SelectDraftsFilter = 27,
        SelectFavouritesFilter = 28,
        SelectFlagsFilter = 29,
        SelectMeetingsTab = 30,
        SelectMessagesTab = 31,
        SelectNextSpaceInHistory = 32,
        SelectNotificationsFilter = 33,
        SelectPrevSpaceInHistory = 34,
        SelectRillsTab = 35,
        SelectPersonalInsightsTab = 36,
        SelectUnreadFilter = 37,
        ShareContent = 38,
        ShareFileVideo = 39,
        ShowDevToolsDialog = 40,
        ShowKeyboardShortcutsDialog = 41,
        StartAnnotation = 42,
        StartAudioCall = 43,
        StartVideoCall = 44,
        StopAnnotation = 45,
        ToggleRemoteControl = 46,
        StopSharing = 47,
        SwitchBetweenFloatingWindows = 48,
        ToggleAudioMute = 49,
        ToggleVideoMute = 50,
        ShowMultiCall = 51,
        ZoomInMessageView = 52,
        ZoomInMessageViewAlternative = 53,
        ZoomOutMessageView = 54,
        OpenDiagnosticsDetails = 55,
        SelectVoicemailTab = 56,
        ToggleMarkdown = 57,
        Debug_ShowDebugWindow = 58,
    };
    Q_ENUM(Shortcut)

    /// Makes a hub without shortcuts.
    explicit OxaAppSignals(QObject *parent = nullptr);

    /// Returns the application's hub. Without an OxaApplication it logs a warning and returns null.
    static OxaAppSignals *get();

    /// Makes the shortcuts of each group whose bit is set in \a groups, as children of
    /// \a mainWindow. They work in all windows of the application, until they are disabled or the
    /// window is deleted.
    ///
    /// Without a window, or while a shortcut of any group is registered, it logs a warning and does
    /// nothing: register all groups in one call.
    void registerShortcuts(QWidget *mainWindow, OxaShortcut::ShortcutGroup groups);

    /// Returns the key of the shortcut \a id. If it is not registered, or its object was deleted by
    /// other code, a warning is logged and the sequence is empty.
    QKeySequence getKeySequence(OxaAppSignals::Shortcut id) const;

    /// Returns the shortcuts whose group equals \a group. Bits are not tested, so All finds only
    /// shortcuts that were never given a group.
    std::unordered_map<OxaAppSignals::Shortcut, QPointer<OxaShortcut>> getGroupShortcuts(
            OxaShortcut::ShortcutGroup group) const;

    /// True when the shortcut \a id is registered, also when its object was deleted by other code.
    bool shortcutExists(OxaAppSignals::Shortcut id) const;

    /// Deletes the shortcut \a id. It can't be enabled again by itself: use
    /// OxaShortcut::temporarilyDisable() for that. Logs a warning when it is not registered.
    void disableShortcut(OxaAppSignals::Shortcut id);

    /// Deletes all shortcuts. registerShortcuts() may be called again.
    void disableAll();

Q_SIGNALS:
    /// \name Contacts
    /// \{

    /// Requests about a person: the contact card, the entry in the contact list, a call.
    void closeContactCards(bool delayToClose, bool forceClose = false);
    void contactPerson();
    void navigateToContact(const QString &contactId);
    void showContactCard(QRect sourceRect, const QString &contactId, Qt::ArrowType arrow,
                         bool checkMousePosition = false, const QString &themeType = QString());
    void makeCall(const QString &contactId, bool isAudio, QPoint clickPos);
    void addToContact(const std::string &contactId);
    void createNewContact(const std::string &phoneNumber);
    void addToExistingContact(const std::string &phoneNumber);
    /// \}

    /// \name Spaces and messages
    /// \{

    /// Requests about a space or a message, and about the area where messages are written.
    void copySpaceMetaDataToClipboard();
    void createSpace();
    void createPublicSpace();
    void createSpaceWithParticipants(const std::vector<std::string> &participantIds);
    void focusMainConversation();
    void focusMainInputBox();
    void forwardMessageRequested(const QString &conversationId, const QString &smsChatId,
                                 const QString &messageId);
    void replyPrivatelyRequested(const QString &contactId, const QString &sourceConversationId,
                                 const QString &messageId);
    void navigateToMessage(const std::string &conversationId, const std::string &messageId);
    void navigateToSpace(const fenn::guid &conversationId);
    void replyToMessage(const std::string &conversationId, const std::string &messageId);
    void openAttachFilePopover();
    void openGiphyPopover();
    void popoutConversation(const std::string &conversationId, const std::string &smsChatId,
                            const std::string &messageId, const std::string &actionType);
    void selectAddPeopleTab();
    void selectPrevSpaceInHistory();
    void selectNextSpaceInHistory();
    void selectPersonalInsightsTab();
    void smsChatAction(const std::string &phoneNumber);
    void showAddPeopleView(const std::string &conversationId);
    void showSpaceInformationCard(const fenn::guid &conversationId, QWidget *sourceWidget);
    void showSpaceInformationCardFromPoint(const fenn::guid &conversationId, QPointF sourcePoint,
                                           QWindow *parentWindow);
    void showSpaceInformationCardFromRect(const fenn::guid &conversationId,
                                          const QRectF &sourceRect, QWindow *parentWindow,
                                          bool checkMousePosition = false);
    void showMeetingRoomCard(const fenn::guid &meetinRoomId, const QRectF &sourceRect,
                             bool hoverWithDelay, QWindow *parentWindow);
    void showMigrationCoachmark(const std::string &coachmarkText);
    void showMeetingCoachmarks(const std::string &coachmarkText);
    void peekSpaceRequested(const fenn::guid &conversationId);
    void spaceSettingsRequested(const QString &conversationId);
    void attachFile();
    void addLink();
    void addGif();
    void addBitmoji();
    void leaveSpace();
    void startAudioCall();
    void startVideoCall();
    void showMultiCall();
    void zoomInMessageView();
    void zoomOutMessageView();
    void toggleMarkdown();
    /// \}

    /// \name Navigation and search
    /// \{

    /// Requests to go somewhere, and to search or close something on the way.
    void navigateToRill(const fenn::guid &rillId);
    void navigateToExplorePublicSpaces(bool fullScreenView, const std::string &source);
    void closeAllConversationsFormPopouts();
    void closeQmlPopups();
    void openGlobalSearch();
    void openSearchInSpace(const std::string &conversationId);
    void openSearchInActiveSpace();
    void openFromSearch(const std::string &contactId);
    void advancedSearch();
    void selectCallingTab();
    void selectContactsTab();
    void selectMeetingsTab();
    void selectMessagingTab();
    void selectRillsTab();
    void selectHomeTab();
    void selectVoicemailTab();
    /// \}

    /// \name Content and whiteboards
    /// \{

    /// Requests to open, make or edit a file or a whiteboard.
    void createWhiteboard();
    void openEcmFile(const std::string &conversationId, const std::string &ecmFileName,
                     const std::string &ecmUrl);
    void openFile(const std::string &conversationId, const std::string &messageId,
                  int contentIndex);
    void editWhiteboard(const std::string &conversationId, const std::string &whiteboardUrl);
    void startECMAuthentication(dolmCore::viewModels::ECMProvider ecmProvider,
                                const std::string &conversationId, const std::string &messageId,
                                int contentIndex);
    /// \}

    /// \name Space list and filters
    /// \{

    /// Requests to move in the list of spaces, and to choose which of them it shows.
    void moveDownSpaceList();
    void moveUpSpaceList();
    void selectAllSpacesTab();
    void selectDirectMessagesTab();
    void selectDraftsFilter();
    void selectFavouritesFilter();
    void selectFlagsFilter();
    void selectNotificationsFilter();
    void selectUnreadFilter();
    /// \}

    /// \name Meetings and calls
    /// \{

    /// Requests about a meeting or a call, before and during it.
    void preferenceMeetingSettingChanged();
    void scheduleMeeting(const QVariant &scheduleInfo);
    void openBreakoutManage(const QVariantMap &properties);
    void answerCall();
    void endCall();
    void toggleAudioMute();
    void toggleVideoMute();
    void assistantViewVisibleChanged(bool isVisible);
    void joinAMeeting();
    void displayMeetingDetailsPopup(const QString &meetingId, const QString &eventId,
                                    QPoint clickPos);
    void joinAnOngoingCall(const QString &callId);
    /// \}

    /// \name Floating windows and coach marks
    /// \{

    /// Requests to show a coach mark or to switch between floating windows, and what the user did
    /// with a coach mark.
    void ShowHomeTabCoachMark(dolmCore::viewModels::HomeTabCoachMark coachMark);
    void switchBetweenFloatingWindows();
    void primaryCoachMarkButtonClicked(const QString &coachMarkName);
    void secondaryCoachMarkButtonClicked(const QString &coachMarkName);
    void coachMarkHyperLinkClicked(const QString &coachMarkName, const QString &hyperLink);
    void showUserConsentCoachMark(const QString &coachMarkText);
    /// \}

    /// \name Application windows and dialogs
    /// \{

    /// Requests to open a window, a dialog or a notification of the application.
    void reloadAllQmlViews();
    void showDevToolsDialog();
    void openHelpPopUp();
    void openSettingsWindow();
    void openMakeCallPanel();
    void startMigration();
    void showWhatsNewRequested();
    void showEditProfileDialog();
    void showKeyboardShortcutsDialog();
    void showStatusSelectorDialog();
    void openApplicationMenuItem(ApplicationMenuItem item);
    void openConnectDevicePopUp();
    void showFreeOrEnterpriseUGFlow(bool showEnterpriseFlow);
    void showCalloOrOxaMigrationFlow(bool showCallo);
    void showPeopleInsightsNotification();
    void showPaidCallLanding();
    /// \}

    /// \name Meeting containers
    /// \{

    /// Requests about the record that a meeting leaves: share it, see it, talk in it.
    void shareMeetingContainer(const QString &containerId, const QVariant &shareOrigin);
    void showMeetingContainerRecording(const QString &containerId, const QString &recordingId);
    void showMeetingContainerDetailsInBrowser(const QString &containerId);
    void popoutInMeetingChatContainer(const QString &containerId, const QVariant &tabType);
    /// \}

    /// \name Phone widget and call windows
    /// \{

    /// Changes of the phone widget, and requests about the windows of a call.
    void phoneWidgetEnableChanged(bool enabled);
    void setPhoneWidgetVisibility(QWindow::Visibility visibility,
                                  dolmCore::viewModels::SetWidgetVisibilityOrigin origin);
    void phoneWidgetVisibilityChanged(QWindow::Visibility visibility);
    void closePhoneWidget(dolmCore::viewModels::SetWidgetVisibilityOrigin origin);
    void phoneWidgetClosed();
    void showCallWindowMain(const fenn::guid &callId,
                            dolmCore::viewModels::CallControlMainItemType itemType,
                            bool forceBringToFront);
    void showCallWindowMore(const fenn::guid &callId,
                            dolmCore::viewModels::CallControlMenuItemType itemType);
    void openOptionsDialog(int tabId);
    void showCallAssistantWindow(dolmCore::viewModels::ShowCallAssistantWindowOrigin origin);
    /// \}

    /// \name Developer tools
    /// \{

    /// Requests of a developer to see something.
    void showDebugWindow();
    void developerOptionClicked();
    /// \}

    /// \name Sharing and annotation
    /// \{

    /// Requests to share, to draw on what is shared, and to control it remotely.
    void startLocalShare(const fenn::guid &callId, QWidget *shareSelectorParent,
                         dolmCore::viewModels::ShareSourcesSelectionWindowTab windowType);
    void setShareControlBarMaxButtonChecked(bool isChecked);
    void setRevertToClassicShareChecked();
    void annotationCreated();
    void createWhiteboardWithInfo(const QVariant &whiteboardInfo);
    void whiteboardsButtonclicked(const uiWhiteboard::CreateWhiteboardInfo &whiteboardInfo);
    void assignHostRequested(const std::string &callId, QWidget *assignHostParent);
    void startShareShortcut(const fenn::guid &callId);
    void shareContentShortcut();
    void stopSharingShortcut();
    void pauseResumeSharing();
    void toggleRemoteDesktopControlShortcut();
    void shareFileVideoShortcut();
    void startRemoteDesktopControlShortcut(const fenn::guid &callId);
    void startAnnotateShortcut();
    void stopAnnotateShortcut();
    void toggleShowFloatingWindowShortcut();
    /// \}

    /// \name Other
    /// \{

    /// Signals that fit into no other group.
    void showVDIUpgradeCheckerWindow();
    void expandTabSelectorWidget();
    void toggleCallDialogShortcuts(bool isEnabled);
    void aboutToExit();
    void showCalendarSelectorWidget(dolmCore::viewModels::OAuthProvider provider);
    void openAudioDumpDialog();
    void audioDumpStatusChanged(bool isStart);
    void showDiagnosticsDetails();
    // The rectangle belongs to the emitter; a receiver may change it.
    void popupMeetingDetailPage( // clazy:exclude=signal-with-return-value
            QWidget *sourceWidget, const std::string &meetingId, const std::string &eventId,
            const std::string &seriesId, const std::string &globalMeetingId,
            const std::string &callId, QRect &rect, int offsetY = 0, bool sendTelemetry = false);
    void audioErrorStatusChanged(
            dolmCore::viewModels::AudioDeviceAvailableStatus audioDeviceAvailableStatus);
    void appMenuItemSelected(const QVariant &tabInfo);
    /// \}

private:
    void _registerShortcuts(QWidget *mainWindow, OxaShortcut::ShortcutGroup groups);
    void _registerDebugShortcuts(QWidget *mainWindow);
    void registerShortcut(QWidget *mainWindow, const ShortcutRow &row);

    std::unordered_map<OxaAppSignals::Shortcut, QPointer<OxaShortcut>> m_shortcuts;
    QMetaObject::Connection m_windowConnection;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

// Longer than other headers: the names are a table, and moc needs it inside the class.

#include <UiElements/UiElementsExport.h>
#include <UiElements/app/OxaObject.h>
#include <UiElements/keyboard/OxaKeySequenceInfo.h>

#include <QMap>
#include <QPointer>

#include <utility>
#include <vector>

/// Gives QML screens the key text of a shortcut by the shortcut's name.
///
/// The keys come from the client's shortcut service, which supplies them with
/// updateKeySequenceMap() and setManagerEnabled(). As long as it is off, the caller's own text is
/// returned.
///
/// These are the names of all shortcuts of the client; OxaAppSignals::Shortcut has those that the
/// library registers itself.
class UIELEMENTS_EXPORT OxaKeySequenceLookup : public OxaObject
{
    Q_OBJECT

public:
    /// The name of a shortcut.
    enum class Shortcut {
        Unknown,
        Close,
        Show,
        Search,
        SearchInConversation,
        StartWirelessShare,
        OpenHome,
        OpenSpaces,
        OpenContacts,
        OpenRills,
        OpenCalls,
        OpenMeetings,
        ContactAPerson,
        CreateASpace,
        TurnOnMarkdown,
        ShowAll,
        ShowNotifications,
        ShowUnread,
        ShowPeople,
        ShowMentionMe,
        ShowMentionAll,
        ShowFlags,
        HistoryBack,
        HistoryForward,
        AttachImage,
        AttachFile,
        AddGif,
        InsertPMR,
        ScreenCapture,
        ScreenCaptureNoMini,
        ShowMessages,
        ShowSpaceContent,
        ShowParticipants,
        ShowLinks,
        StartCall,
        StartVideoCall,
        AnswerCall,
        DeclineCall,
        OpenDialpad,
        ToggleAudioMute,
        ToggleVideoMute,
        SwitchSmartAudioMode,
        ShareScreen,
        ToggleMeetingControls,
        ToggleRemoteDesktopKeyboard,
        CreateWhiteboard,
        ShowWhiteboards,
        ShortcutMenu,
        ToggleFavorite,
        ToggleNotifyAllMessages,
        LeaveSpace,
        AddPeople,
        GoToRill,
        ReloadSpace,
        ViewSpaceSettings,
        PreviousSpace,
        NextSpace,
        EditLastMessage,
        SendMessage,
        ToggleFullScreenVideo,
        ContextMenu,
        OpenPersonalInsights,
        OpenVoicemails,
        OpenHelpCenter,
        OpenPreferences,
        AdvancedSearch,
        OpenDiagnostics,
        CopySpaceInformation,
        ToggleNavigationMenu,
        SignOut,
        Quit,
        Minimize,
        Maximize,
        FindAndReplace,
        Hide,
        HideOthers,
        Zoom,
        ShowDirect,
        ShowFavorites,
        ShowDrafts,
        ShowThreads,
        LastMessageInFocus,
        CreateSpace,
        AddBitmoji,
        AddEmoji,
        AddLink,
        SpaceSettings,
        ScrollToNewMessages,
        FocusMainConversation,
        FocusMainInputBox,
        IncreaseMessagingFont,
        DecreaseMessagingFont,
        SelectResult,
        CallSelectedPerson,
        ToggleNotifyOnAllMessages,
        RefreshConversation,
        NewMessageButton,
        NewReplyButton,
        JumpToBottom,
        AnswerWithMessage,
        EndCall,
        TransferCall,
        ShareContent,
        ShareFileVideo,
        ToggleShowFloatingWindow,
        ShareWhiteboard,
        ShareWebBrowser,
        ToggleSharing,
        MeetingControls,
        StopSharing,
        CleanModeShare,
        ClearWhiteboardAnnotations,
        FitSharedContent,
        FitSharedContentToWidth,
        RotatePageLeft,
        RotatePageRight,
        StartAnnotation,
        StopAnnotation,
        AddGuest,
        FullScreen,
        Thumbnail,
        ClearPointer,
        ToggleHand,
        SwitchPanelAndTabView,
        SwitchContentAndTabView,
        ToggleScreenReader,
        ToggleChat,
        ToggleInterpretation,
        ToggleMenuBar,
        ToggleParticipantsVideos,
        ToggleParticipantsWithoutVideo,
        ToggleNameInVideos,
        LowerParticipantsHands,
        ToggleDock,
        ToggleLock,
        MuteParticipants,
        ExpelAttendees,
        AdmitParticipants,
        AssignPrivileges,
        AudioCall,
        VideoCall,
        StartRemoteControl,
        ToggleRemoteControl,
        ToggleClosedCaption,
        SelectClosedCaption,
        UnselectClosedCaption,
        ToggleMultiCall,
        PreviousSlide,
        NextSlide,
        PrintDocument,
        AllowParticipantShare,
        MeetingNotificationKey,
        LocalShareControlKey,
        CallFloatingWindowFocus,
        AddNewline,
        ToggleMarkdown,
        ToggleBold,
        ToggleItalic,
        ToggleUnderline,
        HeadingOne,
        HeadingTwo,
        HeadingThree,
        SelectAll,
        Redo,
        Undo,
        ShowSpelling,
        PasteMatchStyle,
        Copy,
        Paste,
        Cut,
        PageDown,
        PageUp,
        ToggleNumberList,
        ToggleBulletList,
        ToggleCodeBlock,
        ToggleStrikeThrough,
        ToggleSubscript,
        ToggleSuperscript,
        ToggleInlineCode,
        ShowThemeDashboard,
        ShowDevTools,
        ReloadQML,
        CopyServiceCatalogue,
        CollapseSections,
        ExpandSections,
        ShowDebugWindow,
    };
    Q_ENUM(Shortcut)

    /// Makes a lookup that knows no shortcut, with the service off, and registers the meta-type
    /// "OxaKeySequenceLookup::Shortcut" and the pointer type that QML gets from getKeySequence().
    explicit OxaKeySequenceLookup(QObject *parent = nullptr);

    /// Returns what is known of \a shortcutType.
    ///
    /// With the service off that is a new object with the text \a fallbackKeySequence, which is
    /// global for the shortcuts that work while another application is in front. With the service
    /// on it is the service's object, which is null once the service has deleted it, or a new
    /// object without text if the service named none; the fallback is not used then.
    ///
    /// Each call makes one object, used or not, and the lookup owns it: ask once and keep it. Only
    /// the service deletes its objects. QML owns none of them: a returned object without a parent
    /// gets an internal one, so that the garbage collector leaves it alone.
    Q_INVOKABLE OxaKeySequenceInfo *getKeySequence(OxaKeySequenceLookup::Shortcut shortcutType,
                                                   const QString &fallbackKeySequence = QString());

    /// Sets whether the client's shortcut service is in use. Off by default.
    void setManagerEnabled(bool enabled);

    /// Adds each of \a entries, in order, replacing an earlier one of the same name. The objects
    /// stay the caller's. Entries are never removed.
    void updateKeySequenceMap(
            const std::vector<std::pair<Shortcut, QPointer<OxaKeySequenceInfo>>> &entries);

    /// True when the service named \a shortcutType, also when its object was deleted.
    bool shortcutExists(OxaKeySequenceLookup::Shortcut shortcutType) const;

private:
    QMap<Shortcut, QPointer<OxaKeySequenceInfo>> m_keySequenceMap;
    bool m_managerEnabled = false;
};

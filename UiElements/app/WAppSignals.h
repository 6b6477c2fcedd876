#pragma once

#include <UiElements/app/HostTypes.h>
#include <UiElements/keyboard/WKeySequenceLookup.h>
#include <UiElements/keyboard/WShortcut.h>
#include <UiElements/uielements_export.h>

#include <QKeySequence>
#include <QList>
#include <QMetaType>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>
#include <QWindow>

#include <string>
#include <vector>

class QPoint;
class QPointF;
class QRect;
class QRectF;
class QWidget;

/// The application-wide signal bus: any element asks on it, and whoever handles the request connects to it.
///
/// The application object creates the one instance as its child; it lives as long as the application object. Emitting
/// a signal that nobody listens to is not an error. Texts passed as std::string are UTF-8. Every parameter type can be
/// queued, except the QRect that a handler of popupMeetingDetailPage() changes for the caller.
///
/// The types that belong to the host program are in HostTypes.h, which says how a host puts its own in their place.
class UIELEMENTS_EXPORT WAppSignals : public QObject
{
    Q_OBJECT

public:
    /// The identifiers of the application's keyboard shortcuts; the numbers are fixed. Each emits the signal of its
    /// name, ZoomInSecondary zoomIn(), and OpenSearchInSpace its signal with an empty text.
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
        HoldResumeCall = 12,
        FocusMainConversation = 13,
        FocusMainInputBox = 14,
        HighlightToCall = 15,
        LeaveSpace = 16,
        MoveDownSpaceList = 17,
        MoveUpSpaceList = 18,
        OpenGlobalSearch = 19,
        OpenHelpPopUp = 20,
        OpenSearchInSpace = 21,
        PauseResumeSharing = 22,
        ReloadAllQmlViews = 23,
        SelectAddPeopleTab = 24,
        SelectAllSpacesTab = 25,
        SelectContactsTab = 26,
        SelectCallingTab = 27,
        SelectDirectMessagesTab = 28,
        SelectDraftsFilter = 29,
        SelectFavouritesFilter = 30,
        SelectFlagsFilter = 31,
        SelectMeetingsTab = 32,
        SelectMessagingTab = 33,
        SelectNextSpaceInHistory = 34,
        SelectNotificationsFilter = 35,
        SelectPrevSpaceInHistory = 36,
        SelectTeamsTab = 37,
        SelectPersonalInsightsTab = 38,
        SelectUnreadFilter = 39,
        SelectWhiteboardsTab = 40,
        ShareContentShortcut = 41,
        ShareFileVideoShortcut = 42,
        ShowDevToolsDialog = 43,
        ShowKeyboardShortcutsDialog = 44,
        StartAnnotateShortcut = 45,
        StartAudioCall = 46,
        StartVideoCall = 47,
        StopAnnotateShortcut = 48,
        ToggleRemoteDesktopControlShortcut = 49,
        StopSharingShortcut = 50,
        SwitchBetweenFloatingWindows = 51,
        ToggleAudioMute = 52,
        ToggleVideoMute = 53,
        ShowMultiCall = 54,
        ZoomIn = 55,
        ZoomInSecondary = 56,
        ZoomOut = 57,
        ShowDiagnosticsDetails = 58,
        SelectVoicemailTab = 59,
        ToggleMarkdown = 60
    };
    Q_ENUM(Shortcut)

    explicit WAppSignals(QObject *parent = nullptr);

    /// The bus of the application object. Without one "Unable to find WApplication" is logged and null returned.
    static WAppSignals *get();

    /// Creates the shortcuts of these groups on the main window and remembers it. That is done once: while a window is
    /// remembered, another call is refused, with the same window too. A window that dies takes its shortcuts along, and
    /// the next one may be registered, also from a handler of its destroyed() that was connected after this call.
    void registerShortcuts(QWidget *mainWindow, WShortcut::ShortcutGroups groups);
    /// The same without that check, for groups that come later. An id that is registered already is reported and keeps
    /// its shortcut.
    void _registerShortcuts(QWidget *mainWindow, WShortcut::ShortcutGroups groups);
    /// The shortcuts of the group Tool, for a host that leaves them out and meets a developer later.
    void _registerDebugShortcuts(QWidget *mainWindow);

    /// The shortcuts of these groups, in the order of the registration; those without a group are in none.
    QList<WShortcut *> getGroupShortcuts(WShortcut::ShortcutGroups groups) const;
    /// An identifier that is not registered is reported and gives null.
    WShortcut *getShortcut(WAppSignals::Shortcut shortcutId) const;
    /// The key of a registered shortcut. An identifier that is not registered is reported and gives an empty sequence.
    QKeySequence getKeySequence(WAppSignals::Shortcut shortcutId) const;
    /// Reports nothing.
    bool shortcutExists(WAppSignals::Shortcut shortcutId) const;
    /// Until WShortcut::setEnabled() says otherwise.
    void disableShortcut(WAppSignals::Shortcut shortcutId);
    void disableAll();

    struct ShortcutConflict
    {
        enum Reason {
            SameKey, ///< another shortcut or action of the window; neither is triggered
            EditAction, ///< the key of a standard edit action: an input that has the focus may take it
            Desktop ///< desktops take the key
        };
        Reason reason;
        WAppSignals::Shortcut shortcutId;
        QKeySequence key;
        QString other; ///< who else wants the key: its description or name; empty for Desktop
    };
    /// What a host or its tests may want to know of the keys of enabled shortcuts; two with one key are told once.
    /// Looked at are the shortcuts and actions of the window that a shortcut is registered on.
    QVector<WAppSignals::ShortcutConflict> shortcutConflicts() const;

Q_SIGNALS:
    // Contacts and people
    void closeContactCards(bool, bool);
    void contactPerson();
    void ConfirmOneToOneCreate(std::string const &, std::vector<std::string> const &, std::vector<std::string> const &);
    void navigateToContact(QString const &);
    void showContactCard(QRect const &, QString const &, Qt::ArrowType, bool, QString const &, QString const &,
                         QString const &, QObject *);
    void makeCall(QString, bool, QPoint const &);
    void addToContact(std::string const &);
    void createNewContact(std::string const &);
    void addToExistingContact(std::string const &);

    // Spaces and conversations
    void copySpaceMetaDataToClipboard();
    void createSpace();
    void createPublicSpace();
    void createSpaceWithParticipants(std::vector<std::string> const &);
    void focusMainConversation();
    void focusMainInputBox();
    void forwardMessageRequested(QString const &, QString const &, QString const &);
    void replyPrivatelyRequested(QString const &, QString const &, QString const &);
    void navigateToMessage(std::string const &, std::string const &);
    void navigateToSpace(flarq::guid const &);
    void replyToMessage(std::string const &, std::string const &);
    void openAttachFilePopover();
    void openGiphyPopover();
    void popoutConversation(std::string const &, std::string const &, std::string const &, std::string const &);
    void selectAddPeopleTab();
    void selectPrevSpaceInHistory();
    void selectNextSpaceInHistory();
    void selectPersonalInsightsTab();
    void smsChatAction(std::string const &);
    void showAddPeopleView(std::string const &);
    void showSpaceInformationCard(flarq::guid const &, QWidget *);
    void showSpaceInformationCardFromPoint(flarq::guid const &, QPointF const &, QWindow *);
    void showSpaceInformationCardFromRect(flarq::guid const &, QRectF const &, QWindow *, bool);
    void showSpaceInformationCardFromQmlRect(QString const &, QRectF const &, QWindow *, bool);
    void showMeetingRoomCard(flarq::guid const &, QRectF const &, bool, QWindow *);
    void showMigrationCoachmark(std::string const &);
    void showMeetingCoachmarks(std::string const &);
    void peekSpaceRequested(flarq::guid const &);
    void peekSpaceFromContactCard(flarq::guid const &);
    void spaceSettingsRequested(QString const &);
    void attachFile();
    void addLink();
    void addGif();
    void addBitmoji();
    void leaveSpace();
    void startAudioCall();
    void startVideoCall();
    void showMultiCall();
    void zoomIn();
    void zoomOut();
    void toggleMarkdown();
    void createConversation(OneToOneParticipantInfo const &);
    void navigateToTeam(flarq::guid const &);
    void navigateToExplorePublicSpaces(bool, std::string const &);
    void closeAllConversationsFormPopouts();
    void closeQmlPopups();

    // Search
    void openGlobalSearch();
    void openSearchInSpace(std::string const &);
    void openSearchInActiveSpace();
    void openFromSearch(std::string const &);
    void advancedSearch();

    // Navigation tabs
    void selectCallingTab();
    void selectContactsTab();
    void selectMeetingsTab();
    void selectMessagingTab();
    void selectTeamsTab();
    void selectVoicemailTab();
    void selectWhiteboardsTab();
    void toggleAssistantPanel();

    // Whiteboards and files
    void createWhiteboard();
    void openEcmFile(std::string const &, std::string const &, std::string const &);
    void openFile(std::string const &, std::string const &, int, std::string const &, bool);
    void editWhiteboard(std::string const &, std::string const &);
    void startECMAuthentication(commonHead::viewModels::ECMProvider, std::string const &, std::string const &, int);

    // Space list and filters
    void moveDownSpaceList();
    void moveUpSpaceList();
    void selectAllSpacesTab();
    void selectDirectMessagesTab();
    void selectDraftsFilter();
    void selectFavouritesFilter();
    void selectFlagsFilter();
    void selectNotificationsFilter();
    void selectUnreadFilter();

    // Meetings and calls
    void preferenceMeetingSettingChanged();
    void scheduleMeeting(QVariant const &);
    void editGoogleMeeting(QVariant const &);
    void openBreakoutManage(QMap<QString, QVariant> const &);
    void answerCall();
    void endCall();
    void holdResumeCall();
    void toggleAudioMute();
    void toggleVideoMute();
    void assistantViewVisibleChanged(bool);
    void joinAMeeting();
    void displayMeetingDetailsPopup(QString const &, QString const &, QPoint const &);
    void joinAnOngoingCall(QString const &);
    void switchBetweenFloatingWindows();
    void requestJoinMeetingUri(QString const &, QString const &);
    void switchSmartAudioMode();
    void highlightToCall();
    void inMeetingChatScreenReaderToggled();

    // Application windows, dialogs and coachmarks
    void showUserConsentCoachMark(QString const &);
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
    void showInviteToZentroDialog();
    void showSetupZentroDialog();
    void openApplicationMenuItem(ApplicationMenuItem);
    void openConnectDevicePopUp();
    void showChattleOrZentroMigrationFlow(bool);
    void shareMeetingContainer(QString const &, QVariant const &);
    void showMeetingContainerRecording(QString const &, QString const &);
    void showMeetingContainerDetailsInBrowser(QString const &);
    void popoutInMeetingChatContainer(QString const &, QVariant const &);

    // Phone widget and call windows
    void phoneWidgetEnableChanged(bool);
    void setPhoneWidgetVisibility(QWindow::Visibility, commonHead::viewModels::SetWidgetVisibilityOrigin);
    void phoneWidgetVisibilityChanged(QWindow::Visibility);
    void closePhoneWidget(commonHead::viewModels::SetWidgetVisibilityOrigin);
    void phoneWidgetClosed();
    void showCallWindowMain(flarq::guid const &, commonHead::viewModels::CallControlMainItemType, bool);
    void showCallWindowMore(flarq::guid const &, commonHead::viewModels::CallControlMenuItemType);

    // Options, emergency address and diagnostics windows
    void openOptionsDialog(int, std::string const &);
    void scrollToHighlightToCallShortcutItem();
    void openE911AddressDialog(QRect const &, bool);
    void showQelviaWindow();
    void showCallAssistantWindow(commonHead::viewModels::ShowCallAssistantWindowOrigin);
    void showDebugWindow();
    void developerOptionClicked();

    // Sharing, annotation and whiteboard creation
    void startLocalShare(flarq::guid const &, QWidget *, commonHead::viewModels::ShareSourcesSelectionWindowTab);
    void setShareControlBarMaxButtonChecked(bool);
    void setRevertToClassicShareChecked();
    void annotationCreated();
    void createWhiteboardWithInfo(uiWhiteboard::CreateWhiteboardInfo const &);
    void whiteboardsButtonclicked(uiWhiteboard::CreateWhiteboardInfo const &);
    void createWhiteboardConfirm(bool, uiWhiteboard::CreateWhiteboardInfo const &);
    void assignHostRequested(std::string, QWidget *);
    void startShareShortcut(flarq::guid const &);
    void shareContentShortcut();
    void stopSharingShortcut();
    void pauseResumeSharing();
    void toggleRemoteDesktopControlShortcut();
    void shareFileVideoShortcut();
    void startRemoteDesktopControlShortcut(flarq::guid const &);
    void startAnnotateShortcut();
    void stopAnnotateShortcut();
    void toggleShowFloatingWindowShortcut();

    // Panels, exit, calendar, audio and reactions
    void toggleChatPanel();
    void showVDIUpgradeCheckerWindow();
    void expandTabSelectorWidget();
    void toggleCallDialogShortcuts(bool);
    void aboutToExit();
    void showCalendarSelectorWidget(commonHead::viewModels::OAuthProvider);
    void openAudioDumpDialog();
    void audioDumpStatusChanged(bool);
    void showDiagnosticsDetails();
    void popupMeetingDetailPage(QWidget *, std::string const &, std::string const &, std::string const &,
                                std::string const &, std::string const &, QRect &, int, bool);
    void audioErrorStatusChanged(commonHead::viewModels::AudioDeviceAvailableStatus const &);
    void appMenuItemSelected(QVariant const &, QPointer<QWidget>);
    void openMeetingReactionsPanel();
    void sendMeetingReaction(WKeySequenceLookup::Shortcut);

private:
    struct Entry
    {
        int id;
        QPointer<WShortcut> shortcut;
    };
    const Entry *entry(int id) const;
    WShortcut *registerShortcut(QWidget *mainWindow, int id, const QKeySequence &key,
                                void (*emitSignal)(WAppSignals &));
    void forgetShortcutsOf(QObject *window);
    void forgetDeadShortcuts();
    void reportAmbiguity(int id) const;
    QString nameOf(const Entry &entry) const;
    QStringList othersWith(const Entry &entry, int from) const;

    QPointer<QWidget> m_mainWindow;
    QVector<Entry> m_shortcuts; // in the order of the registration; a look-up among sixty needs no hash
};

Q_DECLARE_METATYPE(WAppSignals::Shortcut)

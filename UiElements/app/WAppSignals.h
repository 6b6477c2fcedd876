#pragma once

#include <UiElements/uielements_export.h>

#include <QKeySequence>
#include <QMetaType>
#include <QObject>

#include <string>
#include <vector>

/// The application-wide signal bus: any element asks on it, and whoever handles the request connects to it.
///
/// The application object creates the one instance as its child; it lives as long as the application object. Emitting
/// a signal that nobody listens to is not an error. Texts passed as std::string are UTF-8.
class UIELEMENTS_EXPORT WAppSignals : public QObject
{
    Q_OBJECT

public:
    /// The identifiers of the application's keyboard shortcuts; the numbers are fixed.
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

    /// The key of a registered shortcut. An identifier that is not registered is reported and gives an empty sequence.
    /// No shortcut is registered in this version.
    QKeySequence getKeySequence(WAppSignals::Shortcut shortcutId) const;

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
};

Q_DECLARE_METATYPE(WAppSignals::Shortcut)

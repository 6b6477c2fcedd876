#include "ShortcutTable_p.h"

#include <QMetaEnum>

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace {

using Id = WAppSignals::Shortcut;

constexpr int Ctrl = Qt::CTRL, Alt = Qt::ALT, Shift = Qt::SHIFT;
constexpr auto None = WShortcut::ShortcutGroup(0), General = WShortcut::General, Messaging = WShortcut::Messaging,
               Calling = WShortcut::CallingAndMeeting, Tool = WShortcut::Tool;

template <auto Signal>
void emits(WAppSignals &bus)
{
    if constexpr (std::is_invocable_v<decltype(Signal), WAppSignals &>)
        Q_EMIT(bus.*Signal)();
    else
        Q_EMIT(bus.*Signal)(std::string()); // a key carries no text
}

// clang-format off
constexpr ShortcutRow table[] = {
    {Id::CopySpaceMetaDataToClipboard, Ctrl | Shift | Qt::Key_K, emits<&WAppSignals::copySpaceMetaDataToClipboard>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Copy space information to clipboard")},
    {Id::OpenGlobalSearch, Ctrl | Qt::Key_F, emits<&WAppSignals::openGlobalSearch>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Search")},
    {Id::SelectCallingTab, Ctrl | Qt::Key_4, emits<&WAppSignals::selectCallingTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to calling")},
    {Id::SelectContactsTab, Ctrl | Qt::Key_3, emits<&WAppSignals::selectContactsTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to contacts")},
    {Id::SelectMeetingsTab, Ctrl | Qt::Key_5, emits<&WAppSignals::selectMeetingsTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to meetings")},
    {Id::SelectMessagingTab, Ctrl | Qt::Key_1, emits<&WAppSignals::selectMessagingTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to messaging")},
    {Id::SelectTeamsTab, Ctrl | Qt::Key_2, emits<&WAppSignals::selectTeamsTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to teams")},
    {Id::SelectPersonalInsightsTab, Ctrl | Qt::Key_6, emits<&WAppSignals::selectPersonalInsightsTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to personal insights")},
    {Id::SelectVoicemailTab, Ctrl | Qt::Key_7, emits<&WAppSignals::selectVoicemailTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to voicemail")},
    {Id::SelectWhiteboardsTab, Ctrl | Qt::Key_8, emits<&WAppSignals::selectWhiteboardsTab>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go to whiteboards")},
    {Id::OpenHelpPopUp, Qt::Key_F1, emits<&WAppSignals::openHelpPopUp>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Open Help Center")},
    {Id::SelectNextSpaceInHistory, -int(QKeySequence::Forward), emits<&WAppSignals::selectNextSpaceInHistory>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go forward")},
    {Id::SelectPrevSpaceInHistory, -int(QKeySequence::Back), emits<&WAppSignals::selectPrevSpaceInHistory>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Go back")},
    {Id::ShowKeyboardShortcutsDialog, Ctrl | Qt::Key_Slash, emits<&WAppSignals::showKeyboardShortcutsDialog>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Open keyboard shortcut search")},
    {Id::AdvancedSearch, Shift | Qt::Key_Return, emits<&WAppSignals::advancedSearch>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Advanced Search (when in search)")},
    {Id::ExpandTabSelectorWidget, Alt | Shift | Qt::Key_Q, emits<&WAppSignals::expandTabSelectorWidget>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Expand or Collapse navigation menu")},
    {Id::ShowDiagnosticsDetails, Ctrl | Alt | Shift | Qt::Key_D, emits<&WAppSignals::showDiagnosticsDetails>, General, General, QT_TRANSLATE_NOOP("WShortcut", "Open diagnostics dialog")},
    {Id::MoveUpSpaceList, Alt | Qt::Key_Up, emits<&WAppSignals::moveUpSpaceList>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Move up the spaces list")},
    {Id::MoveDownSpaceList, Alt | Qt::Key_Down, emits<&WAppSignals::moveDownSpaceList>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Move down the spaces list")},
    {Id::CreateSpace, Ctrl | Shift | Qt::Key_N, emits<&WAppSignals::createSpace>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Create a space")},
    {Id::ContactPerson, Ctrl | Qt::Key_N, emits<&WAppSignals::contactPerson>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Send a direct message")},
    {Id::FocusMainConversation, Ctrl | Qt::Key_H, emits<&WAppSignals::focusMainConversation>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to last message in focus")},
    {Id::FocusMainInputBox, Ctrl | Shift | Qt::Key_I, emits<&WAppSignals::focusMainInputBox>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to message compose area")},
    {Id::SelectAllSpacesTab, Alt | Shift | Qt::Key_A, emits<&WAppSignals::selectAllSpacesTab>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Show all spaces")},
    {Id::SelectFlagsFilter, Alt | Shift | Qt::Key_F, emits<&WAppSignals::selectFlagsFilter>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to flagged messages list")},
    {Id::SelectFavouritesFilter, Ctrl | Shift | Qt::Key_U, emits<&WAppSignals::selectFavouritesFilter>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to favorites list")},
    {Id::SelectNotificationsFilter, Alt | Shift | Qt::Key_N, emits<&WAppSignals::selectNotificationsFilter>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to message notifications list")},
    {Id::SelectUnreadFilter, Alt | Shift | Qt::Key_E, emits<&WAppSignals::selectUnreadFilter>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to unread messages list")},
    {Id::SelectDraftsFilter, Alt | Shift | Qt::Key_D, emits<&WAppSignals::selectDraftsFilter>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to draft messages list")},
    {Id::CreateWhiteboard, Ctrl | Shift | Qt::Key_B, emits<&WAppSignals::createWhiteboard>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "New whiteboard")},
    {Id::SelectDirectMessagesTab, Ctrl | Shift | Qt::Key_T, emits<&WAppSignals::selectDirectMessagesTab>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Go to direct messages list")},
    {Id::OpenSearchInSpace, Ctrl | Shift | Qt::Key_J, emits<&WAppSignals::openSearchInSpace>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Search in space")},
    {Id::AttachFile, Ctrl | Qt::Key_O, emits<&WAppSignals::attachFile>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Attach a file")},
    {Id::AddGif, Ctrl | Qt::Key_G, emits<&WAppSignals::addGif>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Add a Gif")},
    {Id::LeaveSpace, Ctrl | Shift | Qt::Key_E, emits<&WAppSignals::leaveSpace>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Leave the space")},
    {Id::SelectAddPeopleTab, Ctrl | Shift | Qt::Key_P, emits<&WAppSignals::selectAddPeopleTab>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Add people")},
    {Id::AddLink, Ctrl | Qt::Key_E, emits<&WAppSignals::addLink>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Add link")},
    {Id::AddBitmoji, Ctrl | Qt::Key_J, emits<&WAppSignals::addBitmoji>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Add a Bitmoji")},
    {Id::ZoomIn, -int(QKeySequence::ZoomIn), emits<&WAppSignals::zoomIn>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Increase font size for messages")},
    {Id::ZoomOut, -int(QKeySequence::ZoomOut), emits<&WAppSignals::zoomOut>, Messaging, Messaging, QT_TRANSLATE_NOOP("WShortcut", "Decrease font size for messages")},
    {Id::ZoomInSecondary, Ctrl | Qt::Key_Equal, emits<&WAppSignals::zoomIn>, Messaging, None, nullptr},
    {Id::ToggleMarkdown, Alt | Shift | Qt::Key_M, emits<&WAppSignals::toggleMarkdown>, Messaging, None, nullptr},
    {Id::EndCall, Ctrl | Qt::Key_L, emits<&WAppSignals::endCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "End call")},
    {Id::AnswerCall, Ctrl | Shift | Qt::Key_C, emits<&WAppSignals::answerCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Answer call")},
    {Id::HoldResumeCall, Ctrl | Alt | Qt::Key_H, emits<&WAppSignals::holdResumeCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Hold/Resume call")},
    {Id::HighlightToCall, Ctrl | Alt | Shift | Qt::Key_H, emits<&WAppSignals::highlightToCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Hightlight to call")},
    {Id::ToggleAudioMute, Ctrl | Qt::Key_M, emits<&WAppSignals::toggleAudioMute>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Toggle audio mute")},
    {Id::ToggleVideoMute, Ctrl | Shift | Qt::Key_V, emits<&WAppSignals::toggleVideoMute>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Toggle video mute")},
    {Id::StartAudioCall, Ctrl | Shift | Qt::Key_Return, emits<&WAppSignals::startAudioCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Start an audio call (from search)")},
    {Id::StartVideoCall, Ctrl | Qt::Key_Return, emits<&WAppSignals::startVideoCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Start a video call (from search)")},
    {Id::ShowMultiCall, Ctrl | Shift | Qt::Key_X, emits<&WAppSignals::showMultiCall>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Show/Hide Multi Call")},
    {Id::ShareContentShortcut, Ctrl | Shift | Qt::Key_D, emits<&WAppSignals::shareContentShortcut>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Share content")},
    {Id::StopSharingShortcut, Ctrl | Shift | Qt::Key_Z, emits<&WAppSignals::stopSharingShortcut>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Stop sharing")},
    {Id::SwitchBetweenFloatingWindows, Ctrl | Alt | Shift | Qt::Key_S, emits<&WAppSignals::switchBetweenFloatingWindows>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Switch between floating windows")},
    {Id::PauseResumeSharing, Alt | Shift | Qt::Key_S, emits<&WAppSignals::pauseResumeSharing>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Pause/Resume sharing")},
    {Id::ToggleRemoteDesktopControlShortcut, Alt | Shift | Qt::Key_R, emits<&WAppSignals::toggleRemoteDesktopControlShortcut>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Start or stop remote control")},
    {Id::ShareFileVideoShortcut, Ctrl | Alt | Qt::Key_O, emits<&WAppSignals::shareFileVideoShortcut>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Share a File")},
    {Id::StartAnnotateShortcut, Alt | Shift | Qt::Key_Z, emits<&WAppSignals::startAnnotateShortcut>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Start annotation")},
    {Id::StopAnnotateShortcut, Alt | Shift | Qt::Key_X, emits<&WAppSignals::stopAnnotateShortcut>, Calling, Calling, QT_TRANSLATE_NOOP("WShortcut", "Stop annotation")},
    {Id::ReloadAllQmlViews, Ctrl | Alt | Shift | Qt::Key_R, emits<&WAppSignals::reloadAllQmlViews>, Tool, Tool, nullptr},
    {Id::ShowDevToolsDialog, Ctrl | Alt | Shift | Qt::Key_P, emits<&WAppSignals::showDevToolsDialog>, Tool, Tool, nullptr},
};
// clang-format on

constexpr QKeySequence::StandardKey editActions[] = {QKeySequence::Undo,
                                                     QKeySequence::Redo,
                                                     QKeySequence::Cut,
                                                     QKeySequence::Copy,
                                                     QKeySequence::Paste,
                                                     QKeySequence::Delete,
                                                     QKeySequence::Backspace,
                                                     QKeySequence::SelectAll,
                                                     QKeySequence::Find,
                                                     QKeySequence::FindNext,
                                                     QKeySequence::FindPrevious,
                                                     QKeySequence::Replace,
                                                     QKeySequence::Bold,
                                                     QKeySequence::Italic,
                                                     QKeySequence::Underline,
                                                     QKeySequence::InsertLineSeparator,
                                                     QKeySequence::InsertParagraphSeparator,
                                                     QKeySequence::DeleteStartOfWord,
                                                     QKeySequence::DeleteEndOfWord,
                                                     QKeySequence::DeleteEndOfLine,
                                                     QKeySequence::DeleteCompleteLine,
                                                     QKeySequence::MoveToNextWord,
                                                     QKeySequence::MoveToPreviousWord,
                                                     QKeySequence::MoveToStartOfDocument,
                                                     QKeySequence::MoveToEndOfDocument,
                                                     QKeySequence::SelectNextWord,
                                                     QKeySequence::SelectPreviousWord};

// What GNOME, KDE Plasma and Xfce come with, besides those that isReservedByDesktops() names by rule.
constexpr int desktopKeys[] = {Ctrl | Alt | Qt::Key_Delete,
                               Ctrl | Alt | Qt::Key_Backspace,
                               Ctrl | Alt | Qt::Key_T,
                               Ctrl | Alt | Qt::Key_L,
                               Ctrl | Alt | Qt::Key_D,
                               Ctrl | Alt | Qt::Key_F,
                               Ctrl | Alt | Qt::Key_Tab,
                               Ctrl | Alt | Shift | Qt::Key_Tab,
                               Ctrl | Alt | Shift | Qt::Key_Backtab,
                               Ctrl | Alt | Qt::Key_Escape,
                               Ctrl | Alt | Qt::Key_Home,
                               Ctrl | Alt | Qt::Key_End,
                               Ctrl | Alt | Shift | Qt::Key_R, // records the screen
                               Ctrl | Qt::Key_Escape,
                               Ctrl | Shift | Qt::Key_Escape,
                               Alt | Qt::Key_Tab,
                               Alt | Shift | Qt::Key_Tab,
                               Alt | Shift | Qt::Key_Backtab,
                               Alt | Qt::Key_Escape,
                               Alt | Shift | Qt::Key_Escape,
                               Alt | Qt::Key_Space,
                               Alt | Qt::Key_Insert,
                               Alt | Qt::Key_Delete,
                               Alt | Shift | Qt::Key_PageUp,
                               Alt | Shift | Qt::Key_PageDown,
                               Qt::Key_Print,
                               Alt | Qt::Key_Print,
                               Shift | Qt::Key_Print};

} // namespace

QKeySequence ShortcutRow::keySequence() const
{
    return key < 0 ? QKeySequence(QKeySequence::StandardKey(-key)) : QKeySequence(key);
}

const ShortcutRow *ShortcutTable::begin() const
{
    return std::begin(table);
}

const ShortcutRow *ShortcutTable::end() const
{
    return std::end(table);
}

QString standardEditAction(const QKeySequence &key)
{
    for (QKeySequence::StandardKey action : editActions) {
        if (!key.isEmpty() && QKeySequence::keyBindings(action).contains(key))
            return QString::fromLatin1(QMetaEnum::fromType<QKeySequence::StandardKey>().valueToKey(action));
    }
    return QString();
}

bool isReservedByDesktops(const QKeySequence &key)
{
    if (key.isEmpty())
        return false;
    const int first = key[0];
    const int plain = first & ~int(Qt::KeyboardModifierMask);
    const int modifiers = first & int(Qt::KeyboardModifierMask);
    if (modifiers & Qt::META) // their own key
        return true;
    const bool isFunctionKey = plain >= Qt::Key_F1 && plain <= Qt::Key_F12;
    const bool isArrow = plain >= Qt::Key_Left && plain <= Qt::Key_Down;
    // Windows; workspaces; the text consoles.
    if (isFunctionKey && (modifiers == Alt || modifiers == Ctrl || modifiers == (Ctrl | Alt)))
        return true;
    if (isArrow && (modifiers == (Ctrl | Alt) || modifiers == (Ctrl | Alt | Shift))) // workspaces
        return true;
    return std::find(std::begin(desktopKeys), std::end(desktopKeys), first) != std::end(desktopKeys);
}

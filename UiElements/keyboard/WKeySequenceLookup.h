#pragma once

#include <UiElements/uielements_export.h>

#include <QKeySequence>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QVector>

class WKeyEvent;
class WKeySequenceInfo;

/// Names the key sequences that views handle themselves, outside the shortcuts of the main window.
///
/// All functions are static; QML needs an object to call them. A host that runs QML registers
///     qmlRegisterType<WKeySequenceLookup>("UiElements", 1, 0, "WKeySequenceLookup");
///     qmlRegisterType<WKeyboardShortcutsManager>("UiElements", 1, 0, "WKeyboardShortcutsManager");
/// once, before it loads the first source. A source writes the enumerators as WKeySequenceLookup.Bold or
/// WKeySequenceLookup.Shortcut.Bold.
///
/// A key means one thing in a group. Two groups share only Escape: ClosePopup and CancelEditing. Where the main window
/// has a shortcut of the same meaning, the key is the same. A number that is not of the enumeration is reported and
/// gets an empty answer.
class UIELEMENTS_EXPORT WKeySequenceLookup : public QObject
{
    Q_OBJECT

public:
    enum class Group { None, General, Messaging, Formatting, MeetingsAndCalling };
    Q_ENUM(Group)

    /// What a key sequence asks for. The numbers stay as they are; what is new comes at the end of its section.
    enum class Shortcut {
        NoShortcut = 0,

        // General
        ClosePopup = 100,
        GoToNextRegion,
        GoToPreviousRegion,
        OpenContextMenu,
        ReadLastNotification,

        // Messaging
        SendMessage = 200,
        InsertNewLine,
        EditLastMessage,
        CancelEditing,
        ReplyToMessage,
        QuoteMessage,
        ForwardMessage,
        FlagMessage,
        DeleteMessage,
        CopyMessage,
        CopySpaceInformation,
        InsertEmoji,
        MentionPerson,
        MentionAll,
        AttachFile,
        GoToNewestMessage,
        GoToFirstUnreadMessage,

        // Formatting
        ToggleMarkdown = 300,
        Bold,
        Italic,
        Underline,
        Strikethrough,
        InlineCode,
        CodeBlock,
        BlockQuote,
        BulletedList,
        NumberedList,
        InsertLink,
        HeadingOne,
        HeadingTwo,
        HeadingThree,
        ClearFormatting,

        // Meetings and calling
        AnswerCall = 400,
        DeclineCall,
        EndCall,
        ToggleAudioMute,
        ToggleVideoMute,
        PushToTalk,
        ToggleRaiseHand,
        ToggleFullScreen,
        ToggleParticipantsPanel,
        ToggleChatPanel,
        OpenReactions,
        ReactThumbsUp,
        ReactThumbsDown,
        ReactClap,
        ReactHeart,
        ReactSmile,
        ReactCelebrate,
        ReactSurprised
    };
    Q_ENUM(Shortcut)

    explicit WKeySequenceLookup(QObject *parent = nullptr);

    /// The key to show; empty for NoShortcut.
    Q_INVOKABLE static QKeySequence keySequence(WKeySequenceLookup::Shortcut shortcut);
    /// The key to show and the others that do the same.
    static QVector<QKeySequence> keySequences(Shortcut shortcut);
    /// The key in the language of the user.
    Q_INVOKABLE static QString nativeText(WKeySequenceLookup::Shortcut shortcut);
    /// What a QML Shortcut wants as its sequence. It reads a QKeySequence by way of the native text, and understands
    /// that in English only.
    Q_INVOKABLE static QString portableText(WKeySequenceLookup::Shortcut shortcut);
    /// In the language of the moment, from the translations of the context "WKeySequenceLookup".
    Q_INVOKABLE static QString description(WKeySequenceLookup::Shortcut shortcut);
    Q_INVOKABLE static WKeySequenceLookup::Group group(WKeySequenceLookup::Shortcut shortcut);
    Q_INVOKABLE static QString groupName(WKeySequenceLookup::Group group);
    /// True for keys that belong to a text input or a button as long as it has a use for them, such as Ctrl+C. A
    /// WKeyboardShortcutsManager never takes these first.
    Q_INVOKABLE static bool comesAfterInputs(WKeySequenceLookup::Shortcut shortcut);

    /// For QML: what infos() returns, as a list.
    Q_INVOKABLE static QVariantList shortcuts(WKeySequenceLookup::Group group);
    static QVector<WKeySequenceInfo> infos(Group group);
    /// For QML: what searchInfos() returns, as a list.
    Q_INVOKABLE static QVariantList search(const QString &text);
    /// The shortcuts that have each word of the text in their description or key, whatever the case and the accents;
    /// all of them for an empty text.
    static QVector<WKeySequenceInfo> searchInfos(const QString &text);

    /// For Keys.onPressed in QML: find(event.key, event.modifiers, event.nativeScanCode). Without the last a keyboard
    /// without Latin letters finds less; see WKeyEvent. Without groups all are searched.
    Q_INVOKABLE static WKeySequenceLookup::Shortcut find(int key, int modifiers, quint32 nativeScanCode = 0,
                                                         const QVariantList &groups = {});
    /// Whether this press means the shortcut; for views that wait for a few.
    Q_INVOKABLE static bool matches(WKeySequenceLookup::Shortcut shortcut, int key, int modifiers,
                                    quint32 nativeScanCode = 0);
    /// Of several with this key the one whose group is named first. Without groups all are searched.
    static Shortcut find(const WKeyEvent &event, const QVector<Group> &groups = {});
    static QVector<Shortcut> findAll(const WKeyEvent &event, const QVector<Group> &groups = {});
};

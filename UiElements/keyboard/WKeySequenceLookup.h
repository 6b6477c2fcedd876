#pragma once

#include <UiElements/uielements_export.h>

#include <QObject>

/// Names the key sequences that views handle themselves, outside the shortcuts of the main window.
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
};

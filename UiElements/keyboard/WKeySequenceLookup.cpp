#include <UiElements/keyboard/WKeySequenceLookup.h>

#include <UiElements/keyboard/WKeyEvent.h>
#include <UiElements/keyboard/WKeySequenceInfo.h>

#include <QCoreApplication>
#include <QDebug>
#include <QMetaEnum>
#include <QStringList>

#include <algorithm>

namespace {

using Id = WKeySequenceLookup::Shortcut;
using Group = WKeySequenceLookup::Group;

constexpr int Ctrl = Qt::CTRL, Alt = Qt::ALT, Shift = Qt::SHIFT;
enum Order { First, AfterInputs };

struct Row
{
    Id id;
    Group group;
    int key;
    int secondKey; // 0: none
    Order order;
    const char *description;
};

// Ctrl+Alt with a digit makes a kind of paragraph. Ctrl+Shift with a digit is widespread for lists, but on a German
// keyboard Ctrl+Shift+7 is Ctrl+/, which opens the help on shortcuts.
// clang-format off
constexpr Row table[] = {
    {Id::ClosePopup, Group::General, Qt::Key_Escape, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Close the pop-up")},
    {Id::GoToNextRegion, Group::General, Qt::Key_F6, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Go to the next region")},
    {Id::GoToPreviousRegion, Group::General, Shift | Qt::Key_F6, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Go to the previous region")},
    {Id::OpenContextMenu, Group::General, Shift | Qt::Key_F10, Qt::Key_Menu, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Open the context menu")},
    {Id::ReadLastNotification, Group::General, Ctrl | Alt | Qt::Key_N, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Read the last notification")},

    {Id::SendMessage, Group::Messaging, Qt::Key_Return, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Send the message")},
    {Id::InsertNewLine, Group::Messaging, Shift | Qt::Key_Return, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Start a new line")},
    {Id::EditLastMessage, Group::Messaging, Qt::Key_Up, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Edit your last message")},
    {Id::CancelEditing, Group::Messaging, Qt::Key_Escape, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Cancel editing")},
    {Id::ReplyToMessage, Group::Messaging, Ctrl | Qt::Key_R, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Reply to the message")},
    {Id::QuoteMessage, Group::Messaging, Ctrl | Shift | Qt::Key_R, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Quote the message")},
    {Id::ForwardMessage, Group::Messaging, Ctrl | Shift | Qt::Key_F, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Forward the message")},
    {Id::FlagMessage, Group::Messaging, Ctrl | Alt | Qt::Key_G, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Flag the message")},
    {Id::DeleteMessage, Group::Messaging, Qt::Key_Delete, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Delete the message")},
    {Id::CopyMessage, Group::Messaging, Ctrl | Qt::Key_C, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Copy the message")},
    {Id::CopySpaceInformation, Group::Messaging, Ctrl | Shift | Qt::Key_K, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Copy space information to clipboard")},
    {Id::InsertEmoji, Group::Messaging, Ctrl | Qt::Key_Period, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Insert an emoji")},
    {Id::MentionPerson, Group::Messaging, Ctrl | Shift | Qt::Key_A, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Mention a person")},
    {Id::MentionAll, Group::Messaging, Ctrl | Alt | Qt::Key_A, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Mention everybody")},
    {Id::AttachFile, Group::Messaging, Ctrl | Qt::Key_O, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Attach a file")},
    {Id::GoToNewestMessage, Group::Messaging, Ctrl | Qt::Key_End, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Go to the newest message")},
    {Id::GoToFirstUnreadMessage, Group::Messaging, Shift | Qt::Key_PageUp, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Go to the first unread message")},

    {Id::ToggleMarkdown, Group::Formatting, Alt | Shift | Qt::Key_M, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Turn Markdown on or off")},
    {Id::Bold, Group::Formatting, Ctrl | Qt::Key_B, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Bold")},
    {Id::Italic, Group::Formatting, Ctrl | Qt::Key_I, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Italic")},
    {Id::Underline, Group::Formatting, Ctrl | Qt::Key_U, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Underline")},
    {Id::Strikethrough, Group::Formatting, Ctrl | Shift | Qt::Key_S, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Strikethrough")},
    {Id::InlineCode, Group::Formatting, Ctrl | Shift | Qt::Key_M, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Code")},
    {Id::CodeBlock, Group::Formatting, Ctrl | Alt | Shift | Qt::Key_C, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Code block")},
    {Id::BlockQuote, Group::Formatting, Ctrl | Alt | Qt::Key_9, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Quotation")},
    {Id::BulletedList, Group::Formatting, Ctrl | Alt | Qt::Key_8, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Bulleted list")},
    {Id::NumberedList, Group::Formatting, Ctrl | Alt | Qt::Key_7, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Numbered list")},
    {Id::InsertLink, Group::Formatting, Ctrl | Qt::Key_E, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Add link")},
    {Id::HeadingOne, Group::Formatting, Ctrl | Alt | Qt::Key_1, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Heading 1")},
    {Id::HeadingTwo, Group::Formatting, Ctrl | Alt | Qt::Key_2, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Heading 2")},
    {Id::HeadingThree, Group::Formatting, Ctrl | Alt | Qt::Key_3, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Heading 3")},
    {Id::ClearFormatting, Group::Formatting, Ctrl | Alt | Qt::Key_0, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Clear formatting")},

    {Id::AnswerCall, Group::MeetingsAndCalling, Ctrl | Shift | Qt::Key_C, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Answer call")},
    {Id::DeclineCall, Group::MeetingsAndCalling, Ctrl | Shift | Qt::Key_L, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Decline call")},
    {Id::EndCall, Group::MeetingsAndCalling, Ctrl | Qt::Key_L, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "End call")},
    {Id::ToggleAudioMute, Group::MeetingsAndCalling, Ctrl | Qt::Key_M, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Toggle audio mute")},
    {Id::ToggleVideoMute, Group::MeetingsAndCalling, Ctrl | Shift | Qt::Key_V, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Toggle video mute")},
    {Id::PushToTalk, Group::MeetingsAndCalling, Qt::Key_Space, 0, AfterInputs, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Talk while the key is held")},
    {Id::ToggleRaiseHand, Group::MeetingsAndCalling, Ctrl | Alt | Qt::Key_R, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Raise or lower your hand")},
    {Id::ToggleFullScreen, Group::MeetingsAndCalling, Qt::Key_F11, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Enter or leave full screen")},
    {Id::ToggleParticipantsPanel, Group::MeetingsAndCalling, Ctrl | Alt | Qt::Key_P, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Show or hide participants")},
    {Id::ToggleChatPanel, Group::MeetingsAndCalling, Ctrl | Alt | Qt::Key_C, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Show or hide chat")},
    {Id::OpenReactions, Group::MeetingsAndCalling, Ctrl | Alt | Qt::Key_E, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "Open reactions")},
    {Id::ReactThumbsUp, Group::MeetingsAndCalling, Alt | Qt::Key_1, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with thumbs up")},
    {Id::ReactThumbsDown, Group::MeetingsAndCalling, Alt | Qt::Key_2, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with thumbs down")},
    {Id::ReactClap, Group::MeetingsAndCalling, Alt | Qt::Key_3, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with applause")},
    {Id::ReactHeart, Group::MeetingsAndCalling, Alt | Qt::Key_4, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with a heart")},
    {Id::ReactSmile, Group::MeetingsAndCalling, Alt | Qt::Key_5, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with a smile")},
    {Id::ReactCelebrate, Group::MeetingsAndCalling, Alt | Qt::Key_6, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with a celebration")},
    {Id::ReactSurprised, Group::MeetingsAndCalling, Alt | Qt::Key_7, 0, First, QT_TRANSLATE_NOOP("WKeySequenceLookup", "React with surprise")},
};
// clang-format on

constexpr Row nothing = {Id::NoShortcut, Group::None, 0, 0, First, nullptr};

const Row &rowOf(Id id, const char *function)
{
    if (id == Id::NoShortcut)
        return nothing;
    const auto *row = std::find_if(std::begin(table), std::end(table), [id](const Row &r) { return r.id == id; });
    if (row != std::end(table))
        return *row;
    qWarning("WKeySequenceLookup::%s - Unknown shortcut: %d", function, int(id));
    return nothing;
}

bool isKnown(Group group, const char *function)
{
    if (QMetaEnum::fromType<Group>().valueToKey(int(group)))
        return true;
    qWarning("WKeySequenceLookup::%s - Unknown group: %d", function, int(group));
    return false;
}

QKeySequence sequenceOf(const Row &row)
{
    return row.key ? QKeySequence(row.key) : QKeySequence();
}

QString descriptionOf(const Row &row)
{
    return row.description ? QCoreApplication::translate("WKeySequenceLookup", row.description) : QString();
}

/// Without case and accents.
QString folded(const QString &text)
{
    const QString parts = text.toCaseFolded().normalized(QString::NormalizationForm_KD);
    QString result;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(result), [](QChar c) { return !c.isMark(); });
    return result;
}

QVariantList toVariants(const QVector<WKeySequenceInfo> &infos)
{
    QVariantList list;
    for (const WKeySequenceInfo &info : infos)
        list << QVariant::fromValue(info);
    return list;
}

} // namespace

WKeySequenceLookup::WKeySequenceLookup(QObject *parent)
    : QObject(parent)
{
}

QKeySequence WKeySequenceLookup::keySequence(Shortcut shortcut)
{
    return sequenceOf(rowOf(shortcut, "keySequence"));
}

QVector<QKeySequence> WKeySequenceLookup::keySequences(Shortcut shortcut)
{
    const Row &row = rowOf(shortcut, "keySequences");
    QVector<QKeySequence> keys;
    for (int key : {row.key, row.secondKey}) {
        if (key)
            keys << QKeySequence(key);
    }
    return keys;
}

QString WKeySequenceLookup::nativeText(Shortcut shortcut)
{
    return sequenceOf(rowOf(shortcut, "nativeText")).toString(QKeySequence::NativeText);
}

QString WKeySequenceLookup::portableText(Shortcut shortcut)
{
    return sequenceOf(rowOf(shortcut, "portableText")).toString(QKeySequence::PortableText);
}

QString WKeySequenceLookup::description(Shortcut shortcut)
{
    return descriptionOf(rowOf(shortcut, "description"));
}

WKeySequenceLookup::Group WKeySequenceLookup::group(Shortcut shortcut)
{
    return rowOf(shortcut, "group").group;
}

QString WKeySequenceLookup::groupName(Group group)
{
    switch (group) {
    case Group::None: return QString();
    case Group::General: return tr("General");
    case Group::Messaging: return tr("Messaging");
    case Group::Formatting: return tr("Formatting");
    case Group::MeetingsAndCalling: return tr("Meetings and calling");
    }
    isKnown(group, "groupName");
    return QString();
}

bool WKeySequenceLookup::comesAfterInputs(Shortcut shortcut)
{
    return rowOf(shortcut, "comesAfterInputs").order == AfterInputs;
}

QVariantList WKeySequenceLookup::shortcuts(Group group)
{
    return toVariants(infos(group));
}

QVector<WKeySequenceInfo> WKeySequenceLookup::infos(Group group)
{
    QVector<WKeySequenceInfo> found;
    if (!isKnown(group, "shortcuts"))
        return found;
    for (const Row &row : table) {
        if (row.group == group)
            found << WKeySequenceInfo(row.id);
    }
    return found;
}

QVariantList WKeySequenceLookup::search(const QString &text)
{
    return toVariants(searchInfos(text));
}

QVector<WKeySequenceInfo> WKeySequenceLookup::searchInfos(const QString &text)
{
    const QStringList words = folded(text).simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<WKeySequenceInfo> found;
    for (const Row &row : table) {
        QStringList texts(folded(descriptionOf(row)));
        for (int key : {row.key, row.secondKey}) {
            if (key)
                texts << folded(QKeySequence(key).toString(QKeySequence::NativeText));
        }
        const bool hasAll = std::all_of(words.begin(), words.end(), [&texts](const QString &word) {
            return std::any_of(texts.begin(), texts.end(), [&word](const QString &t) { return t.contains(word); });
        });
        if (hasAll)
            found << WKeySequenceInfo(row.id);
    }
    return found;
}

WKeySequenceLookup::Shortcut WKeySequenceLookup::find(int key, int modifiers, quint32 nativeScanCode,
                                                      const QVariantList &groups)
{
    QVector<Group> typed;
    for (const QVariant &number : groups) {
        bool ok = false;
        const int value = number.toInt(&ok);
        typed << Group(ok ? value : -1);
    }
    return find(WKeyEvent(key, Qt::KeyboardModifiers(modifiers), QString(), nativeScanCode), typed);
}

bool WKeySequenceLookup::matches(Shortcut shortcut, int key, int modifiers, quint32 nativeScanCode)
{
    const Row &row = rowOf(shortcut, "matches");
    const WKeyEvent event(key, Qt::KeyboardModifiers(modifiers), QString(), nativeScanCode);
    return event.matches(sequenceOf(row)) || (row.secondKey && event.matches(QKeySequence(row.secondKey)));
}

WKeySequenceLookup::Shortcut WKeySequenceLookup::find(const WKeyEvent &event, const QVector<Group> &groups)
{
    return findAll(event, groups).value(0, Shortcut::NoShortcut);
}

QVector<WKeySequenceLookup::Shortcut> WKeySequenceLookup::findAll(const WKeyEvent &event, const QVector<Group> &groups)
{
    static const QVector<Group> all = {Group::General, Group::Messaging, Group::Formatting, Group::MeetingsAndCalling};
    for (Group group : groups) {
        if (!isKnown(group, "find"))
            return {};
    }
    // What the key says on the user's keyboard counts before what it would say on another one, in all groups.
    QVector<Shortcut> found;
    const QVector<QKeySequence> keys = event.keySequences();
    for (const QKeySequence &key : keys) {
        for (Group group : groups.isEmpty() ? all : groups) {
            for (const Row &row : table) {
                if (row.group == group && (row.key == key[0] || row.secondKey == key[0]) && !found.contains(row.id))
                    found << row.id;
            }
        }
    }
    return found;
}

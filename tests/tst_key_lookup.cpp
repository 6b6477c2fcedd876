#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/app/WGlobalSignalListener.h>
#include <UiElements/keyboard/WKeyEvent.h>
#include <UiElements/keyboard/WKeySequenceInfo.h>
#include <UiElements/keyboard/WKeyboardShortcutsManager.h>

#include <QLineEdit>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWidget>
#include <QTextEdit>
#include <QTranslator>
#include <QVBoxLayout>

#include <linux/input-event-codes.h>

using Shortcut = WKeySequenceLookup::Shortcut;
using Group = WKeySequenceLookup::Group;
using Groups = QVector<Group>;

class tst_KeyLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tableIsSound();
    void keysAgreeWithTheMainWindow();
    void texts();
    void search();
    void keyEvents_data();
    void keyEvents();
    void find();
    void unknownNumbers();
    void whoComesFirst_data();
    void whoComesFirst();
    void oneActivationPerPress();
    void enabling();
    void held();
    void nestedManagers();
    void targets();
    void destroyedMeanwhile();
    void quickTargets_data();
    void quickTargets();
    void qml();
};

namespace {

QString nameOf(Shortcut shortcut)
{
    return QString::fromLatin1(QMetaEnum::fromType<Shortcut>().valueToKey(int(shortcut)));
}

QVector<Shortcut> allShortcuts()
{
    const auto numbers = QMetaEnum::fromType<Shortcut>();
    QVector<Shortcut> all;
    for (int i = 0; i < numbers.keyCount(); ++i) {
        if (numbers.value(i))
            all << Shortcut(numbers.value(i));
    }
    return all;
}

QKeySequence fromText(const char *text)
{
    return QKeySequence(QString::fromLatin1(text), QKeySequence::PortableText);
}

/// A press by way of the platform, for the element with the focus in the active window.
void press(QWindow *window, const char *text)
{
    const int key = fromText(text)[0];
    QTest::keyClick(window, Qt::Key(key & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
}

/// A window with a line edit, and next to it a box around a text edit; a QShortcut of the window takes each of `keys`.
struct Window : QWidget
{
    explicit Window(const QStringList &keys = {})
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(outside);
        layout->addWidget(box);
        (new QVBoxLayout(box))->addWidget(edit);
        for (const QString &key : keys)
            connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                    [this, key] { log << QStringLiteral("window:") + key; });
        connect(&manager, &WKeyboardShortcutsManager::activated, this, [this](Shortcut s) { log << nameOf(s); });
        connect(&manager, &WKeyboardShortcutsManager::released, this, [this](Shortcut s) { letGo << nameOf(s); });
        show();
        activateWindow();
        edit->setFocus();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("No focus");
    }
    QString pressed(const char *key)
    {
        press(windowHandle(), key);
        return std::exchange(log, {}).join(QLatin1Char(' '));
    }
    QLineEdit *outside = new QLineEdit;
    QWidget *box = new QWidget;
    QTextEdit *edit = new QTextEdit;
    QStringList log, letGo;
    WKeyboardShortcutsManager manager;
};

class Translator : public QTranslator
{
public:
    Translator() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (!qstrcmp(context, "QShortcut") && !qstrcmp(source, "Ctrl"))
            return QStringLiteral("Strg");
        if (qstrcmp(context, "WKeySequenceLookup"))
            return QString();
        return qstrcmp(source, "Bold") ? QString::fromUtf8(source).toUpper() : QStringLiteral(u"Öffentlich fett");
    }
};

QStringList names(const QVector<WKeySequenceInfo> &infos)
{
    QStringList list;
    for (const WKeySequenceInfo &info : infos)
        list << nameOf(info.shortcut());
    return list;
}

} // namespace

void tst_KeyLookup::initTestCase()
{
    qmlRegisterType<WKeySequenceLookup>("UiElements", 1, 0, "WKeySequenceLookup");
    qmlRegisterType<WKeyboardShortcutsManager>("UiElements", 1, 0, "WKeyboardShortcutsManager");
}

void tst_KeyLookup::tableIsSound()
{
    WarningLog log;
    QStringList listed;
    for (Group group : {Group::None, Group::General, Group::Messaging, Group::Formatting, Group::MeetingsAndCalling})
        listed << names(WKeySequenceLookup::infos(group));
    QStringList all;
    QMap<QString, QVector<Shortcut>> byKey;
    const auto shortcuts = allShortcuts();
    for (Shortcut shortcut : shortcuts) {
        all << nameOf(shortcut);
        QCOMPARE(int(WKeySequenceLookup::group(shortcut)), int(shortcut) / 100); // the sections of the enumeration
        QVERIFY2(!WKeySequenceLookup::description(shortcut).isEmpty(), qPrintable(all.last()));
        QVERIFY2(!WKeySequenceLookup::keySequence(shortcut).isEmpty(), qPrintable(all.last()));
        const auto keys = WKeySequenceLookup::keySequences(shortcut);
        for (const QKeySequence &key : keys)
            byKey[key.toString()] << shortcut;
    }
    QCOMPARE(listed, all);
    for (auto it = byKey.cbegin(); it != byKey.cend(); ++it) {
        if (it.key() == QLatin1String("Esc"))
            QCOMPARE(it.value(), QVector<Shortcut>({Shortcut::ClosePopup, Shortcut::CancelEditing}));
        else
            QVERIFY2(it.value().size() == 1, qPrintable(it.key()));
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_KeyLookup::keysAgreeWithTheMainWindow()
{
    using Id = WAppSignals::Shortcut;
    const QMap<Shortcut, Id> sameMeaning = {
        {Shortcut::CopySpaceInformation, Id::CopySpaceMetaDataToClipboard},
        {Shortcut::AttachFile, Id::AttachFile},
        {Shortcut::ToggleMarkdown, Id::ToggleMarkdown},
        {Shortcut::InsertLink, Id::AddLink},
        {Shortcut::AnswerCall, Id::AnswerCall},
        {Shortcut::EndCall, Id::EndCall},
        {Shortcut::ToggleAudioMute, Id::ToggleAudioMute},
        {Shortcut::ToggleVideoMute, Id::ToggleVideoMute},
        {Shortcut::InsertNewLine, Id::AdvancedSearch}, // not the same, but that one is for the search field alone
    };
    // Keys that inputs use, and that are nevertheless taken first.
    const QMap<Shortcut, QString> overInputs = {{Shortcut::SendMessage, QStringLiteral("what a compose box is for")},
                                                {Shortcut::Bold, QStringLiteral("formatting of the input itself")},
                                                {Shortcut::Italic, QStringLiteral("the same")},
                                                {Shortcut::Underline, QStringLiteral("the same")}};
    WAppSignals *bus = WAppSignals::get();
    QWidget window;
    bus->registerShortcuts(&window, WShortcut::ShortcutGroups(15));
    WShortcut *probe = bus->getShortcut(Id::ShowDiagnosticsDetails);
    const auto shortcuts = allShortcuts();
    for (Shortcut shortcut : shortcuts) {
        const auto keys = WKeySequenceLookup::keySequences(shortcut);
        for (const QKeySequence &key : keys) {
            probe->setShortcutKey(key);
            const auto conflicts = bus->shortcutConflicts();
            for (const WAppSignals::ShortcutConflict &conflict : conflicts) {
                const QString what = nameOf(shortcut) + QLatin1Char(' ') + conflict.other;
                if (conflict.shortcutId != Id::ShowDiagnosticsDetails || conflict.reason == conflict.SameKey)
                    continue;
                QVERIFY2(conflict.reason != conflict.Desktop, qPrintable(what));
                QVERIFY2(WKeySequenceLookup::comesAfterInputs(shortcut) || overInputs.contains(shortcut),
                         qPrintable(what));
            }
            probe->setShortcutKey(QKeySequence());
            for (int id = 0; id <= 60; ++id) {
                const bool sameKey = bus->getKeySequence(Id(id)) == key;
                QVERIFY2(sameKey == (sameMeaning.contains(shortcut) && sameMeaning.value(shortcut) == Id(id)),
                         qPrintable(nameOf(shortcut) + QStringLiteral(" %1").arg(id)));
            }
        }
    }
}

void tst_KeyLookup::texts()
{
    const WKeySequenceInfo bold(Shortcut::Bold);
    QCOMPARE(bold.description(), QStringLiteral("Bold"));
    const Translator translator; // after the info was made
    QCOMPARE(bold.description(), QStringLiteral(u"Öffentlich fett"));
    QCOMPARE(bold.groupName(), QStringLiteral("FORMATTING"));
    QCOMPARE(bold.key(), QStringLiteral("Strg+B"));
    QCOMPARE(bold.portableText(), QStringLiteral("Ctrl+B"));
    QCOMPARE(names(WKeySequenceLookup::searchInfos(QStringLiteral(u"FETT  offent"))),
             QStringList(nameOf(bold.shortcut())));
    QCOMPARE(names(WKeySequenceLookup::searchInfos(QStringLiteral("strg+b"))), QStringList(nameOf(bold.shortcut())));
}

void tst_KeyLookup::search()
{
    const QMap<QString, QString> expected = {{QStringLiteral("list bull"), QStringLiteral("BulletedList")},
                                             {QStringLiteral("alt+2 heading"), QStringLiteral("HeadingTwo")},
                                             {QStringLiteral(" MENU "), QStringLiteral("OpenContextMenu")},
                                             {QStringLiteral(u"bóld"), QStringLiteral("Bold")},
                                             {QStringLiteral("bold heading"), QString()}};
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QCOMPARE(names(WKeySequenceLookup::searchInfos(it.key())).join(QLatin1Char(' ')), it.value());
    QCOMPARE(WKeySequenceLookup::search(QStringLiteral("  ")).size(), allShortcuts().size());
}

void tst_KeyLookup::keyEvents_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("evdev");
    QTest::addColumn<QString>("sequences"); // best first, separated by blanks
    const Qt::KeyboardModifiers none, ctrl = Qt::ControlModifier, shift = Qt::ShiftModifier, alt = Qt::AltModifier;
    const auto row = [](const char *name, int key, Qt::KeyboardModifiers modifiers, int evdev, const char *expected) {
        QTest::newRow(name) << key << modifiers << evdev << QString::fromUtf8(expected);
    };
    row("letter", 'B', ctrl, KEY_B, "Ctrl+B");
    row("keypad", Qt::Key_Enter, Qt::KeypadModifier, KEY_KPENTER, "Return");
    row("keypad digit", '1', ctrl | Qt::KeypadModifier, KEY_KP1, "Ctrl+1");
    row("keypad digit with Shift", '1', shift | Qt::KeypadModifier, KEY_KP1, "Shift+1");
    row("GroupSwitch", '@', ctrl | Qt::GroupSwitchModifier, KEY_Q, "Ctrl+@");
    row("GroupSwitch on a digit", '{', ctrl | Qt::GroupSwitchModifier, KEY_7, "Ctrl+{");
    row("Backtab", Qt::Key_Backtab, shift, KEY_TAB, "Shift+Tab");
    row("Backtab without Shift", Qt::Key_Backtab, ctrl, KEY_TAB, "Ctrl+Shift+Tab");
    row("function key", Qt::Key_F6, shift, KEY_F6, "Shift+F6");
    row("Menu is no modifier", Qt::Key_Menu, none, KEY_COMPOSE, "Menu");
    row("F1 neither", Qt::Key_F1, none, KEY_F1, "F1");
    for (Qt::Key key : {Qt::Key_Control, Qt::Key_Shift, Qt::Key_AltGr, Qt::Key_Super_L, Qt::Key_Hyper_R,
                        Qt::Key_CapsLock, Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_unknown})
        row(QMetaEnum::fromType<Qt::Key>().valueToKey(key), key, ctrl, KEY_LEFTCTRL, "");
    row("US Ctrl+Shift+/", '?', ctrl | shift, KEY_SLASH, "Ctrl+? Ctrl+Shift+?");
    row("German Ctrl+Shift+7", '/', ctrl | shift, KEY_7, "Ctrl+/ Ctrl+Shift+/ Ctrl+Shift+7");
    row("Shift+Space", Qt::Key_Space, shift, KEY_SPACE, "Shift+Space");
    row("French Ctrl+1", '&', ctrl, KEY_1, "Ctrl+& Ctrl+1");
    row("French Ctrl+Shift+1", '1', ctrl | shift, KEY_1, "Ctrl+Shift+1 Ctrl+1");
    row("French accented letter", Qt::Key_Eacute, alt, KEY_2, "Alt+É Alt+2");
    row("typing with Shift", Qt::Key_Exclam, shift, KEY_1, "! Shift+!");
    row("typing on the row of digits", '&', none, KEY_1, "&");
    row("AZERTY goes by its letter", 'A', ctrl, KEY_Q, "Ctrl+A");
    row("Dvorak sign where US has Q", '\'', ctrl, KEY_Q, "Ctrl+'");
    row("Polish letter", 0x141, alt, KEY_L, "Alt+Ł");
    row("Cyrillic letter", 0x418, ctrl, KEY_B, "Ctrl+И Ctrl+B");
    row("Cyrillic letter with Shift", 0x42c, alt | shift, KEY_M, "Alt+Shift+Ь Alt+Shift+M");
    row("Cyrillic without key number", 0x418, ctrl, -8, "Ctrl+И");
    row("Greek", 0x393, ctrl, KEY_G, "Ctrl+Γ Ctrl+G");
    row("Hebrew on a sign", 0x5e5, ctrl, KEY_DOT, "Ctrl+ץ Ctrl+.");
    row("Arabic comma", 0x60c, ctrl | shift, KEY_K, "Ctrl+، Ctrl+Shift+، Ctrl+Shift+K");
    row("lowest key of the table", 0x661, alt, KEY_1, "Alt+١ Alt+1");
    row("highest key of the table", 0x44e, ctrl, KEY_SLASH, "Ctrl+Ю Ctrl+/");
    row("below the table", 0x418, ctrl, KEY_ESC, "Ctrl+И");
    row("above the table", 0x418, ctrl, KEY_RIGHTSHIFT, "Ctrl+И");
}

void tst_KeyLookup::keyEvents()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, evdev);
    QFETCH(QString, sequences);
    const QKeyEvent press(QEvent::KeyPress, key, modifiers, quint32(evdev + 8), 0, 0, QString(), true);
    const WKeyEvent event(press);
    QVERIFY(event.isAutoRepeat());
    const QStringList expected = sequences.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QStringList got;
    const auto told = event.keySequences();
    for (const QKeySequence &sequence : told) {
        got << sequence.toString();
        QVERIFY(event.matches(sequence));
        QVERIFY(!event.matches(QKeySequence(sequence[0], Qt::Key_X)));
    }
    QCOMPARE(got, expected);
    QCOMPARE(event.keySequence().toString(), expected.value(0));
    QVERIFY(!event.matches(QKeySequence()));
}

void tst_KeyLookup::find()
{
    const auto shortcuts = allShortcuts();
    for (Shortcut shortcut : shortcuts) {
        const auto sequences = WKeySequenceLookup::keySequences(shortcut);
        for (const QKeySequence &sequence : sequences) {
            const int key = sequence[0] & ~Qt::KeyboardModifierMask, modifiers = sequence[0] & Qt::KeyboardModifierMask;
            const QVariantList own = {QVariant::fromValue(WKeySequenceLookup::group(shortcut))};
            QCOMPARE(WKeySequenceLookup::find(key, modifiers, 0, own), shortcut);
            QVERIFY(WKeySequenceLookup::matches(shortcut, key, modifiers));
            QVERIFY(!WKeySequenceLookup::matches(shortcut, key, modifiers ^ Qt::META));
        }
    }
    QVERIFY(WKeyEvent(Qt::Key_Return, Qt::ShiftModifier).matches(QKeySequence(Qt::SHIFT | Qt::Key_Enter)));
    QVERIFY(WKeyEvent(0, Qt::AltModifier, QStringLiteral("m")).matches(QKeySequence(Qt::ALT | Qt::Key_M)));
    const WKeyEvent escape(Qt::Key_Escape, Qt::NoModifier);
    QCOMPARE(WKeySequenceLookup::find(escape), Shortcut::ClosePopup);
    QCOMPARE(WKeySequenceLookup::find(escape, {Group::Messaging, Group::General}), Shortcut::CancelEditing);
    QCOMPARE(WKeySequenceLookup::find(escape, {Group::Formatting}), Shortcut::NoShortcut);
    QCOMPARE(WKeySequenceLookup::find(0x60c, int(Qt::CTRL | Qt::SHIFT), KEY_K + 8), Shortcut::CopySpaceInformation);
}

void tst_KeyLookup::unknownNumbers()
{
    WarningLog log;
    const auto unknown = Shortcut(250);
    QVERIFY(WKeySequenceLookup::keySequence(unknown).isEmpty());
    QVERIFY(WKeySequenceLookup::description(unknown).isEmpty());
    QCOMPARE(WKeySequenceLookup::group(unknown), Group::None);
    QVERIFY(!WKeySequenceLookup::matches(unknown, 0, 0));
    QCOMPARE(WKeySequenceInfo(unknown), WKeySequenceInfo());
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("WKeySequenceLookup::keySequence - Unknown shortcut: 250"),
                          QStringLiteral("WKeySequenceLookup::description - Unknown shortcut: 250"),
                          QStringLiteral("WKeySequenceLookup::group - Unknown shortcut: 250"),
                          QStringLiteral("WKeySequenceLookup::matches - Unknown shortcut: 250"),
                          QStringLiteral("WKeySequenceInfo::WKeySequenceInfo - Unknown shortcut: 250")}));
    QVERIFY(WKeySequenceLookup::groupName(Group(9)).isEmpty());
    QVERIFY(WKeySequenceLookup::shortcuts(Group(9)).isEmpty());
    QCOMPARE(WKeySequenceLookup::find(Qt::Key_Escape, 0, 0, {1, 9}), Shortcut::NoShortcut);
    QCOMPARE(WKeySequenceLookup::find(Qt::Key_Escape, 0, 0, {QStringLiteral("x")}), Shortcut::NoShortcut);
    QCOMPARE(log.take().size(), 4);

    WKeyboardShortcutsManager manager;
    manager.setGroupList({2, 1});
    QCOMPARE(manager.groups(), Groups({Group::Messaging, Group::General}));
    manager.setGroupList({1, 9});
    manager.setShortcutEnabled(unknown, false);
    manager.setTarget(this);
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("WKeyboardShortcutsManager::setGroups - Unknown group: 9"),
                          QStringLiteral("WKeyboardShortcutsManager::setShortcutEnabled - Unknown shortcut: 250"),
                          QStringLiteral("WKeyboardShortcutsManager::setTarget - Neither a widget nor a window: "
                                         "tst_KeyLookup")}));
    QCOMPARE(manager.groupList(), QVariantList({2, 1}));
    QCOMPARE(manager.target(), nullptr);
    QCOMPARE(WKeySequenceInfo().key() + WKeySequenceInfo().description() + WKeySequenceInfo().groupName(), QString());
    QCOMPARE(log.take(), QStringList());
}

void tst_KeyLookup::whoComesFirst_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("before");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("seen");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *target, bool before, const char *key, const char *seen, const char *text = "") {
        QTest::addRow("%s %s %s", key, before ? "before the children of" : "in", target)
            << QString::fromLatin1(target) << before << QString::fromLatin1(key) << QString::fromLatin1(seen)
            << QString::fromLatin1(text);
    };
    for (const char *target : {"box", "edit", "window", "handle"}) {
        row(target, false, "Ctrl+B", "Bold");
        row(target, false, "Return", "", "\n"); // the text edit keeps it
        row(target, false, "Space", "", " ");
        row(target, false, "F6", "GoToNextRegion");
        row(target, false, "Ctrl+J", "window:Ctrl+J"); // none of the lookup
        row(target, true, "Ctrl+B", "Bold");
        row(target, true, "Return", "SendMessage");
        row(target, true, "Shift+Return", "", "\n"); // comes after inputs
        row(target, true, "Space", "", " ");
        row(target, true, "Esc", "ClosePopup");
    }
    row("outside", false, "Ctrl+B", "window:Ctrl+B");
    row("outside", true, "Ctrl+B", "window:Ctrl+B");
    row("outside", true, "Return", "", "\n");
}

void tst_KeyLookup::whoComesFirst()
{
    QFETCH(QString, target);
    QFETCH(bool, before);
    QFETCH(QString, key);
    Window window({QStringLiteral("Ctrl+B"), QStringLiteral("F6"), QStringLiteral("Esc"), QStringLiteral("Ctrl+J")});
    const QMap<QString, QObject *> targets = {{QStringLiteral("box"), window.box},
                                              {QStringLiteral("edit"), window.edit},
                                              {QStringLiteral("window"), &window},
                                              {QStringLiteral("handle"), window.windowHandle()},
                                              {QStringLiteral("outside"), window.outside}};
    window.manager.setGroups({Group::General, Group::Messaging, Group::Formatting, Group::MeetingsAndCalling});
    window.manager.setTarget(targets.value(target));
    window.manager.setBeforeChildren(before);
    QSignalSpy bus(WGlobalSignalListener::get(), &WGlobalSignalListener::shortcutActivated);
    QTEST(window.pressed(qPrintable(key)), "seen");
    QFETCH(QString, seen);
    QCOMPARE(bus.count(), seen.isEmpty() || seen.startsWith(QLatin1String("window:")) ? 0 : 1);
    QTEST(window.edit->toPlainText(), "text");
}

void tst_KeyLookup::oneActivationPerPress()
{
    // An ignored key passes several widgets, and all event filters see it.
    struct Ear : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_B)
                return false;
            ++heard;
            return takes;
        }
        int heard = 0;
        bool takes = false;
    } above, onTarget;
    Window window;
    window.installEventFilter(&above);
    window.box->installEventFilter(&onTarget);
    window.manager.setGroups({Group::Formatting});
    window.manager.setTarget(window.box);
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("Bold"));
    QCOMPARE(onTarget.heard, 1);
    QCOMPARE(above.heard, 0); // consumed
    onTarget.takes = true;
    QCOMPARE(window.pressed("Ctrl+B"), QString());

    window.manager.setBeforeChildren(true);
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("Bold"));
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_B, Qt::ControlModifier, QString(), true);
    QVERIFY(QCoreApplication::sendEvent(window.edit, &repeat));
    QVERIFY(repeat.isAccepted());
    QCOMPARE(window.log, QStringList());
    QCOMPARE(onTarget.heard, 2);
}

void tst_KeyLookup::enabling()
{
    Window window({QStringLiteral("Ctrl+B"), QStringLiteral("Ctrl+I")});
    window.manager.setTarget(window.box);
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("window:Ctrl+B")); // no groups yet
    window.manager.setGroups({Group::General, Group::Messaging, Group::Formatting});
    window.manager.setShortcutEnabled(Shortcut::Bold, false);
    QVERIFY(!window.manager.isShortcutEnabled(Shortcut::Bold));
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("window:Ctrl+B"));
    QCOMPARE(window.pressed("Ctrl+I"), QStringLiteral("Italic"));
    window.manager.setShortcutEnabled(Shortcut::Bold, true);
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("Bold"));
    QCOMPARE(window.pressed("Esc"), QStringLiteral("ClosePopup"));
    window.manager.setShortcutEnabled(Shortcut::ClosePopup, false); // makes room for the other one with this key
    QCOMPARE(window.pressed("Esc"), QStringLiteral("CancelEditing"));
    window.manager.setEnabled(false);
    QCOMPARE(window.pressed("Ctrl+I"), QStringLiteral("window:Ctrl+I"));
    window.manager.setEnabled(true);
    window.box->setEnabled(false);
    window.outside->setFocus();
    QKeyEvent italic(QEvent::KeyPress, Qt::Key_I, Qt::ControlModifier);
    QCoreApplication::sendEvent(window.box, &italic);
    QCOMPARE(window.log, QStringList(QStringLiteral("window:Ctrl+I")));
}

void tst_KeyLookup::held()
{
    Window window;
    window.manager.setGroups({Group::MeetingsAndCalling});
    window.manager.setTarget(window.box);
    window.box->setFocusPolicy(Qt::StrongFocus);
    const auto send = [&window](QEvent::Type type, bool repeat = false) {
        const bool press = type == QEvent::KeyPress; // what is let go may have another name by then
        QKeyEvent event(type, press ? Qt::Key_Space : Qt::Key_nobreakspace, Qt::NoModifier, KEY_SPACE + 8, 0, 0,
                        QStringLiteral(" "), repeat);
        QCoreApplication::sendEvent(press ? window.box : window.outside, &event);
        return std::exchange(window.log, {}).size() * 10 + std::exchange(window.letGo, {}).size();
    };
    QCOMPARE(send(QEvent::KeyPress), 10);
    QCOMPARE(send(QEvent::KeyRelease, true), 0);
    QCOMPARE(send(QEvent::KeyPress, true), 0);
    QCOMPARE(send(QEvent::KeyRelease), 1); // though another element has the focus now
    QCOMPARE(send(QEvent::KeyRelease), 0);
    for (int end = 0; end < 4; ++end) { // nobody would hear of it
        QCOMPARE(send(QEvent::KeyPress), 10);
        if (end == 0) {
            QWindow other;
            other.show();
            other.requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(&other));
        }
        window.manager.setEnabled(end != 1);
        window.manager.setShortcutEnabled(Shortcut::PushToTalk, end != 2);
        window.manager.setTarget(end == 3 ? nullptr : window.box);
        QCOMPARE(std::exchange(window.letGo, {}), QStringList(QStringLiteral("PushToTalk")));
        window.manager.setEnabled(true);
        window.manager.setShortcutEnabled(Shortcut::PushToTalk, true);
        window.manager.setTarget(window.box);
        QCOMPARE(send(QEvent::KeyRelease), 0);
    }
    auto *dying = new WKeyboardShortcutsManager;
    QSignalSpy released(dying, &WKeyboardShortcutsManager::released);
    dying->setGroups({Group::MeetingsAndCalling});
    dying->setTarget(window.box);
    QCOMPARE(send(QEvent::KeyPress), 0); // the one that came last has the key
    delete dying;
    QCOMPARE(released.count(), 1);
}

void tst_KeyLookup::nestedManagers()
{
    Window window;
    WKeyboardShortcutsManager outer, outermost;
    QSignalSpy outerSpy(&outer, &WKeyboardShortcutsManager::activated);
    QSignalSpy outermostSpy(&outermost, &WKeyboardShortcutsManager::activated);
    window.manager.setGroups({Group::Formatting});
    window.manager.setTarget(window.box);
    outer.setGroups({Group::Formatting, Group::General});
    outer.setTarget(&window); // later, so it sees events earlier
    outermost.setGroups({Group::Formatting, Group::General, Group::MeetingsAndCalling});
    outermost.setTarget(window.windowHandle());
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("Bold"));
    QCOMPARE(outerSpy.count() + outermostSpy.count(), 0);
    QCOMPARE(window.pressed("F6"), QString());
    QCOMPARE(outerSpy.count(), 1);
    QCOMPARE(window.pressed("Ctrl+M"), QString());
    QCOMPARE(outerSpy.count(), 1);
    QCOMPARE(outermostSpy.count(), 1);
}

void tst_KeyLookup::targets()
{
    Window window;
    window.manager.setGroups({Group::Formatting});
    QSignalSpy changed(&window.manager, &WKeyboardShortcutsManager::targetChanged);
    window.manager.setTarget(window.edit);
    window.manager.setTarget(window.outside); // replaces it
    QCOMPARE(window.pressed("Ctrl+B"), QString());
    window.manager.setTarget(window.edit);
    delete window.outside;
    QCOMPARE(window.pressed("Ctrl+B"), QStringLiteral("Bold"));
    QCOMPARE(window.letGo, QStringList(QStringLiteral("Bold")));
    delete window.edit;
    QCOMPARE(changed.count(), 4);
    QCOMPARE(window.manager.target(), nullptr);
    QCOMPARE(window.pressed("Ctrl+B"), QString());
}

void tst_KeyLookup::destroyedMeanwhile()
{
    // The manager by who hears of the shortcut first and second, the target by that one, the manager by a filter.
    for (int way = 0; way < 4; ++way) {
        Window window({QStringLiteral("Ctrl+B")});
        QPointer<WKeyboardShortcutsManager> manager(new WKeyboardShortcutsManager);
        QSignalSpy spy(manager, &WKeyboardShortcutsManager::activated);
        manager->setGroups({Group::Formatting});
        manager->setTarget(window.box);
        struct Killer : QObject
        {
            bool eventFilter(QObject *, QEvent *event) override
            {
                if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_B)
                    delete victim;
                return false;
            }
            QPointer<QObject> victim;
        } killer;
        const auto kill = [&] {
            delete (way == 2 ? static_cast<QObject *>(window.box) : manager);
        };
        if (way == 0) {
            connect(WGlobalSignalListener::get(), &WGlobalSignalListener::shortcutActivated, &killer, kill);
        } else if (way < 3) {
            connect(manager, &WKeyboardShortcutsManager::activated, &killer, kill);
        } else {
            killer.victim = manager;
            window.box->installEventFilter(&killer);
        }
        QCOMPARE(window.pressed("Ctrl+B"), QString());
        QCOMPARE(spy.count(), way == 1 || way == 2 ? 1 : 0);
        QCOMPARE(manager.isNull(), way != 2);
        delete manager;
    }
}

void tst_KeyLookup::quickTargets_data()
{
    QTest::addColumn<bool>("inWidget");
    QTest::addColumn<bool>("before");
    for (int row = 0; row < 4; ++row)
        QTest::addRow("%s%s", row & 1 ? "widget" : "view", row & 2 ? ", before" : "") << !!(row & 1) << !!(row & 2);
}

void tst_KeyLookup::quickTargets()
{
    QFETCH(bool, inWidget);
    QFETCH(bool, before);
    QTemporaryFile source(QDir::tempPath() + QStringLiteral("/XXXXXX.qml"));
    QVERIFY(source.open());
    source.write("import QtQuick 2.15\n"
                 "Item { id: root; width: 99; height: 99; property string shortcut\n"
                 "  Shortcut { sequence: 'Ctrl+B'; onActivated: root.shortcut += 'B' }\n"
                 "  TextEdit { objectName: 'edit'; focus: true } }");
    source.close();
    const QUrl url = QUrl::fromLocalFile(source.fileName());
    QQuickView view;
    QWidget window;
    auto *widget = new QQuickWidget;
    (new QVBoxLayout(&window))->addWidget(widget);
    if (inWidget) {
        widget->setSource(url);
        window.show();
        window.activateWindow();
        widget->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    } else {
        view.setSource(url);
        view.show();
        view.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&view));
    }
    QWindow *const shown = inWidget ? window.windowHandle() : &view;
    auto *root = inWidget ? widget->rootObject() : view.rootObject();
    auto *edit = root->findChild<QQuickItem *>(QStringLiteral("edit"));
    QVERIFY(edit && edit->hasActiveFocus());
    press(shown, "Ctrl+B");
    QCOMPARE(root->property("shortcut").toString(), QStringLiteral("B")); // without a manager

    WKeyboardShortcutsManager manager;
    QStringList seen;
    connect(&manager, &WKeyboardShortcutsManager::activated, this, [&seen](Shortcut s) { seen << nameOf(s); });
    manager.setGroups({Group::Formatting, Group::Messaging, Group::MeetingsAndCalling});
    manager.setTarget(inWidget ? static_cast<QObject *>(widget) : &view);
    manager.setBeforeChildren(before);
    for (const char *key : {"Ctrl+B", "Return", "Space", "Up"})
        press(shown, key);
    QCOMPARE(root->property("shortcut").toString(), QStringLiteral("B"));
    const QString text = edit->property("text").toString();
    if (before) {
        QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("Bold SendMessage EditLastMessage"));
        QCOMPARE(text, QStringLiteral(" "));
    } else {
        QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("Bold"));
        QCOMPARE(text, QStringLiteral("\n "));
        press(shown, "Up"); // on the first line the text edit has no use for it
        QCOMPARE(seen.join(QLatin1Char(' ')), QStringLiteral("Bold EditLastMessage"));
    }
    // Nobody inside has the focus.
    edit->setFocus(false);
    press(shown, "Space");
    QCOMPARE(seen.last(), QStringLiteral("PushToTalk"));
}

void tst_KeyLookup::qml()
{
    const Translator translator;
    WarningLog log;
    QQuickView view;
    view.rootContext()->setContextProperty(QStringLiteral("view"), &view);
    QQmlComponent component(view.engine());
    component.setData(R"(
import QtQuick 2.15
import UiElements 1.0
Item {
    id: root
    focus: true
    property string log
    property string shown: lookup.nativeText(WKeySequenceLookup.Bold) + ' '
                           + lookup.description(WKeySequenceLookup.Shortcut.Bold)
    property string help: lookup.shortcuts(WKeySequenceLookup.Formatting)
                          .filter(i => i.shortcut === WKeySequenceLookup.Italic)
                          .map(i => i.key + ' ' + i.description + ' ' + i.groupName + ' ' + i.group).join()
    property string found: lookup.search('kopfzeile').length + ' ' + lookup.search('heading 2')[0].portableText
    property bool named: lookup.group(WKeySequenceLookup.Bold) === WKeySequenceLookup.Group.Formatting
    WKeySequenceLookup { id: lookup }
    Shortcut { sequence: lookup.portableText(WKeySequenceLookup.AttachFile); onActivated: root.log += 'attach ' }
    Keys.onPressed: {
        if (lookup.find(event.key, event.modifiers, event.nativeScanCode, [WKeySequenceLookup.MeetingsAndCalling])
                === WKeySequenceLookup.Shortcut.ToggleRaiseHand)
            log += 'hand '
        if (lookup.matches(WKeySequenceLookup.Bold, event.key, event.modifiers, event.nativeScanCode))
            log += 'bold '
    }
    WKeyboardShortcutsManager {
        id: manager
        target: view
        groups: [WKeySequenceLookup.General, WKeySequenceLookup.Messaging]
        Component.onCompleted: setShortcutEnabled(WKeySequenceLookup.AttachFile, false)
        onActivated: root.log += (shortcut === WKeySequenceLookup.GoToNextRegion ? 'region ' : 'wrong ')
    }
    Connections {
        target: manager
        function onReleased(shortcut) { root.log += (shortcut === WKeySequenceLookup.GoToNextRegion) + ' ' }
    }
}
)",
                      QUrl());
    QObject *root = component.create();
    QVERIFY2(root, qPrintable(component.errorString()));
    view.setContent(QUrl(), &component, root);
    view.show();
    view.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QCOMPARE(root->property("shown").toString(), QStringLiteral(u"Strg+B Öffentlich fett"));
    QCOMPARE(root->property("help").toString(), QStringLiteral("Strg+I ITALIC FORMATTING 3"));
    QCOMPARE(root->property("found").toString(), QStringLiteral("0 Ctrl+Alt+2"));
    QVERIFY(root->property("named").toBool());
    for (const char *key : {"Ctrl+O", "Ctrl+Alt+R", "Ctrl+B", "F6"})
        press(&view, key);
    QCOMPARE(root->property("log").toString(), QStringLiteral("attach hand bold region true "));
    QCOMPARE(log.take(), QStringList());
}

W_TEST_MAIN(tst_KeyLookup)
#include "tst_key_lookup.moc"

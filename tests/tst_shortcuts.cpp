#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/keyboard/EventFilter.h>
#include <UiElements/widgets/WRadioButton.h>

#include <QAccessible>
#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPushButton>
#include <QTranslator>
#include <QVBoxLayout>

class tst_Shortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pressed_data();
    void pressed();
    void groups_data();
    void groups();
    void refusals();
    void lookUps();
    void disabled();
    void temporarilyDisabled();
    void windowDestroyedAndCreatedAgain();
    void ambiguousKeys();
    void conflicts();
    void attachedAndChangedMeanwhile_data();
    void attachedAndChangedMeanwhile();
    void registeredAnew();
    void translations();
    void attached();
    void attachedAccelerator();
    void attachedToMany();

private:
    QScopedPointer<QWidget> m_window;
};

namespace {

const auto AllGroups = WShortcut::General | WShortcut::Messaging | WShortcut::CallingAndMeeting | WShortcut::Tool;
using Id = WAppSignals::Shortcut;

struct Row
{
    int id;
    const char *key; // or a standard key
    const char *signal;
    const char *group; // empty: in no group
    const char *description;
};
const Row table[] = {
    {7, "Ctrl+Shift+K", "copySpaceMetaDataToClipboard", "General", "Copy space information to clipboard"},
    {19, "Ctrl+F", "openGlobalSearch", "General", "Search"},
    {27, "Ctrl+4", "selectCallingTab", "General", "Go to calling"},
    {26, "Ctrl+3", "selectContactsTab", "General", "Go to contacts"},
    {32, "Ctrl+5", "selectMeetingsTab", "General", "Go to meetings"},
    {33, "Ctrl+1", "selectMessagingTab", "General", "Go to messaging"},
    {37, "Ctrl+2", "selectTeamsTab", "General", "Go to teams"},
    {38, "Ctrl+6", "selectPersonalInsightsTab", "General", "Go to personal insights"},
    {59, "Ctrl+7", "selectVoicemailTab", "General", "Go to voicemail"},
    {40, "Ctrl+8", "selectWhiteboardsTab", "General", "Go to whiteboards"},
    {20, "F1", "openHelpPopUp", "General", "Open Help Center"},
    {34, "Forward", "selectNextSpaceInHistory", "General", "Go forward"},
    {36, "Back", "selectPrevSpaceInHistory", "General", "Go back"},
    {44, "Ctrl+/", "showKeyboardShortcutsDialog", "General", "Open keyboard shortcut search"},
    {3, "Shift+Return", "advancedSearch", "General", "Advanced Search (when in search)"},
    {10, "Alt+Shift+Q", "expandTabSelectorWidget", "General", "Expand or Collapse navigation menu"},
    {58, "Ctrl+Alt+Shift+D", "showDiagnosticsDetails", "General", "Open diagnostics dialog"},
    {18, "Alt+Up", "moveUpSpaceList", "Messaging", "Move up the spaces list"},
    {17, "Alt+Down", "moveDownSpaceList", "Messaging", "Move down the spaces list"},
    {8, "Ctrl+Shift+N", "createSpace", "Messaging", "Create a space"},
    {6, "Ctrl+N", "contactPerson", "Messaging", "Send a direct message"},
    {13, "Ctrl+H", "focusMainConversation", "Messaging", "Go to last message in focus"},
    {14, "Ctrl+Shift+I", "focusMainInputBox", "Messaging", "Go to message compose area"},
    {25, "Alt+Shift+A", "selectAllSpacesTab", "Messaging", "Show all spaces"},
    {31, "Alt+Shift+F", "selectFlagsFilter", "Messaging", "Go to flagged messages list"},
    {30, "Ctrl+Shift+U", "selectFavouritesFilter", "Messaging", "Go to favorites list"},
    {35, "Alt+Shift+N", "selectNotificationsFilter", "Messaging", "Go to message notifications list"},
    {39, "Alt+Shift+E", "selectUnreadFilter", "Messaging", "Go to unread messages list"},
    {29, "Alt+Shift+D", "selectDraftsFilter", "Messaging", "Go to draft messages list"},
    {9, "Ctrl+Shift+B", "createWhiteboard", "Messaging", "New whiteboard"},
    {28, "Ctrl+Shift+T", "selectDirectMessagesTab", "Messaging", "Go to direct messages list"},
    {21, "Ctrl+Shift+J", "openSearchInSpace", "Messaging", "Search in space"},
    {4, "Ctrl+O", "attachFile", "Messaging", "Attach a file"},
    {1, "Ctrl+G", "addGif", "Messaging", "Add a Gif"},
    {16, "Ctrl+Shift+E", "leaveSpace", "Messaging", "Leave the space"},
    {24, "Ctrl+Shift+P", "selectAddPeopleTab", "Messaging", "Add people"},
    {2, "Ctrl+E", "addLink", "Messaging", "Add link"},
    {0, "Ctrl+J", "addBitmoji", "Messaging", "Add a Bitmoji"},
    {55, "ZoomIn", "zoomIn", "Messaging", "Increase font size for messages"},
    {57, "ZoomOut", "zoomOut", "Messaging", "Decrease font size for messages"},
    {56, "Ctrl+=", "zoomIn", "", ""},
    {60, "Alt+Shift+M", "toggleMarkdown", "", ""},
    {11, "Ctrl+L", "endCall", "CallingAndMeeting", "End call"},
    {5, "Ctrl+Shift+C", "answerCall", "CallingAndMeeting", "Answer call"},
    {12, "Ctrl+Alt+H", "holdResumeCall", "CallingAndMeeting", "Hold/Resume call"},
    {15, "Ctrl+Alt+Shift+H", "highlightToCall", "CallingAndMeeting", "Hightlight to call"},
    {52, "Ctrl+M", "toggleAudioMute", "CallingAndMeeting", "Toggle audio mute"},
    {53, "Ctrl+Shift+V", "toggleVideoMute", "CallingAndMeeting", "Toggle video mute"},
    {46, "Ctrl+Shift+Return", "startAudioCall", "CallingAndMeeting", "Start an audio call (from search)"},
    {47, "Ctrl+Return", "startVideoCall", "CallingAndMeeting", "Start a video call (from search)"},
    {54, "Ctrl+Shift+X", "showMultiCall", "CallingAndMeeting", "Show/Hide Multi Call"},
    {41, "Ctrl+Shift+D", "shareContentShortcut", "CallingAndMeeting", "Share content"},
    {50, "Ctrl+Shift+Z", "stopSharingShortcut", "CallingAndMeeting", "Stop sharing"},
    {51, "Ctrl+Alt+Shift+S", "switchBetweenFloatingWindows", "CallingAndMeeting", "Switch between floating windows"},
    {22, "Alt+Shift+S", "pauseResumeSharing", "CallingAndMeeting", "Pause/Resume sharing"},
    {49, "Alt+Shift+R", "toggleRemoteDesktopControlShortcut", "CallingAndMeeting", "Start or stop remote control"},
    {42, "Ctrl+Alt+O", "shareFileVideoShortcut", "CallingAndMeeting", "Share a File"},
    {45, "Alt+Shift+Z", "startAnnotateShortcut", "CallingAndMeeting", "Start annotation"},
    {48, "Alt+Shift+X", "stopAnnotateShortcut", "CallingAndMeeting", "Stop annotation"},
    {23, "Ctrl+Alt+Shift+R", "reloadAllQmlViews", "Tool", ""},
    {43, "Ctrl+Alt+Shift+P", "showDevToolsDialog", "Tool", ""},
};

/// What the bus emitted while this lives, in order.
class Monitor : public QObject
{
public:
    Monitor()
    {
        const QMetaObject *bus = WAppSignals::get()->metaObject();
        for (int i = bus->methodOffset(); i < bus->methodCount(); ++i)
            QMetaObject::connect(WAppSignals::get(), i, this, QObject::staticMetaObject.methodCount() + i);
    }
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QMetaMethod signal = WAppSignals::staticMetaObject.method(id);
        m_seen << QString::fromLatin1(signal.name());
        if (signal.name() == "openSearchInSpace" && !static_cast<std::string *>(arguments[1])->empty())
            m_seen << QStringLiteral("with a text");
        return -1;
    }
    QString take() { return std::exchange(m_seen, {}).join(QLatin1Char(' ')); }

private:
    QStringList m_seen;
};

QKeySequence keyOf(const Row &row)
{
    const int standard = QMetaEnum::fromType<QKeySequence::StandardKey>().keyToValue(row.key);
    return standard < 0 ? QKeySequence(QString::fromLatin1(row.key), QKeySequence::PortableText)
                        : QKeySequence(QKeySequence::StandardKey(standard));
}

void press(QWidget *widget, const QKeySequence &key)
{
    QTest::keyClick(widget, Qt::Key(key[0] & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(key[0] & Qt::KeyboardModifierMask));
}

int registeredCount()
{
    int count = 0;
    for (int id = -1; id <= 62; ++id)
        count += WAppSignals::get()->shortcutExists(Id(id)) ? 1 : 0;
    return count;
}

} // namespace

void tst_Shortcuts::init()
{
    m_window.reset(new QWidget);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.data()));
}

void tst_Shortcuts::cleanup()
{
    m_window.reset();
    QCOMPARE(registeredCount(), 0);
}

void tst_Shortcuts::pressed_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(table)); ++row)
        QTest::addRow("%s by %s", table[row].signal, table[row].key) << row;
}

void tst_Shortcuts::pressed()
{
    QFETCH(int, row);
    const Row &expected = table[row];
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    const WShortcut *shortcut = bus->getShortcut(Id(expected.id));
    QVERIFY(shortcut);
    // The table is created in its order.
    QCOMPARE(m_window->findChildren<WShortcut *>().value(row), shortcut);
    QCOMPARE(shortcut->key(), keyOf(expected));
    QCOMPARE(bus->getKeySequence(Id(expected.id)), keyOf(expected));
    QCOMPARE(WApplication::find()->getKeySequence(Id(expected.id)), keyOf(expected));
    QCOMPARE(shortcut->context(), Qt::WindowShortcut);
    QCOMPARE(shortcut->getShortcutDescription(), QString::fromLatin1(expected.description));
    QCOMPARE(QMetaEnum::fromType<WShortcut::ShortcutGroups>().valueToKeys(shortcut->getShortcutGroup()),
             QByteArray(expected.group));
    QVERIFY(!shortcut->key().isEmpty()); // the platform of the tests has a key for each standard key of the table

    WarningLog log;
    Monitor monitor;
    press(m_window.data(), shortcut->key());
    QCOMPARE(monitor.take(), QString::fromLatin1(expected.signal));
    bus->disableShortcut(Id(expected.id));
    press(m_window.data(), shortcut->key());
    QCOMPARE(monitor.take(), QString());
    QCOMPARE(log.take(), QStringList());
}

void tst_Shortcuts::groups_data()
{
    QTest::addColumn<int>("groups");
    QTest::addColumn<int>("created");
    QTest::addColumn<int>("listed");
    QTest::newRow("none") << 0 << 0 << 0;
    QTest::newRow("general") << int(WShortcut::General) << 17 << 17;
    QTest::newRow("messaging, two of them in no group") << int(WShortcut::Messaging) << 25 << 23;
    QTest::newRow("calling") << int(WShortcut::CallingAndMeeting) << 17 << 17;
    QTest::newRow("tool") << int(WShortcut::Tool) << 2 << 2;
    QTest::newRow("two") << int(WShortcut::General | WShortcut::Tool) << 19 << 19;
    QTest::newRow("all") << int(AllGroups) << 61 << 59;
}

void tst_Shortcuts::groups()
{
    QFETCH(int, groups);
    QFETCH(int, created);
    QFETCH(int, listed);
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), WShortcut::ShortcutGroups(groups));
    QCOMPARE(registeredCount(), created);
    QCOMPARE(m_window->findChildren<WShortcut *>().size(), created);
    const QList<WShortcut *> list = bus->getGroupShortcuts(AllGroups);
    QCOMPARE(list.size(), listed);
    for (const WShortcut *shortcut : list)
        QVERIFY(shortcut->getShortcutGroup() & groups);
    QStringList names;
    for (const WShortcut *shortcut : list)
        names << shortcut->getShortcutGroupName();
    names.removeDuplicates();
    QStringList expected;
    const char *const all[] = {"General", "Messaging", "Calling and meeting", "Tool"};
    for (int i = 0; i < 4; ++i) {
        if (groups & (1 << i))
            expected << QString::fromLatin1(all[i]);
    }
    QCOMPARE(names, expected);
}

void tst_Shortcuts::refusals()
{
    WAppSignals *bus = WAppSignals::get();
    WarningLog log;
    const QString null = QStringLiteral("Unable to register shortcuts, MainWindow must not be null!");
    const QString twice =
        QStringLiteral("Shortcuts are already registred on another MainWindow! This should never happen.");
    bus->registerShortcuts(nullptr, AllGroups);
    bus->_registerShortcuts(nullptr, AllGroups);
    bus->_registerDebugShortcuts(nullptr);
    QCOMPARE(log.take(), QStringList({null, null, null}));

    QWidget other;
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    for (QWidget *window : {m_window.data(), &other}) {
        bus->registerShortcuts(window, AllGroups);
        QCOMPARE(log.take(), QStringList(twice));
        QCOMPARE(registeredCount(), 17);
    }
    QVERIFY(other.children().isEmpty());

    // An id that is there keeps its shortcut, its description and its key.
    bus->_registerDebugShortcuts(m_window.data());
    QCOMPARE(registeredCount(), 19);
    QCOMPARE(log.take(), QStringList());
    WShortcut *earlier = bus->getShortcut(Id::ReloadAllQmlViews);
    earlier->setShortcutDescription(QStringLiteral("mine"));
    bus->_registerShortcuts(&other, WShortcut::Tool);
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("This ShortcutId(23) is already registered in the application. This should "
                                         "never happen!"),
                          QStringLiteral("This ShortcutId(43) is already registered in the application. This should "
                                         "never happen!")}));
    QCOMPARE(bus->getShortcut(Id::ReloadAllQmlViews), earlier);
    QCOMPARE(earlier->getShortcutDescription(), QStringLiteral("mine"));
    QVERIFY(other.children().isEmpty());

    earlier->setShortcutGroup(WShortcut::ShortcutGroup(9));
    QCOMPARE(log.take(), QStringList(QStringLiteral("WShortcut::setShortcutGroup - Not one group: 9")));
    QCOMPARE(earlier->getShortcutGroup(), WShortcut::Tool);
    earlier->attachTo(nullptr);
    QCOMPARE(log.take().size(), 1);
}

void tst_Shortcuts::lookUps()
{
    WAppSignals *bus = WAppSignals::get();
    WarningLog log;
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    QVERIFY(!bus->shortcutExists(Id::EndCall));
    QCOMPARE(log.take(), QStringList());
    bus->disableShortcut(Id::EndCall);
    QCOMPARE(log.take(), QStringList(QStringLiteral("Did not find shortcut with id (11)")));
    QVERIFY(bus->getKeySequence(Id(99)).isEmpty());
    QCOMPARE(log.take(), QStringList(QStringLiteral("ShortcutId (99) is not registered! This should never happen")));

    delete bus->getShortcut(Id::OpenGlobalSearch);
    const QString null = QStringLiteral("ShortcutId (19) is null! This should never happen");
    QVERIFY(!bus->shortcutExists(Id::OpenGlobalSearch));
    QVERIFY(bus->getKeySequence(Id::OpenGlobalSearch).isEmpty());
    bus->disableShortcut(Id::OpenGlobalSearch);
    QCOMPARE(log.take(), QStringList({null, null}));
    bus->disableAll();
    QCOMPARE(bus->getGroupShortcuts(AllGroups).size(), 16);
    QCOMPARE(log.take(), QStringList());
}

void tst_Shortcuts::disabled()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    Monitor monitor;
    bus->disableAll();
    for (const Row &row : table)
        press(m_window.data(), keyOf(row));
    QCOMPARE(monitor.take(), QString());
    bus->getShortcut(Id::SelectTeamsTab)->setEnabled(true);
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_2));
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_3));
    QCOMPARE(monitor.take(), QStringLiteral("selectTeamsTab"));
}

void tst_Shortcuts::temporarilyDisabled()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    WShortcut *shortcut = bus->getShortcut(Id::OpenGlobalSearch);
    Monitor monitor;
    const auto answers = [&] {
        press(m_window.data(), shortcut->key());
        return monitor.take() == QLatin1String("openGlobalSearch");
    };
    shortcut->temporarilyDisable(true);
    shortcut->temporarilyDisable(true);
    QVERIFY(!answers());
    static_cast<QShortcut *>(shortcut)->setEnabled(true); // by one who knows no WShortcut
    QVERIFY(!answers());
    shortcut->temporarilyDisable(false);
    QVERIFY(answers());

    // What was said meanwhile counts afterwards.
    shortcut->temporarilyDisable(true);
    bus->disableShortcut(Id::OpenGlobalSearch);
    shortcut->temporarilyDisable(false);
    QVERIFY(!answers());
    shortcut->temporarilyDisable(true);
    shortcut->setProperty("enabled", true);
    QVERIFY(!answers());
    shortcut->temporarilyDisable(false);
    QVERIFY(answers());

    // A disabled one does not come to life.
    shortcut->setEnabled(false);
    shortcut->temporarilyDisable(true);
    shortcut->temporarilyDisable(false);
    QVERIFY(!answers());
}

void tst_Shortcuts::windowDestroyedAndCreatedAgain()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    QCOMPARE(registeredCount(), 61);
    WarningLog log;
    m_window.reset();
    QCOMPARE(registeredCount(), 0);
    QVERIFY(bus->getGroupShortcuts(AllGroups).isEmpty());
    QVERIFY(bus->getKeySequence(Id::EndCall).isEmpty());
    QCOMPARE(log.take(), QStringList(QStringLiteral("ShortcutId (11) is not registered! This should never happen")));
    init();
    bus->registerShortcuts(m_window.data(), WShortcut::CallingAndMeeting);
    QCOMPARE(log.take(), QStringList());
    Monitor monitor;
    press(m_window.data(), bus->getKeySequence(Id::EndCall));
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_2));
    QCOMPARE(monitor.take(), QStringLiteral("endCall"));
}

void tst_Shortcuts::ambiguousKeys()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    Monitor monitor;
    WarningLog log;
    bus->getShortcut(Id::ZoomInSecondary)->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_F));
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_F));
    QStringList told = log.take();
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().startsWith(QLatin1String("The key Ctrl+F is ambiguous"))
                 && told.first().contains(QLatin1String("Search (19)"))
                 && told.first().contains(QLatin1String("ZoomInSecondary (56)")),
             qPrintable(told.first()));
    QCOMPARE(monitor.take(), QString());
    bus->disableShortcut(Id::ZoomInSecondary);
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_F));
    QCOMPARE(monitor.take(), QStringLiteral("openGlobalSearch"));
    QCOMPARE(log.take(), QStringList());

    // With a host's own shortcut, which Qt tells in turns.
    QShortcut own(QKeySequence(Qt::CTRL | Qt::Key_F), m_window.data());
    own.setObjectName(QStringLiteral("hostSearch"));
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_F));
    press(m_window.data(), QKeySequence(Qt::CTRL | Qt::Key_F));
    told = log.take();
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().contains(QLatin1String("Search (19), hostSearch")), qPrintable(told.first()));
    QCOMPARE(monitor.take(), QString());
}

void tst_Shortcuts::conflicts()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    using Conflict = WAppSignals::ShortcutConflict;
    const auto texts = [bus](Conflict::Reason reason) {
        QStringList list;
        const QVector<Conflict> all = bus->shortcutConflicts();
        for (const Conflict &conflict : all) {
            if (conflict.reason == reason)
                list << QStringLiteral("%1 %2 %3")
                            .arg(int(conflict.shortcutId))
                            .arg(conflict.key.toString(), conflict.other);
        }
        return list;
    };
    QCOMPARE(texts(Conflict::SameKey), QStringList());
    const QString recorder = QStringLiteral("23 Ctrl+Alt+Shift+R "); // the table's key, and a desktop's
    QCOMPARE(texts(Conflict::Desktop), QStringList(recorder));
    QVERIFY(texts(Conflict::EditAction).contains(QStringLiteral("19 Ctrl+F Find")));
    QVERIFY(texts(Conflict::EditAction).contains(QStringLiteral("3 Shift+Return InsertLineSeparator")));

    // The same key in two groups, taken by an action of the window, and by the desktop.
    bus->getShortcut(Id::EndCall)->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_2));
    QAction action(QStringLiteral("Teams")), elsewhere(QStringLiteral("Elsewhere"), m_window.data());
    for (QAction *each : {&action, &elsewhere})
        each->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_2));
    QPushButton child(m_window.data());
    m_window->addAction(&action);
    child.addAction(&action); // told once
    QDialog dialog(m_window.data()); // has keys of its own
    QShortcut inDialog(QKeySequence(Qt::CTRL | Qt::Key_2), &dialog);
    QCOMPARE(texts(Conflict::SameKey),
             QStringList({QStringLiteral("37 Ctrl+2 End call (11)"), QStringLiteral("37 Ctrl+2 Teams"),
                          QStringLiteral("11 Ctrl+2 Teams")}));
    bus->getShortcut(Id::EndCall)->setShortcutKey(QKeySequence(Qt::ALT | Qt::Key_F4));
    QCOMPARE(texts(Conflict::Desktop), QStringList({QStringLiteral("11 Alt+F4 "), recorder}));
    bus->getShortcut(Id::EndCall)->setShortcutKey(QKeySequence()); // no key, no conflict
    bus->getShortcut(Id::AnswerCall)->setShortcutKey(QKeySequence());
    QCOMPARE(texts(Conflict::SameKey), QStringList(QStringLiteral("37 Ctrl+2 Teams")));
    bus->disableShortcut(Id::SelectTeamsTab);
    QCOMPARE(texts(Conflict::SameKey), QStringList());
    bus->disableAll();
    QVERIFY(bus->shortcutConflicts().isEmpty());
}

// Anything may happen in the event that a new tooltip sends.
void tst_Shortcuts::attachedAndChangedMeanwhile_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"element dies", "other element dies", "detached", "other shortcut takes over",
                             "shortcut dies", "another one attached"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void tst_Shortcuts::attachedAndChangedMeanwhile()
{
    QFETCH(QString, what);
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    QPointer<WShortcut> search = bus->getShortcut(Id::OpenGlobalSearch);
    WShortcut *help = bus->getShortcut(Id::OpenHelpPopUp);
    QPointer<QPushButton> first = new QPushButton(m_window.data()), second = new QPushButton(m_window.data());
    QPushButton third;
    search->attachTo(first);
    search->attachTo(second);
    int left = 1;
    QPointer<QObject> filter =
        VisualUtils::EventFilter::install(first, {QEvent::ToolTipChange}, [&](QObject *, QEvent *) {
            if (left-- <= 0)
                return false;
            if (what == QLatin1String("element dies"))
                delete first;
            else if (what == QLatin1String("other element dies"))
                delete second;
            else if (what == QLatin1String("detached"))
                search->detachFrom(first);
            else if (what == QLatin1String("other shortcut takes over"))
                help->attachTo(first);
            else if (what == QLatin1String("shortcut dies"))
                delete search;
            else
                search->attachTo(&third);
            return true;
        });
    search->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_2));
    delete filter; // it looks at this function
    QVERIFY(left <= 0);
    const QString plain, now = QStringLiteral("Search (Ctrl+2)");
    if (first)
        QCOMPARE(first->toolTip(),
                 what == QLatin1String("detached")                        ? plain
                     : what == QLatin1String("shortcut dies")             ? plain
                     : what == QLatin1String("other shortcut takes over") ? QStringLiteral("Open Help Center (F1)")
                                                                          : now);
    if (second)
        QCOMPARE(second->toolTip(), search ? now : plain);
    delete search;
    if (second)
        QCOMPARE(second->toolTip(), plain);
}

void tst_Shortcuts::registeredAnew()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    WarningLog log;
    delete bus->getShortcut(Id::OpenGlobalSearch);
    bus->_registerShortcuts(m_window.data(), WShortcut::Tool);
    QCOMPARE(registeredCount(), 18);
    // The next main window, as soon as the old one says that it goes.
    QWidget next;
    connect(m_window.data(), &QObject::destroyed, this,
            [bus, window = &next] { bus->registerShortcuts(window, WShortcut::CallingAndMeeting); });
    m_window.reset();
    QCOMPARE(registeredCount(), 17);
    QCOMPARE(log.take(), QStringList());
}

void tst_Shortcuts::translations()
{
    class Translator : public QTranslator
    {
        bool isEmpty() const override { return false; }
        QString translate(const char *context, const char *source, const char *, int) const override
        {
            return qstrcmp(context, "WShortcut") ? QString() : QString::fromUtf8(source).toUpper();
        }
    };
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    const WShortcut *shortcut = bus->getShortcut(Id::HighlightToCall);
    Translator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator)); // after the registration
    QCOMPARE(shortcut->getShortcutDescription(), QStringLiteral("HIGHTLIGHT TO CALL"));
    QCOMPARE(shortcut->getShortcutGroupName(), QStringLiteral("CALLING AND MEETING"));
    QCOMPARE(bus->getShortcut(Id::ZoomInSecondary)->getShortcutDescription(), QString());
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(shortcut->getShortcutDescription(), QStringLiteral("Hightlight to call"));
}

void tst_Shortcuts::attached()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), AllGroups);
    WShortcut *search = bus->getShortcut(Id::OpenGlobalSearch);
    QPushButton button(m_window.data());
    const auto told = [&button] {
        return QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Description);
    };

    search->attachTo(&button);
    QCOMPARE(button.toolTip(), QStringLiteral("Search (Ctrl+F)"));
    QCOMPARE(told(), QStringLiteral("Search (Ctrl+F)"));
    button.setToolTip(QStringLiteral("Find it"));
    QCOMPARE(button.toolTip(), QStringLiteral("Find it (Ctrl+F)"));
    QCOMPARE(told(), QStringLiteral("Find it (Ctrl+F)"));
    search->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_Less));
    QCOMPARE(button.toolTip(), QStringLiteral("Find it (Ctrl+<)"));
    button.setToolTip(QStringLiteral("<b>Find</b> it"));
    QCOMPARE(button.toolTip(), QStringLiteral("<b>Find</b> it (Ctrl+&lt;)"));
    search->setShortcutKey(QKeySequence());
    QCOMPARE(button.toolTip(), QStringLiteral("<b>Find</b> it"));
    search->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_F));
    search->detachFrom(&button);
    QCOMPARE(button.toolTip(), QStringLiteral("<b>Find</b> it"));

    button.setAccessibleDescription(QStringLiteral("Looks everywhere"));
    search->attachTo(&button);
    bus->getShortcut(Id::EndCall)->detachFrom(&button); // shows another one
    search->attachTo(&button); // not twice
    QCOMPARE(told(), QStringLiteral("Looks everywhere (Ctrl+F)"));
    QCOMPARE(button.toolTip(), QStringLiteral("<b>Find</b> it (Ctrl+F)"));
    bus->getShortcut(Id::EndCall)->attachTo(&button); // takes its place
    QCOMPARE(told(), QStringLiteral("Looks everywhere (Ctrl+L)"));
    search->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_2));
    QCOMPARE(told(), QStringLiteral("Looks everywhere (Ctrl+L)"));
    button.setAccessibleDescription(QStringLiteral("Ends it"));
    delete bus->getShortcut(Id::EndCall);
    QCOMPARE(told(), QStringLiteral("Ends it"));
    QCOMPARE(button.toolTip(), QStringLiteral("<b>Find</b> it"));

    // Without a tooltip of its own it tells what the shortcut is, in whatever language that is.
    button.setToolTip(QString());
    search->attachTo(&button);
    search->setShortcutDescription(QStringLiteral("Look"));
    QCOMPARE(button.toolTip(), QStringLiteral("Look (Ctrl+2)"));
    search->setShortcutDescription(QString());
    QCOMPARE(button.toolTip(), QStringLiteral("Ctrl+2"));
}

void tst_Shortcuts::attachedAccelerator()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    WShortcut *search = bus->getShortcut(Id::OpenGlobalSearch);
    WRadioButton button(QStringLiteral("&Find"), m_window.data());
    const auto told = [&button] {
        return QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Accelerator);
    };
    const QString own = told(); // of the letter in its text
    QVERIFY(!own.isEmpty());
    search->attachTo(&button);
    QCOMPARE(told(), QStringLiteral("Ctrl+F"));
    search->setShortcutKey(QKeySequence());
    QCOMPARE(told(), own);
    search->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_2));
    QCOMPARE(told(), QStringLiteral("Ctrl+2"));
    search->detachFrom(&button);
    QCOMPARE(told(), own);
}

void tst_Shortcuts::attachedToMany()
{
    WAppSignals *bus = WAppSignals::get();
    bus->registerShortcuts(m_window.data(), WShortcut::General);
    WShortcut *search = bus->getShortcut(Id::OpenGlobalSearch);
    QPushButton first, *second = new QPushButton(m_window.data());
    search->attachTo(&first);
    search->attachTo(second);
    delete second;
    search->setShortcutKey(QKeySequence(Qt::CTRL | Qt::Key_2));
    QCOMPARE(first.toolTip(), QStringLiteral("Search (Ctrl+2)"));
    search->attachTo(new QPushButton(m_window.data())); // dies with the window, like the shortcut
    m_window.reset();
    QCOMPARE(first.toolTip(), QString());
}

W_TEST_MAIN(tst_Shortcuts)
#include "tst_shortcuts.moc"

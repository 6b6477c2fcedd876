#include "support/WarningLog.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WGlobalSignalListener.h>

#include <QWidget>
#include <QtTest>

#include <map>
#include <memory>

// Built twice: with the library's definitions of the host's types, and with a host's own in their place. Application
// objects come and go, so each test makes its own.
class tst_AppSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declarations();
    void queued_data();
    void queued();
    void changedByTheReceiver();
    void lookUpWhileTheApplicationDies();
};

namespace {

int argc = 1;
char name[] = "tst_app_signals";
char *argv[] = {name, nullptr};

const char *const table[] = {
    // Contacts and people
    "closeContactCards(bool,bool)",
    "contactPerson()",
    "ConfirmOneToOneCreate(std::string,std::vector<std::string>,std::vector<std::string>)",
    "navigateToContact(QString)",
    "showContactCard(QRect,QString,Qt::ArrowType,bool,QString,QString,QString,QObject*)",
    "makeCall(QString,bool,QPoint)",
    "addToContact(std::string)",
    "createNewContact(std::string)",
    "addToExistingContact(std::string)",
    // Spaces and conversations
    "copySpaceMetaDataToClipboard()",
    "createSpace()",
    "createPublicSpace()",
    "createSpaceWithParticipants(std::vector<std::string>)",
    "focusMainConversation()",
    "focusMainInputBox()",
    "forwardMessageRequested(QString,QString,QString)",
    "replyPrivatelyRequested(QString,QString,QString)",
    "navigateToMessage(std::string,std::string)",
    "navigateToSpace(flarq::guid)",
    "replyToMessage(std::string,std::string)",
    "openAttachFilePopover()",
    "openGiphyPopover()",
    "popoutConversation(std::string,std::string,std::string,std::string)",
    "selectAddPeopleTab()",
    "selectPrevSpaceInHistory()",
    "selectNextSpaceInHistory()",
    "selectPersonalInsightsTab()",
    "smsChatAction(std::string)",
    "showAddPeopleView(std::string)",
    "showSpaceInformationCard(flarq::guid,QWidget*)",
    "showSpaceInformationCardFromPoint(flarq::guid,QPointF,QWindow*)",
    "showSpaceInformationCardFromRect(flarq::guid,QRectF,QWindow*,bool)",
    "showSpaceInformationCardFromQmlRect(QString,QRectF,QWindow*,bool)",
    "showMeetingRoomCard(flarq::guid,QRectF,bool,QWindow*)",
    "showMigrationCoachmark(std::string)",
    "showMeetingCoachmarks(std::string)",
    "peekSpaceRequested(flarq::guid)",
    "peekSpaceFromContactCard(flarq::guid)",
    "spaceSettingsRequested(QString)",
    "attachFile()",
    "addLink()",
    "addGif()",
    "addBitmoji()",
    "leaveSpace()",
    "startAudioCall()",
    "startVideoCall()",
    "showMultiCall()",
    "zoomIn()",
    "zoomOut()",
    "toggleMarkdown()",
    "createConversation(OneToOneParticipantInfo)",
    "navigateToTeam(flarq::guid)",
    "navigateToExplorePublicSpaces(bool,std::string)",
    "closeAllConversationsFormPopouts()",
    "closeQmlPopups()",
    // Search
    "openGlobalSearch()",
    "openSearchInSpace(std::string)",
    "openSearchInActiveSpace()",
    "openFromSearch(std::string)",
    "advancedSearch()",
    // Navigation tabs
    "selectCallingTab()",
    "selectContactsTab()",
    "selectMeetingsTab()",
    "selectMessagingTab()",
    "selectTeamsTab()",
    "selectVoicemailTab()",
    "selectWhiteboardsTab()",
    "toggleAssistantPanel()",
    // Whiteboards and files
    "createWhiteboard()",
    "openEcmFile(std::string,std::string,std::string)",
    "openFile(std::string,std::string,int,std::string,bool)",
    "editWhiteboard(std::string,std::string)",
    "startECMAuthentication(commonHead::viewModels::ECMProvider,std::string,std::string,int)",
    // Space list and filters
    "moveDownSpaceList()",
    "moveUpSpaceList()",
    "selectAllSpacesTab()",
    "selectDirectMessagesTab()",
    "selectDraftsFilter()",
    "selectFavouritesFilter()",
    "selectFlagsFilter()",
    "selectNotificationsFilter()",
    "selectUnreadFilter()",
    // Meetings and calls
    "preferenceMeetingSettingChanged()",
    "scheduleMeeting(QVariant)",
    "editGoogleMeeting(QVariant)",
    "openBreakoutManage(QVariantMap)",
    "answerCall()",
    "endCall()",
    "holdResumeCall()",
    "toggleAudioMute()",
    "toggleVideoMute()",
    "assistantViewVisibleChanged(bool)",
    "joinAMeeting()",
    "displayMeetingDetailsPopup(QString,QString,QPoint)",
    "joinAnOngoingCall(QString)",
    "switchBetweenFloatingWindows()",
    "requestJoinMeetingUri(QString,QString)",
    "switchSmartAudioMode()",
    "highlightToCall()",
    "inMeetingChatScreenReaderToggled()",
    // Application windows, dialogs and coachmarks
    "showUserConsentCoachMark(QString)",
    "reloadAllQmlViews()",
    "showDevToolsDialog()",
    "openHelpPopUp()",
    "openSettingsWindow()",
    "openMakeCallPanel()",
    "startMigration()",
    "showWhatsNewRequested()",
    "showEditProfileDialog()",
    "showKeyboardShortcutsDialog()",
    "showStatusSelectorDialog()",
    "showInviteToZentroDialog()",
    "showSetupZentroDialog()",
    "openApplicationMenuItem(ApplicationMenuItem)",
    "openConnectDevicePopUp()",
    "showChattleOrZentroMigrationFlow(bool)",
    "shareMeetingContainer(QString,QVariant)",
    "showMeetingContainerRecording(QString,QString)",
    "showMeetingContainerDetailsInBrowser(QString)",
    "popoutInMeetingChatContainer(QString,QVariant)",
    // Phone widget and call windows
    "phoneWidgetEnableChanged(bool)",
    "setPhoneWidgetVisibility(QWindow::Visibility,commonHead::viewModels::SetWidgetVisibilityOrigin)",
    "phoneWidgetVisibilityChanged(QWindow::Visibility)",
    "closePhoneWidget(commonHead::viewModels::SetWidgetVisibilityOrigin)",
    "phoneWidgetClosed()",
    "showCallWindowMain(flarq::guid,commonHead::viewModels::CallControlMainItemType,bool)",
    "showCallWindowMore(flarq::guid,commonHead::viewModels::CallControlMenuItemType)",
    // Options, emergency address and diagnostics windows
    "openOptionsDialog(int,std::string)",
    "scrollToHighlightToCallShortcutItem()",
    "openE911AddressDialog(QRect,bool)",
    "showQelviaWindow()",
    "showCallAssistantWindow(commonHead::viewModels::ShowCallAssistantWindowOrigin)",
    "showDebugWindow()",
    "developerOptionClicked()",
    // Sharing, annotation and whiteboard creation
    "startLocalShare(flarq::guid,QWidget*,commonHead::viewModels::ShareSourcesSelectionWindowTab)",
    "setShareControlBarMaxButtonChecked(bool)",
    "setRevertToClassicShareChecked()",
    "annotationCreated()",
    "createWhiteboardWithInfo(uiWhiteboard::CreateWhiteboardInfo)",
    "whiteboardsButtonclicked(uiWhiteboard::CreateWhiteboardInfo)",
    "createWhiteboardConfirm(bool,uiWhiteboard::CreateWhiteboardInfo)",
    "assignHostRequested(std::string,QWidget*)",
    "startShareShortcut(flarq::guid)",
    "shareContentShortcut()",
    "stopSharingShortcut()",
    "pauseResumeSharing()",
    "toggleRemoteDesktopControlShortcut()",
    "shareFileVideoShortcut()",
    "startRemoteDesktopControlShortcut(flarq::guid)",
    "startAnnotateShortcut()",
    "stopAnnotateShortcut()",
    "toggleShowFloatingWindowShortcut()",
    // Panels, exit, calendar, audio and reactions
    "toggleChatPanel()",
    "showVDIUpgradeCheckerWindow()",
    "expandTabSelectorWidget()",
    "toggleCallDialogShortcuts(bool)",
    "aboutToExit()",
    "showCalendarSelectorWidget(commonHead::viewModels::OAuthProvider)",
    "openAudioDumpDialog()",
    "audioDumpStatusChanged(bool)",
    "showDiagnosticsDetails()",
    "popupMeetingDetailPage(QWidget*,std::string,std::string,std::string,std::string,std::string,QRect&,int,bool)",
    "audioErrorStatusChanged(commonHead::viewModels::AudioDeviceAvailableStatus)",
    "appMenuItemSelected(QVariant,QPointer<QWidget>)",
    "openMeetingReactionsPanel()",
    "sendMeetingReaction(WKeySequenceLookup::Shortcut)",
};

/// A value of one parameter type, and how two of its kind compare.
struct Sample
{
    std::shared_ptr<void> value;
    std::function<bool(const void *)> isEqual;
    std::function<std::shared_ptr<void>()> copy;
};

template <typename T>
Sample sample(const T &value)
{
    const auto held = std::make_shared<T>(value);
    return {held, [held](const void *other) { return *static_cast<const T *>(other) == *held; },
            [held] {
                return std::make_shared<T>(*held);
            }};
}

#ifdef UIELEMENTS_HOST_TYPES_HEADER
flarq::guid guid()
{
    return flarq::guid(0x1234567890abcdefu);
}
OneToOneParticipantInfo participant()
{
    OneToOneParticipantInfo info;
    info.name = "Zo\xc3\xab";
    info.level = 0.5;
    return info;
}
uiWhiteboard::CreateWhiteboardInfo whiteboard()
{
    return {"a text too long for any small buffer"};
}
const auto audio = commonHead::viewModels::AudioDeviceAvailableStatus::All;
#else
} // namespace
namespace flarq {
static bool operator==(const guid &a, const guid &b)
{
    return a.value == b.value;
}
} // namespace flarq
static bool operator==(const OneToOneParticipantInfo &a, const OneToOneParticipantInfo &b)
{
    return a.id == b.id && a.displayName == b.displayName;
}
namespace commonHead {
namespace viewModels {
static bool operator==(const AudioDeviceAvailableStatus &a, const AudioDeviceAvailableStatus &b)
{
    return a.microphoneAvailable == b.microphoneAvailable && a.speakerAvailable == b.speakerAvailable;
}
} // namespace viewModels
} // namespace commonHead
namespace uiWhiteboard {
static bool operator==(const CreateWhiteboardInfo &a, const CreateWhiteboardInfo &b)
{
    return a.spaceId == b.spaceId && a.title == b.title;
}
} // namespace uiWhiteboard
namespace {
flarq::guid guid()
{
    return {"0b7c9a52-6b1e-4d11-8f0c-2f7d1d6c0001"};
}
OneToOneParticipantInfo participant()
{
    return {"17", "Zo\xc3\xab"};
}
uiWhiteboard::CreateWhiteboardInfo whiteboard()
{
    return {"a text too long for any small buffer", "Plan"};
}
const commonHead::viewModels::AudioDeviceAvailableStatus audio = {false, true};
#endif

std::string nastyText()
{
    return std::string("caf\xc3\xa9 \xf0\x9f\x8e\x89\0after the zero", 26);
}

std::map<QByteArray, Sample> samples(QWidget *widget)
{
    using namespace commonHead::viewModels;
    return {
        {"bool", sample(true)},
        {"int", sample(-70000)},
        {"std::string", sample(nastyText())},
        {"std::vector<std::string>", sample(std::vector<std::string> {"", nastyText(), "b"})},
        {"QString", sample(QStringLiteral("\u00e9 \U0001F389"))},
        {"QRect", sample(QRect(-1, 2, 3, 4))},
        {"QRectF", sample(QRectF(-.5, 1, 2, 3))},
        {"QPoint", sample(QPoint(-7, 8))},
        {"QPointF", sample(QPointF(.25, -8))},
        {"QVariant", sample(QVariant(QStringLiteral("in a variant")))},
        {"QVariantMap", sample(QVariantMap {{QStringLiteral("k"), 5}})},
        {"QObject*", sample(static_cast<QObject *>(widget))},
        {"QWidget*", sample(widget)},
        {"QWindow*", sample(widget->windowHandle())},
        {"QPointer<QWidget>", sample(QPointer<QWidget>(widget))},
        {"Qt::ArrowType", sample(Qt::LeftArrow)},
        {"QWindow::Visibility", sample(QWindow::FullScreen)},
        {"WKeySequenceLookup::Shortcut", sample(WKeySequenceLookup::Shortcut::ReactClap)},
        {"flarq::guid", sample(guid())},
        {"OneToOneParticipantInfo", sample(participant())},
        {"ApplicationMenuItem", sample(ApplicationMenuItem(2))},
        {"commonHead::viewModels::ECMProvider", sample(ECMProvider(3))},
        {"commonHead::viewModels::SetWidgetVisibilityOrigin", sample(SetWidgetVisibilityOrigin(1))},
        {"commonHead::viewModels::CallControlMainItemType", sample(CallControlMainItemType(1))},
        {"commonHead::viewModels::CallControlMenuItemType", sample(CallControlMenuItemType(1))},
        {"commonHead::viewModels::ShowCallAssistantWindowOrigin", sample(ShowCallAssistantWindowOrigin(1))},
        {"commonHead::viewModels::ShareSourcesSelectionWindowTab", sample(ShareSourcesSelectionWindowTab(1))},
        {"commonHead::viewModels::OAuthProvider", sample(OAuthProvider(1))},
        {"commonHead::viewModels::AudioDeviceAvailableStatus", sample(audio)},
        {"uiWhiteboard::CreateWhiteboardInfo", sample(whiteboard())},
    };
}

/// Takes any signal by its index and compares the arguments with what is expected.
class Receiver : public QObject
{
public:
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        ++calls;
        for (int i = 0; i < expected.size(); ++i)
            equal += expected.at(i).isEqual(arguments[i + 1]) ? 1 : 0;
        return -1;
    }
    QVector<Sample> expected;
    int calls = 0;
    int equal = 0;
};

} // namespace

void tst_AppSignals::declarations()
{
    const auto signatures = [](const QMetaObject &meta) {
        QByteArrayList list;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            list << (meta.method(i).methodType() == QMetaMethod::Signal ? "" : "not a signal: ")
                    + meta.method(i).methodSignature();
        return list;
    };
    const QByteArrayList found = signatures(WAppSignals::staticMetaObject);
    for (int i = 0; i < int(std::size(table)); ++i) {
        QCOMPARE(found.value(i), QByteArray(table[i]));
        QCOMPARE(QMetaObject::normalizedSignature(table[i]), QByteArray(table[i])); // the table itself
    }
    QCOMPARE(found.size(), int(std::size(table)));
    // moc shortens one type; a connection that spells it out finds the signal all the same.
    QVERIFY(WAppSignals::staticMetaObject.indexOfSignal("openBreakoutManage(QMap<QString,QVariant>)") >= 0);
    QCOMPARE(WAppSignals::staticMetaObject.propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(signatures(WGlobalSignalListener::staticMetaObject).join(' '),
             QByteArray("shortcutActivated(WKeySequenceLookup::Shortcut) setDevToolsThemeMode(QString)"));
    const QMetaEnum ids = QMetaEnum::fromType<WAppSignals::Shortcut>();
    QCOMPARE(ids.keyCount(), 61);
    for (int i = 0; i < ids.keyCount(); ++i)
        QVERIFY2(ids.valueToKey(i), qPrintable(QString::number(i)));
}

void tst_AppSignals::queued_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char *signature : table) {
        if (!strstr(signature, "QRect&"))
            QTest::newRow(signature) << QByteArray(signature);
    }
}

// Every type of a queued argument is found by the name in the signal, copied, and arrives as it was.
void tst_AppSignals::queued()
{
    QFETCH(QByteArray, signature);
    WApplication app(argc, argv);
    WAppSignals *bus = WAppSignals::get();
    QWidget widget;
    widget.winId(); // makes the QWindow
    const std::map<QByteArray, Sample> values = samples(&widget);
    const int index = bus->metaObject()->indexOfSignal(signature.constData());
    QVERIFY(index >= 0);

    WarningLog log;
    Receiver receiver;
    QVERIFY(QMetaObject::connect(bus, index, &receiver, QObject::staticMetaObject.methodCount(), Qt::QueuedConnection));
    {
        QVector<std::shared_ptr<void>> copies; // gone before the event is delivered
        QVector<void *> arguments(1, nullptr);
        const QByteArrayList types = bus->metaObject()->method(index).parameterTypes();
        for (const QByteArray &type : types) {
            QVERIFY2(values.count(type), type.constData());
            receiver.expected << values.at(type);
            copies << values.at(type).copy();
            arguments << copies.last().get();
        }
        QMetaObject::metacall(bus, QMetaObject::InvokeMetaMethod, index, arguments.data());
        QCOMPARE(receiver.calls, 0);
    }
    QCoreApplication::processEvents();
    QCOMPARE(receiver.calls, 1);
    QCOMPARE(receiver.equal, receiver.expected.size());
    QCOMPARE(log.take(), QStringList());
}

void tst_AppSignals::changedByTheReceiver()
{
    WApplication app(argc, argv);
    WAppSignals *bus = WAppSignals::get();
    connect(bus, &WAppSignals::popupMeetingDetailPage, this,
            [](QWidget *, const std::string &, const std::string &, const std::string &, const std::string &,
               const std::string &, QRect &rect, int, bool) { rect.moveLeft(5); });
    QRect rect(0, 0, 1, 1);
    Q_EMIT bus->popupMeetingDetailPage(nullptr, {}, {}, {}, {}, {}, rect, 0, false);
    QCOMPARE(rect, QRect(5, 0, 1, 1));
}

void tst_AppSignals::lookUpWhileTheApplicationDies()
{
    struct Child : QObject
    {
        explicit Child(QObject *parent, bool &result)
            : QObject(parent)
            , found(result)
        {
        }
        ~Child() override { found = WAppSignals::get() || WGlobalSignalListener::get(); }
        bool &found;
    };
    struct Application : WApplication
    {
        explicit Application(bool &result)
            : WApplication(argc, argv)
            , found(result)
        {
        }
        ~Application() override { found = WAppSignals::get() && WGlobalSignalListener::get(); }
        bool &found;
    };
    const QString missing = QStringLiteral("Unable to find WApplication");
    WarningLog log;
    bool foundByHost = false, foundByChild = true;
    {
        Application app(foundByHost);
        new Child(&app, foundByChild); // dies with it
        QCOMPARE(log.take(), QStringList());
    }
    QVERIFY(foundByHost); // the host's own destructor still finds both
    QVERIFY(!foundByChild);
    QCOMPARE(log.take(), QStringList({missing, missing}));
    QVERIFY(!WAppSignals::get());
    QVERIFY(!WGlobalSignalListener::get());
    QCOMPARE(log.take(), QStringList({missing, missing}));
}

QTEST_APPLESS_MAIN(tst_AppSignals)
#include "tst_app_signals.moc"

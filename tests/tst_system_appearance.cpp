#include <UiElements/app/WSystemAppearance.h>

#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using Settings = QMap<QString, QVariantMap>;
Q_DECLARE_METATYPE(Settings)

class Bus;

class tst_SystemAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void answers_data();
    void answers();
    void firstAnswerIsAnnouncedAtOnce();
    void changes_data();
    void changes();
    void unusableAnswers_data();
    void unusableAnswers();
    void unusableChanges_data();
    void unusableChanges();
    void strangersHaveNoSay();
    void lateAnswer();
    void signOfLife();
    void portalComesAndGoes();
    void endsWhileAsking_data();
    void endsWhileAsking();
    void endsInSlot_data();
    void endsInSlot();
    void severalAtOnce();
    void waysToTheBus_data();
    void waysToTheBus();
    void noBus_data();
    void noBus();
    void silentBus();
    void busDies_data();
    void busDies();

private:
    std::unique_ptr<Bus> m_bus;
};

namespace {

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

QString uniqueName()
{
    static int count = 0;
    return QStringLiteral("test-%1").arg(++count);
}

QVariant wrapped(const QVariant &value)
{
    return QVariant::fromValue(QDBusVariant(value));
}

/// "appearance/contrast" for the name space and the key.
QPair<QString, QString> place(const char *shortName)
{
    const QStringList parts = QString::fromLatin1(shortName).split(QLatin1Char('/'));
    if (parts.at(0) == QLatin1String("appearance"))
        return {QStringLiteral("org.freedesktop.appearance"), parts.at(1)};
    if (parts.at(0) == QLatin1String("gnome"))
        return {QStringLiteral("org.gnome.desktop.interface"), parts.at(1)};
    if (parts.at(0) == QLatin1String("a11y"))
        return {QStringLiteral("org.gnome.desktop.a11y.interface"), parts.at(1)};
    return {parts.at(0), parts.at(1)};
}

struct Setting
{
    const char *name;
    QVariant value;
};
using SettingList = std::vector<Setting>;

Settings toSettings(const SettingList &list)
{
    Settings settings;
    for (const Setting &setting : list)
        settings[place(setting.name).first][place(setting.name).second] = setting.value;
    return settings;
}

/// All that an object tells, as one text.
QString told(const WSystemAppearance &appearance)
{
    QStringList text {QVariant::fromValue(appearance.colorScheme()).toString()};
    if (appearance.highContrast())
        text << QStringLiteral("contrast");
    if (appearance.reducedMotion())
        text << QStringLiteral("still");
    return (appearance.isKnown() ? QString() : QStringLiteral("? ")) + text.join(QLatin1Char(' '));
}

const QString nothingKnown = QStringLiteral("? NoPreference");

} // namespace

/// A message bus of our own, which can start a portal that fails and counts how often that is tried.
class Bus
{
public:
    Bus()
    {
        write("activate.sh",
              "echo >> " + QFile::encodeName(m_folder.filePath(QStringLiteral("started"))) + "\nexit 1\n");
        write("portal.service",
              "[D-BUS Service]\nName=org.freedesktop.portal.Desktop\nExec=/bin/sh "
                  + QFile::encodeName(m_folder.filePath(QStringLiteral("activate.sh"))) + '\n');
        write("bus.conf",
              "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
              " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
              "<busconfig><type>session</type><listen>unix:path="
                  + QFile::encodeName(socket()) + "</listen><auth>EXTERNAL</auth><servicedir>"
                  + QFile::encodeName(m_folder.path())
                  + "</servicedir><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                    "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>\n");
        m_daemon.setProcessChannelMode(QProcess::SeparateChannels);
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + m_folder.filePath(QStringLiteral("bus.conf")),
                        QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        while (!m_daemon.canReadLine()) {
            if (!m_daemon.waitForReadyRead())
                qFatal("dbus-daemon: %s%s", qPrintable(m_daemon.errorString()),
                       m_daemon.readAllStandardError().constData());
        }
    }
    ~Bus() { kill(); }

    QString socket() const { return m_folder.filePath(QStringLiteral("bus")); }
    QString folder() const { return m_folder.path(); }
    QByteArray address() const { return "unix:path=" + QFile::encodeName(socket()); }
    int portalStarts() const
    {
        QFile file(m_folder.filePath(QStringLiteral("started")));
        return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
    }
    void kill()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    void write(const char *name, const QByteArray &text)
    {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("%s", qPrintable(file.errorString()));
    }

    QTemporaryDir m_folder;
    QProcess m_daemon;
};

namespace {

/// A program on the bus, and the portal there once it appeared.
class Portal : public QDBusVirtualObject
{
public:
    enum Manner { Answering, Waiting, Refusing };

    explicit Portal(const Bus &bus, const SettingList &list = {}, Manner manner = Answering)
        : m_connection(QDBusConnection::connectToBus(QString::fromLocal8Bit(bus.address()), uniqueName()))
        , m_answer(QVariant::fromValue(toSettings(list)))
        , m_manner(manner)
    {
        m_connection.registerVirtualObject(portalPath, this);
    }
    ~Portal() override
    {
        leave();
        QDBusConnection::disconnectFromBus(m_connection.name());
    }

    bool appear() { return m_connection.registerService(portalName); }
    void leave() { m_connection.unregisterService(portalName); }
    bool isConnected() const { return m_connection.isConnected(); }
    int calls() const { return m_calls.size(); }
    void setAnswer(const QVariant &answer) { m_answer = answer; }
    void setManner(Manner manner) { m_manner = manner; }

    void answer() { answer(m_calls.size() - 1); }
    void answer(int call)
    {
        if (m_manner == Refusing)
            m_connection.send(m_calls.at(call).createErrorReply(QDBusError::UnknownInterface, QStringLiteral("no")));
        else
            m_connection.send(m_calls.at(call).createReply(m_answer));
    }
    void change(const char *name, const QVariant &value)
    {
        send(QDBusMessage::createSignal(portalPath, settingsInterface, QStringLiteral("SettingChanged")),
             {place(name).first, place(name).second, wrapped(value)});
    }
    void send(QDBusMessage signal, const QVariantList &arguments)
    {
        signal.setArguments(arguments);
        m_connection.send(signal);
    }
    /// The name on the bus of whoever asked last.
    QString caller() const { return m_calls.last().service(); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        if (message.interface() != settingsInterface || message.member() != QLatin1String("ReadAll"))
            return false;
        message.setDelayedReply(true);
        m_calls << message;
        if (m_manner != Waiting)
            answer();
        return true;
    }

private:
    QDBusConnection m_connection;
    QVector<QDBusMessage> m_calls;
    QVariant m_answer;
    Manner m_manner;
};

/// Writes down the signals of an object, each with what the object tells meanwhile.
class SignalLog
{
public:
    explicit SignalLog(WSystemAppearance *appearance)
    {
        const auto add = [this, appearance](const char *name) {
            return [this, appearance, name] {
                m_lines << QLatin1String(name) + QLatin1String(": ") + told(*appearance);
            };
        };
        QObject::connect(appearance, &WSystemAppearance::knownChanged, appearance, add("known"));
        QObject::connect(appearance, &WSystemAppearance::colorSchemeChanged, appearance, add("scheme"));
        QObject::connect(appearance, &WSystemAppearance::highContrastChanged, appearance, add("contrast"));
        QObject::connect(appearance, &WSystemAppearance::reducedMotionChanged, appearance, add("motion"));
    }
    QStringList take() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};

/// Counts the calls that an object ends. The portal sees only those that reach it.
class EndedCalls : public QObject
{
public:
    explicit EndedCalls(const WSystemAppearance &appearance)
    {
        for (QObject *child : appearance.children())
            child->installEventFilter(this);
    }
    int ended() const { return m_ended; }
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_ended += event->type() == QEvent::ChildRemoved;
        return false;
    }

private:
    int m_ended = 0;
};

/// Waits until all that the portal sent has arrived: the object asks again after that, and gets no answer.
bool settle(Portal &portal)
{
    const int calls = portal.calls();
    portal.setManner(Portal::Waiting);
    portal.leave();
    return portal.appear() && QTest::qWaitFor([&] { return portal.calls() > calls; });
}

/// The numbers of the portal's keys are unsigned.
QVariant number(uint value)
{
    return value;
}

QVariant text(const char *value)
{
    return QString::fromLatin1(value);
}

} // namespace

Q_DECLARE_METATYPE(SettingList)
Q_DECLARE_METATYPE(Portal::Manner)
using Arm = std::function<void(const QPointer<WSystemAppearance> &)>;
Q_DECLARE_METATYPE(Arm)

void tst_SystemAppearance::initTestCase()
{
    qDBusRegisterMetaType<Settings>();
    m_bus = std::make_unique<Bus>();
}

void tst_SystemAppearance::init()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address());
    qunsetenv("XDG_RUNTIME_DIR");
}

void tst_SystemAppearance::cleanup()
{
    // A call, or an end of one, that is on its way must not find the next test.
    QCoreApplication::processEvents();
}

void tst_SystemAppearance::answers_data()
{
    QTest::addColumn<SettingList>("settings");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *expected, const SettingList &settings) {
        QTest::newRow(name) << settings << QString::fromLatin1(expected);
    };
    row("nothing", "NoPreference", {});
    row("no preference", "NoPreference", {{"appearance/color-scheme", number(0)}, {"appearance/contrast", number(0)}});
    row("dark", "Dark", {{"appearance/color-scheme", number(1)}});
    row("light", "Light", {{"appearance/color-scheme", number(2)}});
    row("contrast", "NoPreference contrast", {{"appearance/contrast", number(1)}});
    row("dark contrast", "Dark contrast", {{"appearance/color-scheme", number(1)}, {"appearance/contrast", number(1)}});
    row("still", "NoPreference still", {{"appearance/reduced-motion", number(1)}});
    row("all", "Light contrast still",
        {{"appearance/color-scheme", number(2)},
         {"appearance/contrast", number(1)},
         {"appearance/reduced-motion", number(1)}});
    row("variants in variants", "Dark contrast",
        {{"appearance/color-scheme", wrapped(wrapped(number(1)))}, {"a11y/high-contrast", wrapped(true)}});

    row("GNOME: nothing special", "NoPreference",
        {{"gnome/color-scheme", text("default")},
         {"gnome/gtk-theme", text("Adwaita")},
         {"gnome/enable-animations", true},
         {"a11y/high-contrast", false}});
    row("GNOME: dark", "Dark", {{"gnome/color-scheme", text("prefer-dark")}});
    row("GNOME: light", "Light",
        {{"gnome/color-scheme", text("prefer-light")}, {"gnome/gtk-theme", text("Adwaita-dark")}});
    row("GNOME: contrast", "NoPreference contrast", {{"a11y/high-contrast", true}});
    row("GNOME: still", "NoPreference still", {{"gnome/enable-animations", false}});
    for (const char *theme : {"Adwaita-dark", "Yaru-blue-dark", "Mint-Y-Dark-Aqua", "Arc_Dark"})
        row(theme, "Dark", {{"gnome/gtk-theme", text(theme)}});
    for (const char *theme : {"Arc-Darker", "Darkness", "Breeze"})
        row(theme, "NoPreference", {{"gnome/gtk-theme", text(theme)}});
    row("HighContrast", "NoPreference contrast", {{"gnome/gtk-theme", text("HighContrast")}});
    row("HighContrastInverse", "Dark contrast", {{"gnome/gtk-theme", text("HighContrastInverse")}});

    row("the portal's own comes first", "Light",
        {{"appearance/color-scheme", number(2)},
         {"gnome/color-scheme", text("prefer-dark")},
         {"gnome/gtk-theme", text("Adwaita-dark")}});
    row("the portal has no preference", "Dark contrast still",
        {{"appearance/color-scheme", number(0)},
         {"appearance/contrast", number(0)},
         {"appearance/reduced-motion", number(0)},
         {"gnome/color-scheme", text("prefer-dark")},
         {"a11y/high-contrast", true},
         {"gnome/enable-animations", false}});
    row("other settings", "NoPreference",
        {{"appearance/accent-color", text("red")},
         {"gnome/cursor-size", 24},
         {"a11y/contrast", number(1)},
         {"org.example/color-scheme", number(1)}});
}

void tst_SystemAppearance::answers()
{
    QFETCH(SettingList, settings);
    WarningLog log;
    Portal portal(*m_bus, settings);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QCOMPARE(told(appearance), nothingKnown);
    QTRY_VERIFY(appearance.isKnown());
    QTEST(told(appearance), "expected");
    QCOMPARE(log.take(), QStringList());
}

void tst_SystemAppearance::firstAnswerIsAnnouncedAtOnce()
{
    Portal portal(*m_bus,
                  {{"appearance/color-scheme", number(1)},
                   {"appearance/contrast", number(1)},
                   {"gnome/enable-animations", false}});
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    SignalLog log(&appearance);
    QTRY_VERIFY(appearance.isKnown());
    const QString all = QStringLiteral("Dark contrast still");
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("known: ") + all, QStringLiteral("scheme: ") + all,
                          QStringLiteral("contrast: ") + all, QStringLiteral("motion: ") + all}));
}

void tst_SystemAppearance::changes_data()
{
    QTest::addColumn<SettingList>("first");
    QTest::addColumn<SettingList>("changes");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const SettingList &first, const SettingList &changes,
                        std::initializer_list<const char *> expected) {
        QStringList lines;
        for (const char *line : expected)
            lines << QString::fromLatin1(line);
        QTest::newRow(name) << first << changes << lines;
    };
    row("one after the other", {},
        {{"appearance/color-scheme", number(1)},
         {"appearance/contrast", number(1)},
         {"appearance/reduced-motion", number(1)},
         {"appearance/color-scheme", number(2)},
         {"appearance/color-scheme", number(0)},
         {"appearance/contrast", number(0)},
         {"appearance/reduced-motion", number(0)}},
        {"scheme: Dark", "contrast: Dark contrast", "motion: Dark contrast still", "scheme: Light contrast still",
         "scheme: NoPreference contrast still", "contrast: NoPreference still", "motion: NoPreference"});
    row("the same again", {{"appearance/color-scheme", number(1)}},
        {{"appearance/color-scheme", number(1)}, {"a11y/high-contrast", false}}, {});
    row("several keys for one wish", {},
        {{"gnome/gtk-theme", text("Adwaita-dark")},
         {"gnome/color-scheme", text("prefer-dark")},
         {"appearance/color-scheme", number(1)},
         {"gnome/gtk-theme", text("Adwaita")},
         {"gnome/color-scheme", text("default")},
         {"appearance/color-scheme", number(0)}},
        {"scheme: Dark", "scheme: NoPreference"});
    row("a theme with two wishes", {}, {{"gnome/gtk-theme", text("HighContrastInverse")}},
        {"scheme: Dark contrast", "contrast: Dark contrast"});
    row("of others", {{"gnome/enable-animations", false}},
        {{"gnome/cursor-size", 24}, {"org.example/contrast", number(1)}, {"gnome/enable-animations", true}},
        {"motion: NoPreference"});
}

void tst_SystemAppearance::changes()
{
    QFETCH(SettingList, first);
    QFETCH(SettingList, changes);
    QFETCH(QStringList, expected);
    Portal portal(*m_bus, first);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_VERIFY(appearance.isKnown());
    SignalLog log(&appearance);
    for (const Setting &setting : changes)
        portal.change(setting.name, setting.value);
    QCOMPARE(portal.calls(), 1);
    QVERIFY(settle(portal));
    QCOMPARE(log.take(), expected);
}

void tst_SystemAppearance::unusableAnswers_data()
{
    QTest::addColumn<QVariant>("answer"); // none is an error
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("warning");
    const QString refused = QStringLiteral("WSystemAppearance: ignored what the desktop's portal sent: ");
    QTest::newRow("error") << QVariant() << nothingKnown << QString();
    QTest::newRow("text") << text("dark") << nothingKnown << refused + QStringLiteral("an answer of type \"s\"");
    QTest::newRow("one name space") << QVariant(QVariantMap {{QStringLiteral("color-scheme"), 1u}}) << nothingKnown
                                    << refused + QStringLiteral("an answer of type \"a{sv}\"");
    const auto row = [refused](const char *name, const char *warning, const Setting &bad) {
        const SettingList list {bad, {"appearance/contrast", number(1)}};
        QTest::newRow(name) << QVariant::fromValue(toSettings(list)) << QStringLiteral("NoPreference contrast")
                            << refused + QString::fromLatin1(warning);
    };
    row("scheme out of range", "org.freedesktop.appearance color-scheme = QVariant(uint, 3)",
        {"appearance/color-scheme", number(3)});
    row("scheme of another type", "org.freedesktop.appearance color-scheme = QVariant(int, 1)",
        {"appearance/color-scheme", 1});
    row("scheme as text", "org.freedesktop.appearance color-scheme = QVariant(QString, \"1\")",
        {"appearance/color-scheme", text("1")});
    row("motion out of range", "org.freedesktop.appearance reduced-motion = QVariant(uint, 2)",
        {"appearance/reduced-motion", number(2)});
    row("motion of another type", "org.freedesktop.appearance reduced-motion = QVariant(bool, true)",
        {"appearance/reduced-motion", true});
    row("GNOME: scheme that nobody knows", "org.gnome.desktop.interface color-scheme = QVariant(QString, \"dark\")",
        {"gnome/color-scheme", text("dark")});
    row("GNOME: scheme of another type", "org.gnome.desktop.interface color-scheme = QVariant(uint, 1)",
        {"gnome/color-scheme", number(1)});
    row("GNOME: theme of another type", "org.gnome.desktop.interface gtk-theme = QVariant(QStringList, (\"a-dark\"))",
        {"gnome/gtk-theme", QStringList(QStringLiteral("a-dark"))});
    row("GNOME: animations of another type",
        "org.gnome.desktop.interface enable-animations = QVariant(QString, \"false\")",
        {"gnome/enable-animations", text("false")});
    row("GNOME: contrast of another type", "org.gnome.desktop.a11y.interface high-contrast = QVariant(uint, 1)",
        {"a11y/high-contrast", number(1)});
}

void tst_SystemAppearance::unusableAnswers()
{
    QFETCH(QVariant, answer);
    QFETCH(QString, expected);
    QFETCH(QString, warning);
    WarningLog log;
    Portal portal(*m_bus, {}, answer.isValid() ? Portal::Answering : Portal::Refusing);
    portal.setAnswer(answer);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_COMPARE(portal.calls(), 1);
    // It asks again, and complains no more.
    portal.leave();
    QVERIFY(portal.appear());
    QTRY_COMPARE(portal.calls(), 2);
    QVERIFY(settle(portal));
    QCOMPARE(told(appearance), expected);
    QCOMPARE(log.take(), warning.isEmpty() ? QStringList() : QStringList(warning));

    // The next answer may be better.
    portal.setAnswer(QVariant::fromValue(toSettings({{"appearance/color-scheme", number(2)}})));
    portal.answer();
    QTRY_COMPARE(told(appearance), QStringLiteral("Light"));
}

void tst_SystemAppearance::unusableChanges_data()
{
    QTest::addColumn<QVariantList>("arguments");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const QVariant &value, const char *warning) {
        QTest::newRow(name) << QVariantList {QStringLiteral("org.freedesktop.appearance"),
                                             QStringLiteral("color-scheme"), wrapped(value)}
                            << QStringLiteral("org.freedesktop.appearance color-scheme = ") + QLatin1String(warning);
    };
    row("out of range", 3u, "QVariant(uint, 3)");
    row("another type", text("light"), "QVariant(QString, \"light\")");
    QTest::newRow("nothing") << QVariantList() << QStringLiteral("a change of type \"\"");
    QTest::newRow("no variant") << QVariantList {QStringLiteral("org.freedesktop.appearance"),
                                                 QStringLiteral("color-scheme"), 2u}
                                << QStringLiteral("a change of type \"ssu\"");
}

void tst_SystemAppearance::unusableChanges()
{
    QFETCH(QVariantList, arguments);
    QFETCH(QString, warning);
    WarningLog log;
    Portal portal(*m_bus, {{"appearance/color-scheme", number(1)}});
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_VERIFY(appearance.isKnown());
    SignalLog signalLog(&appearance);
    for (int i = 0; i < 2; ++i)
        portal.send(QDBusMessage::createSignal(portalPath, settingsInterface, QStringLiteral("SettingChanged")),
                    arguments);
    portal.change("appearance/contrast", number(1));
    QVERIFY(settle(portal));
    QCOMPARE(signalLog.take(), QStringList(QStringLiteral("contrast: Dark contrast")));
    QCOMPARE(log.take(),
             QStringList(QStringLiteral("WSystemAppearance: ignored what the desktop's portal sent: ") + warning));
}

void tst_SystemAppearance::strangersHaveNoSay()
{
    Portal portal(*m_bus, {{"appearance/color-scheme", number(1)}});
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_VERIFY(appearance.isKnown());
    SignalLog log(&appearance);

    Portal stranger(*m_bus);
    const QVariantList light {QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                              wrapped(2u)};
    const QString member = QStringLiteral("SettingChanged");
    stranger.send(QDBusMessage::createSignal(portalPath, settingsInterface, member), light);
    stranger.send(QDBusMessage::createTargetedSignal(portal.caller(), portalPath, settingsInterface, member), light);
    stranger.send(QDBusMessage::createTargetedSignal(portal.caller(), QStringLiteral("/org/freedesktop/DBus"),
                                                     QStringLiteral("org.freedesktop.DBus"),
                                                     QStringLiteral("NameOwnerChanged")),
                  {portalName, QString(), QStringLiteral(":1.0")});
    stranger.leave(); // waits for the bus
    QVERIFY(settle(portal));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(portal.calls(), 2);
}

/// An object that waited for the answer would wait in vain, because the portal lives in this thread.
void tst_SystemAppearance::lateAnswer()
{
    Portal portal(*m_bus, {{"appearance/color-scheme", number(1)}}, Portal::Waiting);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QCOMPARE(portal.calls(), 0);
    QTRY_COMPARE(portal.calls(), 1);
    portal.change("appearance/color-scheme", number(2)); // the answer is newer
    QCOMPARE(told(appearance), nothingKnown);
    SignalLog log(&appearance);
    portal.answer();
    QTRY_VERIFY(appearance.isKnown());
    QCOMPARE(log.take(), QStringList({QStringLiteral("known: Dark"), QStringLiteral("scheme: Dark")}));

    // Asked twice, the second answer counts, also if it comes first.
    portal.leave();
    QVERIFY(portal.appear());
    QTRY_COMPARE(portal.calls(), 2);
    QVERIFY(settle(portal));
    portal.setAnswer(QVariant::fromValue(toSettings({{"appearance/color-scheme", number(2)}})));
    portal.answer();
    QTRY_COMPARE(told(appearance), QStringLiteral("Light"));
    portal.setAnswer(QVariant::fromValue(toSettings({})));
    portal.answer(1);
    QVERIFY(settle(portal));
    QCOMPARE(told(appearance), QStringLiteral("Light"));
}

/// A portal that did not answer is asked again once it sends something, and not before.
void tst_SystemAppearance::signOfLife()
{
    Portal portal(*m_bus, {{"appearance/color-scheme", number(1)}}, Portal::Refusing);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_COMPARE(portal.calls(), 1);
    portal.setManner(Portal::Waiting);
    portal.change("appearance/contrast", number(1));
    portal.change("appearance/contrast", number(0));
    QTRY_COMPARE(portal.calls(), 2);
    portal.answer();
    QTRY_COMPARE(told(appearance), QStringLiteral("Dark"));
    QVERIFY(settle(portal));
    QCOMPARE(portal.calls(), 3);
}

void tst_SystemAppearance::portalComesAndGoes()
{
    WarningLog log;
    const int starts = m_bus->portalStarts();
    WSystemAppearance appearance;
    QTRY_COMPARE(m_bus->portalStarts(), starts + 1);
    QCOMPARE(told(appearance), nothingKnown);
    QString caller;
    {
        Portal portal(*m_bus, {{"appearance/color-scheme", number(1)}, {"appearance/contrast", number(1)}});
        QVERIFY(portal.appear());
        QTRY_COMPARE(told(appearance), QStringLiteral("Dark contrast"));
        caller = portal.caller();
    }
    // Whatever makes it ask now, no portal is started for that.
    const EndedCalls calls(appearance);
    Portal stranger(*m_bus);
    stranger.send(
        QDBusMessage::createTargetedSignal(caller, portalPath, settingsInterface, QStringLiteral("SettingChanged")),
        {});
    QTRY_COMPARE(calls.ended(), 1);
    // The old wishes stay until there are new ones, which replace them all.
    SignalLog signalLog(&appearance);
    Portal portal(*m_bus, {{"appearance/color-scheme", number(2)}}, Portal::Waiting);
    QVERIFY(portal.appear());
    QTRY_COMPARE(portal.calls(), 1);
    QCOMPARE(signalLog.take(), QStringList());
    portal.answer();
    QTRY_COMPARE(told(appearance), QStringLiteral("Light"));
    QCOMPARE(signalLog.take(), QStringList({QStringLiteral("scheme: Light"), QStringLiteral("contrast: Light")}));
    portal.change("appearance/color-scheme", number(0));
    QTRY_COMPARE(told(appearance), QStringLiteral("NoPreference"));
    QCOMPARE(m_bus->portalStarts(), starts + 1);
    QCOMPARE(log.take(), QStringList());
}

void tst_SystemAppearance::endsWhileAsking_data()
{
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("at once") << false;
    QTest::newRow("before the answer") << true;
}

void tst_SystemAppearance::endsWhileAsking()
{
    QFETCH(bool, isAsked);
    Portal portal(*m_bus, {{"appearance/color-scheme", number(1)}}, Portal::Waiting);
    QVERIFY(portal.appear());
    auto appearance = std::make_unique<WSystemAppearance>();
    if (isAsked)
        QTRY_COMPARE(portal.calls(), 1);
    appearance.reset();
    if (isAsked)
        portal.answer();
    portal.leave(); // waits for the bus
    QCoreApplication::processEvents();
}

void tst_SystemAppearance::endsInSlot_data()
{
    QTest::addColumn<Arm>("arm");
    const auto on = [](auto signal) {
        return Arm([signal](const QPointer<WSystemAppearance> &appearance) {
            connect(appearance, signal, appearance, [appearance] { delete appearance; });
        });
    };
    QTest::addColumn<bool>("isFirst");
    QTest::newRow("known") << on(&WSystemAppearance::knownChanged) << true;
    QTest::newRow("scheme") << on(&WSystemAppearance::colorSchemeChanged) << true;
    QTest::newRow("contrast") << on(&WSystemAppearance::highContrastChanged) << true;
    QTest::newRow("motion") << on(&WSystemAppearance::reducedMotionChanged) << true;
    QTest::newRow("change of scheme") << on(&WSystemAppearance::colorSchemeChanged) << false;
}

void tst_SystemAppearance::endsInSlot()
{
    QFETCH(Arm, arm);
    QFETCH(bool, isFirst);
    const SettingList all {{"gnome/gtk-theme", text("HighContrastInverse")}, {"gnome/enable-animations", false}};
    Portal portal(*m_bus, isFirst ? all : SettingList());
    QVERIFY(portal.appear());
    QPointer<WSystemAppearance> appearance(new WSystemAppearance);
    arm(appearance);
    if (!isFirst) {
        QTRY_VERIFY(appearance->isKnown());
        for (const Setting &setting : all)
            portal.change(setting.name, setting.value);
    }
    QTRY_VERIFY(!appearance);
}

void tst_SystemAppearance::severalAtOnce()
{
    Portal portal(*m_bus);
    QVERIFY(portal.appear());
    WSystemAppearance stays;
    {
        WSystemAppearance goes;
        QTRY_VERIFY(stays.isKnown() && goes.isKnown());
    }
    portal.change("appearance/color-scheme", number(1));
    QTRY_COMPARE(told(stays), QStringLiteral("Dark"));
}

void tst_SystemAppearance::waysToTheBus_data()
{
    QTest::addColumn<QByteArray>("address"); // none is the socket in the folder
    QTest::newRow("runtime folder") << QByteArray();
    QTest::newRow("second address") << "unix:path=/nonexistent/bus;" + m_bus->address();
    QTest::newRow("behind one that is not local") << "tcp:host=127.0.0.1,port=1;" + m_bus->address();
}

void tst_SystemAppearance::waysToTheBus()
{
    QFETCH(QByteArray, address);
    QTemporaryDir runtime(QDir::tempPath() + QStringLiteral("/run time;~,=%20-XXXXXX"));
    QVERIFY(QFile::link(m_bus->socket(), runtime.filePath(QStringLiteral("bus"))));
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    Portal portal(*m_bus);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_VERIFY(appearance.isKnown());
}

void tst_SystemAppearance::noBus_data()
{
    QTest::addColumn<QByteArray>("address"); // "PORT" is one that somebody listens to
    QTest::newRow("no address") << QByteArray();
    for (const char *address : {"nonsense", ";;", "unix:", "unix:path=", "unix:path=/nonexistent/bus", "unix:path=%",
                                "unixexec:path=/bin/false", "tcp:host=127.0.0.1,port=PORT", "autolaunch:"})
        QTest::newRow(address) << QByteArray(address);
}

void tst_SystemAppearance::noBus()
{
    QFETCH(QByteArray, address);
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
    sockaddr_in local {};
    local.sin_family = AF_INET;
    local.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof local;
    QCOMPARE(::bind(listener, reinterpret_cast<sockaddr *>(&local), size), 0);
    QCOMPARE(::listen(listener, 1), 0);
    QCOMPARE(::getsockname(listener, reinterpret_cast<sockaddr *>(&local), &size), 0);
    QTemporaryDir runtime;
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.replace("PORT", QByteArray::number(ntohs(local.sin_port))));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));

    WarningLog log;
    WSystemAppearance appearance;
    SignalLog signalLog(&appearance);
    QCoreApplication::processEvents();
    QCOMPARE(told(appearance), nothingKnown);
    QCOMPARE(signalLog.take(), QStringList());
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(::accept(listener, nullptr, nullptr), -1); // connecting there could have taken its time
    ::close(listener);
}

/// A bus that takes the connection and says nothing.
void tst_SystemAppearance::silentBus()
{
    QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("bus")));
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    QVERIFY(uint(path.size()) < sizeof address.sun_path);
    std::copy(path.begin(), path.end(), address.sun_path);
    const int bus = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(bus, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    QCOMPARE(::listen(bus, 1), 0);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + path);

    WarningLog log;
    auto appearance = std::make_unique<WSystemAppearance>();
    const int client = ::accept(bus, nullptr, nullptr);
    char bytes[1024];
    const auto receive = [&](int flags = 0) {
        return ::recv(client, bytes, sizeof bytes, MSG_DONTWAIT | flags);
    };
    QTRY_VERIFY(receive(MSG_PEEK) > 0); // it introduces itself
    QVERIFY(receive() > 0);
    QCOMPARE(receive(), ssize_t(-1)); // and goes on waiting: did it do so in its constructor, it would have given up
    QCOMPARE(told(*appearance), nothingKnown);
    appearance.reset();
    QTRY_COMPARE(receive(), ssize_t(0)); // it hung up
    QCOMPARE(log.take(), QStringList());
    ::close(client);
    ::close(bus);
}

void tst_SystemAppearance::busDies_data()
{
    QTest::addColumn<Portal::Manner>("manner");
    QTest::addColumn<QString>("expected");
    QTest::newRow("after the answer") << Portal::Answering << QStringLiteral("Dark contrast");
    QTest::newRow("before the answer") << Portal::Waiting << nothingKnown;
}

void tst_SystemAppearance::busDies()
{
    QFETCH(Portal::Manner, manner);
    QFETCH(QString, expected);
    WarningLog log;
    Bus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
    Portal portal(bus, {{"appearance/color-scheme", number(1)}, {"appearance/contrast", number(1)}}, manner);
    QVERIFY(portal.appear());
    WSystemAppearance appearance;
    QTRY_COMPARE(portal.calls(), 1);
    QTRY_COMPARE(told(appearance), expected);
    SignalLog signalLog(&appearance);
    bus.kill();
    QTRY_VERIFY(!portal.isConnected());
    QCoreApplication::processEvents();
    QCOMPARE(told(appearance), expected);
    QCOMPARE(signalLog.take(), QStringList());
    QCOMPARE(log.take(), QStringList());
}

W_TEST_MAIN(tst_SystemAppearance)
#include "tst_system_appearance.moc"

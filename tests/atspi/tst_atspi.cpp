#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>
#include <QtTest>

namespace {

const auto Registry = QStringLiteral("org.a11y.atspi.Registry");
const auto Accessible = QStringLiteral("org.a11y.atspi.Accessible");
const auto Action = QStringLiteral("org.a11y.atspi.Action");
const auto ObjectEvent = QStringLiteral("org.a11y.atspi.Event.Object");

// As numbered by the protocol.
enum State { Checked = 4, Enabled = 8, Focusable = 11, Sensitive = 24, Showing = 25, ReadOnly = 43 };

QDBusConnection bus()
{
    return QDBusConnection(QStringLiteral("a11y"));
}

QDBusMessage ask(const QString &service, const QString &path, const QString &interface, const QString &method,
                 const QVariantList &arguments = {})
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
    message.setArguments(arguments);
    return bus().call(message, QDBus::Block, 5000);
}

} // namespace

/// What a program tells of one element.
struct Node
{
    QString service;
    QDBusObjectPath path;

    bool isValid() const { return !service.isEmpty(); }
    bool operator==(const Node &o) const { return service == o.service && path == o.path; }

    QDBusMessage ask(const QString &interface, const QString &method, const QVariantList &arguments = {}) const
    {
        return !isValid() ? QDBusMessage() : ::ask(service, path.path(), interface, method, arguments);
    }
    QVariant property(const QString &interface, const char *name) const
    {
        const QDBusMessage answer = ask(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                                        {interface, QString::fromLatin1(name)});
        return answer.arguments().value(0).value<QDBusVariant>().variant();
    }
    QString name() const { return property(Accessible, "Name").toString(); }
    QString description() const { return property(Accessible, "Description").toString(); }
    QString role() const { return ask(Accessible, QStringLiteral("GetRoleName")).arguments().value(0).toString(); }
    Node parent() const { return qdbus_cast<Node>(property(Accessible, "Parent")); }
    QList<Node> children() const
    {
        return qdbus_cast<QList<Node>>(ask(Accessible, QStringLiteral("GetChildren")).arguments().value(0));
    }
    bool is(State state) const
    {
        const auto words = qdbus_cast<QList<uint>>(ask(Accessible, QStringLiteral("GetState")).arguments().value(0));
        return words.value(state / 32) & (1u << (state % 32));
    }
    QStringList actions() const
    {
        QStringList names;
        const int count = property(Action, "NActions").toInt();
        for (int i = 0; i < count; ++i)
            names << ask(Action, QStringLiteral("GetName"), {i}).arguments().value(0).toString();
        return names;
    }
    bool doAction(const QString &action) const
    {
        const int index = actions().indexOf(action);
        if (index < 0)
            return false;
        const QDBusMessage answer = ask(Action, QStringLiteral("DoAction"), {index});
        return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
    }
};
Q_DECLARE_METATYPE(Node)
Q_DECLARE_METATYPE(State)
Q_DECLARE_METATYPE(QVector<State>)

QDBusArgument &operator<<(QDBusArgument &argument, const Node &node)
{
    argument.beginStructure();
    argument << node.service << node.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Node &node)
{
    argument.beginStructure();
    argument >> node.service >> node.path;
    argument.endStructure();
    return argument;
}

namespace {

Node find(const Node &from, const QString &name)
{
    const QList<Node> children = from.children();
    for (const Node &child : children) {
        const Node found = child.name() == name ? child : find(child, name);
        if (found.isValid())
            return found;
    }
    return {};
}

/// An element of the program by its name.
Node element(const char *name)
{
    const Node desktop {Registry, QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};
    const QList<Node> programs = desktop.children();
    for (const Node &program : programs) {
        if (program.name() == QLatin1String("elements"))
            return find(program, QString::fromLatin1(name));
    }
    return {};
}

} // namespace

/// A screen reader of a few lines asks the program beside it, over the bus on which screen readers ask.
class tst_AtSpi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void tree_data();
    void tree();
    void press();
    void checksAreTold_data();
    void checksAreTold();
    void badgeIsTold();
    void menuOpensWithoutWaiting();
    void quits();

public Q_SLOTS:
    void onEvent(const QDBusMessage &message);

private:
    struct Event
    {
        QString path;
        QString member;
        QString detail;
        int value;

        bool operator==(const Event &o) const
        {
            return path == o.path && member == o.member && detail == o.detail && value == o.value;
        }
    };

    bool isTold(const Node &node, const char *member, const char *detail, int value = 0) const;

    QProcess m_program;
    QVector<Event> m_events;
};

void tst_AtSpi::initTestCase()
{
    qDBusRegisterMetaType<Node>();
    qDBusRegisterMetaType<QList<Node>>();
    qDBusRegisterMetaType<QList<uint>>();

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    m_program.setProcessEnvironment(environment);
    m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_program.start(QStringLiteral(ELEMENTS_PROGRAM), QStringList());
    QVERIFY2(m_program.waitForStarted(), qPrintable(m_program.errorString()));
    QVERIFY(m_program.waitForReadyRead(20000));
    QCOMPARE(m_program.readLine().trimmed(), QByteArray("ready"));

    // This starts the bus, after the program: one that begins beside a bus loses its connection now and then, in Qt.
    const QDBusMessage address = QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    QCOMPARE(address.errorMessage(), QString());
    QDBusConnection::connectToBus(address.arguments().value(0).toString(), QStringLiteral("a11y"));
    QVERIFY2(bus().isConnected(), qPrintable(bus().lastError().message()));
    QTRY_VERIFY_WITH_TIMEOUT(element("Quit").is(Showing), 20000);
    QVERIFY(bus().connect(QString(), QString(), ObjectEvent, QString(), this, SLOT(onEvent(QDBusMessage))));
    // Programs announce only what somebody has asked for. They know of it before they answer the next question.
    for (const char *event : {"object:state-changed", "object:property-change"}) {
        const QDBusMessage answer =
            ask(Registry, QStringLiteral("/org/a11y/atspi/registry"), Registry, QStringLiteral("RegisterEvent"),
                {QString::fromLatin1(event), QStringList(), QString()});
        QCOMPARE(answer.errorMessage(), QString());
    }
}

void tst_AtSpi::cleanupTestCase()
{
    if (m_program.state() != QProcess::NotRunning) {
        m_program.kill();
        m_program.waitForFinished();
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("a11y"));
}

void tst_AtSpi::onEvent(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    m_events << Event {message.path(), message.member(), arguments.value(0).toString(), arguments.value(1).toInt()};
}

bool tst_AtSpi::isTold(const Node &node, const char *member, const char *detail, int value) const
{
    return m_events.contains({node.path.path(), QString::fromLatin1(member), QString::fromLatin1(detail), value});
}

void tst_AtSpi::tree_data()
{
    using States = QVector<State>;
    QTest::addColumn<QString>("role");
    QTest::addColumn<States>("states");
    QTest::addColumn<States>("otherStates");
    QTest::addColumn<QString>("actions");
    const States answers {Enabled, Sensitive, Showing, Focusable};
    const States no {Checked, ReadOnly};
    QTest::newRow("Send") << "push button" << answers << no << "Press SetFocus";
    QTest::newRow("Chats") << "push button" << answers << no << "Press SetFocus";
    QTest::newRow("Captions") << "push button" << answers << no << "Press Toggle SetFocus";
    QTest::newRow("Unread") << "check box" << answers << no << "Press Toggle SetFocus";
    QTest::newRow("Microphone") << "push button" << States {Showing} << States {Enabled, Sensitive} << "";
    QTest::newRow("More") << "push button" << answers << no << "Press SetFocus";
    QTest::newRow("Presence") << "button menu" << answers << no << "ShowMenu SetFocus";
    QTest::newRow("Nothing sent") << "label" << States {Enabled, Showing, ReadOnly} << States {Focusable} << "";
}

void tst_AtSpi::tree()
{
    const Node node = element(QTest::currentDataTag());
    QVERIFY(node.isValid());
    QTEST(node.role(), "role");
    QFETCH(QVector<State>, states);
    for (const State state : qAsConst(states))
        QVERIFY2(node.is(state), QByteArray::number(state).constData());
    QFETCH(QVector<State>, otherStates);
    for (const State state : qAsConst(otherStates))
        QVERIFY2(!node.is(state), QByteArray::number(state).constData());
    QTEST(node.actions().join(QLatin1Char(' ')), "actions");
    const Node window = node.parent().parent();
    QCOMPARE(window.name(), QStringLiteral("Elements"));
    QCOMPARE(window.role(), QStringLiteral("frame"));
    QVERIFY(node.parent().children().contains(node));
    QCOMPARE(window.parent().name(), QStringLiteral("elements"));
    QCOMPARE(window.parent().role(), QStringLiteral("application"));
}

void tst_AtSpi::press()
{
    const Node status = element("Nothing sent");
    QVERIFY(element("Send").doAction(QStringLiteral("Press")));
    QTRY_VERIFY(isTold(status, "PropertyChange", "accessible-name"));
    QCOMPARE(status.name(), QStringLiteral("Sent"));
}

void tst_AtSpi::checksAreTold_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("Captions") << "Press";
    QTest::newRow("Unread") << "Toggle";
}

void tst_AtSpi::checksAreTold()
{
    QFETCH(QString, action);
    const Node node = element(QTest::currentDataTag());
    for (const bool isChecked : {true, false}) {
        m_events.clear();
        QVERIFY(node.doAction(action));
        QTRY_VERIFY(isTold(node, "StateChanged", "checked", isChecked));
        QCOMPARE(node.is(Checked), isChecked);
    }
}

void tst_AtSpi::badgeIsTold()
{
    const Node chats = element("Chats");
    QCOMPARE(chats.description(), QString());
    QVERIFY(element("More").doAction(QStringLiteral("Press")));
    QTRY_VERIFY(isTold(chats, "PropertyChange", "accessible-description"));
    QCOMPARE(chats.description(), QStringLiteral("New activity"));
}

void tst_AtSpi::menuOpensWithoutWaiting()
{
    QVERIFY(element("Presence").doAction(QStringLiteral("ShowMenu")));
    QTRY_VERIFY(element("Choose").isValid());
}

// Under a sanitizer it says then what it has lost.
void tst_AtSpi::quits()
{
    QVERIFY(element("Quit").doAction(QStringLiteral("Press")));
    QTRY_COMPARE_WITH_TIMEOUT(m_program.state(), QProcess::NotRunning, 20000);
    QCOMPARE(m_program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_AtSpi)
#include "tst_atspi.moc"

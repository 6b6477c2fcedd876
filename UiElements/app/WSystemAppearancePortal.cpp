#include <UiElements/app/WSystemAppearancePortal_p.h>

#include <QAtomicInt>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFileInfo>
#include <QUrl>

namespace {

// While a session starts a portal may take half a minute. Nobody waits meanwhile.
constexpr int timeLimit = 60000; // ms

const QLatin1String busService("org.freedesktop.DBus");
const QLatin1String busPath("/org/freedesktop/DBus");
const QLatin1String portalService("org.freedesktop.portal.Desktop");
const QLatin1String portalPath("/org/freedesktop/portal/desktop");
const QLatin1String settingsInterface("org.freedesktop.portal.Settings");

QString uniqueConnectionName()
{
    static QAtomicInt count;
    return QStringLiteral("WSystemAppearance-%1").arg(count.fetchAndAddRelaxed(1));
}

/// Empty without a bus on a local socket.
QString busAddress()
{
    const QString local = QStringLiteral("unix:");
    const QString given = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!given.isEmpty()) {
        const QStringList addresses = given.split(QLatin1Char(';')); // ways to one bus
        QStringList usable;
        for (const QString &address : addresses) {
            if (address.startsWith(local))
                usable << address;
        }
        return usable.join(QLatin1Char(';'));
    }
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String("/bus");
    if (!QFileInfo::exists(socket))
        return {};
    return local + QLatin1String("path=") + QString::fromLatin1(QUrl::toPercentEncoding(socket, "/", "~"));
}

/// Portals wrap what is a variant already into another one.
QVariant unwrapped(QVariant value)
{
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

} // namespace

WSystemAppearancePortal::WSystemAppearancePortal(QObject *parent)
    : QObject(parent)
    , m_bus(QString())
{
    const QString address = busAddress();
    if (address.isEmpty())
        return;

    // QDBusConnection::sessionBus() waits for the bus to greet, without a limit. A connection to a peer waits for
    // nothing; what makes the peer a bus, the greeting and the match rules, is then up to us. All of it is sent at
    // once: the bus works off one connection in order.
    m_bus = QDBusConnection::connectToPeer(address, uniqueConnectionName());
    if (!m_bus.isConnected())
        return;
    m_bus.connect(QString(), portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(onSettingChanged(QDBusMessage)));
    m_bus.connect(QString(), busPath, busService, QStringLiteral("NameOwnerChanged"), this,
                  SLOT(onNameOwnerChanged(QDBusMessage)));
    callBus(QStringLiteral("Hello"), {});
    callBus(QStringLiteral("AddMatch"),
            {QStringLiteral("type='signal',sender='%1',interface='%1',member='NameOwnerChanged',arg0='%2'")
                 .arg(busService, portalService)});
    callBus(QStringLiteral("AddMatch"),
            {QStringLiteral("type='signal',sender='%1',interface='%2',member='SettingChanged',path='%3'")
                 .arg(portalService, settingsInterface, portalPath)});
    ask(Activation::Wanted);
}

WSystemAppearancePortal::~WSystemAppearancePortal()
{
    // Unfinished calls end before their connection, which Qt keeps by name.
    qDeleteAll(findChildren<QDBusPendingCallWatcher *>());
    if (!m_bus.name().isEmpty())
        QDBusConnection::disconnectFromPeer(m_bus.name());
}

void WSystemAppearancePortal::callBus(const QString &method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(busService, busPath, busService, method);
    message.setArguments(arguments);
    m_bus.asyncCall(message, timeLimit);
}

void WSystemAppearancePortal::ask(Activation activation)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("ReadAll"));
    message << QStringList {appearanceSpace, interfaceSpace, accessibilitySpace};
    message.setAutoStartService(activation == Activation::Wanted);
    m_call = new QDBusPendingCallWatcher(m_bus.asyncCall(message, timeLimit), this);
    connect(m_call, &QDBusPendingCallWatcher::finished, this, &WSystemAppearancePortal::onAnswer);
}

void WSystemAppearancePortal::onAnswer(QDBusPendingCallWatcher *call)
{
    call->deleteLater();
    if (call != m_call)
        return;
    m_call = nullptr;

    // No portal, one that knows no settings, or one that takes too long. It is asked again when it gives a sign of
    // life.
    const QDBusMessage reply = call->reply();
    if (reply.type() != QDBusMessage::ReplyMessage)
        return;
    if (reply.signature() != QLatin1String("a{sa{sv}}")) {
        Q_EMIT misunderstood(QStringLiteral("an answer of type \"%1\"").arg(reply.signature()));
        return;
    }
    m_owner = reply.service();
    Settings settings;
    qvariant_cast<QDBusArgument>(reply.arguments().at(0)) >> settings;
    for (QVariantMap &space : settings) {
        for (QVariant &value : space)
            value = unwrapped(value);
    }
    Q_EMIT answered(settings);
}

void WSystemAppearancePortal::onSettingChanged(const QDBusMessage &message)
{
    if (m_owner.isEmpty() && !m_call)
        ask(Activation::Unwanted);
    // Until it has answered the portal's answer will hold the change; others have no say.
    if (message.service() != m_owner)
        return;
    if (message.signature() != QLatin1String("ssv")) {
        Q_EMIT misunderstood(QStringLiteral("a change of type \"%1\"").arg(message.signature()));
        return;
    }
    const QVariantList arguments = message.arguments();
    Q_EMIT changed(arguments.at(0).toString(), arguments.at(1).toString(), unwrapped(arguments.at(2)));
}

void WSystemAppearancePortal::onNameOwnerChanged(const QDBusMessage &message)
{
    if (message.service() != busService || message.signature() != QLatin1String("sss"))
        return;
    const QVariantList arguments = message.arguments();
    if (arguments.at(0).toString() != portalService)
        return;
    m_owner.clear();
    if (!arguments.at(2).toString().isEmpty())
        ask(Activation::Unwanted);
}

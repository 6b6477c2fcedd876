#include "BusMonitor.h"

#include <UiElements/app/WAppSignals.h>
#include <UiElements/app/WGlobalSignalListener.h>

#include <QLocale>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QPointer>
#include <QRect>
#include <QWidget>

namespace {

constexpr int LongestText = 200;

QString quoted(QString text)
{
    if (text.size() > LongestText)
        text = text.left(LongestText) + QChar(0x2026);
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n")).replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString textOf(const QPointF &point)
{
    return QStringLiteral("%1, %2").arg(point.x()).arg(point.y());
}

QString textOf(const QRectF &rect)
{
    return QStringLiteral("%1, %2 \u00d7 %3").arg(textOf(rect.topLeft())).arg(rect.width()).arg(rect.height());
}

QString textOf(const QObject *object)
{
    if (!object)
        return QStringLiteral("null");
    const QString name = QString::fromLatin1(object->metaObject()->className());
    return object->objectName().isEmpty() ? name : name + QLatin1Char(' ') + quoted(object->objectName());
}

QString textOfEnumerator(int type, int value)
{
    const QByteArray name(QMetaType::typeName(type));
    const QByteArray ownName = name.mid(name.lastIndexOf(':') + 1);
    if (const QMetaObject *scope = QMetaType::metaObjectForType(type)) {
        const QMetaEnum names = scope->enumerator(scope->indexOfEnumerator(ownName.constData()));
        if (const char *key = names.valueToKey(value))
            return QString::fromLatin1(key);
    }
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(value);
}

template <typename T>
const T &as(const void *value)
{
    return *static_cast<const T *>(value);
}

// What no case knows is a type of the host, of which the library knows nothing but the name.
QString textOf(int type, const void *value)
{
    switch (type) {
    case QMetaType::QString: return quoted(as<QString>(value));
    case QMetaType::Bool: return as<bool>(value) ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QPoint: return QStringLiteral("QPoint(%1)").arg(textOf(QPointF(as<QPoint>(value))));
    case QMetaType::QPointF: return QStringLiteral("QPointF(%1)").arg(textOf(as<QPointF>(value)));
    case QMetaType::QRect: return QStringLiteral("QRect(%1)").arg(textOf(QRectF(as<QRect>(value))));
    case QMetaType::QRectF: return QStringLiteral("QRectF(%1)").arg(textOf(as<QRectF>(value)));
    case QMetaType::QVariant: {
        const auto &inner = as<QVariant>(value);
        return inner.isValid() ? textOf(inner.userType(), inner.constData()) : QStringLiteral("QVariant()");
    }
    case QMetaType::QVariantMap: {
        QStringList entries;
        const auto &map = as<QVariantMap>(value);
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            entries << quoted(entry.key()) + QLatin1String(": ") + textOf(QMetaType::QVariant, &entry.value());
        return QLatin1Char('{') + entries.join(QLatin1String(", ")) + QLatin1Char('}');
    }
    default: break;
    }
    if (type == qMetaTypeId<std::string>())
        return quoted(QString::fromStdString(as<std::string>(value)));
    if (type == qMetaTypeId<std::vector<std::string>>()) {
        QStringList texts;
        for (const std::string &text : as<std::vector<std::string>>(value))
            texts << quoted(QString::fromStdString(text));
        return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
    }
    if (type == qMetaTypeId<QPointer<QWidget>>())
        return textOf(as<QPointer<QWidget>>(value).data());
    const QMetaType::TypeFlags flags = QMetaType::typeFlags(type);
    if (flags & QMetaType::PointerToQObject)
        return textOf(as<QObject *>(value));
    if ((flags & QMetaType::IsEnumeration) && QMetaType::sizeOf(type) == int(sizeof(int)))
        return textOfEnumerator(type, as<int>(value));
    const QVariant variant(type, value);
    return type < QMetaType::User && variant.canConvert<QString>() ? variant.toString()
                                                                   : QString::fromLatin1(QMetaType::typeName(type));
}

QString argumentsOf(const QMetaMethod &signal, void **arguments)
{
    QStringList texts;
    const QList<QByteArray> types = signal.parameterTypes();
    for (int i = 0; i < types.size(); ++i) {
        QByteArray name = types.at(i);
        if (name.endsWith('&')) // what the receiver may change
            name.chop(1);
        const int type = QMetaType::type(name);
        texts << (type == QMetaType::UnknownType ? QString::fromLatin1(name) : textOf(type, arguments[i + 1]));
    }
    return texts.join(QLatin1String(", "));
}

} // namespace

/// Receives every signal of one bus in a method with the signal's own number, which no meta object knows.
class BusMonitor::Listener : public QObject
{
public:
    Listener(QObject *bus, BusMonitor *monitor)
        : m_bus(bus->metaObject())
        , m_monitor(monitor)
    {
        for (int i = m_bus->methodOffset(); i < m_bus->methodCount(); ++i) {
            if (m_bus->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(bus, i, this, QObject::staticMetaObject.methodCount() + i);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QMetaMethod signal = m_bus->method(id);
        m_monitor->add({QTime::currentTime(), QString::fromLatin1(signal.name()), argumentsOf(signal, arguments)});
        return -1;
    }

private:
    const QMetaObject *const m_bus;
    BusMonitor *const m_monitor;
};

BusMonitor::BusMonitor(QObject *parent)
    : QAbstractListModel(parent)
    , m_listeners {std::make_unique<Listener>(WAppSignals::get(), this),
                   std::make_unique<Listener>(WGlobalSignalListener::get(), this)}
{
}

BusMonitor::~BusMonitor() = default;

BusMonitor *BusMonitor::get()
{
    WAppSignals *bus = WAppSignals::get();
    auto *monitor = bus->findChild<BusMonitor *>(QString(), Qt::FindDirectChildrenOnly);
    return monitor ? monitor : new BusMonitor(bus);
}

int BusMonitor::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_emissions.size();
}

QVariant BusMonitor::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_emissions.size())
        return QVariant();
    const Emission &emission = m_emissions.at(index.row());
    const QString time = m_timesShown ? QLocale().toString(emission.time, QStringLiteral("HH:mm:ss")) : QString();
    switch (role) {
    case Qt::DisplayRole: return emission.signal;
    case ArgumentsRole: return emission.arguments;
    case TimeRole: return time;
    case Qt::AccessibleTextRole: {
        QStringList parts {emission.signal, emission.arguments, time};
        parts.removeAll(QString());
        return parts.join(QStringLiteral(", "));
    }
    default: return QVariant();
    }
}

void BusMonitor::add(const Emission &emission)
{
    if (m_paused) {
        ++m_leftOut;
        Q_EMIT countsChanged();
        return;
    }
    if (m_emissions.size() == Capacity) {
        beginRemoveRows(QModelIndex(), Capacity - 1, Capacity - 1);
        m_emissions.removeLast();
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), 0, 0);
    m_emissions.prepend(emission);
    endInsertRows();
    Q_EMIT countsChanged();
}

void BusMonitor::clear()
{
    beginResetModel();
    m_emissions.clear();
    m_leftOut = 0;
    endResetModel();
    Q_EMIT countsChanged();
}

void BusMonitor::setPaused(bool paused)
{
    if (m_paused == paused)
        return;
    m_paused = paused;
    m_leftOut = 0;
    Q_EMIT countsChanged();
}

void BusMonitor::setTimesShown(bool shown)
{
    if (m_timesShown == shown)
        return;
    m_timesShown = shown;
    if (!m_emissions.isEmpty())
        Q_EMIT dataChanged(index(0), index(m_emissions.size() - 1));
}

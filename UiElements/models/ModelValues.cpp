#include <UiElements/models/ModelValues_p.h>

#include <QDateTime>
#include <QDebug>
#include <QObject>
#include <QVariantHash>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>

namespace {

template <typename Map>
bool isSameMap(const Map &first, const Map &second)
{
    for (auto entry = first.begin(); entry != first.end(); ++entry) {
        const auto other = second.find(entry.key());
        if (other == second.end() || !ModelValues::isSame(*entry, *other))
            return false;
    }
    return first.size() == second.size();
}

// One instant reads differently in two zones.
bool isSameTime(const QDateTime &first, const QDateTime &second)
{
    return first == second && first.timeSpec() == second.timeSpec() && first.offsetFromUtc() == second.offsetFromUtc();
}

} // namespace

bool ModelValues::isSameInFull(const QVariant &a, const QVariant &b)
{
    if (a.userType() != b.userType())
        return false;
    switch (a.userType()) {
    case QMetaType::Double: return a.toDouble() == b.toDouble();
    case QMetaType::Float: return a.toFloat() == b.toFloat();
    case QMetaType::QVariantList: {
        const QVariantList first = a.toList();
        const QVariantList second = b.toList();
        return std::equal(first.begin(), first.end(), second.begin(), second.end(), isSame);
    }
    case QMetaType::QVariantMap: return isSameMap(a.toMap(), b.toMap());
    case QMetaType::QVariantHash: return isSameMap(a.toHash(), b.toHash());
    case QMetaType::QDateTime: return isSameTime(a.toDateTime(), b.toDateTime());
    default: return a.isNull() == b.isNull() && a == b;
    }
}

void ModelValues::warnOfUndefinedRole(const QObject *model, int row, int role)
{
    const QString name =
        model->objectName().isEmpty() ? QString::fromLatin1(model->metaObject()->className()) : model->objectName();
    qWarning().noquote().nospace() << '[' << name << "] - Role is undefined! Row:" << row << " Role:" << role;
}

#include "QmlLedger.h"

#include "BusMonitor.h"

#include <QLocale>

namespace {

QString statusText(int status)
{
    switch (status) {
    case WQmlEngine::Creating:
    case WQmlEngine::Initializing: return QmlLedger::tr("loading");
    case WQmlEngine::Ready: return QmlLedger::tr("ready");
    case WQmlEngine::Error: return QmlLedger::tr("in error");
    case WQmlEngine::DestroyedController:
    case WQmlEngine::DestroyedView: break;
    }
    return QmlLedger::tr("closed");
}

} // namespace

QmlLedger::QmlLedger(QObject *parent)
    : BaseListModel(parent)
{
    setRoleNames(
        {{SourceRole, "source"}, {LiveRole, "live"}, {StatusRole, "status"}, {NanosecondsRole, "nanoseconds"}});
}

void QmlLedger::listenTo(const WQmlEngine *engine)
{
    connect(engine, &WQmlEngine::qmlViewStatusChanged, this, &QmlLedger::note);
    connect(engine, &WQmlEngine::finishedRendering, this, &QmlLedger::noteTime);
}

int QmlLedger::liveCount() const
{
    int count = 0;
    for (int row = 0; row < getCount(); ++row)
        count += index(row).data(LiveRole).toInt();
    return count;
}

QVariant QmlLedger::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role >= Qt::UserRole)
        return BaseListModel::data(index, role);
    if (role != Qt::DisplayRole)
        return {};
    QStringList parts {index.data(SourceRole).toString(), tr("%n live", nullptr, index.data(LiveRole).toInt()),
                       statusText(index.data(StatusRole).toInt())};
    const qint64 time = index.data(NanosecondsRole).toLongLong();
    if (time > 0 && BusMonitor::get()->timesShown())
        parts << tr("first frame after %1 ms").arg(QLocale().toString(double(time) / 1e6, 'f', 1));
    return parts.join(QStringLiteral(" \u00b7 "));
}

void QmlLedger::note(WQmlEngine::QmlViewStatus status, const QString &source)
{
    const std::string id = source.toStdString();
    if (status == WQmlEngine::DestroyedController) // the view goes on without it
        return;
    if (!hasRow(id))
        appendRows({{id, {{SourceRole, source}, {LiveRole, 0}, {StatusRole, status}, {NanosecondsRole, qint64(0)}}}});
    int live = index(getRowIndex(id)).data(LiveRole).toInt();
    if (status == WQmlEngine::Creating)
        ++live;
    else if (status == WQmlEngine::DestroyedView)
        live = qMax(0, live - 1);
    // While others of the same source live, the state is theirs.
    const bool isLast = status != WQmlEngine::DestroyedView || live == 0;
    setRoleValueForRow(id, {{LiveRole, live}});
    if (isLast)
        setRoleValueForRow(id, {{StatusRole, status}});
    Q_EMIT liveCountChanged();
}

void QmlLedger::noteTime(const QString &url, qint64 nanoseconds)
{
    for (int row = 0; row < getCount(); ++row) {
        const QModelIndex place = index(row);
        if (url.endsWith(QLatin1Char('/') + place.data(SourceRole).toString()))
            setRoleValueForRow(place, {{NanosecondsRole, nanoseconds}});
    }
}

#include <UiElements/models/OverflowListProxyModel.h>

OverflowListProxyModel::OverflowListProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

OverflowListProxyModel::OverflowListProxyModel(int firstVisibleIndex, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_firstVisibleIndex(firstVisibleIndex)
{
}

void OverflowListProxyModel::setFirstVisibleIndex(int index)
{
    if (m_firstVisibleIndex == index)
        return;
    m_firstVisibleIndex = index;
    Q_EMIT firstVisibleIndexChanged();
    invalidateFilter();
}

void OverflowListProxyModel::setHeader(const QString &header)
{
    if (m_header == header)
        return;
    m_header = header;
    Q_EMIT headerChanged();
}

void OverflowListProxyModel::setSourceModel(QAbstractItemModel *model)
{
    for (const QMetaObject::Connection &connection : m_connections)
        disconnect(connection);
    QSortFilterProxyModel::setSourceModel(model);
    if (!model)
        return;
    // After those of the base class, which knows the rows by their new numbers then. It filters again by itself when
    // rows are moved, but not when they are only shifted.
    m_connections = {
        connect(model, &QAbstractItemModel::rowsInserted, this, &OverflowListProxyModel::onSourceRowsShifted),
        connect(model, &QAbstractItemModel::rowsRemoved, this, &OverflowListProxyModel::onSourceRowsShifted)};
}

void OverflowListProxyModel::unsetSourceModel()
{
    setSourceModel(nullptr);
}

bool OverflowListProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    Q_UNUSED(sourceParent)
    return m_firstVisibleIndex < sourceRow;
}

void OverflowListProxyModel::onSourceRowsShifted(const QModelIndex &parent, int first)
{
    Q_UNUSED(parent)
    if (first <= m_firstVisibleIndex)
        invalidateFilter();
}

#include <UiElements/models/SmallListModel.h>

#include <UiElements/models/ModelValues_p.h>

#include <algorithm>

namespace {

bool isSameRow(const SmallListModel::Row &a, const SmallListModel::Row &b)
{
    const auto isInB = [&b](const std::pair<const int, QVariant> &entry) {
        const auto found = b.find(entry.first);
        return found != b.end() && ModelValues::isSame(entry.second, found->second);
    };
    return a.size() == b.size() && std::all_of(a.begin(), a.end(), isInB);
}

} // namespace

SmallListModel::SmallListModel(const QHash<int, QByteArray> &roleNames, QObject *parent, const QVariant &header)
    : QAbstractListModel(parent)
    , m_roleNames(roleNames)
    , m_header(header)
{
}

void SmallListModel::add(const Rows &rows)
{
    if (rows.empty())
        return;
    const int first = rowCount();
    beginInsertRows(QModelIndex(), first, first + int(rows.size()) - 1);
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    endInsertRows();
}

void SmallListModel::remove(const Rows &rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto found =
            std::find_if(m_rows.begin(), m_rows.end(), [&rows, i](const Row &row) { return isSameRow(row, rows[i]); });
        if (found == m_rows.end()) {
            qWarning("SmallListModel::remove - no row is equal to row %d of those given", int(i));
            continue;
        }
        const int row = int(found - m_rows.begin());
        beginRemoveRows(QModelIndex(), row, row);
        m_rows.erase(found);
        endRemoveRows();
    }
}

void SmallListModel::replace(const Rows &rows)
{
    const int count = int(rows.size());
    if (count < rowCount()) {
        beginRemoveRows(QModelIndex(), count, rowCount() - 1);
        m_rows.resize(rows.size());
        endRemoveRows();
    }
    for (int row = 0; row < std::min(rowCount(), count); ++row) { // slots may remove some
        if (isSameRow(m_rows[std::size_t(row)], rows[std::size_t(row)]))
            continue;
        m_rows[std::size_t(row)] = rows[std::size_t(row)];
        Q_EMIT dataChanged(index(row), index(row));
    }
    if (rowCount() < count)
        add(Rows(rows.begin() + rowCount(), rows.end()));
}

void SmallListModel::clear()
{
    if (m_rows.empty())
        return;
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

QVariant SmallListModel::data(int row, int role) const
{
    if (row < 0 || row >= rowCount())
        return QVariant();
    const Row &values = m_rows[std::size_t(row)];
    const auto found = values.find(role);
    return found == values.end() ? QVariant() : found->second;
}

QVariant SmallListModel::data(const QModelIndex &index, int role) const
{
    return index.model() == this ? data(index.row(), role) : QVariant();
}

bool SmallListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (index.model() != this || index.row() >= rowCount()) {
        qWarning("SmallListModel::setData - invalid row! row: %d size: %d", index.row(), rowCount());
        return false;
    }
    Row &values = m_rows[std::size_t(index.row())];
    const auto found = values.find(role);
    if (found == values.end()) {
        ModelValues::warnOfUndefinedRole(this, index.row(), role);
        return false;
    }
    found->second = value;
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

QVariant SmallListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    Q_UNUSED(section)
    Q_UNUSED(orientation)
    return role == Qt::DisplayRole || role >= Qt::UserRole ? m_header : QVariant();
}

int SmallListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

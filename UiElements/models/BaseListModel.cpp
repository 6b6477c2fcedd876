#include <UiElements/models/BaseListModel.h>

#include <UiElements/models/ModelValues_p.h>
#include <UiElements/models/RowMoves_p.h>
#include <UiElements/models/RowStore_p.h>

#include <QDebug>

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace {

// Each move has a proxy sort all rows again: more than these take it longer than a reset.
constexpr std::size_t MostMovesTimesRows = 100000;

void warnNotUnique(const std::string &id)
{
    qWarning().noquote() << QStringLiteral("Row id: %1 is not unique! Skipping row").arg(QString::fromStdString(id));
}

} // namespace

/// A row of a batch that is not skipped.
struct BaseListModel::BatchRow
{
    int inBatch;
    int row; ///< that has the id already; -1 for a new one
};

/// Refuses what would change the rows under a function that is not done.
class BaseListModel::Changing
{
public:
    explicit Changing(BaseListModel *model)
        : m_model(model)
        , m_outer(std::exchange(model->m_isChanging, true))
    {
    }
    ~Changing() { m_model->m_isChanging = m_outer; }
    Changing(const Changing &) = delete;
    Changing &operator=(const Changing &) = delete;

private:
    BaseListModel *m_model;
    bool m_outer;
};

/// Joins consecutive changed rows into one dataChanged.
///
/// Each range is announced before a row outside of it is touched: a sorting proxy looks for the new place of a row
/// among the others, and these must still be as it has sorted them.
class BaseListModel::ChangedRows
{
public:
    ChangedRows(BaseListModel *model, const char *function)
        : m_model(model)
        , m_function(function)
    {
    }
    ~ChangedRows() { announce(); }
    ChangedRows(const ChangedRows &) = delete;
    ChangedRows &operator=(const ChangedRows &) = delete;

    /// Gives the row its values. Rows come in ascending order.
    template <typename Values>
    void assign(int row, Values &&values, RowStore::Others others, bool isOtherRow = false)
    {
        if (row != m_last + 1)
            announce();
        m_changed.clear();
        m_model->m_rows->assign(row, std::forward<Values>(values), others, &m_changed);
        if (m_changed.empty() && !isOtherRow)
            return;
        if (m_last < 0)
            m_first = row;
        m_last = row;
        m_isAllRoles = m_isAllRoles || isOtherRow;
        for (const int role : m_changed) {
            if (!m_roles.contains(role))
                m_roles.append(role);
        }
    }

    void announce()
    {
        if (m_last < 0)
            return;
        const QModelIndex first = m_model->index(m_first);
        const QModelIndex last = m_model->index(m_last);
        if (m_isAllRoles)
            m_roles.clear();
        std::sort(m_roles.begin(), m_roles.end());
        m_last = -1;
        m_isAllRoles = false;
        const QVector<int> roles = std::exchange(m_roles, {});
        if (last.isValid())
            Q_EMIT m_model->dataChanged(first, last, roles);
        else
            qWarning("BaseListModel::%s() - Invalid index! This should never happen", m_function);
    }

private:
    BaseListModel *m_model;
    const char *m_function;
    int m_first = -1;
    int m_last = -1;
    QVector<int> m_roles;
    bool m_isAllRoles = false;
    std::vector<int> m_changed;
};

BaseListModel::BaseListModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_rows(std::make_unique<RowStore>())
{
}

BaseListModel::~BaseListModel() = default;

void BaseListModel::setHeader(const QString &header)
{
    if (m_header == header)
        return;
    m_header = header;
    Q_EMIT headerChanged();
}

int BaseListModel::getCount() const
{
    return m_rows->count();
}

bool BaseListModel::hasRow(const std::string &id) const
{
    return m_rows->find(id) >= 0;
}

int BaseListModel::getRowIndex(const std::string &id) const
{
    return m_rows->find(id);
}

BaseListModel::Row BaseListModel::getRowById(const std::string &id) const
{
    const int row = m_rows->find(id);
    return row < 0 ? Row() : m_rows->row(row);
}

BaseListModel::Rows BaseListModel::getRows() const
{
    Rows rows;
    rows.reserve(std::size_t(m_rows->count()));
    for (int row = 0; row < m_rows->count(); ++row) {
        if (!m_rows->isGap(row))
            rows.push_back(m_rows->row(row));
    }
    return rows;
}

void BaseListModel::appendRows(const Rows &batch)
{
    insertBatch(m_rows->count(), batch);
}

void BaseListModel::appendRows(Rows &&batch)
{
    insertBatch(m_rows->count(), std::move(batch));
}

void BaseListModel::insertRows(int row, const Rows &batch)
{
    insertBatch(row, batch);
}

void BaseListModel::insertRows(int row, Rows &&batch)
{
    insertBatch(row, std::move(batch));
}

void BaseListModel::appendOrUpdate(const Rows &batch)
{
    updateBatch(batch);
}

void BaseListModel::appendOrUpdate(Rows &&batch)
{
    updateBatch(std::move(batch));
}

void BaseListModel::replace(const Rows &batch)
{
    replaceBatch(batch);
}

void BaseListModel::replace(Rows &&batch)
{
    replaceBatch(std::move(batch));
}

void BaseListModel::synchronize(const Rows &batch)
{
    synchronizeBatch(batch);
}

void BaseListModel::synchronize(Rows &&batch)
{
    synchronizeBatch(std::move(batch));
}

template <typename Batch>
void BaseListModel::insertBatch(int row, Batch &&batch)
{
    if (batch.empty() || !isFree("insertRows"))
        return;
    if (row < 0 || row > m_rows->count()) {
        qWarning() << "BaseListModel::insertRows - invalid row! row:" << row << "size:" << m_rows->count();
        return;
    }
    if (!hasRoom(m_rows->count() + batch.size()))
        return;

    const int announced = int(batch.size());
    int added = 0;
    {
        const Changing changing(this);
        beginInsertRows(QModelIndex(), row, row + announced - 1);
        m_rows->openGap(row, announced);
        for (auto &content : batch) {
            if (m_rows->fill(row + added, passed<Batch>(content)))
                ++added;
            else
                warnNotUnique(content.first);
        }
        if (added < announced) {
            // The rows that were skipped are still there as gaps: what is announced is true at any time.
            endInsertRows();
            beginRemoveRows(QModelIndex(), row + added, row + announced - 1);
            m_rows->remove(row + added, announced - added);
            endRemoveRows();
        } else {
            endInsertRows();
        }
    }
    Q_EMIT countChanged(getCount());
}

template <typename Batch>
void BaseListModel::updateBatch(Batch &&batch)
{
    if (batch.empty() || !isFree("appendOrUpdate"))
        return;
    std::vector<BatchRow> updates = sortOut(batch);
    const auto isUpdate = [](const BatchRow &entry) {
        return entry.row >= 0;
    };
    const auto firstNew = std::stable_partition(updates.begin(), updates.end(), isUpdate);
    if (!hasRoom(std::size_t(m_rows->count()) + std::size_t(updates.end() - firstNew)))
        return;
    const int first = m_rows->count();
    const int added = int(updates.end() - firstNew);
    std::sort(updates.begin(), firstNew, [](const BatchRow &a, const BatchRow &b) { return a.row < b.row; });
    {
        const Changing changing(this);
        {
            ChangedRows changes(this, "appendOrUpdate");
            for (auto entry = updates.begin(); entry != firstNew; ++entry) {
                if (entry->row < first)
                    changes.assign(entry->row, passed<Batch>(batch[std::size_t(entry->inBatch)].second),
                                   RowStore::KeepOthers);
                else
                    qWarning("Out of range! This should never happen!");
            }
        }
        if (added == 0)
            return;
        beginInsertRows(QModelIndex(), first, first + added - 1);
        m_rows->openGap(first, added);
        for (int i = 0; i < added; ++i)
            m_rows->fill(first + i, passed<Batch>(batch[std::size_t((firstNew + i)->inBatch)]));
        endInsertRows();
    }
    Q_EMIT countChanged(getCount());
}

template <typename Batch>
void BaseListModel::replaceBatch(Batch &&batch)
{
    if (!isFree("replace"))
        return;
    if (batch.empty()) {
        clear();
        return;
    }
    if (m_rows->count() == 0) {
        insertBatch(0, std::forward<Batch>(batch));
        return;
    }
    if (!hasRoom(batch.size()))
        return;
    const std::vector<BatchRow> content = sortOut(batch);
    const int count = int(content.size());
    {
        const Changing changing(this);
        if (count < m_rows->count()) {
            m_mayRemove = true;
            const bool isRemoved = removeRows(count, m_rows->count() - count);
            m_mayRemove = false;
            if (!isRemoved || count != m_rows->count())
                return;
        }
        const int kept = m_rows->count();
        if (count > kept) {
            beginInsertRows(QModelIndex(), kept, count - 1);
            m_rows->openGap(kept, count - kept);
        }
        std::vector<bool> isOtherRow(std::size_t(kept), false);
        const auto inBatch = [&batch, &content ](int row) -> auto &
        {
            return batch[std::size_t(content[std::size_t(row)].inBatch)];
        };
        bool isAnyOther = false;
        for (int row = 0; row < kept; ++row) {
            isOtherRow[std::size_t(row)] = content[std::size_t(row)].row != row;
            isAnyOther = isAnyOther || isOtherRow[std::size_t(row)];
        }
        if (isAnyOther) {
            // All ids at once: an id that changes its row would be there twice in between.
            m_rows->forgetIds();
            for (int row = 0; row < kept; ++row)
                m_rows->setId(row, inBatch(row).first);
        }
        for (int row = kept; row < count; ++row)
            m_rows->fill(row, passed<Batch>(inBatch(row)));
        if (count > kept)
            endInsertRows();

        ChangedRows changes(this, "replace");
        for (int row = 0; row < kept; ++row)
            changes.assign(row, passed<Batch>(inBatch(row).second), RowStore::DropOthers, isOtherRow[std::size_t(row)]);
    }
    Q_EMIT countChanged(getCount());
}

template <typename Batch>
void BaseListModel::synchronizeBatch(Batch &&batch)
{
    if (!isFree("synchronize"))
        return;
    if (batch.empty()) {
        clear();
        return;
    }
    if (!hasRoom(batch.size()))
        return;
    const std::vector<BatchRow> content = sortOut(batch);
    const int before = m_rows->count();
    {
        const Changing changing(this);
        std::vector<int> places(std::size_t(before), -1);
        int staying = 0;
        for (const BatchRow &entry : content) {
            if (entry.row >= 0)
                places[std::size_t(entry.row)] = staying++;
        }
        removeAllBut(&places);
        arrange(places);

        const int count = int(content.size());
        for (int first = 0, end = 0; first < count; first = end + 1) {
            while (first < count && content[std::size_t(first)].row >= 0)
                ++first;
            for (end = first; end < count && content[std::size_t(end)].row < 0;)
                ++end;
            if (first == end)
                continue;
            beginInsertRows(QModelIndex(), first, end - 1);
            m_rows->openGap(first, end - first);
            for (int row = first; row < end; ++row)
                m_rows->fill(row, passed<Batch>(batch[std::size_t(content[std::size_t(row)].inBatch)]));
            endInsertRows();
        }

        ChangedRows changes(this, "synchronize");
        for (int row = 0; row < count; ++row) {
            const BatchRow &entry = content[std::size_t(row)];
            if (entry.row >= 0)
                changes.assign(row, passed<Batch>(batch[std::size_t(entry.inBatch)].second), RowStore::DropOthers);
        }
    }
    if (getCount() != before)
        Q_EMIT countChanged(getCount());
}

/// The rows of a batch without those whose id it has already.
std::vector<BaseListModel::BatchRow> BaseListModel::sortOut(const Rows &batch) const
{
    std::vector<BatchRow> content;
    content.reserve(batch.size());
    std::vector<bool> isTaken(std::size_t(m_rows->count()));
    std::unordered_set<std::string_view> added;
    int expected = 0; // batches mostly have the order of the model
    for (std::size_t i = 0; i < batch.size(); ++i) {
        const std::string &id = batch[i].first;
        const bool isExpected = expected < m_rows->count() && m_rows->isId(expected, id);
        const int row = isExpected ? expected : m_rows->find(id);
        if (row >= 0 ? bool(isTaken[std::size_t(row)]) : !added.insert(id).second) {
            warnNotUnique(id);
            continue;
        }
        if (row >= 0) {
            isTaken[std::size_t(row)] = true;
            expected = row + 1;
        }
        content.push_back({int(i), row});
    }
    return content;
}

/// Removes the rows that have no place, and their entries.
void BaseListModel::removeAllBut(std::vector<int> *places)
{
    for (int end = int(places->size()); end > 0;) {
        if ((*places)[std::size_t(end - 1)] >= 0) {
            --end;
            continue;
        }
        int first = end - 1;
        while (first > 0 && (*places)[std::size_t(first - 1)] < 0)
            --first;
        beginRemoveRows(QModelIndex(), first, end - 1);
        m_rows->remove(first, end - first);
        endRemoveRows();
        end = first;
    }
    places->erase(std::remove(places->begin(), places->end(), -1), places->end());
}

/// Brings each row to its place.
void BaseListModel::arrange(const std::vector<int> &places)
{
    const std::vector<RowMove> moves = rowMoves(places);
    if (moves.size() * places.size() <= MostMovesTimesRows) {
        for (const RowMove &move : moves)
            moveAnnounced(move.from, move.to, move.count);
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    m_rows->reorder(places);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &old : before)
        after.append(index(places[std::size_t(old.row())]));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void BaseListModel::moveAnnounced(int from, int to, int count)
{
    beginMoveRows(QModelIndex(), from, from + count - 1, QModelIndex(), to > from ? to + count : to);
    m_rows->move(from, to, count);
    endMoveRows();
}

bool BaseListModel::removeRows(int row, int count, const QModelIndex &parent)
{
    const int size = rowCount(parent);
    if (row < 0 || count < 1 || row >= size || count > size - row) {
        qWarning() << "BaseListModel::removeRows - invalid row! row:" << row << "count:" << count << "size:" << size;
        return false;
    }
    if (!std::exchange(m_mayRemove, false) && !isFree("removeRows"))
        return false;
    {
        const Changing changing(this);
        beginRemoveRows(parent, row, row + count - 1);
        m_rows->remove(row, count);
        endRemoveRows();
    }
    Q_EMIT countChanged(getCount());
    return true;
}

void BaseListModel::move(int from, int to, int count)
{
    const int size = m_rows->count();
    if (from < 0 || to < 0 || count < 1 || count > size - from || count > size - to) {
        qWarning() << "BaseListModel::move - invalid range! from:" << from << "to:" << to << "count:" << count
                   << "size:" << size;
        return;
    }
    if (from == to || !isFree("move"))
        return;
    const Changing changing(this);
    moveAnnounced(from, to, count);
}

void BaseListModel::clear()
{
    if (m_rows->count() == 0 || !isFree("clear"))
        return;
    {
        const Changing changing(this);
        beginResetModel();
        m_rows->clear();
        endResetModel();
    }
    Q_EMIT countChanged(0);
}

void BaseListModel::setRoleValueForRow(const std::string &id, const QMap<int, QVariant> &values)
{
    const int row = m_rows->find(id);
    if (row < 0) {
        qWarning() << "BaseListModel::setRoleValueForRow - unknown row id:" << QString::fromStdString(id);
        return;
    }
    setValues(row, values);
}

void BaseListModel::setRoleValueForRow(const QModelIndex &index, const QMap<int, QVariant> &values)
{
    const int row = rowOf(index);
    if (row < 0) {
        qWarning() << "BaseListModel::setRoleValueForRow - invalid row! row:" << index.row()
                   << "size:" << m_rows->count();
        return;
    }
    setValues(row, values);
}

bool BaseListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int row = rowOf(index);
    if (row < 0) {
        qWarning() << "BaseListModel::setData - invalid row! row:" << index.row() << "size:" << m_rows->count();
        return false;
    }
    if (role >= Qt::UserRole && value.isValid() && !m_rows->value(row, role)) {
        ModelValues::warnOfUndefinedRole(this, row, role);
        return false;
    }
    return setValues(row, {{role, value}});
}

bool BaseListModel::setValues(int row, const QMap<int, QVariant> &values)
{
    if (m_rows->isGap(row))
        return false;
    QVector<int> accepted;
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (value.key() < Qt::UserRole) {
            qWarning() << "Role is less than Qt::UserRole! Role:" << value.key();
        } else if (!value->isValid()) {
            qWarning().nospace() << "Role value is invalid! Row:" << row << " Role:" << value.key();
        } else {
            m_rows->setValue(row, value.key(), *value);
            accepted.append(value.key());
        }
    }
    if (accepted.isEmpty())
        return false;
    Q_EMIT dataChanged(index(row), index(row), accepted);
    return true;
}

QVariant BaseListModel::data(const QModelIndex &index, int role) const
{
    const int row = rowOf(index);
    if (row < 0)
        return QVariant();
    if (const QVariant *value = m_rows->value(row, role))
        return *value;
    if (m_rows->isGap(row))
        return QVariant();
    if (role < Qt::UserRole) {
        // A widget asks for half a dozen of these for every row that it paints.
        const auto bit = std::size_t(std::max(role, -1) + 1);
        if (m_reportedRoles[bit])
            return QVariant();
        m_reportedRoles.set(bit);
    }
    ModelValues::warnOfUndefinedRole(this, row, role);
    return QVariant();
}

QMap<int, QVariant> BaseListModel::itemData(const QModelIndex &index) const
{
    const int row = rowOf(index);
    return row < 0 ? QMap<int, QVariant>() : m_rows->values(row);
}

int BaseListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows->count();
}

QHash<int, QByteArray> BaseListModel::roleNames() const
{
    return m_roleNames.isEmpty() ? QAbstractListModel::roleNames() : m_roleNames;
}

void BaseListModel::setRoleNames(const QHash<int, QByteArray> &names)
{
    if (!isFree("setRoleNames"))
        return;
    const Changing changing(this);
    beginResetModel();
    m_roleNames = names;
    endResetModel();
}

/// -1 for an index that is out of range or of another model.
int BaseListModel::rowOf(const QModelIndex &index) const
{
    return index.model() == this && index.row() < m_rows->count() ? index.row() : -1;
}

bool BaseListModel::isFree(const char *function) const
{
    if (m_isChanging)
        qWarning("BaseListModel::%s - called while the rows are being changed! Ignored", function);
    return !m_isChanging;
}

bool BaseListModel::hasRoom(std::size_t rows) const
{
    if (rows <= std::size_t(MaxRows))
        return true;
    qWarning("Too many rows!");
    return false;
}

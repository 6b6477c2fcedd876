#include <UiElements/models/RowStore_p.h>

#include <UiElements/models/ModelValues_p.h>

#include <QDebug>

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

/// Stands for an invalid value that a row was given: an invalid one in a slot says that the row lacks the role.
struct EmptyValue
{
};

} // namespace

Q_DECLARE_METATYPE(EmptyValue)

namespace {

constexpr int ExpectedRows = 100;
constexpr unsigned NearRoles = 1024; // above Qt::UserRole; others are looked up in a map

bool isEmptyValue(const QVariant &stored)
{
    static const int type = qMetaTypeId<EmptyValue>();
    return stored.userType() == type;
}

quint32 hashOf(const std::string &id)
{
    return quint32(std::hash<std::string>()(id));
}

} // namespace

void RowId::clear()
{
    if (m_size == Elsewhere)
        delete elsewhere();
    m_size = 0;
}

void RowId::set(const std::string &id)
{
    clear();
    if (id.size() <= sizeof m_text) {
        std::memcpy(m_text, id.data(), id.size());
        m_size = quint8(id.size());
        return;
    }
    const auto *text = new std::string(id);
    std::memcpy(m_text, &text, sizeof text);
    m_size = Elsewhere;
}

RowStore::RowStore()
{
    reserve(ExpectedRows);
}

int RowStore::find(const std::string &id) const
{
    const Record *found = lookUp(id, hashOf(id));
    if (!found)
        return -1;
    const quint32 row = found->number - m_base;
    const bool isRight = m_outdatedFrom == m_outdatedTo || (row < m_order.size() && m_order[row] == found);
    if (!isRight) {
        setNumbers(m_outdatedFrom, m_outdatedTo);
        m_outdatedFrom = m_outdatedTo = 0;
    }
    return int(found->number - m_base);
}

RowStore::Row RowStore::row(int row) const
{
    const Record &copied = record(row);
    Row copy {copied.id.toString(), {}};
    copy.second.reserve(std::size_t(copied.valueCount));
    for (std::size_t slot = 0; slot < std::size_t(copied.valueCount); ++slot) {
        if (copied.values[slot].isValid())
            copy.second.emplace(m_roles[slot], *asGiven(copied.values[slot]));
    }
    return copy;
}

QMap<int, QVariant> RowStore::values(int row) const
{
    const Record &copied = record(row);
    QMap<int, QVariant> copy;
    for (std::size_t slot = 0; slot < std::size_t(copied.valueCount); ++slot) {
        if (copied.values[slot].isValid())
            copy.insert(m_roles[slot], *asGiven(copied.values[slot]));
    }
    return copy;
}

void RowStore::openGap(int row, int count)
{
    reserve(m_order.size() + std::size_t(count));
    m_order.insert(m_order.begin() + row, std::size_t(count), &m_gap);
    const bool isNearFront = row < this->count() - row - count;
    if (isNearFront) {
        m_base -= quint32(count);
        m_outdatedTo = m_outdatedTo > row ? m_outdatedTo + count : row;
        m_outdatedFrom = 0;
    } else if (row + count < this->count()) {
        outdate(row + count, this->count());
    }
}

template <typename Value>
void RowStore::put(Record &record, int slot, Value &&value)
{
    makeRoom(record, slot + 1);
    QVariant &place = record.values[std::size_t(slot)];
    if (value.isValid()) {
        place = std::forward<Value>(value);
    } else {
        place = QVariant::fromValue(EmptyValue());
        m_hasEmptyValues = true;
    }
}

void RowStore::makeRoom(Record &record, int count)
{
    if (count <= record.valueCount)
        return;
    auto values = std::make_unique<QVariant[]>(std::size_t(count));
    std::move(record.values.get(), record.values.get() + record.valueCount, values.get());
    record.values = std::move(values);
    record.valueCount = count;
}

template <typename Content>
bool RowStore::fillWith(int row, Content &&content)
{
    const quint32 hash = hashOf(content.first);
    if (lookUp(content.first, hash))
        return false;
    Record *made = newRecord();
    made->hash = hash;
    made->number = m_base + quint32(row);
    made->id.set(content.first);
    makeRoom(*made, int(content.second.size()));
    for (auto &entry : content.second) {
        const int slot = slotFor(entry.first);
        if (slot >= 0)
            put(*made, slot, passed<Content>(entry.second));
    }
    m_order[std::size_t(row)] = made;
    enter(made);
    return true;
}

template bool RowStore::fillWith(int, const Row &);
template bool RowStore::fillWith(int, Row &&);

void RowStore::remove(int row, int count)
{
    for (int i = row; i < row + count; ++i) {
        if (isGap(i))
            continue;
        Record *gone = m_order[std::size_t(i)];
        forget(gone);
        gone->id.clear();
        gone->values.reset();
        gone->valueCount = 0;
        m_unused.push_back(gone);
    }
    const int left = this->count() - count;
    if (row < left - row) {
        m_base += quint32(count);
        m_outdatedFrom = 0;
        m_outdatedTo = std::max(row, m_outdatedTo - count);
    } else {
        outdate(row, left);
        m_outdatedTo = left;
        m_outdatedFrom = std::min(m_outdatedFrom, left);
    }
    m_order.erase(m_order.begin() + row, m_order.begin() + row + count);
}

void RowStore::move(int from, int to, int count)
{
    const auto begin = m_order.begin();
    if (to < from)
        std::rotate(begin + to, begin + from, begin + from + count);
    else
        std::rotate(begin + from, begin + from + count, begin + to + count);
    outdate(std::min(from, to), std::max(from, to) + count);
}

void RowStore::reorder(const std::vector<int> &places)
{
    std::deque<Record *> order(m_order.size());
    for (std::size_t row = 0; row < places.size(); ++row)
        order[std::size_t(places[row])] = m_order[row];
    m_order.swap(order);
    outdate(0, count());
}

void RowStore::clear()
{
    m_order.clear();
    m_records.clear();
    m_unused.clear();
    forgetIds();
    m_base = 0;
    m_outdatedFrom = m_outdatedTo = 0;
}

void RowStore::forgetIds()
{
    std::fill(m_table.begin(), m_table.end(), nullptr);
}

void RowStore::setId(int row, const std::string &id)
{
    Record &changed = record(row);
    if (!changed.id.is(id)) {
        changed.id.set(id);
        changed.hash = hashOf(id);
    }
    enter(&changed);
}

template <typename Given>
void RowStore::assignFrom(int row, Given &&given, Others others, std::vector<int> *changed)
{
    Record &assigned = record(row);
    int accepted = 0;
    for (auto &entry : given) {
        const int slot = slotFor(entry.first);
        if (slot < 0)
            continue;
        ++accepted;
        if (slot < assigned.valueCount) {
            const QVariant &value = assigned.values[std::size_t(slot)];
            if (entry.second.isValid() ? ModelValues::isSame(value, entry.second) : isEmptyValue(value))
                continue;
        }
        put(assigned, slot, passed<Given>(entry.second));
        changed->push_back(entry.first);
    }
    if (others == KeepOthers || accepted == assigned.valueCount)
        return;
    for (std::size_t slot = 0; slot < std::size_t(assigned.valueCount); ++slot) {
        QVariant &value = assigned.values[slot];
        if (value.isValid() && !given.count(m_roles[slot])) {
            value.clear();
            changed->push_back(m_roles[slot]);
        }
    }
}

template void RowStore::assignFrom(int, const Values &, Others, std::vector<int> *);
template void RowStore::assignFrom(int, Values &&, Others, std::vector<int> *);

void RowStore::setValue(int row, int role, const QVariant &value)
{
    put(record(row), slotFor(role), value);
}

RowStore::Record *RowStore::newRecord()
{
    if (m_unused.empty())
        return &m_records.emplace_back();
    Record *record = m_unused.back();
    m_unused.pop_back();
    return record;
}

const QVariant *RowStore::asGiven(const QVariant &stored) const
{
    static const QVariant empty;
    return isEmptyValue(stored) ? &empty : &stored;
}

int RowStore::farSlotOf(int role) const
{
    const auto found = m_farSlots.find(role);
    return found == m_farSlots.end() ? -1 : found->second;
}

int RowStore::slotFor(int role)
{
    int slot = slotOf(role);
    if (slot >= 0)
        return slot;
    if (role < Qt::UserRole) {
        const auto bit = std::size_t(std::max(role, -1) + 1);
        if (!m_refusedRoles[bit])
            qWarning() << "Role is less than Qt::UserRole! Role:" << role;
        m_refusedRoles.set(bit);
        return -1;
    }
    slot = int(m_roles.size());
    m_roles.push_back(role);
    const auto near = unsigned(role) - unsigned(Qt::UserRole);
    if (near >= NearRoles) {
        m_farSlots.emplace(role, slot);
        return slot;
    }
    if (near >= m_slots.size())
        m_slots.resize(near + 1, -1);
    m_slots[near] = slot;
    return slot;
}

void RowStore::setNumbers(int from, int to) const
{
    for (int row = from; row < to; ++row)
        m_order[std::size_t(row)]->number = m_base + quint32(row);
}

void RowStore::outdate(int from, int to)
{
    if (m_outdatedFrom == m_outdatedTo) {
        m_outdatedFrom = from;
        m_outdatedTo = to;
    } else {
        m_outdatedFrom = std::min(m_outdatedFrom, from);
        m_outdatedTo = std::max(m_outdatedTo, to);
    }
}

void RowStore::reserve(std::size_t count)
{
    if (m_table.size() >= count * 2)
        return;
    std::size_t size = 256;
    while (size < count * 2)
        size *= 2;
    m_table.assign(size, nullptr);
    for (Record *record : m_order) {
        if (record != &m_gap)
            enter(record);
    }
}

RowStore::Record *RowStore::lookUp(const std::string &id, quint32 hash) const
{
    const std::size_t mask = m_table.size() - 1;
    for (std::size_t at = hash & mask; m_table[at]; at = (at + 1) & mask) {
        if (m_table[at]->hash == hash && m_table[at]->id.is(id))
            return m_table[at];
    }
    return nullptr;
}

void RowStore::enter(Record *record)
{
    const std::size_t mask = m_table.size() - 1;
    std::size_t at = record->hash & mask;
    while (m_table[at])
        at = (at + 1) & mask;
    m_table[at] = record;
}

void RowStore::forget(const Record *record)
{
    const std::size_t mask = m_table.size() - 1;
    std::size_t hole = record->hash & mask;
    while (m_table[hole] != record)
        hole = (hole + 1) & mask;
    // What was entered behind because this place was taken comes forward, so that no look-up ends at the hole.
    for (std::size_t at = (hole + 1) & mask; m_table[at]; at = (at + 1) & mask) {
        const std::size_t home = m_table[at]->hash & mask;
        if (((at - home) & mask) >= ((at - hole) & mask)) {
            m_table[hole] = m_table[at];
            hole = at;
        }
    }
    m_table[hole] = nullptr;
}

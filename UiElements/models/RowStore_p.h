#pragma once

#include <UiElements/models/BaseListModel.h>

#include <QMap>

#include <bitset>
#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// A part of something as that was passed, as a temporary or not: to be moved out of it, or to be copied.
template <typename Whole, typename Part>
decltype(auto) passed(Part &part)
{
    if constexpr (std::is_lvalue_reference_v<Whole>)
        return static_cast<const Part &>(part);
    else
        return std::move(part);
}

/// The id of a row. One of up to 39 characters, such as a UUID, is kept in place: it needs no block of its own, and to
/// compare it, no other memory is looked at than the row.
class RowId
{
public:
    RowId() = default;
    ~RowId() { clear(); }
    RowId(const RowId &) = delete;
    RowId &operator=(const RowId &) = delete;

    void clear();
    void set(const std::string &id);
    bool is(const std::string &id) const
    {
        return m_size == Elsewhere ? *elsewhere() == id
                                   : m_size == id.size() && std::memcmp(m_text, id.data(), m_size) == 0;
    }
    std::string toString() const { return m_size == Elsewhere ? *elsewhere() : std::string(m_text, m_size); }

private:
    const std::string *elsewhere() const
    {
        const std::string *text;
        std::memcpy(&text, m_text, sizeof text);
        return text;
    }

    static constexpr quint8 Elsewhere = 255; // m_text is a pointer
    char m_text[39] = {};
    quint8 m_size = 0;
};

/// The rows of a BaseListModel, with the index from id to row.
///
/// A row keeps its values in one block, in slots that the model's roles share, instead of a map of its own: less than
/// half of the memory, and a value is found without hashing. Rows are pointers in a deque, so both ends are cheap to
/// change. The index is a hash table of the same pointers. A row remembers its number relative to a base that moves
/// when rows come or go at the front; numbers that are out of date are brought up to date when somebody asks.
class RowStore
{
public:
    using Row = BaseListModel::Row;
    using Values = Row::second_type;

    RowStore();

    int count() const { return int(m_order.size()); }
    int find(const std::string &id) const; ///< the row; -1 where there is none
    bool isId(int row, const std::string &id) const { return record(row).id.is(id); }
    /// Null where the row does not hold the role.
    const QVariant *value(int row, int role) const
    {
        const int slot = slotOf(role);
        const Record &asked = record(row);
        if (slot < 0 || slot >= asked.valueCount || !asked.values[std::size_t(slot)].isValid())
            return nullptr;
        return m_hasEmptyValues ? asGiven(asked.values[std::size_t(slot)]) : &asked.values[std::size_t(slot)];
    }
    Row row(int row) const;
    QMap<int, QVariant> values(int row) const;

    /// Makes rows without id and values: room to be filled or removed again.
    void openGap(int row, int count);
    bool isGap(int row) const { return m_order[std::size_t(row)] == &m_gap; }
    /// Puts a row into a gap. False if its id is present already.
    bool fill(int row, const Row &content) { return fillWith(row, content); }
    bool fill(int row, Row &&content) { return fillWith(row, std::move(content)); }
    void remove(int row, int count);
    void move(int from, int to, int count); ///< row `to` is the first of them afterwards
    void reorder(const std::vector<int> &places); ///< places[row] is the row it becomes
    void clear();

    /// To give many rows other ids: forget all, then set each.
    void forgetIds();
    void setId(int row, const std::string &id);

    enum Others { KeepOthers, DropOthers }; ///< what becomes of the roles that are not given
    /// Appends the roles that have another value now. What is the same is not touched.
    void assign(int row, const Values &values, Others others, std::vector<int> *changed)
    {
        assignFrom(row, values, others, changed);
    }
    void assign(int row, Values &&values, Others others, std::vector<int> *changed)
    {
        assignFrom(row, std::move(values), others, changed);
    }
    void setValue(int row, int role, const QVariant &value); ///< of a valid role, also a new one

private:
    struct alignas(64) Record // one line of the processor's cache
    {
        RowId id;
        quint32 hash = 0;
        quint32 number = 0; // row + m_base, if m_order has the record there
        std::unique_ptr<QVariant[]> values; // by slot; invalid where the row does not hold the role
        int valueCount = 0;
    };

    template <typename Content>
    bool fillWith(int row, Content &&content);
    template <typename Given>
    void assignFrom(int row, Given &&values, Others others, std::vector<int> *changed);

    const Record &record(int row) const { return *m_order[std::size_t(row)]; }
    Record &record(int row) { return *m_order[std::size_t(row)]; }
    Record *newRecord();
    const QVariant *asGiven(const QVariant &stored) const;
    template <typename Value>
    void put(Record &record, int slot, Value &&value);
    static void makeRoom(Record &record, int count);

    int slotOf(int role) const
    {
        const auto near = unsigned(role) - unsigned(Qt::UserRole);
        if (near < m_slots.size())
            return m_slots[near];
        return m_farSlots.empty() ? -1 : farSlotOf(role);
    }
    int farSlotOf(int role) const;
    int slotFor(int role); // makes one; -1 for a role that is too low

    void setNumbers(int from, int to) const;
    void outdate(int from, int to);

    void reserve(std::size_t count);
    Record *lookUp(const std::string &id, quint32 hash) const;
    void enter(Record *record);
    void forget(const Record *record);

    std::deque<Record *> m_order;
    std::deque<Record> m_records; // in no order; addresses stay
    std::vector<Record *> m_unused;
    Record m_gap;

    std::vector<Record *> m_table; // open addressing, at most half full
    quint32 m_base = 0;
    mutable int m_outdatedFrom = 0; // rows whose numbers may be wrong
    mutable int m_outdatedTo = 0;

    std::vector<int> m_slots; // by role - Qt::UserRole, -1 for none
    std::unordered_map<int, int> m_farSlots;
    std::vector<int> m_roles; // by slot
    std::bitset<Qt::UserRole + 1> m_refusedRoles;
    bool m_hasEmptyValues = false;
};

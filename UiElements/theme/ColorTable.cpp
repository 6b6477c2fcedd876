#include "ColorTable_p.h"

#include <cstring>

namespace {

void writeHex(char16_t *out, QRgb rgba)
{
    static constexpr char16_t digits[] = u"0123456789abcdef";
    out[0] = u'#';
    for (int i = 0; i < 8; ++i)
        out[1 + i] = digits[(rgba >> (28 - 4 * i)) & 15];
}

quint64 nextGeneration()
{
    static quint64 last = 0;
    return ++last;
}

} // namespace

ColorTable::ColorTable()
    : m_generation(nextGeneration())
{
}

ColorTable::ColorTable(const WColorSets &sets)
    : ColorTable()
{
    m_entries.reserve(sets.size());
    m_index.reserve(sets.size());
    for (const auto &[name, set] : sets) {
        m_index.emplace(name, int(m_entries.size()));
        m_entries.push_back(entryFor(set));
    }
}

ColorTable::ColorTable(const WColorSets &sets, const std::vector<std::string> &names)
    : ColorTable()
{
    for (const std::string &name : names) {
        const auto it = sets.find(name);
        if (it != sets.end() && m_index.emplace(name, int(m_entries.size())).second)
            m_entries.push_back(entryFor(it->second));
    }
}

int ColorTable::find(const std::string &name) const
{
    const auto it = m_index.find(name);
    return it == m_index.end() ? -1 : it->second;
}

ColorTable::Entry ColorTable::entryFor(const WColorSet &set)
{
    Entry entry;
    for (int state = 0; state < WColorSet::StateCount; ++state)
        writeHex(entry.hex[state], set.color(WColorSet::State(state)).rgba());
    entry.focusShows = set.focused() != set.normal();
    return entry;
}

const ColorTable::Entry &ColorTable::unknown()
{
    static const Entry entry = entryFor(WColorSet());
    return entry;
}

#pragma once

#include <UiElements/theme/WColorSet.h>

#include <string>
#include <unordered_map>
#include <vector>

/// One registry of color sets, prepared for writing style sheets: every color stands ready as "#aarrggbb".
///
/// Writing the hexadecimal texts of 600 sets takes a few hundredths of a millisecond, once for each theme; doing it in
/// every expansion would be most of the cost of a theme switch after Qt's own share.
class ColorTable
{
public:
    static constexpr int HexLength = 9;

    struct Entry
    {
        char16_t hex[WColorSet::StateCount][HexLength];
        /// The focused color differs from the normal one, so the focused state shows.
        bool focusShows;
    };

    ColorTable();
    explicit ColorTable(const WColorSets &sets);
    /// Only the named ones: for a single expansion against sets that are not a registry of the application.
    ColorTable(const WColorSets &sets, const std::vector<std::string> &names);

    /// Index of the set for at(), or -1 for an unknown name.
    int find(const std::string &name) const;
    const Entry &at(int index) const { return m_entries[std::size_t(index)]; }
    /// What an unknown set is written as: the text of an invalid color in every state.
    static const Entry &unknown();
    /// Differs between any two tables of a process, so what was resolved against one is never used with another.
    quint64 generation() const { return m_generation; }

    static Entry entryFor(const WColorSet &set);

private:
    std::unordered_map<std::string, int> m_index;
    std::vector<Entry> m_entries;
    quint64 m_generation;
};

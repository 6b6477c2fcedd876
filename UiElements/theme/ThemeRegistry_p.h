#pragma once

#include <UiElements/theme/ColorTable_p.h>

#include <memory>

/// One registry of the application: its color sets and, from their first use on, the table that is written from.
class ThemeRegistry
{
public:
    const WColorSets &sets() const { return m_sets; }
    void setSets(const WColorSets &sets)
    {
        // Hosts announce everything whenever anything changed. The table stays, and with it what was written from it.
        if (sets == m_sets)
            return;
        m_sets = sets;
        m_table.reset();
    }
    const std::shared_ptr<const ColorTable> &table() const
    {
        if (!m_table)
            m_table = std::make_shared<ColorTable>(m_sets);
        return m_table;
    }

private:
    WColorSets m_sets;
    mutable std::shared_ptr<const ColorTable> m_table;
};

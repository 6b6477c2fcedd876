#pragma once

#include <UiElements/theme/WColorSet.h>

#include <initializer_list>

/// Color sets in which every color spells its place: set 2, state 3 is QColor(2, 3, blue), so that a wrong look-up
/// names itself.
inline WColorSets spelledSets(std::initializer_list<const char *> names, int blue = 0)
{
    WColorSets sets;
    int number = 0;
    for (const char *name : names) {
        WColorSet set(QString::fromLatin1(name));
        for (int state = 0; state < WColorSet::StateCount; ++state)
            set.setColor(WColorSet::State(state), QColor(number, state, blue));
        sets.emplace(name, set);
        ++number;
    }
    return sets;
}

inline WColorSet plainSet(const char *name, const QColor &color)
{
    WColorSet set(QString::fromLatin1(name));
    set.fill(color);
    return set;
}

#pragma once

#include <UiElements/emoji/EmojiVariation.h>

#include <QStringList>

#include <vector>

namespace EmojiPicker {

struct Emoji
{
    /// The base form first, then the skin tones from light to dark. A tone that the catalogue lacks leaves no gap, so
    /// the position of a tone does not tell which one it is.
    std::vector<EmojiVariation> variations;
    QStringList keywords; ///< in the user's language
    /// As in the catalogue: who writes another language often knows the English words too, and search() takes both.
    QString englishName;
    QStringList englishKeywords;
};

} // namespace EmojiPicker

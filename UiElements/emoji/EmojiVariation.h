#pragma once

#include <QString>

namespace EmojiPicker {

/// One form of an emoji that can be drawn: the base form or one skin tone.
struct EmojiVariation
{
    QString name; ///< the short name of the emoji, its key in the catalogue
    QString localisedName; ///< the English name in the user's language
    QString text; ///< the emoji as characters
    QString unified; ///< its code points as the catalogue writes them: "1F44D-1F3FB"
    /// The cell in the sprite sheet, never negative in a catalogue.
    qint32 sheetX = -1;
    qint32 sheetY = -1;
};

} // namespace EmojiPicker

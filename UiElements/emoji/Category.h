#pragma once

#include <QString>

#include <vector>

namespace EmojiPicker {

struct Category
{
    bool hasSkinVariations = false; ///< whether pickers offer a choice of tones here
    QString id;
    QString name;
    /// Indices into EmojiData::names() and emojis(), in the order of display.
    std::vector<quint16> emojis;
};

} // namespace EmojiPicker

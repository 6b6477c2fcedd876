#pragma once

#include <QtGlobal>

/// What a code point is within a sequence of emoji, known from the one before it.
enum class EmojiPlace : quint8 {
    Outside, ///< no part of the pending sequence; begins none where there is no other before it
    Base, ///< an emoji, alone or behind a joiner
    Tone,
    Presentation, ///< U+FE0F
    Joiner, ///< U+200D
    FirstRegion, ///< alone it is a letter
    Region, ///< the second of a pair: together they are a flag
    KeycapBase, ///< a digit, "#" or "*"; without a keycap it is just that
    KeycapPresentation,
    Keycap, ///< U+20E3
    Tag, ///< U+E0020 to U+E007E
    TagEnd ///< U+E007F
};

/// With Outside as the place before, tells whether the code point begins a sequence.
EmojiPlace emojiPlace(EmojiPlace before, uint codePoint);

/// The place of the character, as what begins a sequence. Characters below U+2000 are not asked about here, except
/// for two: U+00A9 and U+00AE.
bool beginsEmoji(ushort codeUnit);

/// The longest run of characters that may be one emoji, and where it could be cut if it is none.
struct EmojiSequence
{
    static constexpr int MaxCodePoints = 16; // the longest emoji have ten

    /// The first code point must begin a sequence.
    EmojiSequence(const ushort *begin, const ushort *end);

    int ends[MaxCodePoints]; ///< in code units, of what may be an emoji of its own, shortest first
    int count = 0; ///< of the ends
    int textLength = 0; ///< what stays text when no prefix is an emoji
};

/// Finds the longest prefix of the sequence for which `find` answers something. Answers that, and how many code units
/// it stands for; nothing, and how many of them are text, when there is no such prefix.
template <typename Find>
auto resolveEmoji(const ushort *begin, const ushort *end, int *length, Find find)
{
    const EmojiSequence sequence(begin, end);
    for (int i = sequence.count - 1; i >= 0; --i) {
        *length = sequence.ends[i];
        if (auto found = find(begin, *length))
            return found;
    }
    *length = sequence.textLength;
    return decltype(find(begin, 0))();
}

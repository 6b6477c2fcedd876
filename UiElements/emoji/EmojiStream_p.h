#pragma once

#include <UiElements/emoji/EmojiData.h>

#include <QByteArray>

#include <array>

namespace EmojiPicker {

/// Reads a catalogue from the bytes of its file without a document in between.
///
/// Either the result is what EmojiParser::parseObject() makes of the document, or it is null, which says nothing about
/// the file: whatever no catalogue needs is left to the document (another type than expected, a key that occurs twice,
/// \u, signs and fractions in numbers, any error).
std::shared_ptr<const EmojiData> streamCatalogue(const QByteArray &json, const std::array<QString, 5> &modifiers);

} // namespace EmojiPicker

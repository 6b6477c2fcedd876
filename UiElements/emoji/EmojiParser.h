#pragma once

#include <UiElements/emoji/IEmojiParser.h>

#include <QString>

#include <array>

namespace EmojiPicker {

/// Reads the JSON format of the shipped catalogue.
///
/// Names and keywords are translated in the context "EmojiLocalisation" as they are read: a catalogue stays in the
/// language in which it was parsed.
///
/// An emoji is omitted, from the list of names too, if it has no valid cell or if its code points are not hexadecimal
/// numbers of Unicode characters joined by "-". A skin tone is omitted for the same faults. Keywords that are no
/// strings are left out.
class UIELEMENTS_EXPORT EmojiParser : public IEmojiParser
{
public:
    EmojiParser();

    /// Same as parseObject() of the document in the file, which a derived class may replace. This class itself mostly
    /// gets along without a document, in less than half of the time.
    std::shared_ptr<const EmojiData> parseFile(const QString &path) override;
    std::shared_ptr<const EmojiData> parseObject(const QJsonObject &root) override;

protected:
    /// For a derived parseObject(): the file that parseFile() is reading; empty outside of it.
    QString currentFile() const { return m_currentFile; }

private:
    std::array<QString, 5> m_modifiers; ///< of skin tones, from light to dark
    QString m_currentFile;
};

} // namespace EmojiPicker

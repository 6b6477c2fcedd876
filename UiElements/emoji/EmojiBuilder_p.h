#pragma once

#include <UiElements/emoji/EmojiData.h>

#include <algorithm>
#include <array>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>

namespace EmojiPicker {

/// A text of the catalogue and what it is in the user's language. Where they are equal they share their characters.
struct Word
{
    QString english;
    QString translated;

    static Word fromUtf8(std::string_view text);
    static Word fromString(const QString &text);
};

/// Translates each text once, however often the catalogue has it. The words stay where they are.
template <typename Key>
class WordTable
{
public:
    WordTable() { m_words.reserve(8192); }

    template <typename Translate>
    const Word *find(const Key &text, Translate translate)
    {
        const auto [at, isNew] = m_words.try_emplace(text);
        if (isNew)
            at->second = translate(text);
        return &at->second;
    }

private:
    // Thousands of small nodes that go all at once.
    std::pmr::monotonic_buffer_resource m_memory {512 * 1024};
    std::pmr::unordered_map<Key, Word> m_words {&m_memory};
};

struct RawForm
{
    QString unified;
    int sheetX = -1;
    int sheetY = -1;
};

/// What a catalogue says of an emoji, before anything is checked.
struct RawEmoji
{
    QString name;
    const Word *label = nullptr; ///< may be null
    std::vector<const Word *> keywords;
    RawForm base;
    std::array<RawForm, 5> tones;
};

/// The rules by which a catalogue comes about, wherever its parts were read from.
class EmojiBuilder
{
public:
    void addEmoji(RawEmoji &&raw);
    /// To be called between the last emoji and the first category. False if a name was given twice.
    bool sortEmojis();
    /// Null if the category is dropped.
    Category *addCategory(const QString &id, const QString &name, bool hasSkinVariations);
    template <typename Name>
    void addToCategory(Category *category, const Name &shortName) const
    {
        addressable(indexOf(m_names, shortName), &category->emojis);
    }
    std::shared_ptr<const EmojiData> take();

    template <typename Name>
    static int indexOf(const std::vector<QString> &names, const Name &shortName)
    {
        const auto at = std::lower_bound(names.begin(), names.end(), shortName);
        return at != names.end() && *at == shortName ? int(at - names.begin()) : -1;
    }
    /// Appends the index unless it is negative or needs more than its 16 bits.
    static void addressable(int index, std::vector<quint16> *to)
    {
        if (index >= 0 && index < MaxAddressableEmojis)
            to->push_back(quint16(index));
    }

private:
    std::vector<QString> m_names;
    std::vector<QString> m_omitted;
    EmojiPointers m_emojis;
    std::vector<std::shared_ptr<Category>> m_categories;
};

} // namespace EmojiPicker

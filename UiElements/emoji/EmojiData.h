#pragma once

#include <UiElements/emoji/Category.h>
#include <UiElements/emoji/Emoji.h>
#include <UiElements/uielements_export.h>

#include <QLatin1String>

#include <memory>
#include <mutex>
#include <vector>

namespace EmojiPicker {

class EmojiSearchIndex;

/// The id of the category of recently used emoji, which no catalogue lists.
constexpr QLatin1String RecentsId("recents", 7);
/// The resource folder of the emoji images.
constexpr QLatin1String ImageFolder(":/emojis/", 9);
/// Higher indices have no place in a Category or in recents. Such an emoji is still found by name and by search.
constexpr int MaxAddressableEmojis = 65535;

using EmojiPointers = std::vector<std::shared_ptr<const Emoji>>;
using CategoryPointers = std::vector<std::shared_ptr<const Category>>;

/// The emoji catalogue. It never changes, so any thread may read it.
class UIELEMENTS_EXPORT EmojiData
{
public:
    /// The names must be sorted by QString's operator<, and the emojis be parallel to them.
    EmojiData(std::vector<QString> names, EmojiPointers emojis, CategoryPointers categories);
    ~EmojiData();
    EmojiData(const EmojiData &) = delete;
    EmojiData &operator=(const EmojiData &) = delete;

    const std::vector<QString> &names() const { return m_names; }
    const EmojiPointers &emojis() const { return m_emojis; }
    const CategoryPointers &categories() const { return m_categories; }

private:
    friend UIELEMENTS_EXPORT EmojiPointers search(const std::shared_ptr<const EmojiData> &catalogue,
                                                  const QString &query, int limit, int offset);
    const EmojiSearchIndex &searchIndex() const;

    const std::vector<QString> m_names;
    const EmojiPointers m_emojis;
    const CategoryPointers m_categories;
    // Made by the first search: most sessions never search.
    mutable std::once_flag m_indexMade;
    mutable std::unique_ptr<const EmojiSearchIndex> m_index;
};

/// The index of a short name, or -1. Case matters.
UIELEMENTS_EXPORT int findEmojiIndex(const std::shared_ptr<const EmojiData> &catalogue, const QString &shortName);

/// What stands under "recently used" before anything was used: those of fourteen popular emoji that the catalogue has.
UIELEMENTS_EXPORT std::vector<quint16> defaultRecents(const std::shared_ptr<const EmojiData> &catalogue);

/// The emoji that match every word of the query, best first.
///
/// Words are separated by blanks. Each is looked for in the short name, in the name and keywords in the user's language
/// and in those in English; case and accents do not count. A single letter must begin a word, if there is one that it
/// begins. First come the emoji whose whole name is the query. The others are sorted by how well the words match (a
/// whole word of theirs, the beginning of one, the inside of one); of those alike, the ones that people use most come
/// first, then those matched in the name, and then the order is that of the categories.
///
/// `offset` results are left out at the beginning and no more than `limit` are returned; a `limit` of 0 or below means
/// all, and a negative `offset` none. The first search in a catalogue makes its index, which takes some milliseconds.
UIELEMENTS_EXPORT EmojiPointers search(const std::shared_ptr<const EmojiData> &catalogue, const QString &query,
                                       int limit = 0, int offset = 0);

} // namespace EmojiPicker

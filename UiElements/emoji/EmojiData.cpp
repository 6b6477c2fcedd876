#include <UiElements/emoji/EmojiData.h>

#include <UiElements/emoji/EmojiBuilder_p.h>
#include <UiElements/emoji/EmojiSearch_p.h>

#include <algorithm>

namespace EmojiPicker {

EmojiData::EmojiData(std::vector<QString> names, EmojiPointers emojis, CategoryPointers categories)
    : m_names(std::move(names))
    , m_emojis(std::move(emojis))
    , m_categories(std::move(categories))
{
    Q_ASSERT(m_names.size() == m_emojis.size());
    Q_ASSERT(std::is_sorted(m_names.begin(), m_names.end()));
}

EmojiData::~EmojiData() = default;

const EmojiSearchIndex &EmojiData::searchIndex() const
{
    std::call_once(m_indexMade, [this] { m_index = std::make_unique<EmojiSearchIndex>(*this); });
    return *m_index;
}

int findEmojiIndex(const std::shared_ptr<const EmojiData> &catalogue, const QString &shortName)
{
    return catalogue ? EmojiBuilder::indexOf(catalogue->names(), shortName) : -1;
}

std::vector<quint16> defaultRecents(const std::shared_ptr<const EmojiData> &catalogue)
{
    static constexpr const char *Names[] {
        "+1",  "grinning", "kissing_heart", "heart_eyes", "laughing", "stuck_out_tongue", "sweat_smile",
        "joy", "scream",   "blush",         "sunglasses", "wink",     "heartpulse",       "sob",
    };
    std::vector<quint16> out;
    for (const char *name : Names)
        EmojiBuilder::addressable(findEmojiIndex(catalogue, QLatin1String(name)), &out);
    return out;
}

EmojiPointers search(const std::shared_ptr<const EmojiData> &catalogue, const QString &query, int limit, int offset)
{
    if (!catalogue || query.isEmpty())
        return {};
    return catalogue->searchIndex().search(query, limit, offset);
}

} // namespace EmojiPicker

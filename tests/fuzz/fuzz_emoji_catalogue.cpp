// A catalogue read from its bytes is the one that is read through a document, and can be searched for anything.

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiSearch_p.h>
#include <UiElements/emoji/EmojiStream_p.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdint>
#include <cstdlib>

using namespace EmojiPicker;

namespace {

void require(bool holds)
{
    if (!holds)
        abort();
}

bool isSame(const EmojiVariation &a, const EmojiVariation &b)
{
    return a.name == b.name && a.localisedName == b.localisedName && a.text == b.text && a.unified == b.unified
        && a.sheetX == b.sheetX && a.sheetY == b.sheetY;
}

void requireSame(const EmojiData &a, const EmojiData &b)
{
    require(a.names() == b.names() && a.categories().size() == b.categories().size());
    for (std::size_t i = 0; i < a.emojis().size(); ++i) {
        const Emoji &x = *a.emojis()[i], &y = *b.emojis()[i];
        require(std::equal(x.variations.begin(), x.variations.end(), y.variations.begin(), y.variations.end(), isSame));
        require(x.keywords == y.keywords && x.englishName == y.englishName && x.englishKeywords == y.englishKeywords);
    }
    for (std::size_t i = 0; i < a.categories().size(); ++i) {
        const Category &x = *a.categories()[i], &y = *b.categories()[i];
        require(x.id == y.id && x.name == y.name && x.hasSkinVariations == y.hasSkinVariations && x.emojis == y.emojis);
    }
}

void requireSound(const EmojiData &catalogue)
{
    require(catalogue.names().size() == catalogue.emojis().size());
    for (std::size_t i = 0; i < catalogue.emojis().size(); ++i) {
        for (const EmojiVariation &form : catalogue.emojis()[i]->variations)
            require(!form.text.isEmpty() && form.text.isValidUtf16() && form.sheetX >= 0 && form.sheetY >= 0);
        require(i == 0 || catalogue.names()[i - 1] < catalogue.names()[i]);
    }
    for (const auto &category : catalogue.categories()) {
        require(!category->id.isEmpty() && !category->name.isEmpty());
        for (const quint16 index : category->emojis)
            require(index < catalogue.emojis().size());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    const auto catalogue = EmojiParser().parseObject(QJsonDocument::fromJson(json).object());
    const auto streamed = streamCatalogue(json,
                                          {QStringLiteral("1F3FB"), QStringLiteral("1F3FC"), QStringLiteral("1F3FD"),
                                           QStringLiteral("1F3FE"), QStringLiteral("1F3FF")});
    require(catalogue || !streamed);
    if (!catalogue)
        return 0;
    requireSound(*catalogue);
    if (streamed)
        requireSame(*catalogue, *streamed);

    // Whatever stands in the file is looked for; a piece of it is as good a query as any.
    for (const int length : {1, 2, 5, 30}) {
        const QString query = QString::fromUtf8(json.mid(json.size() / 3, length));
        const EmojiPointers all = search(catalogue, query);
        require(search(catalogue, query, 2, 1)
                == EmojiPointers(all.begin() + std::min<qptrdiff>(1, qptrdiff(all.size())),
                                 all.begin() + std::min<qptrdiff>(3, qptrdiff(all.size()))));
    }
    for (const auto &emoji : catalogue->emojis()) {
        const QString &name = emoji->variations.front().name;
        const EmojiPointers found = search(catalogue, name);
        const QString compared = foldForSearch(name);
        const bool hasWord =
            std::any_of(compared.begin(), compared.end(), [](QChar c) { return c.isLetterOrNumber(); });
        require(!hasWord || name.contains(QChar::Null) || std::count(found.begin(), found.end(), emoji) == 1);
    }
    return 0;
}

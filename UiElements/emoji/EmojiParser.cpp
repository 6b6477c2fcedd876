#include <UiElements/emoji/EmojiParser.h>

#include <UiElements/emoji/EmojiBuilder_p.h>
#include <UiElements/emoji/EmojiStream_p.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <typeinfo>

namespace EmojiPicker {

EmojiParser::EmojiParser()
    : m_modifiers {QStringLiteral("1F3FB"), QStringLiteral("1F3FC"), QStringLiteral("1F3FD"), QStringLiteral("1F3FE"),
                   QStringLiteral("1F3FF")}
{
}

std::shared_ptr<const EmojiData> EmojiParser::parseFile(const QString &path)
{
    // A pipe would wait, and a device may never end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray json = file.readAll();
    // A derived class may have a second stage of its own.
    if (typeid(*this) == typeid(EmojiParser)) {
        if (auto catalogue = streamCatalogue(json, m_modifiers))
            return catalogue;
    }
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    if (root.isEmpty())
        return nullptr;
    m_currentFile = path;
    auto catalogue = parseObject(root);
    m_currentFile.clear();
    return catalogue;
}

std::shared_ptr<const EmojiData> EmojiParser::parseObject(const QJsonObject &root)
{
    const QJsonObject emojis = root.value(QLatin1String("emojis")).toObject();
    const QJsonArray categories = root.value(QLatin1String("categories")).toArray();
    if (emojis.isEmpty() || categories.isEmpty())
        return nullptr;

    EmojiBuilder builder;
    WordTable<QString> words;
    std::vector<const Word *> keywords;
    for (auto it = emojis.constBegin(); it != emojis.constEnd(); ++it) {
        const QJsonObject emoji = it.value().toObject();
        RawEmoji raw;
        raw.name = it.key();
        raw.label = words.find(emoji.value(QLatin1String("a")).toString(), Word::fromString);
        const QJsonArray list = emoji.value(QLatin1String("j")).toArray();
        raw.keywords.swap(keywords); // keeps its memory from one to the next
        raw.keywords.clear();
        for (const QJsonValue &keyword : list) {
            if (keyword.isString())
                raw.keywords.push_back(words.find(keyword.toString(), Word::fromString));
        }
        raw.base.unified = emoji.value(QLatin1String("b")).toString();
        const QJsonArray cell = emoji.value(QLatin1String("k")).toArray();
        if (cell.size() == 2) {
            raw.base.sheetX = cell.at(0).toInt(-1);
            raw.base.sheetY = cell.at(1).toInt(-1);
        }
        const QJsonObject tones = emoji.value(QLatin1String("skin_variations")).toObject();
        for (std::size_t i = 0; !tones.isEmpty() && i < m_modifiers.size(); ++i) {
            const QJsonObject tone = tones.value(m_modifiers[i]).toObject();
            raw.tones[i] = {tone.value(QLatin1String("unified")).toString(),
                            tone.value(QLatin1String("sheet_x")).toInt(-1),
                            tone.value(QLatin1String("sheet_y")).toInt(-1)};
        }
        builder.addEmoji(std::move(raw));
        keywords.swap(raw.keywords);
    }
    builder.sortEmojis();

    for (const QJsonValue &value : categories) {
        const QJsonObject category = value.toObject();
        Category *const made = builder.addCategory(category.value(QLatin1String("id")).toString(),
                                                   category.value(QLatin1String("name")).toString(),
                                                   category.value(QLatin1String("has_skin_variantions")).toBool());
        if (!made)
            continue;
        const QJsonArray names = category.value(QLatin1String("emojis")).toArray();
        made->emojis.reserve(std::size_t(names.size()));
        for (const QJsonValue &name : names) {
            if (name.isString())
                builder.addToCategory(made, name.toString());
        }
    }
    return builder.take();
}

} // namespace EmojiPicker

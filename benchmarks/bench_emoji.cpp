// Reading the emoji catalogue and searching it while somebody types.

#include "Bench.h"

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <memory>

namespace {

using namespace EmojiPicker;

using Catalogue = std::shared_ptr<const EmojiData>;

constexpr int ResultsOfPicker = 40; ///< about what a picker shows at once

struct State
{
    QString path = QStringLiteral(":/emoji-data/emoji.json");
    QByteArray json;
    Catalogue catalogue;
    QStringList keystrokes;
};

// Without an index or a rank: everything that has all words somewhere.
EmojiPointers searchLiterally(const EmojiData &catalogue, const QString &query)
{
    const QStringList words = query.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    EmojiPointers out;
    for (const auto &emoji : catalogue.emojis()) {
        const EmojiVariation &base = emoji->variations.front();
        const bool hasAll = std::all_of(words.begin(), words.end(), [&](const QString &word) {
            const auto has = [&word](const QString &text) {
                return text.contains(word, Qt::CaseInsensitive);
            };
            return has(base.name) || has(base.localisedName)
                || std::any_of(emoji->keywords.begin(), emoji->keywords.end(), has);
        });
        if (hasAll)
            out.push_back(emoji);
    }
    return out;
}

const QLatin1String Document("fromJson alone");
const QLatin1String ParseFile("parseFile");
const QLatin1String ParseObject("fromJson and parseObject");
const QLatin1String Indexed("search");
const QLatin1String Everything("contains() over everything");
const QLatin1String FirstSearch("first search");

} // namespace

bench::Subject bench::emojiCatalogue()
{
    const auto s = std::make_shared<State>();

    Subject subject;
    subject.name = QLatin1String("emoji catalogue");
    subject.rounds = 41;
    subject.quickRounds = 11;
    subject.prepare = [s] {
        EmojiResources::ensureRegistered();
        QFile file(s->path);
        if (!file.open(QIODevice::ReadOnly))
            return QStringLiteral("cannot read %1").arg(s->path);
        s->json = file.readAll();
        s->catalogue = EmojiParser().parseFile(s->path);
        const Catalogue other = EmojiParser().parseObject(QJsonDocument::fromJson(s->json).object());
        if (!s->catalogue || s->catalogue->names() != other->names())
            return QStringLiteral("the two ways of reading give different catalogues");
        const QString typed = QStringLiteral("heart eyes");
        for (int length = 1; length <= typed.size(); ++length) {
            const QString query = typed.left(length);
            s->keystrokes << query;
            // A single letter is only looked for at the beginning of words.
            const bool isLetter = query.split(QLatin1Char(' ')).constLast().size() == 1;
            if (!isLetter && search(s->catalogue, query).size() < searchLiterally(*s->catalogue, query).size())
                return QStringLiteral("search() finds less than contains() for \"%1\"").arg(query);
        }
        return QString();
    };
    const auto perKeystroke = [s](int times, auto find) {
        return [s, times, find] {
            const double start = microseconds();
            for (int i = 0; i < times; ++i) {
                for (const QString &query : qAsConst(s->keystrokes))
                    keep(find(query));
            }
            return (microseconds() - start) / times / s->keystrokes.size();
        };
    };
    subject.variants = {
        {Document, repeated(1, [s] { keep(QJsonDocument::fromJson(s->json)); })},
        {ParseFile, repeated(1, [s] { keep(EmojiParser().parseFile(s->path)); })},
        {ParseObject, repeated(1, [s] { keep(EmojiParser().parseObject(QJsonDocument::fromJson(s->json).object())); })},
        {Indexed,
         perKeystroke(200, [s](const QString &query) { return search(s->catalogue, query, ResultsOfPicker); })},
        {Everything, perKeystroke(1, [s](const QString &query) { return searchLiterally(*s->catalogue, query); })},
        {FirstSearch,
         [s] {
             const Catalogue fresh = EmojiParser().parseFile(s->path);
             const double start = microseconds();
             keep(search(fresh, QStringLiteral("h"), ResultsOfPicker));
             return microseconds() - start;
         }},
    };
    subject.rows = {
        {QLatin1String("emoji: parseFile"), ParseFile, Document, 0.9},
        {QLatin1String("emoji: parseObject with its document"), ParseObject, Document, 2.3},
        {QLatin1String("emoji: search, per keystroke"), Indexed, Everything, 0.003},
        {QLatin1String("emoji: first search, with its index"), FirstSearch, Document, {}},
    };
    return subject;
}

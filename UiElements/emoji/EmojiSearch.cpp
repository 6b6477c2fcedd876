#include <UiElements/emoji/EmojiSearch_p.h>

#include <QSet>
#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace EmojiPicker {

namespace {

// How a word of the query was found in an emoji; several may hold.
constexpr quint8 Inside = 1;
constexpr quint8 Start = 2;
constexpr quint8 Whole = 4;
constexpr quint8 InName = 8; ///< Start or Whole, and in one of the names

constexpr int MaxRankedWords = 8; ///< more words have to match too, but how they do does not count

// What puts an emoji further behind, each more than all that follow can add up to.
constexpr quint32 Distance = 32; ///< of a word of the query from a word of the emoji
constexpr quint32 Rare = 16;
constexpr quint32 NotInName = 1; ///< for a word that only a keyword has
constexpr quint32 CostOfWord = 2 * Distance + NotInName;
constexpr std::size_t MaxCost = MaxRankedWords * CostOfWord + Rare;

constexpr std::array<quint8, 16> costs()
{
    std::array<quint8, 16> out {};
    for (std::size_t match = 0; match < out.size(); ++match)
        out[match] = quint8((match & Whole       ? 0
                                 : match & Start ? Distance
                                                 : 2 * Distance)
                            + (match & InName ? 0 : NotInName));
    return out;
}
constexpr std::array<quint8, 16> CostOfMatch = costs();

QChar folded(QChar c)
{
    switch (c.unicode()) {
    case 0x0131: return QLatin1Char('i'); // Turkish: an I in other languages
    case 0x0111: return QLatin1Char('d');
    case 0x00F8: return QLatin1Char('o');
    case 0x0142: return QLatin1Char('l');
    case 0x0671: return QChar(0x0627); // Arabic: forms of one letter that people write for each other
    case 0x0649: return QChar(0x064A);
    case 0x06CC: return QChar(0x064A);
    case 0x06A9: return QChar(0x0643);
    case 0x0629: return QChar(0x0647);
    default: return c;
    }
}

// Not all marks: in the scripts of India and Southeast Asia they are vowels.
bool isAccent(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 0x0300 && u <= 0x036F) || (u >= 0x0591 && u <= 0x05C7) // Hebrew
        || (u >= 0x0610 && u <= 0x061A) || u == 0x0640 || (u >= 0x064B && u <= 0x065F) || u == 0x0670 // Arabic
        || (u >= 0x06D6 && u <= 0x06ED && c.isMark()) || (u >= 0xFE00 && u <= 0xFE0F);
}

bool isPartOfWord(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c.isSurrogate();
}

bool hasLetter(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter() || c.isSurrogate(); });
}

/// Calls `take` with each run of letters and digits. A text without a letter, like "+1" and "<3", is one word.
template <typename Take>
void forEachPart(QStringView text, Take take)
{
    if (!hasLetter(text))
        return take(text);
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype start = at;
        while (at < text.size() && isPartOfWord(text.at(at)))
            ++at;
        if (at > start)
            take(text.mid(start, at - start));
        else
            ++at;
    }
}

/// The name as it is compared as a whole: "thumbs up" for "Thumbs_Up".
QString wholeName(QStringView foldedName)
{
    QString out;
    out.reserve(int(foldedName.size()));
    forEachPart(foldedName, [&out](QStringView part) {
        if (!out.isEmpty())
            out += QLatin1Char(' ');
        out.append(part.data(), int(part.size()));
    });
    return out;
}

quint64 headOf(QStringView text)
{
    quint64 head = 0;
    for (qsizetype i = 0; i < 4; ++i)
        head = head << 16 | (i < text.size() ? text.at(i).unicode() : 0);
    return head;
}

/// Short names of what people mean most often, in any order.
const QSet<QString> &popularEmojis()
{
    static const QSet<QString> names {
        QStringLiteral("+1"),
        QStringLiteral("airplane"),
        QStringLiteral("blush"),
        QStringLiteral("fire"),
        QStringLiteral("grin"),
        QStringLiteral("heart"),
        QStringLiteral("heart_eyes"),
        QStringLiteral("house"),
        QStringLiteral("joy"),
        QStringLiteral("kissing_heart"),
        QStringLiteral("laughing"),
        QStringLiteral("partying_face"),
        QStringLiteral("pray"),
        QStringLiteral("rolling_on_the_floor_laughing"),
        QStringLiteral("smiling_face_with_3_hearts"),
        QStringLiteral("sob"),
        QStringLiteral("sunglasses"),
        QStringLiteral("sweat_smile"),
        QStringLiteral("tada"),
        QStringLiteral("thinking_face"),
        QStringLiteral("two_hearts"),
        QStringLiteral("wave"),
    };
    return names;
}

} // namespace

QString foldForSearch(const QString &text)
{
    const bool isAscii = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (isAscii)
        return text.toLower();
    const QString apart = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    QString out;
    out.reserve(apart.size());
    for (const QChar c : apart) {
        if (c.unicode() == 0x00DF || c.unicode() == 0x1E9E) // sharp s
            out += QLatin1String("ss");
        else if (!isAccent(c))
            out += folded(c);
    }
    return out;
}

class EmojiSearchIndex::Maker
{
public:
    Maker(EmojiSearchIndex *index, const EmojiData &catalogue)
        : m_index(index)
    {
        putInOrder(catalogue);
        quint32 rank = 0;
        for (const auto &emoji : m_index->m_byRank) {
            const QString &name = emoji->variations.front().name;
            const QString &localisedName = emoji->variations.front().localisedName;
            addName(name, rank);
            addName(localisedName, rank);
            // Somebody may paste an emoji to learn its name.
            addText(foldForSearch(emoji->variations.front().text), rank, false);
            if (emoji->englishName != localisedName)
                addName(emoji->englishName, rank);
            addKeywords(emoji->keywords, rank);
            if (emoji->englishKeywords != emoji->keywords)
                addKeywords(emoji->englishKeywords, rank);
            ++rank;
        }
        finish();
    }

private:
    void putInOrder(const EmojiData &catalogue)
    {
        const EmojiPointers &emojis = catalogue.emojis();
        std::vector<bool> isPlaced(emojis.size());
        const auto place = [&](std::size_t at) {
            if (at < emojis.size() && !isPlaced[at]) {
                isPlaced[at] = true;
                m_index->m_byRank.push_back(emojis[at]);
                m_index->m_rarity.push_back(popularEmojis().contains(catalogue.names()[at]) ? 0 : Rare);
            }
        };
        for (const auto &category : catalogue.categories())
            std::for_each(category->emojis.begin(), category->emojis.end(), place);
        for (std::size_t at = 0; at < emojis.size(); ++at)
            place(at);
    }

    void addName(const QString &name, quint32 rank)
    {
        const QString text = foldForSearch(name);
        const QString whole = wholeName(text);
        if (!whole.isEmpty()) {
            std::vector<quint32> &ranks = m_index->m_byWholeName[whole];
            if (ranks.empty() || ranks.back() != rank)
                ranks.push_back(rank);
        }
        addText(text, rank, true);
    }

    void addKeywords(const QStringList &keywords, quint32 rank)
    {
        for (const QString &keyword : keywords) {
            auto it = m_folded.find(keyword); // most occur more than once
            if (it == m_folded.end())
                it = m_folded.insert(keyword, foldForSearch(keyword));
            addText(it.value(), rank, false);
        }
    }

    void addText(const QString &text, quint32 rank, bool isName)
    {
        // Separated as in a query, and as it stands, for ":d" and "heart-eyes".
        const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &word : words) {
            addWord(word, rank, isName);
            forEachPart(word, [&](QStringView part) {
                if (part.size() != word.size())
                    addWord(part.toString(), rank, isName);
            });
        }
    }

    void addWord(const QString &word, quint32 rank, bool isName)
    {
        if (word.isEmpty() || word.contains(QChar::Null))
            return;
        std::vector<Use> &uses = m_words[word];
        // The names of an emoji come before its keywords.
        if (uses.empty() || uses.back().rank != rank)
            uses.push_back({rank, isName});
    }

    void finish()
    {
        QStringList words = m_words.keys();
        std::sort(words.begin(), words.end());
        for (const QString &word : qAsConst(words)) {
            const auto number = quint32(m_index->m_firstUse.size());
            const auto start = quint32(m_index->m_text.size());
            const std::vector<Use> &uses = m_words[word];
            m_index->m_firstUse.push_back(quint32(m_index->m_uses.size()));
            m_index->m_uses.insert(m_index->m_uses.end(), uses.begin(), uses.end());
            m_index->m_text += word;
            m_index->m_text += QChar(QChar::Null);
            const QStringView text(word);
            m_index->m_starts.push_back({headOf(text), start, number});
            for (qsizetype i = 1; i < text.size(); ++i)
                m_index->m_insides.push_back({headOf(text.mid(i)), start + quint32(i), number});
        }
        m_index->m_firstUse.push_back(quint32(m_index->m_uses.size()));
        std::sort(m_index->m_insides.begin(), m_index->m_insides.end(), [this](const Place &a, const Place &b) {
            return a.head != b.head ? a.head < b.head : m_index->wordAt(a.at).compare(m_index->wordAt(b.at)) < 0;
        });
    }

    EmojiSearchIndex *const m_index;
    QHash<QString, QString> m_folded;
    QHash<QString, std::vector<Use>> m_words;
};

EmojiSearchIndex::EmojiSearchIndex(const EmojiData &catalogue)
{
    Maker(this, catalogue);
}

QStringView EmojiSearchIndex::wordAt(quint32 at) const
{
    const QChar *const start = m_text.constData() + at;
    return QStringView(start, std::find(start, m_text.constData() + m_text.size(), QChar(QChar::Null)));
}

EmojiSearchIndex::Range EmojiSearchIndex::startingWith(const Places &places, QStringView start) const
{
    const quint64 lowest = headOf(start);
    const int missing = 4 - int(std::min(start.size(), qsizetype(4)));
    const quint64 highest = lowest | ((quint64(1) << 16 * missing) - 1);
    const auto first = std::lower_bound(places.begin(), places.end(), lowest,
                                        [](const Place &place, quint64 head) { return place.head < head; });
    const auto last = std::upper_bound(first, places.end(), highest,
                                       [](quint64 head, const Place &place) { return head < place.head; });
    if (start.size() <= 4)
        return {first, last};
    const auto cut = [this, &start](const Place &place) {
        return QStringView(m_text).mid(place.at, std::min(start.size(), m_text.size() - qsizetype(place.at)));
    };
    return {std::lower_bound(first, last, start,
                             [&cut](const Place &place, QStringView text) { return cut(place).compare(text) < 0; }),
            std::upper_bound(first, last, start,
                             [&cut](QStringView text, const Place &place) { return text.compare(cut(place)) < 0; })};
}

void EmojiSearchIndex::mark(quint32 firstWord, quint32 endWord, quint8 kind, Matches *matches) const
{
    quint8 *const out = matches->data();
    const std::array<quint8, 2> kinds {kind, quint8(kind == Inside ? kind : kind | InName)};
    const Use *const end = m_uses.data() + m_firstUse[endWord];
    for (const Use *use = m_uses.data() + m_firstUse[firstWord]; use != end; ++use)
        out[use->rank] |= kinds[use->isName];
}

bool EmojiSearchIndex::findWord(QStringView word, Matches *matches) const
{
    matches->resize(int((m_byRank.size() + sizeof(quint64) - 1) / sizeof(quint64) * sizeof(quint64)));
    std::fill(matches->begin(), matches->end(), quint8(0));
    const Range starts = startingWith(m_starts, word);
    if (!starts.isEmpty()) {
        const quint32 first = starts.first->word;
        mark(first, first + quint32(starts.last - starts.first), Start, matches);
        // The word itself is the shortest that starts with it, so it comes first.
        if (wordAt(starts.first->at).size() == word.size())
            mark(first, first + 1, Whole, matches);
        // Nearly everything has a given letter inside. The signs of East Asian writing are words.
        if (word.size() == 1 && word.front().unicode() < 0x2E80)
            return true;
    }
    const Range insides = startingWith(m_insides, word);
    for (auto place = insides.first; place != insides.last; ++place)
        mark(place->word, place->word + 1, Inside, matches);
    return !starts.isEmpty() || !insides.isEmpty();
}

void EmojiSearchIndex::narrow(int word, const Matches &matches, Hits *hits) const
{
    if (word == 0) {
        // Eight at a time: most are zero.
        for (int block = 0; block < matches.size(); block += int(sizeof(quint64))) {
            auto eight = qFromLittleEndian<quint64>(matches.constData() + block);
            while (eight) {
                const uint bit = qCountTrailingZeroBits(eight) & ~7U;
                hits->append({quint32(block) + bit / 8, CostOfMatch[eight >> bit & 0xFF]});
                eight &= ~(quint64(0xFF) << bit);
            }
        }
    } else {
        const auto end = std::remove_if(hits->begin(), hits->end(), [&](Hit &hit) {
            const quint8 match = matches[int(hit.rank)];
            if (word < MaxRankedWords)
                hit.cost += CostOfMatch[match];
            return match == 0;
        });
        hits->resize(int(end - hits->begin()));
    }
}

EmojiPointers EmojiSearchIndex::search(const QString &query, int limit, int offset) const
{
    const QString text = foldForSearch(query);
    Hits hits;
    Matches matches;
    int words = 0;
    for (int start = 0, end = 0; start < text.size(); start = end + 1) {
        end = text.indexOf(QLatin1Char(' '), start);
        if (end < 0)
            end = text.size();
        const QStringView word = QStringView(text).mid(start, end - start);
        if (word.isEmpty())
            continue;
        if (findWord(word, &matches) || !hasLetter(word)) {
            narrow(words++, matches, &hits);
        } else {
            // ":heart:" and "thumbs-up", which no emoji has like this.
            forEachPart(word, [&](QStringView part) {
                findWord(part, &matches);
                narrow(words++, matches, &hits);
            });
        }
        if (hits.isEmpty())
            return {};
    }
    const int from = std::min(std::max(offset, 0), hits.size());
    const int rest = hits.size() - from;
    const int count = limit > 0 ? std::min(limit, rest) : rest;
    Ranks ranks;
    sort(hits, from + count, text, words, &ranks);
    EmojiPointers out;
    out.reserve(std::size_t(count));
    for (int i = from; i < from + count; ++i)
        out.push_back(m_byRank[ranks[i]]);
    return out;
}

/// The ranks of the hits from the best one down; what stands behind the first `count` is undefined.
void EmojiSearchIndex::sort(const Hits &hits, int count, const QString &query, int words, Ranks *ranks) const
{
    // There are few places, and the hits come in the order of their ranks. Counted by turns: many share a place, and
    // the next count of it would wait for the one before.
    std::array<std::array<quint32, MaxCost + 2>, 2> hitsAt;
    for (auto &counts : hitsAt)
        std::fill_n(counts.begin(), std::min(words, MaxRankedWords) * CostOfWord + Rare + 2, 0U);
    Ranks places(hits.size());
    for (int i = 0; i < hits.size(); ++i) {
        places[i] = 1 + hits[i].cost + m_rarity[hits[i].rank];
        ++hitsAt[i % 2][places[i]];
    }
    const auto named = m_byWholeName.constFind(wholeName(query.trimmed()));
    if (named != m_byWholeName.constEnd()) {
        for (const quint32 rank : *named) {
            const auto hit =
                std::lower_bound(hits.begin(), hits.end(), rank, [](const Hit &a, quint32 b) { return a.rank < b; });
            if (hit == hits.end() || hit->rank != rank)
                continue;
            quint32 &place = places[int(hit - hits.begin())];
            --hitsAt[0][place]; // only the sum counts
            ++hitsAt[0][place = 0];
        }
    }
    std::array<quint32, MaxCost + 2> nextAt;
    std::size_t end = 0; // of the places that the best hits have
    for (quint32 before = 0; before < quint32(count); ++end) {
        nextAt[end] = before;
        before += hitsAt[0][end] + hitsAt[1][end];
    }
    ranks->resize(hits.size());
    for (int i = 0; i < hits.size(); ++i) {
        if (places[i] < end)
            (*ranks)[int(nextAt[places[i]]++)] = hits[i].rank;
    }
}

} // namespace EmojiPicker

#pragma once

#include <UiElements/emoji/EmojiData.h>

#include <QHash>
#include <QStringList>
#include <QVarLengthArray>

namespace EmojiPicker {

/// The text as search() compares it: without case, accents and the signs that Arabic is usually written without.
QString foldForSearch(const QString &text);

/// Every word of a catalogue, sorted, and every place inside of one.
class EmojiSearchIndex
{
public:
    explicit EmojiSearchIndex(const EmojiData &catalogue);
    EmojiPointers search(const QString &query, int limit, int offset) const;

private:
    /// A place in m_text from which a word is read to its end.
    struct Place
    {
        quint64 head; ///< the first four characters, so that few comparisons need the text
        quint32 at;
        quint32 word;
    };
    using Places = std::vector<Place>;
    struct Range
    {
        Places::const_iterator first, last;
        bool isEmpty() const { return first == last; }
    };
    /// An emoji is known by its rank: its place in the order of the categories.
    struct Use
    {
        quint32 rank : 31;
        quint32 isName : 1;
    };

    // On the stack: a search would take a fifth longer with them on the heap.
    using Matches = QVarLengthArray<quint8, 2048>; ///< by rank, how the emoji has the word; up to seven more at the end
    struct Hit
    {
        quint32 rank;
        quint32 cost; ///< how badly the words match
    };

    using Hits = QVarLengthArray<Hit, 512>; // as many as a single letter finds
    using Ranks = QVarLengthArray<quint32, 512>;

    class Maker;
    Range startingWith(const Places &places, QStringView start) const;
    QStringView wordAt(quint32 at) const;
    void mark(quint32 firstWord, quint32 endWord, quint8 kind, Matches *matches) const;
    bool findWord(QStringView word, Matches *matches) const;
    void narrow(int word, const Matches &matches, Hits *hits) const;
    void sort(const Hits &hits, int count, const QString &query, int words, Ranks *ranks) const;

    std::vector<std::shared_ptr<const Emoji>> m_byRank;
    std::vector<quint8> m_rarity; ///< by rank, a cost
    QHash<QString, std::vector<quint32>> m_byWholeName; ///< ranks
    QString m_text; ///< all words in their order, a null character behind each
    std::vector<quint32> m_firstUse; ///< by word, and the end
    std::vector<Use> m_uses;
    Places m_starts;
    Places m_insides;
};

} // namespace EmojiPicker

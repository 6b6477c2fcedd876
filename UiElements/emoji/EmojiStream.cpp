#include <UiElements/emoji/EmojiStream_p.h>

#include <UiElements/emoji/EmojiBuilder_p.h>

#include <algorithm>
#include <cstring>
#include <deque>

namespace EmojiPicker {

namespace {

using Text = std::string_view; ///< UTF-8

bool isAscii(Text text)
{
    uchar all = 0;
    for (const char c : text)
        all |= uchar(c);
    return all < 0x80;
}

/// The JSON that catalogues are written in. Once something else was met, ok() is false and all results are worthless.
class JsonStream
{
public:
    explicit JsonStream(const QByteArray &json)
        : m_at(json.constData())
        , m_end(json.constData() + json.size())
    {
    }

    bool ok() const { return m_ok; }
    void giveUp() { m_ok = false; }
    bool atEnd()
    {
        skipBlanks();
        return m_at == m_end;
    }

    /// Calls `member(key)` for each, which has to read the value.
    template <typename Member>
    void object(Member member)
    {
        list('{', '}', [this, &member] {
            const Text key = string();
            expect(':');
            if (m_ok)
                member(key);
        });
    }
    template <typename Element>
    void array(Element element)
    {
        list('[', ']', element);
    }

    Text string()
    {
        expect('"');
        const char *const start = m_at;
        uchar all = 0;
        while (m_at < m_end && *m_at != '"' && *m_at != '\\' && uchar(*m_at) >= 0x20)
            all |= uchar(*m_at++);
        if (m_at < m_end && *m_at == '\\')
            return stringWithEscapes(start);
        return endOfString(Text(start, std::size_t(m_at - start)), all >= 0x80);
    }

    int integer()
    {
        skipBlanks();
        const char *const start = m_at;
        int value = 0;
        while (m_at < m_end && *m_at >= '0' && *m_at <= '9' && m_at - start < 9)
            value = value * 10 + (*m_at++ - '0');
        const bool leadingZero = m_at - start > 1 && *start == '0';
        if (m_at == start || leadingZero || m_at == m_end || !std::strchr(", ]}\t\n\r", *m_at))
            giveUp();
        return value;
    }

    bool boolean()
    {
        skipBlanks();
        const bool value = m_at < m_end && *m_at == 't';
        word(value ? "true" : "false");
        return value;
    }

    void skipValue()
    {
        skipBlanks();
        switch (m_at < m_end ? *m_at : '\0') {
        case '{': object([this](Text) { skipValue(); }); break;
        case '[': array([this] { skipValue(); }); break;
        case '"': string(); break;
        case 'n': word("null"); break;
        case 't':
        case 'f': boolean(); break;
        default: integer();
        }
    }

private:
    static constexpr int MaxDepth = 100;

    void skipBlanks()
    {
        while (m_at < m_end && (*m_at == ' ' || *m_at == '\n' || *m_at == '\t' || *m_at == '\r'))
            ++m_at;
    }
    bool take(char c)
    {
        skipBlanks();
        if (m_at == m_end || *m_at != c)
            return false;
        ++m_at;
        return true;
    }
    void expect(char c)
    {
        if (!take(c))
            giveUp();
    }
    void word(Text text)
    {
        if (Text(m_at, std::size_t(m_end - m_at)).substr(0, text.size()) == text)
            m_at += text.size();
        else
            giveUp();
    }

    template <typename Item>
    void list(char open, char close, Item item)
    {
        expect(open);
        if (!m_ok || take(close))
            return;
        if (++m_depth > MaxDepth)
            giveUp();
        while (m_ok) {
            item();
            if (!take(','))
                break;
        }
        expect(close);
        --m_depth;
    }

    Text stringWithEscapes(const char *start)
    {
        std::string &out = m_unescaped.emplace_back(start, m_at);
        while (m_at < m_end && *m_at != '"' && uchar(*m_at) >= 0x20) {
            if (*m_at != '\\') {
                out += *m_at++;
                continue;
            }
            static constexpr char Escapes[] = "\"\\/bfnrt";
            static constexpr char Meanings[] = "\"\\/\b\f\n\r\t";
            const char *const which = m_end - m_at > 1 && m_at[1] ? std::strchr(Escapes, m_at[1]) : nullptr;
            if (!which) {
                giveUp();
                return Text();
            }
            out += Meanings[which - Escapes];
            m_at += 2;
        }
        return endOfString(out, !isAscii(out));
    }

    Text endOfString(Text text, bool mayBeInvalid)
    {
        if (m_at == m_end || *m_at++ != '"')
            giveUp();
        // Qt replaces what is no UTF-8 and leaves out a mark at the beginning, but refuses a document for the first.
        if (mayBeInvalid
            && (text.substr(0, 3) == "\xEF\xBB\xBF"
                || QString::fromUtf8(text.data(), int(text.size())).contains(QChar::ReplacementCharacter)))
            giveUp();
        return text;
    }

    const char *m_at;
    const char *const m_end;
    bool m_ok = true;
    int m_depth = 0;
    std::deque<std::string> m_unescaped;
};

class CatalogueStream
{
public:
    CatalogueStream(const QByteArray &json, const std::array<QString, 5> &modifiers)
        : m_json(json)
    {
        std::transform(modifiers.begin(), modifiers.end(), m_modifiers.begin(),
                       [](const QString &modifier) { return modifier.toStdString(); });
    }

    std::shared_ptr<const EmojiData> read()
    {
        Fields fields(this);
        bool anyEmoji = false;
        m_json.object([&](Text key) {
            if (fields.isNext(key, "emojis"))
                m_json.object([&](Text name) {
                    anyEmoji = true;
                    emoji(name);
                });
            else if (fields.isNext(key, "categories"))
                m_json.array([this] { category(); });
            else
                m_json.skipValue();
        });
        if (!m_json.atEnd() || !m_json.ok() || !anyEmoji || m_categories.empty() || !m_builder.sortEmojis())
            return nullptr;
        for (const RawCategory &raw : m_categories) {
            Category *const made = m_builder.addCategory(string(raw.id), string(raw.name), raw.hasSkinVariations);
            if (!made)
                continue;
            made->emojis.reserve(raw.emojis.size());
            for (const Text name : raw.emojis) {
                if (isAscii(name))
                    m_builder.addToCategory(made, QLatin1String(name.data(), int(name.size())));
                else
                    m_builder.addToCategory(made, string(name));
            }
        }
        return m_builder.take();
    }

private:
    struct RawCategory
    {
        Text id, name;
        bool hasSkinVariations = false;
        std::vector<Text> emojis;
    };

    /// The known members of one object. Of two with the same key a document keeps the last.
    class Fields
    {
    public:
        explicit Fields(CatalogueStream *stream)
            : m_stream(stream)
        {
        }
        template <std::size_t Size>
        bool isNext(Text key, const char (&known)[Size])
        {
            return key.size() == Size - 1 && isNext(key, known, Size - 1);
        }
        bool isNext(Text key, const char *known, std::size_t size)
        {
            if (key.size() != size || std::memcmp(key.data(), known, size) != 0)
                return false;
            if (std::find(m_seen.begin(), m_seen.begin() + m_count, known) != m_seen.begin() + m_count)
                m_stream->m_json.giveUp();
            else
                m_seen[m_count++] = known;
            return true;
        }

    private:
        CatalogueStream *const m_stream;
        std::array<const char *, 5> m_seen; // no object has more than five that are known
        std::size_t m_count = 0;
    };

    static QString string(Text text) { return QString::fromUtf8(text.data(), int(text.size())); }
    const Word *word(Text text) { return m_words.find(text, Word::fromUtf8); }

    void emoji(Text name)
    {
        RawEmoji raw;
        raw.name = string(name);
        raw.keywords.swap(m_keywords); // keeps its memory from one to the next
        raw.keywords.clear();
        Fields fields(this);
        m_json.object([&](Text key) {
            if (fields.isNext(key, "b"))
                raw.base.unified = string(m_json.string());
            else if (fields.isNext(key, "a"))
                raw.label = word(m_json.string());
            else if (fields.isNext(key, "j"))
                m_json.array([&] { raw.keywords.push_back(word(m_json.string())); });
            else if (fields.isNext(key, "k"))
                cell(&raw.base);
            else if (fields.isNext(key, "skin_variations"))
                tones(&raw);
            else
                m_json.skipValue();
        });
        if (m_json.ok())
            m_builder.addEmoji(std::move(raw));
        m_keywords.swap(raw.keywords);
    }

    void cell(RawForm *form)
    {
        int count = 0;
        std::array<int, 2> cell {};
        m_json.array([&] {
            const int value = m_json.integer();
            if (count < 2)
                cell[std::size_t(count)] = value;
            ++count;
        });
        if (count == 2) {
            form->sheetX = cell[0];
            form->sheetY = cell[1];
        }
    }

    void tones(RawEmoji *raw)
    {
        Fields codes(this);
        m_json.object([&](Text code) {
            for (std::size_t i = 0; i < m_modifiers.size(); ++i) {
                if (codes.isNext(code, m_modifiers[i].data(), m_modifiers[i].size()))
                    return tone(&raw->tones[i]);
            }
            m_json.skipValue();
        });
    }

    void tone(RawForm *form)
    {
        Fields fields(this);
        m_json.object([&](Text key) {
            if (fields.isNext(key, "unified"))
                form->unified = string(m_json.string());
            else if (fields.isNext(key, "sheet_x"))
                form->sheetX = m_json.integer();
            else if (fields.isNext(key, "sheet_y"))
                form->sheetY = m_json.integer();
            else
                m_json.skipValue();
        });
    }

    void category()
    {
        RawCategory &raw = m_categories.emplace_back();
        Fields fields(this);
        m_json.object([&](Text key) {
            if (fields.isNext(key, "id"))
                raw.id = m_json.string();
            else if (fields.isNext(key, "name"))
                raw.name = m_json.string();
            else if (fields.isNext(key, "has_skin_variantions"))
                raw.hasSkinVariations = m_json.boolean();
            else if (fields.isNext(key, "emojis"))
                m_json.array([&] { raw.emojis.push_back(m_json.string()); });
            else
                m_json.skipValue();
        });
    }

    JsonStream m_json;
    std::array<std::string, 5> m_modifiers;
    EmojiBuilder m_builder;
    WordTable<Text> m_words;
    std::vector<const Word *> m_keywords;
    std::vector<RawCategory> m_categories;
};

} // namespace

std::shared_ptr<const EmojiData> streamCatalogue(const QByteArray &json, const std::array<QString, 5> &modifiers)
{
    return CatalogueStream(json, modifiers).read();
}

} // namespace EmojiPicker

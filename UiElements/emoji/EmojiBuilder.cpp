#include <UiElements/emoji/EmojiBuilder_p.h>

#include <QCoreApplication>
#include <QVarLengthArray>

#include <numeric>

namespace EmojiPicker {

namespace {

QString localised(const char *utf8)
{
    return QCoreApplication::translate("EmojiLocalisation", utf8);
}

int hexDigit(ushort c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const ushort lower = c | 0x20;
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The characters with these code points; empty if one of them is none.
QString textOf(const QString &unified)
{
    QVarLengthArray<QChar, 32> out;
    const QChar *at = unified.constData();
    for (const QChar *const end = at + unified.size();; ++at) {
        uint code = 0;
        for (; at != end && *at != QLatin1Char('-'); ++at) {
            const int digit = hexDigit(at->unicode());
            if (digit < 0 || code > QChar::LastValidCodePoint)
                return QString();
            code = code * 16 + uint(digit);
        }
        if (code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
            return QString();
        if (QChar::requiresSurrogates(code)) {
            out.append(QChar(QChar::highSurrogate(code)));
            out.append(QChar(QChar::lowSurrogate(code)));
        } else {
            out.append(QChar(ushort(code)));
        }
        if (at == end)
            return QString(out.constData(), out.size());
    }
}

} // namespace

Word Word::fromUtf8(std::string_view text)
{
    Word word;
    word.translated = localised(std::string(text).c_str());
    // True for Latin-1 that is no ASCII only if it is not what was meant; then the characters differ as well.
    if (word.translated == QLatin1String(text.data(), int(text.size())))
        word.english = word.translated;
    else
        word = {QString::fromUtf8(text.data(), int(text.size())), word.translated};
    return word;
}

Word Word::fromString(const QString &text)
{
    // Nearly all are ASCII, and there are thousands.
    QVarLengthArray<char, 128> ascii;
    for (const QChar c : text)
        ascii.append(c.unicode() < 0x80 ? char(c.unicode()) : '\x80');
    ascii.append('\0');
    const bool isAscii = !ascii.contains('\x80');
    const QString other = localised(isAscii ? ascii.constData() : text.toUtf8().constData());
    return {text, other == text ? text : other};
}

void EmojiBuilder::addEmoji(RawEmoji &&raw)
{
    EmojiVariation base {raw.name,
                         raw.label ? raw.label->translated : QString(),
                         textOf(raw.base.unified),
                         raw.base.unified,
                         raw.base.sheetX,
                         raw.base.sheetY};
    const auto isValid = [](const EmojiVariation &form) {
        return !form.text.isEmpty() && form.sheetX >= 0 && form.sheetY >= 0;
    };
    if (!isValid(base)) {
        m_omitted.push_back(raw.name);
        return;
    }
    const auto emoji = std::make_shared<Emoji>();
    if (raw.label)
        emoji->englishName = raw.label->english;
    const auto given =
        std::count_if(raw.tones.begin(), raw.tones.end(), [](const RawForm &tone) { return !tone.unified.isEmpty(); });
    emoji->variations.reserve(std::size_t(1 + given));
    emoji->variations.push_back(std::move(base));
    for (const RawForm &tone : raw.tones) {
        if (tone.unified.isEmpty())
            continue;
        EmojiVariation form {
            raw.name,   emoji->variations.front().localisedName, textOf(tone.unified), tone.unified, tone.sheetX,
            tone.sheetY};
        if (isValid(form))
            emoji->variations.push_back(std::move(form));
    }
    emoji->englishKeywords.reserve(int(raw.keywords.size()));
    bool isTranslated = false;
    for (const Word *word : raw.keywords) {
        emoji->englishKeywords.append(word->english);
        isTranslated = isTranslated || !word->translated.isSharedWith(word->english);
    }
    if (isTranslated) {
        emoji->keywords.reserve(int(raw.keywords.size()));
        for (const Word *word : raw.keywords)
            emoji->keywords.append(word->translated);
    } else {
        emoji->keywords = emoji->englishKeywords;
    }
    m_names.push_back(std::move(raw.name));
    m_emojis.push_back(emoji);
}

bool EmojiBuilder::sortEmojis()
{
    if (!std::is_sorted(m_names.begin(), m_names.end())) {
        std::vector<std::size_t> order(m_names.size());
        std::iota(order.begin(), order.end(), std::size_t(0));
        std::sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) { return m_names[a] < m_names[b]; });
        std::vector<QString> names;
        EmojiPointers emojis;
        names.reserve(order.size());
        emojis.reserve(order.size());
        for (const std::size_t at : order) {
            names.push_back(std::move(m_names[at]));
            emojis.push_back(std::move(m_emojis[at]));
        }
        m_names = std::move(names);
        m_emojis = std::move(emojis);
    }
    // What stands behind an emoji that is omitted may be the same name again.
    const bool isOmittedToo = std::any_of(m_omitted.begin(), m_omitted.end(),
                                          [this](const QString &name) { return indexOf(m_names, name) >= 0; });
    return !isOmittedToo && std::adjacent_find(m_names.begin(), m_names.end()) == m_names.end();
}

Category *EmojiBuilder::addCategory(const QString &id, const QString &name, bool hasSkinVariations)
{
    if (id.isEmpty() || name.isEmpty() || m_names.empty())
        return nullptr;
    m_categories.push_back(std::make_shared<Category>(Category {hasSkinVariations, id, name, {}}));
    return m_categories.back().get();
}

std::shared_ptr<const EmojiData> EmojiBuilder::take()
{
    return std::make_shared<EmojiData>(std::move(m_names), std::move(m_emojis),
                                       CategoryPointers(m_categories.begin(), m_categories.end()));
}

} // namespace EmojiPicker

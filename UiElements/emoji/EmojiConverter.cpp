#include <UiElements/emoji/EmojiConverter.h>

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiImages_p.h>
#include <UiElements/emoji/EmojiSequence_p.h>

#include <QClipboard>
#include <QDebug>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextImageFormat>
#include <QUrl>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

#ifdef __SSE2__
#include <immintrin.h>
#endif

using EmojiPicker::EmojiConverter;

namespace {

constexpr QStringView ImageTag = u"<img src=";
constexpr QStringView SourceAttribute = u"src=\"";
constexpr QStringView AltAttribute = u"alt=\"";

constexpr QStringView FileTagHead = u"<img src=\"svgFile=";
constexpr QStringView FileTagMiddle = u"unicode\" alt=\"";
constexpr QStringView LineBreak = u"<br>";
constexpr QStringView FixedBlank = u"&nbsp;";
// Qt's HTML turns every other kind of white space into a plain blank.
constexpr QStringView KeptSpace = u"<span style=\"white-space:pre\">";
constexpr QStringView KeptSpaceEnd = u"</span>";

// ---- finding what is to be replaced

bool isKeptSpace(ushort c)
{
    return c == '\t' || c == 0x1680 || (c >= 0x2000 && c <= 0x200a) || c == 0x202f || c == 0x205f || c == 0x3000;
}

// Next to these a blank would disappear.
bool isSpaceBeside(ushort c)
{
    return c == '\n' || c == '\r' || isKeptSpace(c);
}

constexpr ushort KeycapMark = 0x20e3;

// A blank interests only where another follows; what stands at the ends of lines is seen from there.
template <bool IsPlain>
bool isInteresting(const ushort *p, const ushort *end)
{
    const ushort c = *p;
    if (c >= 0xd83c && c <= 0xd83e)
        return true;
    if (c == KeycapMark || beginsEmoji(c))
        return true;
    if (!IsPlain)
        return false;
    switch (c) {
    case '"':
    case '&':
    case '<':
    case '>':
    case '\n': return true;
    case ' ': return p + 1 != end && p[1] == ' ';
    default: return isKeptSpace(c);
    }
}

#ifdef __SSE2__
__m128i isOneOf(__m128i bytes, char mask, char value)
{
    return _mm_cmpeq_epi8(_mm_and_si128(bytes, _mm_set1_epi8(mask)), _mm_set1_epi8(value));
}

// Of eight code units: those that may be interesting, other than the ones that bytes can tell.
__m128i mayBeInteresting(__m128i units)
{
    const auto masked = [units](int mask, int value) {
        return _mm_cmpeq_epi16(_mm_and_si128(units, _mm_set1_epi16(short(mask))), _mm_set1_epi16(short(value)));
    };
    const __m128i zero = _mm_setzero_si128();
    const auto within = [units, zero](int first, int last) {
        return _mm_cmpeq_epi16(
            _mm_subs_epu16(_mm_sub_epi16(units, _mm_set1_epi16(short(first))), _mm_set1_epi16(short(last - first))),
            zero);
    };
    const __m128i symbols = _mm_or_si128(within(0x2000, 0x2b55), masked(0xffc0, 0x3000));
    const __m128i others = _mm_or_si128(masked(0xfff0, 0x3290), masked(0xfffc, 0xd83c));
    const __m128i spaces = _mm_or_si128(masked(0xfff0, 0x0000), masked(0xffff, 0x1680));
    return _mm_or_si128(_mm_or_si128(symbols, others), spaces);
}

// A bit for each of 16 code units that may be interesting.
template <bool IsPlain>
uint lookAt(const ushort *p, const ushort *end)
{
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i *>(p));
    const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i *>(p + 8));
    // What is no Latin becomes 0xff or, from 0x8000 on, 0.
    const __m128i bytes = _mm_packus_epi16(low, high);
    const __m128i control = _mm_cmpeq_epi8(_mm_max_epu8(bytes, _mm_set1_epi8(0x1f)), _mm_set1_epi8(0x1f));
    const __m128i wide = _mm_or_si128(control, _mm_cmpeq_epi8(bytes, _mm_set1_epi8(char(0xff))));
    __m128i special = isOneOf(bytes, char(0xf8), char(0xa8));
    if (IsPlain)
        special = _mm_or_si128(special, _mm_or_si128(isOneOf(bytes, char(0xfb), '"'), isOneOf(bytes, char(0xfd), '<')));
    uint found = uint(_mm_movemask_epi8(special));
    if (_mm_movemask_epi8(wide))
        found |= uint(_mm_movemask_epi8(_mm_packs_epi16(mayBeInteresting(low), mayBeInteresting(high))));
    if (IsPlain) {
        uint blanks = uint(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(' '))));
        uint following = blanks >> 1;
        if ((blanks & 0x8000) && end - p > 16 && p[16] == ' ')
            following |= 0x8000;
        found |= blanks & following;
    }
    return found;
}
#endif

template <bool IsPlain>
const ushort *nextInteresting(const ushort *p, const ushort *begin, const ushort *end)
{
#ifdef __SSE2__
    Q_UNUSED(begin)
    while (end - p >= 16 || (end - begin >= 16 && p != end)) {
        const ushort *block = end - p >= 16 ? p : end - 16;
        uint found = lookAt<IsPlain>(block, end) & (~0u << (p - block));
        for (; found; found &= found - 1) {
            const ushort *at = block + qCountTrailingZeroBits(found);
            if (isInteresting<IsPlain>(at, end))
                return at;
        }
        p = block + 16;
    }
#else
    Q_UNUSED(begin)
#endif
    while (p != end && !isInteresting<IsPlain>(p, end))
        ++p;
    return p;
}

#if defined(__x86_64__) && defined(__GNUC__)
#define UIELEMENTS_HAS_WIDE_LOOK

// Whether 32 code units and more have nothing in them that may be interesting: most messages are like that, and this
// tells it in half the time.
__attribute__((target("avx2"))) bool isPlainLatin(const ushort *begin, const ushort *end)
{
    // By the lower and by the upper half of a byte; a byte that has a bit in both is looked for.
    const __m256i byLower =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(1, 1, 3, 1, 1, 1, 3, 1, 1, 9, 1, 1, 5, 1, 13, 17));
    const __m256i byUpper = _mm256_broadcastsi128_si256(_mm_setr_epi8(1, 1, 2, 4, 0, 0, 0, 0, 0, 0, 8, 0, 0, 0, 0, 16));
    const __m256i half = _mm256_set1_epi8(0x0f);
    const __m256i blank = _mm256_set1_epi8(' ');
    const ushort *p = begin;
    for (;;) {
        const __m256i low = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(p));
        const __m256i high = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(p + 16));
        // What is no Latin becomes 0xff or, from 0x8000 on, 0. In order, because blanks side by side are looked for.
        const __m256i bytes = _mm256_permute4x64_epi64(_mm256_packus_epi16(low, high), 0xd8);
        const __m256i lower = _mm256_shuffle_epi8(byLower, _mm256_and_si256(bytes, half));
        const __m256i upper = _mm256_shuffle_epi8(byUpper, _mm256_and_si256(_mm256_srli_epi16(bytes, 4), half));
        const uint blanks = uint(_mm256_movemask_epi8(_mm256_cmpeq_epi8(bytes, blank)));
        if (!_mm256_testz_si256(lower, upper) || (blanks & (blanks >> 1)))
            return false;
        if (p + 32 == end)
            return true;
        // One unit twice: of two blanks the first may be the last of a block.
        p = end - p >= 63 ? p + 31 : end - 32;
    }
}

bool isWideLookPossible()
{
    static const bool isPossible = __builtin_cpu_supports("avx2");
    return isPossible;
}
#endif

// Where the keycap begins whose mark is at p; null if there is none.
const ushort *keycapBegin(const ushort *p, const ushort *begin)
{
    if (p != begin && p[-1] == 0xfe0f)
        --p;
    if (p == begin)
        return nullptr;
    --p;
    return emojiPlace(EmojiPlace::Outside, *p) == EmojiPlace::KeycapBase ? p : nullptr;
}

// ---- replacing

struct Replacement
{
    const ushort *at;
    int length; // of what is replaced
    QStringView by;
    const EmojiImage *image; // instead of `by`
};

class Replacements
{
public:
    void add(const ushort *at, int length, QStringView by)
    {
        m_list.append({at, length, by, nullptr});
        m_growth += int(by.size()) - length;
    }
    void add(const ushort *at, int length, const EmojiImage *image, int tagLength)
    {
        m_list.append({at, length, {}, image});
        m_growth += tagLength - length;
    }
    bool isEmpty() const { return m_list.isEmpty(); }
    int growth() const { return m_growth; }
    const Replacement *begin() const { return m_list.cbegin(); }
    const Replacement *end() const { return m_list.cend(); }

private:
    QVarLengthArray<Replacement, 48> m_list;
    int m_growth = 0;
};

class Writer
{
public:
    explicit Writer(QChar *to)
        : m_to(to)
    {
    }
    void write(QStringView text) { write(text.data(), text.size()); }
    void write(const QChar *text, qsizetype size) { m_to = std::copy_n(text, size, m_to); }
    const QChar *position() const { return m_to; }

private:
    QChar *m_to;
};

const ushort *behindBlanks(const ushort *p, const ushort *end)
{
    while (p != end && *p == ' ')
        ++p;
    return p;
}

// Notes what makes the blanks from `first` to `last` keep their width. One of them stays a place to break the line at,
// unless the line begins or ends here.
void keepBlanks(Replacements &replacements, const ushort *first, const ushort *last, const ushort *begin,
                const ushort *end)
{
    const bool isAtEdge = first == begin || last == end || isSpaceBeside(first[-1]) || isSpaceBeside(*last);
    for (const ushort *p = first; p != last - (isAtEdge ? 0 : 1); ++p)
        replacements.add(p, 1, FixedBlank);
}

QStringView escaped(ushort c)
{
    switch (c) {
    case '"': return u"&quot;";
    case '&': return u"&amp;";
    case '<': return u"&lt;";
    case '>': return u"&gt;";
    default: return {};
    }
}

// Notes what HTML would not leave as it is at p, and the blanks and spaces around it. Answers what is behind all that;
// p if nothing is to be noted.
const ushort *replaceCharacter(Replacements &replacements, const ushort *p, const ushort *done, const ushort *begin,
                               const ushort *end)
{
    const ushort c = *p;
    if (c == ' ') {
        const ushort *last = behindBlanks(p, end);
        keepBlanks(replacements, p, last, begin, end);
        return last;
    }
    if (c == '\n' || isKeptSpace(c)) {
        // A single blank before it was no run.
        const ushort *before = c == '\n' && p != done && p[-1] == '\r' ? p - 1 : p;
        if (before != done && before[-1] == ' ')
            replacements.add(before - 1, 1, FixedBlank);
        if (c == '\n') {
            replacements.add(p++, 1, LineBreak);
        } else {
            replacements.add(p, 0, KeptSpace);
            while (p != end && isKeptSpace(*p))
                ++p;
            replacements.add(p, 0, KeptSpaceEnd);
        }
        const ushort *last = behindBlanks(p, end);
        if (last != p)
            keepBlanks(replacements, p, last, begin, end);
        return last;
    }
    const QStringView reference = escaped(c);
    if (!reference.isEmpty())
        replacements.add(p++, 1, reference);
    return p;
}

int tagLength(const EmojiImage &image, quint8 tagFormat, const QString &tagMiddle)
{
    if (tagFormat == EmojiConverter::SvgFileTag)
        return int(FileTagHead.size() + FileTagMiddle.size()) + image.path.size() + image.text.size()
            + image.tagEnd.size();
    return image.qrcTagHead.size() + tagMiddle.size() + image.tagEnd.size();
}

QString replaced(const QString &input, const Replacements &replacements, quint8 tagFormat, const QString &tagMiddle)
{
    const ushort *const end = input.utf16() + input.size();
    QString output(input.size() + replacements.growth(), Qt::Uninitialized);
    Writer writer(output.data());
    const ushort *copied = input.utf16();
    for (const Replacement &replacement : replacements) {
        writer.write(QStringView(copied, replacement.at - copied));
        copied = replacement.at + replacement.length;
        if (const EmojiImage *image = replacement.image) {
            if (tagFormat == EmojiConverter::SvgFileTag) {
                writer.write(FileTagHead);
                writer.write(image->path);
                writer.write(image->text);
                writer.write(FileTagMiddle);
            } else {
                writer.write(image->qrcTagHead);
                writer.write(tagMiddle);
            }
            writer.write(image->tagEnd);
        } else {
            writer.write(replacement.by);
        }
    }
    writer.write(QStringView(copied, end - copied));
    Q_ASSERT(writer.position() == output.constData() + output.size());
    return output;
}

} // namespace

EmojiConverter::EmojiConverter(int imageSize, quint8 tagFormat)
    : m_tagFormat(tagFormat)
{
    setImageSize(imageSize);
    if (m_imageSize == 0)
        setImageSize(20);
}

void EmojiConverter::setImageSize(int pixels)
{
    if (pixels < 1) {
        qWarning() << "EmojiConverter::setImageSize - Invalid size" << pixels;
        return;
    }
    m_imageSize = pixels;
    m_tagMiddle = QStringLiteral("\" height=\"%1\" width=\"%1\" align=\"middle\" alt=\"").arg(pixels);
}

QStringList EmojiConverter::usedFiles() const
{
    QStringList files;
    for (const EmojiImage *image : m_used)
        files << image->path;
    return files;
}

template <bool IsPlain>
QString EmojiConverter::replaceEmoji(const QString &input)
{
    const ushort *const begin = input.utf16();
    const ushort *const end = begin + input.size();
    Replacements replacements;
    const ushort *done = begin; // behind the last replacement
    const ushort *p = begin;
    m_used.clear();

    if (IsPlain && p != end && *p == ' ') {
        done = p = behindBlanks(p, end);
        keepBlanks(replacements, begin, p, begin, end);
    }
    while ((p = nextInteresting<IsPlain>(p, begin, end)) != end) {
        if (IsPlain) {
            const ushort *behind = replaceCharacter(replacements, p, done, begin, end);
            if (behind != p) {
                done = p = behind;
                continue;
            }
        }
        const bool isKeycap = *p == KeycapMark;
        const ushort *emoji = isKeycap ? keycapBegin(p, done) : p;
        if (!emoji) {
            ++p;
            continue;
        }
        int length = 0;
        const EmojiImage *image = resolveEmoji(emoji, end, &length, [](const ushort *from, int size) {
            return EmojiImages::find(QStringView(from, size));
        });
        // The mark itself is passed, whatever its keycap turns out to be.
        p = qMax(emoji + length, p + (isKeycap ? 1 : 0));
        if (!image)
            continue;
        m_used.push_back(image);
        if (m_tagFormat <= QrcTag) {
            replacements.add(emoji, length, image, tagLength(*image, m_tagFormat, m_tagMiddle));
        } else {
            qWarning("Unhandled image tag format!");
            replacements.add(emoji, length, QStringView());
        }
        done = p;
    }
    if (IsPlain && end != done && end[-1] == ' ')
        replacements.add(end - 1, 1, FixedBlank);
    return replacements.isEmpty() ? input : replaced(input, replacements, m_tagFormat, m_tagMiddle);
}

QString EmojiConverter::toRichText(const QString &plainText)
{
#ifdef UIELEMENTS_HAS_WIDE_LOOK
    const ushort *const begin = plainText.utf16();
    const ushort *const end = begin + plainText.size();
    if (end - begin >= 32 && *begin != ' ' && end[-1] != ' ' && isWideLookPossible() && isPlainLatin(begin, end)) {
        m_used.clear();
        return plainText;
    }
#endif
    return replaceEmoji<true>(plainText);
}

QString EmojiConverter::convert(const QString &text)
{
    return replaceEmoji<false>(text);
}

void EmojiConverter::append(uint codePoint)
{
    if (codePoint > QChar::LastValidCodePoint) {
        qWarning() << "EmojiConverter::append - No code point" << codePoint;
        return;
    }
    if (QChar::requiresSurrogates(codePoint)) {
        m_text += QChar(QChar::highSurrogate(codePoint));
        m_text += QChar(QChar::lowSurrogate(codePoint));
    } else {
        m_text += QChar(ushort(codePoint));
    }
    m_code = EmojiImages::code(m_text);
}

void EmojiConverter::clear()
{
    m_code.clear();
    m_text.clear();
}

QString EmojiConverter::emojiToImageTag()
{
    const EmojiImage *image = EmojiImages::find(m_text);
    if (!image)
        return m_text;
    m_used.push_back(image);
    if (m_tagFormat > QrcTag) {
        qWarning("Unhandled image tag format!");
        return {};
    }
    if (m_tagFormat == SvgFileTag)
        return FileTagHead.toString() + image->path + m_text + FileTagMiddle.toString() + image->tagEnd;
    return image->qrcTagHead + m_tagMiddle + image->tagEnd;
}

// ---- back to plain text

namespace {

QStringView textOfTag(QStringView tag)
{
    const qsizetype source = tag.lastIndexOf(SourceAttribute);
    if (source < 0)
        return tag;
    const qsizetype begin = source + SourceAttribute.size();
    const qsizetype bar = tag.indexOf(QLatin1Char('|'), begin);
    if (bar >= 0)
        return tag.mid(begin, bar - begin);
    const qsizetype alt = tag.lastIndexOf(AltAttribute);
    if (alt < 0)
        return tag;
    const qsizetype text = alt + AltAttribute.size();
    const qsizetype quote = tag.indexOf(QLatin1Char('"'), text);
    return quote < 0 ? tag : tag.mid(text, quote - text);
}

// What toRichText() writes for characters.
struct Reference
{
    QStringView name; // from behind the "&"
    ushort character;
};
constexpr Reference references[] = {{u"amp;", '&'}, {u"lt;", '<'}, {u"gt;", '>'}, {u"quot;", '"'}, {u"nbsp;", ' '}};

bool isLineBreak(QStringView tag)
{
    return tag.startsWith(QLatin1String("<br"))
        && (tag.size() == 4 || tag.at(3) == QLatin1Char(' ') || tag.at(3) == QLatin1Char('/'));
}

// What a pass over rich text has written so far. Plain text is never longer than the rich text it is made of.
QString finished(QString output, const Writer &writer)
{
    const int size = int(writer.position() - output.constData());
    output.resize(size);
    output.squeeze();
    return output;
}

} // namespace

QString EmojiConverter::imageTagToText(const QString &tag)
{
    const QStringView text = textOfTag(tag);
    return text.size() == tag.size() ? tag : text.toString();
}

QString EmojiConverter::htmlToPlainText(const QString &richText)
{
    const QChar *const end = richText.constData() + richText.size();
    const auto nextTag = [end, &richText](const QChar *from) {
        int at = int(from - richText.constData());
        while ((at = richText.indexOf(QLatin1Char('<'), at)) >= 0) {
            const QChar *const found = richText.constData() + at++;
            if (QStringView(found, end).startsWith(ImageTag))
                return found;
        }
        return end;
    };
    const QChar *tag = nextTag(richText.constData());
    if (tag == end)
        return richText;
    QString output(richText.size(), Qt::Uninitialized);
    Writer writer(output.data());
    const QChar *copied = richText.constData();
    while (tag != end) {
        const QChar *p = std::find_if(tag + ImageTag.size(), end,
                                      [](QChar c) { return c == QLatin1Char('>') || c == QLatin1Char('\n'); });
        // A tag ends on its line, or every other one on this line has no end either.
        if (p != end && *p == QLatin1Char('>')) {
            ++p;
            writer.write(copied, tag - copied);
            writer.write(textOfTag(QStringView(tag, p)));
            copied = p;
        }
        tag = nextTag(p);
    }
    if (copied == richText.constData())
        return richText;
    writer.write(copied, end - copied);
    return finished(std::move(output), writer);
}

QString EmojiConverter::toPlainText(const QString &richText)
{
    const QChar *const end = richText.constData() + richText.size();
    const auto isMarkup = [](QChar c) {
        return c == QLatin1Char('<') || c == QLatin1Char('&');
    };
    const QChar *p = std::find_if(richText.constData(), end, isMarkup);
    if (p == end)
        return richText;
    QString output(richText.size(), Qt::Uninitialized);
    Writer writer(output.data());
    const QChar *copied = richText.constData();
    bool isOpen = true; // until a "<" turns out to have no ">" behind it
    while (p != end) {
        if (*p == QLatin1Char('&')) {
            const QStringView behind(++p, end);
            const auto *reference = std::find_if(std::begin(references), std::end(references),
                                                 [behind](const Reference &r) { return behind.startsWith(r.name); });
            if (reference != std::end(references)) {
                writer.write(copied, p - 1 - copied);
                const QChar character(reference->character);
                writer.write(&character, 1);
                copied = p += reference->name.size();
            }
        } else {
            const QChar *close = isOpen ? std::find(p, end, QLatin1Char('>')) : end;
            isOpen = close != end;
            if (isOpen) {
                const QStringView tag(p, close + 1);
                writer.write(copied, p - copied);
                if (tag.startsWith(ImageTag))
                    writer.write(textOfTag(tag));
                else if (isLineBreak(tag))
                    writer.write(u"\n");
                copied = p = close + 1;
            } else {
                ++p;
            }
        }
        p = std::find_if(p, end, isMarkup);
    }
    writer.write(copied, end - copied);
    return finished(std::move(output), writer);
}

// ---- documents

namespace {

// Tells an image whose size follows the font from one whose size was given, when it is replaced.
constexpr int FollowsFont = QTextFormat::UserProperty + 0x650;

struct Place
{
    int position;
    int length;
    QTextImageFormat format; // what is there
    QString emoji;
};

// The code is taken for what it says; the text behind it may be anything.
QString textOfCode(const QString &code)
{
    QVarLengthArray<uint, EmojiSequence::MaxCodePoints> points;
    const QVector<QStringRef> parts = code.splitRef(QLatin1Char('-'));
    for (const QStringRef &part : parts) {
        const uint point = part.toUInt(nullptr, 16);
        if (point > QChar::LastValidCodePoint || points.size() == EmojiSequence::MaxCodePoints)
            return {};
        points.append(point);
    }
    return QString::fromUcs4(points.constData(), points.size());
}

// What the source of an image stands for; empty if that is no emoji.
QString emojiOfSource(const QString &source)
{
    static const QRegularExpression form(
        QStringLiteral(
            "\\A(?:(svgFile=)|qrc)?:/emojis/([0-9a-f]+(?:-[0-9a-f]+)*)\\.svg(?(1).*unicode|(?:\\?[0-9x]+)?)\\z"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(source);
    return match.hasMatch() ? textOfCode(match.captured(2)) : QString();
}

void setImage(QTextDocument *document, const Place &place, int imageSize, qreal ratio)
{
    const EmojiImage *image = EmojiImages::find(place.emoji);
    if (!image)
        return;
    QTextImageFormat format = place.format;
    if (format.boolProperty(FollowsFont) || (format.width() <= 0 && format.height() <= 0)) {
        const QFontMetricsF metrics(format.font().resolve(document->defaultFont()));
        // Qt sets images upon the baseline: one that is higher than the letters reach up makes its line higher.
        const qreal edge = imageSize > 0 ? imageSize : std::floor(metrics.ascent());
        format.setWidth(edge);
        format.setHeight(edge);
        format.setProperty(FollowsFont, true);
        format.setVerticalAlignment(QTextCharFormat::AlignNormal);
    } else if (format.width() <= 0) {
        format.setWidth(format.height());
    } else if (format.height() <= 0) {
        format.setHeight(format.width());
    }
    const QSize pixels(int(std::lround(format.width() * ratio)), int(std::lround(format.height() * ratio)));
    const QImage picture = EmojiImages::render(image->path, pixels);
    if (picture.isNull())
        return;
    // One name for each size: the same emoji may stand in a heading and in its text.
    const QString name = QStringLiteral("qrc%1?%2x%3")
                             .arg(image->path, QString::number(pixels.width()), QString::number(pixels.height()));
    document->addResource(QTextDocument::ImageResource, QUrl(name), picture);
    format.setName(name);
    format.setProperty(QTextFormat::ImageAltText, image->text);

    QTextCursor cursor(document);
    cursor.setPosition(place.position);
    cursor.setPosition(place.position + place.length, QTextCursor::KeepAnchor);
    if (place.format.isValid() && place.format.isImageFormat() && !place.format.name().isEmpty())
        cursor.setCharFormat(format);
    else
        cursor.insertImage(format);
}

QString textOfImage(const QTextImageFormat &format)
{
    const QString alternative = format.stringProperty(QTextFormat::ImageAltText);
    return alternative.isEmpty() ? emojiOfSource(format.name()) : alternative;
}

} // namespace

void EmojiConverter::insertEmojiImages(QTextDocument *document, int imageSize, qreal devicePixelRatio)
{
    if (!document) {
        qWarning("EmojiConverter::insertEmojiImages - No document");
        return;
    }
    const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : qGuiApp ? qGuiApp->devicePixelRatio() : 1;

    std::vector<Place> places;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!fragment.charFormat().isImageFormat())
                continue;
            const QTextImageFormat format = fragment.charFormat().toImageFormat();
            const QString emoji = emojiOfSource(format.name());
            if (!emoji.isEmpty())
                places.push_back({fragment.position(), fragment.length(), format, emoji});
        }
    }
    static const QRegularExpression marker(QStringLiteral("svgFile=:/emojis/[0-9a-f-]{1,160}\\.svg.{1,32}?unicode"));
    for (QTextCursor found = document->find(marker, 0); !found.isNull(); found = document->find(marker, found)) {
        const QString emoji = emojiOfSource(found.selectedText());
        if (emoji.isEmpty())
            continue;
        QTextImageFormat format;
        format.merge(found.charFormat());
        places.push_back({found.selectionStart(), found.selectionEnd() - found.selectionStart(), format, emoji});
    }
    if (places.empty())
        return;

    QTextCursor edit(document);
    edit.beginEditBlock();
    // From the back: a marker becomes one character, which moves what stands behind it.
    std::sort(places.begin(), places.end(), [](const Place &a, const Place &b) { return a.position > b.position; });
    for (const Place &place : places)
        setImage(document, place, imageSize, ratio);
    edit.endEditBlock();
}

// ---- clipboard and speech

QString EmojiConverter::selectedText(const QTextCursor &selection)
{
    QString text;
    if (!selection.hasSelection())
        return text;
    const int begin = selection.selectionStart();
    const int end = selection.selectionEnd();
    for (QTextBlock block = selection.document()->findBlock(begin); block.isValid() && block.position() < end;
         block = block.next()) {
        if (block.position() > begin)
            text += QLatin1Char('\n');
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int first = std::max(begin, fragment.position());
            const int length = std::min(end, fragment.position() + fragment.length()) - first;
            if (length <= 0)
                continue;
            const QString shown = fragment.text();
            if (fragment.charFormat().isImageFormat())
                text += textOfImage(fragment.charFormat().toImageFormat()).repeated(length);
            else
                text += shown.midRef(first - fragment.position(), length);
        }
    }
    return text.replace(QChar::LineSeparator, QLatin1Char('\n')).replace(QChar::Nbsp, QLatin1Char(' '));
}

QMimeData *EmojiConverter::createMimeData(const QTextCursor &selection)
{
    auto *data = new QMimeData;
    data->setHtml(selection.selection().toHtml());
    data->setText(selectedText(selection));
    return data;
}

QMimeData *EmojiConverter::createMimeData(const QString &richText)
{
    auto *data = new QMimeData;
    data->setHtml(richText);
    data->setText(htmlToPlainText(richText));
    return data;
}

void EmojiConverter::copyRichText(const QString &richText)
{
    QGuiApplication::clipboard()->setMimeData(createMimeData(richText));
}

void EmojiConverter::copyPlainText(const QString &plainText)
{
    auto *data = new QMimeData;
    data->setHtml(toRichText(plainText));
    data->setText(plainText);
    QGuiApplication::clipboard()->setMimeData(data);
}

namespace {

using Names = std::unordered_map<std::u16string, QString>;

// U+FE0F says how to draw and not what.
std::u16string spokenKey(const ushort *text, int size)
{
    std::u16string key;
    for (const ushort *p = text; p != text + size; ++p) {
        if (*p != 0xfe0f)
            key += char16_t(*p);
    }
    return key;
}

const Names &namesOf(const std::shared_ptr<const EmojiPicker::EmojiData> &catalogue)
{
    static std::weak_ptr<const EmojiPicker::EmojiData> known;
    static Names names;
    if (known.lock() == catalogue)
        return names;
    known = catalogue;
    names.clear();
    for (const auto &emoji : catalogue->emojis()) {
        for (const EmojiPicker::EmojiVariation &variation : emoji->variations)
            names.emplace(spokenKey(variation.text.utf16(), variation.text.size()), variation.localisedName);
    }
    return names;
}

} // namespace

QString EmojiConverter::spokenText(const QString &plainText, const std::shared_ptr<const EmojiData> &catalogue)
{
    if (!catalogue)
        return plainText;
    const ushort *const begin = plainText.utf16();
    const ushort *const end = begin + plainText.size();
    QString output;
    const ushort *copied = begin; // behind the last name
    const auto copyUpTo = [&](const ushort *to) {
        const bool isBehindName = copied != begin;
        if (to != copied && isBehindName && !QChar(*copied).isSpace() && !QChar(*copied).isPunct())
            output += QLatin1Char(' ');
        output += QStringView(copied, to - copied);
    };
    const auto isOpening = [](QChar c) {
        return c.isSpace() || c.category() == QChar::Punctuation_Open
            || c.category() == QChar::Punctuation_InitialQuote;
    };
    const ushort *p = begin;
    while ((p = nextInteresting<false>(p, begin, end)) != end) {
        const ushort *emoji = *p == KeycapMark ? keycapBegin(p, copied) : p;
        if (!emoji) {
            ++p;
            continue;
        }
        int length = 0;
        const Names &names = namesOf(catalogue);
        const QString *name = resolveEmoji(emoji, end, &length, [&names](const ushort *from, int size) {
            const auto it = names.find(spokenKey(from, size));
            return it == names.end() ? nullptr : &it->second;
        });
        p = qMax(emoji + length, p + (*p == KeycapMark ? 1 : 0));
        if (!name)
            continue;
        copyUpTo(emoji);
        if (!output.isEmpty() && !isOpening(output.back()))
            output += QLatin1Char(' ');
        output += *name;
        // A redundant U+FE0F says nothing.
        copied = p;
    }
    if (copied == begin)
        return plainText;
    copyUpTo(end);
    return output;
}

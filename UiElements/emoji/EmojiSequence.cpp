#include <UiElements/emoji/EmojiSequence_p.h>

#include <QChar>

#include <array>

namespace {

constexpr ushort Joiner = 0x200d;
constexpr ushort TextPresentation = 0xfe0e;
constexpr ushort EmojiPresentation = 0xfe0f;
constexpr ushort KeycapMark = 0x20e3;

// The emoji of the basic plane behind Latin. No more will come: new ones get their places above it.
constexpr ushort ranges[][2] = {
    {0x203c, 0x203c}, {0x2049, 0x2049}, {0x2122, 0x2122}, {0x2139, 0x2139}, {0x2194, 0x2199}, {0x21a9, 0x21aa},
    {0x231a, 0x231b}, {0x2328, 0x2328}, {0x23cf, 0x23cf}, {0x23e9, 0x23f3}, {0x23f8, 0x23fa}, {0x24c2, 0x24c2},
    {0x25aa, 0x25ab}, {0x25b6, 0x25b6}, {0x25c0, 0x25c0}, {0x25fb, 0x25fe}, {0x2600, 0x2604}, {0x260e, 0x260e},
    {0x2611, 0x2611}, {0x2614, 0x2615}, {0x2618, 0x2618}, {0x261d, 0x261d}, {0x2620, 0x2620}, {0x2622, 0x2623},
    {0x2626, 0x2626}, {0x262a, 0x262a}, {0x262e, 0x262f}, {0x2638, 0x263a}, {0x2640, 0x2640}, {0x2642, 0x2642},
    {0x2648, 0x2653}, {0x265f, 0x2660}, {0x2663, 0x2663}, {0x2665, 0x2666}, {0x2668, 0x2668}, {0x267b, 0x267b},
    {0x267e, 0x267f}, {0x2692, 0x2697}, {0x2699, 0x2699}, {0x269b, 0x269c}, {0x26a0, 0x26a1}, {0x26a7, 0x26a7},
    {0x26aa, 0x26ab}, {0x26b0, 0x26b1}, {0x26bd, 0x26be}, {0x26c4, 0x26c5}, {0x26c8, 0x26c8}, {0x26ce, 0x26cf},
    {0x26d1, 0x26d1}, {0x26d3, 0x26d4}, {0x26e9, 0x26ea}, {0x26f0, 0x26f5}, {0x26f7, 0x26fa}, {0x26fd, 0x26fd},
    {0x2702, 0x2702}, {0x2705, 0x2705}, {0x2708, 0x270d}, {0x270f, 0x270f}, {0x2712, 0x2712}, {0x2714, 0x2714},
    {0x2716, 0x2716}, {0x271d, 0x271d}, {0x2721, 0x2721}, {0x2728, 0x2728}, {0x2733, 0x2734}, {0x2744, 0x2744},
    {0x2747, 0x2747}, {0x274c, 0x274c}, {0x274e, 0x274e}, {0x2753, 0x2755}, {0x2757, 0x2757}, {0x2763, 0x2764},
    {0x2795, 0x2797}, {0x27a1, 0x27a1}, {0x27b0, 0x27b0}, {0x27bf, 0x27bf}, {0x2934, 0x2935}, {0x2b05, 0x2b07},
    {0x2b1b, 0x2b1c}, {0x2b50, 0x2b50}, {0x2b55, 0x2b55}, {0x3030, 0x3030}, {0x303d, 0x303d}, {0x3297, 0x3297},
    {0x3299, 0x3299},
};
constexpr uint TableBegin = 0x2000;
constexpr uint TableEnd = 0x3300;

constexpr auto makeTable()
{
    std::array<quint64, (TableEnd - TableBegin) / 64> table {};
    for (const auto &range : ranges) {
        for (uint c = range[0]; c <= range[1]; ++c)
            table[(c - TableBegin) / 64] |= quint64(1) << (c % 64);
    }
    return table;
}
constexpr auto table = makeTable();

bool isRegion(uint c)
{
    return c >= 0x1f1e6 && c <= 0x1f1ff;
}

bool isTone(uint c)
{
    return c >= 0x1f3fb && c <= 0x1f3ff;
}

// Above the basic plane whatever may become an emoji counts: the images know better than a list that grows old.
bool isEmoji(uint c)
{
    return c < 0x10000 ? beginsEmoji(ushort(c)) : c >= 0x1f000 && c <= 0x1fbff && !isRegion(c);
}

EmojiPlace firstPlace(uint c)
{
    if (isEmoji(c))
        return EmojiPlace::Base;
    if (isRegion(c))
        return EmojiPlace::FirstRegion;
    if ((c >= '0' && c <= '9') || c == '#' || c == '*')
        return EmojiPlace::KeycapBase;
    return EmojiPlace::Outside;
}

EmojiPlace placeBehindEmoji(uint c)
{
    if (c == Joiner)
        return EmojiPlace::Joiner;
    if (c == EmojiPresentation)
        return EmojiPlace::Presentation;
    if (isTone(c))
        return EmojiPlace::Tone;
    if (c >= 0xe0020 && c <= 0xe007e)
        return EmojiPlace::Tag;
    return EmojiPlace::Outside;
}

bool mayEnd(EmojiPlace place)
{
    switch (place) {
    case EmojiPlace::Base:
    case EmojiPlace::Tone:
    case EmojiPlace::Presentation:
    case EmojiPlace::Region:
    case EmojiPlace::Keycap:
    case EmojiPlace::TagEnd: return true;
    default: return false;
    }
}

uint takeCodePoint(const ushort *&p, const ushort *end)
{
    const ushort unit = *p++;
    if (QChar::isHighSurrogate(unit) && p != end && QChar::isLowSurrogate(*p))
        return QChar::surrogateToUcs4(unit, *p++);
    return unit;
}

} // namespace

bool beginsEmoji(ushort c)
{
    if (c < TableBegin)
        return c == 0xa9 || c == 0xae;
    return c < TableEnd && (table[(c - TableBegin) / 64] >> (c % 64)) & 1;
}

EmojiPlace emojiPlace(EmojiPlace before, uint c)
{
    switch (before) {
    case EmojiPlace::Outside: return firstPlace(c);
    case EmojiPlace::Base:
    case EmojiPlace::Tone:
    case EmojiPlace::Presentation: return placeBehindEmoji(c);
    case EmojiPlace::Joiner: return isEmoji(c) ? EmojiPlace::Base : EmojiPlace::Outside;
    case EmojiPlace::FirstRegion: return isRegion(c) ? EmojiPlace::Region : EmojiPlace::Outside;
    case EmojiPlace::KeycapBase:
        if (c == EmojiPresentation)
            return EmojiPlace::KeycapPresentation;
        Q_FALLTHROUGH();
    case EmojiPlace::KeycapPresentation: return c == KeycapMark ? EmojiPlace::Keycap : EmojiPlace::Outside;
    case EmojiPlace::Tag:
        if (c == 0xe007f)
            return EmojiPlace::TagEnd;
        return c >= 0xe0020 && c <= 0xe007e ? EmojiPlace::Tag : EmojiPlace::Outside;
    // Unlike other emoji these are not joined to any.
    case EmojiPlace::TagEnd:
    case EmojiPlace::Region:
    case EmojiPlace::Keycap: break;
    }
    return EmojiPlace::Outside;
}

EmojiSequence::EmojiSequence(const ushort *begin, const ushort *end)
{
    EmojiPlace place = EmojiPlace::Outside;
    const ushort *element = begin; // what stands between two joiners
    const ushort *p = begin;
    for (int points = 0; points < MaxCodePoints && p != end; ++points) {
        const ushort *next = p;
        const uint c = takeCodePoint(next, end);
        if (c == TextPresentation) {
            // Makes the element before it text.
            while (count > 0 && begin + ends[count - 1] > element)
                --count;
            break;
        }
        place = emojiPlace(place, c);
        if (place == EmojiPlace::Outside)
            break;
        if (place == EmojiPlace::Joiner) {
            if (element == begin)
                textLength = int(p - begin);
            element = next;
        }
        p = next;
        if (mayEnd(place))
            ends[count++] = int(p - begin);
    }
    if (textLength == 0)
        textLength = qMax(1, int(p - begin));
}

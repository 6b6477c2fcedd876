// Emoji in messages: to rich text and back. Two of a hundred characters are emoji, a few of them most of the time.

#include "Bench.h"
#include "HeapCounter.h"

#include <UiElements/emoji/EmojiConverter.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <memory>

using EmojiPicker::EmojiConverter;
using EmojiPicker::EmojiResources;

namespace {

constexpr int Messages = 1000;
constexpr int Size = 20;

QString hexadecimal(uint point)
{
    const QString number = QString::number(point, 16);
    return number.size() == 2 ? QStringLiteral("00") + number : number;
}

// The steps word by word, with just the rules that the messages need.
QString convertLiterally(const QString &text)
{
    QString output, code, pending;
    uint before = 0;
    const auto flush = [&] {
        if (code.isEmpty())
            return;
        const QString path = QStringLiteral(":/emojis/") + code + QStringLiteral(".svg");
        if (QFile::exists(path) && QSvgRenderer(path).isValid()) {
            output += QStringLiteral("<img src=\"qrc") + path + QStringLiteral("\" height=\"") + QString::number(Size)
                + QStringLiteral("\" width=\"") + QString::number(Size) + QStringLiteral("\" align=\"middle\" alt=\"")
                + pending + QStringLiteral("\">");
        } else {
            output += pending;
        }
        code.clear();
        pending.clear();
    };
    const QVector<uint> points = text.toUcs4();
    for (const uint c : points) {
        const bool isRegion = c >= 0x1f1e6 && c <= 0x1f1ff;
        const bool continues = !code.isEmpty()
            && (c == 0x200d || c == 0xfe0f || (c >= 0x1f3fb && c <= 0x1f3ff) || (c >= 0xe0020 && c <= 0xe007f)
                || before == 0x200d || (isRegion && before >= 0x1f1e6 && before <= 0x1f1ff && !code.contains(u'-')));
        if (!continues)
            flush();
        if (continues || c == 0xa9 || c == 0xae || (c >= 0x203c && c <= 0x3299) || (c >= 0x1f000 && c <= 0x1fbff)) {
            if (!code.isEmpty())
                code += QLatin1Char('-');
            code += hexadecimal(c);
            pending += QString::fromUcs4(&c, 1);
        } else {
            output += QString::fromUcs4(&c, 1);
        }
        before = c;
    }
    flush();
    return output;
}

QString tagToTextLiterally(const QString &tag)
{
    const int source = tag.lastIndexOf(QStringLiteral("src=\""));
    if (source < 0)
        return tag;
    const int bar = tag.indexOf(QLatin1Char('|'), source + 5);
    if (bar >= 0)
        return tag.mid(source + 5, bar - source - 5);
    const int alt = tag.lastIndexOf(QStringLiteral("alt=\""));
    const int quote = alt < 0 ? -1 : tag.indexOf(QLatin1Char('"'), alt + 5);
    return quote < 0 ? tag : tag.mid(alt + 5, quote - alt - 5);
}

QString toPlainLiterally(const QString &rich)
{
    const QRegularExpression tags(QStringLiteral("<img src=.*?\\>"));
    QString output = rich;
    int offset = 0;
    auto it = tags.globalMatch(rich);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const QString text = tagToTextLiterally(match.captured());
        output.replace(match.capturedStart() + offset, match.capturedLength(), text);
        offset += text.size() - match.capturedLength();
    }
    return output;
}

QString copy(const QString &text)
{
    return QString(text.constData(), text.size());
}

struct State
{
    void make()
    {
        EmojiResources::ensureRegistered();
        // Those that have one form only: the literal steps know no better.
        QStringList emoji;
        const QStringList files = QDir(QStringLiteral(":/emojis")).entryList();
        for (const QString &file : files) {
            QString text;
            const QStringList parts = file.chopped(4).split(QLatin1Char('-'));
            for (const QString &part : parts) {
                const uint point = part.toUInt(nullptr, 16);
                text += QString::fromUcs4(&point, 1);
            }
            if (!file.startsWith(QLatin1String("00")))
                emoji << text;
        }
        QRandomGenerator random(12345);
        for (int i = 0; i < Messages; ++i) {
            QString with, without;
            for (int length = random.bounded(20, 180); length > 0; --length) {
                const int sort = random.bounded(30);
                const QChar letter = sort < 5 && !with.endsWith(QLatin1Char(' ')) ? QLatin1Char(' ')
                    : sort == 5                                                   ? QChar(0xe9)
                                                                                  : QChar('a' + random.bounded(26));
                const bool isEmoji = random.bounded(50) == 0;
                with += isEmoji ? emoji.at(random.bounded(random.bounded(4) ? 60 : emoji.size())) : QString(letter);
                if (!isEmoji && !(letter == QLatin1Char(' ') && without.endsWith(letter)))
                    without += letter;
            }
            // A blank at an end is written otherwise than the literal steps would.
            messages << with.trimmed() + QLatin1Char('.');
            plain << without.trimmed();
            rich << converter.toRichText(messages.constLast());
        }
        longPlain = plain.join(QLatin1Char(' '));
    }

    EmojiConverter converter {Size};
    QStringList messages, rich, plain;
    QString longPlain;
    QTemporaryDir folder;
    int registrations = 0;
};

} // namespace

bench::Subject bench::emojiText()
{
    const auto s = std::make_shared<State>();
    // Once in each turn, as messages come: not with everything still in the caches from the time before. Only where the
    // work is next to nothing it is repeated, because the caches would be all that is measured.
    const auto all = [s](const QStringList State::*texts, auto function, int times = 1) {
        return repeated(times, [s, texts, function] {
            for (const QString &text : s.get()->*texts)
                keep(function(text));
        });
    };
    const QLatin1String toRich("to rich text"), plainToRich("without emoji"), toPlain("to plain text"),
        longToRich("one long text"), copyLong("copy of the long text"), literally("to rich text, literally"),
        plainLiterally("to plain text, literally"), copyOutput("copy of the rich text"), copyPlain("copy of the text"),
        heap("heap calls"), registered("file registered"), limit("2 ms"), backToMessage("to the message");

    Subject subject;
    subject.name = QLatin1String("emoji in messages");
    subject.rounds = 31;
    subject.quickRounds = 5;
    subject.prepare = [s] {
        s->make();
        for (int i = 0; i < Messages; ++i) {
            const QString &message = s->messages.at(i);
            const QString &rich = s->rich.at(i);
            if (rich != convertLiterally(message))
                return QStringLiteral("not what the literal steps write: %1").arg(rich);
            if (EmojiConverter::htmlToPlainText(rich) != message || toPlainLiterally(rich) != message
                || EmojiConverter::toPlainText(rich) != message)
                return QStringLiteral("does not come back: %1").arg(message);
            if (s->converter.toRichText(s->plain.at(i)) != s->plain.at(i))
                return QStringLiteral("is changed without reason: %1").arg(s->plain.at(i));
        }
        if (!s->converter.toRichText(s->longPlain).isSharedWith(s->longPlain))
            return QStringLiteral("the long text is copied");
        // Two of them, because a file is registered once.
        for (const char *name : {"0.rcc", "1.rcc"})
            QFile::copy(EmojiResources::file(), s->folder.filePath(QLatin1String(name)));
        return QString();
    };
    subject.variants = {
        {toRich, all(&State::messages, [s](const QString &text) { return s->converter.toRichText(text); })},
        {literally, all(&State::messages, convertLiterally)},
        {copyOutput, all(&State::rich, copy)},
        {plainToRich,
         all(
             &State::plain, [s](const QString &text) { return s->converter.toRichText(text); }, 20)},
        {copyPlain, all(&State::plain, copy, 20)},
        {longToRich, repeated(20, [s] { keep(s->converter.toRichText(s->longPlain)); })},
        {copyLong, repeated(20, [s] { keep(copy(s->longPlain)); })},
        {heap,
         [s] {
             const auto before = heapCalls();
             for (const QString &text : qAsConst(s->plain))
                 keep(s->converter.toRichText(text));
             keep(s->converter.toRichText(s->longPlain));
             return double(heapCalls() - before);
         },
         Variant::Count},
        {toPlain, all(&State::rich, EmojiConverter::htmlToPlainText)},
        {backToMessage, all(&State::rich, EmojiConverter::toPlainText)},
        {plainLiterally, all(&State::rich, toPlainLiterally)},
        // The last, because the images are looked up anew after it; those of the messages before the next round.
        {limit,
         [] {
             return 2000.0;
         }},
        {registered,
         [s] {
             const QString file = s->folder.filePath(QStringLiteral("%1.rcc").arg(++s->registrations % 2));
             const double start = microseconds();
             if (!EmojiResources::setFile(file))
                 return std::nan("");
             const double time = microseconds() - start;
             for (const QString &message : qAsConst(s->messages))
                 s->converter.toRichText(message);
             return time;
         }},
    };
    subject.rows = {
        {QLatin1String("emoji: to rich text, 2 % emoji"), toRich, literally, 0.012},
        {QLatin1String("emoji: to rich text, 2 % emoji"), toRich, copyOutput, 2.5},
        {QLatin1String("emoji: to rich text, none, one text"), longToRich, copyLong, {}},
        {QLatin1String("emoji: to rich text, none, messages"), plainToRich, copyPlain, 0.5},
        {QLatin1String("emoji: to rich text, none, heap calls"), heap, QLatin1String(), 0.0},
        {QLatin1String("emoji: to plain text"), toPlain, plainLiterally, 0.06},
        {QLatin1String("emoji: back to the message"), backToMessage, plainLiterally, {}},
        {QLatin1String("emoji: images registered"), registered, limit, 1.0},
    };
    return subject;
}

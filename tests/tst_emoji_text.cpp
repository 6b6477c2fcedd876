#include "support/WarningLog.h"

#include <UiElements/emoji/EmojiConverter.h>
#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QMimeData>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QResource>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

#include <link.h>

using EmojiPicker::EmojiConverter;
using EmojiPicker::EmojiResources;

class tst_EmojiText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tags_data();
    void tags();
    void sequences_data();
    void sequences();
    void everyImageIsReached();
    void everyEmojiOfTheCatalogue();
    void whereItStandsDoesNotMatter();
    void longSequencesEnd();
    void messagesStayText_data();
    void messagesStayText();
    void anyTextSurvives();
    void htmlToPlainText_data();
    void htmlToPlainText();
    void htmlToPlainTextIsTheLiteralOne();
    void imagesInDocuments_data();
    void imagesInDocuments();
    void imagesAreSharp();
    void imagesFitTheirLine();
    void imagesKeepTheirShape();
    void selections();
    void otherSourcesAreLeftAlone();
    void clipboard();
    void spoken_data();
    void spoken();
    void refused();
    void anotherFile();
    void whereTheFileLies_data();
    void whereTheFileLies();

private:
    std::shared_ptr<const EmojiPicker::EmojiData> m_catalogue;
};

namespace {

// Tags as "[code]", so that a table can be read. By hand because an expression matches nothing beside half a surrogate.
QString shape(const QString &richText)
{
    const QString head = QStringLiteral("<img src=\"qrc:/emojis/");
    const QString middle = QStringLiteral(".svg\" height=\"20\" width=\"20\" align=\"middle\" alt=\"");
    QStringList parts = richText.split(head);
    for (int i = 1; i < parts.size(); ++i) {
        QString &part = parts[i];
        const int code = part.indexOf(middle);
        const int end = part.indexOf(QStringLiteral("\">"), code + middle.size());
        if (code < 0 || end <= code + middle.size())
            return richText;
        part = QLatin1Char('[') + part.left(code) + QLatin1Char(']') + part.mid(end + 2);
    }
    return parts.join(QString());
}

QString ofCode(const QString &code)
{
    QVector<uint> points;
    const QStringList parts = code.split(QLatin1Char('-'));
    for (const QString &part : parts)
        points << part.toUInt(nullptr, 16);
    return QString::fromUcs4(points.constData(), points.size());
}

QVector<QTextImageFormat> images(const QTextDocument &document)
{
    QVector<QTextImageFormat> formats;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isImageFormat())
                formats << it.fragment().charFormat().toImageFormat();
        }
    }
    return formats;
}

// Pieces between these: "~".
class RandomText
{
public:
    template <std::size_t Size>
    RandomText(const char16_t (&pieces)[Size], quint32 seed)
        : m_pieces(QString::fromUtf16(pieces, int(Size) - 1).split(QLatin1Char('~')))
        , m_random(seed)
    {
    }
    QString next(int count)
    {
        QString text;
        for (int i = 0; i < count; ++i)
            text += m_pieces.at(m_random.bounded(m_pieces.size()));
        return text;
    }
    QString next() { return next(m_random.bounded(30)); }

private:
    const QStringList m_pieces;
    QRandomGenerator m_random;
};

const QString grin = QStringLiteral("\U0001F600");

} // namespace

void tst_EmojiText::initTestCase()
{
    QVERIFY(EmojiResources::ensureRegistered());
    QVERIFY(QResource::registerResource(QStringLiteral(UIELEMENTS_EMOJI_TEST_IMAGES)));
    m_catalogue = EmojiPicker::EmojiParser().parseFile(QStringLiteral(":/emoji-data/emoji.json"));
    QVERIFY(m_catalogue);
}

void tst_EmojiText::tags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("tag");

    const auto row = [](const char *name, const char16_t *text, int format, const char *code, const char16_t *tag) {
        QTest::newRow(name) << QString::fromUtf16(text) << format << QString::fromLatin1(code)
                            << QString::fromUtf16(tag);
    };
    row("two digits are padded", u"\u00a9", 1, "00a9",
        u"<img src=\"qrc:/emojis/00a9.svg\" height=\"20\" width=\"20\" align=\"middle\" alt=\"\u00a9\">");
    row("file", u"\U0001F600", 0, "1f600",
        u"<img src=\"svgFile=:/emojis/1f600.svg\U0001F600unicode\" alt=\"\U0001F600\">");
    row("tone", u"\U0001F44D\U0001F3FE", 0, "1f44d-1f3fe",
        u"<img src=\"svgFile=:/emojis/1f44d-1f3fe.svg\U0001F44D\U0001F3FEunicode\" alt=\"\U0001F44D\U0001F3FE\">");
    row("three and one digits are not padded", u"\u0123\t", 1, "123-9", u"\u0123\t");
    row("no image", u"\U0001FBFF", 1, "1fbff", u"\U0001FBFF");
    row("cut off", u"\U0001FB00", 1, "1fb00", u"\U0001FB00");
    row("no drawing", u"\U0001FB01", 1, "1fb01", u"\U0001FB01");
    row("reads another file", u"\U0001FB03", 1, "1fb03", u"\U0001FB03");
    row("drawing of a host", u"\U0001FB02", 0, "1fb02",
        u"<img src=\"svgFile=:/emojis/1fb02.svg\U0001FB02unicode\" alt=\"\U0001FB02\">");
    row("unknown format", u"\U0001F600", 2, "1f600", u"");
    row("unknown format, no image", u"x", 2, "0078", u"x");
}

void tst_EmojiText::tags()
{
    QFETCH(QString, text);
    QFETCH(int, format);
    QFETCH(QString, tag);
    const bool hasImage = tag != text;
    const QStringList warnings =
        format > 1 && hasImage ? QStringList(QStringLiteral("Unhandled image tag format!")) : QStringList();

    WarningLog log;
    EmojiConverter converter(20, quint8(format));
    const QVector<uint> points = text.toUcs4();
    for (const uint point : points)
        converter.append(point);
    QTEST(converter.code(), "code");
    QCOMPARE(converter.emojiToImageTag(), tag);
    QCOMPARE(log.take(), warnings);
    const QStringList files =
        hasImage ? QStringList(QStringLiteral(":/emojis/%1.svg").arg(converter.code())) : QStringList();
    QCOMPARE(converter.usedFiles(), files);
    if (format < 2)
        QCOMPARE(EmojiConverter::imageTagToText(tag), text);

    // A conversion writes the same tag, and begins its own list of files.
    QCOMPARE(converter.convert(text), tag);
    QCOMPARE(log.take(), warnings);
    QCOMPARE(converter.usedFiles(), files);
}

void tst_EmojiText::sequences_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char16_t *text, const char16_t *expected) {
        QTest::newRow(name) << QString::fromUtf16(text) << QString::fromUtf16(expected);
    };
    row("nothing", u"", u"");
    row("plain", u"Hello, (world): 3 # * 100 %", u"Hello, (world): 3 # * 100 %");
    row("among words", u"a\U0001F600b", u"a[1f600]b");
    row("side by side", u"\U0001F600\U0001F600\u2764\U0001F44D", u"[1f600][1f600][2764][1f44d]");
    row("copyright", u"\u00a9 2024 \u00ae", u"[00a9] 2024 [00ae]");
    row("with and without U+FE0F", u"\u2764\ufe0f \u2764", u"[2764-fe0f] [2764]");
    row("text presentation", u"\u2764\ufe0e \U0001F600\ufe0e", u"\u2764\ufe0e \U0001F600\ufe0e");
    row("of the last joined one", u"\U0001F469\u200d\u2764\ufe0e", u"[1f469]\u200d\u2764\ufe0e");
    row("of a flag", u"\U0001F1E9\U0001F1EA\ufe0e\U0001F1E9\U0001F1EA", u"\U0001F1E9\U0001F1EA\ufe0e[1f1e9-1f1ea]");
    row("of a tone", u"\U0001F44D\U0001F3FE\ufe0e", u"\U0001F44D\U0001F3FE\ufe0e");
    row("of nothing", u"a\ufe0e\u200d\ufe0f", u"a\ufe0e\u200d\ufe0f");
    row("tone", u"\U0001F44D\U0001F3FE", u"[1f44d-1f3fe]");
    row("family", u"\U0001F468\u200d\U0001F469\u200d\U0001F467", u"[1f468-200d-1f469-200d-1f467]");
    row("kiss, the longest", u"\U0001F469\U0001F3FB\u200d\u2764\ufe0f\u200d\U0001F48B\u200d\U0001F468\U0001F3FF",
        u"[1f469-1f3fb-200d-2764-fe0f-200d-1f48b-200d-1f468-1f3ff]");
    row("couple of two tones", u"\U0001F468\U0001F3FB\u200d\u2764\ufe0f\u200d\U0001F468\U0001F3FE",
        u"[1f468-1f3fb-200d-2764-fe0f-200d-1f468-1f3fe]");
    row("half of the selectors", u"\U0001F441\u200d\U0001F5E8\ufe0f \U0001F441\ufe0f\u200d\U0001F5E8 \u231a\ufe0f",
        u"[1f441-200d-1f5e8-fe0f] [1f441-fe0f-200d-1f5e8] [231a-fe0f]");
    row("rainbow flag", u"\U0001F3F3\ufe0f\u200d\U0001F308", u"[1f3f3-fe0f-200d-1f308]");
    row("flag", u"\U0001F1E9\U0001F1EA", u"[1f1e9-1f1ea]");
    row("an odd region", u"\U0001F1E9", u"\U0001F1E9");
    row("an odd region after a flag", u"\U0001F1E9\U0001F1EA\U0001F1E9 x", u"[1f1e9-1f1ea]\U0001F1E9 x");
    row("a pair that is no flag", u"\U0001F1FD\U0001F1FD\U0001F1E9\U0001F1EA", u"\U0001F1FD\U0001F1FD[1f1e9-1f1ea]");
    row("keycaps", u"3\ufe0f\u20e3#\u20e3*\ufe0f\u20e3", u"[0033-fe0f-20e3][0023-20e3][002a-fe0f-20e3]");
    row("keycap behind digits", u"123\ufe0f\u20e34", u"12[0033-fe0f-20e3]4");
    row("keycap behind an emoji", u"\U0001F6003\u20e3", u"[1f600][0033-20e3]");
    row("keycap as text", u"3\ufe0e\u20e3 x\u20e3 \u20e3", u"3\ufe0e\u20e3 x\u20e3 \u20e3");
    row("a digit for a picture", u"3\ufe0f 3", u"3\ufe0f 3");
    row("England", u"\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F.",
        u"[1f3f4-e0067-e0062-e0065-e006e-e0067-e007f].");
    row("tags cut off", u"\U0001F3F4\U000E0067\U000E0062x", u"[1f3f4]\U000E0067\U000E0062x");
    row("tags behind their end",
        u"\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F\U000E0067\U000E007F",
        u"[1f3f4-e0067-e0062-e0065-e006e-e0067-e007f]\U000E0067\U000E007F");
    row("no such joined one", u"\U0001F469\u200d\U0001F52C\u200d\U0001F52C", u"[1f469-200d-1f52c]\u200d[1f52c]");
    row("nothing to join", u"\U0001F469\u200d \u200d\U0001F469", u"[1f469]\u200d \u200d[1f469]");
    row("a tone on what has none", u"\U0001F600\U0001F3FE", u"[1f600][1f3fe]");
    row("U+FE0F that is not needed", u"\U0001F600\ufe0f", u"[1f600]\ufe0f");
    row("no image and a tone", u"\U0001FBFF\U0001F3FE\u200d\U0001F600\u200d\U0001F600",
        u"\U0001FBFF\U0001F3FE\u200d[1f600]\u200d[1f600]");
    row("lone surrogates", u"\xd83d \xde00\xd83d\xd83d\xde00\xd83d", u"\xd83d \xde00\xd83d[1f600]\xd83d");
    row("other symbols", u"\u2192\u2013\u201c\u3042\u3001\u329a\u4e2d\U00010400\U0001D400",
        u"\u2192\u2013\u201c\u3042\u3001\u329a\u4e2d\U00010400\U0001D400");
    row("wavy dash", u"\u3030\u3030\ufe0f", u"[3030][3030-fe0f]");
}

void tst_EmojiText::sequences()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    // Behind many characters blocks of them are skipped at once.
    for (const QString &before : {QString(), QString(37, QLatin1Char('x')), QString(16, QChar(0x4e2d))}) {
        EmojiConverter converter;
        const QString rich = converter.convert(before + text);
        QCOMPARE(shape(rich), before + expected);
        QCOMPARE(EmojiConverter::htmlToPlainText(rich), before + text);
        QCOMPARE(EmojiConverter::toPlainText(converter.toRichText(before + text)), before + text);
    }
}

void tst_EmojiText::everyImageIsReached()
{
    QStringList names = QDir(EmojiPicker::ImageFolder).entryList();
    for (const char *damaged : {"1fb00.svg", "1fb01.svg", "1fb03.svg"})
        QVERIFY(names.removeOne(QLatin1String(damaged)));
    QVERIFY(names.size() > 5000);
    EmojiConverter converter;
    for (const QString &name : qAsConst(names)) {
        const QString code = name.chopped(4);
        QCOMPARE(shape(converter.convert(ofCode(code))), QStringLiteral("[%1]").arg(code));
    }
}

void tst_EmojiText::everyEmojiOfTheCatalogue()
{
    EmojiConverter converter;
    int count = 0;
    for (const auto &emoji : m_catalogue->emojis()) {
        for (const EmojiPicker::EmojiVariation &variation : emoji->variations) {
            for (const QString &text : {variation.text, QString(variation.text).remove(QChar(0xfe0f))}) {
                const QString rich = converter.toRichText(text);
                QCOMPARE(converter.usedFiles().size(), 1);
                QCOMPARE(shape(rich), QStringLiteral("[%1]").arg(converter.usedFiles().constFirst().mid(9).chopped(4)));
                QVERIFY(QFile::exists(converter.usedFiles().constFirst()));
                QCOMPARE(EmojiConverter::toPlainText(rich), text);
                QVERIFY2(EmojiConverter::spokenText(text, m_catalogue) == variation.localisedName,
                         qPrintable(variation.unified));
                ++count;
            }
        }
    }
    QVERIFY(count > 6000);
}

// Many characters are looked at at once, in several ways.
void tst_EmojiText::whereItStandsDoesNotMatter()
{
    const std::pair<const char16_t *, const char *> specials[] = {
        {u"<", "&lt;"},
        {u">", "&gt;"},
        {u"&", "&amp;"},
        {u"\"", "&quot;"},
        {u"\n", "<br>"},
        {u"  ", "&nbsp; "},
        {u"\t", "<span style=\"white-space:pre\">\t</span>"},
        {u"\u00a9", "[00a9]"},
        {u"\u00ae", "[00ae]"},
        {u"\u203c", "[203c]"},
        {u"3\u20e3", "[0033-20e3]"},
        {u"\u2b55", "[2b55]"},
        {u"\u3030", "[3030]"},
        {u"\u3299", "[3299]"},
        {u"\U0001F004", "[1f004]"},
        {u"\U0001FAE8", "[1fae8]"},
    };
    EmojiConverter converter;
    for (const ushort filler : {0x61, 0xe9, 0x21, 0x4e2d, 0xac00, 0xe000}) {
        for (int length = 1; length < 110; length += length < 70 ? 1 : 13) {
            for (int at = 1; at < length; ++at) {
                const QString before(at, QChar(filler)), behind(length - at, QChar(filler));
                const auto &[text, rich] = specials[(length + at) % int(std::size(specials))];
                QCOMPARE(shape(converter.toRichText(before + QString::fromUtf16(text) + behind)),
                         QString(before + QLatin1String(rich) + behind));
            }
            const QString plain(length, QChar(filler));
            QVERIFY(converter.toRichText(plain).isSharedWith(plain));
            QVERIFY(converter.usedFiles().isEmpty());
        }
    }
}

void tst_EmojiText::longSequencesEnd()
{
    EmojiConverter converter;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(converter.toRichText(QStringLiteral("\U0001F469\u200d").repeated(50000)).count(QStringLiteral("<img")),
             50000);
    const QString tags = QStringLiteral("\U000E0067").repeated(100000);
    QCOMPARE(converter.toRichText(QStringLiteral("\U0001F3F4") + tags).count(QStringLiteral("<img")), 1);
    QVERIFY(timer.elapsed() < 20000);
}

void tst_EmojiText::messagesStayText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rich");

    const auto row = [](const char *name, const char16_t *text, const char16_t *rich) {
        QTest::newRow(name) << QString::fromUtf16(text) << QString::fromUtf16(rich);
    };
    row("tag", u"<img src=\"file:///etc/passwd\" alt=\"|\">",
        u"&lt;img src=&quot;file:///etc/passwd&quot; alt=&quot;|&quot;&gt;");
    row("references", u"&amp; &lt;b&gt; &nbsp; &#60;", u"&amp;amp; &amp;lt;b&amp;gt; &amp;nbsp; &amp;#60;");
    row("tag around an emoji", u"<b>\U0001F600</b>", u"&lt;b&gt;[1f600]&lt;/b&gt;");
    row("lines", u"a\nb\n\nc\n", u"a<br>b<br><br>c<br>");
    row("lines of another system", u"a \r\n b", u"a&nbsp;\r<br>&nbsp;b");
    row("blanks", u"a b  c   d", u"a b&nbsp; c&nbsp;&nbsp; d");
    row("blanks at the ends", u" a ", u"&nbsp;a&nbsp;");
    row("nothing but blanks", u"  ", u"&nbsp;&nbsp;");
    row("one blank", u" ", u"&nbsp;");
    row("blanks around a line break", u"a  \n  b \n c", u"a&nbsp;&nbsp;<br>&nbsp;&nbsp;b&nbsp;<br>&nbsp;c");
    row("blanks around an emoji", u"a \U0001F600 b", u"a [1f600] b");
    row("fixed blanks", u"a\u00a0\u00a0b", u"a\u00a0\u00a0b");
    row("tabs", u"a\t\tb \tc",
        u"a<span style=\"white-space:pre\">\t\t</span>b&nbsp;"
        u"<span style=\"white-space:pre\">\t</span>c");
    row("blank between tabs", u"\t \t",
        u"<span style=\"white-space:pre\">\t</span>&nbsp;"
        u"<span style=\"white-space:pre\">\t</span>");
    row("other blanks", u"\u3000a\u202f!",
        u"<span style=\"white-space:pre\">\u3000</span>a"
        u"<span style=\"white-space:pre\">\u202f</span>!");
    row("apostrophe", u"don't", u"don't");
    row("marker", u"svgFile=:/emojis/1f600.svgxunicode", u"svgFile=:/emojis/1f600.svgxunicode");
}

void tst_EmojiText::messagesStayText()
{
    QFETCH(QString, text);
    EmojiConverter converter;
    const QString rich = converter.toRichText(text);
    QTEST(shape(rich), "rich");
    QCOMPARE(EmojiConverter::toPlainText(rich), text);

    // And so it is shown.
    QTextDocument document;
    document.setHtml(rich);
    QString shown = text;
    shown.replace(QLatin1Char('\r'), QLatin1Char(' '))
        .replace(QChar(0xa0), QLatin1Char(' '))
        .replace(grin, QString(QChar(0xfffc)));
    QCOMPARE(document.toPlainText(), shown);
}

void tst_EmojiText::anyTextSurvives()
{
    RandomText texts(
        u"a~ ~  ~\n~\r~\t~<~>~&~\"~|~img~<img src=~src=\"~alt=\"~<br>~</span>~&lt;~&nbsp;~3~#~\ufe0f~\ufe0e"
        u"~\u20e3~\u200d~\0~\xd83d~\xde00~\ufffc~\ufdd0~\u00a0~\u2028~\u3000~\u4e2d~\U0001F600~\U0001F469"
        u"~\U0001F3FE~\U0001F52C~\U0001F1E9~\U0001F1EA~\U0001F3F4~\U000E0067\U000E007F~abcdefghijklmnopq",
        20);
    for (int i = 0; i < 20000; ++i) {
        const QString text = i < 19990 ? texts.next() : texts.next(20000);
        for (const quint8 format : {EmojiConverter::SvgFileTag, EmojiConverter::QrcTag}) {
            EmojiConverter converter(20, format);
            const QString rich = converter.toRichText(text);
            QCOMPARE(EmojiConverter::toPlainText(rich), text);
            // Whatever the text, the only tags are ours.
            const int tags = converter.usedFiles().size() + rich.count(QStringLiteral("<br>"))
                + 2 * rich.count(QStringLiteral("</span>"));
            QCOMPARE(rich.count(QLatin1Char('<')), tags);
            QCOMPARE(rich.count(QLatin1Char('>')), tags);
        }
    }
}

void tst_EmojiText::htmlToPlainText_data()
{
    QTest::addColumn<bool>("isTag");
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("plain");

    const auto tag = [](const char *name, const char *html, const char *text) {
        QTest::newRow(name) << true << QString::fromLatin1(html) << QString::fromLatin1(text);
    };
    tag("alternative text", "<img src=\"x\" alt=\"a\">", "a");
    tag("bar", "<img src=\"x|y\" alt=\"a\">", "x");
    tag("bar behind the source", "<img src=\"x\" alt=\"a|b\">", "x\" alt=\"a");
    tag("bar before the source", "<img alt=\"a|b\" src=\"x\">", "a|b");
    tag("nothing before the bar", "<img src=\"|\" alt=\"a\">", "");
    tag("last source", "<img src=\"a|\" src=\"b|\">", "b");
    tag("last alternative text", "<img src=\"x\" alt=\"a\" alt=\"b\">", "b");
    tag("empty alternative text", "<img src=\"x\" alt=\"\">", "");
    tag("no source", "<img alt=\"a|b\">", "<img alt=\"a|b\">");
    tag("no alternative text", "<img src=\"x\">", "<img src=\"x\">");
    tag("the end of an earlier one does not count", "<img alt=\"a\" src=\"x\" alt=\"b>",
        "<img alt=\"a\" src=\"x\" alt=\"b>");
    tag("no tag at all", "src=\"a|", "a");

    const auto html = [](const char *name, const char16_t *text, const char16_t *plain) {
        QTest::newRow(name) << false << QString::fromUtf16(text) << QString::fromUtf16(plain);
    };
    html("none", u"a <b>b</b> &lt;", u"a <b>b</b> &lt;");
    html("two of different lengths", u"1<img src=\"q\" alt=\"abc\">2<img src=\"longer|\" alt=\"x\">3", u"1abc2longer3");
    html("never closed", u"<img src=\"x\" alt=\"a\"", u"<img src=\"x\" alt=\"a\"");
    html("not across lines", u"<img src=\"x\n\" alt=\"a\"><img src=\"x\" alt=\"b\">", u"<img src=\"x\n\" alt=\"a\">b");
    html("tag in a tag", u"<img src=\"<img src=\"x\" alt=\"a\">", u"a");
    html("case matters", u"<IMG src=\"x\" alt=\"a\">", u"<IMG src=\"x\" alt=\"a\">");
    html("lone surrogate", u"\xd83d<img src=\"x\" alt=\"\">", u"\xd83d");
}

void tst_EmojiText::htmlToPlainText()
{
    QFETCH(bool, isTag);
    QFETCH(QString, html);
    QTEST(isTag ? EmojiConverter::imageTagToText(html) : EmojiConverter::htmlToPlainText(html), "plain");
}

// The steps word by word.
static QString literalTagToText(const QString &tag)
{
    const int source = tag.lastIndexOf(QStringLiteral("src=\""));
    if (source == -1)
        return tag;
    const int begin = source + 5;
    const int bar = tag.indexOf(QLatin1Char('|'), begin);
    if (bar != -1)
        return tag.mid(begin, bar - begin);
    const int alt = tag.lastIndexOf(QStringLiteral("alt=\""));
    const int quote = alt == -1 ? -1 : tag.indexOf(QLatin1Char('"'), alt + 5);
    return quote == -1 ? tag : tag.mid(alt + 5, quote - alt - 5);
}

static QString literalHtmlToPlainText(const QString &html)
{
    const QRegularExpression expression(QStringLiteral("<img src=.*?\\>"));
    QString copy = html;
    int offset = 0;
    auto it = expression.globalMatch(html);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const QString text = literalTagToText(match.captured());
        copy.replace(match.capturedStart() + offset, match.capturedLength(), text);
        offset += text.size() - match.capturedLength();
    }
    return copy;
}

void tst_EmojiText::htmlToPlainTextIsTheLiteralOne()
{
    RandomText texts(
        u"<img src=~<img src=\"~<img ~src=\"~ alt=\"~alt=\"x\"~\"~>~\">~<~|~\n~\r~\u2028~\u0085~\0~\U0001F600~ab"
        u"~<img src=\"a\" alt=\"b\">",
        30);
    int replaced = 0;
    for (int i = 0; i < 30000; ++i) {
        const QString html = texts.next();
        const QString plain = literalHtmlToPlainText(html);
        QVERIFY2(EmojiConverter::htmlToPlainText(html) == plain, qPrintable(html));
        replaced += plain != html;
    }
    QVERIFY(replaced > 5000);
}

void tst_EmojiText::imagesInDocuments_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<int>("imageSize");
    QTest::addColumn<QString>("text"); // U+FFFC for an image
    QTest::addColumn<QStringList>("alternatives");
    QTest::addColumn<int>("edge"); // 0 for the height of a line

    const QString thumb = QStringLiteral("\U0001F44D\U0001F3FE");
    const QString both = QStringLiteral("a \U0001F600 b\n\U0001F44D\U0001F3FE\U0001F600");
    const QStringList alternatives {grin, thumb, grin};
    const QString shown = QStringLiteral("a \ufffc b\n\ufffc\ufffc");
    EmojiConverter files(20, EmojiConverter::SvgFileTag);
    EmojiConverter addresses(26, EmojiConverter::QrcTag);
    const QString marker = QStringLiteral("svgFile=:/emojis/1f600.svg\U0001F600unicode");
    const QString oneEdge = QStringLiteral("<img src=\"qrc:/emojis/1f600.svg\" width=\"30\">"
                                           "<img src=\"qrc:/emojis/1f600.svg\" height=\"30\">");
    QTest::newRow("file tags") << files.toRichText(both) << 0 << shown << alternatives << 0;
    QTest::newRow("qrc tags keep theirs") << addresses.toRichText(both) << 17 << shown << alternatives << 26;
    QTest::newRow("one edge is told") << oneEdge << 12 << QStringLiteral("\ufffc\ufffc") << QStringList {grin, grin}
                                      << 30;
    QTest::newRow("markers and a tag") << QString(marker + QLatin1Char('y') + marker + files.toRichText(thumb)) << 12
                                       << QStringLiteral("\ufffcy\ufffc\ufffc") << QStringList {grin, grin, thumb}
                                       << 12;
}

void tst_EmojiText::imagesInDocuments()
{
    QFETCH(QString, html);
    QFETCH(int, imageSize);
    QFETCH(QString, text);
    QFETCH(QStringList, alternatives);
    QFETCH(int, edge);

    QTextDocument document;
    QFont font;
    font.setPixelSize(18);
    document.setDefaultFont(font);
    document.setHtml(html);
    const qreal expectedEdge = edge > 0 ? edge : std::floor(QFontMetricsF(font).ascent());
    // Again with another ratio: the images are made anew.
    for (const qreal ratio : {1.0, 2.0, 1.5}) {
        EmojiConverter::insertEmojiImages(&document, imageSize, ratio);
        QCOMPARE(document.toPlainText(), text);
        QStringList found;
        const QVector<QTextImageFormat> formats = images(document);
        for (const QTextImageFormat &format : formats) {
            found << format.property(QTextFormat::ImageAltText).toString();
            QCOMPARE(format.width(), expectedEdge);
            QCOMPARE(format.height(), expectedEdge);
            const QImage image = document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
            QCOMPARE(image.width(), qRound(expectedEdge * ratio));
            QCOMPARE(image, EmojiResources::image(found.constLast(), image.width(), 1));
        }
        QCOMPARE(found, alternatives);
    }

    // Another font: what follows the font follows it, what has a size keeps it.
    font.setPixelSize(40);
    document.setDefaultFont(font);
    EmojiConverter::insertEmojiImages(&document, imageSize, 1);
    const QVector<QTextImageFormat> formats = images(document);
    for (const QTextImageFormat &format : formats)
        QCOMPARE(format.height(), edge > 0 ? edge : std::floor(QFontMetricsF(font).ascent()));
}

void tst_EmojiText::imagesAreSharp()
{
    for (const auto &[tagFormat, ratio, fontSize] :
         {std::tuple {0, 1.0, 11}, {1, 1.0, 40}, {0, 2.0, 40}, {1, 2.0, 11}, {1, 3.0, 40}}) {
        QTextDocument document;
        QFont font;
        font.setPixelSize(fontSize);
        document.setDefaultFont(font);
        document.setDocumentMargin(0);
        document.setHtml(EmojiConverter(60, quint8(tagFormat)).toRichText(grin));
        EmojiConverter::insertEmojiImages(&document, 60, ratio);
        const QImage image = EmojiResources::image(grin, 60, ratio);
        QVERIFY(!image.isNull());

        QImage shown(QSize(200, 200), QImage::Format_ARGB32_Premultiplied);
        shown.setDevicePixelRatio(ratio);
        shown.fill(Qt::white);
        QImage expected = shown;
        QPainter onShown(&shown), onExpected(&expected);
        document.drawContents(&onShown);
        onExpected.drawImage(0, 0, image);
        onShown.end();
        onExpected.end();
        QCOMPARE(shown, expected);
    }
}

// In every font: lines keep their height.
void tst_EmojiText::imagesFitTheirLine()
{
    for (const int fontSize : {9, 16, 33}) {
        QFont font;
        font.setPixelSize(fontSize);
        const auto heightOf = [&font](const QString &html) {
            QTextDocument document;
            document.setDefaultFont(font);
            document.setHtml(html);
            EmojiConverter::insertEmojiImages(&document, 0, 1);
            return document.size().height();
        };
        const QString text = QStringLiteral("Agx ");
        QCOMPARE(heightOf(EmojiConverter(20, EmojiConverter::SvgFileTag).toRichText(text + grin)), heightOf(text));
    }
}

void tst_EmojiText::selections()
{
    const QString message = QStringLiteral("a <b> %1%1\nlast  line %1").arg(grin);
    for (const quint8 format : {EmojiConverter::SvgFileTag, EmojiConverter::QrcTag}) {
        QTextDocument document;
        document.setHtml(EmojiConverter(20, format).toRichText(message) + QStringLiteral("<p>next</p>"));
        EmojiConverter::insertEmojiImages(&document);
        QTextCursor cursor(&document);
        QCOMPARE(EmojiConverter::selectedText(cursor), QString());
        cursor.select(QTextCursor::Document);
        QCOMPARE(EmojiConverter::selectedText(cursor), message + QStringLiteral("\nnext"));
        cursor.setPosition(2);
        cursor.setPosition(7, QTextCursor::KeepAnchor); // the first of two that are one fragment
        const std::unique_ptr<QMimeData> data(EmojiConverter::createMimeData(cursor));
        QCOMPARE(data->text(), QStringLiteral("<b> ") + grin);
        QVERIFY(data->html().contains(QStringLiteral("/emojis/1f600.svg")));
    }
}

void tst_EmojiText::imagesKeepTheirShape()
{
    QTextDocument document;
    document.setHtml(QStringLiteral("<img src=\"qrc:/emojis/1f600.svg\" width=\"40\" height=\"20\">"));
    EmojiConverter::insertEmojiImages(&document, 30, 1);
    const QString name = images(document).value(0).name();
    const QImage image = document.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    QCOMPARE(image.size(), QSize(40, 20));
    QCOMPARE(image.copy(10, 0, 20, 20), EmojiResources::image(grin, 20, 1));
}

void tst_EmojiText::otherSourcesAreLeftAlone()
{
    WarningLog log;
    for (const char *html :
         {"<img src=\"svgFile=/etc/passwdunicode\">", "<img src=\"svgFile=:/emojis/../x.svgunicode\">",
          "<img src=\"file:///x.svg\" alt=\"a\">", "<img src=\"qrc:/emojis/1fb00.svg\">",
          "<img src=\"qrc:/emojis/401f600.svg\">", // cut to two surrogates it would be 1f600
          "<img src=\"qrc:/emojis/1f600.svg\" width=\"100000\" height=\"100000\">", "svgFile=:/emojis/1f600.svg",
          "svgFile=:/emojis/1f600-.svgxunicode", "svgFile=:/emojis/%1.svgxunicode", "svgFile=:/icons/1f600.svgxunicode",
          "unicode svgFile="}) {
        QTextDocument document;
        document.setHtml(QLatin1String(html));
        const QString before = document.toHtml();
        EmojiConverter::insertEmojiImages(&document, 20, 2);
        QCOMPARE(document.toHtml(), before);
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_EmojiText::clipboard()
{
    EmojiConverter converter;
    const QString rich = converter.convert(QStringLiteral("a &lt; \U0001F600"));
    EmojiConverter::copyRichText(rich);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->html(), rich);
    QCOMPARE(data->text(), QStringLiteral("a &lt; \U0001F600"));

    converter.copyPlainText(QStringLiteral("a < \U0001F600"));
    data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->html(), rich);
    QCOMPARE(data->text(), QStringLiteral("a < \U0001F600"));
}

void tst_EmojiText::spoken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("spoken");

    const auto nameOf = [this](const char *shortName) {
        const int i = EmojiPicker::findEmojiIndex(m_catalogue, QString::fromLatin1(shortName));
        return i < 0 ? QString() : m_catalogue->emojis()[size_t(i)]->variations[0].localisedName;
    };
    const QString thumb = nameOf("+1");
    const QString face = nameOf("grinning");
    QVERIFY(!thumb.isEmpty() && !face.isEmpty());
    const auto row = [](const char *name, const char16_t *text, const QString &spoken) {
        QTest::newRow(name) << QString::fromUtf16(text) << spoken;
    };
    row("none", u"3 < 4", QStringLiteral("3 < 4"));
    row("alone", u"\U0001F600", face);
    row("tone", u"ok \U0001F44D\U0001F3FE", QStringLiteral("ok %1").arg(thumb));
    row("between letters", u"a\U0001F600b", QStringLiteral("a %1 b").arg(face));
    row("side by side", u"\U0001F600\U0001F44D!", QStringLiteral("%1 %2!").arg(face, thumb));
    row("in brackets", u"x (\U0001F600)", QStringLiteral("x (%1)").arg(face));
    row("not in the catalogue", u"\U0001FB02", QStringLiteral("\U0001FB02"));
    row("unneeded U+FE0F", u"\U0001F600\ufe0f", face);
    row("asked for as text", u"\u2764\ufe0e", QStringLiteral("\u2764\ufe0e"));
}

void tst_EmojiText::spoken()
{
    QFETCH(QString, text);
    QTEST(EmojiConverter::spokenText(text, m_catalogue), "spoken");
    QCOMPARE(EmojiConverter::spokenText(text, nullptr), text);
}

void tst_EmojiText::refused()
{
    WarningLog log;
    EmojiConverter converter(0);
    QCOMPARE(log.take(), QStringList(QStringLiteral("EmojiConverter::setImageSize - Invalid size 0")));
    QCOMPARE(converter.imageSize(), 20);
    converter.append(grin.toUcs4().constFirst());
    converter.append(0x110000);
    QCOMPARE(log.take(), QStringList(QStringLiteral("EmojiConverter::append - No code point 1114112")));
    QCOMPARE(converter.text(), grin);
    EmojiConverter::insertEmojiImages(nullptr);
    QCOMPARE(log.take(), QStringList(QStringLiteral("EmojiConverter::insertEmojiImages - No document")));

    const QString file = EmojiResources::file();
    QVERIFY(!EmojiResources::setFile(QCoreApplication::applicationFilePath()));
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(EmojiResources::file(), file);
    QVERIFY(converter.convert(grin) != grin);
}

void tst_EmojiText::anotherFile()
{
    EmojiConverter converter;
    const QString rich = converter.convert(grin);
    const QStringList used = converter.usedFiles();
    const QString file = EmojiResources::file();
    QVERIFY(EmojiResources::setFile(QStringLiteral(UIELEMENTS_EMOJI_TEST_IMAGES)));
    QCOMPARE(EmojiResources::file(), QStringLiteral(UIELEMENTS_EMOJI_TEST_IMAGES));
    QCOMPARE(converter.usedFiles(), used);
    QCOMPARE(converter.convert(grin), grin);
    QVERIFY(EmojiResources::setFile(file));
    QCOMPARE(converter.convert(grin), rich);
}

namespace {

QString libraryFile()
{
    QString path;
    dl_iterate_phdr(
        [](dl_phdr_info *info, size_t, void *result) {
            const QString name = QFile::decodeName(info->dlpi_name);
            if (name.contains(QLatin1String("libUiElements")))
                *static_cast<QString *>(result) = name;
            return 0;
        },
        &path);
    return path;
}

qint64 bytesRead()
{
    QFile file(QStringLiteral("/proc/self/io"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split('\n').value(0).mid(int(qstrlen("rchar: "))).toLongLong();
}

/// What a new process sees: the file, how many bytes registering it read, what becomes of a text, the warnings.
int probe()
{
    WarningLog log;
    if (qEnvironmentVariableIsSet("TEST_HOST_HAS_IMAGES"))
        QResource::registerResource(QStringLiteral(UIELEMENTS_EMOJI_TEST_IMAGES));
    const qint64 before = bytesRead();
    EmojiResources::ensureRegistered();
    const qint64 read = bytesRead() - before;
    EmojiConverter converter;
    QStringList lines {EmojiResources::file(), read < 4096 ? QStringLiteral("mapped") : QString::number(read),
                       shape(converter.convert(QStringLiteral("\U0001F600")))};
    converter.convert(QStringLiteral("\U0001F44D"));
    QTextStream(stdout) << (lines + log.take()).join(QLatin1Char('\n'));
    return 0;
}

} // namespace

void tst_EmojiText::whereTheFileLies_data()
{
    QTest::addColumn<QString>("variable"); // %1 is the folder of the moved library, %2 the file
    QTest::addColumn<bool>("isMoved");
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("hostHasImages");
    QTest::addColumn<QString>("seen");

    const QString none = QStringLiteral("%1/none.rcc\nmapped\n\U0001F600");
    const QString warning = QStringLiteral("\nEmojiResources - Emoji are shown as text, no images in \"%1/none.rcc\"");
    QTest::newRow("beside the library") << QString() << false << true << false << QStringLiteral("%2\nmapped\n[1f600]");
    QTest::newRow("moved with it") << QString() << true << true << false
                                   << QStringLiteral("%1/emojis.rcc\nmapped\n[1f600]");
    QTest::newRow("named by the host") << QStringLiteral("%2") << true << false << false
                                       << QStringLiteral("%2\nmapped\n[1f600]");
    QTest::newRow("missing") << QStringLiteral("%1/none.rcc") << false << true << false << none + warning;
    QTest::newRow("the host has its own") << QStringLiteral("%1/none.rcc") << false << true << true << none;
}

void tst_EmojiText::whereTheFileLies()
{
    QFETCH(QString, variable);
    QFETCH(bool, isMoved);
    QFETCH(bool, hasFile);
    QFETCH(bool, hostHasImages);
    QFETCH(QString, seen);

    QTemporaryDir temporary;
    const QString folder = QFileInfo(temporary.path()).canonicalFilePath();
    const QString library = libraryFile();
    const QString name = QFileInfo(library).fileName();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("UIELEMENTS_EMOJIS"));
    if (hostHasImages)
        environment.insert(QStringLiteral("TEST_HOST_HAS_IMAGES"), QStringLiteral("1"));
    if (isMoved) {
        QVERIFY(QFile::copy(library, folder + QLatin1Char('/') + name));
        environment.insert(QStringLiteral("LD_LIBRARY_PATH"), folder);
    }
    if (isMoved && hasFile)
        QVERIFY(QFile::copy(EmojiResources::file(), folder + QStringLiteral("/emojis.rcc")));
    const auto filled = [&folder](QString text) {
        return text.replace(QStringLiteral("%1"), folder).replace(QStringLiteral("%2"), EmojiResources::file());
    };
    if (!variable.isEmpty())
        environment.insert(QStringLiteral("UIELEMENTS_EMOJIS"), filled(variable));

    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--probe")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), filled(seen));
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (app.arguments().contains(QStringLiteral("--probe")))
        return probe();
    tst_EmojiText test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_emoji_text.moc"

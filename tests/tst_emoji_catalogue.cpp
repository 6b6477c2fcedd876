#include "support/WarningLog.h"

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/emoji/EmojiParser.h>
#include <UiElements/emoji/EmojiStream_p.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <random>
#include <thread>

#include <sys/stat.h>

using namespace EmojiPicker;

namespace {

using Catalogue = std::shared_ptr<const EmojiData>;

const QString CatalogueFile = QStringLiteral(UIELEMENTS_SOURCE_DIR "/resources/emoji/emoji.json");

// The whole catalogue, one line for each emoji and category; "-" for none.
QString spell(const Catalogue &catalogue)
{
    if (!catalogue)
        return QStringLiteral("-");
    QStringList out;
    for (std::size_t i = 0; i < catalogue->emojis().size(); ++i) {
        const Emoji &emoji = *catalogue->emojis()[i];
        QStringList line {catalogue->names()[i] + QLatin1Char(':')};
        for (const EmojiVariation &form : emoji.variations) {
            QStringList codes;
            const QVector<uint> points = form.text.toUcs4();
            for (const uint code : points)
                codes << QString::number(code, 16);
            line << QStringLiteral("%1=%2@%3,%4")
                        .arg(form.unified, codes.join(QLatin1Char('-')))
                        .arg(form.sheetX)
                        .arg(form.sheetY);
            if (form.name != catalogue->names()[i] || form.localisedName != emoji.variations.front().localisedName)
                line << QStringLiteral("named differently");
        }
        line << QLatin1Char('"') + emoji.variations.front().localisedName + QLatin1Char('"');
        if (emoji.englishName != emoji.variations.front().localisedName)
            line << QLatin1Char('"') + emoji.englishName + QLatin1Char('"');
        line << emoji.keywords.join(QLatin1Char('|'));
        if (emoji.englishKeywords != emoji.keywords)
            line << emoji.englishKeywords.join(QLatin1Char('|'));
        out << line.join(QLatin1Char(' ')).trimmed();
    }
    for (const auto &category : catalogue->categories()) {
        QStringList names {category->id, category->name,
                           category->hasSkinVariations ? QStringLiteral("tones:") : QStringLiteral("plain:")};
        for (const quint16 index : category->emojis)
            names << catalogue->names().at(index);
        out << names.join(QLatin1Char(' '));
    }
    return out.join(QLatin1Char('\n'));
}

QString names(const EmojiPointers &emojis)
{
    QStringList out;
    for (const auto &emoji : emojis)
        out << emoji->variations.front().name;
    return out.join(QLatin1Char(' '));
}

Catalogue viaDocument(const QByteArray &json)
{
    return EmojiParser().parseObject(QJsonDocument::fromJson(json).object());
}

Catalogue viaStream(const QByteArray &json)
{
    return streamCatalogue(json,
                           {QStringLiteral("1F3FB"), QStringLiteral("1F3FC"), QStringLiteral("1F3FD"),
                            QStringLiteral("1F3FE"), QStringLiteral("1F3FF")});
}

// What the stream does not take it leaves to the document; what it takes must be the same. Tells how often it did.
bool takenBy(const QByteArray &json, bool *taken)
{
    const Catalogue catalogue = viaStream(json);
    *taken = catalogue != nullptr;
    return !catalogue || spell(catalogue) == spell(viaDocument(json));
}

// A catalogue of emoji that are written "name|English name|keyword,keyword", in that order.
Catalogue catalogueOf(const QStringList &emojis)
{
    QJsonObject all;
    QJsonArray order;
    for (const QString &emoji : emojis) {
        const QStringList parts = emoji.split(QLatin1Char('|'));
        all[parts.at(0)] =
            QJsonObject {{QStringLiteral("a"), parts.at(1)},
                         {QStringLiteral("b"), QStringLiteral("1F600")},
                         {QStringLiteral("j"), QJsonArray::fromStringList(parts.value(2).split(QLatin1Char(',')))},
                         {QStringLiteral("k"), QJsonArray {0, 0}}};
        order.append(parts.at(0));
    }
    const QJsonObject category {{QStringLiteral("id"), QStringLiteral("all")},
                                {QStringLiteral("name"), QStringLiteral("All")},
                                {QStringLiteral("emojis"), order}};
    return EmojiParser().parseObject(
        {{QStringLiteral("emojis"), all}, {QStringLiteral("categories"), QJsonArray {category}}});
}

// Speaks a language of which it knows a few words, and counts the questions.
class Language : public QTranslator
{
public:
    explicit Language(const QHash<QString, QString> &words)
        : m_words(words)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Language() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "EmojiLocalisation") != 0)
            return QString();
        ++asked[QString::fromUtf8(text)];
        return m_words.value(QString::fromUtf8(text));
    }
    mutable QHash<QString, int> asked;

private:
    const QHash<QString, QString> m_words;
};

// Two emoji with tones, one with an escape and one of two code points; two categories.
QByteArray small()
{
    return QByteArray(R"({"version": [1, null, {"x": 3}],
"emojis": {
 "+1": {"a": "thumbs up", "b": "1F44D", "j": ["thumbsup", "like"], "k": [12, 61], "skin_variations": {
  "1F3FB": {"unified": "1F44D-1F3FB", "sheet_x": 13, "sheet_y": 0},
  "1F3FF": {"unified": "1F44D-1F3FF", "sheet_x": 13, "sheet_y": 4}}},
 "clap": {"a": "clapping hands", "b": "1F44F", "k": [1, 2], "skin_variations": {
  "1F3FD": {"unified": "1F44F-1F3FD", "sheet_x": 3, "sheet_y": 4, "image": "x.png"}}},
 "confused": {"a": "confused face", "b": "1F615", "j": [ESCAPES], "k": [0, 0]},
 "flag-ci": {"a": "flag: Côte d’Ivoire", "b": "1F1E8-1F1EE", "j": [], "k": [5, 6], "new": true}
},
"categories": [
 {"id": "people", "name": "People", "has_skin_variantions": true, "emojis": ["confused", "nobody", "+1", "clap"]},
 {"id": "flags", "name": "Flags", "emojis": ["flag-ci"]}
]})")
        .replace("ESCAPES", "\":\\\\\", \"\\\"\\/\""); // moc stumbles over these in a raw literal
}

} // namespace

class tst_EmojiCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documents_data();
    void documents();
    void stages();
    void truncated();
    void damaged();
    void streamed();
    void moreThanSixteenBits();
    void eachWordIsTranslatedOnce();
    void lookup();
    void recents();
    void everydayQueries_data();
    void everydayQueries();
    void matching_data();
    void matching();
    void twoLanguages();
    void pages();
    void firstSearchInManyThreads();
};

void tst_EmojiCatalogue::documents_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");

    const auto document = [](const char *name, const QByteArray &json, const char *expected) {
        QTest::newRow(name) << json << QString::fromUtf8(expected);
    };
    document("no bytes", "", "-");
    document("an array", "[]", "-");
    document("no emoji", R"({"emojis":{},"categories":[{"id":"c","name":"C"}]})", "-");
    document("no categories", R"({"emojis":{"a":{"b":"41","k":[1,2]}},"categories":[]})", "-");
    document("categories missing", R"({"emojis":{"a":{"b":"41","k":[1,2]}}})", "-");
    document("categories of another type", R"({"emojis":{"a":{"b":"41","k":[1,2]}},"categories":{"id":"c"}})", "-");
    document("no emoji that is valid: no categories", R"({"emojis":{"a":{}},"categories":[{"id":"c","name":"C"}]})",
             "");
    document(
        "small", small(),
        "+1: 1F44D=1f44d@12,61 1F44D-1F3FB=1f44d-1f3fb@13,0 1F44D-1F3FF=1f44d-1f3ff@13,4 \"thumbs up\" thumbsup|like\n"
        "clap: 1F44F=1f44f@1,2 1F44F-1F3FD=1f44f-1f3fd@3,4 \"clapping hands\"\n"
        "confused: 1F615=1f615@0,0 \"confused face\" :\\|\"/\n"
        "flag-ci: 1F1E8-1F1EE=1f1e8-1f1ee@5,6 \"flag: Côte d’Ivoire\"\n"
        "people People tones: confused +1 clap\n"
        "flags Flags plain: flag-ci");

    const auto emoji = [&document](const char *name, const QByteArray &members, const char *expected) {
        document(name,
                 R"({"emojis":{"a":{"b":"41","k":[1,2]},"b":{)" + members
                     + R"(},"c":{"b":"43","k":[3,4]}},"categories":[{"id":"i","name":"n","emojis":["c","b","a"]}]})",
                 (QByteArray("a: 41=41@1,2 \"\"\n") + (*expected ? QByteArray("b: ") + expected + '\n' : QByteArray())
                  + "c: 43=43@3,4 \"\"\ni n plain: c" + (*expected ? " b" : "") + " a")
                     .constData());
    };
    emoji("cell of three", R"("b":"42","k":[1,2,3])", "");
    emoji("cell of one", R"("b":"42","k":[1])", "");
    emoji("no cell", R"("b":"42")", "");
    emoji("cell of another type", R"("b":"42","k":"1,2")", "");
    emoji("cell of texts", R"("b":"42","k":["1","2"])", "");
    emoji("column negative", R"("b":"42","k":[-1,2])", "");
    emoji("row no integer", R"("b":"42","k":[1,2.5])", "");
    emoji("row beyond any integer", R"("b":"42","k":[1,1e300])", "");
    emoji("cell with exponents", R"("b":"42","k":[1e2,2.0])", "42=42@100,2 \"\"");
    emoji("cell 0, 0", R"("b":"42","k":[0,0])", "42=42@0,0 \"\"");
    emoji("no characters", R"("b":"","k":[1,2])", "");
    emoji("characters of another type", R"("b":42,"k":[1,2])", "");
    emoji("no hexadecimal number", R"("b":"1F60G","k":[1,2])", "");
    emoji("a sign is no digit", R"("b":"+42","k":[1,2])", "");
    emoji("one part empty", R"("b":"1F468--1F469","k":[1,2])", "");
    emoji("behind the last character", R"("b":"110000","k":[1,2])", "");
    emoji("more digits than any number has", R"("b":"1000000000000000000000041","k":[1,2])", "");
    emoji("half a character", R"("b":"D83D-DE00","k":[1,2])", "");
    emoji("the null character", R"("b":"0","k":[1,2])", "");
    emoji("the last character, small letters", R"("b":"10ffff-0041","k":[1,2])", "10ffff-0041=10ffff-41@1,2 \"\"");
    emoji("keywords no array", R"("b":"42","k":[1,2],"j":"x")", "42=42@1,2 \"\"");
    emoji("keywords of all types", R"("b":"42","k":[1,2],"j":["x",1,null,["y"],"z"])", "42=42@1,2 \"\" x|z");
    emoji("name of another type", R"("b":"42","k":[1,2],"a":{})", "42=42@1,2 \"\"");
    emoji("escapes", R"("b":"42","k":[1,2],"a":"\u00e9\t\ud83d\ude00","j":["\b\f\n\r\tx"])",
          "42=42@1,2 \"\u00e9\t\U0001F600\" \b\f\n\r\tx");
    emoji("escape of another letter", R"("b":"42","k":[1,2],"a":"\q")", "42=42@1,2 \"q\"");
    emoji("the last of two", R"("b":"41","k":[1,2],"a":"x","b":"42","a":"y")", "42=42@1,2 \"y\"");
    emoji("tones in their own order",
          R"("b":"42","k":[1,2],"skin_variations":{"1F3FF":{"unified":"5","sheet_x":5,"sheet_y":5},)"
          R"("1F3FB":{"unified":"1","sheet_x":1,"sheet_y":1}})",
          "42=42@1,2 1=1@1,1 5=5@5,5 \"\"");
    emoji("tones with faults",
          R"("b":"42","k":[1,2],"skin_variations":{"1F3FB":{"unified":"1","sheet_x":1},
             "1F3FC":{"unified":"2","sheet_x":2,"sheet_y":2},
             "1F3FD":7,"1F3FE":{"sheet_x":4,"sheet_y":4},"1F3FF":{"unified":"5","sheet_x":"5","sheet_y":5},
             "1F3FA":{"unified":"6","sheet_x":6,"sheet_y":6}})",
          "42=42@1,2 2=2@2,2 \"\"");
    emoji("codes of tones in small letters",
          R"("b":"42","k":[1,2],"skin_variations":{"1f3fb":{"unified":"1","sheet_x":1,"sheet_y":1}})",
          "42=42@1,2 \"\"");

    const auto categories = [&document](const char *name, const QByteArray &list, const char *expected) {
        document(name,
                 R"({"categories":[)" + list + R"(],"emojis":{"B":{"b":"42","k":[3,4]},"a":{"b":"41","k":[1,2]}}})",
                 (QByteArray("B: 42=42@3,4 \"\"\na: 41=41@1,2 \"\"") + expected).constData());
    };
    categories("an unknown name between two", R"({"id":"i","name":"n","emojis":["a","x","B"]})", "\ni n plain: a B");
    categories("case of names", R"({"id":"i","name":"n","emojis":["A","b","a"]})", "\ni n plain: a");
    categories("a name twice", R"({"id":"i","name":"n","emojis":["a","B","a"]})", "\ni n plain: a B a");
    categories("no names", R"({"id":"i","name":"n"})", "\ni n plain:");
    categories("names of other types", R"({"id":"i","name":"n","emojis":[1,["a"],"a",null]})", "\ni n plain: a");
    categories("without id, without name, no object, and one more",
               R"({"name":"n","emojis":["a"]},{"id":"i","emojis":["a"]},{"id":"","name":"n"},5,{"id":"j","name":"m"})",
               "\nj m plain:");
    categories("the flag as it is spelled", R"({"id":"i","name":"n","has_skin_variantions":true})", "\ni n tones:");
    categories("the flag as it is not spelled", R"({"id":"i","name":"n","has_skin_variations":true})", "\ni n plain:");
    categories("the flag is no number", R"({"id":"i","name":"n","has_skin_variantions":1})", "\ni n plain:");

    document("names sort by code units",
             "{\"emojis\":{\"a\":{\"b\":\"41\",\"k\":[1,2]},\"\uFF5E\":{\"b\":\"42\",\"k\":[1,2]},\"\U0001F600\":{"
             "\"b\":\"43\",\"k\":[1,2]},\"Z\":{\"b\":\"44\",\"k\":[1,2]}},"
             "\"categories\":[{\"id\":\"i\",\"name\":\"n\",\"emojis\":[\"\uFF5E\",\"\U0001F600\",\"a\"]}]}",
             "Z: 44=44@1,2 \"\"\na: 41=41@1,2 \"\"\n\U0001F600: 43=43@1,2 \"\"\n\uFF5E: 42=42@1,2 \"\"\n"
             "i n plain: \uFF5E \U0001F600 a");
    document("the last of two emoji, which is omitted",
             R"({"emojis":{"a":{"b":"41","k":[1,2]},"c":{"b":"43","k":[1,2]},"a":{"b":"42"}},)"
             R"("categories":[{"id":"i","name":"n","emojis":["a","c"]}]})",
             "c: 43=43@1,2 \"\"\ni n plain: c");
    document(
        "the last of two emoji, the first being omitted",
        R"({"emojis":{"a":{"b":"41"},"a":{"b":"42","k":[1,2]}},"categories":[{"id":"i","name":"n","emojis":["a"]}]})",
        "a: 42=42@1,2 \"\"\ni n plain: a");
    document("the last of two lists of emoji",
             R"({"emojis":{"a":{"b":"41","k":[1,2]}},"emojis":{"c":{"b":"43","k":[1,2]}},)"
             R"("categories":[{"id":"i","name":"n","emojis":["a","c"]}]})",
             "c: 43=43@1,2 \"\"\ni n plain: c");
}

// Every document by every way.
void tst_EmojiCatalogue::documents()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    WarningLog log;
    QCOMPARE(spell(viaDocument(json)), expected);
    bool taken = false;
    QVERIFY(takenBy(json, &taken));
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("emoji.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(json);
    file.close();
    QCOMPARE(spell(EmojiParser().parseFile(file.fileName())), expected);
    QCOMPARE(log.take(), QStringList());
}

// A derived parser gets the document, and is asked only where there is one.
void tst_EmojiCatalogue::stages()
{
    class SecondStage : public EmojiParser
    {
    public:
        Catalogue parseObject(const QJsonObject &root) override
        {
            ++asked;
            file = currentFile();
            return EmojiParser::parseObject(root);
        }
        int asked = 0;
        QString file;
    };
    SecondStage parser;
    IEmojiParser &base = parser;
    QVERIFY(base.parseFile(CatalogueFile));
    QCOMPARE(parser.asked, 1);
    QCOMPARE(parser.file, CatalogueFile);
    QVERIFY(base.parseObject(QJsonDocument::fromJson(small()).object()));
    QCOMPARE(parser.file, QString());
    parser.asked = 0;
    QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    WarningLog log;
    for (const QString &none :
         {QString(), QStringLiteral("/none.json"), QDir::tempPath(), QStringLiteral("/dev/zero"), pipe}) {
        QVERIFY(!base.parseFile(none));
        QVERIFY(!EmojiParser().parseFile(none));
    }
    QCOMPARE(parser.asked, 0);
    QCOMPARE(log.take(), QStringList());
}

void tst_EmojiCatalogue::truncated()
{
    const QByteArray whole = small();
    bool taken = false;
    for (int size = 0; size < whole.size(); ++size) {
        QVERIFY2(takenBy(whole.left(size), &taken), qPrintable(QString::number(size)));
        QVERIFY(!taken);
    }
    for (const char *garbage : {" ", "\n\t\r", "}", "x", ",", "\"", "[]", "\xEF\xBB\xBF"})
        QVERIFY2(takenBy(whole + garbage, &taken), garbage);
    QVERIFY(takenBy("\xEF\xBB\xBF" + whole, &taken));
    // Deeper than a document may be, and deeper than a stack is.
    for (const int depth : {1500, 200000}) {
        const QByteArray deep = "\"new\": " + QByteArray(depth, '[') + QByteArray(depth, ']');
        QVERIFY(takenBy(small().replace("\"new\": true", deep), &taken));
        QVERIFY(!taken);
    }
}

// Single bytes, and whole values that become others.
void tst_EmojiCatalogue::damaged()
{
    std::mt19937 random(20240229);
    const auto anyOf = [&random](const auto &list) {
        return list[decltype(list.size())(random() % uint(list.size()))];
    };
    static constexpr char bytes[] = "\"\\{}[],:-.eEu0123456789tfn \n\x00\x01\x1F\x7F\x80\xBF\xC3\xEF\xF4\xFF";
    const QByteArray likely(bytes, int(sizeof bytes) - 1);
    const QList<QByteArray> values {"null", "true",  "false",       "-1",   "7",         "0",
                                    "007",  "1e2",   "99999999999", "\"\"", "\"41\"",    "\"\xFF\"",
                                    "[]",   "[1,2]", "[\"a\"]",     "{}",   "{\"a\":1}", "{\"b\":\"41\",\"k\":[1,2]}",
                                    "",     ","};
    const QRegularExpression value(
        QStringLiteral(R"((?<=[:,\[])\s*(?:"[^"]*"|[a-z0-9]+|(\[(?:[^\[\]]|(?1))*\])|(\{(?:[^{}]|(?2))*\})))"));
    QVector<QPair<int, int>> places;
    const QByteArray whole = small();
    for (int at = 0; at < whole.size(); ++at) {
        const auto match = value.match(QString::fromLatin1(whole), at, QRegularExpression::NormalMatch,
                                       QRegularExpression::AnchoredMatchOption);
        if (match.hasMatch())
            places.append({at, match.capturedLength()});
    }
    QVERIFY(places.size() > 50);
    const auto damage = [&](QByteArray *json, int at) {
        switch (random() % 4) {
        case 0: json->remove(at, 1); break;
        case 1: json->insert(at, anyOf(likely)); break;
        case 2: (*json)[at] = char(random()); break;
        default: (*json)[at] = anyOf(likely);
        }
    };
    int takenTimes = 0;
    for (int i = 0; i < 20000; ++i) {
        QByteArray json = whole;
        if (i % 4 == 0) {
            const QPair<int, int> place = anyOf(places);
            json.replace(place.first, place.second, anyOf(values));
        }
        for (uint n = i % 4 ? 1 + random() % 3 : 0; n > 0; --n)
            damage(&json, int(random() % uint(json.size())));
        bool taken = false;
        QVERIFY2(takenBy(json, &taken), json.constData());
        takenTimes += taken;
    }
    QVERIFY(takenTimes > 2000); // otherwise nothing was compared
}

// Otherwise the files that matter would only be read slowly.
void tst_EmojiCatalogue::streamed()
{
    QVERIFY(viaStream(small()));
    QVERIFY(!viaStream(small().replace("[1,", "[1.5,")));
    QFile file(CatalogueFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray json = file.readAll();
    const Catalogue catalogue = viaStream(json);
    QVERIFY(catalogue && catalogue->names().size() > 1800);
    QVERIFY(spell(catalogue) == spell(viaDocument(json)));
}

void tst_EmojiCatalogue::moreThanSixteenBits()
{
    constexpr int Count = 70000;
    QByteArray emojis, list;
    for (int i = 0; i < Count; ++i) {
        const QByteArray name = QByteArray::number(i).rightJustified(6, '0');
        emojis += ",\"" + name + R"(":{"a":"x)" + name + R"(","b":"41","k":[1,2]})";
        list += ",\"" + name + '"';
    }
    const QByteArray json =
        "{\"emojis\":{" + emojis.mid(1) + R"(},"categories":[{"id":"i","name":"n","emojis":[)" + list.mid(1) + "]}]}";
    for (const Catalogue &catalogue : {viaStream(json), viaDocument(json)}) {
        QVERIFY(catalogue);
        QCOMPARE(int(catalogue->names().size()), Count);
        QCOMPARE(int(catalogue->emojis().size()), Count);
        const std::vector<quint16> &addressable = catalogue->categories().front()->emojis;
        QCOMPARE(int(addressable.size()), MaxAddressableEmojis);
        for (std::size_t i = 0; i < addressable.size(); ++i)
            QCOMPARE(std::size_t(addressable[i]), i);
        QCOMPARE(findEmojiIndex(catalogue, QStringLiteral("069999")), 69999);
        QCOMPARE(names(search(catalogue, QStringLiteral("069999"))), QStringLiteral("069999"));
        QCOMPARE(int(search(catalogue, QStringLiteral("x")).size()), Count);
    }
}

void tst_EmojiCatalogue::eachWordIsTranslatedOnce()
{
    const QByteArray json = R"({"emojis":{
        "a":{"a":"face","b":"41","j":["happy","face","für"],"k":[1,2]},
        "b":{"a":"cat face","b":"42","j":["happy","cat"],"k":[1,2]},
        "c":{"a":"happy","b":"42","j":["new"],"k":[1,2]}},"categories":[{"id":"i","name":"cat"}]})";
    Language german({{QStringLiteral("face"), QStringLiteral("Gesicht")},
                     {QStringLiteral("happy"), QStringLiteral("fröhlich")},
                     {QStringLiteral("für"), QStringLiteral("fuer")}});
    for (const Catalogue &catalogue : {viaStream(json), viaDocument(json)}) {
        QCOMPARE(spell(catalogue),
                 QStringLiteral("a: 41=41@1,2 \"Gesicht\" \"face\" fröhlich|Gesicht|fuer happy|face|für\n"
                                "b: 42=42@1,2 \"cat face\" fröhlich|cat happy|cat\n"
                                "c: 42=42@1,2 \"fröhlich\" \"happy\" new\n"
                                "i cat plain:"));
    }
    QCOMPARE(german.asked.size(), 6);
    for (auto it = german.asked.constBegin(); it != german.asked.constEnd(); ++it)
        QVERIFY2(it.value() == 2, qPrintable(it.key())); // once for each of the two ways
}

void tst_EmojiCatalogue::lookup()
{
    const Catalogue catalogue = viaDocument(small());
    QCOMPARE(findEmojiIndex(catalogue, QStringLiteral("+1")), 0);
    QCOMPARE(findEmojiIndex(catalogue, QStringLiteral("flag-ci")), 3);
    for (const char *unknown : {"", "Clap", "cla", "clapp", "zzz"})
        QCOMPARE(findEmojiIndex(catalogue, QString::fromLatin1(unknown)), -1);
    QCOMPARE(findEmojiIndex(nullptr, QStringLiteral("clap")), -1);
}

void tst_EmojiCatalogue::recents()
{
    QStringList expected =
        QStringLiteral("+1 grinning kissing_heart heart_eyes laughing stuck_out_tongue sweat_smile joy "
                       "scream blush sunglasses wink heartpulse sob")
            .split(QLatin1Char(' '));
    for (const char *missing : {"", "+1", "joy"}) {
        expected.removeAll(QLatin1String(missing));
        QStringList emojis;
        for (const QString &name : qAsConst(expected))
            emojis << name + QStringLiteral("|x");
        const Catalogue catalogue = catalogueOf(emojis);
        QStringList recents;
        for (const quint16 index : defaultRecents(catalogue))
            recents << catalogue->names().at(index);
        QCOMPARE(recents, expected);
    }
    QVERIFY(defaultRecents(nullptr).empty());
}

void tst_EmojiCatalogue::everydayQueries_data()
{
    QTest::addColumn<QString>("first");
    // What people type, and what they mean.
    const QString queries =
        QStringLiteral("thumbs up = +1 | +1 = +1 | -1 = -1 | yes = +1 | ok = ok | ok hand = ok_hand | "
                       "laugh = laughing | lol = laughing | haha = laughing | heart = heart | red heart = heart | "
                       "<3 = heart | love = smiling_face_with_3_hearts | kiss = kiss | hug = hugging_face | "
                       "party = partying_face | birthday = birthday | fire = fire | :) = slightly_smiling_face | "
                       ":D = smile | ;) = wink | xd = laughing | 👍 = +1 | ❤️ = heart | home = house | plane = "
                       "airplane | sad = sob | cry = cry | "
                       "angry = angry | thanks = pray | bye = wave | clap = clap | coffee = coffee | pizza = pizza | "
                       "beer = beer | dog = dog | cat = cat | sun = sunny | rocket = rocket | 100 = 100 | "
                       "poop = hankey | facepalm = face_palm | shrug = shrug | germany = de | "
                       "christmas = christmas_tree | :heart: = heart | thumbs-up = +1");
    const QStringList all = queries.split(QStringLiteral(" | "));
    for (const QString &query : all) {
        const QStringList parts = query.split(QStringLiteral(" = "));
        QTest::newRow(qPrintable(parts.at(0))) << parts.at(1);
    }
    QTest::newRow("  Heart   EYES ") << QStringLiteral("heart_eyes");
}

void tst_EmojiCatalogue::everydayQueries()
{
    QFETCH(QString, first);
    static const Catalogue catalogue = EmojiParser().parseFile(CatalogueFile);
    QCOMPARE(names(search(catalogue, QString::fromUtf8(QTest::currentDataTag()), 1)), first);
}

void tst_EmojiCatalogue::matching_data()
{
    QTest::addColumn<QStringList>("emojis");
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("found");

    const auto row = [](const char *name, const char *emojis, const char *query, const char *found) {
        QTest::newRow(name) << QString::fromUtf8(emojis).split(QLatin1Char(';')) << QString::fromUtf8(query)
                            << QString::fromUtf8(found);
    };
    const char *const hearts = "a|sweetheart;b|heartbeat;c|big heart;d|x|heart;heart|red;e|x|unheard;f|x|hearty";
    row("whole name, word of name, of keyword, start, inside", hearts, "heart", "heart c d b f a");
    row("every word must match", "a|red heart;b|red rose;c|blue heart;d|x|red,heart", "heart red", "a d");
    row("words of one emoji in several places", "dog_face|animal|pet", "pet dog anim", "dog_face");
    row("the order of the categories", "z|cat;a|cat;m|cat", "cat", "z a m");
    row("what people use comes first, but not before a better match", "a|x|warm;fire|x|warm;b|warm;joy|x|warmth",
        "warm", "b fire a joy");
    row("one letter begins a word", "a|sham;b|ham", "h", "b");
    row("one letter that begins none", "a|sham;b|ham", "m", "a b");
    row("two letters inside", "a|sham;b|hamster", "am", "a b");
    row("a word of more than four letters", "a|grinning;b|grin;c|grinned;d|chagrinning", "grinni", "a d");
    row("a word longer than any", "a|grin", "grinninggrinning", "");
    row("Chinese has no blanks", "a|红心;b|心形;c|红", "心", "b a");
    row("case", "a|OK Hand", "oK hAND", "a");
    row("accents in the name", "a|Côte d’Ivoire", "cote d'ivoire", "a");
    row("accents in the query", "a|cafe", "Café", "a");
    row("accents written apart", "a|café", "cafe\u0301", "a");
    row("sharp s", "a|Straße", "STRASSE", "a");
    row("sharp s in the query", "a|strasse", "straße", "a");
    row("Turkish capital with a dot", "a|İyi", "iyi", "a");
    row("Turkish letter without one", "a|ışık", "ISIK", "a");
    row("letters that do not come apart", "a|łódź smørrebrød đ", "lodz smorrebrod d", "a");
    row("Greek at the end of a word", "a|ΓΕΛΙΟΣ", "γέλιος", "a");
    row("Russian", "a|Ёлка", "елка", "a");
    row("Arabic without vowels", "a|قَلْب", "قلب", "a");
    row("Arabic with a hamza and stretched", "a|أحمر", "احمـــر", "a");
    row("Hebrew points", "a|שָׁלוֹם", "שלום", "a");
    row("vowels of India are no accents", "a|दिल;b|दल", "दल", "b");
    row("wide letters", "a|ok", "ｏｋ", "a");
    row("emoticons", "a|x|:),:D;b|x|:(;c|x|>:(", ":(", "b c");
    row("emoticons with a letter", "a|x|:D;b|dog", ":d", "a");
    row("a hyphen that only others have", "a|big x-ray;b|x ray;c|x-rays", "x-ray", "a c");
    row("as in other messengers", "thumbs_up|x;b|up", ":thumbs_up:", "thumbs_up");
    row("a hyphen in neither", "a|t rex", "t-rex", "a");
    row("signs alone that nothing has", "a|x|:)", ":-]", "");
    row("signs count between words", "a|x|y", "x ?", "");
    row("blanks", "a|x", "   ", "");
    row("nothing", "a|x", "", "");
    row("accents alone", "a|x", "\u0301", "");
    row("more words than are counted", "a|b c d e f g h i j k", "b c d e f g h i j k k k", "a");
}

void tst_EmojiCatalogue::matching()
{
    QFETCH(QStringList, emojis);
    QFETCH(QString, query);
    QFETCH(QString, found);
    const Catalogue catalogue = catalogueOf(emojis);
    QCOMPARE(names(search(catalogue, query)), found);
    QVERIFY(search(nullptr, query).empty());
}

void tst_EmojiCatalogue::twoLanguages()
{
    Catalogue catalogue;
    {
        Language german({{QStringLiteral("red heart"), QStringLiteral("rotes Herz")},
                         {QStringLiteral("love"), QStringLiteral("Liebe")},
                         {QStringLiteral("deer"), QStringLiteral("Hirsch")}});
        catalogue = catalogueOf({QStringLiteral("deer|deer|animal"), QStringLiteral("heart|red heart|love")});
    }
    for (const char *query : {"herz", "rotes herz", "heart", "red heart", "liebe", "love", "rotes love", "heart liebe"})
        QCOMPARE(names(search(catalogue, QString::fromLatin1(query))), QStringLiteral("heart"));
    QCOMPARE(names(search(catalogue, QStringLiteral("hirsch animal"))), QStringLiteral("deer"));
}

void tst_EmojiCatalogue::pages()
{
    const Catalogue catalogue =
        catalogueOf(QStringLiteral("a|cat;b|dog;c|cats;d|cat;e|tomcat;joy|cats").split(QLatin1Char(';')));
    const auto page = [&catalogue](int limit, int offset) {
        return names(search(catalogue, QStringLiteral("cat"), limit, offset));
    };
    const QString all = QStringLiteral("a d joy c e");
    QCOMPARE(page(0, 0), all);
    QCOMPARE(page(-1, -5), all);
    QCOMPARE(page(INT_MAX, 0), all);
    QStringList one;
    for (int i = 0; i < 5; ++i)
        one << page(1, i);
    QCOMPARE(one.join(QLatin1Char(' ')), all);
    QCOMPARE(page(2, 1), QStringLiteral("d joy"));
    QCOMPARE(page(2, 4), QStringLiteral("e"));
    QCOMPARE(page(0, 3), QStringLiteral("c e"));
    QCOMPARE(page(INT_MAX, INT_MAX), QString());
    QCOMPARE(page(1, 5), QString());
}

void tst_EmojiCatalogue::firstSearchInManyThreads()
{
    const Catalogue catalogue = EmojiParser().parseFile(CatalogueFile);
    std::array<QString, 8> found;
    std::vector<std::thread> threads;
    for (QString &out : found)
        threads.emplace_back([&out, catalogue] { out = names(search(catalogue, QStringLiteral("heart eyes"))); });
    for (std::thread &thread : threads)
        thread.join();
    for (const QString &out : found)
        QCOMPARE(out, found.front());
    QVERIFY(!found.front().isEmpty());
}

QTEST_GUILESS_MAIN(tst_EmojiCatalogue)
#include "tst_emoji_catalogue.moc"

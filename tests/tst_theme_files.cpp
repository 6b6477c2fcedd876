#include "support/WarningLog.h"

#include <UiElements/theme/WThemeUtils.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace {

QJsonObject json(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("test data: %s", qPrintable(error.errorString()));
    return document.object();
}

// "red=#ffff0000 blue=#..." sorted by name.
QString spell(const WPalette &palette)
{
    QStringList out;
    for (const auto &[name, color] : palette)
        out << QString::fromStdString(name) + QLatin1Char('=') + color.name(QColor::HexArgb);
    out.sort();
    return out.join(QLatin1Char(' '));
}

// The six colors, "-" for an invalid one.
QString spell(const WColorSet &set)
{
    QStringList out;
    for (int state = 0; state < WColorSet::StateCount; ++state) {
        const QColor color = set.color(WColorSet::State(state));
        out << (color.isValid() ? color.name(QColor::HexArgb).mid(1) : QStringLiteral("-"));
    }
    return out.join(QLatin1Char(' '));
}

QByteArray palette(const QByteArray &variations)
{
    return R"({"colors":[{"variations":[)" + variations + "]}]}";
}

} // namespace

class tst_ThemeFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void palette_data();
    void palette();
    void colorSets_data();
    void colorSets();
    void everyTypeInEveryPosition();
    void files_data();
    void files();
    void invalidStates();
};

void tst_ThemeFiles::palette_data()
{
    QTest::addColumn<QByteArray>("variations");
    QTest::addColumn<QString>("colors");
    QTest::addColumn<QStringList>("warnings");

    const auto row = [](const char *name, const QByteArray &variations, const char *colors,
                        const QStringList &warnings) {
        QTest::newRow(name) << variations << QString::fromLatin1(colors) << warnings;
    };
    const auto invalid = [](const char *name) {
        return QStringList(QStringLiteral("Invalid color for:  \"%1\"").arg(QLatin1String(name)));
    };
    const auto unresolved = [](std::initializer_list<const char *> names) {
        QStringList out;
        for (const char *name : names)
            out << QStringLiteral("Unable to parse colors.json! The color:  \"%1\"").arg(QLatin1String(name));
        return out;
    };
    row("alpha is truncated", R"({"name":"a","rgba":{"r":255,"g":0,"b":0,"a":0.5}})", "a=#7fff0000", {});
    row("alpha at both ends",
        R"({"name":"a","rgba":{"r":1,"g":2,"b":3,"a":0}},{"name":"b","rgba":{"r":1,"g":2,"b":3,"a":1}})",
        "a=#00010203 b=#ff010203", {});
    row("red out of range", R"({"name":"a","rgba":{"r":256,"g":0,"b":0,"a":1}})", "", invalid("a"));
    row("green missing", R"({"name":"a","rgba":{"r":1,"b":0,"a":1}})", "", invalid("a"));
    row("alpha missing", R"({"name":"a","rgba":{"r":1,"g":1,"b":0}})", "", invalid("a"));
    row("alpha beyond any integer", R"({"name":"a","rgba":{"r":1,"g":1,"b":0,"a":1e300}})", "", invalid("a"));
    row("components are integers", R"({"name":"a","rgba":{"r":1.5,"g":1,"b":0,"a":1}})", "", invalid("a"));
    row("components are numbers", R"({"name":"a","rgba":{"r":"1","g":1,"b":0,"a":1}})", "", invalid("a"));
    row("neither rgba nor alias", R"({"name":"a"})", "", invalid("a"));
    row("alias is a second key", R"({"name":"a","alias":"x","rgba":{"r":1,"g":2,"b":3,"a":1}})",
        "a=#ff010203 x=#ff010203", {});
    row("own name wins over an alias, in either order",
        R"({"name":"a","alias":"b","rgba":{"r":1,"g":2,"b":3,"a":1}},{"name":"b","alias":"a","rgba":{"r":9,"g":9,"b":9,"a":1}})",
        "a=#ff010203 b=#ff090909", {});
    row("only an alias names the color", R"({"alias":"x","rgba":{"r":1,"g":2,"b":3,"a":1}})", "x=#ff010203", {});
    row("reference to a later color, through another reference",
        R"({"name":"c","alias":"b"},{"name":"b","alias":"a"},{"name":"a","rgba":{"r":1,"g":2,"b":3,"a":1}})",
        "a=#ff010203 b=#ff010203 c=#ff010203", {});
    row("reference to itself", R"({"name":"a","alias":"a"})", "", unresolved({"a"}));
    row("references in a circle, and one into it",
        R"({"name":"a","alias":"b"},{"name":"b","alias":"a"},{"name":"c","alias":"a"})", "",
        unresolved({"a", "b", "c"}));
    row("reference to nothing", R"({"name":"a","alias":"z"})", "", unresolved({"a"}));
    row("a bad color spoils no other",
        R"({"name":"a","rgba":5},{"name":"b","rgba":{"r":1,"g":2,"b":3,"a":1}},{"name":"c","alias":"a"})",
        "b=#ff010203", invalid("a") + unresolved({"c"}));
}

void tst_ThemeFiles::palette()
{
    QFETCH(QByteArray, variations);
    QFETCH(QString, colors);
    QFETCH(QStringList, warnings);
    WarningLog log;
    QCOMPARE(spell(WThemeUtils::parseWColorsFromJson(json(::palette(variations)))), colors);
    QCOMPARE(log.take(), warnings);
}

void tst_ThemeFiles::colorSets_data()
{
    QTest::addColumn<bool>("withPalette");
    QTest::addColumn<QByteArray>("tokens");
    QTest::addColumn<QString>("colors");
    QTest::addColumn<QStringList>("warnings");

    const QString red = QStringLiteral("ffff0000"), blue = QStringLiteral("ff0000ff"), none = QStringLiteral("-");
    QTest::newRow("normal alone fills all")
        << true << QByteArray(R"({"s":{"normal":"red"}})")
        << QStringList({red, red, red, red, red, red}).join(QLatin1Char(' ')) << QStringList();
    QTest::newRow("hovered alone falls back to nothing")
        << true << QByteArray(R"({"s":{"hovered":"red"}})")
        << QStringList({none, red, none, none, none, none}).join(QLatin1Char(' ')) << QStringList();
    QTest::newRow("every state by its own name")
        << true
        << QByteArray(
               R"({"s":{"checked":"red","focused":"blue","disabled":"red","pressed":"blue","hovered":"red","normal":"blue"}})")
        << QStringList({blue, red, blue, red, blue, red}).join(QLatin1Char(' ')) << QStringList();
    QTest::newRow("a name that the palette lacks falls back")
        << true << QByteArray(R"({"s":{"normal":"red","hovered":"green"}})")
        << QStringList({red, red, red, red, red, red}).join(QLatin1Char(' '))
        << QStringList(QStringLiteral("Unable to parse colors.json! The color:  \"green\""));
    QTest::newRow("inline colors without a palette")
        << false << QByteArray(R"({"s":{"normal":{"r":255,"g":0,"b":0,"a":1},"pressed":{"r":0,"g":0,"b":255,"a":1}}})")
        << QStringList({red, red, blue, red, red, red}).join(QLatin1Char(' ')) << QStringList();
    QTest::newRow("a bad inline color falls back")
        << false << QByteArray(R"({"s":{"normal":{"r":255,"g":0,"b":0,"a":1},"pressed":{"r":0}}})")
        << QStringList({red, red, red, red, red, red}).join(QLatin1Char(' '))
        << QStringList(QStringLiteral("Invalid color for:  \"s.pressed\""));
    const QStringList missing(QStringLiteral("Could not find the 'tokens' object in the json file"));
    QTest::newRow("tokens missing") << true << QByteArray() << QString() << missing;
    QTest::newRow("tokens empty") << true << QByteArray("{}") << QString() << missing;
    QTest::newRow("tokens of another type") << true << QByteArray("[1]") << QString() << missing;
    QTest::newRow("a member that is no set")
        << true << QByteArray(R"({"s":{"normal":"red"},"t":"red","u":{"normale":"red"}})")
        << QStringList({red, red, red, red, red, red}).join(QLatin1Char(' '))
        << QStringList({QStringLiteral("Unable to parse ColorSet:  \"t\""),
                        QStringLiteral("Unable to parse ColorSet:  \"u\"")});
}

void tst_ThemeFiles::colorSets()
{
    QFETCH(bool, withPalette);
    QFETCH(QByteArray, tokens);
    QFETCH(QString, colors);
    QFETCH(QStringList, warnings);
    const WPalette colorsByName = withPalette ? WPalette {{"red", Qt::red}, {"blue", Qt::blue}} : WPalette();
    WarningLog log;
    const QJsonObject root = json(tokens.isEmpty() ? QByteArray("{}") : R"({"tokens":)" + tokens + '}');
    const WColorSets sets = WThemeUtils::parseWColorSetsFromJson(root, colorsByName);
    QCOMPARE(log.take(), warnings);
    QCOMPARE(int(sets.size()), colors.isEmpty() ? 0 : 1);
    if (sets.empty())
        return;
    QCOMPARE(spell(sets.at("s")), colors);
    QCOMPARE(sets.at("s").text(), QStringLiteral("s"));
}

// Each value of two good files is replaced by a value of each type in turn: something is reported or the result is as
// before, and the other colors are still there.
void tst_ThemeFiles::everyTypeInEveryPosition()
{
    const QList<QJsonValue> values {QJsonValue(),
                                    true,
                                    -1,
                                    1e308,
                                    QString(),
                                    QStringLiteral("red"),
                                    QJsonArray {1},
                                    QJsonObject(),
                                    QJsonArray {},
                                    QJsonObject {{QStringLiteral("normal"), QJsonArray()}}};
    const QByteArray good = R"({"colors":[{"variations":[
        {"name":"red","alias":"rouge","rgba":{"r":255,"g":0,"b":0,"a":1}},{"name":"keep","rgba":{"r":1,"g":2,"b":3,"a":1}}]}],
        "tokens":{"s":{"normal":"keep","hovered":"keep"},"keep":{"normal":"keep"}}})";
    int replaced = 0;
    // Replaces the n-th value of the document, counted in depth-first order.
    std::function<QJsonValue(const QJsonValue &, int &, const QJsonValue &)> replace =
        [&replace](const QJsonValue &in, int &n, const QJsonValue &by) -> QJsonValue {
        if (n-- == 0)
            return by;
        if (in.isObject()) {
            QJsonObject out = in.toObject();
            const QStringList keys = out.keys();
            for (const QString &key : keys)
                out[key] = replace(out.value(key), n, by);
            return out;
        }
        if (in.isArray()) {
            QJsonArray out = in.toArray();
            for (int i = 0; i < out.size(); ++i)
                out[i] = replace(out.at(i), n, by);
            return out;
        }
        return in;
    };
    const auto load = [](const QJsonObject &root, WPalette *colors, WColorSets *sets) {
        *colors = WThemeUtils::parseWColorsFromJson(root);
        *sets = WThemeUtils::parseWColorSetsFromJson(root, {{"keep", QColor(1, 2, 3)}});
    };
    WPalette goodColors, colors;
    WColorSets goodSets, sets;
    load(json(good), &goodColors, &goodSets);
    for (int position = 1; position < 24; ++position) {
        for (const QJsonValue &value : values) {
            int n = position;
            const QJsonObject root = replace(json(good), n, value).toObject();
            if (n >= 0)
                break; // past the end
            ++replaced;
            WarningLog log;
            load(root, &colors, &sets);
            const bool same = spell(colors) == spell(goodColors) && sets == goodSets;
            const QByteArray text = QJsonDocument(root).toJson(QJsonDocument::Compact);
            // What was not touched is there.
            const auto untouched = [&text](const char *part) {
                return text.contains(part);
            };
            if (untouched(R"({"name":"keep","rgba":{"a":1,"b":3,"g":2,"r":1}}])"))
                QVERIFY2(colors.count("keep") == 1, text.constData());
            if (untouched(R"("tokens":{"keep":{"normal":"keep"}))"))
                QVERIFY2(sets.count("keep") == 1, text.constData());
            // Another value of the right type is no fault: a name, a component, an alias, an empty list of colors, no
            // alias.
            const bool rightType = value.isNull() || value.isString() || value.isDouble() || value.isArray();
            QVERIFY2(!log.take().isEmpty() || same || rightType, text.constData());
        }
    }
    QVERIFY(replaced > 150);
}

void tst_ThemeFiles::files_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray("") << QStringLiteral("illegal value at byte");
    QTest::newRow("truncated") << QByteArray("{\"colors\":[{\"vari") << QStringLiteral("at byte");
    QTest::newRow("no object") << QByteArray("[]") << QStringLiteral("the root is not an object");
    QTest::newRow("not UTF-8") << QByteArray("{\"a\":\"\xff\xfe\"}") << QStringLiteral("UTF");
    QTest::newRow("deeply nested") << QByteArray(100000, '[') << QStringLiteral("at byte");
    QTest::newRow("binary") << QByteArray("\0\1\2\3", 4) << QStringLiteral("at byte");
}

void tst_ThemeFiles::files()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("colors.json"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    WarningLog log;
    const QString pipe = dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    for (const QString &noFile : {pipe, dir.path()}) {
        QVERIFY(WThemeUtils::readJsonObject(noFile).isEmpty());
        QCOMPARE(log.take().size(), 1);
    }
    QVERIFY(WThemeUtils::readJsonObject(path).isEmpty());
    QStringList warnings = log.take();
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().contains(path) && warnings.first().contains(reason), qPrintable(warnings.first()));
    QVERIFY(WThemeUtils::parseWColorsFromJson(path).empty());
    QVERIFY(WThemeUtils::parseWColorSetsFromJson(path, {}).empty());
    QCOMPARE(log.take().size(), 2);
    QVERIFY(WThemeUtils::readJsonObject(dir.filePath(QStringLiteral("none.json"))).isEmpty());
    QCOMPARE(log.take().size(), 1);
}

void tst_ThemeFiles::invalidStates()
{
    WColorSet set;
    set.fill(Qt::red);
    WarningLog log;
    QVERIFY(!set.color(QStringLiteral("Hovered")).isValid());
    QVERIFY(!set.color(WColorSet::State(6)).isValid());
    set.setColor(WColorSet::State(-1), Qt::blue);
    QCOMPARE(log.take(),
             QStringList({QStringLiteral("WColorSet: color state is invalid!"),
                          QStringLiteral("WColorSet: color state is invalid!"),
                          QStringLiteral("WColorSet: color state is invalid!")}));
    QCOMPARE(set.color(QStringLiteral("checked")), QColor(Qt::red));
}

QTEST_GUILESS_MAIN(tst_ThemeFiles)
#include "tst_theme_files.moc"

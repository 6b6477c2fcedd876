#include "support/Colors.h"
#include "support/WarningLog.h"

#include <UiElements/theme/WThemeUtils.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

// Set 0 is "a", set 1 is "b" ...: the color of state 3 of set 1 is "#ff010300".
static const WColorSets sets = spelledSets(
    {"a", "b", "c", "theme-gradient-primary-0-background", "theme-gradient-primary-1-background",
     "theme-gradient-secondary-0-background", "theme-gradient-secondary-1-background",
     "theme-gradient-dialog-secondary-0-background", "theme-gradient-dialog-secondary-1-background",
     "gradient-background-primary", "gradient-background-secondary", "gradient-background-secondary-dialog"});

class tst_Templates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expansion_data();
    void expansion();
    void focusOnlyShowsWhereItDiffers();
    void tokensAgreeWithPlainReplacement();
    void data_data();
    void data();
    void writtenIsReadBack();
    void removal_data();
    void removal();
    void directiveNames();
    void messagesMayComeBack();
    void timeIsLinear_data();
    void timeIsLinear();
};

static QString expand(const QString &css)
{
    return WThemeUtils::parseCSS(QStringLiteral("S"), css, sets).styleSheet;
}

// The rules of one directive for set `number`, in the order in which they are to stand.
static QString rules(const char *property, int number)
{
    QString out;
    const QPair<const char *, int> order[] = {{"", 0},       {":checked", 5}, {":focus", 4},
                                              {":hover", 1}, {":pressed", 2}, {":disabled", 3}};
    for (const auto &[pseudo, state] : order) {
        out += QStringLiteral("S%1{%2:#ff%3%4%5;} ")
                   .arg(QLatin1String(pseudo), QLatin1String(property))
                   .arg(number, 2, 16, QLatin1Char('0'))
                   .arg(state, 2, 16, QLatin1Char('0'))
                   .arg(QLatin1String("00"));
    }
    return out;
}

void tst_Templates::expansion_data()
{
    QTest::addColumn<QString>("css");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QStringList>("warnings");

    const auto row = [](const char *name, const char *css, const QString &sheet, const QStringList &warnings = {}) {
        QTest::newRow(name) << QString::fromLatin1(css) << sheet << warnings;
    };
    const auto same = [&row](const char *name, const char *css, const QStringList &warnings = {}) {
        row(name, css, QString::fromLatin1(css), warnings);
    };
    const auto format = [](const char *token) {
        return QStringLiteral("WThemeUtils: format is invalid! expected: $(colorSetName.state) found: \"%1\"")
            .arg(QLatin1String(token));
    };
    const auto unknown = [](const char *name) {
        return QStringLiteral("ColorSet name does not exist!  \"%1\"").arg(QLatin1String(name));
    };
    const QString badState = QStringLiteral("WColorSet: color state is invalid!");

    row("token", "color: $(b.hovered);", QStringLiteral("color: #ff010100;"));
    row("two tokens", "a{color:$(a.normal);background:$(b.checked)}",
        QStringLiteral("a{color:#ff000000;background:#ff010500}"));
    row("side by side", "$(a.pressed)$(a.pressed)", QStringLiteral("#ff000200#ff000200"));
    same("nothing to do", "  QLabel { color: red; }  ");
    same("token without a state", "color: $(a);", {format("$(a)")});
    row("one bad among good", "$(a.focused) $(a) $(b.focused)", QStringLiteral("#ff000400 $(a) #ff010400"),
        {format("$(a)")});
    row("state of no name", "$(b.Hovered)", QStringLiteral("#ff000000"), {badState});
    row("split at the first dot", "$(b.normal.x)", QStringLiteral("#ff000000"), {badState});
    row("unknown set, once for each place", "$(z.normal) $(z.normal)", QStringLiteral("#ff000000 #ff000000"),
        {unknown("z"), unknown("z")});
    row("unknown set and state", "$(z.z)", QStringLiteral("#ff000000"), {unknown("z"), badState});
    row("empty name is silent", "$(.normal)", QStringLiteral("#ff000000"));
    row("ends at the first parenthesis", "$(b.normal))", QStringLiteral("#ff010000)"));
    row("starts at the first", "$($(b.normal)", QStringLiteral("#ff000000"), {unknown("$(b")});
    same("never closed", "color: $(b.normal; $(a.normal");
    same("a line is its end", "$(b.\nnormal)");
    row("found again on the next line", "$(b\n$(b.normal)", QStringLiteral("$(b\n#ff010000"));
    same("dollars", "$ $$ $() $(", {format("$()")});
    same("blank", "   ");

    row("one directive", "$textColors: b;", rules("color", 1));
    row("three, in their own order", "$textColors: c; $borderColors: b; $backgroundColors: a;",
        rules("background-color", 0) + rules("border-color", 1) + rules("color", 2));
    row("rules stay behind", " $textColors:b; QLabel{color:$(a.checked);} ",
        rules("color", 1) + QStringLiteral("QLabel{color:#ff000500;}"));
    row("declarations get the selector", "$textColors: b; padding: 4px; QLabel{} margin: 1px",
        rules("color", 1) + QStringLiteral("S{padding: 4px;}  QLabel{} S{margin: 1px} "));
    row("a comment is no declaration", "$textColors:b;/* a: b; */QLabel{}",
        rules("color", 1) + QStringLiteral("/* a: b; */QLabel{}"));
    row("the first of two counts", "$textColors: b; $textColors: a;", rules("color", 1));
    // All states look alike, so the focused rule stands before the checked one.
    const QString black = QStringLiteral("S{color:%1;} S:focus{color:%1;} S:checked{color:%1;} S:hover{color:%1;} "
                                         "S:pressed{color:%1;} S:disabled{color:%1;} ")
                              .arg(QLatin1String("#ff000000"));
    row("unknown set", "$textColors: z;", black, {unknown("z")});
    row("empty value", "$textColors: ; QLabel{}", QStringLiteral("QLabel{}"));
    row("no closing ;", "$borderColors: b; QLabel{color:red} $textColors: c",
        rules("border-color", 1) + QStringLiteral("QLabel{color:red} "),
        {QStringLiteral("WThemeUtils: directive without a closing ; is ignored: \"$textColors: c\"")});
    const auto unclosed = [](const char *directive) {
        return QStringLiteral("WThemeUtils: directive without a closing ; is ignored: \"%1\"")
            .arg(QLatin1String(directive));
    };
    row("no closing ; behind a list", "padding: 3px; $borders: left, right", QStringLiteral("padding: 3px; "),
        {unclosed("$borders: left, right")});
    row("no closing ; behind a radius, a rule after it", "$borderRadius: 6px top QLabel{}", QStringLiteral(" QLabel{}"),
        {unclosed("$borderRadius: 6px top")});
    row("no closing ; twice", "$textColors: a $textColors: b x{}", QStringLiteral("  x{}"),
        {unclosed("$textColors: a")}); // said once
    row("a quoted ; ends nothing", "$borderRadius: 3; qproperty-text: 'it\\'s; x'; QLabel{}",
        QStringLiteral("S{border-radius:3px;} S{qproperty-text: 'it\\'s; x';}  QLabel{}"));
    row("nor does one in parentheses", "$borderRadius: 3; background: url(a;b); QLabel{}",
        QStringLiteral("S{border-radius:3px;} S{background: url(a;b);}  QLabel{}"));
    row("no closing ; at all", "$textColors: c", QString(),
        {QStringLiteral("WThemeUtils: directive without a closing ; is ignored: \"$textColors: c\"")});
    row("a token inside a directive", "$textColors: $(a.normal);QLabel{color:$(b.normal)}",
        black + QStringLiteral("QLabel{color:#ff010000}"), {unknown("#ff000000")});
    row("a token builds a directive", "$text$(a.normal)Colors: b;", QStringLiteral("$text#ff000000Colors: b;"));

    row("all sides", "$borders: all; $borderWidth: 2;", QStringLiteral("S{border-style:solid; border-width:2px;} "));
    row("four sides are all", "$borders: left,top right , BOTTOM; $borderWidth: 2px;",
        QStringLiteral("S{border-style:solid; border-width:2px;} "));
    row("two sides, in the order of writing", "$borders: top, left; $borderWidth: 3;",
        QStringLiteral("S{border-style:solid;border-left-width:3px;border-top-width:3px;} "));
    row("width of its own", "$borders: bottom;", QStringLiteral("S{border-style:solid;border-bottom-width:1px;} "));
    row("no side", "$borders: none;", QStringLiteral("S{border:none;} "));
    row("a width alone says nothing", "$borderWidth: 4;", QString());
    const auto strange = [](const char *directive) {
        return QStringList(QStringLiteral("WThemeUtils: directive is not understood as a whole: \"%1\"")
                               .arg(QLatin1String(directive)));
    };
    row("no number", "$borders: all; $borderWidth: wide;", QStringLiteral("S{border-style:solid; border-width:1px;} "),
        strange("$borderWidth: wide"));
    row("a forgotten ;", "$borders: top\n$textColors: b; x{}",
        QStringLiteral("S{border-style:solid;border-top-width:1px;} x{}"), strange("$borders: top\\n$textColors: b"));
    row("no corner", "$borderRadius: 6 middle;", QStringLiteral("S{border-radius:6px;} "),
        strange("$borderRadius: 6 middle"));
    row("radius", "$borderRadius: 6;", QStringLiteral("S{border-radius:6px;} "));
    row("top edge", "$borderRadius: 6 top;",
        QStringLiteral("S{border-top-left-radius:6px; border-top-right-radius:6px;} "));
    row("one corner", "$borderRadius: bottom-left, 6px;", QStringLiteral("S{border-bottom-left-radius:6px;} "));
    row("border and radius in one rule", "$borderRadius:6;$borders:all;",
        QStringLiteral("S{border-style:solid; border-width:1px;border-radius:6px;} "));
    row("radius without a number", "$borderRadius: top focus;", QString(), strange("$borderRadius: top focus"));

    const auto gradient = [](const char *zero, const char *one) {
        return QStringLiteral("S{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 %1, stop:1 %2); } ")
            .arg(QLatin1String(zero), QLatin1String(one));
    };
    const auto others = [](int number) {
        return rules("background-color", number).section(QLatin1String("} "), 1);
    };
    row("primary gradient", "$backgroundColors: gradient-background-primary;",
        gradient("#ff030000", "#ff040000") + others(9));
    row("secondary gradient", "$backgroundColors: gradient-background-secondary;",
        gradient("#ff050000", "#ff060000") + others(10));
    row("dialog gradient", "$backgroundColors: gradient-background-secondary-dialog;",
        gradient("#ff070000", "#ff080000") + others(11));
    row("only backgrounds have gradients", "$textColors: gradient-background-primary;", rules("color", 9));
}

void tst_Templates::expansion()
{
    QFETCH(QString, css);
    QFETCH(QString, sheet);
    QFETCH(QStringList, warnings);
    WarningLog log;
    QCOMPARE(expand(css), sheet);
    QCOMPARE(log.take(), warnings);
    // A template met before is expanded from what was read then, and reports again.
    QCOMPARE(expand(css), sheet);
    QCOMPARE(log.take(), warnings);
}

// Otherwise the focused rule, which is the normal color then, would paint over the checked one.
void tst_Templates::focusOnlyShowsWhereItDiffers()
{
    WColorSets own {{"s", plainSet("s", Qt::red)}};
    const auto order = [&own] {
        const QString sheet =
            WThemeUtils::parseCSS(QStringLiteral("S"), QStringLiteral("$textColors:s;"), own).styleSheet;
        return sheet.indexOf(QLatin1String(":checked")) < sheet.indexOf(QLatin1String(":focus"));
    };
    QVERIFY(!order());
    own["s"].setColor(WColorSet::Focused, Qt::blue);
    QVERIFY(order());
}

void tst_Templates::tokensAgreeWithPlainReplacement()
{
    static const QStringList pieces {QStringLiteral("$("),
                                     QStringLiteral(")"),
                                     QStringLiteral("a"),
                                     QStringLiteral("z"),
                                     QStringLiteral("."),
                                     QStringLiteral("normal"),
                                     QStringLiteral("checked"),
                                     QStringLiteral("\n"),
                                     QStringLiteral("$"),
                                     QStringLiteral("{;}"),
                                     QStringLiteral("$(b.pressed)"),
                                     QString(QChar(0xFDD0))};
    const QRegularExpression tokens(QStringLiteral("\\$\\(.*?\\)"));
    QRandomGenerator random(20);
    int replaced = 0;
    for (int round = 0; round < 3000; ++round) {
        QString css;
        for (int i = random.bounded(1, 14); i > 0; --i)
            css += pieces.at(random.bounded(pieces.size()));
        QString expected;
        int warnings = 0;
        int pos = 0;
        auto matches = tokens.globalMatch(css);
        while (matches.hasNext()) {
            const auto match = matches.next();
            const QString body = match.captured().mid(2, match.capturedLength() - 3);
            const int dot = body.indexOf(QLatin1Char('.'));
            expected += css.midRef(pos, match.capturedStart() - pos);
            pos = match.capturedEnd();
            if (dot < 0) {
                expected += match.captured();
                ++warnings;
                continue;
            }
            const auto set = sets.find(body.left(dot).toStdString());
            const int state = WColorSet::stateNames().indexOf(body.mid(dot + 1));
            warnings += set == sets.end() && dot > 0;
            warnings += state < 0;
            const bool known = set != sets.end() && state >= 0;
            expected += (known ? set->second.color(WColorSet::State(state)) : QColor()).name(QColor::HexArgb);
            ++replaced;
        }
        expected += css.midRef(pos);
        WarningLog log;
        const QString result = expand(css);
        const int reported = log.take().size();
        QVERIFY2(result == expected && reported == warnings, qPrintable(css + QLatin1String("\n-> ") + result));
    }
    QVERIFY(replaced > 500);
}

void tst_Templates::data_data()
{
    QTest::addColumn<QString>("css");
    QTest::addColumn<QString>("facts");
    const auto row = [](const char *name, const char *css, const char *facts) {
        QTest::newRow(name) << QString::fromLatin1(css) << QString::fromLatin1(facts);
    };
    // names | trailing | sides | borders given, suppressed | width, radius | focus, corner mask
    row("nothing", "QLabel { color: $(a.normal); }", ",, | QLabel { color: $(a.normal); } |  | 0 0 | 0 0 | 0 0");
    row("all of it",
        "$borderColors: b; $backgroundColors: a; $textColors: c; $borders: left; $borderWidth: 2; $borderRadius: 8 "
        "focus; x{}",
        "a,b,c | x{} | l | 1 0 | 2 8 | 1 0");
    row("asked for none", "$borders: none; $borderColors: b;", ",b, |  |  | 1 1 | 1 0 | 0 0");
    row("top edge", "$borderRadius: 4 top focus;", ",, |  |  | 0 0 | 0 4 | 1 12");
    row("one corner", "$borderRadius: 4 bottom-left;", ",, |  |  | 0 0 | 0 4 | 0 11");
    row("the editor's own border text",
        "border-style:solid;border-left-width:3px;border-top-width:3px; $textColors: c; x{}",
        ",,c | x{} | lt | 1 0 | 3 0 | 0 0");
    row("all sides of the editor", "border-style:solid; border-width:3px; $textColors: c;",
        ",,c |  | ltrb | 1 0 | 3 0 | 0 0");
    row("a border by hand is none of ours", "border-style:dashed; border-width:3px; $textColors: c;",
        ",,c | border-style:dashed; border-width:3px; |  | 0 0 | 0 0 | 0 0");
    row("a token in a directive", "$textColors: $(b.normal);", ",,#ff010000 |  |  | 0 0 | 0 0 | 0 0");
}

void tst_Templates::data()
{
    QFETCH(QString, css);
    QFETCH(QString, facts);
    WarningLog log;
    const WCSSData data = WThemeUtils::parseCSS(QStringLiteral("S"), css, sets);
    QString sides;
    sides += QLatin1String(data.leftBorder ? "l" : "") + QLatin1String(data.topBorder ? "t" : "");
    sides += QLatin1String(data.rightBorder ? "r" : "") + QLatin1String(data.bottomBorder ? "b" : "");
    const QStringList found {QStringList({data.backgroundColorSetName, data.borderColorSetName, data.textColorSetName})
                                 .join(QLatin1Char(',')),
                             data.trailingText,
                             sides,
                             QStringLiteral("%1 %2").arg(data.hasBorders).arg(data.suppressBorderColor),
                             QStringLiteral("%1 %2").arg(data.borderWidth).arg(data.borderRadius),
                             QStringLiteral("%1 %2").arg(data.focusBorderRadius).arg(data.rectangularCornerMask)};
    QCOMPARE(found.join(QLatin1String(" | ")), facts);
    const auto textSet = sets.find(data.textColorSetName.toStdString());
    QCOMPARE(data.textColorSet, textSet == sets.end() ? WColorSet() : textSet->second);
}

void tst_Templates::writtenIsReadBack()
{
    WCSSData data;
    QCOMPARE(WThemeUtils::convertToWCSS(data), QString());
    data.backgroundColorSetName = QStringLiteral("background-primary");
    data.borderColorSetName = QStringLiteral("  ");
    data.textColorSetName = QStringLiteral("text-primary");
    QCOMPARE(WThemeUtils::convertToWCSS(data),
             QStringLiteral("$backgroundColors: background-primary; $textColors: text-primary;"));

    QRandomGenerator random(7);
    const QStringList names {QString(), QStringLiteral("a"), QStringLiteral("b-c")};
    const QStringList rests {QString(), QStringLiteral("QLabel { color: $(a.normal); }"),
                             QStringLiteral("padding: 1px;")};
    for (int round = 0; round < 500; ++round) {
        data.backgroundColorSetName = names.at(random.bounded(3));
        data.borderColorSetName = names.at(random.bounded(3));
        data.textColorSetName = names.at(random.bounded(3));
        data.trailingText = rests.at(random.bounded(3));
        data.leftBorder = random.bounded(2);
        data.topBorder = random.bounded(2);
        data.rightBorder = random.bounded(2);
        data.bottomBorder = random.bounded(2);
        const bool anySide = data.leftBorder || data.topBorder || data.rightBorder || data.bottomBorder;
        data.hasBorders = anySide || random.bounded(2);
        data.borderWidth = anySide ? random.bounded(0, 12) : 0;
        const QString css = WThemeUtils::convertToWCSS(data);
        WarningLog log;
        const WCSSData back = WThemeUtils::parseCSS(QStringLiteral("S"), css, sets);
        // A border color beside "no border" is not written.
        const bool suppressed = !anySide && data.hasBorders;
        const bool equal = back.backgroundColorSetName == data.backgroundColorSetName
            && back.borderColorSetName == (suppressed ? QString() : data.borderColorSetName)
            && back.textColorSetName == data.textColorSetName && back.trailingText == data.trailingText
            && back.leftBorder == data.leftBorder && back.topBorder == data.topBorder
            && back.rightBorder == data.rightBorder && back.bottomBorder == data.bottomBorder
            && back.hasBorders == data.hasBorders && (!anySide || back.borderWidth == data.borderWidth);
        QVERIFY2(equal, qPrintable(css));
        QCOMPARE(WThemeUtils::convertToWCSS(back), css);
    }
}

void tst_Templates::removal_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *before, const char *after) {
        QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(after);
    };
    row("one", "$textColors: a; QLabel{}", "QLabel{}");
    row("all six", "$textColors:a;$borderColors:a;$backgroundColors:a;$borders:a;$borderRadius:a;$borderWidth:a;x",
        "x");
    row("repeated", " x $textColors: a; y $textColors: b; z ", "x  y  z");
    row("put together by a removal", "$text$textColors: a;Colors: b; x", "x");
    row("no value", " $textColors: a", " $textColors: a");
    row("nothing", "  QLabel{}  ", "  QLabel{}  ");
    row("tokens stay", "$(a.b)$borders:;", "$(a.b)");
}

void tst_Templates::removal()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    WThemeUtils::removeWCSSFromStyleSheet(before);
    QCOMPARE(before, after);
}

void tst_Templates::directiveNames()
{
    const QString css = QStringLiteral("$borderColors:  b ; $textColors: c $backgroundColors: a;");
    QCOMPARE(WThemeUtils::getColorSetNameFromString(WThemeUtils::ColorSetTypeBorder, css), QStringLiteral("b"));
    QCOMPARE(WThemeUtils::getColorSetNameFromString(WThemeUtils::ColorSetTypeBackground, css), QStringLiteral("a"));
    QCOMPARE(WThemeUtils::getColorSetNameFromString(WThemeUtils::ColorSetTypeText, css),
             QStringLiteral("c $backgroundColors: a"));
    QCOMPARE(WThemeUtils::getColorSetNameFromString(WThemeUtils::ColorSetTypeText, QStringLiteral("$textColors: c")),
             QString());
    QCOMPARE(WThemeUtils::getColorSetNameFromString(WThemeUtils::ColorSetType(7), css), QString());
}

// Whoever receives a message may have the same template expanded, for another registry at that.
void tst_Templates::messagesMayComeBack()
{
    static WColorSets other;
    static const QString css = QStringLiteral("$(a.normal) $(nowhere.normal) $textColors: b;");
    other = spelledSets({"a", "b"}, 200);
    const QString expected = [] {
        WarningLog log;
        return expand(css);
    }();
    QtMessageHandler before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {
        static int depth = 0;
        if (depth++ == 0) {
            for (int i = 0; i < 3; ++i)
                WThemeUtils::parseCSS(QStringLiteral("other"), css, other);
        }
        --depth;
    });
    const QString found = expand(css);
    qInstallMessageHandler(before);
    QCOMPARE(found, expected);
}

void tst_Templates::timeIsLinear_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const QString none;
    QTest::newRow("plain") << QStringLiteral("QLabel { color: red; } ") << none << none;
    QTest::newRow("dollars") << QStringLiteral("$") << none << none;
    QTest::newRow("never closed") << QStringLiteral("$(") << none << none;
    QTest::newRow("never closed on their lines") << QStringLiteral("$(\n") << none << none;
    QTest::newRow("tokens") << QStringLiteral("$(a.normal)") << none << none;
    QTest::newRow("directives") << QStringLiteral("$textColors: a;") << none << none;
    QTest::newRow("directive heads") << QStringLiteral("$textColors:") << none << none;
    QTest::newRow("declarations behind a directive") << QStringLiteral("$borders:all;x:y;") << none << none;
    QTest::newRow("braces") << QStringLiteral("{") << none << none;
    QTest::newRow("names of one set") << QStringLiteral("$borderColors:b;$(b.checked)") << none << none;
    const QString directive = QStringLiteral("$textColors: a;");
    QTest::newRow("declarations and rules with one token behind")
        << QStringLiteral("a:b; x{} ") << directive << QStringLiteral("$(a.normal)");
    QTest::newRow("comments behind blanks")
        << QStringLiteral("/**/")
        << directive + QStringLiteral("x{}") + QString(2000000, QLatin1Char(' ')) + QLatin1Char('a') << none;
    QTest::newRow("nested names") << QStringLiteral("$borders: left, ") << none << none;
}

// Ten megabytes of everything that could be walked again and again. No clock is read: a quadratic walk over five
// million characters does not come back within the test's time limit.
void tst_Templates::timeIsLinear()
{
    QFETCH(QString, piece);
    QFETCH(QString, before);
    QFETCH(QString, after);
    const QString css = before + piece.repeated(5 * 1024 * 1024 / piece.size()) + after;
    WarningLog log;
    QVERIFY(!expand(css).isNull());
    QString text = css;
    WThemeUtils::removeWCSSFromStyleSheet(text);
    QVERIFY(log.take().size() < 4);
}

QTEST_GUILESS_MAIN(tst_Templates)
#include "tst_templates.moc"

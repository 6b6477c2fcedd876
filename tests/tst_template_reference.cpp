#include "fuzz/TemplateReference.h"
#include "support/Colors.h"
#include "support/WarningLog.h"

#include <UiElements/theme/WThemeUtils.h>

#include <QRandomGenerator>
#include <QtTest>

#include <functional>

// Set 0 is "a", set 1 is "b" ...: the color of state 3 of set 1 is "#ff010300".
static const WColorSets sets = spelledSets(
    {"a", "b", "set-c", "theme-gradient-primary-0-background", "theme-gradient-primary-1-background",
     "theme-gradient-secondary-0-background", "theme-gradient-secondary-1-background",
     "theme-gradient-dialog-secondary-0-background", "theme-gradient-dialog-secondary-1-background",
     "gradient-background-primary", "gradient-background-secondary", "gradient-background-secondary-dialog", "größe"});
static const QString selector = QStringLiteral("#S");
static constexpr quint32 Seed = 20261121;

class tst_TemplateReference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyTextIsReadAsTheReferenceReadsIt();
    void everyStatementOfATemplateArrives();
    void whatIsWrittenIsWhatWasMeant();
};

static const QString &oneOf(const QStringList &list, QRandomGenerator &random)
{
    return list.at(random.bounded(list.size()));
}

// Empty, or how the library and the reference differ.
static QString difference(const QString &css)
{
    if (!css.isValidUtf16()) // cut in the middle of a character
        return QString();
    WarningLog log;
    const WCSSData data = WThemeUtils::parseCSS(selector, css, sets);
    const int logged = log.take().size();
    QString expected = TemplateReference::difference(css, selector, sets, data.styleSheet, logged);
    if (expected.isEmpty()) {
        const TemplateReference::Expansion reference = TemplateReference::expand(css, selector, sets);
        const bool hasSameDirectives = data.backgroundColorSetName == reference.names[0]
            && data.borderColorSetName == reference.names[1] && data.textColorSetName == reference.names[2]
            && data.radiusText == reference.radius && data.focusBorderRadius == reference.focus
            && (!reference.hasBorders || (data.borderText == reference.borders && data.hasBorders));
        if (hasSameDirectives)
            return QString();
        expected = reference.names[0] + QLatin1Char('|') + reference.names[1] + QLatin1Char('|') + reference.names[2]
            + QLatin1Char('|') + reference.radius + QLatin1Char('|') + reference.borders;
    }
    return QStringLiteral("seed %1, %2 warnings: %3\nexpected %4").arg(Seed).arg(logged).arg(data.styleSheet, expected);
}

// Leaves out whatever can be left out while the two still differ.
static QString shrunk(QString css)
{
    for (int length = qMax(1, css.size() / 2); length > 0; length /= 2) {
        for (int at = 0; at + length <= css.size();) {
            QString less = css;
            less.remove(at, length);
            if (difference(less).isEmpty())
                ++at;
            else
                css = less;
        }
    }
    return css;
}

void tst_TemplateReference::anyTextIsReadAsTheReferenceReadsIt()
{
    const auto list = [](const char *words) {
        return QString::fromUtf8(words).split(QLatin1Char('|'));
    };
    const QStringList heads = list("$backgroundColors:|$borderColors:|$textColors:|$borders:|$borderRadius:|"
                                   "$borderWidth:|$bordercolors:|$text|Colors:|$border");
    const QStringList values =
        list("a|b|set-c|größe|nowhere|left|TOP|right,bottom|all|none|6|12px|+3|-1|007|9999999|"
             "top|top-left|bottom-right|focus|wide| , |gradient-background-primary|"
             "gradient-background-secondary-dialog|gradient-background-| x gradient-background-y");
    const QStringList tokens = list("$(a.normal)|$(b.checked)|$(größe.focused)|$(nowhere.normal)|$(a.Hovered)|$(a)|"
                                    "$(.normal)|$($(a.normal)|$(a.b.c)|$()|$(|$(a.normal|)|.normal)|$(a.\nnormal)|$");
    const QStringList others = list("QLabel{color:red}|QLabel:hover{ color:$(b.hovered); }|padding: 3px;|margin:1px|"
                                    "/* c: d; */|/* $textColors: b; */|/*|*/|'it\\'s; x'|\"{\"|'|\"|url(a;b)|(|{|}|:|"
                                    "@media x;|日本: 語;|\U0001F600");
    const QStringList gaps = list("| |\n|\r\n|\t|;|; |;\n");
    QRandomGenerator random(Seed);
    int withDirectives = 0, withOpen = 0, withColors = 0;
    for (int round = 0; round < 20000; ++round) {
        QString css;
        for (int pieces = random.bounded(1, 12); pieces > 0; --pieces) {
            const int kind = random.bounded(10);
            if (kind < 4) {
                css += oneOf(heads, random);
                for (int i = random.bounded(1, 4); i > 0; --i)
                    css += QString(oneOf(gaps, random)).remove(QLatin1Char(';')) + oneOf(values, random);
                if (random.bounded(8))
                    css += QLatin1Char(';');
            } else {
                css += oneOf(kind < 7 ? tokens : others, random);
            }
            css += oneOf(gaps, random);
        }
        // One text in four is damaged at a random place.
        if (random.bounded(4) == 0) {
            const int at = random.bounded(css.size() + 1);
            css = random.bounded(2) ? css.left(at) : css.left(at) + oneOf(heads, random) + css.mid(at);
        }
        const TemplateReference::Expansion reference = TemplateReference::expand(css, selector, sets);
        withDirectives += !reference.rules.isEmpty();
        withOpen += reference.hasOpenDirective;
        withColors += reference.rest.contains(QLatin1String("#ff0"));
        if (!difference(css).isEmpty()) {
            const QString smallest = shrunk(css);
            QFAIL(qPrintable(smallest + QLatin1String("\n-> ") + difference(smallest)));
        }
    }
    QVERIFY2(withDirectives > 8000 && withOpen > 800 && withColors > 8000,
             qPrintable(QStringLiteral("%1 %2 %3").arg(withDirectives).arg(withOpen).arg(withColors)));
}

// All that a style sheet says, as "selector|property: value", in its order. What stands in no rule has no selector.
static QStringList statements(QString sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression rule(QStringLiteral("([^{}]*)\\{([^{}]*)\\}"));
    sheet.remove(comment);
    QStringList out;
    int pos = 0;
    for (auto matches = rule.globalMatch(sheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QStringList declarations = match.captured(2).split(QLatin1Char(';'));
        for (const QString &declaration : declarations) {
            if (!declaration.trimmed().isEmpty())
                out << match.captured(1).simplified() + QLatin1Char('|') + declaration.simplified();
        }
        pos = match.capturedEnd();
    }
    const QStringList left = sheet.mid(pos).split(QLatin1Char(';'));
    for (const QString &declaration : left) {
        if (!declaration.trimmed().isEmpty())
            out << QLatin1Char('|') + declaration.simplified();
    }
    return out;
}

static QStringList colorStatements(const QString &property, const QString &name)
{
    const auto set = sets.find(name.toStdString());
    const auto text = [&](int state) {
        return (set == sets.end() ? QColor() : set->second.color(WColorSet::State(state))).name(QColor::HexArgb);
    };
    QStringList out {selector + QLatin1Char('|') + property + text(0)};
    const auto add = [&](const char *suffix, int state) {
        out << selector + QLatin1String(suffix) + QLatin1Char('|') + property + text(state);
    };
    const bool focusShows = set != sets.end();
    if (focusShows)
        add(":checked", 5);
    add(":focus", 4);
    if (!focusShows)
        add(":checked", 5);
    add(":hover", 1);
    add(":pressed", 2);
    add(":disabled", 3);
    return out;
}

static const char *const Properties[] = {"background-color:", "border-color:", "color:"};

// A template is put together of things whose meaning is known, in any order.
void tst_TemplateReference::everyStatementOfATemplateArrives()
{
    struct Piece
    {
        const char *text;
        QStringList meaning;
    };
    const QString s = selector + QLatin1Char('|');
    // Quotes and parentheses are told apart by the parser of the sheet only, so statements() sees a word for them.
    const QString quoted = QStringLiteral("'a; $ {b} /* \\' c'"), url = QStringLiteral("url(x;@y)");
    const Piece pieces[] = {
        {"padding: 3px;", {s + QStringLiteral("padding: 3px")}},
        {"color: $(b.hovered); x:$(a.checked);",
         {s + QStringLiteral("color: #ff010100"), s + QStringLiteral("x:#ff000500")}},
        {"text: 'a; $ {b} /* \\' c';", {s + QStringLiteral("text: QUOTED")}},
        {"image: url(x;@y);", {s + QStringLiteral("image: URL")}},
        {"QLabel{color: $(a.normal); margin: 1px}",
         {QStringLiteral("QLabel|color: #ff000000"), QStringLiteral("QLabel|margin: 1px")}},
        {"A, B::c:hover {\r\n x: y;\n}", {QStringLiteral("A, B::c:hover|x: y")}},
        {"Q{t: 'a; $ {b} /* \\' c'; u: url(x;@y)}", {QStringLiteral("Q|t: QUOTED"), QStringLiteral("Q|u: URL")}},
        {"Empty{}", {}},
        {"mid/* a: b; */dle: 1px;", {s + QStringLiteral("middle: 1px")}},
        {"/* a: b; {c} */", {}},
    };
    const QStringList gaps {QString(), QStringLiteral(" "), QStringLiteral("\n"), QStringLiteral("\r\n  ")};
    const QStringList names {QStringLiteral("a"), QStringLiteral("set-c"), QStringLiteral("größe"),
                             QStringLiteral("nowhere")};
    QRandomGenerator random(Seed);
    for (int round = 0; round < 5000; ++round) {
        QString css;
        QStringList geometry, rest;
        QStringList colors[3];
        bool hasDirective = false;
        int width = -1, radius = -1;
        bool left = false, right = false;
        for (int count = random.bounded(1, 9); count > 0; --count) {
            const int kind = random.bounded(6);
            css += oneOf(gaps, random);
            if (kind == 0) {
                const int i = random.bounded(3);
                const QString name = oneOf(names, random);
                css += QLatin1String(i == 0       ? "$backgroundColors:"
                                         : i == 1 ? "$borderColors:"
                                                  : "$textColors:")
                    + oneOf(gaps, random) + name + oneOf(gaps, random) + QLatin1Char(';');
                if (colors[i].isEmpty())
                    colors[i] = colorStatements(QLatin1String(Properties[i]), name);
                hasDirective = true;
            } else if (kind == 1 && width < 0) {
                width = random.bounded(20);
                left = random.bounded(2);
                right = !left || random.bounded(2);
                css += QStringLiteral("$borders:%1%2;")
                           .arg(QLatin1String(left ? " left" : ""), QLatin1String(right ? " right" : ""));
                css += QStringLiteral("$borderWidth: %1px;").arg(width);
                hasDirective = true;
            } else if (kind == 2 && radius < 0) {
                radius = random.bounded(20);
                css += QStringLiteral("$borderRadius:%1;").arg(radius);
                hasDirective = true;
            } else {
                const Piece &piece = pieces[random.bounded(int(sizeof pieces / sizeof *pieces))];
                css += QLatin1String(piece.text);
                rest += piece.meaning;
            }
        }
        if (random.bounded(3) == 0) {
            css += QStringLiteral(" last: one");
            rest << s + QStringLiteral("last: one");
        }
        if (width >= 0) {
            geometry << s + QStringLiteral("border-style:solid");
            if (left)
                geometry << s + QStringLiteral("border-left-width:%1px").arg(width);
            if (right)
                geometry << s + QStringLiteral("border-right-width:%1px").arg(width);
        }
        if (radius >= 0)
            geometry << s + QStringLiteral("border-radius:%1px").arg(radius);
        WarningLog log;
        QString sheet = WThemeUtils::parseCSS(selector, css, sets).styleSheet;
        if (hasDirective) {
            sheet.replace(quoted, QLatin1String("QUOTED")).replace(url, QLatin1String("URL"));
            const QStringList expected = geometry + colors[0] + colors[1] + colors[2] + rest;
            QVERIFY2(statements(sheet) == expected,
                     qPrintable(QStringLiteral("seed %1: %2\n-> %3\nexpected %4")
                                    .arg(Seed)
                                    .arg(css, sheet, expected.join(QLatin1Char('\n')))));
        } else {
            int unused = 0;
            QCOMPARE(sheet, TemplateReference::withColors(css, sets, &unused));
        }
    }
}

void tst_TemplateReference::whatIsWrittenIsWhatWasMeant()
{
    const QString s = selector + QLatin1Char('|');
    // What ends a directive cannot be in a name; everything else can.
    const QStringList parts {QStringLiteral("a"),
                             QStringLiteral("b"),
                             QStringLiteral("set-c"),
                             QStringLiteral("größe"),
                             QStringLiteral(" "),
                             QStringLiteral("."),
                             QStringLiteral(":"),
                             QStringLiteral("{"),
                             QStringLiteral("\"/*"),
                             QStringLiteral(")"),
                             QStringLiteral("("),
                             QStringLiteral("\U0001F600"),
                             QString()};
    const QStringList trailing {QString(), QStringLiteral(" QLabel{color: $(b.pressed)}"),
                                QStringLiteral("padding: 1px;"), QStringLiteral("x:y; Z{u:v} w:1")};
    QRandomGenerator random(Seed);
    int known = 0;
    for (int round = 0; round < 5000; ++round) {
        WCSSData data;
        QString *const names[] = {&data.backgroundColorSetName, &data.borderColorSetName, &data.textColorSetName};
        for (QString *name : names) {
            for (int i = random.bounded(3); i > 0; --i)
                *name += oneOf(parts, random);
        }
        data.trailingText = oneOf(trailing, random);
        bool *const sides[] = {&data.leftBorder, &data.bottomBorder, &data.rightBorder, &data.topBorder};
        static const char *const sideNames[] = {"left", "bottom", "right", "top"};
        const int howMany = random.bounded(3); // all are rare among random ones
        for (bool *side : sides)
            *side = howMany == 2 || (howMany == 1 && random.bounded(2));
        data.hasBorders = random.bounded(2);
        data.borderWidth = random.bounded(40);

        QStringList expected;
        int count = 0;
        for (const bool *side : sides)
            count += *side;
        for (int i = 0; i < 3; ++i) {
            const QString name = names[i]->trimmed();
            known += sets.count(name.toStdString());
            // No border has no color.
            if (!name.isEmpty() && !(i == 1 && count == 0 && data.hasBorders))
                expected += colorStatements(QLatin1String(Properties[i]), name);
        }
        const bool hasColors = !expected.isEmpty();
        if (count == 4)
            expected << s + QStringLiteral("border-style:solid")
                     << s + QStringLiteral("border-width:%1px").arg(data.borderWidth);
        else if (count > 0)
            expected << s + QStringLiteral("border-style:solid");
        else if (data.hasBorders)
            expected << s + QStringLiteral("border:none");
        for (int i = 0; i < 4 && count < 4; ++i) {
            if (*sides[i])
                expected << s
                        + QStringLiteral("border-%1-width:%2px").arg(QLatin1String(sideNames[i])).arg(data.borderWidth);
        }
        if (data.trailingText.contains(QLatin1String("QLabel")))
            expected << QStringLiteral("QLabel|color: #ff010200");
        else if (data.trailingText.contains(QLatin1Char('Z')))
            expected << s + QStringLiteral("x:y") << QStringLiteral("Z|u:v") << s + QStringLiteral("w:1");
        else if (!data.trailingText.isEmpty())
            expected << s + data.trailingText.chopped(1);

        const QString css = WThemeUtils::convertToWCSS(data);
        WarningLog log;
        const QString sheet = WThemeUtils::parseCSS(selector, css, sets).styleSheet;
        // Without a directive there is nothing to expand: declarations stay as they are, without the selector.
        int unused = 0;
        const bool isMeant =
            hasColors ? statements(sheet) == expected : sheet == TemplateReference::withColors(css, sets, &unused);
        QVERIFY2(isMeant,
                 qPrintable(QStringLiteral("seed %1: %2\n-> %3\nexpected %4")
                                .arg(Seed)
                                .arg(css, sheet, expected.join(QLatin1Char('\n')))));
    }
    QVERIFY(known > 1000);
}

QTEST_GUILESS_MAIN(tst_TemplateReference)
#include "tst_template_reference.moc"

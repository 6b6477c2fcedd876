#include "support/WarningLog.h"

#include <UiElements/theme/WColorSet.h>
#include <UiElements/theme/WThemeUtils.h>

#include "gallery/Contrast.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

const QString Config = QStringLiteral(UIELEMENTS_CONFIG_DIR "/");
const QString Themes = Config + QStringLiteral("themes/");

struct Theme
{
    QString file;
    bool highContrast = false;
    WColorSets sets;
    QStringList warnings;
};

// Every file that the manifest names, once, in its order.
std::vector<Theme> readThemes()
{
    std::vector<Theme> themes;
    const WPalette palette = WThemeUtils::parseWColorsFromJson(Config + QStringLiteral("colors.json"));
    const QJsonObject manifest = WThemeUtils::readJsonObject(Themes + QStringLiteral("themes.json"));
    const QJsonArray families = manifest.value(QLatin1String("families")).toArray();
    for (const QJsonValue &family : families) {
        for (const char *role : {"light", "dark", "highContrast", "highContrastDark"}) {
            Theme theme;
            theme.file = family.toObject().value(QLatin1String(role)).toString();
            theme.highContrast = QLatin1String(role).startsWith(QLatin1String("highContrast"));
            const auto known = [&theme](const Theme &other) {
                return other.file == theme.file;
            };
            if (std::any_of(themes.begin(), themes.end(), known))
                continue;
            WarningLog log;
            theme.sets = WThemeUtils::parseWColorSetsFromJson(Themes + theme.file, palette);
            theme.warnings = log.take();
            themes.push_back(theme);
        }
    }
    return themes;
}

const std::vector<Theme> &themes()
{
    static const std::vector<Theme> all = readThemes();
    return all;
}

// What an element shows. The last one is no state of a color set: an element that is checked and has the focus shows,
// in each of its color sets, the focused color where it differs from the normal one, else the checked color.
constexpr int CheckedAndFocused = WColorSet::StateCount;

// The set's color, or an invalid one when the theme has no such set.
QColor colorOf(const Theme &theme, const QString &name, int state)
{
    const auto found = theme.sets.find(name.toStdString());
    if (found == theme.sets.end())
        return QColor();
    const WColorSet &set = found->second;
    if (state != CheckedAndFocused)
        return set.color(WColorSet::State(state));
    return set.focused() != set.normal() ? set.focused() : set.checked();
}

// The largest difference of a channel, 0 to 255.
int difference(const QColor &a, const QColor &b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

QStringList list(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

void addThemeRows()
{
    QTest::addColumn<int>("theme");
    for (std::size_t i = 0; i < themes().size(); ++i)
        QTest::newRow(qPrintable(themes()[i].file)) << int(i);
}

QStringList namesIn(const WColorSets &sets)
{
    QStringList names;
    for (const auto &[name, set] : sets)
        names << QString::fromStdString(name);
    names.sort();
    return names;
}

QStringList without(QStringList names, const QStringList &others)
{
    for (const QString &other : others)
        names.removeAll(other);
    return names;
}

// As one text, so that a failed comparison shows what is in the list.
QString spell(const QStringList &list)
{
    return list.join(QStringLiteral(", "));
}

} // namespace

/// The palette and the themes that are shipped: complete, readable, and different where a person has to see it. (What
/// lies on what, and whether that can be read, is another test's.)
class tst_ShippedThemes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paletteHasNoWarningAndNoNameTwice();
    void everyColorIsUsed();
    void manifestListsEveryThemeFile();
    void parsesWithoutAWarning_data() { addThemeRows(); }
    void parsesWithoutAWarning();
    void definesTheSameSets_data() { addThemeRows(); }
    void definesTheSameSets();
    void definesTheSetsThatElementsName_data() { addThemeRows(); }
    void definesTheSetsThatElementsName();
    void focusShows_data();
    void focusShows();
    void statesDiffer_data();
    void statesDiffer();
    void highContrastHasNoTranslucency_data() { addThemeRows(); }
    void highContrastHasNoTranslucency();
};

void tst_ShippedThemes::paletteHasNoWarningAndNoNameTwice()
{
    WarningLog log;
    const QJsonObject root = WThemeUtils::readJsonObject(Config + QStringLiteral("colors.json"));
    const WPalette palette = WThemeUtils::parseWColorsFromJson(root);
    QCOMPARE(spell(log.take()), QString());
    QVERIFY(!palette.empty());

    // A name that stands twice silently takes one of the two colors.
    QStringList names;
    const QJsonArray colors = root.value(QLatin1String("colors")).toArray();
    for (const QJsonValue &color : colors) {
        const QJsonArray variations = color.toObject().value(QLatin1String("variations")).toArray();
        for (const QJsonValue &variation : variations) {
            for (const char *key : {"name", "alias"})
                names << variation.toObject().value(QLatin1String(key)).toString();
        }
    }
    names.removeAll(QString());
    QStringList twice;
    for (const QString &name : qAsConst(names)) {
        if (names.count(name) > 1)
            twice << name;
    }
    twice.removeDuplicates();
    QCOMPARE(spell(twice), QString());
    QCOMPARE(int(palette.size()), names.size());
}

void tst_ShippedThemes::everyColorIsUsed()
{
    QStringList left;
    for (const auto &[name, color] : WThemeUtils::parseWColorsFromJson(Config + QStringLiteral("colors.json")))
        left << QString::fromStdString(name);
    left = without(left, list("neutral-100 neutral-0 none")); // second names
    for (const Theme &theme : themes()) {
        const QJsonObject root = WThemeUtils::readJsonObject(Themes + theme.file);
        const QJsonObject tokens = root.value(QLatin1String("tokens")).toObject();
        for (const QJsonValue &set : tokens) {
            const QJsonObject states = set.toObject();
            for (const QJsonValue &color : states)
                left.removeAll(color.toString());
        }
    }
    QCOMPARE(spell(left), QString());
}

void tst_ShippedThemes::manifestListsEveryThemeFile()
{
    QStringList listed;
    for (const Theme &theme : themes())
        listed << theme.file;
    listed.sort();

    QStringList present;
    QDirIterator files(Themes, {QStringLiteral("*.json")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        present << QDir(Themes).relativeFilePath(files.next());
    present.removeAll(QStringLiteral("themes.json"));
    present.sort();
    QCOMPARE(spell(listed), spell(present));
}

void tst_ShippedThemes::parsesWithoutAWarning()
{
    QFETCH(int, theme);
    const Theme &shipped = themes()[std::size_t(theme)];
    QCOMPARE(spell(shipped.warnings), QString());
    for (const auto &[name, set] : shipped.sets) {
        for (int state = 0; state < WColorSet::StateCount; ++state)
            QVERIFY2(set.color(WColorSet::State(state)).isValid(), name.c_str());
    }
}

void tst_ShippedThemes::definesTheSameSets()
{
    QFETCH(int, theme);
    const QStringList wanted = namesIn(themes().front().sets);
    const QStringList found = namesIn(themes()[std::size_t(theme)].sets);
    QVERIFY(!wanted.isEmpty());
    QCOMPARE(spell(without(wanted, found)), QString()); // missing here
    QCOMPARE(spell(without(found, wanted)), QString()); // missing in the first theme
}

void tst_ShippedThemes::definesTheSetsThatElementsName()
{
    QFETCH(int, theme);
    const QStringList named =
        list("button-hyperlink-text badge-background badge-text outline-focus shadow "
             "qx-contentTabViewButton-text qx-contentTabViewButtonChecked-text qx-contentTabViewButton-background "
             "qx-contentTabViewButtonChecked-background qx-defaultBorderForButton qx-underlineButton-background "
             "qx-underlineButton-text qx-unreadCountCircle-background theme-gradient-primary-0-background "
             "theme-gradient-primary-1-background theme-gradient-secondary-0-background "
             "theme-gradient-secondary-1-background theme-gradient-dialog-secondary-0-background "
             "theme-gradient-dialog-secondary-1-background gradient-background-primary gradient-background-secondary "
             "gradient-background-secondary-dialog");
    QCOMPARE(spell(without(named, namesIn(themes()[std::size_t(theme)].sets))), QString());
}

void tst_ShippedThemes::focusShows_data()
{
    // The frame against what it surrounds; an empty fill is the pane itself.
    const std::pair<const char *, const char *> frames[] = {
        {"button-primary-border", "button-primary-background"},
        {"button-secondary-border", "button-secondary-background"},
        {"button-danger-border", "button-danger-background"},
        {"button-ghost-border", ""},
        {"input-border", "input-background"},
        {"list-border", "list-background"},
        {"header-border", "header-background"},
        {"control-indicator-border", "control-indicator-background"},
        {"slider-handle-border", "slider-handle-background"},
        {"qx-defaultBorderForButton", "qx-contentTabViewButton-background"},
        {"qx-defaultBorderForButton", "qx-contentTabViewButtonChecked-background"},
        {"outline-primary", ""},
        {"splitter-handle-background", ""},
    };
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("fill");
    for (std::size_t i = 0; i < themes().size(); ++i) {
        for (const auto &[frame, fill] : frames) {
            QTest::addRow("%s: %s %s", qPrintable(themes()[i].file), frame, fill)
                << int(i) << QString::fromLatin1(frame) << QString::fromLatin1(fill);
        }
    }
}

void tst_ShippedThemes::focusShows()
{
    QFETCH(int, theme);
    QFETCH(QString, frame);
    QFETCH(QString, fill);
    const Theme &shipped = themes()[std::size_t(theme)];
    const QColor pane = colorOf(shipped, QStringLiteral("background-primary"), WColorSet::Normal);
    const QColor focused = colorOf(shipped, frame, WColorSet::Focused);
    QCOMPARE(focused.alpha(), 255);
    const QColor resting = Contrast::over(colorOf(shipped, frame, WColorSet::Normal), pane);
    QVERIFY2(difference(focused, resting) >= 32, "the focused frame looks like the resting one");

    const double onPane = Contrast::ratio(focused, pane);
    QVERIFY2(onPane >= (shipped.highContrast ? 4.5 : 3.0),
             qPrintable(QStringLiteral("%1:1 on the pane").arg(onPane, 0, 'f', 2)));
    if (fill.isEmpty())
        return;
    const double onFill = Contrast::ratio(focused, colorOf(shipped, fill, WColorSet::Focused));
    QVERIFY2(onFill >= 3.0, qPrintable(QStringLiteral("%1:1 on the fill").arg(onFill, 0, 'f', 2)));
    // Checked fills are accents, too: the frame of a check box must not drown in its own tick's color.
    const QColor both = colorOf(shipped, fill, CheckedAndFocused);
    QVERIFY2(difference(focused, both) >= 32, "the focused frame looks like the checked fill");
}

void tst_ShippedThemes::statesDiffer_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("below");
    QTest::addColumn<QString>("states");
    const QString none;
    const QString steps = QStringLiteral("normal hovered pressed");
    const QString choice = QStringLiteral("normal hovered pressed checked");
    const QString rows = QStringLiteral("normal focused checked");
    const QString use = QStringLiteral("normal disabled");
    for (std::size_t i = 0; i < themes().size(); ++i) {
        const auto add = [i](const QStringList &sets, const QString &below, const QString &states) {
            for (const QString &set : sets)
                QTest::addRow("%s: %s %s", qPrintable(themes()[i].file), qPrintable(set), qPrintable(states))
                    << int(i) << set << below << states;
        };
        add(list("button-primary-background button-danger-background call-accept-background call-decline-background "
                 "qx-contentTabViewButtonChecked-background background-primary background-secondary "
                 "background-tertiary"),
            none, steps);
        add(list("button-secondary-background control-indicator-background qx-contentTabViewButton-background "
                 "header-background"),
            none, choice);
        add(list("button-ghost-background list-item-background menu-item-background navigation-item-background"),
            QStringLiteral("background-primary"), choice);
        add(list("list-item-background menu-item-background navigation-item-background qx-underlineButton-background"),
            QStringLiteral("background-primary"), rows);
        add(list("text-primary text-secondary text-accent button-primary-text button-secondary-text button-ghost-text "
                 "input-text list-item-text menu-item-text navigation-item-text qx-contentTabViewButton-text "
                 "qx-underlineButton-text control-indicator-border control-indicator-mark input-border "
                 "slider-fill-background slider-handle-border progress-fill-background"),
            none, use);
    }
}

void tst_ShippedThemes::statesDiffer()
{
    QFETCH(int, theme);
    QFETCH(QString, set);
    QFETCH(QString, below);
    QFETCH(QString, states);
    const Theme &shipped = themes()[std::size_t(theme)];
    const QColor ground = below.isEmpty() ? QColor(Qt::white) : colorOf(shipped, below, WColorSet::Normal);
    const QStringList names = states.split(QLatin1Char(' '));
    for (int i = 0; i < names.size(); ++i) {
        for (int j = i + 1; j < names.size(); ++j) {
            const QColor a = Contrast::over(colorOf(shipped, set, WColorSet::stateFromName(names.at(i))), ground);
            const QColor b = Contrast::over(colorOf(shipped, set, WColorSet::stateFromName(names.at(j))), ground);
            QVERIFY2(difference(a, b) >= 5,
                     qPrintable(QStringLiteral("%1: %2 %3 and %4 are %5 and %6")
                                    .arg(shipped.file, set, names.at(i), names.at(j), a.name(), b.name())));
        }
    }
}

void tst_ShippedThemes::highContrastHasNoTranslucency()
{
    QFETCH(int, theme);
    const Theme &shipped = themes()[std::size_t(theme)];
    if (!shipped.highContrast)
        return;
    for (const auto &[name, set] : shipped.sets) {
        for (int state = 0; state < WColorSet::StateCount; ++state) {
            const int alpha = set.color(WColorSet::State(state)).alpha();
            QVERIFY2(alpha == 0 || alpha == 255, name.c_str());
        }
    }
}

QTEST_GUILESS_MAIN(tst_ShippedThemes)
#include "tst_shipped_themes.moc"

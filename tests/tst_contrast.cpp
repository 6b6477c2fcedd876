#include "support/WApplicationMain.h"

#include <UiElements/theme/WThemeUtils.h>

#include "gallery/Contrast.h"
#include "gallery/GalleryThemes.h"
#include "gallery/PageRegistry.h"
#include "gallery/Pictures.h"

#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdlib>
#include <map>
#include <set>

namespace {

// The pages are pictured at twice their size, for which a program is another one from its start.
const int isAtTwiceTheSize = setenv("QT_SCALE_FACTOR", "2", 1) + setenv("QT_ENABLE_HIGHDPI_SCALING", "0", 1);

const QString Config = QStringLiteral(UIELEMENTS_CONFIG_DIR);

// What an element shows that is checked and has the focus: the focused color where it differs from the normal one.
constexpr int CheckedAndFocused = WColorSet::StateCount;

QString stateName(int state)
{
    return state == CheckedAndFocused ? QStringLiteral("checked and focused") : WColorSet::stateNames().at(state);
}

bool isGround(const QString &set)
{
    return set.startsWith(QLatin1String("background-")) || set.endsWith(QLatin1String("-background"));
}

// What elements stand on.
bool isPane(const QString &set)
{
    static const QRegularExpression panes(
        QStringLiteral("^background-|^(dialog|list|menu|navigation|theme-gradient-.*)-background$"));
    return panes.match(set).hasMatch();
}

// "button-primary-background" for "button-primary-text".
QString groundOf(const QString &front)
{
    return front.left(front.lastIndexOf(QLatin1Char('-'))) + QLatin1String("-background");
}

bool belongTogether(const QString &front, const QString &ground)
{
    return ground == groundOf(front);
}

// Texts are read on whatever they stand. Marks are seen against what the element stands on; a tick, in its box.
bool matters(const QString &front, const QString &ground)
{
    if (!isGround(ground))
        return false;
    switch (Contrast::kindOf(front)) {
    case Contrast::Kind::Text: return ground != QLatin1String("selection-background") || belongTogether(front, ground);
    case Contrast::Kind::Mark:
        return isPane(ground) || (front.endsWith(QLatin1String("-mark")) && belongTogether(front, ground))
            || ground == QString(front).replace(QLatin1String("-fill-"), QLatin1String("-track-"));
    default: return false;
    }
}

struct Pair
{
    QString front;
    QString ground;
    int frontState;
    int groundState;

    bool operator<(const Pair &o) const
    {
        return std::tie(front, ground, frontState, groundState)
            < std::tie(o.front, o.ground, o.frontState, o.groundState);
    }
};

/// What lies on what in the pages of the gallery, read off their pictures.
///
/// These are made with a theme that has each color but once. So a pixel tells the set and the state that it was painted
/// with, by whomever: a template, a delegate, an icon, QML.
class Pictured
{
public:
    bool read(quint32 seed);

    std::set<Pair> pairs;
    std::set<std::pair<QString, QString>> below; // a ground, and what shows through it
    std::set<QString> focused; // what is there in its color for the focus

private:
    struct Paint
    {
        QString set;
        int state;
    };

    QJsonObject spell(const QString &set, quint32 *seed);
    void scan(const QImage &picture);

    QHash<QRgb, Paint> m_paints;
    QJsonArray m_colors;
};

QJsonObject Pictured::spell(const QString &set, quint32 *seed)
{
    QJsonObject states;
    for (int state = 0; state < WColorSet::StateCount; ++state) {
        *seed = *seed * 1664525U + 1013904223U;
        const QRgb rgb = 0xff000000 | (*seed >> 8);
        m_paints.insert(rgb, {set, state});
        const QString name = set + QString::number(state);
        const QJsonObject rgba {{QStringLiteral("r"), qRed(rgb)},
                                {QStringLiteral("g"), qGreen(rgb)},
                                {QStringLiteral("b"), qBlue(rgb)},
                                {QStringLiteral("a"), 1}};
        m_colors.append(QJsonObject {{QStringLiteral("name"), name}, {QStringLiteral("rgba"), rgba}});
        states.insert(WColorSet::stateNames().at(state), name);
    }
    return states;
}

bool Pictured::read(quint32 seed)
{
    const QJsonObject model = WThemeUtils::readJsonObject(Config + QStringLiteral("/themes/default.json"));
    QJsonObject sets = model.value(QLatin1String("tokens")).toObject();
    for (auto it = sets.begin(); it != sets.end(); ++it) {
        QString start = it.key(); // a gradient of one color is one that can be told from others
        start.replace(QLatin1String("-1-background"), QLatin1String("-0-background"));
        it.value() = start == it.key() ? spell(start, &seed) : sets.value(start);
    }
    const QString file = QStringLiteral("spelled.json");
    const QJsonObject family {{QStringLiteral("name"), QStringLiteral("spelled")},
                              {QStringLiteral("light"), file},
                              {QStringLiteral("dark"), file}};
    const QTemporaryDir folder;
    const std::pair<QString, QJsonObject> files[] = {
        {QStringLiteral("colors.json"),
         {{QStringLiteral("colors"), QJsonArray {QJsonObject {{QStringLiteral("variations"), m_colors}}}}}},
        {QStringLiteral("themes/themes.json"), {{QStringLiteral("families"), QJsonArray {family}}}},
        {QStringLiteral("themes/") + file, {{QStringLiteral("tokens"), sets}}}};
    QDir(folder.path()).mkdir(QStringLiteral("themes"));
    for (const auto &[name, object] : files) {
        QFile out(folder.filePath(name));
        if (!out.open(QIODevice::WriteOnly) || out.write(QJsonDocument(object).toJson()) < 0)
            return false;
    }
    GalleryThemes themes;
    QStringList pages;
    for (const PageEntry &page : allPages()) {
        if (page.name != QLatin1String("palette")) // shows colors, not elements
            pages << page.name;
    }
    const PictureOptions options {
        folder.filePath(QStringLiteral("pictures")), pages, {}, {QStringLiteral("ltr")}, {QStringLiteral("2x")}};
    if (!themes.load(folder.path()) || Pictures::write(&themes, options) != 0)
        return false;
    QDirIterator pictures(options.folder, {QStringLiteral("*.png")});
    while (pictures.hasNext())
        scan(QImage(pictures.next()).convertToFormat(QImage::Format_RGB32));
    return true;
}

void Pictured::scan(const QImage &picture)
{
    constexpr int Edge = 4; // what is mixed between a letter and its ground
    constexpr int Frame = 12; // a border, and what is round about it
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        const Paint *last = nullptr;
        const Paint *pane = nullptr;
        int lastX = 0;
        int paneX = 0;
        for (int x = 0; x < picture.width(); ++x) {
            if (x > 0 && line[x] == line[x - 1]) {
                lastX += lastX == x - 1;
                paneX += paneX == x - 1;
                continue;
            }
            const auto found = m_paints.constFind(line[x] | 0xff000000);
            if (found == m_paints.constEnd())
                continue;
            const Paint *paint = &*found;
            if (paint->state == WColorSet::Focused)
                focused.insert(paint->set);
            if (last && x - lastX <= Edge) {
                for (const auto &[front, ground] : {std::make_pair(paint, last), std::make_pair(last, paint)}) {
                    if (front->set != ground->set && matters(front->set, ground->set))
                        pairs.insert({front->set, ground->set, front->state, ground->state});
                }
            }
            if (pane && x - paneX <= Frame && isGround(paint->set) && paint->set != pane->set)
                below.insert({paint->set, pane->set});
            last = paint;
            lastX = x;
            if (isPane(paint->set)) {
                pane = paint;
                paneX = x;
            }
        }
    }
}

QStringList list(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

// What the pages do not happen to show, and others will put on each other.
std::set<Pair> usualPairs(const WColorSets &sets)
{
    std::set<Pair> pairs;
    const auto add = [&pairs](const QStringList &fronts, const QStringList &grounds, WColorSet::State state) {
        for (const QString &front : fronts) {
            for (const QString &ground : grounds)
                pairs.insert({front, ground, state, state});
        }
    };
    const QStringList panes = list("background-primary background-secondary background-tertiary dialog-background "
                                   "list-background menu-background navigation-background");
    add(list("text-primary text-secondary text-accent text-success text-warning text-error button-hyperlink-text"),
        panes, WColorSet::Hovered);
    add(list("text-primary text-secondary"),
        list("background-selection theme-gradient-primary-1-background theme-gradient-secondary-0-background "
             "theme-gradient-secondary-1-background theme-gradient-dialog-secondary-0-background "
             "theme-gradient-dialog-secondary-1-background gradient-background-primary gradient-background-secondary "
             "gradient-background-secondary-dialog"),
        WColorSet::Hovered);
    add({QStringLiteral("text-on-accent")}, {QStringLiteral("button-primary-background")}, WColorSet::Hovered);
    add({QStringLiteral("input-placeholder-text")}, {QStringLiteral("input-background")}, WColorSet::Hovered);
    add({QStringLiteral("call-text")}, list("call-accept-background call-decline-background"), WColorSet::Hovered);
    add({QStringLiteral("banner-text")},
        list("banner-info-background banner-warning-background banner-error-background"), WColorSet::Hovered);
    for (const auto &[key, set] : sets) {
        const QString name = QString::fromStdString(key);
        if (Contrast::kindOf(name) == Contrast::Kind::Text && sets.count(groundOf(name).toStdString()) > 0)
            pairs.insert({name, groundOf(name), WColorSet::Normal, WColorSet::Normal});
        if (Contrast::kindOf(name) == Contrast::Kind::Mark && !name.endsWith(QLatin1String("-mark")))
            add({name}, panes.mid(0, 5), WColorSet::Normal);
    }
    return pairs;
}

template <typename T>
std::set<T> inBoth(const std::set<T> &a, const std::set<T> &b)
{
    std::set<T> both;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::inserter(both, both.end()));
    return both;
}

struct Theme
{
    QString file;
    bool highContrast;
    WColorSets sets;
};

std::vector<Theme> readThemes()
{
    std::vector<Theme> themes;
    const WPalette palette = WThemeUtils::parseWColorsFromJson(Config + QStringLiteral("/colors.json"));
    QDirIterator files(Config + QStringLiteral("/themes"), {QStringLiteral("*.json")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString file = files.fileInfo().completeBaseName();
        if (file != QLatin1String("themes"))
            themes.push_back({file, file.startsWith(QLatin1String("highContrast")),
                              WThemeUtils::parseWColorSetsFromJson(path, palette)});
    }
    return themes;
}

} // namespace

/// Whatever the pages of the gallery put on each other can be read, in all shipped themes.
class tst_Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void frontsShow_data();
    void frontsShow();
    void focusShows_data();
    void focusShows();
    void cleanupTestCase();

private:
    bool isPictured(const QString &front) const;
    QColor color(const Theme &theme, const QString &set, int state) const;

    Pictured m_pictured;
    std::vector<Theme> m_themes;
    QStringList m_table; // front, ground, state, contrast and what is needed, for each theme
};

void tst_Contrast::initTestCase()
{
    // At the edge of a letter there may be a mixture that is another color of the theme. With other colors it is not.
    Pictured other;
    QVERIFY(m_pictured.read(1) && other.read(2));
    m_pictured.pairs = inBoth(m_pictured.pairs, other.pairs);
    m_pictured.below = inBoth(m_pictured.below, other.below);
    m_pictured.focused = inBoth(m_pictured.focused, other.focused);
    m_themes = readThemes();
    QVERIFY(m_themes.size() > 1);
    // Pages, controls, delegates and QML all paint texts; pictures without them have shown nothing.
    for (const char *front : {"text-secondary", "button-primary-text", "list-item-text", "banner-text"})
        QVERIFY2(isPictured(QString::fromLatin1(front)), front);
    const std::set<Pair> usual = usualPairs(m_themes.front().sets);
    m_pictured.pairs.insert(usual.begin(), usual.end());
}

bool tst_Contrast::isPictured(const QString &front) const
{
    return std::any_of(m_pictured.pairs.begin(), m_pictured.pairs.end(),
                       [&front](const Pair &pair) { return pair.front == front; });
}

QColor tst_Contrast::color(const Theme &theme, const QString &set, int state) const
{
    const auto found = theme.sets.find(set.toStdString());
    if (found == theme.sets.end())
        return QColor();
    if (state != CheckedAndFocused)
        return found->second.color(WColorSet::State(state));
    return found->second.focused() != found->second.normal() ? found->second.focused() : found->second.checked();
}

void tst_Contrast::frontsShow_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("front");
    QTest::addColumn<QString>("ground");
    for (std::size_t i = 0; i < m_themes.size(); ++i) {
        QString row;
        for (const Pair &pair : m_pictured.pairs) {
            const QString title = QStringLiteral("%1: %2 on %3").arg(m_themes[i].file, pair.front, pair.ground);
            if (title != row)
                QTest::newRow(qPrintable(title)) << int(i) << pair.front << pair.ground;
            row = title;
        }
    }
}

void tst_Contrast::frontsShow()
{
    QFETCH(int, theme);
    QFETCH(QString, front);
    QFETCH(QString, ground);
    const Theme &shipped = m_themes[std::size_t(theme)];

    // As pictured. What has a state at the same time as its ground has the other ones so, too. Running text has all of
    // them on a ground that has none; text with a ground of its own is elsewhere only as pictured. Panes are not
    // checked.
    std::set<std::pair<int, int>> states;
    bool together = belongTogether(front, ground);
    for (const Pair &pair : m_pictured.pairs) {
        if (pair.front != front || pair.ground != ground)
            continue;
        states.insert({pair.frontState, pair.groundState});
        together = together
            || (pair.frontState == pair.groundState && pair.frontState != WColorSet::Normal
                && pair.frontState != WColorSet::Disabled);
    }
    const bool isRunning = shipped.sets.count(groundOf(front).toStdString()) == 0;
    for (int state = 0; state <= CheckedAndFocused; ++state) {
        if (together && !(isPane(ground) && state >= WColorSet::Checked))
            states.insert({state, state});
        if (isRunning)
            states.insert({state, int(WColorSet::Normal)});
    }

    const double needed = Contrast::needed(Contrast::kindOf(front), shipped.highContrast);
    QStringList failures;
    for (const auto &[frontState, groundState] : states) {
        const QColor top = color(shipped, front, frontState);
        const QColor own = color(shipped, ground, groundState);
        QVERIFY(top.isValid() && own.isValid());
        if (top.alpha() == 0)
            continue;
        std::vector<QColor> grounds;
        if (own.alpha() == 255)
            grounds.push_back(own);
        for (const auto &[above, pane] : m_pictured.below) {
            if (above == ground && own.alpha() < 255)
                grounds.push_back(Contrast::over(own, color(shipped, pane, WColorSet::Normal)));
        }
        QVERIFY2(!grounds.empty(), "translucent, and nothing is known to lie below");
        for (const QColor &seen : grounds) {
            const double ratio = Contrast::ratio(Contrast::over(top, seen), seen);
            const QString state = stateName(frontState) + QLatin1String(" on ") + stateName(groundState);
            m_table << QStringLiteral("%1,%2,%3,%4,%5,%6")
                           .arg(shipped.file, front, ground, state)
                           .arg(ratio, 0, 'f', 2)
                           .arg(needed);
            if (ratio < needed && frontState != WColorSet::Disabled && groundState != WColorSet::Disabled)
                failures << QStringLiteral("%1 %2:1").arg(state).arg(ratio, 0, 'f', 2);
        }
    }
    QVERIFY2(failures.isEmpty(),
             qPrintable(QStringLiteral("needs %1:1, but is %2").arg(needed).arg(failures.join(QStringLiteral(", ")))));
}

void tst_Contrast::focusShows_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("set");
    for (std::size_t i = 0; i < m_themes.size(); ++i) {
        for (const QString &set : m_pictured.focused) {
            // The set "outline-focus" is for what is there with the focus only.
            const bool isEdge = set.startsWith(QLatin1String("outline-")) || set.endsWith(QLatin1String("-border"));
            if (isEdge && set != QLatin1String("outline-focus"))
                QTest::addRow("%s: %s", qPrintable(m_themes[i].file), qPrintable(set)) << int(i) << set;
        }
    }
}

void tst_Contrast::focusShows()
{
    QFETCH(int, theme);
    QFETCH(QString, set);
    const Theme &shipped = m_themes[std::size_t(theme)];
    const QColor focused = color(shipped, set, WColorSet::Focused);
    QCOMPARE(focused.alpha(), 255);
    const QStringList panes = list("background-primary background-secondary background-tertiary");
    for (const QString &name : panes) {
        const QColor pane = color(shipped, name, WColorSet::Normal);
        const QColor resting = Contrast::over(color(shipped, set, WColorSet::Normal), pane);
        const int difference =
            std::max({std::abs(focused.red() - resting.red()), std::abs(focused.green() - resting.green()),
                      std::abs(focused.blue() - resting.blue())});
        QVERIFY2(difference >= 32, "looks as without the focus");
        QVERIFY2(Contrast::ratio(focused, pane) >= Contrast::needed(Contrast::Kind::Mark, shipped.highContrast),
                 qPrintable(QStringLiteral("%1:1 on %2").arg(Contrast::ratio(focused, pane), 0, 'f', 2).arg(name)));
    }
}

// UIELEMENTS_CONTRAST_TABLE names a file that all figures are written to, those of disabled elements, too.
void tst_Contrast::cleanupTestCase()
{
    QFile file(qEnvironmentVariable("UIELEMENTS_CONTRAST_TABLE"));
    if (file.fileName().isEmpty())
        return;
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("theme,front,ground,state,contrast,needed\n" + m_table.join(QLatin1Char('\n')).toUtf8() + '\n');
}

W_TEST_MAIN(tst_Contrast)
#include "tst_contrast.moc"

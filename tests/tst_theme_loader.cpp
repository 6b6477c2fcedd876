#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/theme/WThemeLoader.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WFrame.h>

#include <QSaveFile>
#include <QTemporaryDir>

#ifdef UIELEMENTS_DBUS
#include <UiElements/app/WSystemAppearance.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#endif

#include <functional>

#include <unistd.h>

#ifdef UIELEMENTS_DBUS
using Settings = QMap<QString, QVariantMap>;
Q_DECLARE_METATYPE(Settings)
#endif

namespace {

using Scheme = WThemeLoader::ColorScheme;
using Contrast = WThemeLoader::Contrast;
using Motion = WThemeLoader::Motion;

WApplication *app()
{
    return static_cast<WApplication *>(qApp);
}

QByteArray themeOf(const char *color)
{
    return QByteArray("{\"tokens\": {\n  \"a\": {\"normal\": \"") + color + "\"}\n}}\n";
}

/// A folder laid out as ours, in which every theme has a color of its own.
class Config
{
public:
    Config()
    {
        QByteArray colors = "{\"colors\": [\n{\"variations\": [\n";
        for (const char *name : {"white", "black", "yellow", "blue", "red", "green", "gray", "pink"}) {
            const QColor c {QLatin1String(name)};
            colors += QStringLiteral("  {\"name\": \"%1\", \"rgba\": {\"r\": %2, \"g\": %3, \"b\": %4, \"a\": 1}},\n")
                          .arg(QLatin1String(name))
                          .arg(c.red())
                          .arg(c.green())
                          .arg(c.blue())
                          .toUtf8();
        }
        colors += "  {\"name\": \"snow\", \"alias\": \"white\"}\n]}]}\n";
        write("colors.json", colors);
        write("themes/themes.json", R"({"families": [
  {"name": "default", "title": "Default", "light": "light.json", "dark": "dark.json", "highContrast": "high.json",
   "highContrastDark": "highDark.json"},
  {"name": "plain", "light": "sub/plain.json", "dark": "sub/plainDark.json"},
  {"name": "night", "light": "", "dark": "night.json"}
]})");
        write("themes/light.json", themeOf("white"));
        write("themes/dark.json", themeOf("black"));
        write("themes/high.json", themeOf("yellow"));
        write("themes/highDark.json", themeOf("blue"));
        write("themes/sub/plain.json", themeOf("red"));
        write("themes/sub/plainDark.json", themeOf("green"));
        write("themes/night.json", themeOf("gray"));
    }

    /// "one/two" of it stands for the folder "config".
    QString path(const QByteArray &name = ".") const
    {
        return QDir::cleanPath(m_folder.filePath(QStringLiteral("config/") + QString::fromUtf8(name)));
    }
    QByteArray read(const QByteArray &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &name, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", name.constData());
    }
    void replace(const QByteArray &name, const QByteArray &bytes)
    {
        QSaveFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
            qFatal("%s cannot be replaced", name.constData());
    }
    static void mustDo(bool isDone)
    {
        if (!isDone)
            qFatal("a file operation failed");
    }
    void rename(const QByteArray &from, const QByteArray &to) { mustDo(QDir().rename(path(from), path(to))); }
    void remove(const QByteArray &name)
    {
        mustDo(QFileInfo(path(name)).isDir() ? QDir(path(name)).removeRecursively() : QFile::remove(path(name)));
    }
    void copyFolder(const QByteArray &from, const QByteArray &to)
    {
        const QDir source(path(from));
        QDir().mkpath(path(to));
        const QStringList entries = source.entryList(QDir::Files);
        for (const QString &file : entries)
            mustDo(QFile::copy(source.filePath(file), QDir(path(to)).filePath(file)));
        const QStringList folders = source.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &folder : folders)
            copyFolder(from + '/' + folder.toUtf8(), to + '/' + folder.toUtf8());
    }
    void link(const QByteArray &target, const QByteArray &name)
    {
        const QByteArray path = QFile::encodeName(this->path(name));
        ::unlink(path.constData());
        mustDo(::symlink(target.constData(), path.constData()) == 0);
    }

private:
    QTemporaryDir m_folder;
};

QString colorOf(const WColorSets &sets)
{
    const auto found = sets.find("a");
    if (found == sets.end())
        return QStringLiteral("none");
    for (const char *name : {"white", "black", "yellow", "blue", "red", "green", "gray", "pink"}) {
        if (QColor(QLatin1String(name)) == found->second.normal())
            return QLatin1String(name);
    }
    return found->second.normal().name();
}

/// What the application shows: "light - - white/black" is theme name, dark, high contrast, color and inverted color.
QString shown()
{
    return QStringLiteral("%1 %2 %3 %4/%5")
        .arg(app()->getThemeName(), app()->getIsDarkTheme() ? QStringLiteral("dark") : QStringLiteral("-"),
             app()->getIsHighContrastTheme() ? QStringLiteral("high") : QStringLiteral("-"),
             colorOf(app()->getColorSets()), colorOf(app()->getInvertedColorSets()));
}

const QString LightTheme = QStringLiteral("light - - white/black");
const QString DarkTheme = QStringLiteral("dark dark - black/white");

/// Counts what a switch announces.
struct Announcements
{
    QSignalSpy colors {app(), &IWApplication::colorSetsChanged};
    QSignalSpy theme {app(), &WApplication::themeChanged};
    QSignalSpy dark {app(), &WApplication::isDarkThemeChanged};
    QSignalSpy highContrast {app(), &WApplication::isHighContrastThemeChanged};

    /// "colors theme dark highContrast", and from zero again.
    QString take()
    {
        QStringList counts;
        for (QSignalSpy *spy : {&colors, &theme, &dark, &highContrast}) {
            counts << QString::number(spy->count());
            spy->clear();
        }
        return counts.join(QLatin1Char(' '));
    }
};

using Change = std::function<void(Config &, const char *color)>;

#ifdef UIELEMENTS_DBUS
/// A desktop on a bus of its own, whose settings are what the test says.
class Desktop : public QDBusVirtualObject
{
public:
    Desktop()
    {
        const QString address = QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("bus"));
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--address=") + address});
        while (!m_daemon.canReadLine()) {
            if (!m_daemon.waitForReadyRead())
                qFatal("dbus-daemon: %s", qPrintable(m_daemon.errorString()));
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS", address.toLocal8Bit());
        m_connection = QDBusConnection::connectToBus(address, QStringLiteral("desktop"));
        if (!m_connection.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this)
            || !m_connection.registerService(QStringLiteral("org.freedesktop.portal.Desktop")))
            qFatal("the bus does not take the portal");
    }
    ~Desktop() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void set(const char *key, uint value)
    {
        m_values.insert(QLatin1String(key), value);
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                         QStringLiteral("org.freedesktop.portal.Settings"),
                                                         QStringLiteral("SettingChanged"));
        signal << QStringLiteral("org.freedesktop.appearance") << QLatin1String(key)
               << QVariant::fromValue(QDBusVariant(value));
        m_connection.send(signal);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override
    {
        if (message.member() != QLatin1String("ReadAll"))
            return false;
        qDBusRegisterMetaType<Settings>();
        const Settings settings {{QStringLiteral("org.freedesktop.appearance"), m_values}};
        return connection.send(message.createReply(QVariant::fromValue(settings)));
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QDBusConnection m_connection {QString()};
    QVariantMap m_values;
};
constexpr uint DesktopDark = 1, DesktopLight = 2; // what the portal sends
#endif

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_ThemeLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shippedFolder();
    void choices_data();
    void choices();
    void oneAnnouncement();
    void slotsThatInterfere();
    void faults_data();
    void faults();
    void refusedCalls();
    void inlineColors();
    void changesOnDisk_data();
    void changesOnDisk();
    void brokenForAWhile();
    void firstLoadFails();
    void changesThatDoNotRest();
    void hostsAnimations();
    void desktop();
};

void tst_ThemeLoader::init()
{
    app()->setColorSets({});
    app()->setInvertedColorSets({});
    app()->setIsDarkTheme(false);
    app()->setIsHighContrastTheme(false);
    app()->setTheme(QString());
}

void tst_ThemeLoader::shippedFolder()
{
    WarningLog log;
    WThemeLoader loader;
    QVERIFY(loader.load(QStringLiteral(UIELEMENTS_CONFIG_DIR)));
    const QVector<WThemeLoader::Family> families = loader.families();
    QVERIFY(families.size() > 1);
    for (const WThemeLoader::Family &family : families) {
        QVERIFY(loader.setTheme(family.name, Scheme::Dark, Contrast::High));
        QVERIFY(loader.isDark() && loader.isHighContrast());
        QVERIFY(!family.title.isEmpty() && family.title != family.name);
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_ThemeLoader::choices_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<Scheme>("scheme");
    QTest::addColumn<Contrast>("contrast");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *family, Scheme scheme, Contrast contrast, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(family) << scheme << contrast << QString::fromLatin1(expected);
    };
    row("nobody wants anything", "default", Scheme::FollowSystem, Contrast::FollowSystem, "light - - white/black");
    row("dark", "default", Scheme::Dark, Contrast::Normal, "dark dark - black/white");
    row("high contrast", "default", Scheme::Light, Contrast::High, "high - high yellow/blue");
    row("dark high contrast", "default", Scheme::Dark, Contrast::High, "highDark dark high blue/yellow");
    row("files in a folder below", "plain", Scheme::Dark, Contrast::Normal, "plainDark dark - green/red");
    row("high contrast of another family", "plain", Scheme::Dark, Contrast::High, "highDark dark high blue/yellow");
    row("only a dark theme", "night", Scheme::Light, Contrast::Normal, "night dark - gray/gray");
}

void tst_ThemeLoader::choices()
{
    QFETCH(QString, family);
    QFETCH(Scheme, scheme);
    QFETCH(Contrast, contrast);
    QFETCH(QString, expected);
    const Config config;
    WarningLog log;
    // Chosen before or after the files are read, at once or one by one.
    WThemeLoader before;
    before.setColorScheme(scheme);
    before.setContrast(contrast);
    QVERIFY(before.load(config.path(), family));
    QCOMPARE(shown(), expected);
    QCOMPARE(before.themeName(family, scheme == Scheme::Dark, contrast == Contrast::High), app()->getThemeName());
    init();
    WThemeLoader after;
    QVERIFY(after.load(config.path()));
    QVERIFY(after.setTheme(family, scheme, contrast));
    QCOMPARE(shown(), expected);
    init();
    WThemeLoader single;
    QVERIFY(single.load(config.path()));
    QVERIFY(single.setProperty("colorScheme", QVariant::fromValue(scheme)));
    QVERIFY(single.setProperty("contrast", QVariant::fromValue(contrast)));
    QVERIFY(single.setProperty("family", family));
    QCOMPARE(shown(), expected);
    QCOMPARE(single.isDark(), app()->getIsDarkTheme());
    QCOMPARE(single.isHighContrast(), app()->getIsHighContrastTheme());
    QCOMPARE(log.take(), QStringList());
}

void tst_ThemeLoader::oneAnnouncement()
{
    const Config config;
    WThemeLoader loader;
    WarningLog log; // there is no color yet
    WFrame frame;
    frame.setCSS(QStringLiteral("$backgroundColors: a;"));
    QSignalSpy css(&frame, &WFrame::cssChanged);
    Announcements heard;
    QSignalSpy appearance(&loader, &WThemeLoader::appearanceChanged);
    // Whoever hears of a part finds the whole.
    QStringList seen;
    QObject context;
    const auto look = [&seen] {
        seen << shown();
    };
    connect(app(), &WApplication::themeChanged, &context, look);
    connect(app(), &WApplication::isDarkThemeChanged, &context, look);
    connect(app(), &WApplication::isHighContrastThemeChanged, &context, look);
    connect(app(), &IWApplication::colorSetsChanged, &context, look);

    QVERIFY(loader.load(config.path()));
    QCOMPARE(heard.take(), QStringLiteral("1 1 0 0"));
    QCOMPARE(css.count(), 1);
    QVERIFY(loader.load(config.path()));
    loader.setColorScheme(Scheme::Light);
    QCOMPARE(loader.family(), QStringLiteral("default")); // the first
    QVERIFY(loader.setTheme(QStringLiteral("default"), Scheme::FollowSystem, Contrast::Normal));
    QCOMPARE(heard.take(), QStringLiteral("0 0 0 0"));
    QCOMPARE(appearance.count(), 0);

    loader.setColorScheme(Scheme::Dark);
    QCOMPARE(heard.take(), QStringLiteral("1 1 1 0"));
    QVERIFY(loader.setTheme(QStringLiteral("plain"), Scheme::Light, Contrast::High));
    QCOMPARE(heard.take(), QStringLiteral("1 1 1 1"));
    QCOMPARE(css.count(), 3);
    QCOMPARE(appearance.count(), 2);
    QVERIFY(frame.styleSheet().contains(QColor(Qt::yellow).name().mid(1)));
    seen.removeDuplicates();
    QCOMPARE(seen, QStringList({LightTheme, DarkTheme, QStringLiteral("high - high yellow/blue")}));

    // What somebody else did to the colors is put right.
    app()->setColorSets({});
    heard.take();
    QVERIFY(loader.reload());
    QCOMPARE(heard.take(), QStringLiteral("1 0 0 0"));
}

void tst_ThemeLoader::slotsThatInterfere()
{
    const Config config;
    auto loader = std::make_unique<WThemeLoader>();
    QVERIFY(loader->load(config.path()));
    {
        QObject context;
        connect(app(), &WApplication::isDarkThemeChanged, &context, [&](bool isDark) {
            if (isDark)
                loader->setTheme(QStringLiteral("plain"), Scheme::Light, Contrast::Normal);
        });
        QSignalSpy highContrast(app(), &WApplication::isHighContrastThemeChanged);
        QVERIFY(loader->setTheme(QStringLiteral("default"), Scheme::Dark, Contrast::High));
        QCOMPARE(shown(), QStringLiteral("plain - - red/green"));
        QCOMPARE(loader->colorScheme(), Scheme::Light);
        QVERIFY(!loader->isDark());
        // Whoever goes by the signals ends where the application is.
        QCOMPARE(highContrast.count(), 2);
        QVERIFY(!highContrast.last().first().toBool());
    }
    QObject context;
    connect(app(), &WApplication::themeChanged, &context, [&loader] { loader.reset(); });
    loader->setColorScheme(Scheme::Dark);
    QVERIFY(!loader);
    QCOMPARE(shown(), QStringLiteral("plainDark dark - green/red"));
}

void tst_ThemeLoader::faults_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message"); // behind the path
    const auto row = [](const char *name, const char *file, const QByteArray &bytes, const char *message) {
        QTest::newRow(name) << QByteArray(file) << bytes << QString::fromUtf8(message);
    };
    const char *const light = "themes/light.json", *const colors = "colors.json",
                      *const manifest = "themes/themes.json";
    row("empty", light, "", ":1:1: illegal value");
    row("half written", light, "{\"tokens\": {\n  \"a\": {\"nor", ":2:13: unterminated string");
    row("a comma is missing", light, "{\"tokens\": {\n\"a\": {\"normal\": \"white\"}\n\"b\": {}}}",
        ":3:2: unterminated object");
    row("no object", light, "[1]", ": the root is not an object");
    row("no tokens", light, "\n {}", ":2:2: there is no object \"tokens\" with color sets");
    row("an unknown color", light, themeOf("whit"), ":2:19: \"a.normal\": there is no color \"whit\"");
    row("a color of another type", light, "{\"tokens\": {\"a\": {\n  \"normal\": \"white\",\n\"hovered\" : [5]}}}",
        ":3:13: \"a.hovered\" is the name of a color, not [5]");
    row("a set of another type", light, "{\"tokens\": {\n\"ä\": \"white\"}}",
        ":2:6: the color set \"ä\" has no color for any state");
    row("columns are characters", light, "{\"tokens\": {\"äöü\": {\"normal\": \"é\"}}}",
        ":1:31: \"äöü.normal\": there is no color \"é\"");
    row("the first of several", light,
        "{\"tokens\": {\"z\": {\"normal\": \"\\\"}\"},\n\"b\": {\"normal\": 1, \"pressed\": \"x\"}}}",
        ":1:29: \"z.normal\": there is no color \"\"}\" (and 2 more)");
    QByteArray many;
    for (int i = 0; i < 30000; ++i) // finding the place of each would take minutes
        many += ",\"k" + QByteArray::number(i).rightJustified(5, '0') + "\":{\"normal\":\"x\"}";
    row("nothing but faults", light, "{\"tokens\":{" + many.mid(1) + "}}",
        ":1:31: \"k00000.normal\": there is no color \"x\" (and 29999 more)");
    row("the opposite theme", "themes/dark.json", themeOf("x"), ":2:19: \"a.normal\": there is no color \"x\"");
    row("a theme that is not shown", "themes/high.json", themeOf("x"), ":2:19: \"a.normal\": there is no color \"x\"");
    row("no colors", colors, "{}", ":1:1: there is no array \"colors\"");
    row("no variations", colors, "{\"colors\": [\n{\"variations\": []},\n{}]}",
        ":3:1: there is no array \"variations\"");
    row("a component out of range", colors,
        "{\"colors\": [{\"variations\": [{\"name\": \"white\",\n\"rgba\": {\"r\": 256, \"g\": 0, \"b\": 0, \"a\": "
        "1}}]}]}",
        ":2:9: \"white\" needs \"r\", \"g\" and \"b\" from 0 to 255 and \"a\" from 0 to 1");
    row("a name of another type", colors,
        "{\"colors\": [{\"variations\": [{\"name\": 7, \"alias\": \"x\", "
        "\"rgba\": {\"r\": 1, \"g\": 0, \"b\": 0, \"a\": 1}}]}]}",
        ":1:38: \"name\" is a text, not 7");
    row("a color without a name", colors, "{\"colors\": [{\"variations\": [{}]}]}", ":1:29: a color without a name");
    row("a color that stands for nothing", colors,
        "{\"colors\": [{\"variations\": [\n{\"name\": \"white\", \"alias\": \"wite\"}]}]}",
        ":2:28: \"white\" stands for \"wite\", which is no color");
    row("no families", manifest, "{\"families\": []}", ":1:14: there is no array \"families\" with theme families");
    row("a family without a name", manifest, "{\"families\": [{\"light\": \"light.json\"}]}",
        ":1:15: a theme family without a \"name\"");
    row("a family without files", manifest, "{\"families\": [{\"name\": \"default\"}]}",
        ":1:15: the theme family \"default\" has neither \"light\" nor \"dark\"");
    row("a file of another type", manifest,
        "{\"families\": [{\"name\": \"default\", \"light\": 3, \"dark\": \"dark.json\"}]}",
        ":1:44: \"light\" is a text");
    row("two families of one name", manifest,
        "{\"families\": [{\"name\": \"default\", \"light\": \"light.json\"},\n{\"name\": \"default\"}]}",
        ":2:10: a second theme family \"default\"");
    row("the family is gone", manifest, "{\"families\": [{\"name\": \"plain\", \"light\": \"light.json\"}]}",
        ": there is no theme family \"default\"; there are: plain");
}

void tst_ThemeLoader::faults()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    Config config;
    const QByteArray good = config.read(file);
    const QString expected = config.path(file) + message;
    WarningLog log;
    WThemeLoader loader;
    QVERIFY(loader.load(config.path()));
    Announcements heard;
    QSignalSpy failed(&loader, &WThemeLoader::loadFailed);
    QSignalSpy loaded(&loader, &WThemeLoader::themeLoaded);

    config.write(file, bytes);
    for (const bool isSameFolder : {true, false}) {
        QVERIFY(!(isSameFolder ? loader.reload() : loader.load(config.path(), QStringLiteral("default"))));
        QCOMPARE(log.take(), QStringList(QStringLiteral("WThemeLoader - ") + expected));
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.takeFirst().constFirst().toString(), expected);
        QCOMPARE(loader.lastError(), expected);
    }
    loader.setColorScheme(Scheme::Dark); // the last good files serve on
    QCOMPARE(shown(), DarkTheme);
    loader.setColorScheme(Scheme::Light);
    QCOMPARE(shown(), LightTheme);
    QCOMPARE(loader.families().size(), 3);
    QCOMPARE(heard.take(), QStringLiteral("2 2 2 0"));
    QCOMPARE(loaded.count(), 0);

    config.write(file, good);
    QVERIFY(loader.reload());
    QCOMPARE(loader.lastError(), QString());
    QCOMPARE(loaded.count(), 1);
    QCOMPARE(heard.take(), QStringLiteral("0 0 0 0"));
    QCOMPARE(log.take(), QStringList());
}

void tst_ThemeLoader::refusedCalls()
{
    const Config config;
    WarningLog log;
    WThemeLoader loader;
    QVERIFY(!loader.reload());
    QVERIFY(!loader.setTheme(QStringLiteral("default"), Scheme::Dark, Contrast::High));
    QCOMPARE(log.take().size(), 2);
    QVERIFY(!loader.load(config.path("nowhere")));
    QCOMPARE(log.take(),
             QStringList(QStringLiteral("WThemeLoader - %1: No such file or directory")
                             .arg(config.path("nowhere/themes/themes.json"))));
    QVERIFY(!loader.load(config.path(), QStringLiteral("Default")));
    QVERIFY(loader.families().isEmpty() && loader.family().isEmpty());
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(shown(), QStringLiteral(" - - none/none"));

    QVERIFY(loader.load(config.path()));
    Announcements heard;
    Scheme meanwhile = Scheme::Light;
    connect(&loader, &WThemeLoader::loadFailed, &loader, [&] { meanwhile = loader.colorScheme(); });
    QVERIFY(!loader.setTheme(QStringLiteral("other"), Scheme::Dark, Contrast::High));
    QCOMPARE(meanwhile, Scheme::FollowSystem);
    QVERIFY(!loader.load(config.path("themes")));
    QCOMPARE(log.take().size(), 2);
    loader.setColorScheme(Scheme(3));
    loader.setContrast(Contrast(-1));
    loader.setMotion(Motion(3));
    QVERIFY(!loader.setTheme(QStringLiteral("plain"), Scheme(7), Contrast::High));
    QCOMPARE(log.take().size(), 4);
    QCOMPARE(loader.colorScheme(), Scheme::FollowSystem);
    QCOMPARE(loader.contrast(), Contrast::FollowSystem);
    QCOMPARE(loader.family(), QStringLiteral("default"));
    QCOMPARE(heard.take(), QStringLiteral("0 0 0 0"));
    QCOMPARE(loader.lastError(), QString()); // all is well with what is shown
    // The folder that was refused is not that of the next call.
    QVERIFY(loader.reload());
    QCOMPARE(shown(), LightTheme);
}

void tst_ThemeLoader::inlineColors()
{
    Config config;
    const QByteArray theme = R"({"tokens": {"a": {"normal": {"r": 255, "g": 0, "b": 0, "a": %1}}}})";
    config.write("other/own.json", R"({"families": [{"name": "own", "light": "../red.json"}]})");
    config.write("red.json", QByteArray(theme).replace("%1", "1"));
    WarningLog log;
    WThemeLoader loader;
    QVERIFY(loader.loadFiles(QString(), config.path("other/own.json"), QStringLiteral("own")));
    QCOMPARE(shown(), QStringLiteral("red - - red/red"));
    config.write("red.json", QByteArray(theme).replace("%1", "2"));
    QVERIFY(!loader.reload());
    QCOMPARE(
        log.take(),
        QStringList(QStringLiteral("WThemeLoader - %1:1:29: \"a.normal\" needs \"r\", \"g\" and \"b\" from 0 to 255 "
                                   "and \"a\" from 0 to 1")
                        .arg(config.path("red.json"))));
}

void tst_ThemeLoader::changesOnDisk_data()
{
    QTest::addColumn<Change>("prepare");
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change, const Change &prepare = {}) {
        QTest::newRow(name) << prepare << change;
    };
    row("written in place",
        [](Config &config, const char *color) { config.write("themes/light.json", themeOf(color)); });
    row("replaced", [](Config &config, const char *color) { config.replace("themes/light.json", themeOf(color)); });
    row("removed and made again", [](Config &config, const char *color) {
        config.remove("themes/light.json");
        config.write("themes/light.json", themeOf(color));
    });
    row("the folder is replaced", [](Config &config, const char *color) {
        config.copyFolder("themes", "new");
        config.write("new/light.json", themeOf(color));
        config.rename("themes", color);
        config.rename("new", "themes");
    });
    row("a folder further up is replaced", [](Config &config, const char *color) {
        config.copyFolder(".", "../new");
        config.write("../new/themes/light.json", themeOf(color));
        config.rename(".", QByteArray("../old-") + color);
        config.rename("../new", ".");
    });
    row("the folder is removed and made again", [](Config &config, const char *color) {
        config.copyFolder("themes", "new");
        config.remove("themes");
        config.copyFolder("new", "themes");
        config.write("themes/light.json", themeOf(color));
        config.remove("new");
    });
    row(
        "another link in place of a link to the file",
        [](Config &config, const char *color) {
            const QByteArray name = QByteArray(color) + ".json";
            config.write(name, themeOf(color));
            config.link("../" + name, "themes/light.json");
        },
        [](Config &config, const char *) {
            config.rename("themes/light.json", "linked.json");
            config.link("../linked.json", "themes/light.json");
        });
    row(
        "what a link leads to is replaced",
        [](Config &config, const char *color) { config.replace("elsewhere/linked.json", themeOf(color)); },
        [](Config &config, const char *) {
            QDir().mkpath(config.path("elsewhere"));
            config.rename("themes/light.json", "elsewhere/linked.json");
            config.link("../elsewhere/linked.json", "themes/light.json");
        });
    row(
        "another link to the folder",
        [](Config &config, const char *color) {
            config.copyFolder("themes", color);
            config.write(QByteArray(color) + "/light.json", themeOf(color));
            config.link(color, "themes");
        },
        [](Config &config, const char *) {
            config.rename("themes", "first");
            config.link("first", "themes");
        });
    row("the manifest names another file", [](Config &config, const char *color) {
        const QByteArray name = QByteArray("light-") + color + ".json";
        config.write("themes/" + name, themeOf(color));
        QByteArray manifest = config.read("themes/themes.json");
        manifest.replace(manifest.indexOf("light-") > 0 ? "light-red.json" : "light.json", name);
        config.replace("themes/themes.json", manifest);
    });
}

void tst_ThemeLoader::changesOnDisk()
{
    QFETCH(Change, prepare);
    QFETCH(Change, change);
    Config config;
    if (prepare)
        prepare(config, nullptr);
    WThemeLoader loader;
    QVERIFY(loader.load(config.path()));
    loader.setWatching(true);
    QCOMPARE(colorOf(app()->getColorSets()), QStringLiteral("white"));
    Announcements heard;
    // More than once: what was watched first may be gone.
    for (const char *color : {"red", "green"}) {
        change(config, color);
        QTRY_COMPARE(colorOf(app()->getColorSets()), QLatin1String(color));
        QCOMPARE(heard.colors.count(), 1);
        heard.take();
    }
    QCOMPARE(loader.lastError(), QString());
    loader.setWatching(false);
    change(config, "pink");
    QVERIFY(!QTest::qWaitFor([] { return colorOf(app()->getColorSets()) == QLatin1String("pink"); }, 300));
}

void tst_ThemeLoader::brokenForAWhile()
{
    Config config;
    WarningLog log;
    WThemeLoader loader;
    loader.setWatching(true);
    QVERIFY(loader.load(config.path()));
    QSignalSpy failed(&loader, &WThemeLoader::loadFailed);
    QSignalSpy loaded(&loader, &WThemeLoader::themeLoaded);
    Announcements heard;

    config.write("themes/light.json", themeOf("red").left(20));
    QTRY_COMPARE(failed.count(), 1);
    // Something else that is touched, and the same fault written again, are no news.
    config.write("themes/unrelated.json", "{");
    config.replace("themes/light.json", themeOf("red").left(20));
    config.remove("themes/dark.json");
    QVERIFY(!QTest::qWaitFor([&] { return failed.count() > 1; }, 300));
    QCOMPARE(log.take().size(), 1);
    config.write("themes/light.json", themeOf("red"));
    QTRY_COMPARE(loader.lastError(), config.path("themes/dark.json") + QStringLiteral(": No such file or directory"));
    QCOMPARE(shown(), LightTheme);
    QCOMPARE(heard.take(), QStringLiteral("0 0 0 0"));

    config.write("themes/dark.json", themeOf("black"));
    QTRY_COMPARE(loaded.count(), 1);
    QCOMPARE(shown(), QStringLiteral("light - - red/black"));
    QCOMPARE(heard.take(), QStringLiteral("1 0 0 0"));
    // Broken, and again as before: the fault is gone, though no color is another.
    config.write("colors.json", "");
    QTRY_COMPARE(loader.lastError(), config.path("colors.json") + QStringLiteral(":1:1: illegal value"));
    config.write("colors.json", Config().read("colors.json"));
    QTRY_COMPARE(loader.lastError(), QString());
    QCOMPARE(loaded.count(), 2);
    QCOMPARE(heard.take(), QStringLiteral("0 0 0 0"));
}

void tst_ThemeLoader::firstLoadFails()
{
    Config config;
    config.rename(".", "../away");
    WarningLog log;
    WThemeLoader loader;
    loader.setWatching(true);
    QVERIFY(!loader.load(config.path()));
    QCOMPARE(log.take().size(), 1);
    QSignalSpy family(&loader, &WThemeLoader::familyChanged);
    config.rename("../away", ".");
    QTRY_COMPARE(shown(), LightTheme);
    QCOMPARE(loader.family(), QStringLiteral("default"));
    QCOMPARE(family.count(), 1);
    QCOMPARE(log.take(), QStringList());
}

void tst_ThemeLoader::changesThatDoNotRest()
{
    Config config;
    WThemeLoader loader;
    QVERIFY(loader.load(config.path()));
    loader.setWatching(true);
    QSignalSpy loaded(&loader, &WThemeLoader::themeLoaded);
    int writes = 0;
    QTimer writer;
    connect(&writer, &QTimer::timeout, this,
            [&] { config.replace("themes/light.json", themeOf(++writes % 2 ? "red" : "green")); });
    writer.start(20);
    QTRY_VERIFY(!loaded.isEmpty());
    QVERIFY2(writes > 10, qPrintable(QString::number(writes))); // and not for each of them
}

void tst_ThemeLoader::hostsAnimations()
{
    WThemeLoader loader;
    QSignalSpy changed(app(), &IWApplication::animationsDisabledChanged);
    QSignalSpy appearance(&loader, &WThemeLoader::appearanceChanged);
    loader.setMotion(Motion::Reduced); // needs no files
    QVERIFY(app()->animationsDisabled() && loader.isReducedMotion());
    loader.setMotion(Motion::FollowSystem); // nobody wants it any more
    QVERIFY(!app()->animationsDisabled());
    QCOMPARE(changed.count(), 2);
    QCOMPARE(appearance.count(), 2);

    const Config config;
    app()->setAnimationsDisabled(true);
    QVERIFY(loader.load(config.path()));
    loader.setColorScheme(Scheme::Dark);
    QVERIFY(app()->animationsDisabled());
    loader.setMotion(Motion::Full); // the host's last word
    QVERIFY(!app()->animationsDisabled() && !loader.isReducedMotion());
    app()->setAnimationsDisabled(true);
    loader.setColorScheme(Scheme::Light);
    QVERIFY(app()->animationsDisabled());
    loader.setMotion(Motion::Full);
    QVERIFY(!app()->animationsDisabled());
}

void tst_ThemeLoader::desktop()
{
#ifndef UIELEMENTS_DBUS
    QSKIP("built without QtDBus");
#else
    const Config config;
    Desktop desktop;
    desktop.set("color-scheme", DesktopDark);
    desktop.set("contrast", 1);
    auto system = std::make_unique<WSystemAppearance>();
    WThemeLoader loader;
    loader.setSystemAppearance(system.get());
    QVERIFY(loader.load(config.path())); // the answer has yet to come
    QCOMPARE(shown(), LightTheme);
    Announcements heard;
    QTRY_VERIFY(system->isKnown());
    QCOMPARE(shown(), QStringLiteral("highDark dark high blue/yellow"));
    QCOMPARE(heard.take(), QStringLiteral("1 1 1 1"));

    // The host's word counts, and what the desktop wants stays readable.
    loader.setContrast(Contrast::Normal);
    QCOMPARE(shown(), DarkTheme);
    loader.setColorScheme(Scheme::Light);
    QCOMPARE(shown(), LightTheme);
    QVERIFY(loader.systemAppearance()->highContrast());
    heard.take();
    desktop.set("color-scheme", DesktopLight);
    QTRY_COMPARE(system->colorScheme(), WSystemAppearance::ColorScheme::Light);
    desktop.set("color-scheme", DesktopDark);
    QTRY_COMPARE(system->colorScheme(), WSystemAppearance::ColorScheme::Dark);
    QCOMPARE(heard.take(), QStringLiteral("0 0 0 0"));
    loader.setColorScheme(Scheme::FollowSystem);
    QCOMPARE(shown(), DarkTheme);
    desktop.set("color-scheme", DesktopLight);
    QTRY_COMPARE(shown(), LightTheme);

    loader.setMotion(Motion::FollowSystem); // what earlier hosts of this process set counts no more
    QVERIFY(!app()->animationsDisabled());
    desktop.set("reduced-motion", 1);
    QTRY_VERIFY(app()->animationsDisabled());
    app()->setAnimationsDisabled(false);
    desktop.set("reduced-motion", 0);
    QTRY_VERIFY(!system->reducedMotion());
    desktop.set("reduced-motion", 1);
    QTRY_VERIFY(system->reducedMotion());
    QVERIFY(!app()->animationsDisabled());
    loader.setMotion(Motion::FollowSystem);
    QVERIFY(app()->animationsDisabled());
    loader.setMotion(Motion::Full);
    QVERIFY(!app()->animationsDisabled());
    loader.setMotion(Motion::FollowSystem);

    // A desktop that nobody asks any more has no say.
    desktop.set("color-scheme", DesktopDark);
    QTRY_COMPARE(shown(), DarkTheme);
    system.reset();
    QCOMPARE(shown(), LightTheme);
    QVERIFY(!app()->animationsDisabled());
#endif
}

W_TEST_MAIN(tst_ThemeLoader)
#include "tst_theme_loader.moc"

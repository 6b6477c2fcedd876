#include <UiElements/theme/WThemeLoader.h>

#include "ThemeFilesManifest_p.h"
#include "ThemeFilesPlace_p.h"
#include "WThemeLoaderWatch_p.h"

#include <UiElements/app/IWApplication_p.h>
#include <UiElements/app/WApplication.h>
#include <UiElements/app/WSystemAppearance.h>

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMap>
#include <QPointer>

#include <functional>

namespace {

/// What to read.
struct Request
{
    QString colorFile;
    QString manifestFile;
    QString family;
};

/// Files, each read once, so that whatever comes of them is of one moment.
class FileSet
{
public:
    struct File
    {
        bool isRead = false;
        QByteArray bytes;
        QString reason;
    };

    const File &at(const QString &path)
    {
        auto found = m_files.find(path);
        if (found == m_files.end()) {
            File file;
            file.isRead = ThemeFiles::readBytes(path, &file.bytes, &file.reason);
            found = m_files.insert(path, file);
        }
        return *found;
    }
    QStringList paths() const { return m_files.keys(); }
    QByteArray digest() const
    {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (auto it = m_files.begin(); it != m_files.end(); ++it) {
            hash.addData((it.key() + it->reason).toUtf8() + '\0' + QByteArray::number(it->bytes.size()) + '\0');
            hash.addData(it->bytes);
        }
        return hash.result();
    }

private:
    QMap<QString, File> m_files;
};

/// What was read, whole and without a fault.
struct Themes
{
    ThemeManifest manifest;
    QHash<QString, WColorSets> sets; // by file, as the manifest names it

    const ThemeManifest::Family *family = nullptr; // of the manifest
};

class Reading
{
public:
    explicit Reading(FileSet *files)
        : m_files(files)
    {
    }

    bool read(const Request &request, Themes *themes)
    {
        QJsonObject root;
        if (!parse(request.manifestFile, &root))
            return false;
        themes->manifest = ThemeManifest::read(root, &m_faults);
        if (hasFaults(request.manifestFile))
            return false;
        themes->family =
            request.family.isEmpty() ? &themes->manifest.families().first() : themes->manifest.find(request.family);
        if (!themes->family) {
            m_error =
                QStringLiteral("%1: there is no theme family \"%2\"; there are: %3")
                    .arg(request.manifestFile, request.family, themes->manifest.names().join(QStringLiteral(", ")));
            return false;
        }
        WPalette palette;
        if (!request.colorFile.isEmpty()) {
            if (!parse(request.colorFile, &root))
                return false;
            palette = ThemeFiles::readPalette(root, &m_faults);
            if (hasFaults(request.colorFile))
                return false;
        }
        const QDir folder = QFileInfo(request.manifestFile).dir();
        const QStringList files = themes->manifest.filesOf(*themes->family);
        for (const QString &file : files) {
            const QString path = QDir::cleanPath(folder.filePath(file));
            if (!parse(path, &root))
                return false;
            themes->sets.insert(file, ThemeFiles::readColorSets(root, palette, &m_faults));
            if (hasFaults(path))
                return false;
        }
        return true;
    }
    QString error() const { return m_error; }

private:
    bool parse(const QString &path, QJsonObject *root)
    {
        const FileSet::File &file = m_files->at(path);
        QString reason = file.reason;
        int offset = -1;
        if (file.isRead && ThemeFiles::parseObject(file.bytes, root, &reason, &offset))
            return true;
        setError(path, offset, reason);
        return false;
    }
    bool hasFaults(const QString &path)
    {
        if (m_faults.empty())
            return false;
        // The first in the file, because names of color sets come in another order. Of very many, one among these will
        // do: to find a place takes reading the file.
        constexpr std::size_t enough = 50;
        const QByteArray &bytes = m_files->at(path).bytes;
        int first = bytes.size() + 1;
        QString text;
        for (std::size_t i = 0; i < std::min<std::size_t>(m_faults.size(), enough); ++i) {
            const int offset = ThemeFilesPlace::offsetOf(bytes, m_faults[i].keys);
            if (offset < first) {
                first = offset;
                text = m_faults[i].text;
            }
        }
        if (m_faults.size() > 1)
            text += QStringLiteral(" (and %1 more)").arg(m_faults.size() - 1);
        setError(path, first, text);
        return true;
    }
    void setError(const QString &path, int offset, const QString &text)
    {
        QString where = path;
        if (offset >= 0) {
            const auto place = ThemeFilesPlace::lineAndColumn(m_files->at(path).bytes, offset);
            where += QStringLiteral(":%1:%2").arg(place.line).arg(place.column);
        }
        m_error = where + QLatin1String(": ") + text;
    }

    FileSet *m_files;
    ThemeFaults m_faults;
    QString m_error;
};

template <typename Enum>
bool isOneOf(Enum value, Enum last)
{
    if (int(value) >= 0 && value <= last)
        return true;
    qWarning() << "WThemeLoader - Invalid value:" << int(value);
    return false;
}

WApplication *application()
{
    return qobject_cast<WApplication *>(QCoreApplication::instance());
}

} // namespace

class WThemeLoader::Private
{
public:
    explicit Private(WThemeLoader *loader)
        : q(loader)
        , watch(loader)
    {
    }

    bool wantsDark() const;
    bool wantsHighContrast() const;
    enum Reason { Asked, AskedAgain, Noticed }; ///< why files are read
    /// Calls `accept`, where it is given, once the files are read without a fault.
    bool take(const Request &wanted, Reason why, const std::function<void()> &accept = {});
    bool fail(const QString &message, bool isOurs);
    void setLastError(const QString &message);
    void onFilesChanged();
    void apply();
    void applyOnce();
    void applyMotion();
    void show(WApplication *app, const ThemeManifest::Theme &theme);

    WThemeLoader *const q;
    ColorScheme colorScheme = ColorScheme::FollowSystem;
    Contrast contrast = Contrast::FollowSystem;
    Motion motion = Motion::FollowSystem;
    QPointer<WSystemAppearance> system;
    bool hasSetMotion = false;

    Request request;
    Themes themes;
    bool isLoaded = false;
    ThemeManifest::Theme shown;
    QString lastError;

    bool isWatching = false;
    ThemeFileWatch watch;
    QStringList files; // that the last reading took, or failed for
    QByteArray digest; // of what they held

    bool isApplying = false;
    bool appliesAgain = false;
};

WThemeLoader::WThemeLoader(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    connect(&d->watch, &ThemeFileWatch::changed, this, [this] { d->onFilesChanged(); });
    if (const auto *app = qobject_cast<IWApplication *>(QCoreApplication::instance()))
        connect(app, &IWApplication::animationsDisabledChanged, this, &WThemeLoader::appearanceChanged);
}

WThemeLoader::~WThemeLoader() = default;

bool WThemeLoader::load(const QString &configFolder, const QString &family)
{
    const QDir folder(configFolder);
    return loadFiles(folder.filePath(QStringLiteral("colors.json")),
                     folder.filePath(QStringLiteral("themes/themes.json")), family);
}

bool WThemeLoader::loadFiles(const QString &colorFile, const QString &manifestFile, const QString &family)
{
    const auto absolute = [](const QString &path) {
        return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    };
    return d->take({absolute(colorFile), absolute(manifestFile), family}, Private::Asked);
}

bool WThemeLoader::reload()
{
    if (d->request.manifestFile.isEmpty()) {
        qWarning("WThemeLoader - Nothing was loaded yet");
        return false;
    }
    return d->take(d->request, Private::AskedAgain);
}

bool WThemeLoader::Private::take(const Request &wanted, Reason why, const std::function<void()> &accept)
{
    if (!WApplication::find())
        return false;
    FileSet read;
    Reading reading(&read);
    Themes next;
    const bool isGood = reading.read(wanted, &next);
    const bool isOurs = isGood || why != Asked || !isLoaded; // the request that a watcher goes on with
    if (isOurs) {
        request = wanted;
        if (isGood)
            request.family = next.family->name;
        files = read.paths(); // up to the fault, where there is one: nothing behind it can mend it
        digest = read.digest();
        if (isWatching)
            watch.setFiles(files);
    }
    if (!isGood) {
        // The same fault is no news: something else has changed.
        return why == Noticed && reading.error() == lastError ? false : fail(reading.error(), isOurs);
    }

    const auto namesOf = [](const ThemeManifest &manifest) {
        QStringList names;
        for (const ThemeManifest::Family &family : manifest.families())
            names << family.name << family.title;
        return names;
    };
    const QString oldFamily = isLoaded ? themes.family->name : QString();
    const bool hasOtherFamilies = namesOf(themes.manifest) != namesOf(next.manifest);
    themes = std::move(next);
    themes.family = themes.manifest.find(request.family);
    isLoaded = true;
    if (accept)
        accept();

    const QPointer<WThemeLoader> self(q);
    apply();
    if (self && hasOtherFamilies)
        Q_EMIT q->familiesChanged();
    if (self && oldFamily != themes.family->name)
        Q_EMIT q->familyChanged();
    if (self)
        setLastError(QString());
    if (self)
        Q_EMIT q->themeLoaded();
    return true;
}

bool WThemeLoader::Private::fail(const QString &message, bool isOurs)
{
    qWarning().noquote() << "WThemeLoader -" << message;
    const QPointer<WThemeLoader> self(q);
    // Of files that are not shown nobody would ever hear that they are well again.
    if (isOurs)
        setLastError(message);
    if (self)
        Q_EMIT q->loadFailed(message);
    return false;
}

void WThemeLoader::Private::setLastError(const QString &message)
{
    if (std::exchange(lastError, message) != message)
        Q_EMIT q->lastErrorChanged();
}

// Most of what is noticed is somebody else's in a folder on the way.
void WThemeLoader::Private::onFilesChanged()
{
    FileSet now;
    for (const QString &path : qAsConst(files))
        now.at(path);
    if (now.digest() != digest)
        take(request, Noticed);
}

bool WThemeLoader::Private::wantsDark() const
{
    return colorScheme == ColorScheme::Dark
        || (colorScheme == ColorScheme::FollowSystem && system
            && system->colorScheme() == WSystemAppearance::ColorScheme::Dark);
}

bool WThemeLoader::Private::wantsHighContrast() const
{
    return contrast == Contrast::High || (contrast == Contrast::FollowSystem && system && system->highContrast());
}

// Its signals reach code that may ask for something else, or end the loader.
void WThemeLoader::Private::apply()
{
    if (isApplying) {
        appliesAgain = true;
        return;
    }
    isApplying = true;
    const QPointer<WThemeLoader> self(q);
    do {
        appliesAgain = false;
        applyOnce();
        if (!self)
            return;
    } while (appliesAgain);
    isApplying = false;
}

void WThemeLoader::Private::applyOnce()
{
    const QPointer<WThemeLoader> self(q);
    applyMotion();
    WApplication *app = application();
    if (!self || !isLoaded || !app)
        return;
    const ThemeManifest::Theme before =
        std::exchange(shown, themes.manifest.theme(*themes.family, wantsDark(), wantsHighContrast()));
    const bool isOther = before.dark != shown.dark || before.highContrast != shown.highContrast;
    show(app, shown);
    if (self && isOther)
        Q_EMIT q->appearanceChanged();
}

void WThemeLoader::Private::applyMotion()
{
    WApplication *app = application();
    if (!app || IWApplicationPrivate::get(app)->hostSetAnimations)
        return;
    const bool isOpen = motion == Motion::FollowSystem && !system;
    if (isOpen && !hasSetMotion)
        return;
    hasSetMotion = !isOpen;
    IWApplicationPrivate::changeAnimationsDisabled(
        app, motion == Motion::Reduced || (motion == Motion::FollowSystem && system && system->reducedMotion()));
}

// Everything is in place before anybody hears of it, and elements take new colors once.
void WThemeLoader::Private::show(WApplication *app, const ThemeManifest::Theme &theme)
{
    const ThemeManifest::Theme opposite = themes.manifest.theme(*themes.family, !theme.dark, theme.highContrast);
    const WColorSets &sets = *themes.sets.constFind(theme.file);
    const WColorSets &inverted = *themes.sets.constFind(opposite.file);
    IWApplicationPrivate *data = IWApplicationPrivate::get(static_cast<IWApplication *>(app));
    const bool isDark = theme.dark, isHighContrast = theme.highContrast;
    const bool isOtherBrightness = std::exchange(data->isDarkTheme, isDark) != isDark;
    const bool isOtherContrast = std::exchange(data->isHighContrastTheme, isHighContrast) != isHighContrast;
    const bool hasOtherColors = isOtherBrightness || isOtherContrast || data->colorSets.sets() != sets
        || data->invertedColorSets.sets() != inverted;
    data->colorSets.setSets(sets);
    data->invertedColorSets.setSets(inverted);

    app->setTheme(theme.name());
    if (isOtherBrightness)
        Q_EMIT app->isDarkThemeChanged(isDark);
    if (isOtherContrast)
        Q_EMIT app->isHighContrastThemeChanged(isHighContrast);
    if (hasOtherColors)
        Q_EMIT app->colorSetsChanged();
}

QVector<WThemeLoader::Family> WThemeLoader::families() const
{
    QVector<Family> families;
    for (const ThemeManifest::Family &family : d->themes.manifest.families())
        families.append({family.name, family.title});
    return families;
}

QString WThemeLoader::themeName(const QString &family, bool dark, bool highContrast) const
{
    const ThemeManifest::Family *found = d->themes.manifest.find(family);
    return found ? d->themes.manifest.theme(*found, dark, highContrast).name() : QString();
}

QString WThemeLoader::family() const
{
    return d->isLoaded ? d->themes.family->name : QString();
}

void WThemeLoader::setFamily(const QString &family)
{
    setTheme(family, d->colorScheme, d->contrast);
}

WThemeLoader::ColorScheme WThemeLoader::colorScheme() const
{
    return d->colorScheme;
}

void WThemeLoader::setColorScheme(ColorScheme scheme)
{
    if (!isOneOf(scheme, ColorScheme::Dark) || std::exchange(d->colorScheme, scheme) == scheme)
        return;
    const QPointer<WThemeLoader> self(this);
    d->apply();
    if (self)
        Q_EMIT colorSchemeChanged();
}

WThemeLoader::Contrast WThemeLoader::contrast() const
{
    return d->contrast;
}

void WThemeLoader::setContrast(Contrast contrast)
{
    if (!isOneOf(contrast, Contrast::High) || std::exchange(d->contrast, contrast) == contrast)
        return;
    const QPointer<WThemeLoader> self(this);
    d->apply();
    if (self)
        Q_EMIT contrastChanged();
}

bool WThemeLoader::setTheme(const QString &family, ColorScheme scheme, Contrast contrast)
{
    if (!isOneOf(scheme, ColorScheme::Dark) || !isOneOf(contrast, Contrast::High))
        return false;
    if (!d->isLoaded) {
        qWarning("WThemeLoader - Nothing was loaded yet");
        return false;
    }
    const ColorScheme oldScheme = d->colorScheme;
    const Contrast oldContrast = d->contrast;
    const auto choose = [this, scheme, contrast] {
        d->colorScheme = scheme;
        d->contrast = contrast;
    };
    const QPointer<WThemeLoader> self(this);
    if (family == d->themes.family->name) {
        choose();
        d->apply();
    } else if (!d->take({d->request.colorFile, d->request.manifestFile, family}, Private::Asked, choose)) {
        return false;
    }
    if (self && oldScheme != scheme)
        Q_EMIT colorSchemeChanged();
    if (self && oldContrast != contrast)
        Q_EMIT contrastChanged();
    return true;
}

WThemeLoader::Motion WThemeLoader::motion() const
{
    return d->motion;
}

void WThemeLoader::setMotion(Motion motion)
{
    if (!isOneOf(motion, Motion::Reduced))
        return;
    const bool isOther = std::exchange(d->motion, motion) != motion;
    if (WApplication *app = application()) {
        IWApplicationPrivate *data = IWApplicationPrivate::get(static_cast<IWApplication *>(app));
        // Given back: also where nobody has a wish now, the host's old word no longer counts.
        d->hasSetMotion = std::exchange(data->hostSetAnimations, false) || d->hasSetMotion;
    }
    const QPointer<WThemeLoader> self(this);
    d->apply();
    if (self && isOther)
        Q_EMIT motionChanged();
}

WSystemAppearance *WThemeLoader::systemAppearance() const
{
    return d->system;
}

void WThemeLoader::setSystemAppearance(WSystemAppearance *system)
{
    if (d->system == system)
        return;
    if (d->system)
        disconnect(d->system, nullptr, this, nullptr);
    d->system = system;
    if (system) {
        const auto follow = [this] {
            d->apply();
        };
        connect(system, &WSystemAppearance::knownChanged, this, follow);
        connect(system, &WSystemAppearance::colorSchemeChanged, this, follow);
        connect(system, &WSystemAppearance::highContrastChanged, this, follow);
        connect(system, &WSystemAppearance::reducedMotionChanged, this, follow);
        connect(system, &QObject::destroyed, this, follow);
    }
    d->apply();
}

bool WThemeLoader::isDark() const
{
    return d->shown.dark;
}

bool WThemeLoader::isHighContrast() const
{
    return d->shown.highContrast;
}

bool WThemeLoader::isReducedMotion() const
{
    const WApplication *app = application();
    return app && app->animationsDisabled();
}

bool WThemeLoader::isWatching() const
{
    return d->isWatching;
}

void WThemeLoader::setWatching(bool watching)
{
    if (std::exchange(d->isWatching, watching) == watching)
        return;
    d->watch.setFiles(watching ? d->files : QStringList());
    Q_EMIT watchingChanged();
}

QString WThemeLoader::lastError() const
{
    return d->lastError;
}

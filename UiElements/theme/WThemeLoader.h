#pragma once

#include <UiElements/uielements_export.h>

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class WSystemAppearance;

/// Reads a color file and the themes of a family, and shows in the application what host and desktop want of them.
///
/// One call of load() does for most programs. From then on the loader sets the application's color sets, inverted
/// color sets, theme name (that of the theme file, "defaultDark"), dark flag and high-contrast flag, and whatever
/// changes them is announced once: everything is in place before the first signal, and colorSetsChanged() is the last.
/// What is equal is not announced. The color sets and flags are not to be set by the host besides. GUI thread only,
/// with an application object.
///
/// The manifest
/// ------------
/// `{"families": [{"name": ..., "title": ..., "light": ..., "dark": ..., "highContrast": ...,
/// "highContrastDark": ...}]}`. The last four are theme files, relative to the manifest. A family needs "light" or
/// "dark", and where only one is there it is shown for both. Without high-contrast files a family takes those of the
/// first family that has some; without any its ordinary theme is shown, and isHighContrast() is false.
///
/// Faults
/// ------
/// A file in which anything is wrong is not taken at all: a color that does not exist, a value of the wrong type.
/// Everything stays as it was, and there is one warning and loadFailed(), with file, line and column of the first
/// fault. (WThemeUtils reads such files as far as it can.) Themes of other families are not read.
class UIELEMENTS_EXPORT WThemeLoader : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString family READ family WRITE setFamily NOTIFY familyChanged)
    Q_PROPERTY(ColorScheme colorScheme READ colorScheme WRITE setColorScheme NOTIFY colorSchemeChanged)
    Q_PROPERTY(Contrast contrast READ contrast WRITE setContrast NOTIFY contrastChanged)
    Q_PROPERTY(Motion motion READ motion WRITE setMotion NOTIFY motionChanged)
    Q_PROPERTY(bool watching READ isWatching WRITE setWatching NOTIFY watchingChanged)
    Q_PROPERTY(bool dark READ isDark NOTIFY appearanceChanged)
    Q_PROPERTY(bool highContrast READ isHighContrast NOTIFY appearanceChanged)
    Q_PROPERTY(bool reducedMotion READ isReducedMotion NOTIFY appearanceChanged)
    Q_PROPERTY(QString lastError READ lastError NOTIFY lastErrorChanged)

public:
    /// What the host wants, in most programs as its user chose it. FollowSystem means nothing until there is a system
    /// appearance: light, normal contrast, and the application's animations as they are.
    enum class ColorScheme { FollowSystem, Light, Dark };
    Q_ENUM(ColorScheme)
    enum class Contrast { FollowSystem, Normal, High };
    Q_ENUM(Contrast)
    enum class Motion { FollowSystem, Full, Reduced };
    Q_ENUM(Motion)

    struct Family
    {
        QString name;
        QString title; ///< for people; the name, where the manifest has none
    };

    explicit WThemeLoader(QObject *parent = nullptr);
    ~WThemeLoader() override;

    /// Reads a folder that is laid out as ours, with "colors.json" and "themes/themes.json". Without a family it takes
    /// the first of the manifest, which is "default" in ours. False when nothing came of it.
    bool load(const QString &configFolder, const QString &family = QString());
    /// Any color file and any manifest. Without a color file (an empty path) the states of color sets are
    /// {"r", "g", "b", "a"} objects.
    bool loadFiles(const QString &colorFile, const QString &manifestFile, const QString &family = QString());
    /// Reads the same files again, as the watcher does.
    bool reload();

    /// The families of the manifest that was loaded, in its order.
    QVector<Family> families() const;
    /// The name of the theme that is shown for that choice; empty for an unknown family.
    QString themeName(const QString &family, bool dark, bool highContrast) const;

    QString family() const;
    /// Reads the family's files, after the first load().
    void setFamily(const QString &family);
    ColorScheme colorScheme() const;
    void setColorScheme(ColorScheme scheme);
    Contrast contrast() const;
    void setContrast(Contrast contrast);
    /// As several calls, with one announcement for all.
    bool setTheme(const QString &family, ColorScheme scheme, Contrast contrast);

    /// The application's "animationsDisabled". The last word of the host counts: after it called
    /// IWApplication::setAnimationsDisabled() that stays, whatever the desktop wants, until it calls setMotion() (with
    /// any value).
    Motion motion() const;
    void setMotion(Motion motion);

    /// What the desktop wants, for those who say FollowSystem. Stays the host's; null, and its end, bring back the
    /// state without. A host without a choice of its own needs nothing but this:
    ///
    ///     WSystemAppearance desktop;
    ///     WThemeLoader theme;
    ///     theme.setSystemAppearance(&desktop);
    ///     theme.load(folder);
    WSystemAppearance *systemAppearance() const;
    void setSystemAppearance(WSystemAppearance *system);

    /// What is shown: the choice of the host or of the desktop, as far as the family has it.
    bool isDark() const;
    bool isHighContrast() const;
    bool isReducedMotion() const;

    /// Reads the files again when one of them changes, a tenth of a second after the last change. They may be replaced,
    /// removed and come back, and so may folders and symbolic links on the way to them. A loader that watches also goes
    /// on trying where its first load() failed.
    bool isWatching() const;
    void setWatching(bool watching);

    /// What the last reading of the files that are shown failed for, as in loadFailed(); empty when it did not. A
    /// refused call that asked for others, such as setFamily(), leaves it as it is.
    QString lastError() const;

Q_SIGNALS:
    void familyChanged();
    void colorSchemeChanged();
    void contrastChanged();
    void motionChanged();
    void watchingChanged();
    void appearanceChanged(); ///< one or more of dark, highContrast, reducedMotion
    void lastErrorChanged();
    void familiesChanged();
    /// The files were read and are shown: after load(), a change of the family and of a file, and when a fault is
    /// gone. Not where the watcher found all as it was.
    void themeLoaded();
    /// "file:line:column: what is wrong", or without a place where that is the file as a whole.
    void loadFailed(const QString &message);

private:
    class Private;
    std::unique_ptr<Private> d;
};

#pragma once

#include <UiElements/app/IWApplication.h>
#include <UiElements/app/WAppSignals.h>
#include <UiElements/app/WPublishingInfo.h>
#include <UiElements/uielements_export.h>

#include <QIcon>
#include <QKeySequence>
#include <QPointer>

class IWMovieProviderSource;
class WFontManager;
class WGlobalSignalListener;

/// The application object of a host, constructed in place of a QApplication and before any element.
///
/// It holds the theme, the font scale and the buses. A WThemeLoader reads color and theme files and hands their sets
/// over; a host without one reads them with WThemeUtils and calls setColorSets() and setInvertedColorSets(). Each
/// setter emits its signal only when the value changes, except where it says otherwise.
///
/// Tooltips take the colors of the sets "tooltip-background" and "tooltip-text", where a theme has them.
class UIELEMENTS_EXPORT WApplication : public IWApplication
{
    Q_OBJECT
    Q_PROPERTY(QString theme READ getThemeName WRITE setTheme NOTIFY themeChanged)
    Q_PROPERTY(QString logoSvgPath READ getLogoSvgPath WRITE setLogoSvgPath NOTIFY logoSvgPathChanged)
    Q_PROPERTY(QString logoPngPath READ getLogoPngPath WRITE setLogoPngPath NOTIFY logoPngPathChanged)
    Q_PROPERTY(float fontScaleFactor READ getFontScaleFactor WRITE setFontScaleFactor NOTIFY fontScaleFactorChanged)

public:
    /// Creates the signal bus, the font manager and the listener as children, in this order, gives the font families
    /// that a desktop may lack their stand-ins, installs the application font and sets Qt::AA_UseHighDpiPixmaps,
    /// without which a QIcon is blurred on screens of higher ratios. The arguments must outlive the object.
    WApplication(int &argc, char **argv);
    ~WApplication() override;

    /// The running application object, or null with the warning "Unable to find WApplication".
    static WApplication *find();

    /// The name of the theme, for the host to choose files by. Setting it loads nothing.
    QString getThemeName() const { return m_themeName; }
    void setTheme(const QString &themeName);

    QString getLogoSvgPath() const { return m_logoSvgPath; }
    void setLogoSvgPath(const QString &path);
    QString getLogoPngPath() const { return m_logoPngPath; }
    void setLogoPngPath(const QString &path);

    /// From 0.5 to 1.5; every font token is scaled by it.
    float getFontScaleFactor() const { return m_fontScaleFactor; }
    /// Emits fontScaleFactorChanged() on every valid call, also for the same value. A factor out of range, or one that
    /// is no number, is reported and changes nothing.
    void setFontScaleFactor(float factor);

    /// The icon of QML windows: of those that have a parent window, and of those that stand alone. Until the host sets
    /// its own they come from the icon set. Windows take it when they are made.
    QIcon getDialogIcon(bool hasParentWindow) const;
    void setDialogIcon(const QIcon &icon, const QIcon &iconWithParentWindow);

    /// Tell these together with the color sets they belong to: the registry set by setColorSets() is that of the theme
    /// shown. After its signal each flag announces colorSetsChanged(), because the choice of registry depends on it.
    void setIsDarkTheme(bool isDarkTheme);
    void setIsHighContrastTheme(bool isHighContrastTheme);

    WPublishingInfo getPublishingInfo() const { return m_publishingInfo; }
    void setPublishingInfo(const WPublishingInfo &info);

    /// Where animated images get their movies: a LocalMovieSource, made when it is first asked for, until the host sets
    /// a source of its own, which stays the host's. Null, and the end of the host's source, bring back the first.
    IWMovieProviderSource *getMovieProviderSource();
    void setMovieProviderSource(IWMovieProviderSource *source);

    /// Null once the application object is being destroyed.
    WAppSignals *getAppSignals() const { return m_appSignals; }
    WFontManager *getWFontManager() const;
    WGlobalSignalListener *getGlobalSignalListener() const;

    /// True while a window of the program has the keyboard focus.
    bool isInFocus() const;

    /// The color set for "light", "dark", "inverted" or "global" (any other text).
    Q_INVOKABLE WColorSet getColorSet(QString colorSetName, QString themeType) const;
    /// The key of a registered shortcut; see WAppSignals::getKeySequence().
    Q_INVOKABLE QKeySequence getKeySequence(WAppSignals::Shortcut shortcutId) const;

Q_SIGNALS:
    void themeChanged(QString themeName);
    void isDarkThemeChanged(bool isDarkTheme);
    void isHighContrastThemeChanged(bool isHighContrastTheme);
    void fontScaleFactorChanged(float scale);
    void logoSvgPathChanged(QString logoSvgPath);
    void logoPngPathChanged(QString logoPngPath);
    void publishingInfoChanged();

private:
    void colorToolTips();

    QString m_themeName;
    QString m_logoSvgPath;
    QString m_logoPngPath;
    WPublishingInfo m_publishingInfo;
    mutable QIcon m_dialogIcons[2]; // without and with a parent window
    QPointer<WAppSignals> m_appSignals;
    QPointer<QObject> m_fontManager;
    QPointer<QObject> m_globalSignalListener;
    QPointer<QObject> m_movieProviderSource;
    IWMovieProviderSource *m_localMovieSource = nullptr; // a child
    float m_fontScaleFactor = 1.0f;
};

#include <UiElements/app/WApplication.h>

#include "FontSubstitutions_p.h"

#include <UiElements/app/WFont.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WGlobalSignalListener.h>
#include <UiElements/icons/LocalMovieSource.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QDebug>
#include <QToolTip>

WApplication::WApplication(int &argc, char **argv)
    : IWApplication(argc, argv)
{
    m_appSignals = new WAppSignals(this);
    m_fontManager = new WFontManager(this);
    m_globalSignalListener = new WGlobalSignalListener(this);
    qRegisterMetaType<WAppSignals::Shortcut>("WAppSignals::Shortcut");

    setAttribute(Qt::AA_UseHighDpiPixmaps);
    installFontSubstitutions();
    WFont font(WFont::Default, false);
    font.setFamily(QStringLiteral("Segoe UI"));
    setFont(font);
    connect(this, &WApplication::colorSetsChanged, this, &WApplication::colorToolTips);
}

WApplication::~WApplication() = default;

// They are windows of their own, which no template reaches.
void WApplication::colorToolTips()
{
    const auto color = [this](const char *name) {
        const auto found = getColorSets().find(name);
        return found == getColorSets().end() ? QColor() : found->second.normal();
    };
    const QColor background = color("tooltip-background");
    const QColor text = color("tooltip-text");
    if (!background.isValid() || !text.isValid())
        return;
    QPalette colors = QToolTip::palette();
    colors.setColor(QPalette::ToolTipBase, background);
    colors.setColor(QPalette::ToolTipText, text);
    QToolTip::setPalette(colors);
}

WApplication *WApplication::find()
{
    auto *app = qobject_cast<WApplication *>(QCoreApplication::instance());
    if (!app)
        qWarning("Unable to find WApplication");
    return app;
}

void WApplication::setTheme(const QString &themeName)
{
    if (m_themeName == themeName)
        return;
    m_themeName = themeName;
    Q_EMIT themeChanged(themeName);
}

void WApplication::setLogoSvgPath(const QString &path)
{
    if (m_logoSvgPath == path)
        return;
    m_logoSvgPath = path;
    Q_EMIT logoSvgPathChanged(path);
}

void WApplication::setLogoPngPath(const QString &path)
{
    if (m_logoPngPath == path)
        return;
    m_logoPngPath = path;
    Q_EMIT logoPngPathChanged(path);
}

void WApplication::setFontScaleFactor(float factor)
{
    if (!(factor >= 0.5f && factor <= 1.5f)) { // written so that what is no number fails too
        qWarning() << "WApplication::setFontScaleFactor - Invalid fontScaleFactor" << factor;
        return;
    }
    m_fontScaleFactor = factor;
    if (WFontManager *fonts = getWFontManager())
        fonts->onFontScaleFactorChanged();
    Q_EMIT fontScaleFactorChanged(factor);
}

QIcon WApplication::getDialogIcon(bool hasParentWindow) const
{
    QIcon &icon = m_dialogIcons[hasParentWindow ? 1 : 0];
    if (icon.isNull()) {
        const QString name = hasParentWindow ? QStringLiteral("chat") : QStringLiteral("chat-filled");
        for (int size : {16, 20, 24})
            icon.addFile(QStringLiteral(":/Resources/%1_%2.svg").arg(name).arg(size), QSize(size, size));
    }
    return icon;
}

void WApplication::setDialogIcon(const QIcon &icon, const QIcon &iconWithParentWindow)
{
    m_dialogIcons[0] = icon;
    m_dialogIcons[1] = iconWithParentWindow;
}

void WApplication::setIsDarkTheme(bool isDarkTheme)
{
    if (!changeIsDarkTheme(isDarkTheme))
        return;
    Q_EMIT isDarkThemeChanged(isDarkTheme);
    Q_EMIT colorSetsChanged();
}

void WApplication::setIsHighContrastTheme(bool isHighContrastTheme)
{
    if (!changeIsHighContrastTheme(isHighContrastTheme))
        return;
    Q_EMIT isHighContrastThemeChanged(isHighContrastTheme);
    Q_EMIT colorSetsChanged();
}

void WApplication::setPublishingInfo(const WPublishingInfo &info)
{
    if (m_publishingInfo == info)
        return;
    m_publishingInfo = info;
    Q_EMIT publishingInfoChanged();
}

IWMovieProviderSource *WApplication::getMovieProviderSource()
{
    if (auto *source = qobject_cast<IWMovieProviderSource *>(m_movieProviderSource))
        return source;
    if (!m_localMovieSource)
        m_localMovieSource = new LocalMovieSource(this);
    return m_localMovieSource;
}

void WApplication::setMovieProviderSource(IWMovieProviderSource *source)
{
    m_movieProviderSource = source;
}

WFontManager *WApplication::getWFontManager() const
{
    return qobject_cast<WFontManager *>(m_fontManager);
}

WGlobalSignalListener *WApplication::getGlobalSignalListener() const
{
    return qobject_cast<WGlobalSignalListener *>(m_globalSignalListener);
}

bool WApplication::isInFocus() const
{
    return focusWindow() != nullptr;
}

WColorSet WApplication::getColorSet(QString colorSetName, QString themeType) const
{
    return WThemeUtils::getColorSet(colorSetName.toStdString(), WThemeUtils::stringToThemeType(themeType));
}

QKeySequence WApplication::getKeySequence(WAppSignals::Shortcut shortcutId) const
{
    return m_appSignals ? m_appSignals->getKeySequence(shortcutId) : QKeySequence();
}

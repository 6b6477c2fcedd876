#include "QmlTheme_p.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/icons/WSvgRenderer.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QDebug>
#include <QFile>
#include <QJSEngine>
#include <QQmlEngine>
#include <QQuickImageProvider>

namespace {

const IWApplication *application()
{
    return qobject_cast<IWApplication *>(QCoreApplication::instance());
}

const QLatin1String providerName("uielements-icon");

/// Answers "name/color" with a tinted icon. As pixmaps: those are made in the GUI thread, where the renderer lives.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider()
        : QQuickImageProvider(Pixmap)
    {
    }

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override
    {
        const int slash = id.lastIndexOf(QLatin1Char('/'));
        const WSvgRenderer renderer(WSvgRenderer::resourcePath(id.left(slash)));
        if (!renderer.isLoaded())
            return {};
        const QString name = id.left(slash);
        const int designed = qBound(8, name.midRef(name.lastIndexOf(QLatin1Char('_')) + 1).toInt(), 256);
        *size = requestedSize.isEmpty() ? QSize(designed, designed) : requestedSize;
        return renderer.renderPixmap(*size, 1, QColor(QLatin1Char('#') + id.mid(slash + 1)));
    }
};

} // namespace

QmlTheme::QmlTheme(QJSEngine *engine)
{
    const auto *withFonts = qobject_cast<WApplication *>(QCoreApplication::instance());
    const WFontManager *const manager = withFonts ? withFonts->getWFontManager() : nullptr;
    for (int type = FontManagerEnum::Default; type <= FontManagerEnum::MeetingView; ++type) {
        // Tools that show QML have no application object of ours.
        m_fonts[type] = manager ? manager->getFont(FontManagerEnum::FontType(type)) : new WScaledFonts(this);
    }
    if (const IWApplication *app = application()) {
        connect(app, &IWApplication::colorSetsChanged, this, &QmlTheme::colorsChanged);
        connect(app, &IWApplication::animationsDisabledChanged, this, &QmlTheme::animationsDisabledChanged);
    }
    if (qGuiApp)
        connect(qGuiApp, &QGuiApplication::layoutDirectionChanged, this, &QmlTheme::isMirroredChanged);
    m_colorSet = engine->toScriptValue<QObject *>(this).property(QStringLiteral("findColorSet"));
}

QObject *QmlTheme::create(QQmlEngine *qmlEngine, QJSEngine *engine)
{
    qmlEngine->addImageProvider(providerName, new IconProvider);
    return new QmlTheme(engine);
}

bool QmlTheme::isDark() const
{
    const IWApplication *app = application();
    return app && app->getIsDarkTheme();
}

bool QmlTheme::isHighContrast() const
{
    return WThemeUtils::isHighContrastEnabled();
}

bool QmlTheme::animationsDisabled() const
{
    const IWApplication *app = application();
    return app && app->animationsDisabled();
}

bool QmlTheme::isMirrored() const
{
    return QGuiApplication::isRightToLeft();
}

WColorSet QmlTheme::findColorSet(const QString &name, const QString &themeType) const
{
    const WThemeUtils::AppThemeType type = WThemeUtils::stringToThemeType(themeType);
    if (!themeType.isEmpty() && WThemeUtils::themeTypeToString(type) != themeType && m_unknownType != themeType) {
        m_unknownType = themeType; // many bindings ask for the same one
        qWarning() << "Theme.colorSet - Unknown theme type, taken as global:" << themeType;
    }
    return WThemeUtils::getColorSet(name.toStdString(), type);
}

QUrl QmlTheme::icon(const QString &name, const QColor &color) const
{
    // A set that does not exist was reported when it was asked for.
    if (!color.isValid())
        return {};
    if (!QFile::exists(WSvgRenderer::resourcePath(name))) {
        qWarning() << "Theme.icon - There is no icon" << name;
        return {};
    }
    return QUrl(QStringLiteral("image://%1/%2/%3").arg(providerName, name, color.name(QColor::HexArgb).mid(1)));
}

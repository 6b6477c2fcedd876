#include <UiElements/theme/WThemeUtils.h>

#include "StyleTemplate_p.h"
#include "ThemeFiles_p.h"
#include "WThemeUtils_p.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/app/IWApplication_p.h>

#include <QDebug>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

IWApplication *application()
{
    return qobject_cast<IWApplication *>(QCoreApplication::instance());
}

IWApplication *applicationToChange()
{
    IWApplication *app = application();
    if (!app)
        qWarning("Unable to find WApplication");
    return app;
}

enum class Registry { App, Inverted };

Registry registryFor(WThemeUtils::AppThemeType type)
{
    const IWApplication *app = application();
    if (app && app->getIsHighContrastTheme())
        return Registry::App;
    const bool dark = app && app->getIsDarkTheme();
    switch (type) {
    case WThemeUtils::AppThemeTypeInverted: return Registry::Inverted;
    case WThemeUtils::AppThemeTypeDark: return dark ? Registry::App : Registry::Inverted;
    case WThemeUtils::AppThemeTypeLight: return dark ? Registry::Inverted : Registry::App;
    case WThemeUtils::AppThemeTypeGlobal: break;
    }
    return Registry::App;
}

// The sets the caller handed over may be a registry of the application, whose colors stand ready.
std::shared_ptr<const ColorTable> preparedTable(const WColorSets &sets)
{
    const IWApplication *app = application();
    if (!app)
        return nullptr;
    const IWApplicationPrivate *d = IWApplicationPrivate::get(app);
    if (&sets == &d->colorSets.sets())
        return d->colorSets.table();
    if (&sets == &d->invertedColorSets.sets())
        return d->invertedColorSets.table();
    return nullptr;
}

bool hasAnySide(const WCSSData &data)
{
    return data.leftBorder || data.topBorder || data.rightBorder || data.bottomBorder;
}

WColorSet setNamed(const QString &name, const WColorSets &sets)
{
    const auto found = sets.find(name.toStdString());
    return found == sets.end() ? WColorSet() : found->second;
}

WCSSData expandInto(const StyleTemplate &source, const QString &selector, const WColorSets &sets,
                    const ColorTable &table)
{
    if (source.needsTwoPasses())
        return expandInto(source.withTokensReplaced(table), selector, sets, ColorTable(sets));
    const StyleTemplate::Directives &directives = source.directives();
    WCSSData data;
    data.backgroundColorSetName = directives.colorSetNames[WThemeUtils::ColorSetTypeBackground];
    data.borderColorSetName = directives.colorSetNames[WThemeUtils::ColorSetTypeBorder];
    data.textColorSetName = directives.colorSetNames[WThemeUtils::ColorSetTypeText];
    data.trailingText = directives.trailingText;
    data.leftBorder = directives.left;
    data.topBorder = directives.top;
    data.rightBorder = directives.right;
    data.bottomBorder = directives.bottom;
    data.focusBorderRadius = directives.focusRadius;
    data.hasBorders = directives.hasBorders;
    data.suppressBorderColor = WThemeUtilsPrivate::suppressesBorderColor(data);
    data.rectangularCornerMask = directives.rectangularCorners;
    data.borderWidth = directives.borderWidth;
    data.borderRadius = directives.borderRadius;
    data.borderText = directives.borderText;
    data.radiusText = directives.radiusText;
    data.backgroundColorSet = setNamed(data.backgroundColorSetName, sets);
    data.borderColorSet = setNamed(data.borderColorSetName, sets);
    data.textColorSet = setNamed(data.textColorSetName, sets);
    data.styleSheet = source.expand(selector, table);
    return data;
}

} // namespace

std::shared_ptr<const ColorTable> WThemeUtilsPrivate::colorTable(WThemeUtils::AppThemeType type)
{
    if (const IWApplication *app = application()) {
        const IWApplicationPrivate *d = IWApplicationPrivate::get(app);
        return (registryFor(type) == Registry::App ? d->colorSets : d->invertedColorSets).table();
    }
    static const auto empty = std::make_shared<const ColorTable>();
    return empty;
}

QString WThemeUtilsPrivate::selectorOf(const QWidget *widget)
{
    if (!widget)
        return QString();
    const QString name = widget->objectName();
    const QString className =
        QString::fromLatin1(widget->metaObject()->className()).replace(QLatin1String("::"), QLatin1String("--"));
    if (name.isEmpty())
        return className;
    const bool plain = std::all_of(name.begin(), name.end(), [](QChar c) {
        return c.unicode() > 127 || c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('-');
    });
    if (plain)
        return QLatin1Char('#') + name;
    const bool quotable = std::none_of(name.begin(), name.end(), [](QChar c) {
        return c == QLatin1Char('"') || c == QLatin1Char('\\') || c < QLatin1Char(' ');
    });
    return quotable ? QStringLiteral("*[objectName=\"%1\"]").arg(name) : className;
}

void WThemeUtilsPrivate::setFocusProperties(QWidget *widget, int radius, int cornerMask)
{
    if (widget->property("focusBorderRadius") != QVariant(radius))
        widget->setProperty("focusBorderRadius", radius);
    if (widget->property("rectangularCornerMask") != QVariant(cornerMask))
        widget->setProperty("rectangularCornerMask", cornerMask);
}

bool WThemeUtilsPrivate::suppressesBorderColor(const WCSSData &data)
{
    return data.hasBorders && !hasAnySide(data);
}

QJsonObject WThemeUtils::readJsonObject(const QString &path)
{
    return ThemeFiles::readObject(path);
}

WPalette WThemeUtils::parseWColorsFromJson(const QString &path)
{
    bool ok = false;
    const QJsonObject root = ThemeFiles::readObject(path, &ok);
    return ok ? parseWColorsFromJson(root) : WPalette();
}

WPalette WThemeUtils::parseWColorsFromJson(const QJsonObject &root)
{
    return ThemeFiles::readPalette(root);
}

WColorSets WThemeUtils::parseWColorSetsFromJson(const QString &path, const WPalette &palette)
{
    bool ok = false;
    const QJsonObject root = ThemeFiles::readObject(path, &ok);
    return ok ? parseWColorSetsFromJson(root, palette) : WColorSets();
}

WColorSets WThemeUtils::parseWColorSetsFromJson(const QJsonObject &root, const WPalette &palette)
{
    return ThemeFiles::readColorSets(root, palette);
}

const WColorSets &WThemeUtils::getAppWColorSets()
{
    static const WColorSets none;
    const IWApplication *app = application();
    return app ? app->getColorSets() : none;
}

void WThemeUtils::setAppWColorSets(const WColorSets &sets)
{
    if (IWApplication *app = applicationToChange())
        app->setColorSets(sets);
}

const WColorSets &WThemeUtils::getAppInvertedWColorSets()
{
    static const WColorSets none;
    const IWApplication *app = application();
    return app ? app->getInvertedColorSets() : none;
}

void WThemeUtils::setAppInvertedWColorSets(const WColorSets &sets)
{
    if (IWApplication *app = applicationToChange())
        app->setInvertedColorSets(sets);
}

const WColorTokens &WThemeUtils::getAppWColorTokens()
{
    static const WColorTokens none;
    const IWApplication *app = application();
    return app ? app->getColorTokens() : none;
}

void WThemeUtils::setAppWColorTokens(const WColorTokens &tokens)
{
    if (IWApplication *app = applicationToChange())
        app->setColorTokens(tokens);
}

bool WThemeUtils::isHighContrastEnabled()
{
    const IWApplication *app = application();
    return app && app->getIsHighContrastTheme();
}

const WColorSets &WThemeUtils::getWColorSetsByThemeType(AppThemeType type)
{
    return registryFor(type) == Registry::App ? getAppWColorSets() : getAppInvertedWColorSets();
}

WColorSet WThemeUtils::getColorSet(const std::string &name, AppThemeType type)
{
    if (name.empty())
        return WColorSet();
    const WColorSets &sets = getWColorSetsByThemeType(type);
    const auto found = sets.find(name);
    if (found != sets.end())
        return found->second;
    qWarning() << "ColorSet name does not exist! " << QString::fromStdString(name);
    return WColorSet();
}

QString WThemeUtils::getColorSetNameFromString(ColorSetType type, const QString &css)
{
    const QString directive = StyleTemplate::colorDirectives().value(type);
    return directive.isEmpty() ? QString() : StyleTemplate::directiveValue(directive, css);
}

QString WThemeUtils::themeTypeToString(AppThemeType type)
{
    switch (type) {
    case AppThemeTypeLight: return QStringLiteral("light");
    case AppThemeTypeDark: return QStringLiteral("dark");
    case AppThemeTypeInverted: return QStringLiteral("inverted");
    case AppThemeTypeGlobal: break;
    }
    return QStringLiteral("global");
}

WThemeUtils::AppThemeType WThemeUtils::stringToThemeType(const QString &text)
{
    if (text == QLatin1String("dark"))
        return AppThemeTypeDark;
    if (text == QLatin1String("light"))
        return AppThemeTypeLight;
    if (text == QLatin1String("inverted"))
        return AppThemeTypeInverted;
    return AppThemeTypeGlobal;
}

WThemeUtils::AppThemeType WThemeUtils::getThemeTypeOfWidget(const QWidget *widget)
{
    if (!widget)
        return AppThemeTypeGlobal;
    const AppThemeType own = stringToThemeType(widget->property("themeType").toString());
    if (own != AppThemeTypeGlobal)
        return own;
    const QWidget *window = widget->window();
    return window && window != widget ? stringToThemeType(window->property("themeType").toString()) : own;
}

WColorSet WThemeUtils::transparentColourSet()
{
    WColorSet set;
    set.fill(QColor(0, 0, 0, 0));
    return set;
}

QString WThemeUtils::getHyperlinkCSS(AppThemeType type)
{
    const WColorSet set = getColorSet("button-hyperlink-text", type);
    return QStringLiteral(
               "<style type = \"text/css\">a:link{text-decoration: underline; color:%2;} a:visited{color:%2;} "
               "a:hover{ color:%3;}</style>")
        .arg(set.normal().name(), set.hovered().name());
}

WCSSData WThemeUtils::parseCSS(QWidget *widget, const QString &css, const WColorSets &colorSets)
{
    const AppThemeType type = getThemeTypeOfWidget(widget);
    const WColorSets &sets = type == AppThemeTypeGlobal ? colorSets : getWColorSetsByThemeType(type);
    WCSSData data = parseCSS(WThemeUtilsPrivate::selectorOf(widget), css, sets);
    if (widget && data.focusBorderRadius)
        WThemeUtilsPrivate::setFocusProperties(widget, data.borderRadius, data.rectangularCornerMask);
    return data;
}

WCSSData WThemeUtils::parseCSS(const QString &selector, const QString &css, const WColorSets &colorSets)
{
    const auto source = StyleTemplate::shared(css);
    if (const auto table = preparedTable(colorSets))
        return expandInto(*source, selector, colorSets, *table);
    return expandInto(*source, selector, colorSets, ColorTable(colorSets, source->setNames()));
}

QString WThemeUtils::convertToWCSS(const WCSSData &data)
{
    QString text;
    if (hasAnySide(data) || data.hasBorders)
        text = StyleTemplate::borderText(data.leftBorder, data.topBorder, data.rightBorder, data.bottomBorder,
                                         data.borderWidth);
    const auto append = [&text](ColorSetType type, const QString &name) {
        if (name.trimmed().isEmpty())
            return;
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        text += StyleTemplate::colorDirectives().at(type) + QLatin1Char(' ') + name + QLatin1Char(';');
    };
    append(ColorSetTypeBackground, data.backgroundColorSetName);
    if (!WThemeUtilsPrivate::suppressesBorderColor(data))
        append(ColorSetTypeBorder, data.borderColorSetName);
    append(ColorSetTypeText, data.textColorSetName);
    return text + data.trailingText;
}

void WThemeUtils::removeWCSSFromStyleSheet(QString &css)
{
    css = StyleTemplate::withoutDirectives(css);
}

#include "GalleryThemes.h"

#include <UiElements/app/WApplication.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

bool GalleryThemes::load(const QString &folder)
{
    m_folder = folder;
    m_palette = WThemeUtils::parseWColorsFromJson(folder + QLatin1String("/colors.json"));
    const QJsonObject root = WThemeUtils::readJsonObject(folder + QLatin1String("/themes/themes.json"));
    const QJsonArray families = root.value(QLatin1String("families")).toArray();
    QStringList files;
    for (const QJsonValue &value : families) {
        const QJsonObject family = value.toObject();
        const QString name = family.value(QLatin1String("name")).toString();
        m_files.insert(name, family);
        m_families.append({name, family.value(QLatin1String("title")).toString()});
        for (const bool highContrast : {false, true}) {
            for (const bool dark : {false, true}) {
                const Choice choice {name, dark, highContrast};
                if (fileOf(choice).isEmpty() || files.contains(fileOf(choice)))
                    continue;
                files.append(fileOf(choice));
                m_all.append(choice);
            }
        }
    }
    return !m_palette.empty() && !m_all.isEmpty();
}

QString GalleryThemes::fileOf(const Choice &choice) const
{
    const QLatin1String variant = choice.highContrast
        ? (choice.dark ? QLatin1String("highContrastDark") : QLatin1String("highContrast"))
        : (choice.dark ? QLatin1String("dark") : QLatin1String("light"));
    return m_files.value(choice.family).toObject().value(variant).toString();
}

QString GalleryThemes::nameOf(const Choice &choice) const
{
    return QFileInfo(fileOf(choice)).baseName();
}

QString GalleryThemes::titleOf(const Choice &choice) const
{
    const QString brightness = choice.dark ? QCoreApplication::translate("GalleryThemes", "dark")
                                           : QCoreApplication::translate("GalleryThemes", "light");
    if (choice.highContrast)
        return QCoreApplication::translate("GalleryThemes", "High contrast %1").arg(brightness);
    for (const Family &family : m_families) {
        if (family.name == choice.family)
            return family.title + QLatin1Char(' ') + brightness;
    }
    return QString();
}

const WColorSets &GalleryThemes::setsOf(const Choice &choice)
{
    const QString file = fileOf(choice);
    if (!m_sets.contains(file)) {
        const QString path = m_folder + QLatin1String("/themes/") + file;
        m_sets.insert(file, WThemeUtils::parseWColorSetsFromJson(path, m_palette));
    }
    return *m_sets.constFind(file);
}

// Each of the four calls may announce new colors, and elements take them each time. Only the last needs to be heard:
// the others are made while the application object is silent about them.
void GalleryThemes::apply(const Choice &choice)
{
    WApplication *app = WApplication::find();
    if (!app)
        return;
    m_current = choice;
    Choice opposite = choice;
    opposite.dark = !choice.dark;
    const WColorSets sets = setsOf(choice);
    const WColorSets oppositeSets = setsOf(opposite);
    app->setTheme(nameOf(choice));
    {
        const QSignalBlocker silent(app);
        app->setIsDarkTheme(choice.dark);
        app->setIsHighContrastTheme(choice.highContrast);
        app->setInvertedColorSets(oppositeSets);
    }
    app->setColorSets(sets);
}

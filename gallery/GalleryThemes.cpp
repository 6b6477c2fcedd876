#include "GalleryThemes.h"

#include <QCoreApplication>
#include <QDir>

bool GalleryThemes::load(const QString &folder)
{
    m_folder = QDir(folder).absolutePath();
    if (!m_loader.load(m_folder))
        return false;
    m_all.clear();
    QStringList names;
    const QVector<Family> all = families();
    for (const Family &family : all) {
        for (const bool highContrast : {false, true}) {
            for (const bool dark : {false, true}) {
                const Choice choice {family.name, dark, highContrast};
                if (names.contains(nameOf(choice)))
                    continue;
                names << nameOf(choice);
                m_all << choice;
            }
        }
    }
    return true;
}

QString GalleryThemes::nameOf(const Choice &choice) const
{
    return m_loader.themeName(choice.family, choice.dark, choice.highContrast);
}

QString GalleryThemes::titleOf(const Choice &choice) const
{
    const QString brightness = choice.dark ? QCoreApplication::translate("GalleryThemes", "dark")
                                           : QCoreApplication::translate("GalleryThemes", "light");
    if (choice.highContrast)
        return QCoreApplication::translate("GalleryThemes", "High contrast %1").arg(brightness);
    const QVector<Family> all = families();
    for (const Family &family : all) {
        if (family.name == choice.family)
            return family.title + QLatin1Char(' ') + brightness;
    }
    return QString();
}

GalleryThemes::Choice GalleryThemes::current() const
{
    return {m_loader.family(), m_loader.isDark(), m_loader.isHighContrast()};
}

void GalleryThemes::apply(const Choice &choice)
{
    m_loader.setTheme(choice.family, choice.dark ? WThemeLoader::ColorScheme::Dark : WThemeLoader::ColorScheme::Light,
                      choice.highContrast ? WThemeLoader::Contrast::High : WThemeLoader::Contrast::Normal);
}

QString GalleryThemes::fault() const
{
    QString fault = m_loader.lastError();
    return fault.replace(m_folder + QLatin1Char('/'), QString());
}

#include "ThemeFilesManifest_p.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace {

constexpr const char *Members[2][2] = {{"light", "dark"}, {"highContrast", "highContrastDark"}};

} // namespace

QString ThemeManifest::Theme::name() const
{
    return QFileInfo(file).baseName();
}

ThemeManifest ThemeManifest::read(const QJsonObject &root, ThemeFaults *faults)
{
    ThemeManifest manifest;
    const QString all = QStringLiteral("families");
    const QJsonArray families = root.value(all).toArray();
    if (families.isEmpty())
        faults->push_back({{all}, QStringLiteral("there is no array \"families\" with theme families")});
    for (int i = 0; i < families.size(); ++i) {
        const QStringList keys {all, QString::number(i)};
        const auto report = [faults, &keys](const QString &text, const QString &member = QString()) {
            faults->push_back({member.isEmpty() ? keys : keys + QStringList(member), text});
        };
        const QJsonObject object = families.at(i).toObject();
        const auto text = [&](const char *member) {
            const QString key = QLatin1String(member);
            const QJsonValue value = object.value(key);
            if (!value.isString() && !value.isUndefined())
                report(QStringLiteral("\"%1\" is a text").arg(key), key);
            return value.toString();
        };
        Family family;
        family.name = text("name");
        family.title = text("title");
        if (family.title.isEmpty())
            family.title = family.name;
        for (int contrast = 0; contrast < 2; ++contrast) {
            for (int dark = 0; dark < 2; ++dark)
                family.files[contrast][dark] = text(Members[contrast][dark]);
        }
        if (family.name.isEmpty())
            report(QStringLiteral("a theme family without a \"name\""));
        else if (manifest.find(family.name))
            report(QStringLiteral("a second theme family \"%1\"").arg(family.name), QStringLiteral("name"));
        else if (family.files[0][0].isEmpty() && family.files[0][1].isEmpty())
            report(QStringLiteral("the theme family \"%1\" has neither \"light\" nor \"dark\"").arg(family.name));
        else
            manifest.m_families.append(family);
    }
    return manifest;
}

const ThemeManifest::Family *ThemeManifest::find(const QString &name) const
{
    const auto found = std::find_if(m_families.begin(), m_families.end(),
                                    [&name](const Family &family) { return family.name == name; });
    return found == m_families.end() ? nullptr : &*found;
}

QStringList ThemeManifest::names() const
{
    QStringList names;
    for (const Family &family : m_families)
        names << family.name;
    return names;
}

QString ThemeManifest::fileFor(const Family &family, bool dark, bool highContrast) const
{
    const QString own = family.files[highContrast][dark];
    if (!own.isEmpty() || !highContrast)
        return own;
    for (const Family &other : m_families) {
        if (!other.files[1][dark].isEmpty())
            return other.files[1][dark];
    }
    return QString();
}

ThemeManifest::Theme ThemeManifest::theme(const Family &family, bool dark, bool highContrast) const
{
    if (highContrast) {
        for (const bool isDark : {dark, !dark}) {
            const QString file = fileFor(family, isDark, true);
            if (!file.isEmpty())
                return {file, isDark, true};
        }
    }
    const bool isDark = family.files[0][dark].isEmpty() ? !dark : dark;
    return {family.files[0][isDark], isDark, false};
}

QStringList ThemeManifest::filesOf(const Family &family) const
{
    QStringList files;
    for (const bool highContrast : {false, true}) {
        for (const bool dark : {false, true})
            files << theme(family, dark, highContrast).file;
    }
    files.removeDuplicates();
    return files;
}

#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QVector>

/// The themes in the configuration folder, and the one that the application shows.
class GalleryThemes
{
public:
    struct Family
    {
        QString name;
        QString title;
    };

    /// A theme of a family.
    struct Choice
    {
        QString family;
        bool dark = false;
        bool highContrast = false;

        bool operator==(const Choice &o) const
        {
            return family == o.family && dark == o.dark && highContrast == o.highContrast;
        }
    };

    /// False, with a warning in the log, when the folder has no themes.
    bool load(const QString &folder);

    const QVector<Family> &families() const { return m_families; }
    /// Every theme once, also where families share one.
    const QVector<Choice> &allThemes() const { return m_all; }
    /// The name of the theme, as in its file: "default", "meridiaDark".
    QString nameOf(const Choice &choice) const;
    QString titleOf(const Choice &choice) const;

    Choice current() const { return m_current; }
    /// Hands the color sets of the theme and of its opposite over to the application object.
    void apply(const Choice &choice);

private:
    const WColorSets &setsOf(const Choice &choice);
    QString fileOf(const Choice &choice) const;

    QString m_folder;
    QJsonObject m_files; // families by name
    WPalette m_palette;
    QVector<Family> m_families;
    QVector<Choice> m_all;
    QHash<QString, WColorSets> m_sets; // by file
    Choice m_current;
};

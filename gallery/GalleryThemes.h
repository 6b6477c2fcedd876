#pragma once

#include <UiElements/theme/WThemeLoader.h>

#include <QString>
#include <QVector>

/// The themes in the configuration folder, and the one that the application shows.
class GalleryThemes
{
public:
    using Family = WThemeLoader::Family;

    /// A theme of a family.
    struct Choice
    {
        QString family;
        bool dark = false;
        bool highContrast = false;
    };

    /// False, with a warning in the log, when the folder has no themes.
    bool load(const QString &folder);
    WThemeLoader *loader() { return &m_loader; }

    QVector<Family> families() const { return m_loader.families(); }
    /// Every theme once, also where families share one.
    const QVector<Choice> &allThemes() const { return m_all; }
    /// The name of the theme, as in its file: "default", "meridiaDark".
    QString nameOf(const Choice &choice) const;
    QString titleOf(const Choice &choice) const;

    Choice current() const;
    void apply(const Choice &choice);
    /// What the last reading of the files failed for, with the file below the folder; empty when it did not.
    QString fault() const;

private:
    WThemeLoader m_loader;
    QString m_folder;
    QVector<Choice> m_all;
};

#pragma once

#include <UiElements/theme/ThemeFiles_p.h>

#include <QVector>

/// The themes that there are: families, and which file of a family is which.
class ThemeManifest
{
public:
    struct Family
    {
        QString name;
        QString title;
        QString files[2][2]; ///< [high contrast][dark]; empty where there is none
    };

    /// One theme: what is shown, and what it is.
    struct Theme
    {
        QString file;
        bool dark = false;
        bool highContrast = false;

        QString name() const; ///< that of the file, without folder and ending
    };

    static ThemeManifest read(const QJsonObject &root, ThemeFaults *faults);

    const QVector<Family> &families() const { return m_families; }
    const Family *find(const QString &name) const;
    QStringList names() const;

    /// What comes closest to what is asked for. For high contrast the files of the first family that has them serve
    /// those that have none: who needs it, needs it more than the family.
    Theme theme(const Family &family, bool dark, bool highContrast) const;
    /// All files that theme() may give for the family.
    QStringList filesOf(const Family &family) const;

private:
    QString fileFor(const Family &family, bool dark, bool highContrast) const;

    QVector<Family> m_families;
};

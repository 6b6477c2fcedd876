#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QJsonObject>
#include <QStringList>

#include <vector>

/// Something wrong in a file, and the keys and indices that lead there from the root.
struct ThemeFault
{
    QStringList keys;
    QString text;
};
using ThemeFaults = std::vector<ThemeFault>;

/// Reading of color files and theme files.
namespace ThemeFiles {

/// False for what is no readable file, with the reason.
bool readBytes(const QString &path, QByteArray *bytes, QString *reason);
/// False for what is no JSON object, with the reason and the byte at which it shows, or -1.
bool parseObject(const QByteArray &bytes, QJsonObject *root, QString *reason, int *offset);
/// The object at the root of the file. A file that cannot be read or is no JSON object is reported once, with its path
/// and the reason, and gives an empty object.
/// `ok`, where it is given, tells an empty object of a file from that one.
QJsonObject readObject(const QString &path, bool *ok = nullptr);
/// Faults are logged, unless somebody collects them.
WPalette readPalette(const QJsonObject &root, ThemeFaults *faults = nullptr);
WColorSets readColorSets(const QJsonObject &root, const WPalette &palette, ThemeFaults *faults = nullptr);

} // namespace ThemeFiles

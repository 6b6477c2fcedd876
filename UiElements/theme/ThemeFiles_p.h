#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QJsonObject>

/// Reading of color files and theme files.
namespace ThemeFiles {

/// The object at the root of the file. A file that cannot be read or is no JSON object is reported once, with its path
/// and the reason, and gives an empty object.
/// `ok`, where it is given, tells an empty object of a file from that one.
QJsonObject readObject(const QString &path, bool *ok = nullptr);
WPalette readPalette(const QJsonObject &root);
WColorSets readColorSets(const QJsonObject &root, const WPalette &palette);

} // namespace ThemeFiles

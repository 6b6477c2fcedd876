#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QJsonObject>

/// Reading of color files and theme files.
namespace ThemeFiles {

/// The object at the root of the file. A file that cannot be read or is no JSON object is reported once, with its path
/// and the reason, and gives an empty object.
QJsonObject readObject(const QString &path);
WPalette readPalette(const QJsonObject &root);
WColorSets readColorSets(const QJsonObject &root, const WPalette &palette);

} // namespace ThemeFiles

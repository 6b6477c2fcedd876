#pragma once

#include <QByteArray>
#include <QStringList>

/// Where something stands in the text of a JSON file.
namespace ThemeFilesPlace {

/// Both count from 1; a column is a character, not a byte.
struct LineAndColumn
{
    int line;
    int column;
};
LineAndColumn lineAndColumn(const QByteArray &text, int offset);

/// The byte at which the value begins that the keys and indices lead to from the root, or the innermost value on the
/// way that is there. The text must be valid JSON.
int offsetOf(const QByteArray &json, const QStringList &keys);

} // namespace ThemeFilesPlace

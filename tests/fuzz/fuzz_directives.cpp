// What is written as directives says what was meant, to the expansion and to whoever reads it back.
//
// The first byte is the sides, the second the width; then three names and a trailing text, each on a line of its own.

#include "../support/Colors.h"
#include "FuzzSupport.h"
#include "TemplateReference.h"

#include <UiElements/theme/WThemeUtils.h>

#include <cstdint>

namespace {

// A name that a directive can hold: what ends it, and what would be read before it, cannot be in one.
QString nameFrom(const QByteArray &bytes)
{
    QString name = QString::fromUtf8(bytes);
    name.remove(QLatin1Char(';')).remove(QLatin1Char('$'));
    return name;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const WColorSets sets = spelledSets({"a", "b", "c", "theme-gradient-primary-0-background"});
    static const QString selector = QStringLiteral("#e");
    if (size < 2)
        return 0;
    const QList<QByteArray> lines = QByteArray(reinterpret_cast<const char *>(data + 2), int(size - 2)).split('\n');
    WCSSData meant;
    meant.leftBorder = data[0] & 1;
    meant.topBorder = data[0] & 2;
    meant.rightBorder = data[0] & 4;
    meant.bottomBorder = data[0] & 8;
    const bool hasSide = data[0] & 15;
    meant.hasBorders = hasSide || (data[0] & 16);
    meant.borderWidth = data[1];
    meant.backgroundColorSetName = nameFrom(lines.value(0));
    meant.borderColorSetName = nameFrom(lines.value(1));
    meant.textColorSetName = nameFrom(lines.value(2));
    meant.trailingText = QString::fromUtf8(lines.mid(3).join('\n'));

    const QString css = WThemeUtils::convertToWCSS(meant);
    check(css.size() <= 512 + meant.backgroundColorSetName.size() + meant.borderColorSetName.size()
              + meant.textColorSetName.size() + meant.trailingText.size());
    WCSSData read;
    const int logged = warningsOf([&] { read = WThemeUtils::parseCSS(selector, css, sets); });
    if (css.isValidUtf16())
        check(TemplateReference::difference(css, selector, sets, read.styleSheet, logged).isEmpty());

    // A trailing text with directives, or one that goes on with the border, says something of its own.
    const QString rest = meant.trailingText.trimmed();
    if (rest.contains(QLatin1Char('$')) || rest.startsWith(QLatin1String("border")))
        return 0;
    WCSSData expected = meant;
    expected.suppressBorderColor = meant.hasBorders && !hasSide;
    for (QString *text : {&expected.backgroundColorSetName, &expected.borderColorSetName, &expected.textColorSetName,
                          &expected.trailingText})
        *text = text->trimmed();
    if (expected.suppressBorderColor)
        expected.borderColorSetName.clear();
    check(read.suppressBorderColor == expected.suppressBorderColor && read.hasBorders == expected.hasBorders);
    check(read.backgroundColorSetName == expected.backgroundColorSetName);
    check(read.borderColorSetName == expected.borderColorSetName);
    check(read.textColorSetName == expected.textColorSetName && read.trailingText == expected.trailingText);
    check(read.leftBorder == expected.leftBorder && read.topBorder == expected.topBorder);
    check(read.rightBorder == expected.rightBorder && read.bottomBorder == expected.bottomBorder);
    check(!hasSide || read.borderWidth == expected.borderWidth);
    check(WThemeUtils::convertToWCSS(read) == WThemeUtils::convertToWCSS(expected));
    return 0;
}

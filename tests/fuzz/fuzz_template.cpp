// Templates of strangers, against what they mean.
//
// The first byte chooses the selector, and whether the rest is UTF-8 or UTF-16, in which halves of surrogates occur.

#include "../support/Colors.h"
#include "FuzzSupport.h"
#include "TemplateReference.h"

#include <UiElements/theme/StyleTemplate_p.h>

#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const WColorSets sets =
        spelledSets({"a", "b", "theme-gradient-primary-0-background", "theme-gradient-primary-1-background",
                     "gradient-background-primary", "gradient-background-x-dialog"});
    static const WColorSets others = spelledSets({"a", "c"}, 200);
    static const ColorTable table(sets), otherTable(others);
    if (size < 1)
        return 0;
    QString css = QString::fromUtf8(reinterpret_cast<const char *>(data + 1), int(size - 1));
    if (data[0] & 1) {
        css = QString(int(size - 1) / 2, Qt::Uninitialized);
        std::memcpy(css.data(), data + 1, std::size_t(css.size()) * sizeof(QChar));
    }
    const QString selector = data[0] & 2 ? QStringLiteral("#e") : QStringLiteral("WPushButton");

    const StyleTemplate source(css);
    QString sheet;
    const int logged = warningsOf([&] { sheet = source.expand(selector, table); });
    if (css.isValidUtf16()) {
        const QString expected = TemplateReference::difference(css, selector, sets, sheet, logged);
        if (!expected.isEmpty()) {
            std::fprintf(stderr, "%s\nexpands with %d warnings to\n%s\nand not with %s\n", qPrintable(css), logged,
                         qPrintable(sheet), qPrintable(expected));
            abort();
        }
    }
    // In no text is more than three rules of each directive and a color or a selector for each few characters.
    check(sheet.size() <= 4096 + css.size() * (selector.size() + 6));

    // Nothing is left to expand where nothing was found.
    QString plain = css;
    plain.remove(QLatin1Char('$'));
    check(StyleTemplate(plain).expand(selector, table) == plain);
    check(StyleTemplate::withoutDirectives(plain) == plain);
    const QString bare = StyleTemplate::withoutDirectives(css);
    check(bare.size() <= css.size());

    // What another table was written with leaves no trace, and one writing is like the next.
    QString other;
    warningsOf([&] { other = source.expand(selector, otherTable); });
    check(warningsOf([&] { check(source.expand(selector, table) == sheet); }) == logged);
    warningsOf([&] { check(StyleTemplate(css).expand(selector, otherTable) == other); });
    if (!source.needsTwoPasses())
        check((source.contentFor(table) == source.contentFor(otherTable)) == (sheet == other));
    const QString normal = source.expandNormal(selector, table);
    check(normal.size() <= sheet.size() && (normal.isEmpty() || sheet.contains(QLatin1String(":hover{"))));
    return 0;
}

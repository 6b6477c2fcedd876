// What is read of a theme file is what stands in it: with the colors of a palette, or with its own.
//
// The first byte chooses the palette; what follows is the file. A file of both kinds brings its own palette.

#include "FuzzSupport.h"

#include <UiElements/theme/ColorTable_p.h>
#include <UiElements/theme/ThemeFilesManifest_p.h>
#include <UiElements/theme/ThemeFiles_p.h>

#include <QJsonArray>

#include <cmath>
#include <cstdint>

namespace {

const char *const States[] = {"normal", "hovered", "pressed", "disabled", "focused", "checked"};

bool readPart(const QJsonObject &rgba, const char *name, double scale, int *part)
{
    const QJsonValue value = rgba.value(QLatin1String(name));
    const double number = value.toDouble(-1) * scale;
    if (!(number > -1 && number < 256) || (scale == 1 && number != std::floor(number)) || value.toDouble(-1) <= -1)
        return false;
    *part = int(number);
    return *part >= 0;
}

QColor inlineColor(const QJsonObject &rgba)
{
    int r = 0, g = 0, b = 0, a = 0;
    const bool isColor = readPart(rgba, "r", 1, &r) && readPart(rgba, "g", 1, &g) && readPart(rgba, "b", 1, &b)
        && readPart(rgba, "a", 255, &a);
    return isColor ? QColor(r, g, b, a) : QColor();
}

WColorSets expectedSets(const QJsonObject &root, const WPalette &palette)
{
    WColorSets sets;
    const QJsonObject tokens = root.value(QLatin1String("tokens")).toObject();
    // Not by their names, as Qt does not find those that begin with a zero.
    for (auto token = tokens.begin(); token != tokens.end(); ++token) {
        const QString name = token.key();
        const QJsonObject states = token.value().toObject();
        WColorSet set(name);
        bool isSet = false;
        for (int i = 0; i < 6; ++i) {
            const QJsonValue value = states.value(QLatin1String(States[i]));
            isSet = isSet || !value.isUndefined();
            QColor color;
            if (palette.empty())
                color = inlineColor(value.toObject());
            else if (value.isString() && palette.count(value.toString().toStdString()))
                color = palette.at(value.toString().toStdString());
            set.setColor(WColorSet::State(i), color.isValid() ? color : set.normal());
        }
        if (isSet)
            sets.emplace(name.toStdString(), set);
    }
    return sets;
}

QJsonObject written(const WColorSets &sets)
{
    QJsonObject tokens;
    for (const auto &[name, set] : sets) {
        QJsonObject states;
        for (int i = 0; i < 6; ++i) {
            const QColor color = set.color(WColorSet::State(i));
            if (!color.isValid())
                continue;
            states.insert(QLatin1String(States[i]),
                          QJsonObject {{QStringLiteral("r"), color.red()},
                                       {QStringLiteral("g"), color.green()},
                                       {QStringLiteral("b"), color.blue()},
                                       {QStringLiteral("a"), qMin(1.0, (color.alpha() + 0.5) / 255)}});
        }
        tokens.insert(QString::fromStdString(name), states);
    }
    return {{QStringLiteral("tokens"), tokens}};
}

void checkSets(const QJsonObject &root, const WPalette &palette)
{
    ThemeFaults faults;
    WColorSets sets;
    check(warningsOf([&] { sets = ThemeFiles::readColorSets(root, palette, &faults); }) == 0);
    check(warningsOf([&] { check(ThemeFiles::readColorSets(root, palette) == sets); }) == int(faults.size()));
    check(sets == expectedSets(root, palette));

    bool isWhole = true; // a name or a color that cannot be written is not read again
    const ColorTable table(sets);
    for (const auto &[name, set] : sets) {
        isWhole = isWhole && set.normal().isValid() && set.text() == QString::fromStdString(name)
            && !set.text().contains(QChar::Null);
        const int index = table.find(name);
        check(index >= 0);
        for (int i = 0; i < 6; ++i) {
            const auto *hex = table.at(index).hex[i];
            check(QString::fromUtf16(hex, ColorTable::HexLength)
                  == set.color(WColorSet::State(i)).name(QColor::HexArgb));
        }
    }
    if (isWhole && !sets.empty())
        check(warningsOf([&] { check(ThemeFiles::readColorSets(written(sets), {}) == sets); }) == 0);
}

// Whatever families there are, every wish is answered with a file of one of them.
void checkManifest(const QJsonObject &root)
{
    ThemeFaults faults;
    const ThemeManifest manifest = ThemeManifest::read(root, &faults);
    const QStringList names = manifest.names();
    for (const ThemeManifest::Family &family : manifest.families()) {
        check(!family.name.isEmpty() && names.count(family.name) == 1 && manifest.find(family.name) == &family);
        const QStringList files = manifest.filesOf(family);
        for (const bool dark : {false, true}) {
            for (const bool highContrast : {false, true}) {
                const ThemeManifest::Theme theme = manifest.theme(family, dark, highContrast);
                check(!theme.file.isEmpty() && files.contains(theme.file));
                check(highContrast || !theme.highContrast);
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const QByteArray json(reinterpret_cast<const char *>(data + 1), int(size - 1));
    QJsonObject root;
    QString reason;
    int offset = 0;
    if (!ThemeFiles::parseObject(json, &root, &reason, &offset))
        return 0;
    WPalette palette;
    if (data[0] % 3 == 1)
        palette = {{"red", QColor(255, 0, 0)}, {"glass", QColor(0, 0, 255, 7)}, {"", QColor(1, 1, 1)}};
    else if (data[0] % 3 == 2)
        warningsOf([&] { palette = ThemeFiles::readPalette(root); });
    checkSets(root, palette);
    checkManifest(root);
    return 0;
}

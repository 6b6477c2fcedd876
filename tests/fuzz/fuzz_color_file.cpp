// What is read of a color file is what stands in it, and every fault has its place there.

#include "FuzzSupport.h"

#include <UiElements/theme/ThemeFilesPlace_p.h>
#include <UiElements/theme/ThemeFiles_p.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <cstdint>
#include <unordered_set>

namespace {

// The color that r, g, b and a mean, or none.
QColor colorOf(const QJsonObject &rgba)
{
    int parts[4];
    const char *const names[] = {"r", "g", "b", "a"};
    for (int i = 0; i < 4; ++i) {
        const QJsonValue value = rgba.value(QLatin1String(names[i]));
        const double number = i < 3 ? value.toDouble(-1) : std::trunc(value.toDouble(-1) * 255.0);
        if (!(number >= 0 && number <= 255) || number != std::floor(number))
            return QColor();
        parts[i] = int(number);
    }
    return QColor(parts[0], parts[1], parts[2], parts[3]);
}

QJsonObject written(const WPalette &palette)
{
    QJsonArray variations;
    for (const auto &[name, color] : palette) {
        // Half a step more, as alpha is cut off and not rounded.
        const QJsonObject rgba {{QStringLiteral("r"), color.red()},
                                {QStringLiteral("g"), color.green()},
                                {QStringLiteral("b"), color.blue()},
                                {QStringLiteral("a"), qMin(1.0, (color.alpha() + 0.5) / 255)}};
        variations +=
            QJsonObject {{QStringLiteral("name"), QString::fromStdString(name)}, {QStringLiteral("rgba"), rgba}};
    }
    const QJsonObject element {{QStringLiteral("variations"), variations}};
    return QJsonObject {{QStringLiteral("colors"), QJsonArray {element}}};
}

// Follows the keys from the root as far as there is something, and finds the same in the text.
void checkPlace(const QByteArray &json, const QJsonObject &root, const QStringList &keys)
{
    QJsonValue value = root;
    for (int i = 0; i < keys.size(); ++i) {
        const QJsonValue next =
            value.isArray() ? value.toArray().at(keys.at(i).toInt()) : value.toObject().value(keys.at(i));
        // What is missing is the last of the keys: all others were gone through to find the fault.
        check(!next.isUndefined() || i == keys.size() - 1);
        if (next.isUndefined())
            break;
        value = next;
    }
    const int offset = ThemeFilesPlace::offsetOf(json, keys);
    check(offset >= 0 && offset < json.size());
    const char first = json.at(offset);
    check((first == '{') == value.isObject() && (first == '[') == value.isArray()
          && (first == '"') == value.isString());
    const auto place = ThemeFilesPlace::lineAndColumn(json, offset);
    check(place.line >= 1 && place.column >= 1 && place.line + place.column <= json.size() + 2);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    QJsonObject root;
    QString reason;
    int offset = 0;
    if (!ThemeFiles::parseObject(json, &root, &reason, &offset)) {
        // Qt says of a text that ends too early that it does so one behind its end.
        check(root.isEmpty() && !reason.isEmpty() && offset >= -1 && offset <= json.size() + 1);
        return 0;
    }
    check(reason.isEmpty() && offset == -1);

    ThemeFaults faults;
    WPalette palette;
    check(warningsOf([&] { palette = ThemeFiles::readPalette(root, &faults); }) == 0);
    check(warningsOf([&] { check(ThemeFiles::readPalette(root) == palette); }) == int(faults.size()));
    int places = 0;
    for (const ThemeFault &fault : faults) {
        check(!fault.text.isEmpty());
        if (++places <= 50)
            checkPlace(json, root, fault.keys);
    }

    WPalette own; // by their own names, which win over all others
    std::unordered_set<std::string> names;
    const QJsonArray elements = root.value(QLatin1String("colors")).toArray();
    for (const QJsonValue &element : elements) {
        const QJsonArray variations = element.toObject().value(QLatin1String("variations")).toArray();
        for (const QJsonValue &variation : variations) {
            const QJsonObject object = variation.toObject();
            const std::string name = object.value(QLatin1String("name")).toString().toStdString();
            const std::string alias = object.value(QLatin1String("alias")).toString().toStdString();
            const QColor color = colorOf(object.value(QLatin1String("rgba")).toObject());
            names.insert({name, alias});
            if (color.isValid() && !(name.empty() && alias.empty()))
                own[name.empty() ? alias : name] = color;
        }
    }
    for (const auto &[name, color] : own)
        check(palette.count(name) == 1 && palette.at(name) == color);
    for (const auto &[name, color] : palette) {
        check(!name.empty() && names.count(name) == 1);
        check(color.isValid() && color.spec() == QColor::Rgb);
        check(own.count(name) == 1 || std::any_of(own.begin(), own.end(), [&color = color](const auto &entry) {
                  return entry.second == color;
              }));
    }
    if (!palette.empty())
        check(warningsOf([&] { check(ThemeFiles::readPalette(written(palette)) == palette); }) == 0);
    return 0;
}

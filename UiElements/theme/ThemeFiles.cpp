#include "ThemeFiles_p.h"

#include "ThemeFilesPlace_p.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>
#include <vector>

namespace {

// Color files are small (tens of kilobytes); a file of another order is not one.
constexpr qint64 MostBytes = 64 * 1024 * 1024;

QColor colorFromRgba(const QJsonValue &value)
{
    const QJsonObject rgba = value.toObject();
    const double alpha = std::trunc(rgba.value(QLatin1String("a")).toDouble(-1.0) * 255.0);
    const int red = rgba.value(QLatin1String("r")).toInt(-1);
    const int green = rgba.value(QLatin1String("g")).toInt(-1);
    const int blue = rgba.value(QLatin1String("b")).toInt(-1);
    const auto fits = [](double component) {
        return component >= 0 && component <= 255;
    };
    if (!fits(alpha) || !fits(red) || !fits(green) || !fits(blue))
        return QColor();
    return QColor(red, green, blue, int(alpha));
}

QString textOf(const QJsonValue &value)
{
    if (value.isString())
        return value.toString();
    const QByteArray text = QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, qMin(text.size() - 2, 200)));
}

void report(ThemeFaults *faults, const QStringList &keys, const QString &text, const char *logged, const QString &name)
{
    if (faults)
        faults->push_back({keys, text});
    else
        qWarning() << logged << name;
}

constexpr char Unresolved[] = "Unable to parse colors.json! The color: ";
constexpr char Invalid[] = "Invalid color for: ";

QString rgbaExpected(const QString &name)
{
    return QStringLiteral("\"%1\" needs \"r\", \"g\" and \"b\" from 0 to 255 and \"a\" from 0 to 1").arg(name);
}

// One color of a color file, by its place.
struct Variation
{
    int element = 0;
    int index = 0;

    QStringList keys(const char *member = nullptr) const
    {
        QStringList keys {QStringLiteral("colors"), QString::number(element), QStringLiteral("variations"),
                          QString::number(index)};
        if (member)
            keys << QLatin1String(member);
        return keys;
    }
};

// A missing name is nobody's fault, one that is no text is reported.
QString nameFrom(const QJsonObject &variation, const char *member, const Variation &place, ThemeFaults *faults)
{
    const QJsonValue value = variation.value(QLatin1String(member));
    if (!value.isString() && !value.isUndefined() && !value.isNull()) {
        const QString text = textOf(value);
        report(faults, place.keys(member), QStringLiteral("\"%1\" is a text, not %2").arg(QLatin1String(member), text),
               Unresolved, text);
    }
    return value.toString();
}

struct Reference
{
    std::string name;
    Variation place;
};
using References = std::unordered_map<std::string, Reference>;

// A variation may name another color instead of giving one. Chains are followed to their end; one that ends in no
// color, or in itself, is reported for each name in it.
void resolveReferences(const References &references, const std::vector<std::string> &order, WPalette *palette,
                       ThemeFaults *faults)
{
    std::unordered_map<std::string, bool> seen;
    for (const std::string &first : order) {
        std::vector<std::string> chain;
        std::string name = first;
        while (palette->find(name) == palette->end() && references.count(name) && !seen[name]) {
            seen[name] = true;
            chain.push_back(name);
            name = references.at(name).name;
        }
        const auto found = palette->find(name);
        if (found == palette->end()) {
            for (const std::string &link : chain) {
                const Reference &reference = references.at(link);
                const QString lost = QString::fromStdString(link);
                report(faults, reference.place.keys("alias"),
                       QStringLiteral("\"%1\" stands for \"%2\", which is no color")
                           .arg(lost, QString::fromStdString(reference.name)),
                       Unresolved, lost);
            }
            continue;
        }
        const QColor color = found->second;
        for (const std::string &link : chain)
            palette->emplace(link, color);
    }
}

} // namespace

bool ThemeFiles::readBytes(const QString &path, QByteArray *bytes, QString *reason)
{
    QFile file(path);
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) { // a pipe would keep us waiting
        *reason = QStringLiteral("not a file");
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return false;
    }
    *bytes = file.read(MostBytes + 1);
    if (bytes->size() > MostBytes)
        *reason = QStringLiteral("the file is larger than 64 MiB");
    else if (file.error() != QFile::NoError)
        *reason = file.errorString();
    else
        return true;
    bytes->clear();
    return false;
}

bool ThemeFiles::parseObject(const QByteArray &bytes, QJsonObject *root, QString *reason, int *offset)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    *offset = error.error == QJsonParseError::NoError ? -1 : error.offset;
    *root = document.object();
    if (error.error != QJsonParseError::NoError)
        *reason = error.errorString();
    else if (!document.isObject())
        *reason = QStringLiteral("the root is not an object");
    else
        return true;
    return false;
}

QJsonObject ThemeFiles::readObject(const QString &path, bool *ok)
{
    QByteArray bytes;
    QJsonObject root;
    QString reason;
    int offset = -1;
    const bool isRead = readBytes(path, &bytes, &reason) && parseObject(bytes, &root, &reason, &offset);
    if (ok)
        *ok = isRead;
    if (isRead)
        return root;
    if (offset >= 0) {
        const auto place = ThemeFilesPlace::lineAndColumn(bytes, offset);
        reason += QStringLiteral(" at byte %1, line %2, column %3").arg(offset).arg(place.line).arg(place.column);
    }
    qWarning().noquote() << QStringLiteral("WThemeUtils::readJsonObject - %1: %2").arg(path, reason);
    return QJsonObject();
}

WPalette ThemeFiles::readPalette(const QJsonObject &root, ThemeFaults *faults)
{
    WPalette palette;
    const QJsonValue colors = root.value(QLatin1String("colors"));
    if (!colors.isArray()) {
        if (faults)
            faults->push_back({{QStringLiteral("colors")}, QStringLiteral("there is no array \"colors\"")});
        else
            qWarning("Could not find the 'colors' array in the json file");
        return palette;
    }
    std::vector<std::pair<std::string, std::string>> aliases; // alias, name
    References references;
    std::vector<std::string> referenceOrder;
    const QJsonArray elements = colors.toArray();
    Variation place;
    for (place.element = 0; place.element < elements.size(); ++place.element) {
        const QJsonValue element = elements.at(place.element);
        const QJsonValue variations = element.toObject().value(QLatin1String("variations"));
        if (!variations.isArray()) {
            report(faults, {QStringLiteral("colors"), QString::number(place.element), QStringLiteral("variations")},
                   QStringLiteral("there is no array \"variations\""), Unresolved, textOf(element));
            continue;
        }
        const QJsonArray list = variations.toArray();
        for (place.index = 0; place.index < list.size(); ++place.index) {
            const QJsonObject variation = list.at(place.index).toObject();
            QString name = nameFrom(variation, "name", place, faults);
            QString alias = nameFrom(variation, "alias", place, faults);
            if (name.isEmpty())
                name.swap(alias);
            if (name.isEmpty()) {
                report(faults, place.keys(), QStringLiteral("a color without a name"), Unresolved,
                       textOf(list.at(place.index)));
                continue;
            }
            const QJsonValue rgba = variation.value(QLatin1String("rgba"));
            if (rgba.isUndefined() && !alias.isEmpty()) {
                if (references.emplace(name.toStdString(), Reference {alias.toStdString(), place}).second)
                    referenceOrder.push_back(name.toStdString());
                continue;
            }
            const QColor color = colorFromRgba(rgba);
            if (!color.isValid()) {
                report(faults, place.keys("rgba"), rgbaExpected(name), Invalid, name);
                continue;
            }
            palette[name.toStdString()] = color;
            if (!alias.isEmpty())
                aliases.emplace_back(alias.toStdString(), name.toStdString());
        }
    }
    // A color's own name wins over another color's alias, wherever the two stand.
    for (const auto &[alias, name] : aliases) {
        const QColor color = palette.at(name);
        palette.emplace(alias, color);
    }
    resolveReferences(references, referenceOrder, &palette, faults);
    return palette;
}

WColorSets ThemeFiles::readColorSets(const QJsonObject &root, const WPalette &palette, ThemeFaults *faults)
{
    WColorSets sets;
    const QJsonObject tokens = root.value(QLatin1String("tokens")).toObject();
    if (tokens.isEmpty()) {
        if (faults)
            faults->push_back(
                {{QStringLiteral("tokens")}, QStringLiteral("there is no object \"tokens\" with color sets")});
        else
            qWarning("Could not find the 'tokens' object in the json file");
        return sets;
    }
    sets.reserve(std::size_t(tokens.size()));
    for (auto token = tokens.begin(); token != tokens.end(); ++token) {
        const QJsonObject states = token.value().toObject();
        WColorSet set(token.key());
        bool anyState = false;
        for (int i = 0; i < WColorSet::StateCount; ++i) {
            const auto state = WColorSet::State(i);
            const QString stateName = WColorSet::stateNames().at(i);
            const QJsonValue value = states.value(stateName);
            QColor color;
            if (!value.isUndefined()) {
                anyState = true;
                const auto reportState = [&](const QString &text, const char *logged, const QString &name) {
                    report(faults, {QStringLiteral("tokens"), token.key(), stateName}, text, logged, name);
                };
                const QString place = token.key() + QLatin1Char('.') + stateName;
                if (palette.empty()) {
                    color = colorFromRgba(value);
                    if (!color.isValid())
                        reportState(rgbaExpected(place), Invalid, place);
                } else {
                    const auto found = value.isString() ? palette.find(value.toString().toStdString()) : palette.end();
                    if (found != palette.end())
                        color = found->second;
                    else if (value.isString())
                        reportState(QStringLiteral("\"%1\": there is no color \"%2\"").arg(place, value.toString()),
                                    Unresolved, value.toString());
                    else
                        reportState(QStringLiteral("\"%1\" is the name of a color, not %2").arg(place, textOf(value)),
                                    Unresolved, textOf(value));
                }
            }
            set.setColor(state, color.isValid() || state == WColorSet::Normal ? color : set.normal());
        }
        if (!anyState) {
            report(faults, {QStringLiteral("tokens"), token.key()},
                   QStringLiteral("the color set \"%1\" has no color for any state").arg(token.key()),
                   "Unable to parse ColorSet: ", token.key());
            continue;
        }
        sets.emplace(token.key().toStdString(), set);
    }
    return sets;
}

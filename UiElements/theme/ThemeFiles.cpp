#include "ThemeFiles_p.h"

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

void reportUnresolved(const QString &color)
{
    qWarning() << "Unable to parse colors.json! The color: " << color;
}

// A missing name is nobody's fault, one that is no text is reported.
QString nameFrom(const QJsonValue &value)
{
    if (!value.isString() && !value.isUndefined() && !value.isNull())
        reportUnresolved(textOf(value));
    return value.toString();
}

// A variation may name another color instead of giving one. Chains are followed to their end; one that ends in no
// color, or in itself, is reported for each name in it.
void resolveReferences(const std::unordered_map<std::string, std::string> &references,
                       const std::vector<std::string> &order, WPalette *palette)
{
    std::unordered_map<std::string, bool> seen;
    for (const std::string &first : order) {
        std::vector<std::string> chain;
        std::string name = first;
        while (palette->find(name) == palette->end() && references.count(name) && !seen[name]) {
            seen[name] = true;
            chain.push_back(name);
            name = references.at(name);
        }
        const auto found = palette->find(name);
        if (found == palette->end()) {
            for (const std::string &lost : chain)
                reportUnresolved(QString::fromStdString(lost));
            continue;
        }
        const QColor color = found->second;
        for (const std::string &link : chain)
            palette->emplace(link, color);
    }
}

} // namespace

QJsonObject ThemeFiles::readObject(const QString &path, bool *ok)
{
    if (ok)
        *ok = false;
    const auto refuse = [&path](const QString &reason) {
        qWarning().noquote() << QStringLiteral("WThemeUtils::readJsonObject - %1: %2").arg(path, reason);
        return QJsonObject();
    };
    QFile file(path);
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) // a pipe would keep us waiting
        return refuse(QStringLiteral("not a file"));
    if (!file.open(QIODevice::ReadOnly))
        return refuse(file.errorString());
    const QByteArray bytes = file.read(MostBytes + 1);
    if (bytes.size() > MostBytes)
        return refuse(QStringLiteral("the file is larger than 64 MiB"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return refuse(QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset));
    if (!document.isObject())
        return refuse(QStringLiteral("the root is not an object"));
    if (ok)
        *ok = true;
    return document.object();
}

WPalette ThemeFiles::readPalette(const QJsonObject &root)
{
    WPalette palette;
    const QJsonValue colors = root.value(QLatin1String("colors"));
    if (!colors.isArray()) {
        qWarning("Could not find the 'colors' array in the json file");
        return palette;
    }
    std::vector<std::pair<std::string, std::string>> aliases; // alias, name
    std::unordered_map<std::string, std::string> references;
    std::vector<std::string> referenceOrder;
    const QJsonArray elements = colors.toArray();
    for (const QJsonValue &element : elements) {
        const QJsonValue variations = element.toObject().value(QLatin1String("variations"));
        if (!variations.isArray()) {
            reportUnresolved(textOf(element));
            continue;
        }
        const QJsonArray list = variations.toArray();
        for (const QJsonValue &value : list) {
            const QJsonObject variation = value.toObject();
            QString name = nameFrom(variation.value(QLatin1String("name")));
            QString alias = nameFrom(variation.value(QLatin1String("alias")));
            if (name.isEmpty())
                name.swap(alias);
            if (name.isEmpty()) {
                reportUnresolved(textOf(value));
                continue;
            }
            const QJsonValue rgba = variation.value(QLatin1String("rgba"));
            if (rgba.isUndefined() && !alias.isEmpty()) {
                if (references.emplace(name.toStdString(), alias.toStdString()).second)
                    referenceOrder.push_back(name.toStdString());
                continue;
            }
            const QColor color = colorFromRgba(rgba);
            if (!color.isValid()) {
                qWarning() << "Invalid color for: " << name;
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
    resolveReferences(references, referenceOrder, &palette);
    return palette;
}

WColorSets ThemeFiles::readColorSets(const QJsonObject &root, const WPalette &palette)
{
    WColorSets sets;
    const QJsonObject tokens = root.value(QLatin1String("tokens")).toObject();
    if (tokens.isEmpty()) {
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
            const QJsonValue value = states.value(WColorSet::stateNames().at(i));
            QColor color;
            if (!value.isUndefined()) {
                anyState = true;
                if (palette.empty()) {
                    color = colorFromRgba(value);
                    if (!color.isValid())
                        qWarning() << "Invalid color for: "
                                   << token.key() + QLatin1Char('.') + WColorSet::stateNames().at(i);
                } else {
                    const auto found = value.isString() ? palette.find(value.toString().toStdString()) : palette.end();
                    if (found != palette.end())
                        color = found->second;
                    else
                        reportUnresolved(textOf(value));
                }
            }
            set.setColor(state, color.isValid() || state == WColorSet::Normal ? color : set.normal());
        }
        if (!anyState) {
            qWarning() << "Unable to parse ColorSet: " << token.key();
            continue;
        }
        sets.emplace(token.key().toStdString(), set);
    }
    return sets;
}

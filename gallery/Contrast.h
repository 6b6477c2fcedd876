#pragma once

#include <QColor>
#include <QString>

#include <algorithm>
#include <cmath>

/// How far two colors are apart for the eye, and how far they have to be.
namespace Contrast {

/// What is seen of a color that lies over an opaque one.
inline QColor over(const QColor &top, const QColor &below)
{
    const double alpha = top.alphaF();
    const auto mix = [alpha](double a, double b) {
        return a * alpha + b * (1 - alpha);
    };
    return QColor::fromRgbF(mix(top.redF(), below.redF()), mix(top.greenF(), below.greenF()),
                            mix(top.blueF(), below.blueF()));
}

/// The relative luminance of WCAG 2.
inline double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of WCAG 2, from 1 to 21.
inline double ratio(const QColor &a, const QColor &b)
{
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

/// What the color set of this name is for.
enum class Kind {
    Text, ///< text, and icons in the color of text
    Mark, ///< an edge, a dot or a bar that says something
    Ground, ///< what others lie on
    Decoration ///< seen or not, nothing is lost: a line between panes, a shadow
};

inline Kind kindOf(const QString &set)
{
    const auto isOne = [&set](std::initializer_list<const char *> names) {
        return std::any_of(names.begin(), names.end(), [&set](const char *n) { return set == QLatin1String(n); });
    };
    if (set.startsWith(QLatin1String("text-")) || set.endsWith(QLatin1String("-text")))
        return Kind::Text;
    // Tracks are known by their fill, and panes stand apart without their lines.
    if (isOne({"outline-secondary", "list-border", "header-border", "menu-border", "menu-separator", "dialog-border",
               "tooltip-border", "progress-track-border", "splitter-handle-background", "shadow"})
        || set.contains(QLatin1String("-track-")))
        return Kind::Decoration;
    if (set.startsWith(QLatin1String("outline-")) || set.startsWith(QLatin1String("presence-"))
        || set.endsWith(QLatin1String("-border")) || set.endsWith(QLatin1String("-mark"))
        || isOne({"qx-defaultBorderForButton", "slider-fill-background", "progress-fill-background",
                  "scrollbar-handle-background", "badge-background", "qx-unreadCountCircle-background"}))
        return Kind::Mark;
    return Kind::Ground;
}

inline double needed(Kind kind, bool highContrast)
{
    switch (kind) {
    case Kind::Text: return highContrast ? 7 : 4.5;
    case Kind::Mark: return highContrast ? 4.5 : 3;
    default: return 1;
    }
}

} // namespace Contrast

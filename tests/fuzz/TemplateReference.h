#pragma once

#include <UiElements/theme/WColorSet.h>

#include <QRegularExpression>
#include <QString>
#include <QStringList>

/// What a template means, said a second time: slowly, step by step, and with nothing of the library but its values.
namespace TemplateReference {

struct Expansion
{
    QString rules; ///< of the directives
    QString rest; ///< of the template
    QString names[3]; ///< of the color sets
    QString borders; ///< the text of the sides
    QString radius;
    bool left = false, top = false, right = false, bottom = false;
    bool hasBorders = false;
    bool hasDirectives = false;
    bool hasOpenDirective = false; ///< one without ";" is left in the rest
    bool focus = false;
    int warnings = 0;
};

inline QString colorText(const WColorSets &sets, const QString &name, int state, int *warnings)
{
    const auto found = sets.find(name.toStdString());
    *warnings += found == sets.end() && !name.isEmpty();
    const bool known = found != sets.end() && state >= 0;
    return (known ? found->second.color(WColorSet::State(state)) : QColor()).name(QColor::HexArgb);
}

/// A text that is no valid UTF-16 cannot be read by a regular expression.
inline QString withColors(const QString &css, const WColorSets &sets, int *warnings)
{
    static const QRegularExpression token(QStringLiteral("\\$\\(.*?\\)"));
    QString out;
    int pos = 0;
    for (auto matches = token.globalMatch(css); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        out += css.midRef(pos, match.capturedStart() - pos);
        pos = match.capturedEnd();
        const QString inside = match.captured().mid(2, match.capturedLength() - 3);
        const int dot = inside.indexOf(QLatin1Char('.'));
        if (dot < 0) {
            ++*warnings;
            out += match.captured();
            continue;
        }
        static const QStringList states {QStringLiteral("normal"),  QStringLiteral("hovered"),
                                         QStringLiteral("pressed"), QStringLiteral("disabled"),
                                         QStringLiteral("focused"), QStringLiteral("checked")};
        const int state = states.indexOf(inside.mid(dot + 1));
        *warnings += state < 0;
        out += colorText(sets, inside.left(dot), state, warnings);
    }
    return out + css.mid(pos);
}

/// The text up to the next ";", and out of the template with it.
inline bool take(const char *directive, QString *css, QString *value)
{
    const QString head = QLatin1String(directive);
    const int start = css->indexOf(head);
    const int end = start < 0 ? -1 : css->indexOf(QLatin1Char(';'), start);
    if (end < 0)
        return false;
    *value = css->mid(start + head.size(), end - start - head.size()).trimmed();
    css->remove(start, end + 1 - start);
    return true;
}

inline QStringList words(const QString &value)
{
    static const QRegularExpression gap(QStringLiteral("[\\s,]+"), QRegularExpression::UseUnicodePropertiesOption);
    return value.toLower().split(gap, Qt::SkipEmptyParts);
}

inline bool isLength(const QString &word, int *pixels)
{
    static const QRegularExpression length(QStringLiteral("\\A(?:\\+?0*(\\d{1,9})|-0+)(?:px)?\\z"));
    const auto match = length.match(word);
    if (match.hasMatch())
        *pixels = qMin(match.captured(1).toInt(), 32767);
    return match.hasMatch();
}

inline Expansion expand(const QString &css, const QString &selector, const WColorSets &sets)
{
    Expansion out;
    QString rest = withColors(css, sets, &out.warnings);
    const int length = rest.size();

    QString width, sides, radius;
    take("$borderWidth:", &rest, &width);
    out.hasBorders = take("$borders:", &rest, &sides);
    take("$borderRadius:", &rest, &radius);

    int pixels = 1;
    const QStringList widths = words(width);
    if (!widths.isEmpty() && (widths.size() > 1 || !isLength(widths.first(), &pixels)))
        ++out.warnings;
    if (out.hasBorders) {
        bool isUnderstood = true;
        const QStringList sideWords = words(sides);
        for (const QString &side : sideWords) {
            const bool all = side == QLatin1String("all");
            const bool left = all || side == QLatin1String("left"), top = all || side == QLatin1String("top");
            const bool right = all || side == QLatin1String("right"), bottom = all || side == QLatin1String("bottom");
            out.left |= left;
            out.top |= top;
            out.right |= right;
            out.bottom |= bottom;
            isUnderstood = isUnderstood && (left || top || right || bottom || side == QLatin1String("none"));
        }
        out.warnings += !isUnderstood;
        if (out.left && out.top && out.right && out.bottom)
            out.borders = QStringLiteral("border-style:solid; border-width:%1px;").arg(pixels);
        else if (!out.left && !out.top && !out.right && !out.bottom)
            out.borders = QStringLiteral("border:none;");
        else
            out.borders = QStringLiteral("border-style:solid;")
                + (out.left ? QStringLiteral("border-left-width:%1px;").arg(pixels) : QString())
                + (out.bottom ? QStringLiteral("border-bottom-width:%1px;").arg(pixels) : QString())
                + (out.right ? QStringLiteral("border-right-width:%1px;").arg(pixels) : QString())
                + (out.top ? QStringLiteral("border-top-width:%1px;").arg(pixels) : QString());
    }

    static const QStringList corners {QStringLiteral("top-left"), QStringLiteral("top-right"),
                                      QStringLiteral("bottom-left"), QStringLiteral("bottom-right")};
    bool hasNumber = false, isTop = false, isUnderstood = true;
    QStringList named;
    const QStringList radiusWords = words(radius);
    for (const QString &word : radiusWords) {
        int number = 0;
        if (!hasNumber && isLength(word, &number)) {
            hasNumber = true;
            pixels = number;
        } else if (corners.contains(word)) {
            named << word;
        } else if (word == QLatin1String("top")) {
            isTop = true;
        } else if (word == QLatin1String("focus")) {
            out.focus = true;
        } else {
            isUnderstood = false;
        }
    }
    out.focus = out.focus && hasNumber;
    out.warnings += !isUnderstood || (!hasNumber && !radiusWords.isEmpty());
    if (hasNumber && isTop)
        out.radius = QStringLiteral("border-top-left-radius:%1px; border-top-right-radius:%1px;").arg(pixels);
    else if (hasNumber && named.isEmpty())
        out.radius = QStringLiteral("border-radius:%1px;").arg(pixels);
    for (const QString &corner : corners) {
        if (!hasNumber || !named.contains(corner) || (isTop && corner.startsWith(QLatin1String("top"))))
            continue;
        out.radius +=
            QLatin1String(isTop ? " " : "") + QStringLiteral("border-%1-radius:%2px;").arg(corner).arg(pixels);
    }
    if (!out.borders.isEmpty() || !out.radius.isEmpty())
        out.rules = selector + QLatin1Char('{') + out.borders + out.radius + QLatin1String("} ");

    static const char *const colors[] = {"$backgroundColors:", "$borderColors:", "$textColors:"};
    static const char *const properties[] = {"background-color:", "border-color:", "color:"};
    for (int i = 0; i < 3; ++i) {
        QString untouched = rest;
        take(colors[i], &untouched, &out.names[i]);
        const QString &name = out.names[i];
        if (name.isEmpty())
            continue;
        const QString marker = QStringLiteral("gradient-background-");
        const bool isGradient = i == 0 && name.contains(marker);
        if (isGradient) {
            QString pair = name.mid(name.indexOf(marker) + marker.size()) == QLatin1String("primary")
                ? QStringLiteral("primary")
                : QStringLiteral("secondary");
            if (name.endsWith(QLatin1String("-dialog")))
                pair = QStringLiteral("dialog-secondary");
            const QString stop = QStringLiteral("theme-gradient-%1-%2-background");
            out.rules += selector + QLatin1String("{background: qlineargradient(x1:1 y1:1, x2:1 y2:0, stop:0 ")
                + colorText(sets, stop.arg(pair).arg(0), 0, &out.warnings) + QLatin1String(", stop:1 ")
                + colorText(sets, stop.arg(pair).arg(1), 0, &out.warnings) + QLatin1String("); } ");
        }
        // The later wins: disabled over pressed over hovered over focused over checked, but a focused color that is
        // the normal one does not win over checked.
        const auto found = sets.find(name.toStdString());
        const bool showsFocus = found != sets.end() && found->second.focused() != found->second.normal();
        out.warnings += found == sets.end();
        struct Rule
        {
            int state;
            const char *suffix;
        };
        const Rule checked {5, ":checked"}, focus {4, ":focus"};
        for (const Rule &rule : {Rule {0, ""}, showsFocus ? checked : focus, showsFocus ? focus : checked,
                                 Rule {1, ":hover"}, Rule {2, ":pressed"}, Rule {3, ":disabled"}}) {
            int unused = 0;
            if (rule.state > 0 || !isGradient)
                out.rules += selector + QLatin1String(rule.suffix) + QLatin1Char('{') + QLatin1String(properties[i])
                    + colorText(sets, name, rule.state, &unused) + QLatin1String(";} ");
        }
    }

    for (const char *directive :
         {"$backgroundColors:", "$borderColors:", "$textColors:", "$borders:", "$borderRadius:", "$borderWidth:"}) {
        QString ignored;
        while (take(directive, &rest, &ignored))
            ;
    }
    for (const char *directive :
         {"$backgroundColors:", "$borderColors:", "$textColors:", "$borders:", "$borderRadius:", "$borderWidth:"})
        out.hasOpenDirective = out.hasOpenDirective || rest.contains(QLatin1String(directive));
    out.hasDirectives = rest.size() != length;
    out.rest = out.hasDirectives ? rest.trimmed() : rest;
    return out;
}

/// True if `sheet` is `rest`, but for the selector and the braces that declarations outside any rule were given.
inline bool isWrapped(QString sheet, QString rest, const QString &selector)
{
    const QString opening = selector + QLatin1Char('{');
    const int wrappers = sheet.count(opening) - rest.count(opening);
    if (sheet.count(QLatin1Char('}')) - rest.count(QLatin1Char('}')) != wrappers)
        return false;
    for (QString *text : {&sheet, &rest})
        text->remove(opening).remove(QLatin1Char('}')).remove(QLatin1Char(' '));
    return sheet == rest;
}

/// Empty where `sheet`, which was logged so many warnings for, is what the template means; otherwise what was expected.
inline QString difference(const QString &css, const QString &selector, const WColorSets &sets, const QString &sheet,
                          int warnings)
{
    const Expansion expected = expand(css, selector, sets);
    bool isSame = sheet.startsWith(expected.rules);
    // What is left of a directive without its ";" is cut out, which Qt's parser wants and nothing else does.
    if (expected.hasOpenDirective) {
        isSame = isSame && warnings > expected.warnings;
    } else {
        const QString rest = sheet.mid(expected.rules.size());
        isSame = isSame && warnings == expected.warnings
            && (expected.hasDirectives ? isWrapped(rest, expected.rest, selector) : rest == expected.rest);
    }
    return isSame ? QString()
                  : QStringLiteral("%1 warnings: %2|%3").arg(expected.warnings).arg(expected.rules, expected.rest);
}

} // namespace TemplateReference

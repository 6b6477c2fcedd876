#include "SampleThemes.h"

#include <QRegularExpression>

namespace {

const char *const Names[] = {
    "button-primary-background",
    "button-primary-border",
    "button-primary-text",
    "button-secondary-background",
    "button-secondary-border",
    "button-secondary-text",
    "text-primary",
    "text-secondary",
    "text-accent",
    "background-primary",
    "background-secondary",
    "background-card",
    "outline-primary",
    "outline-secondary",
};

// The colors are as good as random but the same in every run.
class Colors
{
public:
    explicit Colors(bool dark)
        : m_seed(dark ? 77 : 11)
        , m_dark(dark)
    {
    }

    WColorSet next(const QString &name)
    {
        WColorSet set(name);
        const bool isText = name.contains(QLatin1String("text"));
        const QColor normal = color(isText);
        set.fill(normal);
        // As in most themes: what is pressed shows all its states, a text the disabled one, the rest none.
        if (name.startsWith(QLatin1String("button")) || name.startsWith(QLatin1String("filler"))) {
            set.setColor(WColorSet::Hovered, color(isText));
            set.setColor(WColorSet::Pressed, color(isText));
            set.setColor(WColorSet::Checked, set.pressed());
            set.setColor(WColorSet::Disabled, color(isText));
        } else if (isText) {
            set.setColor(WColorSet::Disabled, color(isText));
        }
        return set;
    }

private:
    QColor color(bool isText)
    {
        const int base = m_dark == isText ? 200 : 30;
        const int red = base + part(), green = base + part();
        return QColor(red, green, base + part());
    }
    int part() { return int((m_seed = m_seed * 1664525u + 1013904223u) >> 24) % 50; }

    quint32 m_seed;
    bool m_dark;
};

QString takeValue(const QString &directive, QString *css)
{
    const int start = css->indexOf(directive);
    const int end = start < 0 ? -1 : css->indexOf(QLatin1Char(';'), start);
    if (end < 0)
        return QString();
    const QString value = css->mid(start + directive.size(), end - start - directive.size()).trimmed();
    css->remove(start, end + 1 - start);
    return value;
}

WColorSet copyOfSet(const QString &name, const WColorSets &sets)
{
    const auto found = sets.find(name.toStdString());
    return found == sets.end() ? WColorSet() : found->second;
}

} // namespace

WColorSets samples::colorSets(bool dark)
{
    WColorSets sets;
    Colors colors(dark);
    for (const char *name : Names)
        sets.emplace(name, colors.next(QString::fromLatin1(name)));
    for (int i = 0; i < 600; ++i) {
        const QString name = QStringLiteral("filler-color-set-number-%1").arg(i);
        sets.emplace(name.toStdString(), colors.next(name));
    }
    return sets;
}

QString samples::referenceTemplate()
{
    return QStringLiteral(
        "$backgroundColors: button-primary-background; $borderColors: button-primary-border; "
        "$textColors: button-primary-text; "
        "WPushButton { padding: 4px 12px; margin: 0px; font-weight: 600; color: $(button-secondary-text.normal); "
        "border: 1px solid $(button-secondary-border.normal); selection-color: $(text-accent.normal); "
        "selection-background-color: $(background-card.normal); } "
        "WPushButton:hover { color: $(button-secondary-text.hovered); "
        "border-color: $(button-secondary-border.hovered); } "
        "WPushButton:pressed { color: $(button-secondary-text.pressed); "
        "border-color: $(button-secondary-border.pressed); } "
        "WPushButton:disabled { color: $(button-secondary-text.disabled); } "
        "WPushButton::menu-indicator { background: $(outline-primary.normal); }");
}

QString samples::widgetTemplate(Look look)
{
    switch (look) {
    case PrimaryButton:
        return QStringLiteral("$backgroundColors: button-primary-background; $borderColors: button-primary-border; "
                              "$textColors: button-primary-text; $borders: all; $borderWidth: 1; $borderRadius: 6; "
                              "QRadioButton { padding: 1px 4px; }");
    case SecondaryButton:
        return QStringLiteral(
            "QRadioButton { color: $(button-secondary-text.normal); "
            "background-color: $(button-secondary-background.normal); "
            "border: 1px solid $(button-secondary-border.normal); border-radius: 4px; padding: 1px 4px; } "
            "QRadioButton:hover { background-color: $(button-secondary-background.hovered); "
            "border-color: $(button-secondary-border.hovered); } "
            "QRadioButton:pressed { background-color: $(button-secondary-background.pressed); } "
            "QRadioButton:disabled { color: $(button-secondary-text.disabled); }");
    case Label: return QStringLiteral("$textColors: text-primary;");
    case SecondaryLabel:
        return QStringLiteral("QFrame { color: $(text-secondary.normal); background: transparent; padding: 1px; } "
                              "QFrame:disabled { color: $(text-secondary.disabled); }");
    case Panel:
        return QStringLiteral("$backgroundColors: background-primary; $borderColors: outline-primary; "
                              "$borders: bottom; $borderWidth: 1;");
    case Card:
        return QStringLiteral("QFrame { background-color: $(background-card.normal); "
                              "border: 1px solid $(outline-secondary.normal); border-radius: 6px; }");
    }
    return QString();
}

QString samples::expandLiterally(const QString &selector, const QString &css, const WColorSets &sets)
{
    const QRegularExpression token(QStringLiteral("\\$\\(.*?\\)"));
    QString rest = css;
    int shift = 0;
    QRegularExpressionMatchIterator matches = token.globalMatch(css);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString whole = match.captured(0);
        const QString inner = whole.mid(2, whole.size() - 3);
        const int dot = inner.indexOf(QLatin1Char('.'));
        if (dot < 0)
            continue;
        const QString color = copyOfSet(inner.left(dot), sets).color(inner.mid(dot + 1)).name(QColor::HexArgb);
        rest.replace(match.capturedStart(0) + shift, whole.size(), color);
        shift += color.size() - whole.size();
    }

    const QString width = takeValue(QStringLiteral("$borderWidth:"), &rest);
    const QString sides = takeValue(QStringLiteral("$borders:"), &rest);
    const QString radius = takeValue(QStringLiteral("$borderRadius:"), &rest);
    QString names[3];
    names[0] = takeValue(QStringLiteral("$backgroundColors:"), &rest);
    names[1] = takeValue(QStringLiteral("$borderColors:"), &rest);
    names[2] = takeValue(QStringLiteral("$textColors:"), &rest);
    if (shift != rest.size() - css.size())
        rest = rest.trimmed();

    QString geometry;
    if (sides == QLatin1String("all")) {
        geometry += QStringLiteral("border-style:solid; border-width:%1px;").arg(width.toInt());
    } else if (!sides.isEmpty()) {
        geometry += QStringLiteral("border-style:solid;");
        for (const char *side : {"left", "bottom", "right", "top"}) {
            if (sides.contains(QLatin1String(side)))
                geometry += QStringLiteral("border-%1-width:%2px;").arg(QLatin1String(side)).arg(width.toInt());
        }
    }
    if (!radius.isEmpty())
        geometry += QStringLiteral("border-radius:%1px;").arg(radius.toInt());

    QString rules;
    if (!geometry.isEmpty())
        rules += selector + QStringLiteral("{") + geometry + QStringLiteral("} ");
    const QStringList properties {QStringLiteral("background-color:"), QStringLiteral("border-color:"),
                                  QStringLiteral("color:")};
    const QHash<QString, QString> suffixes {{QStringLiteral("normal"), QString()},
                                            {QStringLiteral("hovered"), QStringLiteral(":hover")},
                                            {QStringLiteral("pressed"), QStringLiteral(":pressed")},
                                            {QStringLiteral("disabled"), QStringLiteral(":disabled")},
                                            {QStringLiteral("focused"), QStringLiteral(":focus")},
                                            {QStringLiteral("checked"), QStringLiteral(":checked")}};
    for (int i = 0; i < 3; ++i) {
        if (names[i].isEmpty())
            continue;
        const WColorSet set = copyOfSet(names[i], sets);
        QStringList states {QStringLiteral("normal"),  QStringLiteral("focused"), QStringLiteral("checked"),
                            QStringLiteral("hovered"), QStringLiteral("pressed"), QStringLiteral("disabled")};
        if (set.focused() != set.normal())
            states.swapItemsAt(1, 2);
        for (const QString &state : states)
            rules += selector + suffixes.value(state) + QStringLiteral("{") + properties.at(i)
                + set.color(state).name(QColor::HexArgb) + QStringLiteral(";} ");
    }
    return rules + rest;
}

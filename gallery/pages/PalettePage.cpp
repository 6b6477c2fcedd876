#include "PalettePage.h"

#include "ColorSwatches.h"
#include "Contrast.h"
#include "Label.h"
#include "SearchField.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QJsonArray>
#include <QJsonObject>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Contrast::Kind;

// What is seen together.
struct Seen
{
    QString front;
    QString ground;
    QString below; // shows where the ground is translucent
    bool together; // the ground has the state of the front
};

QString stemOf(const QString &set)
{
    return set.left(set.lastIndexOf(QLatin1Char('-')));
}

// The set that a set is looked at with: text with its ground, a ground with its text, an edge with the window.
Seen seenWith(const QString &set, const WColorSets &sets)
{
    const auto exists = [&sets](const QString &name) {
        return sets.count(name.toStdString()) > 0;
    };
    const auto special = [&set](std::initializer_list<std::pair<const char *, const char *>> pairs, const char *other) {
        for (const auto &[name, partner] : pairs) {
            if (set.startsWith(QLatin1String(name)))
                return QString::fromLatin1(partner);
        }
        return QString::fromLatin1(other);
    };
    const Kind kind = Contrast::kindOf(set);
    Seen seen {set, set, QStringLiteral("background-primary"), true};
    if (kind == Kind::Ground) {
        seen.front = stemOf(set) + QLatin1String("-text");
        if (!exists(seen.front))
            seen.front = special({{"call-", "call-text"},
                                  {"banner-", "banner-text"},
                                  {"control-indicator", "control-indicator-mark"},
                                  {"slider-handle", "slider-handle-border"}},
                                 "text-primary");
    } else {
        seen.ground = stemOf(set) + QLatin1String("-background");
        const bool hasGround = kind != Kind::Decoration && exists(seen.ground)
            && !set.endsWith(QLatin1String("-border")) && seen.ground != set;
        if (!hasGround) {
            seen.ground = special({{"text-on-accent", "button-primary-background"},
                                   {"input-placeholder", "input-background"},
                                   {"call-", "call-accept-background"},
                                   {"banner-", "banner-info-background"},
                                   {"progress-text", "progress-track-background"}},
                                  "background-primary");
            seen.together = seen.ground != seen.below;
        }
    }
    // Items lie on the list, menu or navigation that they are of.
    QString list = seen.ground;
    list.remove(QLatin1String("-item"));
    if (list != seen.ground && exists(list))
        seen.below = list;
    return seen;
}

QString titleOf(const QString &ramp)
{
    const std::pair<const char *, QString> titles[] = {{"white", PalettePage::tr("White, black and nothing")},
                                                       {"neutral", PalettePage::tr("Neutral")},
                                                       {"night", PalettePage::tr("Neutral, dark")},
                                                       {"sand", PalettePage::tr("Neutral of Meridia")},
                                                       {"umber", PalettePage::tr("Neutral of Meridia, dark")},
                                                       {"accent", PalettePage::tr("Accent")},
                                                       {"plum", PalettePage::tr("Accent of Meridia")},
                                                       {"green", PalettePage::tr("Success")},
                                                       {"amber", PalettePage::tr("Warning")},
                                                       {"red", PalettePage::tr("Danger")},
                                                       {"presence", PalettePage::tr("Presence")},
                                                       {"call", PalettePage::tr("Calls")},
                                                       {"contrast", PalettePage::tr("High contrast")},
                                                       {"ink", PalettePage::tr("Translucent, over anything")}};
    for (const auto &[name, title] : titles) {
        if (ramp == QLatin1String(name))
            return title;
    }
    return ramp;
}

QString spelled(const QColor &color)
{
    return color.alpha() == 255 ? color.name()
                                : PalettePage::tr("%1 at %2 %").arg(color.name()).arg(qRound(100 * color.alphaF()));
}

} // namespace

PalettePage::PalettePage()
    : Page(
        tr("Palette"),
        tr("The colors, and the color sets that the theme makes of them. The figures are contrast ratios: text needs "
           "4.5:1, an edge that says something 3:1; in high contrast 7:1 and 4.5:1. What is disabled is exempt."))
{
    addPalette();
    addSets();
    connect(static_cast<IWApplication *>(qApp), &IWApplication::colorSetsChanged, this, &PalettePage::showColors);
}

void PalettePage::addPalette()
{
    WFrame *card = addCard(tr("Colors"), tr("A name is a ramp and its lightness: neutral-98, accent-44."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout *>(card->layout())->addLayout(grid);
    const QString path = QStringLiteral(UIELEMENTS_CONFIG_DIR "/colors.json");
    const QJsonObject root = WThemeUtils::readJsonObject(path);
    const WPalette palette = WThemeUtils::parseWColorsFromJson(root);
    const QJsonArray ramps = root.value(QLatin1String("colors")).toArray();
    for (const QJsonValue &ramp : ramps) {
        QString rampName;
        QVector<ColorSwatches::Swatch> swatches;
        const QJsonArray variations = ramp.toObject().value(QLatin1String("variations")).toArray();
        for (const QJsonValue &variation : variations) {
            const QString name = variation.toObject().value(QLatin1String("name")).toString();
            if (rampName.isEmpty())
                rampName = name.section(QLatin1Char('-'), 0, 0);
            const auto color = palette.find(name.toStdString());
            if (color == palette.end())
                continue;
            const bool isStep = name.startsWith(rampName + QLatin1Char('-'));
            swatches.append({isStep ? name.mid(rampName.size() + 1) : name,
                             tr("%1: %2").arg(name, spelled(color->second)), color->second, QColor()});
        }
        const int line = grid->rowCount();
        auto *strip = new ColorSwatches(titleOf(rampName));
        strip->setSwatches(swatches);
        grid->addWidget(new Label(titleOf(rampName), WFont::BodySecondary), line, 0, Qt::AlignTop);
        grid->addWidget(strip, line, 1);
    }
}

void PalettePage::addSets()
{
    WFrame *card = addCard(tr("Color sets by state"), tr("With what each of them is seen with."));
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    auto *line = new QHBoxLayout;
    line->setSpacing(12);
    auto *field = new SearchField(tr("Search color sets"));
    field->setMinimumWidth(320);
    line->addWidget(field);
    m_count = new Label(QString(), WFont::BodySecondary, Label::Secondary);
    line->addWidget(m_count);
    line->addStretch();
    column->addLayout(line);
    column->addSpacing(12);

    m_results = new QWidget;
    auto *grid = new QGridLayout(m_results);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(0, 1);
    column->addWidget(m_results);

    QVector<ColorSwatches::Swatch> states;
    QString widest;
    for (const QString &name : WColorSet::stateNames()) {
        states.append({name, QString(), QColor(), QColor()});
        widest = name.size() > widest.size() ? name : widest;
    }
    auto *head = new ColorSwatches(QString(), widest);
    head->setSwatches(states);
    grid->addWidget(head, 0, 1);

    QStringList names;
    for (const auto &entry : WThemeUtils::getAppWColorSets())
        names << QString::fromStdString(entry.first);
    names.sort();
    for (const QString &name : qAsConst(names)) {
        Row row {name, (new Label(name, WFont::TagLabelSecondary))->wrapped(),
                 (new Label(QString(), WFont::RadioButtonLabelSecondary, Label::Secondary))->wrapped(),
                 new ColorSwatches(name, widest)};
        const int at = grid->rowCount();
        grid->addWidget(row.title, at, 0, Qt::AlignBottom);
        grid->addWidget(row.verdict, at + 1, 0, Qt::AlignTop);
        grid->addWidget(row.swatches, at, 1, 2, 1);
        row.swatches->setFocusPolicy(m_rows.isEmpty() ? Qt::StrongFocus : Qt::ClickFocus);
        connect(row.swatches, &ColorSwatches::leavesBy, this,
                [this, swatches = row.swatches](int step) { go(swatches, step); });
        m_rows.append(row);
    }
    if (!m_rows.isEmpty())
        m_results->setFocusProxy(m_rows.first().swatches);
    field->setResults(m_results);
    connect(field, &QLineEdit::textChanged, this, &PalettePage::search);
    showColors();
    search(QString());
}

// Tab reaches the first of the rows; the arrow keys go from one to the next.
void PalettePage::search(const QString &text)
{
    int found = 0;
    for (Row &row : m_rows) {
        const bool isFound = row.name.contains(text.trimmed(), Qt::CaseInsensitive);
        row.title->setVisible(isFound);
        row.verdict->setVisible(isFound);
        row.swatches->setVisible(isFound);
        row.swatches->setFocusPolicy(isFound && found == 0 ? Qt::StrongFocus : Qt::ClickFocus);
        if (isFound && found == 0)
            m_results->setFocusProxy(row.swatches);
        found += isFound;
    }
    showCount();
}

void PalettePage::showCount()
{
    const auto count = [this](const auto &isCounted) {
        return std::count_if(m_rows.begin(), m_rows.end(), isCounted);
    };
    m_count->setText(tr("%1 of %2. Failing: %3")
                         .arg(count([](const Row &row) { return !row.swatches->isHidden(); }))
                         .arg(m_rows.size())
                         .arg(count([](const Row &row) { return row.falls; })));
}

void PalettePage::go(const ColorSwatches *from, int step)
{
    int at = 0;
    while (m_rows.at(at).swatches != from)
        ++at;
    for (at += step; at >= 0 && at < m_rows.size(); at += step) {
        ColorSwatches *swatches = m_rows.at(at).swatches;
        if (swatches->isHidden())
            continue;
        swatches->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void PalettePage::showColors()
{
    for (Row &row : m_rows)
        showRow(&row);
    showCount();
}

void PalettePage::showRow(Row *row)
{
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(type);
    const auto find = [&sets](const QString &name) {
        const auto found = sets.find(name.toStdString());
        return found == sets.end() ? WColorSet() : found->second;
    };
    const Seen seen = seenWith(row->name, sets);
    const WColorSet front = find(seen.front);
    const WColorSet ground = find(seen.ground);
    const Kind kind = Contrast::kindOf(seen.front);
    const double needed = Contrast::needed(kind, WThemeUtils::isHighContrastEnabled());
    const QColor below = find(seen.below).normal();

    QVector<ColorSwatches::Swatch> swatches;
    QStringList failing;
    for (int i = 0; i < WColorSet::StateCount; ++i) {
        const auto state = WColorSet::State(i);
        const QString name = WColorSet::stateNames().at(i);
        const QColor back = Contrast::over(ground.color(seen.together ? state : WColorSet::Normal), below);
        const QColor own = find(row->name).color(state);
        const QColor top = front.color(state);
        const double ratio = Contrast::ratio(Contrast::over(top, back), back);
        const bool isNothing = top.alpha() == 0;
        const bool falls = !isNothing && ratio < needed && state != WColorSet::Disabled;
        if (falls)
            failing << name;
        const QString figure = isNothing ? QStringLiteral("\u2013") : QString::number(ratio, 'f', 1);
        QString said = tr("%1: %2").arg(name, spelled(own));
        if (!isNothing)
            said = tr("%1, %2 on %3 has %4:1").arg(said, seen.front, seen.ground, figure);
        if (falls)
            said = tr("%1, too little").arg(said);
        swatches.append(
            {falls ? tr("%1 !").arg(figure) : figure, said, back, isNothing ? QColor() : top, kind != Kind::Text});
    }
    row->falls = !failing.isEmpty();
    row->swatches->setSwatches(swatches);
    const QString pair = seen.front == row->name ? tr("on %1").arg(seen.ground) : tr("under %1").arg(seen.front);
    if (kind == Kind::Decoration)
        row->verdict->setText(tr("%1, decoration").arg(pair));
    else if (row->falls)
        row->verdict->setText(tr("%1, fails %2:1: %3").arg(pair).arg(needed).arg(failing.join(QStringLiteral(", "))));
    else
        row->verdict->setText(tr("%1, passes %2:1").arg(pair).arg(needed));
}

// A window of another theme type has other colors without the application being told.
bool PalettePage::event(QEvent *event)
{
    const bool result = Page::event(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::Show)
        showColors();
    return result;
}

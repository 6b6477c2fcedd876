#include "IconsPage.h"

#include "GalleryStyles.h"
#include "IconGrid.h"
#include "IconModel.h"
#include "IconPixels.h"
#include "IconSample.h"
#include "Label.h"
#include "MovingIcon.h"
#include "PlainParts.h"
#include "SearchField.h"

#include <UiElements/icons/WSvgIconEngine.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/widgets/WMenu.h>

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace {

QString resource(const char *name)
{
    return WSvgRenderer::resourcePath(QString::fromLatin1(name));
}

QString own(const char *name)
{
    return QStringLiteral(":/gallery/icons/%1.svg").arg(QLatin1String(name));
}

QVBoxLayout *columnOf(WFrame *card)
{
    return static_cast<QVBoxLayout *>(card->layout());
}

Label *caption(const QString &text)
{
    return new Label(text, WFont::BodyTertiary, Label::Secondary);
}

// A field with its name above it.
QWidget *named(const QString &name, QWidget *field)
{
    auto *all = new QWidget;
    all->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto *column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(caption(name));
    column->addWidget(field);
    field->setAccessibleName(name);
    return all;
}

QComboBox *makeChoice()
{
    auto *box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followFontToken(box, WFont::BodySecondary);
    return box;
}

// Captions of the states above the columns behind the first.
QGridLayout *makeStateGrid()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    for (int state = 0; state < WColorSet::StateCount; ++state) {
        QString name = WColorSet::stateNames().at(state);
        name[0] = name.at(0).toUpper();
        grid->addWidget(caption(name), 0, 1 + state, Qt::AlignHCenter);
        grid->setColumnMinimumWidth(1 + state, 96);
    }
    grid->setColumnMinimumWidth(0, 120);
    grid->setColumnStretch(1 + WColorSet::StateCount, 1);
    return grid;
}

} // namespace

IconsPage::IconsPage()
    : Page(tr("Icons"),
           tr("Each icon is drawn from its SVG file, in the pixels of the window and in a color set of the theme."))
    , m_model(new IconModel(this))
{
    addSet();
    addStates();
    addPixels();
    addKinds();
    addPlainWidgets();
    addDirections();
    showChosenIcon();
    connect(this, &Page::themeTypeChanged, this, &IconsPage::giveIcons);
}

void IconsPage::showEvent(QShowEvent *event)
{
    giveIcons();
    Page::showEvent(event);
}

void IconsPage::addSet()
{
    WFrame *card = addCard(
        tr("The set"),
        tr("%1 files. A dot marks what points along the line: it is mirrored where the text runs from right to left.")
            .arg(m_model->fileCount()));
    m_grid = new IconGrid(m_model);
    m_grid->setAccessibleName(tr("Icons"));
    m_count = new Label(QString(), WFont::BodySecondary, Label::Secondary);
    m_path = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    m_path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QVBoxLayout *column = columnOf(card);
    column->addWidget(makeChoices());
    column->addSpacing(8);
    column->addWidget(m_grid);
    column->addSpacing(4);
    auto *row = new QHBoxLayout;
    row->addWidget(m_path, 1);
    row->addWidget(m_count);
    column->addLayout(row);

    m_grid->chooseIcon(QStringLiteral("chat"));
    connect(m_grid, &IconGrid::chosenIconChanged, this, &IconsPage::showChosenIcon);
}

QWidget *IconsPage::makeChoices()
{
    auto *all = new QWidget;
    auto *flow = new FlowLayout(16, 8, all);
    flow->setContentsMargins(0, 0, 0, 0);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    all->setSizePolicy(policy);
    const auto add = [flow](const QString &name, QWidget *field) {
        flow->addWidget(named(name, field));
    };

    auto *search = new SearchField(tr("Words of a name: arrow left"));
    search->setMinimumWidth(280);
    search->setResults(m_grid);
    add(tr("Search"), search);
    QComboBox *size = makeChoice();
    const QVector<int> sizes = m_model->sizes();
    for (int each : sizes)
        size->addItem(tr("%1 pixels").arg(each), each);
    size->setCurrentIndex(size->findData(m_model->size()));
    add(tr("Size"), size);
    QComboBox *style = makeChoice();
    style->addItem(tr("Regular"), false);
    style->addItem(tr("Filled"), true);
    add(tr("Style"), style);
    QComboBox *color = makeChoice();
    for (const char *set : {"button-ghost-text", "text-primary", "text-secondary", "text-accent", "text-success",
                            "text-warning", "text-error"})
        color->addItem(QString::fromLatin1(set));
    add(tr("Color set"), color);

    const auto count = [this, search] {
        const int found = m_model->rowCount();
        const QString text = tr("%1 of %2 icons").arg(found).arg(m_model->nameCount());
        m_count->setText(text);
        search->setAccessibleDescription(found ? text : tr("No icon found"));
    };
    connect(m_model, &QAbstractItemModel::modelReset, this, count);
    count();
    connect(search, &QLineEdit::textChanged, m_model, &IconModel::setFilter);
    connect(size, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, size] {
        m_model->setSize(size->currentData().toInt());
        showChosenIcon();
    });
    connect(style, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this, style] {
        m_model->setFilled(style->currentData().toBool());
        showChosenIcon();
    });
    connect(color, &QComboBox::currentTextChanged, this, [this](const QString &set) {
        m_grid->setColorSet(set.toStdString());
        showChosenIcon();
    });
    return all;
}

void IconsPage::addStates()
{
    WFrame *card = addCard(tr("Every state of the chosen icon"),
                           tr("With button-ghost-text on the ground of such a button. A dash stands for a size that "
                              "the set does not have."));
    QGridLayout *grid = makeStateGrid();
    int line = 0;
    for (int side : {12, 16, 20, 24}) {
        grid->addWidget(caption(tr("%1 pixels").arg(side)), ++line, 0);
        for (int state = 0; state < WColorSet::StateCount; ++state) {
            auto *sample = new IconSample(WColorSet::State(state), side);
            grid->addWidget(sample, line, 1 + state, Qt::AlignCenter);
            m_samples.append({sample, side});
        }
    }
    columnOf(card)->addLayout(grid);
}

void IconsPage::addPixels()
{
    WFrame *card = addCard(tr("The chosen icon in the pixels of five screens"),
                           tr("Pictures at the ratios of usual screens, each pixel enlarged to four by four. A picture "
                              "is as the file, never mirrored."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(8);
    int place = 0;
    for (double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        auto *pixels = new IconPixels(ratio);
        Label *text = caption(QString());
        grid->addWidget(pixels, 0, place, Qt::AlignLeading | Qt::AlignBottom);
        grid->addWidget(text, 1, place++);
        m_pictures.append({pixels, text, ratio});
    }
    grid->setColumnStretch(place, 1);
    columnOf(card)->addLayout(grid);
}

void IconsPage::showChosenIcon()
{
    const QString name = m_grid->chosenIcon();
    const std::string colors = m_grid->colorSet();
    for (const Sample &each : qAsConst(m_samples)) {
        const QString path = m_model->path(name, each.side);
        each.sample->setIcon(path, colors);
        const QString size = tr("%1, %2 pixels").arg(name).arg(each.side);
        each.sample->setAccessibleName(path.isEmpty() ? tr("%1: not in the set").arg(size) : size);
        each.sample->setToolTip(path.isEmpty() ? tr("Not in the set") : path);
    }
    const QString path = m_model->path(name, m_model->size());
    for (const Picture &each : qAsConst(m_pictures)) {
        if (!path.isEmpty())
            each.pixels->setIcon(path, m_model->size(), colors);
        const int pixels = each.pixels->pixels();
        each.pixels->setAccessibleName(tr("%1 at ratio %2").arg(name).arg(each.ratio));
        each.caption->setText(tr("Ratio %1: %2 x %2").arg(each.ratio).arg(pixels));
    }
    m_path->setText(path.isEmpty() ? tr("%1 is not in the set in this size and style").arg(name) : path);
}

void IconsPage::addKinds()
{
    WFrame *card = addCard(tr("Two icons in one"),
                           tr("The inner one is drawn in the middle of the outer one, each in its own color set."));
    QGridLayout *grid = makeStateGrid();
    int line = 0;
    const auto add = [&](const QString &name, const QString &outer, const char *outerColors, const char *inner,
                         const char *innerColors) {
        grid->addWidget(caption(name), ++line, 0);
        for (int state = 0; state < WColorSet::StateCount; ++state) {
            auto *sample = new IconSample(WColorSet::State(state), 32);
            sample->setGroundShown(false);
            sample->setIcon(outer, outerColors);
            sample->setInnerIcon(resource(inner), 16, innerColors);
            sample->setAccessibleName(name + QLatin1String(", ") + WColorSet::stateNames().at(state));
            grid->addWidget(sample, line, 1 + state, Qt::AlignCenter);
        }
    };
    add(tr("Accept a call"), own("disc"), "call-accept-background", "call-filled_16", "call-text");
    add(tr("End a call"), own("disc"), "call-decline-background", "call-end-filled_16", "call-text");
    add(tr("Mentioned"), own("disc"), "badge-background", "mention_16", "badge-text");
    columnOf(card)->addLayout(grid);

    card = addCard(tr("In its own colors, and moving"),
                   tr("A document of several parts is not tinted. It may move; this one rests while it is not shown."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    for (int side : {16, 24, 48}) {
        auto *sample = new IconSample(WColorSet::Normal, side);
        sample->setGroundShown(false);
        sample->setIcon(own("lighthouse"), "text-primary");
        sample->setAccessibleName(tr("Lighthouse, %1 pixels").arg(side));
        row->addWidget(sample);
    }
    row->addSpacing(32);
    QVector<MovingIcon *> spinners;
    for (int side : {16, 24, 48}) {
        auto *spinner = new MovingIcon(own("spinner"), own("spinner-still"), side);
        spinner->setAccessibleName(tr("Busy, %1 pixels").arg(side));
        row->addWidget(spinner);
        spinners.append(spinner);
    }
    auto *move = new QPushButton(tr("Move"));
    move->setCheckable(true);
    move->setChecked(true);
    followFontToken(move, WFont::BodySecondary);
    connect(move, &QPushButton::toggled, this, [spinners](bool moving) {
        for (MovingIcon *spinner : spinners)
            spinner->setMoving(moving);
    });
    row->addSpacing(8);
    row->addWidget(move);
    row->addStretch();
    columnOf(card)->addLayout(row);
}

void IconsPage::followThemeType(const QString &name, const QString &colorSet, const GiveIcon &give,
                                const QString &checkedName)
{
    const QString path = WSvgRenderer::resourcePath(name);
    const QString checkedPath = checkedName.isEmpty() ? QString() : WSvgRenderer::resourcePath(checkedName);
    m_iconGivers.append(
        [=](WThemeUtils::AppThemeType type) { give(WSvgIconEngine::icon(path, colorSet, type, checkedPath)); });
    m_iconGivers.last()(m_iconType);
}

void IconsPage::giveIcons()
{
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    if (type == m_iconType)
        return;
    m_iconType = type;
    for (const auto &give : qAsConst(m_iconGivers))
        give(type);
}

void IconsPage::fillToolBar(QToolBar *bar)
{
    enum Kind { Plain, Checked, Unchecked, Disabled, CheckedDisabled };
    const auto add = [this, bar](const char *icon, const char *checkedIcon, const QString &text, Kind kind) {
        auto *action = new QAction(text, bar);
        followThemeType(
            QString::fromLatin1(icon), QStringLiteral("button-ghost-text"),
            [action](const QIcon &each) { action->setIcon(each); }, QString::fromLatin1(checkedIcon));
        action->setCheckable(kind == Checked || kind == Unchecked || kind == CheckedDisabled);
        action->setChecked(kind == Checked || kind == CheckedDisabled);
        action->setEnabled(kind != Disabled && kind != CheckedDisabled);
        bar->addAction(action);
        // Those of a tool bar are not reached by Tab.
        bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    };
    add("reply_20", "", tr("Reply"), Plain);
    add("forward_20", "", tr("Forward"), Plain);
    add("star_20", "star-filled_20", tr("Favorite"), Checked);
    add("pin_20", "pin-filled_20", tr("Pin"), Unchecked);
    bar->addSeparator();
    add("trash_20", "", tr("Delete, disabled"), Disabled);
    add("flag_20", "flag-filled_20", tr("Flag, checked and disabled"), CheckedDisabled);
}

void IconsPage::fillMenu(WMenu *menu)
{
    menu->setCSS(GalleryStyles::menuWithIcons());
    menu->setFontToken(WFont::BodySecondary);
    const auto add = [this, menu](const char *icon, const QString &text, const char *checkedIcon = "") {
        QAction *action = menu->addAction(text);
        followThemeType(
            QString::fromLatin1(icon), QStringLiteral("menu-item-text"),
            [action](const QIcon &each) { action->setIcon(each); }, QString::fromLatin1(checkedIcon));
        return action;
    };
    add("reply_16", tr("Reply"));
    QAction *notify = add("bell-off_16", tr("Notify"), "bell_16");
    notify->setCheckable(true);
    notify->setChecked(true);
    add("copy_16", tr("Copy"));
    menu->addSeparator();
    add("trash_16", tr("Delete"))->setEnabled(false);
}

void IconsPage::addPlainWidgets()
{
    WFrame *card = addCard(tr("In plain Qt widgets"),
                           tr("A QIcon of the library follows the theme in whatever shows it: a tool bar, a menu, "
                              "tabs; enabled, checked and disabled."));
    card->setCSS(GalleryStyles::card() + GalleryStyles::iconBars());
    auto *bars = new QVBoxLayout;
    bars->setSpacing(16);
    auto *bar = new QToolBar;
    bar->setIconSize(QSize(20, 20));
    bar->setAccessibleName(tr("Tool bar"));
    fillToolBar(bar);
    auto *barRow = new QHBoxLayout;
    barRow->setSpacing(16);
    barRow->addWidget(bar);
    auto *more = new QToolButton;
    more->setText(tr("More"));
    more->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    more->setIconSize(QSize(20, 20));
    more->setPopupMode(QToolButton::InstantPopup);
    more->setFocusPolicy(Qt::StrongFocus);
    followFontToken(more, WFont::BodySecondary);
    followThemeType(QStringLiteral("more_20"), QStringLiteral("button-ghost-text"),
                    [more](const QIcon &icon) { more->setIcon(icon); });
    auto *popup = new WMenu(more);
    fillMenu(popup);
    connect(popup, &QMenu::aboutToShow, this,
            [this, popup] { popup->setThemeType(window()->property("themeType").toString()); });
    more->setMenu(popup);
    barRow->addWidget(more);
    barRow->addStretch();
    bars->addLayout(barRow);

    auto *tabs = new QTabBar;
    tabs->setIconSize(QSize(20, 20));
    tabs->setDrawBase(false);
    tabs->setExpanding(false);
    tabs->setAccessibleName(tr("Tabs"));
    followFontToken(tabs, WFont::BodySecondary);
    const auto addTab = [this, tabs](const char *icon, const char *checkedIcon, const QString &text) {
        const int tab = tabs->addTab(text);
        followThemeType(
            QString::fromLatin1(icon), QStringLiteral("qx-underlineButton-text"),
            [tabs, tab](const QIcon &each) { tabs->setTabIcon(tab, each); }, QString::fromLatin1(checkedIcon));
        return tab;
    };
    addTab("chat_20", "chat-filled_20", tr("Messages"));
    addTab("call_20", "call-filled_20", tr("Calls"));
    addTab("calendar_20", "calendar-filled_20", tr("Meetings"));
    tabs->setTabEnabled(addTab("folder_20", "folder-filled_20", tr("Files")), false);
    bars->addWidget(tabs, 0, Qt::AlignLeading);
    bars->addStretch();

    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    row->addLayout(bars);
    auto *menu = new WMenu;
    menu->setWindowFlags(Qt::Widget);
    menu->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // A click would make it vanish.
    menu->setAttribute(Qt::WA_TransparentForMouseEvents);
    menu->setFocusPolicy(Qt::NoFocus);
    menu->setAccessibleName(tr("A menu"));
    fillMenu(menu);
    row->addWidget(menu, 0, Qt::AlignTop);
    row->addStretch();
    columnOf(card)->addLayout(row);
}

void IconsPage::addDirections()
{
    WFrame *card =
        addCard(tr("From left to right, from right to left"),
                tr("What points along the line turns with it. A check mark and a magnifying glass stay as they are."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnMinimumWidth(0, 120);
    int line = 0;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const QString text = direction == Qt::LeftToRight ? tr("Left to right") : tr("Right to left");
        grid->addWidget(caption(text), ++line, 0);
        int place = 0;
        for (const char *name : {"arrow-left", "arrow-right", "back", "forward", "send", "reply", "check", "search"}) {
            const QString title = QString::fromLatin1(name);
            if (line == 1)
                grid->addWidget(caption(title), 0, place + 1, Qt::AlignHCenter);
            auto *sample = new IconSample(WColorSet::Normal, 24);
            sample->setLayoutDirection(direction);
            sample->setIcon(WSvgRenderer::resourcePath(title + QLatin1String("_24")), "button-ghost-text");
            sample->setAccessibleName(title + QLatin1String(", ") + text);
            grid->addWidget(sample, line, ++place, Qt::AlignCenter);
            grid->setColumnMinimumWidth(place, 72);
        }
    }
    grid->setColumnStretch(grid->columnCount(), 1);
    columnOf(card)->addLayout(grid);
}

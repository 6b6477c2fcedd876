#include "LayoutsPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "SizedFrame.h"

#include <UiElements/layouts/AutoGridLayout.h>
#include <UiElements/layouts/FixedItemRatioLayoutNotSupportScroll.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/WMenu.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int MostItems = 60;

QString person(int index)
{
    static const char *names[] = {"Ada",    "Boris", "Chen",  "Dolores", "Emeka", "Fatima", "Grace", "Hiroshi",
                                  "Ingrid", "Jamal", "Keiko", "Luca",    "Maya",  "Nils",   "Olga",  "Priya"};
    return QString::fromLatin1(names[index % 16]);
}

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    followFontToken(button, WFont::BodySecondary);
    return button;
}

QWidget *makeChip(const QString &text)
{
    auto *chip = new WFrame;
    chip->setCSS(GalleryStyles::frame());
    auto *row = new QHBoxLayout(chip);
    row->setContentsMargins(12, 5, 12, 5);
    row->addWidget(new Label(text, WFont::BodySecondary));
    return chip;
}

QWidget *makeTile(const QString &text)
{
    auto *tile = new WFrame;
    tile->setCSS(GalleryStyles::frame());
    auto *column = new QVBoxLayout(tile);
    column->setContentsMargins(4, 4, 4, 4);
    column->addWidget(new Label(text, WFont::BodySecondary), 0, Qt::AlignCenter);
    return tile;
}

// Buttons below the frame; those that are given stand before "Add" and "Remove".
void addControls(WFrame *card, ItemLayout *layout, const std::function<QWidget *(int)> &make, int count,
                 QWidget *first = nullptr)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    if (first)
        row->addWidget(first);
    const QString title = QString::fromLatin1(layout->metaObject()->className());
    const auto addItem = [layout, make] {
        if (layout->count() < MostItems)
            layout->addWidget(make(layout->count()));
    };
    for (int i = 0; i < count; ++i)
        addItem();
    QPushButton *add = makeButton(LayoutsPage::tr("Add"));
    add->setAccessibleDescription(title);
    QObject::connect(add, &QPushButton::clicked, layout, addItem);
    QPushButton *remove = makeButton(LayoutsPage::tr("Remove"));
    remove->setAccessibleDescription(title);
    QObject::connect(remove, &QPushButton::clicked, layout, [layout] {
        if (layout->count() > 1)
            delete layout->itemAt(layout->count() - 1)->widget();
    });
    row->addWidget(add);
    row->addWidget(remove);
    row->addStretch();
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->addSpacing(8);
    column->addLayout(row);
}

} // namespace

LayoutsPage::LayoutsPage()
    : Page(tr("Layouts"), tr("Take the grip beside a frame with the mouse, or with Tab and the arrow keys."))
{
    addFlow();
    addSmart();
    addGrid();
    addTiles();
}

void LayoutsPage::addFlow()
{
    WFrame *card = addCard(QStringLiteral("FlowLayout"),
                           tr("Lines of items as text flows. With at most two lines, the last chip tells how many more "
                              "there are."));
    auto *sized = new SizedFrame(QStringLiteral("FlowLayout"), 560);
    card->layout()->addWidget(sized);
    auto *layout = new FlowLayout(8, 8, sized->content());
    layout->setContentsMargins(12, 12, 12, 12);
    auto *more = new Label(QStringLiteral("+0"), WFont::BodySecondary, Label::Secondary);
    more->setContentsMargins(4, 6, 4, 6);
    layout->setOverflowWidget(more);
    connect(layout, &FlowLayout::overflowCountChanged, more, [more](int count) {
        if (count)
            more->setText(QStringLiteral("+%1").arg(count));
    });
    QPushButton *limit = makeButton(tr("At most two lines"));
    limit->setCheckable(true);
    connect(limit, &QPushButton::toggled, layout, [layout](bool on) { layout->setMaximumLineCount(on ? 2 : 0); });
    limit->setChecked(true);
    // The overflow widget is the first item.
    addControls(
        card, layout, [](int index) { return makeChip(person(index - 1)); }, 18, limit);
}

void LayoutsPage::addSmart()
{
    WFrame *card = addCard(QStringLiteral("SmartLayout"),
                           tr("One row that hides what is least important when it becomes narrow, and offers it in a "
                              "menu. \"Leave\" is never hidden."));
    auto *sized = new SizedFrame(QStringLiteral("SmartLayout"), 560);
    card->layout()->addWidget(sized);
    auto *layout = new SmartLayout(sized->content());
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    const struct
    {
        QString text;
        int priority;
    } controls[] = {{tr("Mute"), 9},       {tr("Camera"), 8},   {tr("Share"), 6}, {tr("Record"), 2},
                    {tr("Raise hand"), 5}, {tr("Captions"), 3}, {tr("Chat"), 7},  {tr("Participants"), 4}};
    for (const auto &control : controls)
        layout->addWidget(makeButton(control.text), control.priority);
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    QPushButton *leave = makeButton(tr("Leave"));
    leave->setProperty("kind", QStringLiteral("primary"));
    layout->addWidget(leave, SmartLayout::NeverHidden);
    QPushButton *more = makeButton(tr("More"));
    layout->setOverflowWidget(more);
    connect(more, &QPushButton::clicked, more, [more, layout] {
        auto *menu = new WMenu(more);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->setThemeType(more->window()->property("themeType").toString());
        menu->setCSS(GalleryStyles::menu());
        menu->setFontToken(WFont::BodySecondary);
        const QVector<QWidget *> hidden = layout->hiddenWidgets();
        for (QWidget *widget : hidden)
            menu->addAction(static_cast<QPushButton *>(widget)->text());
        menu->popup(more->mapToGlobal(QPoint(0, more->height() + 4)));
    });
}

void LayoutsPage::addGrid()
{
    WFrame *card = addCard(QStringLiteral("AutoGridLayout"),
                           tr("Equal cells, as many columns of at least 88 pixels as there is room for."));
    auto *sized = new SizedFrame(QStringLiteral("AutoGridLayout"), 560);
    card->layout()->addWidget(sized);
    auto *layout = new AutoGridLayout(sized->content());
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    layout->setMinimumCellWidth(88);
    layout->setAspectRatio(2);
    addControls(
        card, layout, [](int index) { return makeTile(person(index)); }, 13);
}

void LayoutsPage::addTiles()
{
    WFrame *card = addCard(QStringLiteral("FixedItemRatioLayoutNotSupportScroll"),
                           tr("Tiles of 16 by 9, as large as all of them can be in the frame."));
    auto *sized = new SizedFrame(QStringLiteral("FixedItemRatioLayoutNotSupportScroll"), 560);
    sized->content()->setFixedHeight(240);
    card->layout()->addWidget(sized);
    auto *layout = new FixedItemRatioLayoutNotSupportScroll(sized->content());
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(8);
    addControls(
        card, layout, [](int index) { return makeTile(person(index)); }, 5);
}

#include "ListsPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "RowCount.h"
#include "StateCard.h"

#include <UiElements/widgets/WListView.h>
#include <UiElements/widgets/WListWidget.h>
#include <UiElements/widgets/WTreeView.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

QStringList people()
{
    return {ListsPage::tr("Ada"), ListsPage::tr("Boris"), ListsPage::tr("Chen")};
}

void dress(QAbstractItemView *view, int rows)
{
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    keepRowsShown(view, rows);
}

QWidget *makeListView()
{
    auto *view = new WListView;
    view->setFontToken(WFont::BodySecondary);
    view->setCSS(GalleryStyles::itemView());
    view->setModel(new QStringListModel(people(), view));
    dress(view, 3);
    return view;
}

QWidget *makeListWidget()
{
    auto *list = new WListWidget;
    list->setFontToken(WFont::BodySecondary);
    list->setCSS(GalleryStyles::itemView());
    list->addItems(people());
    dress(list, 3);
    return list;
}

QStandardItemModel *teams(QObject *parent, bool wide)
{
    auto *model = new QStandardItemModel(parent);
    QStringList headers {ListsPage::tr("Space")};
    if (wide)
        headers << ListsPage::tr("Members") << ListsPage::tr("Last message");
    model->setHorizontalHeaderLabels(headers);
    const auto add = [&](QStandardItem *to, const QString &name, const QString &members, const QString &last) {
        QList<QStandardItem *> row {new QStandardItem(name)};
        if (wide)
            row << new QStandardItem(members) << new QStandardItem(last);
        to->appendRow(row);
        return row.first();
    };
    QStandardItem *design = add(model->invisibleRootItem(), ListsPage::tr("Design"), QStringLiteral("12"),
                                ListsPage::tr("The new icons are in"));
    add(design, ListsPage::tr("Reviews"), QStringLiteral("4"), ListsPage::tr("Tomorrow at ten?"));
    if (wide) {
        add(design, ListsPage::tr("Research"), QStringLiteral("6"), ListsPage::tr("Notes from the interviews"));
        QStandardItem *build = add(model->invisibleRootItem(), ListsPage::tr("Engineering"), QStringLiteral("31"),
                                   ListsPage::tr("All tests are green"));
        add(build, ListsPage::tr("Releases"), QStringLiteral("9"), ListsPage::tr("Frozen until Monday"));
    }
    add(model->invisibleRootItem(), ListsPage::tr("Travel"), QStringLiteral("8"), ListsPage::tr("See you in Lisbon"));
    return model;
}

WTreeView *makeTree(bool wide)
{
    auto *tree = new WTreeView;
    tree->setFontToken(WFont::BodySecondary);
    tree->setCSS(GalleryStyles::itemView());
    tree->setModel(teams(tree, wide));
    tree->expandAll();
    tree->setIndentation(20);
    followFontToken(tree->header(), WFont::BodySecondary);
    followFontToken(tree->header()->viewport(), WFont::BodySecondary);
    followDirection(tree->header(), [header = tree->header()](Qt::LayoutDirection direction) {
        const Qt::Alignment side = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
        header->setDefaultAlignment(side | Qt::AlignVCenter);
    });
    dress(tree, wide ? 6 : 3);
    return tree;
}

} // namespace

ListsPage::ListsPage()
    : Page(tr("Lists and trees"), tr("One row of each view has the states; checked is selected."))
{
    addCard(new StateCard(QStringLiteral("WListView"), tr("Shows a model."), makeListView));
    addCard(new StateCard(QStringLiteral("WListWidget"),
                          tr("Holds its own items, and tells a host which of them are in view."), makeListWidget));
    addCard(new StateCard(QStringLiteral("WTreeView"), tr("With a header."), [] { return makeTree(false); }));

    WFrame *card =
        addCard(tr("A tree with columns"), tr("Headers, selection and expansion; try it with the keyboard."));
    WTreeView *tree = makeTree(true);
    tree->setAccessibleName(tr("Spaces"));
    tree->setAlternatingRowColors(false);
    tree->header()->setSectionResizeMode(QHeaderView::Stretch);
    tree->setCurrentIndex(tree->model()->index(0, 0));
    card->layout()->addWidget(tree);

    card = addCard(tr("A long list"), tr("With a scroll bar; several rows can be selected."));
    auto *list = new WListWidget;
    list->setFontToken(WFont::BodySecondary);
    list->setCSS(GalleryStyles::itemView());
    for (int i = 1; i <= 40; ++i)
        list->addItem(tr("Message %1").arg(i));
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->setAccessibleName(tr("Messages"));
    dress(list, 5);
    for (int row : {1, 2})
        list->item(row)->setSelected(true);
    card->layout()->addWidget(list);
}

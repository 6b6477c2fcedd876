#include "ModelsPage.h"

#include "BusMonitor.h"
#include "ConversationDelegate.h"
#include "ConversationModel.h"
#include "EmptyState.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "LazyRows.h"
#include "LazyServer.h"
#include "PlainParts.h"
#include "ScrollPlace.h"
#include "SearchField.h"
#include "SizedFrame.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/icons/WSvgIconEngine.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/models/OverflowListProxyModel.h>
#include <UiElements/models/SmallListModel.h>
#include <UiElements/widgets/WListView.h>
#include <UiElements/widgets/WMenu.h>
#include <UiElements/widgets/WSlider.h>

#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int ShownRows = 7;
constexpr int MessagesPerUpdate = 12;
constexpr int UpdateInterval = 1000;
constexpr int LazySize = 1000000;
constexpr int PageSize = 50;
constexpr int PagesInStorage = 5;
constexpr int LongestDelay = 3000;
constexpr int Mentions = 12;

enum ActionRole { TextRole = Qt::UserRole, IconRole };

// The same for every picture.
QDateTime currentTime()
{
    return BusMonitor::get()->timesShown() ? QDateTime::currentDateTime()
                                           : QDateTime(QDate(2026, 1, 15), QTime(10, 24));
}

QString number(int value)
{
    return QLocale().toString(value);
}

// Pages count from 1 for people: "3-5, 7".
QString runs(const QVector<int> &pages)
{
    QStringList texts;
    for (int first = 0, last = 0; first < pages.size(); first = ++last) {
        while (last + 1 < pages.size() && pages.at(last + 1) == pages.at(last) + 1)
            ++last;
        const QString text = QString::number(pages.at(first) + 1);
        texts << (first == last ? text : text + QChar(0x2013) + QString::number(pages.at(last) + 1));
    }
    return texts.isEmpty() ? ModelsPage::tr("none") : texts.join(QStringLiteral(", "));
}

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    followFontToken(button, WFont::BodySecondary);
    return button;
}

WListView *makeView(QAbstractItemModel *model, const QString &name, const std::function<int(int)> &height)
{
    auto *view = new WListView;
    view->setFontToken(WFont::BodySecondary);
    view->setCSS(GalleryStyles::itemView());
    view->setModel(model);
    view->setAccessibleName(name);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setUniformItemSizes(true);
    auto *delegate = new ConversationDelegate(view);
    view->setItemDelegate(delegate);
    const auto fit = [view, delegate, height] {
        const int row = delegate->rowHeight();
        view->setMinimumHeight(height(row) + 8);
        view->verticalScrollBar()->setSingleStep(row / 2);
        view->doItemsLayout();
    };
    QObject::connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, view,
                     fit);
    fit();
    return view;
}

int heightOfRows(int row)
{
    return ShownRows * row;
}

QVBoxLayout *columnOf(QWidget *card)
{
    return static_cast<QVBoxLayout *>(card->layout());
}

/// A button of a tool bar, whose icon has the colors of the theme that the button is in.
class ActionButton : public QPushButton
{
public:
    ActionButton(const QString &text, const QString &icon)
        : m_icon(icon)
    {
        setText(text);
        followFontToken(this, WFont::BodySecondary);
        giveIcon();
    }

protected:
    bool event(QEvent *event) override
    {
        const bool mayBeOfAnotherTheme = event->type() == QEvent::StyleChange || event->type() == QEvent::Show;
        if (mayBeOfAnotherTheme && WThemeUtils::getThemeTypeOfWidget(this) != m_type)
            giveIcon();
        if (event->type() == QEvent::FontChange)
            setIconSize(QSize(fontMetrics().ascent(), fontMetrics().ascent()));
        return QPushButton::event(event);
    }

private:
    void giveIcon()
    {
        m_type = WThemeUtils::getThemeTypeOfWidget(this);
        setIcon(WSvgIconEngine::icon(WSvgRenderer::resourcePath(m_icon), QStringLiteral("button-ghost-text"), m_type));
    }

    const QString m_icon;
    WThemeUtils::AppThemeType m_type = WThemeUtils::AppThemeTypeGlobal;
};

} // namespace

ModelsPage::ModelsPage()
    : Page(tr("Models"), tr("Long lists that change while they are read, and short ones that do not fit."))
    , m_conversations(new ConversationModel(BaseListModel::MaxRows, currentTime(), this))
    , m_found(new QSortFilterProxyModel(this))
    , m_lazyRows(new LazyRows(this))
    , m_server(new LazyServer(m_lazyRows))
    , m_actions(new SmallListModel({{TextRole, "text"}, {IconRole, "icon"}}, this))
    , m_overflow(new OverflowListProxyModel(this))
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(makeConversations(), 1);
    row->addWidget(makeLazyList(), 1);
    body()->insertLayout(body()->count() - 1, row);
    addToolBar();
    addEmptyList();
    connect(&m_updates, &QTimer::timeout, this, [this] { receive(MessagesPerUpdate); });
}

void ModelsPage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    runUpdates();
    if (!BusMonitor::get()->timesShown())
        QMetaObject::invokeMethod(
            this, [this] { showPicture(); }, Qt::QueuedConnection);
}

void ModelsPage::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    m_updates.stop();
}

// BaseListModel

QWidget *ModelsPage::makeConversations()
{
    WFrame *card = makeCard(QStringLiteral("BaseListModel"),
                            tr("The latest 10,000 conversations. What changes is found by id: place, selection and "
                               "current row stay."));
    m_conversations->setEmptyStateHeader(tr("No conversation found"));
    m_conversations->setEmptyStateSubtitle(tr("Try fewer or shorter words."));
    m_conversations->setEmptyStateImage(QStringLiteral("qrc")
                                        + WSvgRenderer::resourcePath(QStringLiteral("search_24")));
    m_conversations->setEmptyStateImageSize(QSize(24, 24));
    m_found->setFilterRole(ConversationModel::NameRole);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_found->setSourceModel(m_conversations);
    m_list = makeView(m_found, tr("Conversations"), heightOfRows);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    new EmptyState(m_conversations, m_list);

    auto *field = new SearchField(tr("Filter by name"));
    field->setResults(m_list);
    connect(field, &QLineEdit::textChanged, m_found, &QSortFilterProxyModel::setFilterFixedString);
    auto *count = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    const auto update = [this, count, field] {
        const int all = m_conversations->getCount();
        const int found = m_found->rowCount();
        const int selected = m_list->selectionModel()->selectedIndexes().size();
        QString text = found == all ? tr("%1 conversations").arg(number(all))
                                    : tr("%1 of %2 conversations").arg(number(found), number(all));
        field->setAccessibleDescription(text);
        if (selected > 0)
            text += QStringLiteral(" \u00b7 ") + tr("%1 selected").arg(number(selected));
        count->setText(text);
    };
    connect(m_found, &QAbstractItemModel::rowsInserted, count, update);
    connect(m_found, &QAbstractItemModel::rowsRemoved, count, update);
    connect(m_found, &QAbstractItemModel::modelReset, count, update);
    // Rows have left the proxy before they leave the model.
    connect(m_conversations, &BaseListModel::countChanged, count, update);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, count, update);
    update();

    QVBoxLayout *column = columnOf(card);
    column->setSpacing(8);
    column->addWidget(field);
    column->addWidget(m_list, 1);
    column->addWidget(count);
    column->addWidget(makeConversationButtons());
    return card;
}

QWidget *ModelsPage::makeConversationButtons()
{
    auto *all = new QWidget;
    auto *row = new FlowLayout(8, 8, all);
    row->setContentsMargins(0, 0, 0, 0);
    QPushButton *pause = makeButton(tr("Pause"));
    pause->setToolTip(tr("No more messages"));
    pause->setCheckable(true);
    QPushButton *once = makeButton(tr("Update once"));
    QPushButton *sort = makeButton(tr("Sort by time"));
    sort->setToolTip(tr("Otherwise by name"));
    sort->setCheckable(true);
    sort->setChecked(m_conversations->isSortedByTime());
    QPushButton *add = makeButton(tr("Add"));
    QPushButton *remove = makeButton(tr("Remove selected"));
    for (QPushButton *button : {pause, once, sort, add, remove})
        row->addWidget(button);
    connect(pause, &QPushButton::toggled, this, [this](bool paused) {
        m_isPaused = paused;
        runUpdates();
    });
    connect(once, &QPushButton::clicked, this, [this] { receive(MessagesPerUpdate); });
    connect(sort, &QPushButton::toggled, this, [this](bool sorted) {
        m_conversations->setSortedByTime(sorted);
        m_list->scrollTo(m_list->currentIndex());
    });
    connect(add, &QPushButton::clicked, this, &ModelsPage::addConversation);
    connect(remove, &QPushButton::clicked, this, &ModelsPage::removeSelected);
    const auto showUsable = [this, remove] {
        remove->setEnabled(m_list->selectionModel()->hasSelection());
    };
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, remove, showUsable);
    connect(m_found, &QAbstractItemModel::rowsRemoved, remove, showUsable);
    showUsable();
    return all;
}

void ModelsPage::receive(int messages)
{
    const ScrollPlace place(m_list);
    m_conversations->receive(messages, currentTime());
}

void ModelsPage::addConversation()
{
    const int row = m_conversations->addConversation(currentTime());
    const QModelIndex index = m_found->mapFromSource(m_conversations->index(row));
    if (!index.isValid()) // the filter does not let it through
        return;
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index);
}

void ModelsPage::removeSelected()
{
    QModelIndexList rows;
    const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        rows.append(m_found->mapToSource(index));
    // The button is about to be disabled, and the focus would go elsewhere.
    m_list->setFocus(Qt::OtherFocusReason);
    const ScrollPlace place(m_list);
    m_conversations->removeConversations(rows);
}

void ModelsPage::runUpdates()
{
    if (isVisible() && !m_isPaused && BusMonitor::get()->timesShown())
        m_updates.start(UpdateInterval);
    else
        m_updates.stop();
}

// LazyLoadedListModel

QWidget *ModelsPage::makeLazyList()
{
    WFrame *card = makeCard(QStringLiteral("LazyLoadedListModel"),
                            tr("A history of 1,000,000 messages of which five pages of 50 are in memory. The server "
                               "answers late."));
    m_lazyRows->setPagingConfig(PageSize, PagesInStorage);
    m_lazyRows->setSize(LazySize);
    m_lazyList = makeView(m_lazyRows, tr("Messages"), heightOfRows);
    connect(m_lazyList->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        m_lazyRows->setScrolledIndex(m_lazyList->indexAt(QPoint(m_lazyList->viewport()->width() / 2, 0)).row());
    });

    auto *pages = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    const auto update = [this, pages] {
        pages->setText(tr("Pages held: %1 \u00b7 requested: %2 \u00b7 %3 messages in memory")
                           .arg(runs(m_lazyRows->heldPages()), runs(m_server->waitingPages()),
                                number(m_lazyRows->getStorageSize())));
    };
    connect(m_server, &LazyServer::changed, pages, update);
    m_lazyRows->loadStorageAtPage(0);

    QVBoxLayout *column = columnOf(card);
    column->setSpacing(8);
    column->addWidget(m_lazyList, 1);
    column->addWidget(pages->wrapped());
    column->addWidget(makeLazyButtons());
    return card;
}

QWidget *ModelsPage::makeLazyButtons()
{
    auto *all = new QWidget;
    auto *column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    auto *delayRow = new QHBoxLayout;
    delayRow->setSpacing(12);
    auto *slider = new WSlider(Qt::Horizontal);
    slider->setCSS(GalleryStyles::slider());
    slider->setRange(0, LongestDelay);
    slider->setSingleStep(100);
    slider->setPageStep(500);
    slider->setAccessibleName(tr("Delay of the server in milliseconds"));
    auto *delay = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    const auto setDelay = [this, delay](int milliseconds) {
        m_server->setDelay(milliseconds);
        delay->setText(tr("Answers after %1 ms").arg(number(milliseconds)));
    };
    connect(slider, &QSlider::valueChanged, delay, setDelay);
    slider->setValue(m_server->delay());
    setDelay(m_server->delay());
    delayRow->addWidget(delay);
    delayRow->addWidget(slider, 1);
    column->addLayout(delayRow);

    auto *buttons = new QWidget;
    auto *row = new FlowLayout(8, 8, buttons);
    row->setContentsMargins(0, 0, 0, 0);
    const auto addJump = [this, row](const QString &text, int to) {
        QPushButton *button = makeButton(text);
        connect(button, &QPushButton::clicked, this, [this, to] {
            const QModelIndex index = m_lazyRows->index(to);
            m_lazyList->setCurrentIndex(index);
            m_lazyList->scrollTo(index, QAbstractItemView::PositionAtTop);
        });
        row->addWidget(button);
    };
    addJump(tr("First"), 0);
    addJump(tr("Middle"), LazySize / 2);
    addJump(tr("Last"), LazySize - 1);
    QPushButton *offline = makeButton(tr("Offline"));
    offline->setToolTip(tr("The server answers when it is back"));
    offline->setCheckable(true);
    connect(offline, &QPushButton::toggled, m_server, [this](bool on) { m_server->setOnline(!on); });
    row->addWidget(offline);
    column->addWidget(buttons);
    return all;
}

// SmallListModel and OverflowListProxyModel

void ModelsPage::addToolBar()
{
    WFrame *card = addCard(QStringLiteral("SmallListModel, OverflowListProxyModel"),
                           tr("A tool bar of eight actions. Take the grip beside it: those that do not fit are in the "
                              "menu."));
    const auto action = [](const QString &text, const char *icon) {
        return SmallListModel::Row {{TextRole, text}, {IconRole, QString::fromLatin1(icon)}};
    };
    m_actions->add({action(tr("Reply"), "reply_16"), action(tr("Forward"), "forward_16"), action(tr("Edit"), "edit_16"),
                    action(tr("Copy"), "copy_16"), action(tr("Pin"), "pin_16"), action(tr("Bookmark"), "bookmark_16"),
                    action(tr("Flag"), "flag_16"), action(tr("Download"), "download_16")});
    m_overflow->setSourceModel(m_actions);

    auto *sized = new SizedFrame(tr("the tool bar"), 560);
    auto *bar = new WFrame;
    bar->setCSS(GalleryStyles::toolBar());
    auto *around = new QHBoxLayout(sized->content());
    around->setContentsMargins(8, 8, 8, 8);
    around->addWidget(bar);
    auto *layout = new SmartLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    auto *told = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    QVBoxLayout *column = columnOf(card);
    column->setSpacing(8);
    column->addWidget(sized);
    column->addWidget(told);

    const auto tell = [this, told] {
        const int hidden = m_overflow->rowCount();
        QString text = hidden ? tr("%1 of %2 actions in the menu").arg(number(hidden), number(m_actions->rowCount()))
                              : tr("All actions in the bar");
        if (!m_chosenAction.isEmpty())
            text += QStringLiteral(" \u00b7 ") + tr("last chosen: %1").arg(m_chosenAction);
        told->setText(text);
    };
    connect(this, &ModelsPage::actionChosen, told, [this, tell](const QString &text) {
        m_chosenAction = text;
        tell();
    });
    for (int row = 0; row < m_actions->rowCount(); ++row) {
        const QString text = m_actions->data(row, TextRole).toString();
        auto *button = new ActionButton(text, m_actions->data(row, IconRole).toString());
        connect(button, &QPushButton::clicked, this, [this, text] { Q_EMIT actionChosen(text); });
        layout->addWidget(button);
    }
    auto *more = new ActionButton(tr("More"), QStringLiteral("more_16"));
    layout->setOverflowWidget(more);
    connect(more, &QPushButton::clicked, this, [this, more] { showMenu(more); });
    const auto showHidden = [this, layout, tell] {
        m_overflow->setFirstVisibleIndex(m_actions->rowCount() - layout->hiddenWidgets().size() - 1);
        tell();
    };
    connect(layout, &SmartLayout::hiddenWidgetsChanged, m_overflow, showHidden);
    showHidden();
}

void ModelsPage::showMenu(QWidget *button)
{
    auto *menu = new WMenu(button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setThemeType(button->window()->property("themeType").toString());
    menu->setCSS(GalleryStyles::menuWithIcons());
    menu->setFontToken(WFont::BodySecondary);
    const auto type = WThemeUtils::getThemeTypeOfWidget(button);
    for (int row = 0; row < m_overflow->rowCount(); ++row) {
        const QModelIndex index = m_overflow->index(row, 0);
        const QString text = index.data(TextRole).toString();
        const QString icon = WSvgRenderer::resourcePath(index.data(IconRole).toString());
        QAction *action = menu->addAction(WSvgIconEngine::icon(icon, QStringLiteral("menu-item-text"), type), text);
        connect(action, &QAction::triggered, this, [this, text] { Q_EMIT actionChosen(text); });
    }
    // Below the start of the button.
    const QSize size = menu->sizeHint();
    const int x = isRightToLeft() ? button->width() - size.width() : 0;
    menu->popup(button->mapToGlobal(QPoint(x, button->height() + 4)));
}

// EmptyStateBaseListModel

void ModelsPage::addEmptyList()
{
    WFrame *card =
        addCard(QStringLiteral("EmptyStateBaseListModel"), tr("The model says what stands in the place of no rows."));
    auto *mentions = new ConversationModel(0, currentTime(), this);
    mentions->setEmptyStateHeader(tr("No mentions yet"));
    mentions->setEmptyStateSubtitle(tr("When somebody writes your name, it is shown here."));
    mentions->setEmptyStateImage(QStringLiteral("qrc") + WSvgRenderer::resourcePath(QStringLiteral("mention_24")));
    mentions->setEmptyStateImageSize(QSize(40, 40));
    const auto heightOfState = [](int row) {
        return row * 4;
    };
    WListView *list = makeView(mentions, tr("Mentions"), heightOfState);
    new EmptyState(mentions, list);

    QPushButton *fill = makeButton(QString());
    const auto update = [fill](int count) {
        fill->setText(count ? tr("Clear") : tr("Fill"));
        fill->setAccessibleDescription(tr("Mentions: %1").arg(number(count)));
    };
    connect(mentions, &BaseListModel::countChanged, fill, update);
    update(0);
    connect(fill, &QPushButton::clicked, mentions, [mentions] {
        if (mentions->getCount())
            mentions->clear();
        else
            mentions->fill(Mentions, currentTime());
    });
    auto *row = new QHBoxLayout;
    row->addWidget(fill);
    row->addStretch();
    QVBoxLayout *column = columnOf(card);
    column->setSpacing(8);
    column->addWidget(list);
    column->addLayout(row);
}

// What a picture shows is there without waiting: pages that were answered and one that was not.
void ModelsPage::showPicture()
{
    if (!m_server->waitingPages().isEmpty()) {
        m_server->setOnline(false);
        m_server->answer(0);
    }
    m_lazyList->scrollTo(m_lazyRows->index(PageSize - 4), QAbstractItemView::PositionAtTop);
    m_list->setCurrentIndex(m_found->index(2, 0));
}

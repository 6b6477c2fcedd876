#include "ClientPage.h"

#include "BusMonitor.h"
#include "ClientComposer.h"
#include "ClientMessages.h"
#include "Controls.h"
#include "ConversationDelegate.h"
#include "ConversationModel.h"
#include "EmptyState.h"
#include "GalleryStyles.h"
#include "PlainParts.h"
#include "ScrollPlace.h"
#include "SearchField.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/controls/WPillTabButton.h>
#include <UiElements/controls/WSvgLabel.h>
#include <UiElements/controls/WUnderlineButton.h>
#include <UiElements/icons/WSvgIconEngine.h>
#include <UiElements/layouts/SmartLayout.h>
#include <UiElements/widgets/WListView.h>
#include <UiElements/widgets/WMenu.h>
#include <UiElements/widgets/WStackedWidget.h>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace {

constexpr int Conversations = 40;
constexpr int SpacesWidth = 288;
constexpr int LeastHeight = 560;
constexpr int PictureHeight = 760; // where all that it shows has room
constexpr int UpdateInterval = 4000;
constexpr int AnswerDelay = 2200;
constexpr qint64 CallBegun = (4 * 60 + 12) * 1000; // ms

// The same for every picture.
QDateTime currentTime()
{
    return BusMonitor::get()->timesShown() ? QDateTime::currentDateTime()
                                           : QDateTime(QDate(2026, 1, 15), QTime(10, 24));
}

WFrame *makeSection(const char *line)
{
    auto *frame = new WFrame;
    frame->setObjectName(QStringLiteral("section"));
    frame->setCSS(GalleryStyles::section(QString::fromLatin1(line)));
    return frame;
}

WLabel *makeText(WFont::Token token, const char *textSet = "text-primary")
{
    auto *label = new WLabel;
    dress(label, token, textSet);
    label->setElideMode(Qt::ElideRight);
    return label;
}

// What a place shows where nothing is yet.
QWidget *makeNothing(const char *icon, const QString &title, const QString &text)
{
    auto *all = new QWidget;
    auto *column = new QVBoxLayout(all);
    column->addStretch();
    auto *head = new WSvgLabel(title);
    dress(head, WFont::SubheaderPrimary);
    head->setSvgIcon(iconPath(icon));
    head->setSvgIconColorSet(QStringLiteral("text-secondary"));
    head->setSvgIconSize(QSize(48, 48));
    head->setSvgIconAlignment(WEnum::Alignment::Top);
    head->setSvgIconBottomRightPadding(QPoint(0, 8));
    head->setTextHorAlign(WEnum::HorAlign::Center);
    WLabel *more = makeText(WFont::BodySecondary, "text-secondary");
    more->setElideMode(Qt::ElideNone);
    more->setText(text);
    more->setAlignment(Qt::AlignCenter);
    column->addWidget(head, 0, Qt::AlignHCenter);
    column->addWidget(more, 0, Qt::AlignHCenter);
    column->addStretch();
    return all;
}

// One of a group of tabs. Return clicks a button, which checks none.
void addTab(QButtonGroup *group, WPushButton *button, int id)
{
    button->setCheckable(true);
    group->addButton(button, id);
    QObject::connect(button, &QPushButton::clicked, button, [button] { button->setChecked(true); });
}

WSvgPushButton *makeCallButton(const QString &text, const char *icon, const char *checkedIcon = nullptr)
{
    WSvgPushButton *button = makeSvgButton(text, icon, "ghost");
    button->setSvgIconSize(QSize(20, 20));
    if (checkedIcon) {
        button->setSvgIconChecked(iconPath(checkedIcon));
        button->setCheckable(true);
    }
    return button;
}

} // namespace

/// The conversations that a search and a filter let through, and always the open one.
class ClientPage::Spaces : public QSortFilterProxyModel
{
public:
    enum Filter { All, Unread, Active };

    explicit Spaces(QObject *parent)
        : QSortFilterProxyModel(parent)
    {
        setFilterCaseSensitivity(Qt::CaseInsensitive);
        setFilterRole(ConversationModel::NameRole);
    }

    void setFilter(Filter filter)
    {
        m_filter = filter;
        invalidateFilter();
    }

    void setOpen(const QString &name)
    {
        m_open = name;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        if (!QSortFilterProxyModel::filterAcceptsRow(row, parent))
            return false;
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        if (m_filter == All || index.data(ConversationModel::NameRole) == m_open)
            return true;
        return m_filter == Unread ? index.data(ConversationModel::UnreadRole).toInt() > 0
                                  : index.data(ConversationModel::PresenceRole) == ConversationModel::Active;
    }

private:
    Filter m_filter = All;
    QString m_open;
};

ClientPage::ClientPage()
    : Page(tr("Client"),
           tr("A conversation window of nothing but these elements. Write a message and press Return; everything "
              "answers to the keyboard."))
    , m_conversations(new ConversationModel(Conversations, currentTime(), this))
    , m_spaces(new Spaces(this))
{
    auto *frame = new WFrame;
    frame->setObjectName(QStringLiteral("panel"));
    frame->setCSS(GalleryStyles::panel() + GalleryStyles::messages());
    frame->setMinimumHeight(BusMonitor::get()->timesShown() ? LeastHeight : PictureHeight);
    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins(1, 1, 1, 1);
    row->setSpacing(0);
    row->addWidget(makeRail());
    m_sections = new WStackedWidget;
    m_sections->setObjectName(QStringLiteral("sections"));
    m_sections->setCSS(GalleryStyles::section(QStringLiteral("none")));
    auto *chats = new QWidget;
    auto *columns = new QHBoxLayout(chats);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(makeSpaces());
    columns->addWidget(makeConversation(), 1);
    m_sections->addWidget(chats);
    m_sections->addWidget(makeNothing("calendar_24", tr("No meetings today"), tr("Time for a walk, perhaps.")));
    m_sections->addWidget(makeNothing("call_24", tr("No calls yet"), tr("Who called you is listed here.")));
    m_sections->addWidget(makeNothing("people_24", tr("No contacts yet"), tr("People you write to are listed here.")));
    row->addWidget(m_sections, 1);
    body()->insertWidget(body()->count() - 1, frame, 1000);

    connect(&m_updates, &QTimer::timeout, this, &ClientPage::receive);
    connect(m_conversations, &QAbstractItemModel::dataChanged, this, &ClientPage::showUnread);
    m_answering.setSingleShot(true);
    m_answering.setInterval(AnswerDelay);
    connect(&m_answering, &QTimer::timeout, this, &ClientPage::answer);
    m_callClock.setInterval(1000);
    connect(&m_callClock, &QTimer::timeout, this, &ClientPage::showCallTime);
    open(m_conversations->index(1));
    selectOpen();
    showUnread();
    showCall(true);
}

ClientPage::~ClientPage() = default;

void ClientPage::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    if (BusMonitor::get()->timesShown()) {
        m_updates.start(UpdateInterval);
        m_callClock.start();
    }
}

void ClientPage::hideEvent(QHideEvent *event)
{
    Page::hideEvent(event);
    m_updates.stop();
    m_callClock.stop();
}

QWidget *ClientPage::makeRail()
{
    auto *rail = new WFrame;
    rail->setObjectName(QStringLiteral("rail"));
    rail->setAccessibleName(tr("Navigation"));
    followDirection(rail, [rail](Qt::LayoutDirection direction) { rail->setCSS(GalleryStyles::rail(direction)); });
    auto *column = new QVBoxLayout(rail);
    column->setContentsMargins(8, 12, 8, 12);
    column->setSpacing(6);
    column->addWidget(makeAvatar(tr("You There"), 40), 0, Qt::AlignHCenter);
    column->addSpacing(10);
    const struct
    {
        QString text;
        const char *icon;
        const char *checkedIcon;
    } tabs[] = {{tr("Chats"), "chat_24", "chat-filled_24"},
                {tr("Meetings"), "calendar_24", "calendar-filled_24"},
                {tr("Calls"), "call_24", "call-filled_24"},
                {tr("People"), "people_24", "people-filled_24"}};
    auto *group = new QButtonGroup(this);
    for (const auto &tab : tabs) {
        auto *button = new WSvgPushButton(tab.text);
        button->setFontToken(WFont::BodyTertiary);
        button->setCSS(GalleryStyles::railButton());
        button->setProperty("focusBorderRadius", 8);
        button->setSvgIcon(iconPath(tab.icon));
        button->setSvgIconChecked(iconPath(tab.checkedIcon));
        button->setSvgIconSize(QSize(24, 24));
        button->setSvgIconAlignment(WEnum::Alignment::Top);
        button->setTextLeftPadding(0);
        button->setTextRightPadding(0);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        addTab(group, button, group->buttons().size());
        column->addWidget(button);
        if (!m_chats)
            m_chats = button;
    }
    m_chats->setChecked(true);
    connect(group, &QButtonGroup::idToggled, this, [this](int place, bool isOn) {
        if (isOn)
            m_sections->setCurrentIndex(place);
    });
    column->addStretch();
    column->addWidget(makeIconButton(tr("Settings"), "settings_20"), 0, Qt::AlignHCenter);
    return rail;
}

QWidget *ClientPage::makeSpaces()
{
    WFrame *side = makeSection("none");
    followDirection(side, [side](Qt::LayoutDirection direction) {
        side->setCSS(
            GalleryStyles::section(direction == Qt::LeftToRight ? QStringLiteral("right") : QStringLiteral("left")));
    });
    side->setFixedWidth(SpacesWidth);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(12, 14, 12, 8);
    column->setSpacing(10);
    auto *top = new QHBoxLayout;
    WLabel *title = makeText(WFont::Header);
    title->setText(tr("Chats"));
    WSvgPushButton *add = makeIconButton(tr("New chat"), "chat-add_20");
    top->addWidget(title, 1);
    top->addWidget(add);
    column->addLayout(top);

    m_conversations->setEmptyStateHeader(tr("Nobody found"));
    m_conversations->setEmptyStateSubtitle(tr("Try fewer or shorter words."));
    m_spaces->setSourceModel(m_conversations);
    m_list = new WListView;
    m_list->setFontToken(WFont::BodySecondary);
    m_list->setCSS(GalleryStyles::spaceList());
    m_list->setModel(m_spaces);
    m_list->setAccessibleName(tr("Chats"));
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setUniformItemSizes(true);
    m_list->setMinimumHeight(120);
    auto *delegate = new ConversationDelegate(m_list);
    m_list->setItemDelegate(delegate);
    const auto fit = [this, delegate] {
        m_list->verticalScrollBar()->setSingleStep(delegate->rowHeight() / 2);
        m_list->doItemsLayout();
    };
    connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, m_list, fit);
    fit();
    new EmptyState(m_conversations, m_list);

    auto *search = new SearchField(tr("Search people"));
    search->setResults(m_list);
    connect(search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_spaces->setFilterFixedString(text);
        selectOpen();
    });
    auto *pills = new QHBoxLayout;
    pills->setSpacing(6);
    auto *group = new QButtonGroup(this);
    for (const auto &one : {qMakePair(tr("All"), Spaces::All), qMakePair(tr("Unread"), Spaces::Unread),
                            qMakePair(tr("Active"), Spaces::Active)}) {
        auto *pill = new WPillTabButton(one.first);
        pill->setCSS(QStringLiteral("padding: 3px 0px;"));
        addTab(group, pill, one.second);
        pills->addWidget(pill);
    }
    pills->addStretch();
    group->button(Spaces::All)->setChecked(true);
    connect(group, &QButtonGroup::idToggled, this, [this](int filter, bool isOn) {
        if (!isOn)
            return;
        m_spaces->setFilter(Spaces::Filter(filter));
        selectOpen();
    });
    // The search and the filters move the current row, too; who does that has the focus elsewhere.
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &index) {
        if (m_list->hasFocus() && index.isValid())
            open(m_spaces->mapToSource(index));
    });
    connect(add, &QPushButton::clicked, this, [this] {
        open(m_conversations->index(m_conversations->addConversation(currentTime())));
        selectOpen();
        m_list->scrollTo(m_list->currentIndex());
    });
    column->addWidget(search);
    column->addLayout(pills);
    column->addWidget(m_list, 1);
    return side;
}

QWidget *ClientPage::makeConversation()
{
    auto *all = new QWidget;
    auto *column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeHeader());
    m_call = makeCall();
    column->addWidget(m_call);

    WFrame *bar = makeSection("bottom");
    auto *tabs = new QHBoxLayout(bar);
    tabs->setContentsMargins(12, 4, 12, 2);
    tabs->setSpacing(4);
    column->addWidget(bar);
    auto *places = new WStackedWidget;
    places->setObjectName(QStringLiteral("places"));
    places->setCSS(GalleryStyles::section(QStringLiteral("none")));
    auto *talk = new QWidget;
    auto *inside = new QVBoxLayout(talk);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(0);
    m_messages = new ClientMessages;
    m_composer = new ClientComposer;
    inside->addWidget(m_messages, 1);
    inside->addWidget(m_composer);
    places->addWidget(talk);
    places->addWidget(makeNothing("file_24", tr("No files yet"), tr("What you send to each other is collected here.")));
    places->addWidget(makeNothing("whiteboard_24", tr("No whiteboards yet"), tr("Draw together, in a call or after.")));
    auto *group = new QButtonGroup(this);
    for (const QString &text : {tr("Messages"), tr("Files"), tr("Whiteboards")}) {
        auto *tab = new WUnderlineButton(text);
        tab->setFontToken(WFont::BodySecondary);
        tab->setBottomPadding(0);
        addTab(group, tab, group->buttons().size());
        tabs->addWidget(tab);
    }
    tabs->addStretch();
    group->button(0)->setChecked(true);
    static_cast<WUnderlineButton *>(group->button(1))->setShowUnreadIndicator(true);
    connect(group, &QButtonGroup::idToggled, this, [places, group](int place, bool isOn) {
        if (!isOn)
            return;
        places->setCurrentIndex(place);
        static_cast<WUnderlineButton *>(group->button(place))->setShowUnreadIndicator(false);
    });
    column->addWidget(places, 1);

    connect(m_composer, &ClientComposer::sent, this, [this](const QString &text) {
        ClientMessage message;
        message.text = text;
        message.isOwn = true;
        say(message, text);
    });
    connect(m_composer, &ClientComposer::movieSent, this, [this](const QString &path) {
        ClientMessage message;
        message.movie = path;
        message.isOwn = true;
        say(message, tr("Animated image"));
    });
    return all;
}

QWidget *ClientPage::makeHeader()
{
    auto *header = new QWidget;
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(20, 12, 12, 4);
    row->setSpacing(12);
    m_avatar = makeAvatar(QString(), 40);
    auto *who = new QVBoxLayout;
    who->setSpacing(0);
    m_name = makeText(WFont::SubheaderPrimary);
    m_presence = makeText(WFont::BodyTertiary, "text-secondary");
    who->addWidget(m_name);
    who->addWidget(m_presence);
    m_callButton = makeSvgButton(tr("Call"), "call_16", "primary");
    row->addWidget(m_avatar);
    row->addLayout(who, 1);
    row->addWidget(m_callButton);
    row->addWidget(makeIconButton(tr("Search in this chat"), "search_20"));
    row->addWidget(makeIconButton(tr("About this chat"), "info_20"));
    connect(m_callButton, &QPushButton::clicked, this, [this] { showCall(true); });
    return header;
}

QWidget *ClientPage::makeCall()
{
    auto *around = new QWidget;
    auto *margins = new QHBoxLayout(around);
    margins->setContentsMargins(12, 4, 12, 4);
    auto *bar = new WFrame;
    bar->setObjectName(QStringLiteral("call"));
    bar->setCSS(GalleryStyles::callBar());
    bar->setAccessibleName(tr("Call"));
    margins->addWidget(bar);
    auto *layout = new SmartLayout(bar);
    layout->setContentsMargins(12, 6, 8, 6);
    layout->setSpacing(4);
    auto *text = new WSvgLabel;
    dress(text, WFont::BodySecondary);
    text->setSvgIcon(iconPath("call-filled_16"));
    text->setSvgIconColorSet(QStringLiteral("text-success"));
    m_callText = text;
    layout->addWidget(text, 10);
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    WSvgPushButton *mute = makeCallButton(tr("Mute"), "mic_20", "mic-off_20");
    WSvgPushButton *camera = makeCallButton(tr("Camera"), "video_20", "video-off_20");
    WSvgPushButton *share = makeCallButton(tr("Share"), "share-screen_20", "share-screen-stop_20");
    WSvgPushButton *hand = makeCallButton(tr("Raise hand"), "hand_20", "hand-filled_20");
    WSvgPushButton *record = makeCallButton(tr("Record"), "record_20", "stop_20");
    layout->addWidget(mute, 9);
    layout->addWidget(camera, 8);
    layout->addWidget(share, 7);
    layout->addWidget(hand, 3);
    layout->addWidget(record, 2);
    WSvgPushButton *leave = makeSvgButton(tr("Leave"), "call-end_20", "danger");
    leave->setSvgIconSize(QSize(20, 20));
    layout->addWidget(leave, SmartLayout::NeverHidden);
    WSvgPushButton *more = makeIconButton(tr("More"), "more_20");
    layout->setOverflowWidget(more);
    connect(leave, &QPushButton::clicked, this, [this] { showCall(false); });
    connect(more, &QPushButton::clicked, more, [more, layout] {
        auto *menu = new WMenu(more);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->setThemeType(more->window()->property("themeType").toString());
        menu->setCSS(GalleryStyles::menuWithIcons());
        menu->setFontToken(WFont::BodySecondary);
        const auto type = WThemeUtils::getThemeTypeOfWidget(more);
        const QVector<QWidget *> hidden = layout->hiddenWidgets();
        for (QWidget *widget : hidden) {
            auto *button = qobject_cast<WSvgPushButton *>(widget);
            if (!button)
                continue;
            QAction *action = menu->addAction(
                WSvgIconEngine::icon(button->svgIcon(), QStringLiteral("menu-item-text"), type), button->text());
            action->setCheckable(button->isCheckable());
            action->setChecked(button->isChecked());
            connect(action, &QAction::triggered, button, [button] { button->click(); });
        }
        const int x = more->isRightToLeft() ? more->width() - menu->sizeHint().width() : 0;
        menu->popup(more->mapToGlobal(QPoint(x, more->height() + 4)));
    });
    return around;
}

void ClientPage::open(const QModelIndex &source)
{
    if (!source.isValid() || source == m_open)
        return;
    m_open = source;
    const QString name = source.data(ConversationModel::NameRole).toString();
    if (!m_stories.contains(name)) {
        const auto time = QDateTime::fromMSecsSinceEpoch(source.data(ConversationModel::TimeRole).toLongLong());
        m_stories[name] = ClientStory::of(name, source.data(ConversationModel::MessageRole).toString(), time);
    }
    m_avatar->setText(makeInitials(name));
    m_avatar->setAccessibleName(name);
    m_name->setText(name);
    m_messages->show(name, m_stories.value(name));
    m_messages->setTyping(m_answering.isActive() && m_answered == m_open);
    m_composer->setRecipient(name);
    m_conversations->markRead(source);
    m_spaces->setOpen(name);
    showUnread();
}

void ClientPage::selectOpen()
{
    const QModelIndex index = m_spaces->mapFromSource(m_open);
    if (index.isValid())
        m_list->setCurrentIndex(index);
    else
        m_list->selectionModel()->clearSelection();
}

void ClientPage::say(const ClientMessage &message, const QString &preview)
{
    ClientMessage now = message;
    now.time = currentTime().time();
    m_stories[m_name->text()] << now;
    m_messages->append(now);
    const ScrollPlace place(m_list);
    m_conversations->setMessage(m_open, tr("You: %1").arg(preview), currentTime());
    m_answered = m_open;
    m_answering.start();
    m_messages->setTyping(true);
}

// The other one, who may no longer be the one that is shown.
void ClientPage::answer()
{
    const QPersistentModelIndex who = m_answered;
    if (!who.isValid())
        return;
    ClientMessage message;
    message.text = ClientStory::answer(m_answers++);
    message.time = currentTime().time();
    m_stories[who.data(ConversationModel::NameRole).toString()] << message;
    const ScrollPlace place(m_list);
    m_conversations->setMessage(who, message.text, currentTime());
    if (who == m_open) {
        m_messages->setTyping(false);
        m_messages->append(message);
    } else {
        m_conversations->setData(who, who.data(ConversationModel::UnreadRole).toInt() + 1,
                                 ConversationModel::UnreadRole);
    }
}

void ClientPage::receive()
{
    {
        const ScrollPlace place(m_list);
        m_conversations->receive(1, currentTime());
    }
    if (m_open.data(ConversationModel::UnreadRole).toInt() > 0) {
        ClientMessage message;
        message.text = m_open.data(ConversationModel::MessageRole).toString();
        message.time = currentTime().time();
        m_stories[m_name->text()] << message;
        m_messages->append(message);
        m_conversations->markRead(m_open);
    }
    showUnread();
}

void ClientPage::showUnread()
{
    bool isAny = false;
    for (int row = 0; row < m_conversations->getCount() && !isAny; ++row)
        isAny = m_conversations->index(row).data(ConversationModel::UnreadRole).toInt() > 0;
    m_chats->setBadgeVisible(isAny);
    QString presence = ConversationModel::presenceName(m_open.data(ConversationModel::PresenceRole).toInt());
    if (!presence.isEmpty())
        presence[0] = presence.at(0).toUpper();
    m_presence->setText(presence);
}

void ClientPage::showCall(bool isOn)
{
    m_call->setVisible(isOn);
    m_callButton->setVisible(!isOn);
    m_callTime.start();
    showCallTime();
}

void ClientPage::showCallTime()
{
    const qint64 begun = BusMonitor::get()->timesShown() ? m_callTime.elapsed() : CallBegun;
    m_callText->setText(QTime::fromMSecsSinceStartOfDay(int(begun)).toString(QStringLiteral("m:ss")));
    m_callText->setAccessibleName(tr("In a call since %1").arg(m_callText->text()));
}

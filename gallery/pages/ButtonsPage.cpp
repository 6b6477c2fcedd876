#include "ButtonsPage.h"

#include "BusMonitor.h"
#include "Controls.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "StateCard.h"

#include <UiElements/controls/WEmojiPushButton.h>
#include <UiElements/controls/WGifButton.h>
#include <UiElements/controls/WPillTabButton.h>
#include <UiElements/controls/WSvgAnchorButton.h>
#include <UiElements/controls/WToggleButton.h>
#include <UiElements/controls/WUnderlineButton.h>
#include <UiElements/emoji/EmojiResources.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/widgets/WMenu.h>

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMovie>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace {

constexpr int PictureFrame = 4; // of the heart: the beat
constexpr int PillHeight = 36;

// Buttons show a focus that the keyboard has brought. A lent one came by none, so it is said here.
template <typename Base>
class Specimen : public Base
{
public:
    using Base::Base;

protected:
    void initStyleOption(QStyleOptionButton *option) const override
    {
        Base::initStyleOption(option);
        if (this->focusProxy())
            option->state |= QStyle::State_KeyboardFocusChange;
    }
};

template <typename Button>
Button *withBadge(Button *button)
{
    button->setBadgeVisible(true);
    return button;
}

WPushButton *makePlain(const char *kind = "secondary")
{
    auto *button = new Specimen<WPushButton>(ButtonsPage::tr("Forward"));
    button->setFontToken(WFont::BodySecondary);
    button->setCSS(GalleryStyles::pushButton(QString::fromLatin1(kind)));
    button->setCheckable(true);
    return button;
}

WSvgPushButton *makeMute()
{
    WSvgPushButton *button = makeSvgButton(ButtonsPage::tr("Mute"), "mic_16");
    button->setSvgIconChecked(iconPath("mic-off_16"));
    button->setCheckable(true);
    return button;
}

WSvgPushButton *makeMuteIcon()
{
    WSvgPushButton *button = makeIconButton(ButtonsPage::tr("Mute"), "mic_20");
    button->setSvgIconChecked(iconPath("mic-off_20"));
    button->setCheckable(true);
    return button;
}

WSvgAnchorButton *makeAnchor(const QString &text)
{
    auto *button = new Specimen<WSvgAnchorButton>(text);
    button->setFontToken(WFont::BodySecondary);
    button->setCSS(GalleryStyles::svgButton(QStringLiteral("secondary")));
    button->setAnchorSvgOff(iconPath("chevron-down_16"));
    button->setAnchorSvgOn(iconPath("chevron-up_16"));
    button->setCheckable(true);
    return button;
}

WPillTabButton *makePill(const QString &text, const char *icon = nullptr)
{
    auto *button = new Specimen<WPillTabButton>(text);
    button->setCSS(QStringLiteral("padding: 0px;"));
    button->setMinimumHeight(PillHeight);
    if (icon)
        button->setSvgIcon(iconPath(icon));
    return button;
}

WUnderlineButton *makeTab(const QString &text)
{
    auto *button = new Specimen<WUnderlineButton>(text);
    button->setFontToken(WFont::BodySecondary);
    button->setCheckable(true);
    return button;
}

WUnderlineButton *makeFullTab(const QString &text)
{
    WUnderlineButton *button = makeTab(text);
    button->setShowUnreadIndicator(true);
    button->setLeftIcon(QStringLiteral(":/gallery/icons/lighthouse.svg"));
    button->setAnchorIcon(iconPath("chevron-down_16"));
    return button;
}

WToggleButton *makeToggle()
{
    auto *button = new Specimen<WToggleButton>(ButtonsPage::tr("Captions"));
    button->setFontToken(WFont::BodySecondary);
    button->setCSS(GalleryStyles::pushButton(QStringLiteral("ghost")));
    button->setToolTip(ButtonsPage::tr("Show captions"), ButtonsPage::tr("Hide captions"));
    return button;
}

WEmojiPushButton *makeEmoji(const QString &name = ButtonsPage::tr("Thumbs up"), const char *code = "1f44d")
{
    EmojiPicker::EmojiResources::ensureRegistered();
    auto *button = new Specimen<WEmojiPushButton>;
    button->setCSS(GalleryStyles::iconButton(QStringLiteral("ghost")));
    button->setIcon(QIcon(QStringLiteral(":/emojis/%1.svg").arg(QLatin1String(code))));
    button->setIconSize(QSize(22, 22));
    button->setFixedSize(40, 40);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

WGifButton *makeGif()
{
    const QString movie = QStringLiteral(":/gallery/movies/heart.gif");
    auto *button = new Specimen<WGifButton>(nullptr, movie, QSize(40, 40), movie, QSize(40, 40));
    button->setCSS(GalleryStyles::iconButton(QStringLiteral("ghost")));
    button->setFixedSize(56, 56);
    button->setCheckable(true);
    button->setToolTip(ButtonsPage::tr("Heart"));
    button->setAccessibleName(ButtonsPage::tr("Heart"));
    return button;
}

// What a state shows in such a button is its animation.
bool play(QWidget *widget, WColorSet::State state)
{
    auto *button = static_cast<WGifButton *>(widget);
    if (state != WColorSet::Hovered && state != WColorSet::Focused)
        return false;
    button->setGif();
    if (BusMonitor::get()->timesShown())
        button->startGif();
    else
        standStill(button->findChild<QMovie *>(), PictureFrame);
    return false;
}

QVBoxLayout *columnOf(QWidget *card)
{
    return static_cast<QVBoxLayout *>(card->layout());
}

Label *caption(const QString &text)
{
    return new Label(text, WFont::BodyTertiary, Label::Secondary);
}

} // namespace

ButtonsPage::ButtonsPage()
    : Page(tr("Buttons"), tr("Push buttons in their six states, plain and with the badge that tells of something new."))
{
    addStates();
    addSizes();
    addArrangements();
    addAnchors();
    addTabs();
    addElided();
    addEvents();
}

void ButtonsPage::addStates()
{
    auto *plain = new StateCard(QStringLiteral("WPushButton"), tr("The four kinds of the gallery, and the badge."),
                                [] { return makePlain(); });
    for (const char *kind : {"primary", "danger", "ghost"})
        plain->addVariant(QStringLiteral("WPushButton"), [kind] { return makePlain(kind); });
    plain->addVariant(tr("WPushButton with badge"), [] { return withBadge(makePlain()); });
    addCard(plain);

    auto *svg = new StateCard(QStringLiteral("WSvgPushButton"),
                              tr("An icon in the colors of the state, and another one while it is checked."), makeMute);
    svg->addVariant(tr("WSvgPushButton with badge"), [] { return withBadge(makeMute()); });
    svg->addVariant(tr("WSvgPushButton, icon only"), makeMuteIcon);
    svg->addVariant(tr("WSvgPushButton, icon only, with badge"), [] { return withBadge(makeMuteIcon()); });
    addCard(svg);

    auto *anchor =
        new StateCard(QStringLiteral("WSvgAnchorButton"), tr("A second icon tells whether something is open."),
                      [] { return makeAnchor(tr("Sort")); });
    anchor->addVariant(tr("WSvgAnchorButton with badge"), [] { return withBadge(makeAnchor(tr("Sort"))); });
    addCard(anchor);

    auto *pill = new StateCard(QStringLiteral("WPillTabButton"), tr("Round at every height."),
                               [] { return makePill(tr("Unread")); });
    pill->addVariant(tr("WPillTabButton with icon"), [] { return makePill(tr("Starred"), "star_12"); });
    pill->addVariant(tr("WPillTabButton with badge"), [] { return withBadge(makePill(tr("Unread"))); });
    addCard(pill);

    auto *tab = new StateCard(QStringLiteral("WUnderlineButton"), tr("A tab, plain and with all that it can show."),
                              [] { return makeTab(tr("Files")); });
    tab->addVariant(tr("WUnderlineButton with dot and icons"), [] { return makeFullTab(tr("Trips")); });
    tab->addVariant(tr("WUnderlineButton with badge"), [] { return withBadge(makeTab(tr("Files"))); });
    addCard(tab);

    auto *toggle = new StateCard(QStringLiteral("WToggleButton"),
                                 tr("Flat, with a tooltip for each of its two states."), makeToggle);
    toggle->addVariant(tr("WToggleButton with badge"), [] { return withBadge(makeToggle()); });
    addCard(toggle);

    auto *emoji = new StateCard(QStringLiteral("WEmojiPushButton"), tr("Return, Enter and Space click at once."),
                                [] { return makeEmoji(); });
    emoji->addVariant(tr("WEmojiPushButton with badge"), [] { return withBadge(makeEmoji()); });
    addCard(emoji);

    auto *gif = new StateCard(QStringLiteral("WGifButton"), tr("Moves while it is hovered or focused."), makeGif, play);
    gif->addVariant(tr("WGifButton with badge"), [] { return withBadge(makeGif()); });
    addCard(gif);
}

void ButtonsPage::addSizes()
{
    WFrame *card = addCard(tr("Size and font"), tr("At its size hint with the font of the token, and at 150 % of it."));
    QVBoxLayout *column = columnOf(card);
    column->setSpacing(8);
    for (const bool isLarge : {false, true}) {
        auto *row = new QHBoxLayout;
        row->setSpacing(12);
        column->addWidget(caption(isLarge ? tr("150 %") : tr("100 %")));
        column->addLayout(row);
        WSvgAnchorButton *anchor = makeAnchor(tr("Sort"));
        WUnderlineButton *tab = makeFullTab(tr("Trips"));
        tab->setChecked(true);
        for (WPushButton *button : {static_cast<WPushButton *>(withBadge(makePushButton(tr("Forward")))),
                                    static_cast<WPushButton *>(makeMute()), static_cast<WPushButton *>(anchor),
                                    static_cast<WPushButton *>(makePill(tr("Starred"), "star_12")),
                                    static_cast<WPushButton *>(tab), static_cast<WPushButton *>(makeToggle())}) {
            if (isLarge)
                enlarge(button);
            row->addWidget(button, 0, Qt::AlignVCenter);
        }
        row->addStretch();
    }
}

void ButtonsPage::addArrangements()
{
    WFrame *card = addCard(tr("Icon and text"),
                           tr("The side of the icon, down; the place of both in the button, across. Right-to-left "
                              "layouts exchange left and right."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    const struct
    {
        QString title;
        WEnum::Alignment alignment;
    } icons[] = {{tr("Left"), WEnum::Alignment::Left},
                 {tr("Right"), WEnum::Alignment::Right},
                 {tr("Top"), WEnum::Alignment::Top},
                 {tr("Bottom"), WEnum::Alignment::Bottom}};
    const struct
    {
        QString title;
        WEnum::HorAlign alignment;
    } texts[] = {{tr("Left"), WEnum::HorAlign::Left},
                 {tr("Center"), WEnum::HorAlign::Center},
                 {tr("Right"), WEnum::HorAlign::Right}};
    int line = 0;
    for (const auto &icon : icons) {
        ++line;
        grid->addWidget(caption(icon.title), line, 0);
        int place = 0;
        for (const auto &text : texts) {
            ++place;
            if (line == 1)
                grid->addWidget(caption(text.title), 0, place);
            WSvgPushButton *button = makeSvgButton(tr("Share"), "share-screen_16");
            button->setSvgIconAlignment(icon.alignment);
            if (icon.alignment == WEnum::Alignment::Top || icon.alignment == WEnum::Alignment::Bottom)
                button->setCSS(GalleryStyles::pushButton(QStringLiteral("secondary")));
            button->setTextHorAlign(text.alignment);
            grid->addWidget(button, line, place);
            grid->setColumnStretch(place, 1);
        }
    }
    columnOf(card)->addLayout(grid);

    columnOf(card)->addSpacing(12);
    columnOf(card)->addWidget(caption(tr("With an inner icon, with wider paddings, and with rich text:")));
    columnOf(card)->addSpacing(4);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    columnOf(card)->addLayout(row);
    WSvgPushButton *inner = makeSvgButton(tr("Call back"), "chat_24");
    inner->setSvgIconSize(QSize(24, 24));
    inner->setInnerSvgIcon(iconPath("phone_12"));
    inner->setInnerSvgIconSize(QSize(10, 10));
    WSvgPushButton *padded = makeSvgButton(tr("Attach"), "attach_16");
    padded->setSvgIconTopLeftPadding(QPoint(12, 0));
    padded->setTextLeftPadding(16);
    padded->setTextRightPadding(24);
    WSvgPushButton *rich = makeSvgButton(tr("<b>3</b> new of <i>12</i>"), "chat_16");
    rich->setTextFormat(Qt::RichText);
    for (WSvgPushButton *button : {inner, padded, rich})
        row->addWidget(button, 0, Qt::AlignVCenter);
    row->addStretch();
}

void ButtonsPage::addAnchors()
{
    WFrame *card = addCard(tr("Anchors"), tr("At either edge or at the text, for on and off, and for a menu."));
    FlowLayout *row = nullptr;
    columnOf(card)->addWidget(makeFlow(&row));
    for (const bool isOn : {false, true}) {
        for (const bool isLeading : {true, false}) {
            WSvgAnchorButton *button = makeAnchor(isLeading ? tr("Leading") : tr("Trailing"));
            button->setIsLeftAnchor(isLeading);
            button->setMinimumWidth(136);
            button->setChecked(isOn);
            row->addWidget(button);
        }
    }
    WSvgAnchorButton *atText = makeAnchor(tr("At the text"));
    atText->setAlignAnchorIconToText(true);
    atText->setMinimumWidth(176);
    row->addWidget(atText);
    WSvgAnchorButton *choice = makeAnchor(tr("Status"));
    choice->setCheckable(false);
    auto *menu = new WMenu(choice);
    menu->setCSS(GalleryStyles::menu());
    menu->setFontToken(WFont::BodySecondary);
    connect(menu, &QMenu::aboutToShow, menu,
            [menu, choice] { menu->setThemeType(choice->window()->property("themeType").toString()); });
    for (const QString &text : {tr("Available"), tr("Busy"), tr("Away")})
        menu->addAction(text);
    choice->setMenu(menu);
    row->addWidget(choice);
}

void ButtonsPage::addTabs()
{
    WFrame *card = addCard(tr("Tabs"), tr("Of each row one is checked. The dot tells of something unread."));
    QVBoxLayout *column = columnOf(card);
    column->setSpacing(12);
    FlowLayout *pills = nullptr;
    column->addWidget(makeFlow(&pills));
    auto *pillGroup = new QButtonGroup(this);
    for (WPillTabButton *pill : {makePill(tr("All")), makePill(tr("Unread")), makePill(tr("Mentions"), "mention_12"),
                                 makePill(tr("Starred"), "star_12"), makePill(tr("With files"), "attach_12")}) {
        pillGroup->addButton(pill);
        pills->addWidget(pill);
    }
    pillGroup->buttons().at(2)->setChecked(true);

    FlowLayout *tabs = nullptr;
    column->addWidget(makeFlow(&tabs));
    auto *tabGroup = new QButtonGroup(this);
    for (WUnderlineButton *tab :
         {makeTab(tr("Messages")), makeTab(tr("Files")), makeTab(tr("Whiteboards")), makeFullTab(tr("Trips"))}) {
        tabGroup->addButton(tab);
        tabs->addWidget(tab);
    }
    static_cast<WUnderlineButton *>(tabGroup->buttons().at(1))->setShowUnreadIndicator(true);
    tabGroup->buttons().at(0)->setChecked(true);
}

void ButtonsPage::addElided()
{
    WFrame *card = addCard(tr("Elided"), tr("What does not fit ends in an ellipsis; the tooltip is the whole text."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    const QString text = tr("Forward to the whole design team");
    WSvgPushButton *svg = makeSvgButton(text, "forward_16");
    WSvgAnchorButton *anchor = makeAnchor(text);
    WUnderlineButton *tab = makeTab(text);
    tab->setChecked(true);
    const struct
    {
        WPushButton *button;
        Qt::TextElideMode mode;
    } samples[] = {{makePushButton(text), Qt::ElideRight},
                   {makePushButton(text), Qt::ElideMiddle},
                   {svg, Qt::ElideRight},
                   {anchor, Qt::ElideRight},
                   {makePill(text), Qt::ElideRight},
                   {tab, Qt::ElideRight}};
    int place = 0;
    for (const auto &sample : samples) {
        sample.button->setElideMode(sample.mode);
        // The plain ones give this room to the padding of their template.
        const bool isPlain = qstrcmp(sample.button->metaObject()->className(), "WPushButton") == 0;
        sample.button->setElidePadding(isPlain ? 32 : 0);
        sample.button->setFixedWidth(140);
        const QString title = QString::fromLatin1(sample.button->metaObject()->className());
        grid->addWidget(caption(sample.mode == Qt::ElideMiddle ? tr("in the middle") : title), 0, place);
        grid->addWidget(sample.button, 1, place++, Qt::AlignLeading);
    }
    grid->setColumnStretch(place, 1);
    columnOf(card)->addLayout(grid);
}

void ButtonsPage::addEvents()
{
    WFrame *card = addCard(tr("Mouse and keyboard"),
                           tr("Hold the button down for half a second, click it with the right mouse button, or press "
                              "Return: the line below tells what it said."));
    QVBoxLayout *column = columnOf(card);
    column->setSpacing(8);
    FlowLayout *row = nullptr;
    column->addWidget(makeFlow(&row));
    WPushButton *button = makePushButton(tr("Press me"), "primary");
    button->setLongPressEnabled(true);
    button->setToolTip(tr("A tooltip that keyboard users see, too"));
    button->setToolTipOnKeyboardFocus(true);
    row->addWidget(button);
    auto *last = caption(tr("Nothing yet"));
    column->addWidget(last);
    const auto tell = [last, button](const QString &text) {
        last->setText(text);
        button->setAccessibleDescription(text);
    };
    connect(button, &QPushButton::clicked, last, [tell] { tell(tr("clicked")); });
    connect(button, &WPushButton::longPressed, last, [tell] { tell(tr("longPressed: no click follows")); });
    connect(button, &WPushButton::rightClick, last, [tell] { tell(tr("rightClick")); });
    connect(button, &WPushButton::mouseEntered, last, [tell] { tell(tr("mouseEntered")); });
    connect(button, &WPushButton::mouseExited, last, [tell] { tell(tr("mouseExited")); });
    connect(button, &WPushButton::onFocusIn, last, [tell] { tell(tr("onFocusIn")); });
    connect(button, &WPushButton::onFocusOut, last, [tell] { tell(tr("onFocusOut")); });
}

#include "LabelsPage.h"

#include "Controls.h"
#include "Label.h"
#include "StateCard.h"

#include <UiElements/controls/WEmojiLabel.h>
#include <UiElements/controls/WSvgLabel.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr int NarrowWidth = 208;

QString sample()
{
    return LabelsPage::tr("Notes from the review of the new colors");
}

// Thumbs up in a medium skin tone, a family, a flag.
QString emojiSample()
{
    return QString::fromUtf8("Thank you all \xf0\x9f\x91\x8d\xf0\x9f\x8f\xbd see you in Lisbon "
                             "\xf0\x9f\x87\xb5\xf0\x9f\x87\xb9 <b>\xe2\x9c\x88\xef\xb8\x8f</b>");
}

WLabel *makeLabel(const QString &text, const char *textSet = "text-primary")
{
    auto *label = new WLabel(text);
    dress(label, WFont::BodyPrimary, textSet);
    return label;
}

WEmojiLabel *makeEmojiLabel(const QString &text)
{
    auto *label = new WEmojiLabel(text);
    dress(label, WFont::BodyPrimary);
    return label;
}

WSvgLabel *makeSvgLabel(const QString &text, const char *icon)
{
    auto *label = new WSvgLabel(text);
    dress(label, WFont::BodyPrimary);
    label->setSvgIcon(iconPath(icon));
    return label;
}

template <typename L>
L *makeClickable(L *label)
{
    label->setCSS(label->getCSS() + QStringLiteral(" padding: 2px 6px;"));
    QObject::connect(label, &WLabel::clicked, label, [label] { label->setToolTip(LabelsPage::tr("Clicked")); });
    return label;
}

QVBoxLayout *columnOf(QWidget *card)
{
    return static_cast<QVBoxLayout *>(card->layout());
}

Label *caption(const QString &text)
{
    return new Label(text, WFont::BodyTertiary, Label::Secondary);
}

// Lines of a caption and what it is about.
class Lines
{
public:
    explicit Lines(QWidget *card)
        : m_grid(new QGridLayout)
    {
        m_grid->setHorizontalSpacing(24);
        m_grid->setVerticalSpacing(10);
        m_grid->setColumnMinimumWidth(0, 176);
        m_grid->setColumnStretch(1, 1);
        columnOf(card)->addLayout(m_grid);
    }

    void add(const QString &title, QWidget *widget, int width = 0)
    {
        const int line = m_grid->rowCount();
        m_grid->addWidget(caption(title), line, 0);
        // Room between the texts and the frame of those that can have the focus.
        if (auto *label = qobject_cast<WLabel *>(widget))
            label->setCSS(label->getCSS() + QStringLiteral(" padding: 2px 6px;"));
        if (width > 0)
            widget->setFixedWidth(width);
        m_grid->addWidget(widget, line, 1, Qt::AlignLeading | Qt::AlignVCenter);
    }

private:
    QGridLayout *m_grid;
};

} // namespace

LabelsPage::LabelsPage()
    : Page(tr("Labels"), tr("Texts that can be clicked, selected and elided, with links, emoji and icons."))
{
    addStates();
    addPlain();
    addRich();
    addEmoji();
    addIcons();
    addWrapped();
}

void LabelsPage::addStates()
{
    const auto make = [] {
        return makeClickable(makeLabel(tr("Show all"), "button-hyperlink-text"));
    };
    auto *card =
        new StateCard(tr("Labels that can be clicked"),
                      tr("WLabel, WEmojiLabel and WSvgLabel. Tab reaches them, Return and Space click."), make);
    card->addVariant(QStringLiteral("WEmojiLabel"),
                     [] { return makeClickable(makeEmojiLabel(QString::fromUtf8("Party \xf0\x9f\x8e\x89"))); });
    card->addVariant(QStringLiteral("WSvgLabel"), [] {
        WSvgLabel *label = makeSvgLabel(tr("Pinned"), "pin_16");
        label->setSvgIconColorSet(QStringLiteral("button-ghost-text"));
        return makeClickable(label);
    });
    addCard(card);
}

void LabelsPage::addPlain()
{
    WFrame *card = addCard(QStringLiteral("WLabel"), tr("Plain text. Elided, it has the whole text as tooltip."));
    Lines lines(card);
    lines.add(tr("Color sets"), makeLabel(sample(), "text-secondary"));
    lines.add(QString(), makeLabel(tr("Saved"), "text-success"));
    lines.add(QString(), makeLabel(tr("The connection is slow"), "text-warning"));
    lines.add(QString(), makeLabel(tr("Not sent"), "text-error"));
    const struct
    {
        QString title;
        Qt::TextElideMode mode;
    } modes[] = {{tr("Elided at the end"), Qt::ElideRight},
                 {tr("in the middle"), Qt::ElideMiddle},
                 {tr("at the beginning"), Qt::ElideLeft}};
    for (const auto &mode : modes) {
        WLabel *label = makeLabel(sample());
        label->setElideMode(mode.mode);
        lines.add(mode.title, label, NarrowWidth);
    }
    WLabel *selectable = makeLabel(tr("Select me with mouse or keyboard, and copy with Ctrl+C"));
    selectable->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lines.add(tr("Selectable"), selectable);
    WLabel *counted = makeLabel(tr("Click me"));
    counted->setAccessibleDescription(tr("Counts the clicks"));
    connect(counted, &WLabel::clicked, counted,
            [counted, count = 0]() mutable { counted->setText(tr("Clicked %n times", nullptr, ++count)); });
    lines.add(tr("Clickable"), counted);
}

void LabelsPage::addRich()
{
    WFrame *card = addCard(tr("WLabel with rich text"),
                           tr("Links have the colors of the theme and open nothing by themselves. Images from outside "
                              "are replaced by their text."));
    Lines lines(card);
    WLabel *rich = makeLabel(QString());
    rich->setTextFormat(Qt::RichText);
    rich->setText(tr("Read the <a href=\"notes\">notes of the <b>review</b></a> or the <a href=\"draft\">draft</a>."));
    rich->setTextInteractionFlags(Qt::TextBrowserInteraction);
    WLabel *told = makeLabel(tr("No link followed yet"), "text-secondary");
    connect(rich, &QLabel::linkActivated, told,
            [told](const QString &link) { told->setText(tr("Link: %1").arg(link)); });
    lines.add(tr("With links"), rich);
    lines.add(QString(), told);
    WLabel *image = makeLabel(QString());
    image->setTextFormat(Qt::RichText);
    image->setText(tr("A picture: <img src=\"file:///outside.png\" alt=\"[a picture]\"> and <i>nothing</i> was read."));
    lines.add(tr("An image from outside"), image);
}

void LabelsPage::addEmoji()
{
    WFrame *card = addCard(QStringLiteral("WEmojiLabel"),
                           tr("Whatever somebody wrote, never markup. Emoji are images as high as a line."));
    Lines lines(card);
    lines.add(tr("One line"), makeEmojiLabel(emojiSample()));
    WEmojiLabel *elided = makeEmojiLabel(emojiSample());
    elided->setElideMode(Qt::ElideRight);
    lines.add(tr("Elided"), elided, NarrowWidth);
    WEmojiLabel *many = makeEmojiLabel(QString::fromUtf8(
        "Agenda \xf0\x9f\x93\x9d\n1. Numbers \xf0\x9f\x93\x88\n2. Who brings cake? \xf0\x9f\x8d\xb0"));
    lines.add(tr("Three lines"), many);
    WEmojiLabel *large = makeEmojiLabel(QString::fromUtf8("\xf0\x9f\x8e\x89\xf0\x9f\x8e\x82\xf0\x9f\xa5\xb3"));
    large->setFontToken(WFont::Display);
    large->setAccessibleName(tr("Party"));
    lines.add(tr("In a large font"), large);
    WEmojiLabel *selectable = makeEmojiLabel(emojiSample());
    selectable->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lines.add(tr("Selectable: emoji of the font"), selectable);
}

void LabelsPage::addIcons()
{
    WFrame *card = addCard(QStringLiteral("WSvgLabel"), tr("An icon at any side of the text, in a color of its own."));
    QVBoxLayout *column = columnOf(card);
    auto *row = new QHBoxLayout;
    row->setSpacing(40);
    column->addLayout(row);
    column->addSpacing(12);
    const struct
    {
        QString title;
        WEnum::Alignment alignment;
        const char *icon;
        const char *colorSet;
    } samples[] = {{tr("Left"), WEnum::Alignment::Left, "check-circle-filled_20", "text-success"},
                   {tr("Right"), WEnum::Alignment::Right, "warning-filled_20", "text-warning"},
                   {tr("Top"), WEnum::Alignment::Top, "error-filled_20", "text-error"},
                   {tr("Bottom"), WEnum::Alignment::Bottom, "info-filled_20", "text-accent"}};
    for (const auto &one : samples) {
        WSvgLabel *label = makeSvgLabel(one.title, one.icon);
        label->setSvgIconSize(QSize(20, 20));
        label->setSvgIconAlignment(one.alignment);
        label->setTextHorAlign(WEnum::HorAlign::Center);
        label->setSvgIconColorSet(QString::fromLatin1(one.colorSet));
        row->addWidget(label);
    }
    row->addStretch();
    Lines lines(card);
    WSvgLabel *elided = makeSvgLabel(sample(), "file_16");
    elided->setElideMode(Qt::ElideRight);
    lines.add(tr("Elided"), elided, NarrowWidth);
    WSvgLabel *linked = makeSvgLabel(QString(), "link_16");
    linked->setTextFormat(Qt::RichText);
    linked->setText(tr("Joined by a <a href=\"link\">link</a>"));
    lines.add(tr("With a link"), linked);
    WSvgLabel *selectable = makeSvgLabel(tr("+49 30 555 0100"), "phone_16");
    selectable->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lines.add(tr("Selectable"), selectable);
    column->addSpacing(12);
    auto *places = new QHBoxLayout;
    places->setSpacing(16);
    column->addLayout(places);
    for (const auto &at :
         {qMakePair(tr("At the left"), WEnum::HorAlign::Left), qMakePair(tr("In the middle"), WEnum::HorAlign::Center),
          qMakePair(tr("At the right"), WEnum::HorAlign::Right)}) {
        WSvgLabel *label = makeSvgLabel(at.first, "call_16");
        label->setTextHorAlign(at.second);
        label->setCSS(QStringLiteral("$textColors: text-primary; $backgroundColors: background-secondary; "
                                     "$borderColors: outline-secondary; $borders: all; $borderRadius: 6; "
                                     "padding: 0px 8px;"));
        places->addWidget(label, 1);
    }
}

void LabelsPage::addWrapped()
{
    WFrame *card = addCard(tr("Wrapped"), tr("As high as the lines need in the width that there is."));
    QVBoxLayout *column = columnOf(card);
    column->setSpacing(12);
    WLabel *plain = makeLabel(tr("We have moved the review to Thursday because half of the team is on the train until "
                                 "noon. Bring what you have, also where it is not finished: the point is to see all of "
                                 "it side by side before anybody polishes a part of it."));
    WEmojiLabel *emoji = makeEmojiLabel(QString::fromUtf8(
        "The photos of the trip are there \xf0\x9f\x93\xb8 \xe2\x80\x94 the mountains "
        "\xe2\x9b\xb0\xef\xb8\x8f on the first day, the sea \xf0\x9f\x8c\x8a on the second, and on the "
        "third day \xf0\x9f\x8c\xa7\xef\xb8\x8f we played cards \xf0\x9f\x83\x8f and ate everything "
        "that was left \xf0\x9f\x8d\x9d\xf0\x9f\x8d\x93\xf0\x9f\xa7\x80"));
    for (WLabel *label : {plain, static_cast<WLabel *>(emoji)}) {
        label->setWordWrap(true);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        label->setSizePolicy(policy);
        column->addWidget(label);
    }
}

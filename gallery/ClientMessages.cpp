#include "ClientMessages.h"

#include "BusMonitor.h"
#include "Controls.h"
#include "ConversationModel.h"
#include "GalleryStyles.h"
#include "PlainParts.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/controls/WEmojiLabel.h>
#include <UiElements/controls/WGifLabel.h>
#include <UiElements/emoji/EmojiConverter.h>
#include <UiElements/widgets/WFrame.h>

#include <QHBoxLayout>
#include <QMovie>
#include <QRegularExpression>
#include <QScrollBar>

namespace {

constexpr int AvatarSide = 36;
constexpr int PictureFrame = 4;
constexpr int MovieSide = 106; // with the edge that the label leaves

// One to three emoji and nothing else.
bool isEmojiOnly(const QString &text)
{
    static const QRegularExpression image(QStringLiteral("<img [^>]*>"));
    EmojiPicker::EmojiConverter converter(1, EmojiPicker::EmojiConverter::SvgFileTag);
    QString rich = converter.toRichText(text);
    const int count = rich.count(image);
    return count > 0 && count <= 3 && rich.remove(image).trimmed().isEmpty();
}

} // namespace

QString makeInitials(const QString &name)
{
    const QStringList words = name.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QString initials;
    if (!words.isEmpty())
        initials += words.first().at(0);
    if (words.size() > 1)
        initials += words.last().at(0);
    return initials;
}

WLabel *makeAvatar(const QString &name, int side)
{
    auto *label = new WLabel(makeInitials(name));
    label->setFontToken(WFont::BodyTertiary);
    label->setCSS(GalleryStyles::avatar(side));
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(side, side);
    label->setAccessibleName(name);
    return label;
}

ClientMessages::ClientMessages(QWidget *parent)
    : QScrollArea(parent)
    , m_content(new QWidget)
    , m_column(new QVBoxLayout(m_content))
{
    setObjectName(QStringLiteral("messages"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Messages"));
    m_content->setObjectName(QStringLiteral("messages_content"));
    m_column->setContentsMargins(14, 12, 14, 12);
    m_column->setSpacing(4);
    m_column->addStretch(1);

    m_typing = new QWidget;
    auto *row = new QHBoxLayout(m_typing);
    row->setContentsMargins(0, 4, 0, 0);
    row->setSpacing(6);
    m_typingMovie = new WGifLabel;
    m_typingMovie->setCSS(QStringLiteral("background: transparent;"));
    m_typingMovie->setFixedSize(AvatarSide + 10, AvatarSide + 10);
    m_typingMovie->setGifPath(QStringLiteral(":/gallery/movies/typing.gif"));
    m_typingText = new WLabel;
    dress(m_typingText, WFont::BodyTertiary, "text-secondary");
    row->addWidget(m_typingMovie);
    row->addWidget(m_typingText, 1);
    m_typing->hide();
    m_column->addWidget(m_typing);
    setWidget(m_content);

    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int value) { m_isAtEnd = value >= verticalScrollBar()->maximum() - 8; });
    // What is added makes the range larger, and the value that of the end before.
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &ClientMessages::keepAtEnd);
    connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, this,
            &ClientMessages::fitAll, Qt::QueuedConnection);
}

QSize ClientMessages::minimumSizeHint() const
{
    return QSize(280, 160);
}

void ClientMessages::show(const QString &name, const QVector<ClientMessage> &messages)
{
    qDeleteAll(m_rows);
    m_rows.clear();
    m_texts.clear();
    m_hasPrevious = false;
    m_name = name;
    m_isAtEnd = true;
    m_typingText->setText(tr("%1 is writing").arg(name));
    for (const ClientMessage &message : messages)
        add(message);
    keepAtEnd();
}

void ClientMessages::append(const ClientMessage &message)
{
    if (message.isOwn)
        m_isAtEnd = true;
    add(message);
    // Those who cannot see it arrive are told.
    if (!message.isOwn && QAccessible::isActive()) {
        QAccessibleEvent event(m_rows.last(), QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void ClientMessages::setTyping(bool typing)
{
    m_typing->setVisible(typing);
    if (typing)
        m_typingMovie->startPlaying();
    else
        m_typingMovie->stopPlaying();
}

void ClientMessages::add(const ClientMessage &message)
{
    const bool isFollowing = m_hasPrevious && m_wasOwn == message.isOwn;
    auto *all = new QWidget;
    auto *row = new QHBoxLayout(all);
    row->setContentsMargins(0, isFollowing || !m_hasPrevious ? 0 : 8, 0, 0);
    row->setSpacing(10);
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    if (!isFollowing) {
        auto *head = new WLabel;
        dress(head, WFont::BodyTertiary, "text-secondary");
        const QString time = ConversationModel::clockText(message.time);
        head->setText(message.isOwn ? time : m_name + QStringLiteral("   ") + time);
        head->setAlignment((message.isOwn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        column->addWidget(head);
    }
    column->addWidget(makeContent(message), 0, message.isOwn ? Qt::AlignTrailing : Qt::AlignLeading);
    if (message.isOwn) {
        row->addStretch(1);
    } else if (isFollowing) {
        row->addSpacing(AvatarSide + row->spacing());
    } else {
        row->addWidget(makeAvatar(m_name, AvatarSide), 0, Qt::AlignTop);
    }
    row->addLayout(column);
    if (!message.isOwn)
        row->addStretch(1);
    all->setAccessibleName(QStringLiteral("%1, %2: %3")
                               .arg(message.isOwn ? tr("You") : m_name, ConversationModel::clockText(message.time),
                                    message.movie.isEmpty() ? message.text : tr("an animated image")));
    m_column->insertWidget(m_column->count() - 1, all);
    m_rows << all;
    m_hasPrevious = true;
    m_wasOwn = message.isOwn;
}

QWidget *ClientMessages::makeContent(const ClientMessage &message)
{
    if (!message.movie.isEmpty()) {
        auto *movie = new WGifLabel;
        movie->setCSS(QStringLiteral("background: transparent;"));
        movie->setFixedSize(MovieSide, MovieSide);
        movie->setGifPath(message.movie);
        movie->setAccessibleName(tr("Animated image"));
        if (BusMonitor::get()->timesShown())
            movie->startPlaying();
        else
            standStill(movie->findChild<QMovie *>(), PictureFrame);
        return movie;
    }
    auto *label = new WEmojiLabel(message.text);
    m_texts << label;
    if (isEmojiOnly(message.text)) {
        dress(label, WFont::Display);
        fit(label);
        return label;
    }
    const bool isOwn = message.isOwn;
    dress(label, WFont::BodyPrimary, isOwn ? "text-on-accent" : "text-primary");
    auto *bubble = new WFrame;
    bubble->setObjectName(isOwn ? QStringLiteral("own_bubble") : QStringLiteral("bubble"));
    followDirection(bubble, [bubble, isOwn](Qt::LayoutDirection direction) {
        bubble->setCSS(GalleryStyles::bubble(isOwn, direction));
    });
    auto *inside = new QHBoxLayout(bubble);
    inside->setContentsMargins(14, 8, 14, 8);
    inside->addWidget(label);
    fit(label);
    return bubble;
}

void ClientMessages::fitAll()
{
    for (WEmojiLabel *label : qAsConst(m_texts))
        fit(label);
    keepAtEnd();
}

// As wide as the text, and no wider than leaves room on the other side.
void ClientMessages::fit(WEmojiLabel *label) const
{
    label->setWordWrap(false);
    const int most = qMax(160, viewport()->width() * 2 / 3 - AvatarSide);
    label->setMinimumSize(0, 0);
    label->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const int natural = label->sizeHint().width();
    label->setWordWrap(natural > most);
    if (natural <= most) {
        label->setFixedSize(label->sizeHint());
        return;
    }
    // No wider than these lines need.
    const int height = label->heightForWidth(most);
    int least = most / 2;
    for (int width = most; width - least > 4;) {
        const int middle = (width + least) / 2;
        (label->heightForWidth(middle) > height ? least : width) = middle;
        label->setFixedSize(width, height);
    }
}

void ClientMessages::keepAtEnd()
{
    if (m_isAtEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void ClientMessages::resizeEvent(QResizeEvent *event)
{
    const bool wasAtEnd = m_isAtEnd;
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        fitAll();
    m_isAtEnd = wasAtEnd;
    keepAtEnd();
}

#include "ClientComposer.h"

#include "Controls.h"
#include "EmojiPopup.h"
#include "GalleryStyles.h"
#include "PlainParts.h"

#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/controls/WGifButton.h>
#include <UiElements/widgets/WTextEdit.h>

#include <QHBoxLayout>
#include <QKeyEvent>

#include <cmath>

namespace {

constexpr int MostLines = 5;

} // namespace

ClientComposer::ClientComposer(QWidget *parent)
    : WFrame(parent)
{
    setObjectName(QStringLiteral("section"));
    setCSS(GalleryStyles::section(QStringLiteral("top")));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 10, 12, 12);
    row->setSpacing(4);

    m_emoji = makeIconButton(tr("Emoji"), "emoji_20");
    const QString heart = QStringLiteral(":/gallery/movies/heart.gif");
    m_movie = new WGifButton(nullptr, heart, QSize(24, 24), heart, QSize(24, 24));
    m_movie->setCSS(GalleryStyles::iconButton(QStringLiteral("ghost")));
    m_movie->setToolTip(tr("Send a heart"));
    m_movie->setAccessibleName(tr("Send a heart"));
    m_edit = new WTextEdit;
    m_edit->setCSS(GalleryStyles::textField());
    m_edit->setFontToken(WFont::BodyPrimary);
    m_edit->setAcceptRichText(false);
    m_edit->setTabChangesFocus(true);
    m_edit->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_edit->setMinimumWidth(120);
    followPlaceholderColor(m_edit);
    m_edit->installEventFilter(this);
    followDirection(m_edit, [this](Qt::LayoutDirection) { showPlaceholder(); });
    m_send = makeIconButton(tr("Send"), "send_20", "primary");
    row->addWidget(m_emoji, 0, Qt::AlignBottom);
    row->addWidget(m_movie, 0, Qt::AlignBottom);
    row->addSpacing(4);
    row->addWidget(m_edit, 1, Qt::AlignBottom);
    row->addSpacing(4);
    row->addWidget(m_send, 0, Qt::AlignBottom);

    connect(m_emoji, &QPushButton::clicked, this, &ClientComposer::pickEmoji);
    connect(m_movie, &QPushButton::clicked, this, [this, heart] { Q_EMIT movieSent(heart); });
    connect(m_send, &QPushButton::clicked, this, &ClientComposer::send);
    connect(m_edit, &QTextEdit::textChanged, this, [this] {
        m_send->setEnabled(!m_edit->toPlainText().trimmed().isEmpty());
        fitHeight();
    });
    connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, this,
            &ClientComposer::fitHeight, Qt::QueuedConnection);
    m_send->setEnabled(false);
    fitHeight();
}

void ClientComposer::setRecipient(const QString &name)
{
    m_recipient = name;
    showPlaceholder();
    m_edit->setAccessibleName(tr("Message to %1").arg(name));
}

// It goes where its first letter says, whatever the direction of the edit. The mark is that letter.
void ClientComposer::showPlaceholder()
{
    const QChar mark(m_edit->layoutDirection() == Qt::RightToLeft ? 0x200f : 0x200e);
    m_edit->setPlaceholderText(mark + tr("Write to %1").arg(m_recipient));
}

bool ClientComposer::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (isReturn && !(key->modifiers() & ~Qt::KeypadModifier)) {
            send();
            return true;
        }
    }
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        fitHeight();
    return WFrame::eventFilter(watched, event);
}

void ClientComposer::pickEmoji()
{
    if (!m_popup) {
        m_popup = new EmojiPopup(this);
        connect(m_popup, &EmojiPopup::picked, this, [this](const QString &emoji) {
            m_edit->insertPlainText(emoji);
            m_edit->setFocus(Qt::OtherFocusReason);
        });
    }
    m_popup->openAbove(m_emoji);
}

void ClientComposer::send()
{
    const QString text = m_edit->toPlainText().trimmed();
    if (text.isEmpty())
        return;
    m_edit->clear();
    m_edit->setFocus(Qt::OtherFocusReason);
    Q_EMIT sent(text);
}

// As high as what is written, up to some lines.
void ClientComposer::fitHeight()
{
    const int line = m_edit->fontMetrics().lineSpacing();
    const int around = m_edit->height() - m_edit->viewport()->height();
    const int text = int(std::ceil(m_edit->document()->size().height()));
    const int most = MostLines * line + int(2 * m_edit->document()->documentMargin());
    const int frame = qBound(8, around, 16);
    m_edit->setFixedHeight(qMin(text, most) + frame);
    const int side = line + int(2 * m_edit->document()->documentMargin()) + frame;
    for (WPushButton *button : {static_cast<WPushButton *>(m_emoji), m_movie, static_cast<WPushButton *>(m_send)})
        button->setFixedSize(side, side);
}

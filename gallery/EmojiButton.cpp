#include "EmojiButton.h"

#include <UiElements/emoji/EmojiResources.h>

#include <QPainter>

EmojiButton::EmojiButton(QWidget *parent)
    : QToolButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(36, 36);
}

void EmojiButton::setEmoji(const QString &emoji, const QString &name)
{
    m_emoji = emoji;
    setAccessibleName(name);
    setToolTip(name);
    update();
}

void EmojiButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    constexpr int side = 22;
    QPainter painter(this);
    const QImage image = EmojiPicker::EmojiResources::image(m_emoji, side, painter.device()->devicePixelRatioF());
    painter.setOpacity(isEnabled() ? 1 : 0.4);
    painter.drawImage(QPoint((width() - side) / 2, (height() - side) / 2), image);
}

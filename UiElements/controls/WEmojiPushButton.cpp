#include <UiElements/controls/WEmojiPushButton.h>

#include <QKeyEvent>
#include <QPointer>

namespace {

bool clicks(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
}

} // namespace

WEmojiPushButton::WEmojiPushButton(QWidget *parent)
    : WPushButton(parent)
{
}

WEmojiPushButton::WEmojiPushButton(const QString &text, QWidget *parent)
    : WPushButton(text, parent)
{
}

void WEmojiPushButton::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(clicks(event));
    // A key that is held would send the emoji over and over.
    if (event->isAccepted() && !event->isAutoRepeat())
        Q_EMIT clicked();
}

void WEmojiPushButton::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(clicks(event));
}

void WEmojiPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<WEmojiPushButton> alive(this);
    WPushButton::mouseReleaseEvent(event);
    // The picker behind would take one that is let through as a click beside its buttons.
    if (alive)
        event->accept();
}

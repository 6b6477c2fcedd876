#include <UiElements/widgets/WTextEdit.h>

#include <QPainter>
#include <QStyleOptionFocusRect>

WTextEdit::WTextEdit(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

WTextEdit::WTextEdit(const QString &text, QWidget *parent)
    : Themed(text, parent)
{
    initTheme();
}

void WTextEdit::paintEvent(QPaintEvent *event)
{
    if (hasFocus()) {
        if (!property("hasCustomRect").toBool())
            setProperty("hasCustomRect", true);
        QPainter painter(viewport());
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = viewport()->rect();
        option.backgroundColor = palette().color(QPalette::Base);
        option.state |= QStyle::State_KeyboardFocusChange;
        // Only the frame: some styles tint all that they surround, and the text would stand on the tint.
        painter.setClipRegion(QRegion(option.rect) - option.rect.adjusted(2, 2, -2, -2));
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
    QTextEdit::paintEvent(event);
}

// Qt repaints the cursor alone, and scrolls what stands there: the frame is to come, stay in its place and go.
void WTextEdit::focusInEvent(QFocusEvent *event)
{
    QTextEdit::focusInEvent(event);
    viewport()->update();
}

void WTextEdit::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    viewport()->update();
}

void WTextEdit::scrollContentsBy(int dx, int dy)
{
    QTextEdit::scrollContentsBy(dx, dy);
    if (hasFocus())
        viewport()->update();
}

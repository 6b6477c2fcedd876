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
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
    QTextEdit::paintEvent(event);
}

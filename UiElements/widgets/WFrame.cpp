#include <UiElements/widgets/WFrame.h>

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

WFrame::WFrame(QWidget *parent, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    initTheme();
    theme().setBorrows();
}

void WFrame::paintEvent(QPaintEvent *event)
{
    const QWidget *model = theme().model();
    if (!model) {
        QFrame::paintEvent(event);
        return;
    }
    QPainter painter(this);
    theme().drawBackground(&painter);
    QStyleOptionFrame option;
    initStyleOption(&option);
    model->style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, model);
}

#include <UiElements/widgets/WTimeEdit.h>

WTimeEdit::WTimeEdit(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

WTimeEdit::WTimeEdit(const QTime &time, QWidget *parent)
    : Themed(time, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

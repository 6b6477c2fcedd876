#include <UiElements/widgets/WTimeEdit.h>

WTimeEdit::WTimeEdit(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

WTimeEdit::WTimeEdit(const QTime &time, QWidget *parent)
    : Themed(time, parent)
{
    initTheme();
}

#include <UiElements/widgets/WDateTimeEdit.h>

WDateTimeEdit::WDateTimeEdit(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

WDateTimeEdit::WDateTimeEdit(const QDateTime &dateTime, QWidget *parent)
    : Themed(dateTime, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

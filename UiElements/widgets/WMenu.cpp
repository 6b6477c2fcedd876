#include <UiElements/widgets/WMenu.h>

WMenu::WMenu(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

WMenu::WMenu(const QString &title, QWidget *parent)
    : Themed(title, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

#include <UiElements/widgets/WMenu.h>

WMenu::WMenu(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

WMenu::WMenu(const QString &title, QWidget *parent)
    : Themed(title, parent)
{
    initTheme();
}

#include <UiElements/widgets/WMainWindow.h>

WMainWindow::WMainWindow(QWidget *parent, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    initTheme();
}

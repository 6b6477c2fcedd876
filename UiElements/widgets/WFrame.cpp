#include <UiElements/widgets/WFrame.h>

WFrame::WFrame(QWidget *parent, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    initTheme();
}

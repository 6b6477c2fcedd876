#include <UiElements/widgets/WTextBrowser.h>

WTextBrowser::WTextBrowser(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

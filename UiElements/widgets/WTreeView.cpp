#include <UiElements/widgets/WTreeView.h>

WTreeView::WTreeView(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

#include <UiElements/widgets/WListView.h>

WListView::WListView(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

#include <UiElements/widgets/WStackedWidget.h>

WStackedWidget::WStackedWidget(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

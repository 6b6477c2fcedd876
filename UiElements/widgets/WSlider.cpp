#include <UiElements/widgets/WSlider.h>

WSlider::WSlider(Qt::Orientation orientation, QWidget *parent)
    : Themed(orientation, parent)
{
    initTheme();
}

WSlider::WSlider(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

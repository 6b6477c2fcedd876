#include <UiElements/widgets/WSlider.h>

WSlider::WSlider(Qt::Orientation orientation, QWidget *parent)
    : Themed(orientation, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

WSlider::WSlider(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

#include <UiElements/widgets/WRadioButton.h>

WRadioButton::WRadioButton(QWidget *parent)
    : Themed(parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

WRadioButton::WRadioButton(const QString &text, QWidget *parent)
    : Themed(text, parent)
{
    initTheme();
    theme().setDrawsOwnBox();
}

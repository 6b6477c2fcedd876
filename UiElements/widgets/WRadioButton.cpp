#include <UiElements/widgets/WRadioButton.h>

WRadioButton::WRadioButton(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

WRadioButton::WRadioButton(const QString &text, QWidget *parent)
    : Themed(text, parent)
{
    initTheme();
}

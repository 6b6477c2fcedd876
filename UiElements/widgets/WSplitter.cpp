#include <UiElements/widgets/WSplitter.h>

WSplitter::WSplitter(QWidget *parent)
    : Themed(parent)
{
    initTheme();
}

WSplitter::WSplitter(Qt::Orientation orientation, QWidget *parent)
    : Themed(orientation, parent)
{
    initTheme();
}

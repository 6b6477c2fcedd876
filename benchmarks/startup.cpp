// A process that shows an empty window and ends. Compiled with the library and without.
#ifdef WITH_LIBRARY
#include <UiElements/app/WApplication.h>
#include <UiElements/widgets/WWidget.h>
using Application = WApplication;
using Window = WWidget;
#else
#include <QApplication>
#include <QWidget>
using Application = QApplication;
using Window = QWidget;
#endif

int main(int argc, char **argv)
{
    Application app(argc, argv);
    Window window;
    window.resize(800, 600);
    window.show();
    QCoreApplication::processEvents();
    return window.isVisible() ? 0 : 1;
}

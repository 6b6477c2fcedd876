// A process that shows an empty window and ends. Compiled with the signal bus, but not the rest of the library, and
// without.
#ifdef WITH_BUS
#include <UiElements/app/WAppSignals.h>
#else
#include "NoBus.h"
#endif

#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
#ifdef WITH_BUS
    WAppSignals bus(&app);
#else
    loadLibraryWithoutBus();
#endif
    QWidget window;
    window.resize(800, 600);
#ifdef WITH_SHORTCUTS
    bus.registerShortcuts(&window,
                          WShortcut::General | WShortcut::Messaging | WShortcut::CallingAndMeeting | WShortcut::Tool);
#endif
    window.show();
    QCoreApplication::processEvents();
    return window.isVisible() ? 0 : 1;
}

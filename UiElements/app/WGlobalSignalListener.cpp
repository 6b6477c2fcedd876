#include <UiElements/app/WGlobalSignalListener.h>

#include <UiElements/app/WApplication.h>

WGlobalSignalListener::WGlobalSignalListener(QObject *parent)
    : QObject(parent)
{
}

WGlobalSignalListener *WGlobalSignalListener::get()
{
    const WApplication *app = WApplication::find();
    return app ? app->getGlobalSignalListener() : nullptr;
}

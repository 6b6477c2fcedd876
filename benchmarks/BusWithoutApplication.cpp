// What the bus asks of the application object, in a program that has none.

#include <UiElements/app/WApplication.h>

WApplication *WApplication::find()
{
    return nullptr;
}

#include <UiElements/app/FontManagerEnum.h>

// The meta-object of the namespace, which moc writes, is all there is to compile.
#include "moc_FontManagerEnum.cpp"

#include "NoBus.h"

#include <QtGlobal>

Q_DECL_EXPORT void loadLibraryWithoutBus() { }

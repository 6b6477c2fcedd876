#pragma once

/// Does nothing, but makes the linker keep the library.
void loadLibraryWithoutBus();

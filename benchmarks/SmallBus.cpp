#include "SmallBus.h"

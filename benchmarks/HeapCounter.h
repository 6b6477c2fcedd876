#pragma once

#include <cstdint>

/// Counts the calls of malloc(), calloc() and realloc() that this thread makes, in whatever library. Only programs that
/// link this file are counted.
std::uint64_t heapCalls();

#include "HeapCounter.h"

#include <cstddef>

namespace {
// Of the main program and without an initializer: usable in the first call of all, long before main().
thread_local std::uint64_t calls;
} // namespace

std::uint64_t heapCalls()
{
    return calls;
}

// The C library hands out its own functions under these names, and takes ours in place of the plain ones.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

__attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    ++calls;
    return __libc_malloc(size);
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    ++calls;
    return __libc_calloc(count, size);
}

__attribute__((visibility("default"))) void *realloc(void *block, std::size_t size)
{
    ++calls;
    return __libc_realloc(block, size);
}

} // extern "C"

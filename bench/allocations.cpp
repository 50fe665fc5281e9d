#include "allocations.h"

#include <cstddef>

// The C library's own functions, under the names that it provides for programs which replace malloc.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* former, std::size_t size);
}

namespace {

thread_local bool counting = false;
thread_local long counted = 0;

void count()
{
    if (counting)
        ++counted;
}

} // namespace

extern "C" {
void* malloc(std::size_t size)
{
    count();
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size)
{
    count();
    return __libc_calloc(number, size);
}

void* realloc(void* former, std::size_t size)
{
    count();
    return __libc_realloc(former, size);
}
}

void countAllocations()
{
    counted = 0;
    counting = true;
}

long allocationsCounted()
{
    counting = false;
    return counted;
}

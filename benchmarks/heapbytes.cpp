#include "heapbytes.h"

#include <cerrno>
#include <cstdlib>
#include <malloc.h>

namespace
{

// The benchmarks allocate in one thread.
long long inUse = 0;

void *counted(void *memory)
{
    inUse += static_cast<long long>(malloc_usable_size(memory));
    return memory;
}

} // namespace

long long heapBytes()
{
    return inUse;
}

// These stand before the C library's, which does the work under its other names.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *memory);

#define REPLACES_THE_C_LIBRARYS __attribute__((visibility("default")))

REPLACES_THE_C_LIBRARYS void *malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

REPLACES_THE_C_LIBRARYS void *calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

REPLACES_THE_C_LIBRARYS void *realloc(void *memory, std::size_t size)
{
    inUse -= static_cast<long long>(malloc_usable_size(memory));
    return counted(__libc_realloc(memory, size));
}

REPLACES_THE_C_LIBRARYS void *memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

REPLACES_THE_C_LIBRARYS void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

REPLACES_THE_C_LIBRARYS int posix_memalign(void **memory, std::size_t alignment, std::size_t size)
{
    *memory = counted(__libc_memalign(alignment, size));
    return *memory ? 0 : ENOMEM;
}

REPLACES_THE_C_LIBRARYS void free(void *memory)
{
    inUse -= static_cast<long long>(malloc_usable_size(memory));
    __libc_free(memory);
}

} // extern "C"

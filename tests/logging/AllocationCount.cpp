// The heap, overheard: the C library's allocator is called through functions of the same names here. Under a
// sanitizer, which has an allocator of its own, through that one's hook.

#include "AllocationCount.h"

#include <algorithm>
#include <array>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SORVANE_SANITIZED_HEAP
// This compiler has the function without its header.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));
#endif

namespace {

constexpr std::size_t longest = 4096; // greater ones count as of this size

thread_local bool isCounting = false;
thread_local int allocations = 0;
thread_local std::array<int, longest + 1> bySize = {};

void count(std::size_t size)
{
    if (!isCounting)
        return;
    ++allocations;
    ++bySize[std::min(size, longest)]; // NOLINT: at() could throw, which allocates
}

} // namespace

#ifdef SORVANE_SANITIZED_HEAP

namespace {

void countMalloc(const volatile void*, std::size_t size)
{
    count(size);
}

void ignoreFree(const volatile void*) {}

[[maybe_unused]] const int hooks = __sanitizer_install_malloc_and_free_hooks(countMalloc, ignoreFree);

} // namespace

#else

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t number, std::size_t size);
void* __libc_realloc(void* old, std::size_t size);

void* malloc(std::size_t size) noexcept
{
    count(size);
    return __libc_malloc(size);
}

void* calloc(std::size_t number, std::size_t size) noexcept
{
    count(number * size);
    return __libc_calloc(number, size);
}

void* realloc(void* old, std::size_t size) noexcept
{
    count(size);
    return __libc_realloc(old, size);
}
}

#endif

AllocationCount::AllocationCount()
{
    allocations = 0;
    bySize.fill(0);
    isCounting = true;
}

AllocationCount::~AllocationCount()
{
    isCounting = false;
}

int AllocationCount::all() const
{
    return allocations;
}

int AllocationCount::ofSize(std::size_t size) const
{
    return bySize[std::min(size, longest)];
}

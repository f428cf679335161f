// Replaces every global allocation function of the binary. The compiler
// must not see these beside their callers (it would pair them with the
// standard ones), hence a file of their own.
#include "tests/support/AllocationHooks.h"

#include <cstdlib>
#include <new>

namespace kaltest {

std::atomic<void (*)(std::size_t)> g_onAllocate{nullptr};
std::atomic<void (*)(void*)> g_onFree{nullptr};

} // namespace kaltest

namespace {

void* Allocate(std::size_t size) noexcept
{
    if (auto hook = kaltest::g_onAllocate.load())
        hook(size);
    return std::malloc(size ? size : 1);
}

void Free(void* p) noexcept
{
    if (auto hook = kaltest::g_onFree.load(); hook && p)
        hook(p);
    std::free(p);
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* p = Allocate(size))
        return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size)
{
    return ::operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return Allocate(size);
}
void operator delete(void* p) noexcept
{
    Free(p);
}
void operator delete[](void* p) noexcept
{
    Free(p);
}
void operator delete(void* p, std::size_t) noexcept
{
    Free(p);
}
void operator delete[](void* p, std::size_t) noexcept
{
    Free(p);
}
void operator delete(void* p, const std::nothrow_t&) noexcept
{
    Free(p);
}
void operator delete[](void* p, const std::nothrow_t&) noexcept
{
    Free(p);
}

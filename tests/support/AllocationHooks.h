// Test binaries that link AllocationHooks.cpp route every operator new and
// delete through malloc/free and call these hooks, so that a test can watch
// allocation sizes or the order in which objects are freed. The hooks must
// not allocate.
#pragma once

#include <atomic>
#include <cstddef>

namespace kaltest {

extern std::atomic<void (*)(std::size_t)> g_onAllocate;
extern std::atomic<void (*)(void*)> g_onFree;

} // namespace kaltest

// Replacement allocation functions for the test programs: operator new fails on demand (see
// support/AllocationFailure.h) and otherwise forwards to malloc and free. Outside the
// sanitizer builds, malloc itself can be made to fail in the same way.
#include <cstdlib>
#include <new>

#include "support/AllocationFailure.h"

namespace VelmorTest {
thread_local long t_allocationsBeforeFailure = -1;
thread_local bool t_allocationFailsOnce = false;
thread_local long t_mallocsBeforeFailure = -1;
thread_local bool t_mallocFailsOnce = false;
thread_local long t_mallocCalls = 0;
}  // namespace VelmorTest

// Whether the next call must fail, by the counter `left` and its "once" flag.
static bool fs_shouldFail(long& left, bool once) {
    if (left == 0) {
        if (once) left = -1;
        return true;
    }
    if (left > 0) --left;
    return false;
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
extern "C" void* __libc_malloc(std::size_t size);

extern "C" void* malloc(std::size_t size) {
    ++VelmorTest::t_mallocCalls;
    if (fs_shouldFail(VelmorTest::t_mallocsBeforeFailure, VelmorTest::t_mallocFailsOnce)) {
        return nullptr;
    }
    return __libc_malloc(size);
}
#endif

static void* fs_allocate(std::size_t size) {
    if (fs_shouldFail(VelmorTest::t_allocationsBeforeFailure, VelmorTest::t_allocationFailsOnce)) {
        throw std::bad_alloc();
    }
    void* block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

static void* fs_allocateNoThrow(std::size_t size) noexcept {
    try {
        return fs_allocate(size);
    } catch (std::bad_alloc const&) {
        return nullptr;
    }
}

void* operator new(std::size_t size) { return fs_allocate(size); }
void* operator new[](std::size_t size) { return fs_allocate(size); }
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return fs_allocateNoThrow(size);
}
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept {
    return fs_allocateNoThrow(size);
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
void operator delete(void* block, std::nothrow_t const&) noexcept { std::free(block); }
void operator delete[](void* block, std::nothrow_t const&) noexcept { std::free(block); }

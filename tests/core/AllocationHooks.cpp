// Replacement allocation functions for this test program: they fail on demand (see
// support/AllocationFailure.h) and otherwise forward to malloc and free.
#include <cstdlib>
#include <new>

#include "support/AllocationFailure.h"

namespace VelmorTest {
thread_local long t_allocationsBeforeFailure = -1;
}

static void* fs_allocate(std::size_t size) {
    long& left = VelmorTest::t_allocationsBeforeFailure;
    if (left == 0)
        throw std::bad_alloc();
    if (left > 0)
        --left;
    void* block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    return block;
}

static void* fs_allocateNoThrow(std::size_t size) noexcept {
    try {
        return fs_allocate(size);
    } catch (std::bad_alloc const&) {
        return nullptr;
    }
}

void* operator new(std::size_t size) {
    return fs_allocate(size);
}
void* operator new[](std::size_t size) {
    return fs_allocate(size);
}
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return fs_allocateNoThrow(size);
}
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept {
    return fs_allocateNoThrow(size);
}
void operator delete(void* block) noexcept {
    std::free(block);
}
void operator delete[](void* block) noexcept {
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}
void operator delete(void* block, std::nothrow_t const&) noexcept {
    std::free(block);
}
void operator delete[](void* block, std::nothrow_t const&) noexcept {
    std::free(block);
}

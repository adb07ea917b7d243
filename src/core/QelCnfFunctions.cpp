#include <velmor/core/QelCnfFunctions.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include <velmor/thread/QelMtLockable.h>

namespace Velmor {

// The stripe of a counter: its address, as a 32-bit number, modulo the prime 17.
static QelMtLockable& fs_stripeOf(int const* counter) {
    auto address = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(counter));
    return g_pqelLocks[address % QelCnfRefNiftyCounter::cs_lockCount];
}

int QelCnfFunctions::cs_InterlockedIncrement(int* p) {
    QelMtLockable& stripe = fs_stripeOf(p);
    stripe.lock();
    int value = ++*p;
    stripe.unlock();
    return value;
}

int QelCnfFunctions::cs_InterlockedDecrement(int* p) {
    QelMtLockable& stripe = fs_stripeOf(p);
    stripe.lock();
    int value = --*p;
    stripe.unlock();
    return value;
}

void* QelCnfFunctions::cs_malloc(unsigned int size) { return std::malloc(size); }

void* QelCnfFunctions::cs_calloc(unsigned int count, unsigned int size) {
    return std::calloc(count, size);
}

void* QelCnfFunctions::cs_realloc(void* block, unsigned int size) {
    return std::realloc(block, size);
}

void QelCnfFunctions::cs_free(void* block) { std::free(block); }

char* QelCnfFunctions::cs_strdup(char const* s) {
    std::size_t length = std::strlen(s);
    try {
        char* copy = new char[length + 1];
        std::memcpy(copy, s, length + 1);
        return copy;
    } catch (std::exception const&) {
        return nullptr;
    }
}

}  // namespace Velmor

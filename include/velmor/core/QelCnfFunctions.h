// QelCnfFunctions: allocation wrappers and the striped interlocked counter operations.
//
// All members are static and safe on any thread. The interlocked operations serialise on one
// of the 17 stripe locks chosen by the counter's address, not on an atomic instruction.
#ifndef VELMOR_CORE_QELCNFFUNCTIONS_H
#define VELMOR_CORE_QELCNFFUNCTIONS_H

#include <velmor/core/QelCnfRefNiftyCounter.h>

namespace Velmor {

class VELMOR_API QelCnfFunctions {
public:
    // Add or subtract 1 at *p under the stripe lock of p; return the value after the change.
    // Throw as QelMtLockable::lock does if the stripe cannot be taken.
    static int cs_InterlockedIncrement(int* p);
    static int cs_InterlockedDecrement(int* p);

    // The C allocator, results as it gives them (null on failure).
    static void* cs_malloc(unsigned int size);
    static void* cs_calloc(unsigned int count, unsigned int size);
    static void* cs_realloc(void* block, unsigned int size);
    static void cs_free(void* block);

    // A copy of `s` made with array new, to be freed with array delete. Returns null, never
    // throws, when memory is short: the exception family relies on that.
    static char* cs_strdup(char const* s);
};

}  // namespace Velmor

#endif

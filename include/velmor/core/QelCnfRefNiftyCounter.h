// QelCnfRefNiftyCounter: makes the library's start-up state exist before anything uses it.
//
// Every source file that includes this header gets one static counter object. The first of
// them to be constructed, in whatever order the static initialisers run, creates the 17
// stripe locks of the reference counts (g_pqelLocks); the last to be destroyed at process
// exit removes them. Only static initialisation and destruction touch the counter.
#ifndef VELMOR_CORE_QELCNFREFNIFTYCOUNTER_H
#define VELMOR_CORE_QELCNFREFNIFTYCOUNTER_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class QelMtLockable;

// The 17 stripe locks of cs_InterlockedIncrement and cs_InterlockedDecrement, chosen by
// address % 17. Null before the first counter is constructed and after the last is destroyed.
extern VELMOR_API QelMtLockable* g_pqelLocks;

class VELMOR_API QelCnfRefNiftyCounter {
public:
    // The number of stripes: a prime, so that aligned addresses spread over all of them.
    static constexpr unsigned int cs_lockCount = 17;

    QelCnfRefNiftyCounter();
    ~QelCnfRefNiftyCounter();
    QelCnfRefNiftyCounter(QelCnfRefNiftyCounter const&) = delete;
    QelCnfRefNiftyCounter& operator=(QelCnfRefNiftyCounter const&) = delete;

    // Number of live counters; 0 at load.
    static int cs_counter;
};

// One per translation unit, constructed before the unit's other statics.
static QelCnfRefNiftyCounter fs_qelCnfRefNiftyCounter;

}  // namespace Velmor

#endif

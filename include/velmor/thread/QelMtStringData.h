// QelMtStringData: the system-call and operation names that the concurrency classes put into
// their exceptions. Constant data; any thread.
#ifndef VELMOR_THREAD_QELMTSTRINGDATA_H
#define VELMOR_THREAD_QELMTSTRINGDATA_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelMtStringData {
public:
    static char const* cs_MutexInit;      // "pthread_mutex_init"
    static char const* cs_MutexDestroy;   // "pthread_mutex_destroy"
    static char const* cs_MutexLock;      // "pthread_mutex_lock"
    static char const* cs_MutexUnlock;    // "pthread_mutex_unlock"
    static char const* cs_CondInit;       // "pthread_cond_init"
    static char const* cs_CondDestroy;    // "pthread_cond_destroy"
    static char const* cs_CondSignal;     // "pthread_cond_signal"
    static char const* cs_CondWait;       // "pthread_cond_wait"
    static char const* cs_CondTimedWait;  // "pthread_cond_timedwait"
    static char const* cs_Create;         // "pthread_create"
    static char const* cs_Detach;         // "pthread_detach"
    static char const* cs_Join;           // "pthread_join"
    static char const* cs_ClockGetTime;   // "clock_gettime"
    static char const* cs_Wait;           // "wait"
    static char const* cs_WaitAtMax;      // "waitAtMax"
};

}  // namespace Velmor

#endif

#include <velmor/thread/QelMtStringData.h>

namespace Velmor {

char const* QelMtStringData::cs_MutexInit = "pthread_mutex_init";
char const* QelMtStringData::cs_MutexDestroy = "pthread_mutex_destroy";
char const* QelMtStringData::cs_MutexLock = "pthread_mutex_lock";
char const* QelMtStringData::cs_MutexUnlock = "pthread_mutex_unlock";
char const* QelMtStringData::cs_CondInit = "pthread_cond_init";
char const* QelMtStringData::cs_CondDestroy = "pthread_cond_destroy";
char const* QelMtStringData::cs_CondSignal = "pthread_cond_signal";
char const* QelMtStringData::cs_CondWait = "pthread_cond_wait";
char const* QelMtStringData::cs_CondTimedWait = "pthread_cond_timedwait";
char const* QelMtStringData::cs_Create = "pthread_create";
char const* QelMtStringData::cs_Detach = "pthread_detach";
char const* QelMtStringData::cs_Join = "pthread_join";
char const* QelMtStringData::cs_ClockGetTime = "clock_gettime";
char const* QelMtStringData::cs_Wait = "wait";
char const* QelMtStringData::cs_WaitAtMax = "waitAtMax";

}  // namespace Velmor

// QelSysOs: sleeping and the process's file creation mask. All static; any thread. The two
// umask operations are serialised with each other, not with umask called elsewhere.
#ifndef VELMOR_PLATFORM_QELSYSOS_H
#define VELMOR_PLATFORM_QELSYSOS_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelSysOs {
public:
    // Sleep for whole seconds; a signal ends the sleep early. Returns the seconds left.
    static unsigned int qel_sleep(unsigned int seconds);
    static unsigned int sleep(unsigned int seconds);
    // Sleep for milliseconds with nanosleep; a signal ends the sleep early.
    static void sleepForMilliSeconds(unsigned long milliSeconds);

    static void cs_setUmask(int mask);
    // The current mask, read without changing it for other QelSysOs callers.
    static int cs_getUmask();
};

}  // namespace Velmor

#endif

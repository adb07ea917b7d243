#include <velmor/platform/QelSysOs.h>

#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <velmor/thread/QelMtLocker.h>

namespace Velmor {

// Keeps the moment when cs_getUmask has set the mask to 0 from other QelSysOs calls.
static QelMtLockable fs_lockBySysOs;

unsigned int QelSysOs::qel_sleep(unsigned int seconds) { return ::sleep(seconds); }

unsigned int QelSysOs::sleep(unsigned int seconds) { return qel_sleep(seconds); }

void QelSysOs::sleepForMilliSeconds(unsigned long milliSeconds) {
    timespec request;
    request.tv_sec = static_cast<time_t>(milliSeconds / 1000);
    request.tv_nsec = static_cast<long>((milliSeconds % 1000) * 1000000);
    ::nanosleep(&request, nullptr);
}

void QelSysOs::cs_setUmask(int mask) {
    QelMtLocker locker(&fs_lockBySysOs);
    ::umask(static_cast<mode_t>(mask));
}

int QelSysOs::cs_getUmask() {
    QelMtLocker locker(&fs_lockBySysOs);
    mode_t mask = ::umask(0);
    ::umask(mask);
    return static_cast<int>(mask);
}

}  // namespace Velmor

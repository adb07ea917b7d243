// QelMtUnlocker: takes over a QelMtLockable that the current thread already holds and
// releases it when the scope ends, by return or by exception. Lives on one thread's stack.
#ifndef VELMOR_THREAD_QELMTUNLOCKER_H
#define VELMOR_THREAD_QELMTUNLOCKER_H

#include <velmor/thread/QelMtLockable.h>

namespace Velmor {

class VELMOR_API QelMtUnlocker {
public:
    // Takes over the held lock without locking. A null argument throws
    // QelCoNullPointerException.
    explicit QelMtUnlocker(QelMtLockable* lockable);
    // Unlocks, dropping any exception of unlock().
    ~QelMtUnlocker();
    QelMtUnlocker(QelMtUnlocker const&) = delete;
    QelMtUnlocker& operator=(QelMtUnlocker const&) = delete;

private:
    QelMtLockable* m_lockable;
};

}  // namespace Velmor

#endif

// QelMtLocker: holds a QelMtLockable for the life of a scope. Lives on one thread's stack;
// owns nothing. Its destructor never throws.
#ifndef VELMOR_THREAD_QELMTLOCKER_H
#define VELMOR_THREAD_QELMTLOCKER_H

#include <velmor/thread/QelMtLockable.h>

namespace Velmor {

class VELMOR_API QelMtLocker {
public:
    // Locks `lockable`. A null argument throws QelCoNullPointerException; if lock() throws,
    // nothing is held.
    explicit QelMtLocker(QelMtLockable* lockable);
    // Unlocks, dropping any exception of unlock().
    ~QelMtLocker();
    QelMtLocker(QelMtLocker const&) = delete;
    QelMtLocker& operator=(QelMtLocker const&) = delete;

private:
    QelMtLockable* m_lockable;
};

}  // namespace Velmor

#endif

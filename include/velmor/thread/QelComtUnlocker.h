// QelComtUnlocker: takes over a QelComtLockable already held by this thread and releases it
// at the end of the scope. Lives on one thread's stack; owns nothing.
#ifndef VELMOR_THREAD_QELCOMTUNLOCKER_H
#define VELMOR_THREAD_QELCOMTUNLOCKER_H

#include <velmor/thread/QelComtLockable.h>

namespace Velmor {

class VELMOR_API QelComtUnlocker {
public:
    // Takes over without locking; a null argument throws QelCoNullPointerException
    // ("pLockable").
    explicit QelComtUnlocker(QelComtLockable* lockable);
    ~QelComtUnlocker();
    QelComtUnlocker(QelComtUnlocker const&) = delete;
    QelComtUnlocker& operator=(QelComtUnlocker const&) = delete;

private:
    QelComtLockable* m_lockable;
};

}  // namespace Velmor

#endif

// QelComtLocker: holds a QelComtLockable for the life of a scope. Lives on one thread's
// stack; owns nothing.
#ifndef VELMOR_THREAD_QELCOMTLOCKER_H
#define VELMOR_THREAD_QELCOMTLOCKER_H

#include <velmor/thread/QelComtLockable.h>

namespace Velmor {

class VELMOR_API QelComtLocker {
public:
    // Locks `lockable`; a null argument throws QelCoNullPointerException ("pLockable").
    explicit QelComtLocker(QelComtLockable* lockable);
    ~QelComtLocker();
    QelComtLocker(QelComtLocker const&) = delete;
    QelComtLocker& operator=(QelComtLocker const&) = delete;

private:
    QelComtLockable* m_lockable;
};

}  // namespace Velmor

#endif

// QelMtLockable: the recursive mutex that nearly everything in the library locks.
//
// The owner creates and destroys it; any thread may lock it, and the holding thread may lock
// it again and must unlock it as often. Not copyable. Failures of the system calls are
// reported as the library's exceptions (QelCoNoResourceException for EAGAIN,
// QelCoOutOfMemoryException for ENOMEM, QelCoMisUsageException for EBUSY and EDEADLK,
// QelCoSystemCallException otherwise).
#ifndef VELMOR_THREAD_QELMTLOCKABLE_H
#define VELMOR_THREAD_QELMTLOCKABLE_H

#include <velmor/core/QelCoExport.h>
#include <velmor/core/QelCoTUnsharedPtr.h>

namespace Velmor {

class QelMtLockableData;

class VELMOR_API QelMtLockable {
public:
    // Makes a recursive mutex. Throws QelCoOutOfMemoryException when the body cannot be
    // allocated, and the mapped exception of a failing attribute or init call.
    QelMtLockable();
    // Destroys the attributes and the mutex, ignoring their results; never throws.
    ~QelMtLockable();
    QelMtLockable(QelMtLockable const&) = delete;
    QelMtLockable& operator=(QelMtLockable const&) = delete;

    // Blocks until held. A lock without a body is a misuse (message 33).
    void lock();
    // Releases one level.
    void unlock();
    // True if now held; false if another thread holds it.
    bool tryLock();

private:
    QelCoTUnsharedPtr<QelMtLockableData> m_data;
};

}  // namespace Velmor

#endif

#include <velmor/thread/QelMtLocker.h>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

QelMtLocker::QelMtLocker(QelMtLockable* lockable) : m_lockable(lockable) {
    if (lockable == nullptr) g_qelCoNullCheckFailed("QelMtLocker", "QelMtLocker", nullptr);
    m_lockable->lock();
}

QelMtLocker::~QelMtLocker() {
    try {
        m_lockable->unlock();
    } catch (...) {
        // A guard never throws while a scope unwinds.
    }
}

}  // namespace Velmor

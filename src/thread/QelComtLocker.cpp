#include <velmor/thread/QelComtLocker.h>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

QelComtLocker::QelComtLocker(QelComtLockable* lockable) : m_lockable(lockable) {
    if (lockable == nullptr) g_qelCoNullCheckFailed("QelComtLocker", "QelComtLocker", "pLockable");
    m_lockable->lock();
}

QelComtLocker::~QelComtLocker() { m_lockable->unlock(); }

}  // namespace Velmor

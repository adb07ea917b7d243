#include <velmor/thread/QelComtUnlocker.h>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

QelComtUnlocker::QelComtUnlocker(QelComtLockable* lockable) : m_lockable(lockable) {
    if (lockable == nullptr) {
        g_qelCoNullCheckFailed("QelComtUnlocker", "QelComtUnlocker", "pLockable");
    }
}

QelComtUnlocker::~QelComtUnlocker() { m_lockable->unlock(); }

}  // namespace Velmor

#include <velmor/thread/QelMtUnlocker.h>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

QelMtUnlocker::QelMtUnlocker(QelMtLockable* lockable) : m_lockable(lockable) {
    if (lockable == nullptr) g_qelCoNullCheckFailed("QelMtUnlocker", "QelMtUnlocker", nullptr);
}

QelMtUnlocker::~QelMtUnlocker() {
    try {
        m_lockable->unlock();
    } catch (...) {
        // A guard never throws while a scope unwinds.
    }
}

}  // namespace Velmor

#include <velmor/thread/QelComtLockable.h>

#include <velmor/platform/QelOsUnix.h>

namespace Velmor {

QelComtLockable::~QelComtLockable() { QelOsUnix::cs_pthread_mutex_destroy(&m_mutex); }

void QelComtLockable::lock() { QelOsUnix::cs_pthread_mutex_lock(&m_mutex); }

void QelComtLockable::unlock() { QelOsUnix::cs_pthread_mutex_unlock(&m_mutex); }

}  // namespace Velmor

#include <velmor/thread/QelMtLockable.h>

#include <cerrno>
#include <new>

#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoNoResourceException.h>
#include <velmor/core/QelCoOutOfMemoryException.h>
#include <velmor/core/QelCoSystemCallException.h>
#include <velmor/core/QelMessageId_t.h>
#include <velmor/platform/QelOsUnix.h>
#include <velmor/thread/QelMtStringData.h>

namespace Velmor {

// The mutex and the attributes it was made with, alive as long as the mutex.
class QelMtLockableData {
public:
    pthread_mutex_t mutex;
    pthread_mutexattr_t attributes;
};

static char const* const fs_cszLockableName = "QelMtLockable";

// Turns the error number of a failed call into the library's exception. Never returns.
[[noreturn]] static void fs_throwExceptionByMtLockable(char const* className,
                                                       char const* methodName, char const* callName,
                                                       int error) {
    switch (error) {
        case EAGAIN:
            throw QelCoNoResourceException(className, methodName, callName);
        case ENOMEM:
            throw QelCoOutOfMemoryException(className, methodName);
        case EBUSY:
            g_qelCoUsageCheckFailed(className, methodName, QelMessageId[32]);
        case EDEADLK:
            g_qelCoUsageCheckFailed(className, methodName, QelMessageId[39]);
        default:
            throw QelCoSystemCallException(className, methodName, callName, error);
    }
}

QelMtLockable::QelMtLockable() {
    QelMtLockableData* data = nullptr;
    try {
        data = new QelMtLockableData();
    } catch (std::exception const&) {
        data = nullptr;
    }
    if (data == nullptr) g_qelCoNewMemoryFailed(fs_cszLockableName, fs_cszLockableName);

    int error = QelOsUnix::cs_pthread_mutexattr_init(&data->attributes);
    if (error != 0) {
        delete data;
        fs_throwExceptionByMtLockable(fs_cszLockableName, fs_cszLockableName,
                                      "pthread_mutexattr_init", error);
    }
    error = QelOsUnix::cs_pthread_mutexattr_settype(&data->attributes);
    if (error != 0) {
        QelOsUnix::cs_pthread_mutexattr_destroy(&data->attributes);
        delete data;
        fs_throwExceptionByMtLockable(fs_cszLockableName, fs_cszLockableName,
                                      "pthread_mutexattr_setkind_np", error);
    }
    error = QelOsUnix::cs_pthread_mutex_init(&data->mutex, &data->attributes);
    if (error != 0) {
        QelOsUnix::cs_pthread_mutexattr_destroy(&data->attributes);
        delete data;
        fs_throwExceptionByMtLockable(fs_cszLockableName, fs_cszLockableName,
                                      QelMtStringData::cs_MutexInit, error);
    }
    m_data = data;
}

QelMtLockable::~QelMtLockable() {
    if (m_data.isNull()) return;
    QelOsUnix::cs_pthread_mutexattr_destroy(&m_data->attributes);
    QelOsUnix::cs_pthread_mutex_destroy(&m_data->mutex);
}

void QelMtLockable::lock() {
    if (m_data.isNull()) g_qelCoUsageCheckFailed(fs_cszLockableName, "lock", QelMessageId[33]);
    int error = QelOsUnix::cs_pthread_mutex_lock(&m_data->mutex);
    if (error != 0) {
        fs_throwExceptionByMtLockable(fs_cszLockableName, "lock", QelMtStringData::cs_MutexLock,
                                      error);
    }
}

void QelMtLockable::unlock() {
    if (m_data.isNull()) g_qelCoUsageCheckFailed(fs_cszLockableName, "unlock", QelMessageId[33]);
    int error = QelOsUnix::cs_pthread_mutex_unlock(&m_data->mutex);
    if (error != 0) {
        fs_throwExceptionByMtLockable(fs_cszLockableName, "unlock", QelMtStringData::cs_MutexUnlock,
                                      error);
    }
}

bool QelMtLockable::tryLock() {
    if (m_data.isNull()) {
        g_qelCoUsageCheckFailed(fs_cszLockableName, "tryLock", QelMessageId[33]);
    }
    int error = QelOsUnix::cs_pthread_mutex_trylock(&m_data->mutex);
    if (error == 0) return true;
    if (error == EBUSY) return false;
    fs_throwExceptionByMtLockable(fs_cszLockableName, "tryLock", QelMtStringData::cs_MutexLock,
                                  error);
}

}  // namespace Velmor

// QelComtLockable: a bare, non-recursive mutex for the core's file-static state.
//
// It needs no allocation and reports nothing, so it works during static initialisation and
// destruction. Any thread may use it; a thread that holds it must not take it again.
#ifndef VELMOR_THREAD_QELCOMTLOCKABLE_H
#define VELMOR_THREAD_QELCOMTLOCKABLE_H

#include <pthread.h>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelComtLockable {
public:
    // Constant-initialised, so a file-static lock is ready before any static initialiser runs.
    constexpr QelComtLockable() : m_mutex PTHREAD_MUTEX_INITIALIZER {}
    ~QelComtLockable();
    QelComtLockable(QelComtLockable const&) = delete;
    QelComtLockable& operator=(QelComtLockable const&) = delete;

    // Blocks until held; failures are not reported.
    void lock();
    void unlock();

private:
    pthread_mutex_t m_mutex;
};

}  // namespace Velmor

#endif

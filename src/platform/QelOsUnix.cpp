#include <velmor/platform/QelOsUnix.h>

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

namespace Velmor {

static std::atomic<QelOsUnixFaultHook> fs_faultHook{nullptr};

// The error number the fault hook wants `callName` to fail with, or 0.
static int fs_fault(char const* callName) {
    QelOsUnixFaultHook hook = fs_faultHook.load(std::memory_order_acquire);
    return hook != nullptr ? hook(callName) : 0;
}

// For calls that report through errno: true (with errno set) when the hook makes them fail.
static bool fs_faultErrno(char const* callName) {
    int error = fs_fault(callName);
    if (error == 0) return false;
    errno = error;
    return true;
}

// The mutex kinds of the old pthread_mutexattr_setkind_np: 0 fast, 1 recursive, 2 error
// checking. glibc no longer has that call; the kinds map onto pthread_mutexattr_settype.
static int fs_pthread_mutexattr_setkind_np(pthread_mutexattr_t* attr, int kind) {
    switch (kind) {
        case 0:
            return pthread_mutexattr_settype(attr, PTHREAD_MUTEX_NORMAL);
        case 1:
            return pthread_mutexattr_settype(attr, PTHREAD_MUTEX_RECURSIVE);
        case 2:
            return pthread_mutexattr_settype(attr, PTHREAD_MUTEX_ERRORCHECK);
        default:
            return EINVAL;
    }
}

QelOsUnixFaultHook QelOsUnix::cs_setFaultHook(QelOsUnixFaultHook hook) {
    return fs_faultHook.exchange(hook, std::memory_order_acq_rel);
}

int QelOsUnix::cs_open(char const* path, int flags) {
    if (fs_faultErrno("open")) return -1;
    return ::open(path, flags);
}

int QelOsUnix::cs_open(char const* path, int flags, int mode) {
    if (fs_faultErrno("open")) return -1;
    return ::open(path, flags, mode);
}

int QelOsUnix::cs_creat(char const* path, int mode) {
    if (fs_faultErrno("creat")) return -1;
    return ::creat(path, mode);
}

int QelOsUnix::cs_close(int fd) {
    if (fs_faultErrno("close")) return -1;
    return ::close(fd);
}

int QelOsUnix::cs_read(int fd, void* buffer, unsigned int size) {
    if (fs_faultErrno("read")) return -1;
    return static_cast<int>(::read(fd, buffer, size));
}

int QelOsUnix::cs_write(int fd, void const* buffer, unsigned int size) {
    if (fs_faultErrno("write")) return -1;
    return static_cast<int>(::write(fd, buffer, size));
}

DIR* QelOsUnix::cs_opendir(char const* path) {
    if (fs_faultErrno("opendir")) return nullptr;
    return ::opendir(path);
}

int QelOsUnix::cs_closedir(DIR* dir) {
    if (fs_faultErrno("closedir")) return -1;
    return ::closedir(dir);
}

struct dirent* QelOsUnix::cs_readdir(DIR* dir) {
    if (fs_faultErrno("readdir")) return nullptr;
    return ::readdir(dir);
}

int QelOsUnix::cs_rename(char const* from, char const* to) {
    if (fs_faultErrno("rename")) return -1;
    return std::rename(from, to);
}

int QelOsUnix::cs_access(char const* path, int mode) {
    if (fs_faultErrno("access")) return -1;
    return ::access(path, mode);
}

char* QelOsUnix::cs_getcwd(char* buffer, unsigned int size) {
    if (fs_faultErrno("getcwd")) return nullptr;
    return ::getcwd(buffer, size);
}

int QelOsUnix::cs_uname(struct utsname* name) {
    if (fs_faultErrno("uname")) return -1;
    return ::uname(name);
}

int QelOsUnix::cs_stat(char const* path, struct stat* result) {
    if (fs_faultErrno("stat")) return -1;
    return ::stat(path, result);
}

int QelOsUnix::cs_file_delete(char const* path) {
    if (fs_faultErrno("unlink")) return -1;
    return ::unlink(path);
}

int QelOsUnix::cs_dir_delete(char const* path) {
    if (fs_faultErrno("unlink")) return -1;
    return ::unlink(path);
}

// The pthread calls return their error number; a fault replaces it.
#define QEL_OS_PTHREAD_CALL(name, call)           \
    if (int error = fs_fault(name)) return error; \
    return call

int QelOsUnix::cs_pthread_create(pthread_t* thread, pthread_attr_t const* attr,
                                 void* (*start)(void*), void* arg) {
    QEL_OS_PTHREAD_CALL("pthread_create", ::pthread_create(thread, attr, start, arg));
}

int QelOsUnix::cs_pthread_join(pthread_t thread, void** result) {
    QEL_OS_PTHREAD_CALL("pthread_join", ::pthread_join(thread, result));
}

int QelOsUnix::cs_pthread_detach(pthread_t thread) {
    QEL_OS_PTHREAD_CALL("pthread_detach", ::pthread_detach(thread));
}

int QelOsUnix::cs_pthread_setschedparam(pthread_t thread, int policy, sched_param const* param) {
    QEL_OS_PTHREAD_CALL("pthread_setschedparam", ::pthread_setschedparam(thread, policy, param));
}

int QelOsUnix::cs_pthread_getschedparam(pthread_t thread, int* policy, sched_param* param) {
    QEL_OS_PTHREAD_CALL("pthread_getschedparam", ::pthread_getschedparam(thread, policy, param));
}

int QelOsUnix::cs_pthread_mutex_init(pthread_mutex_t* mutex, pthread_mutexattr_t const* attr) {
    QEL_OS_PTHREAD_CALL("pthread_mutex_init", ::pthread_mutex_init(mutex, attr));
}

int QelOsUnix::cs_pthread_mutex_destroy(pthread_mutex_t* mutex) {
    QEL_OS_PTHREAD_CALL("pthread_mutex_destroy", ::pthread_mutex_destroy(mutex));
}

int QelOsUnix::cs_pthread_mutex_lock(pthread_mutex_t* mutex) {
    QEL_OS_PTHREAD_CALL("pthread_mutex_lock", ::pthread_mutex_lock(mutex));
}

int QelOsUnix::cs_pthread_mutex_trylock(pthread_mutex_t* mutex) {
    QEL_OS_PTHREAD_CALL("pthread_mutex_trylock", ::pthread_mutex_trylock(mutex));
}

int QelOsUnix::cs_pthread_mutex_unlock(pthread_mutex_t* mutex) {
    QEL_OS_PTHREAD_CALL("pthread_mutex_unlock", ::pthread_mutex_unlock(mutex));
}

int QelOsUnix::cs_pthread_cond_init(pthread_cond_t* cond, pthread_condattr_t const* attr) {
    QEL_OS_PTHREAD_CALL("pthread_cond_init", ::pthread_cond_init(cond, attr));
}

int QelOsUnix::cs_pthread_cond_destroy(pthread_cond_t* cond) {
    QEL_OS_PTHREAD_CALL("pthread_cond_destroy", ::pthread_cond_destroy(cond));
}

int QelOsUnix::cs_pthread_cond_wait(pthread_cond_t* cond, pthread_mutex_t* mutex) {
    QEL_OS_PTHREAD_CALL("pthread_cond_wait", ::pthread_cond_wait(cond, mutex));
}

int QelOsUnix::cs_pthread_cond_timedwait(pthread_cond_t* cond, pthread_mutex_t* mutex,
                                         timespec const* expiration) {
    QEL_OS_PTHREAD_CALL("pthread_cond_timedwait",
                        ::pthread_cond_timedwait(cond, mutex, expiration));
}

int QelOsUnix::cs_pthread_cond_signal(pthread_cond_t* cond) {
    QEL_OS_PTHREAD_CALL("pthread_cond_signal", ::pthread_cond_signal(cond));
}

int QelOsUnix::cs_pthread_cond_broadcast(pthread_cond_t* cond) {
    QEL_OS_PTHREAD_CALL("pthread_cond_broadcast", ::pthread_cond_broadcast(cond));
}

int QelOsUnix::cs_pthread_key_create(pthread_key_t* key, void (*destructor)(void*)) {
    QEL_OS_PTHREAD_CALL("pthread_key_create", ::pthread_key_create(key, destructor));
}

int QelOsUnix::cs_pthread_setspecific(pthread_key_t key, void const* value) {
    QEL_OS_PTHREAD_CALL("pthread_setspecific", ::pthread_setspecific(key, value));
}

void* QelOsUnix::cs_pthread_getspecific(pthread_key_t key) { return ::pthread_getspecific(key); }

int QelOsUnix::cs_pthread_key_delete(pthread_key_t key) {
    QEL_OS_PTHREAD_CALL("pthread_key_delete", ::pthread_key_delete(key));
}

int QelOsUnix::cs_pthread_attr_init(pthread_attr_t* attr) {
    QEL_OS_PTHREAD_CALL("pthread_attr_init", ::pthread_attr_init(attr));
}

int QelOsUnix::cs_pthread_attr_destroy(pthread_attr_t* attr) {
    QEL_OS_PTHREAD_CALL("pthread_attr_destroy", ::pthread_attr_destroy(attr));
}

int QelOsUnix::cs_pthread_attr_setschedparam(pthread_attr_t* attr, sched_param const* param) {
    QEL_OS_PTHREAD_CALL("pthread_attr_setschedparam", ::pthread_attr_setschedparam(attr, param));
}

int QelOsUnix::cs_pthread_attr_getschedparam(pthread_attr_t const* attr, sched_param* param) {
    QEL_OS_PTHREAD_CALL("pthread_attr_getschedparam", ::pthread_attr_getschedparam(attr, param));
}

int QelOsUnix::cs_pthread_attr_getstacksize(pthread_attr_t const* attr, size_t* size) {
    QEL_OS_PTHREAD_CALL("pthread_attr_getstacksize", ::pthread_attr_getstacksize(attr, size));
}

int QelOsUnix::cs_pthread_attr_setstacksize(pthread_attr_t* attr, size_t size) {
    size_t const minimum = 16384;
    QEL_OS_PTHREAD_CALL("pthread_attr_setstacksize",
                        ::pthread_attr_setstacksize(attr, size < minimum ? minimum : size));
}

int QelOsUnix::cs_pthread_attr_setinheritsched(pthread_attr_t* attr) {
    QEL_OS_PTHREAD_CALL("pthread_attr_setinheritsched",
                        ::pthread_attr_setinheritsched(attr, PTHREAD_EXPLICIT_SCHED));
}

int QelOsUnix::cs_pthread_attr_setscope(pthread_attr_t*) { return 0; }

int QelOsUnix::cs_pthread_attr_setdetachstate(pthread_attr_t*) { return 0; }

unsigned long QelOsUnix::cs_pthread_getunique(unsigned long* thread) { return *thread; }

int QelOsUnix::cs_pthread_mutexattr_init(pthread_mutexattr_t* attr) {
    QEL_OS_PTHREAD_CALL("pthread_mutexattr_init", ::pthread_mutexattr_init(attr));
}

int QelOsUnix::cs_pthread_mutexattr_destroy(pthread_mutexattr_t* attr) {
    QEL_OS_PTHREAD_CALL("pthread_mutexattr_destroy", ::pthread_mutexattr_destroy(attr));
}

int QelOsUnix::cs_pthread_mutexattr_settype(pthread_mutexattr_t* attr) {
    QEL_OS_PTHREAD_CALL("pthread_mutexattr_setkind_np", fs_pthread_mutexattr_setkind_np(attr, 1));
}

int QelOsUnix::cs_clock_gettime(int, timespec* result) {
    timeval now;
    ::gettimeofday(&now, nullptr);
    result->tv_sec = now.tv_sec;
    result->tv_nsec = now.tv_usec * 1000;
    return 0;
}

int QelOsUnix::cs_pthread_get_expiration(timespec* delay, timespec* result) {
    timeval now;
    if (::gettimeofday(&now, nullptr) != 0) return errno;
    result->tv_sec = now.tv_sec + delay->tv_sec;
    result->tv_nsec = 0;
    return 0;
}

}  // namespace Velmor

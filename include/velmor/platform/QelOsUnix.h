// QelOsUnix: the library's names for the system calls it makes.
//
// Every wrapper is static, passes its arguments to the call of the same name and returns its
// result unchanged (the pthread calls return their error number, the others -1 or null with
// errno set); callers turn failures into exceptions. A few wrappers do something of their own,
// as their comments say. Safe on any thread, as the underlying calls are.
#ifndef VELMOR_PLATFORM_QELOSUNIX_H
#define VELMOR_PLATFORM_QELOSUNIX_H

#include <dirent.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <time.h>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

// A fault hook is asked before each wrapped call with the call's name ("pthread_mutex_lock",
// "open", ...). Returning 0 lets the call run; returning an error number makes the wrapper
// fail with it instead (pthread calls return it, the others set errno and return -1 or null).
// Meant for tests of failure paths; the hook must be safe on every thread that calls it.
using QelOsUnixFaultHook = int (*)(char const* callName);

class VELMOR_API QelOsUnix {
public:
    // Installs `hook`, or removes it with null. Returns the hook it replaces.
    static QelOsUnixFaultHook cs_setFaultHook(QelOsUnixFaultHook hook);

    static int cs_open(char const* path, int flags);
    static int cs_open(char const* path, int flags, int mode);
    static int cs_creat(char const* path, int mode);
    static int cs_close(int fd);
    static int cs_read(int fd, void* buffer, unsigned int size);
    static int cs_write(int fd, void const* buffer, unsigned int size);
    static DIR* cs_opendir(char const* path);
    static int cs_closedir(DIR* dir);
    static struct dirent* cs_readdir(DIR* dir);
    static int cs_rename(char const* from, char const* to);
    static int cs_access(char const* path, int mode);
    static char* cs_getcwd(char* buffer, unsigned int size);
    static int cs_uname(struct utsname* name);
    static int cs_stat(char const* path, struct stat* result);
    // Both remove a name with unlink; a directory is refused as unlink refuses it.
    static int cs_file_delete(char const* path);
    static int cs_dir_delete(char const* path);

    static int cs_pthread_create(pthread_t* thread, pthread_attr_t const* attr,
                                 void* (*start)(void*), void* arg);
    static int cs_pthread_join(pthread_t thread, void** result);
    static int cs_pthread_detach(pthread_t thread);
    static int cs_pthread_setschedparam(pthread_t thread, int policy, sched_param const* param);
    static int cs_pthread_getschedparam(pthread_t thread, int* policy, sched_param* param);

    static int cs_pthread_mutex_init(pthread_mutex_t* mutex, pthread_mutexattr_t const* attr);
    static int cs_pthread_mutex_destroy(pthread_mutex_t* mutex);
    static int cs_pthread_mutex_lock(pthread_mutex_t* mutex);
    static int cs_pthread_mutex_trylock(pthread_mutex_t* mutex);
    static int cs_pthread_mutex_unlock(pthread_mutex_t* mutex);

    static int cs_pthread_cond_init(pthread_cond_t* cond, pthread_condattr_t const* attr);
    static int cs_pthread_cond_destroy(pthread_cond_t* cond);
    static int cs_pthread_cond_wait(pthread_cond_t* cond, pthread_mutex_t* mutex);
    static int cs_pthread_cond_timedwait(pthread_cond_t* cond, pthread_mutex_t* mutex,
                                         timespec const* expiration);
    static int cs_pthread_cond_signal(pthread_cond_t* cond);
    static int cs_pthread_cond_broadcast(pthread_cond_t* cond);

    static int cs_pthread_key_create(pthread_key_t* key, void (*destructor)(void*));
    static int cs_pthread_setspecific(pthread_key_t key, void const* value);
    static void* cs_pthread_getspecific(pthread_key_t key);
    static int cs_pthread_key_delete(pthread_key_t key);

    static int cs_pthread_attr_init(pthread_attr_t* attr);
    static int cs_pthread_attr_destroy(pthread_attr_t* attr);
    static int cs_pthread_attr_setschedparam(pthread_attr_t* attr, sched_param const* param);
    static int cs_pthread_attr_getschedparam(pthread_attr_t const* attr, sched_param* param);
    static int cs_pthread_attr_getstacksize(pthread_attr_t const* attr, size_t* size);
    // pthread_attr_setstacksize with at least 16384 bytes.
    static int cs_pthread_attr_setstacksize(pthread_attr_t* attr, size_t size);
    // Explicit scheduling: the thread takes its policy from the attributes.
    static int cs_pthread_attr_setinheritsched(pthread_attr_t* attr);
    // Do nothing and return 0: every thread has system scope and starts joinable.
    static int cs_pthread_attr_setscope(pthread_attr_t* attr);
    static int cs_pthread_attr_setdetachstate(pthread_attr_t* attr);
    // The thread handle serves as the thread's unique number: returns *thread.
    static unsigned long cs_pthread_getunique(unsigned long* thread);

    static int cs_pthread_mutexattr_init(pthread_mutexattr_t* attr);
    static int cs_pthread_mutexattr_destroy(pthread_mutexattr_t* attr);
    // Makes mutexes of these attributes recursive (mutex kind 1).
    static int cs_pthread_mutexattr_settype(pthread_mutexattr_t* attr);

    // The time of day from gettimeofday, whatever `clock` says: the nanoseconds are a
    // multiple of 1000. Returns 0.
    static int cs_clock_gettime(int clock, timespec* result);
    // `result` = now + the whole seconds of `delay`, nanoseconds 0. Returns 0, or errno if
    // the time cannot be read.
    static int cs_pthread_get_expiration(timespec* delay, timespec* result);
};

}  // namespace Velmor

#endif

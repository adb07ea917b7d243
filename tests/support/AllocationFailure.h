// Makes allocations fail on this thread on demand, to exercise the library's memory-shortage
// paths: operator new while a ScopedAllocationFailure lives, and (outside the sanitizer
// builds) malloc while a ScopedMallocFailure lives. The replacement functions are in
// support/AllocationHooks.cpp, linked into every test program.
#ifndef VELMOR_TESTS_SUPPORT_ALLOCATIONFAILURE_H
#define VELMOR_TESTS_SUPPORT_ALLOCATIONFAILURE_H

namespace VelmorTest {

// Allocations still allowed before they fail (negative: no limit); with the "once" flag only
// the first failing one fails and the limit is lifted after it.
extern thread_local long t_allocationsBeforeFailure;
extern thread_local bool t_allocationFailsOnce;
extern thread_local long t_mallocsBeforeFailure;
extern thread_local bool t_mallocFailsOnce;
// malloc calls made on this thread (counted where malloc can be replaced).
extern thread_local long t_mallocCalls;

class ScopedAllocationFailure {
public:
    // Lets `allowed` more operator new calls succeed, then fails every one until destruction
    // (or only the next one, with `once`).
    explicit ScopedAllocationFailure(long allowed = 0, bool once = false) {
        t_allocationsBeforeFailure = allowed;
        t_allocationFailsOnce = once;
    }
    ~ScopedAllocationFailure() { t_allocationsBeforeFailure = -1; }
    ScopedAllocationFailure(ScopedAllocationFailure const&) = delete;
    ScopedAllocationFailure& operator=(ScopedAllocationFailure const&) = delete;
};

class ScopedMallocFailure {
public:
    // The same for malloc, which then returns null.
    explicit ScopedMallocFailure(long allowed = 0, bool once = false) {
        t_mallocsBeforeFailure = allowed;
        t_mallocFailsOnce = once;
    }
    ~ScopedMallocFailure() { t_mallocsBeforeFailure = -1; }
    ScopedMallocFailure(ScopedMallocFailure const&) = delete;
    ScopedMallocFailure& operator=(ScopedMallocFailure const&) = delete;
    // Whether malloc can be replaced in this build (not under the sanitizers).
    static bool available() {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        return true;
#else
        return false;
#endif
    }
};

}  // namespace VelmorTest

#endif

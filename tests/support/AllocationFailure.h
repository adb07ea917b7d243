// Makes operator new fail on this thread while a ScopedAllocationFailure lives, to exercise the
// library's memory-shortage paths. The replacement allocation functions are defined in the
// test program that includes this header (see AllocationHooks.cpp of that program).
#ifndef VELMOR_TESTS_SUPPORT_ALLOCATIONFAILURE_H
#define VELMOR_TESTS_SUPPORT_ALLOCATIONFAILURE_H

namespace VelmorTest {

// Number of allocations on this thread still allowed before they fail; negative: no limit.
extern thread_local long t_allocationsBeforeFailure;

class ScopedAllocationFailure {
  public:
    // Lets `allowed` more allocations succeed, then fails every one until destruction.
    explicit ScopedAllocationFailure(long allowed = 0) { t_allocationsBeforeFailure = allowed; }
    ~ScopedAllocationFailure() { t_allocationsBeforeFailure = -1; }
    ScopedAllocationFailure(ScopedAllocationFailure const&) = delete;
    ScopedAllocationFailure& operator=(ScopedAllocationFailure const&) = delete;
};

}  // namespace VelmorTest

#endif

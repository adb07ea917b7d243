// Mutexes, guards and the one-time gate, with real contention and injected failures.
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <functional>
#include <thread>
#include <vector>

#include <velmor/velmor.h>

#include "support/VelmorTestSupport.h"

using namespace Velmor;

namespace {

// Whether another thread could take `lock` right now.
bool fs_freeForOtherThreads(QelMtLockable& lock) {
    bool taken = false;
    std::thread other([&] {
        taken = lock.tryLock();
        if (taken) lock.unlock();
    });
    other.join();
    return taken;
}

}  // namespace

TEST(MtLockable, RecursiveForItsHolderExclusiveForOthers) {
    QelMtLockable lock;
    lock.lock();
    lock.lock();
    EXPECT_TRUE(lock.tryLock());
    lock.unlock();
    lock.unlock();
    EXPECT_FALSE(fs_freeForOtherThreads(lock));
    lock.unlock();
    EXPECT_TRUE(fs_freeForOtherThreads(lock));

    {
        QelMtLocker held(&lock);
        EXPECT_FALSE(fs_freeForOtherThreads(lock));
    }
    EXPECT_TRUE(fs_freeForOtherThreads(lock));
    lock.lock();
    { QelMtUnlocker release(&lock); }
    EXPECT_TRUE(fs_freeForOtherThreads(lock));
}

TEST(MtLockable, ExcludesConcurrentWriters) {
    QelMtLockable lock;
    long counter = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 2000; ++i) {
                QelMtLocker held(&lock);
                QelMtLocker again(&lock);
                ++counter;
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(8000, counter);
}

TEST(MtLockable, FailedCallsMapToTheLibrarysExceptions) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    struct Row {
        char const* call;
        int error;
        std::function<void(QelMtLockable&)> operation;
        char const* className;
        char const* what;
    } const table[] = {
        {"pthread_mutex_lock", EAGAIN, [](QelMtLockable& l) { l.lock(); },
         "QelCoNoResourceException",
         "QelCoNoResourceException thrown at QelMtLockable::lock(): cannot continue "
         "pthread_mutex_lock due to resource shortage."},
        {"pthread_mutex_lock", ENOMEM, [](QelMtLockable& l) { l.lock(); },
         "QelCoOutOfMemoryException",
         "QelCoOutOfMemoryException thrown at QelMtLockable::lock(): cannot continue due to "
         "memory shortage."},
        {"pthread_mutex_lock", EBUSY, [](QelMtLockable& l) { l.lock(); }, "QelCoMisUsageException",
         "QelCoMisUsageException thrown at QelMtLockable::lock(): cannot destroy lock-object "
         "used by another thread.."},
        {"pthread_mutex_lock", EDEADLK, [](QelMtLockable& l) { l.lock(); },
         "QelCoMisUsageException",
         "QelCoMisUsageException thrown at QelMtLockable::lock(): deadlock detected.."},
        {"pthread_mutex_lock", EINVAL, [](QelMtLockable& l) { l.lock(); },
         "QelCoSystemCallException",
         "QelCoSystemCallException thrown at QelMtLockable::lock(): "
         "system-call=pthread_mutex_lock. errno=22."},
        {"pthread_mutex_unlock", EPERM, [](QelMtLockable& l) { l.unlock(); },
         "QelCoSystemCallException",
         "QelCoSystemCallException thrown at QelMtLockable::unlock(): "
         "system-call=pthread_mutex_unlock. errno=1."},
        {"pthread_mutex_trylock", EINVAL, [](QelMtLockable& l) { l.tryLock(); },
         "QelCoSystemCallException",
         "QelCoSystemCallException thrown at QelMtLockable::tryLock(): "
         "system-call=pthread_mutex_lock. errno=22."},
        {"pthread_mutexattr_init", ENOMEM, [](QelMtLockable&) { QelMtLockable failing; },
         "QelCoOutOfMemoryException",
         "QelCoOutOfMemoryException thrown at QelMtLockable::QelMtLockable(): cannot continue "
         "due to memory shortage."},
        {"pthread_mutexattr_setkind_np", EINVAL, [](QelMtLockable&) { QelMtLockable failing; },
         "QelCoSystemCallException",
         "QelCoSystemCallException thrown at QelMtLockable::QelMtLockable(): "
         "system-call=pthread_mutexattr_setkind_np. errno=22."},
        {"pthread_mutex_init", EAGAIN, [](QelMtLockable&) { QelMtLockable failing; },
         "QelCoNoResourceException",
         "QelCoNoResourceException thrown at QelMtLockable::QelMtLockable(): cannot continue "
         "pthread_mutex_init due to resource shortage."},
    };
    QelMtLockable lock;
    for (Row const& row : table) {
        SCOPED_TRACE(row.what);
        VelmorTest::InjectedFault fault(row.call, row.error);
        try {
            row.operation(lock);
            FAIL() << "nothing thrown";
        } catch (QelCoException const& e) {
            EXPECT_TRUE(fault.fired());
            EXPECT_STREQ(row.className, e.getClassName());
            EXPECT_STREQ(row.what, e.what());
        }
    }
    // The lock still works after the failures.
    lock.lock();
    EXPECT_FALSE(fs_freeForOtherThreads(lock));
    lock.unlock();
    EXPECT_TRUE(fs_freeForOtherThreads(lock));
}

TEST(Guards, SwallowUnlockFailuresAndRefuseNull) {
    QelMtLockable lock;
    {
        VelmorTest::InjectedFault fault("pthread_mutex_unlock", EPERM);
        QelMtLocker held(&lock);
        // The guard's destructor meets the failure and stays silent.
    }
    // The failed unlock left one level held.
    lock.unlock();
    EXPECT_TRUE(fs_freeForOtherThreads(lock));

    auto whatOf = [](std::function<void()> raise) {
        try {
            raise();
        } catch (QelCoNullPointerException const& e) {
            return std::string(e.where()) + " " +
                   (e.getParameterName() ? e.getParameterName() : "<none>");
        }
        return std::string("nothing thrown");
    };
    EXPECT_EQ("QelMtLocker::QelMtLocker() <none>", whatOf([] { QelMtLocker guard(nullptr); }));
    EXPECT_EQ("QelMtUnlocker::QelMtUnlocker() <none>",
              whatOf([] { QelMtUnlocker guard(nullptr); }));
    EXPECT_EQ("QelComtLocker::QelComtLocker() pLockable",
              whatOf([] { QelComtLocker guard(nullptr); }));
    EXPECT_EQ("QelComtUnlocker::QelComtUnlocker() pLockable",
              whatOf([] { QelComtUnlocker guard(nullptr); }));
}

TEST(ComtLockable, GuardsHoldAndReleaseTheBareMutex) {
    QelComtLockable lock;
    long counter = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 2000; ++i) {
                lock.lock();
                QelComtUnlocker release(&lock);
                ++counter;
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(8000, counter);
    { QelComtLocker held(&lock); }
    std::thread other([&] { QelComtLocker held(&lock); });
    other.join();  // would hang if a guard had kept the mutex
}

TEST(FirstCall, RunsItsBodyOnceUnderContention) {
    for (int round = 0; round < 10; ++round) {
        QelMtFirstCall gate;
        std::atomic<int> runs{0};
        std::atomic<int> finished{0};
        std::atomic<int> sawUnfinished{0};
        std::atomic<bool> go{false};
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&] {
                while (!go)
                    std::this_thread::yield();
                if (gate.isFirst()) {
                    QelMtUnlocker open(&gate);
                    ++runs;
                    std::this_thread::yield();
                    ++finished;
                } else if (finished == 0) {
                    ++sawUnfinished;  // returned before the first caller opened the gate
                }
            });
        }
        go = true;
        for (auto& thread : threads)
            thread.join();
        EXPECT_EQ(1, runs);
        EXPECT_EQ(0, sawUnfinished);
        EXPECT_FALSE(gate.isFirst());
    }

    // Work that ended by an exception is not tried again.
    QelMtFirstCall gate;
    try {
        if (gate.isFirst()) {
            QelMtUnlocker open(&gate);
            throw 1;
        }
    } catch (int) {
    }
    EXPECT_FALSE(gate.isFirst());
}

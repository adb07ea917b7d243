// Type records, narrowing, reference counts and the pointer family.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include <velmor/core/QelCoTSharedPtrDefine.h>
#include <velmor/velmor.h>

#include "support/AllocationFailure.h"

using namespace Velmor;

namespace VelmorTest {

// A counted class that records its destructions.
class Probe : public QelCoCounted {
    QEL_CO_DECLARE_RTTI()

public:
    explicit Probe(std::atomic<int>* destroyed = nullptr) : m_destroyed(destroyed) {}
    ~Probe() override {
        if (m_destroyed != nullptr) ++*m_destroyed;
    }
    int count() { return __usCount(this); }

private:
    std::atomic<int>* m_destroyed;
};
QEL_CO_DEFINE_RTTI(Probe, QelCoCounted)

class DerivedProbe : public Probe {
    QEL_CO_DECLARE_RTTI()

public:
    using Probe::Probe;
};
QEL_CO_DEFINE_RTTI(DerivedProbe, Probe)

}  // namespace VelmorTest

QEL_CO_SHARED_PTR_DEFINE(VelmorTest::Probe)

using VelmorTest::DerivedProbe;
using VelmorTest::Probe;

TEST(TypeRecord, InstanceOfWalksParentsDepthFirst) {
    EXPECT_EQ(1, DerivedProbe::cs_rtti.instanceOf(DerivedProbe::cs_rtti));
    EXPECT_EQ(1, DerivedProbe::cs_rtti.instanceOf(QelCoCounted::cs_rtti));
    EXPECT_EQ(1, DerivedProbe::cs_rtti.instanceOf(QelCoObject::cs_rtti));
    EXPECT_EQ(0, Probe::cs_rtti.instanceOf(DerivedProbe::cs_rtti));
    EXPECT_EQ(0, QelCoObject::cs_rtti.instanceOf(QelCoCounted::cs_rtti));
    EXPECT_EQ(1, QelCoMisUsageException::cs_rtti.instanceOf(QelCoException::cs_rtti));
    EXPECT_EQ(0, QelCoMisUsageException::cs_rtti.instanceOf(QelCoLogicalException::cs_rtti));

    QelCoRTTI const* const noParents[] = {nullptr};
    QelCoRTTI empty("Empty", noParents);
    QelCoRTTI orphan("Orphan", nullptr);
    EXPECT_EQ(0, empty.instanceOf(QelCoObject::cs_rtti));
    EXPECT_EQ(0, orphan.instanceOf(QelCoObject::cs_rtti));
    EXPECT_EQ(1, orphan.instanceOf(orphan));
    // Records are told apart by address, not by name.
    QelCoRTTI lookalike("QelCoObject", noParents);
    EXPECT_EQ(0, Probe::cs_rtti.instanceOf(lookalike));
}

TEST(TypeRecord, NarrowToGoesUpTheChainOnly) {
    DerivedProbe derived;
    Probe base;
    QelCoObject& asObject = derived;
    EXPECT_EQ(static_cast<void*>(&derived), asObject.narrowTo(DerivedProbe::cs_rtti));
    EXPECT_EQ(static_cast<void*>(static_cast<Probe*>(&derived)), asObject.narrowTo(Probe::cs_rtti));
    EXPECT_EQ(static_cast<void*>(static_cast<QelCoCounted*>(&derived)),
              asObject.narrowTo(QelCoCounted::cs_rtti));
    EXPECT_NE(nullptr, asObject.narrowTo(QelCoObject::cs_rtti));
    EXPECT_EQ(nullptr, base.narrowTo(DerivedProbe::cs_rtti));
    EXPECT_EQ(nullptr, base.narrowTo(QelCoException::cs_rtti));
    EXPECT_EQ(static_cast<void const*>(&derived),
              static_cast<QelCoObject const&>(derived).narrowConstTo(DerivedProbe::cs_rtti));

    EXPECT_STREQ("DerivedProbe", asObject.getClassName());
    EXPECT_EQ(&DerivedProbe::cs_rtti, &asObject.getRTTI());

    // Through the virtual base of the exception tree.
    QelCoSystemCallException error("C", "m", "open", 2);
    QelCoObject& errorObject = error;
    EXPECT_EQ(static_cast<void*>(static_cast<QelCoException*>(&error)),
              errorObject.narrowTo(QelCoException::cs_rtti));
    EXPECT_NE(nullptr, errorObject.narrowTo(QelCoObject::cs_rtti));
    EXPECT_EQ(nullptr, errorObject.narrowTo(QelCoCounted::cs_rtti));
    EXPECT_STREQ("QelCoSystemCallException", errorObject.getClassName());
}

TEST(TypeRecord, CastFailedThrowsClassCastWithBothNames) {
    Probe probe;
    try {
        QelCoRTTI::cs_castFailed(&probe, &probe, DerivedProbe::cs_rtti, "cast.cpp", 12);
        FAIL() << "cs_castFailed returned";
    } catch (QelCoClassCastException const& e) {
        EXPECT_EQ(&Probe::cs_rtti, &e.getFrom());
        EXPECT_EQ(&DerivedProbe::cs_rtti, &e.getTo());
        EXPECT_EQ(static_cast<void const*>(&probe), e.getAddress());
        char address[32];
        e.formatAddress(address, sizeof address);
        std::string expected = std::string(
                                   "QelCoClassCastException thrown at cast.cpp(12): this "
                                   "instance (address=") +
                               address + ") cannot cast from Probe to DerivedProbe.";
        EXPECT_EQ(expected, e.what());
        EXPECT_EQ(0, std::string(address).rfind("0x", 0));
    }
}

TEST(Counted, CopiesStartAtZeroAndAssignmentKeepsCounts) {
    Probe original;
    QelCoTSharedPtr<Probe> holder1(&original);
    QelCoTSharedPtr<Probe> holder2(holder1);
    EXPECT_EQ(2, original.count());
    Probe copy(original);
    EXPECT_EQ(0, copy.count());
    Probe target;
    target.disableAutoDelete();
    target = original;
    EXPECT_EQ(1, target.count());
    EXPECT_EQ(2, original.count());
    target.enableAutoDelete();
    original.disableAutoDelete();  // the stack object must outlive its holders
    holder1 = nullptr;
    holder2 = nullptr;
}

TEST(Counted, InterlockedOperationsReturnTheNewValue) {
    int counter = 41;
    EXPECT_EQ(42, QelCnfFunctions::cs_InterlockedIncrement(&counter));
    EXPECT_EQ(41, QelCnfFunctions::cs_InterlockedDecrement(&counter));
    EXPECT_EQ(40, QelCnfFunctions::cs_InterlockedDecrement(&counter));
    EXPECT_EQ(40, counter);
    EXPECT_NE(nullptr, g_pqelLocks);
    EXPECT_GT(QelCnfRefNiftyCounter::cs_counter, 0);
}

TEST(SharedPtr, AssignmentReleasesOldBeforeCountingNew) {
    std::atomic<int> destroyed{0};
    Probe* first = new Probe(&destroyed);
    QelCoTSharedPtr<Probe> p(first);
    EXPECT_EQ(1, first->count());

    p = p;      // self-assignment
    p = first;  // the raw pointer already held
    EXPECT_EQ(1, first->count());
    EXPECT_EQ(0, destroyed);

    Probe* second = new Probe(&destroyed);
    p = second;
    EXPECT_EQ(1, destroyed);
    EXPECT_EQ(1, second->count());
    EXPECT_EQ(0, p.isNull());

    p = nullptr;
    EXPECT_EQ(2, destroyed);
    EXPECT_EQ(1, p.isNull());

    QelCoTSharedPtr<Probe> q;
    q.assign(new Probe(&destroyed));
    EXPECT_EQ(1, q->count());
    EXPECT_EQ(2, q.refUp());
    EXPECT_EQ(1, q.refDown());
}

TEST(SharedPtr, AutoDeleteHoldOutlivesAllPointers) {
    std::atomic<int> destroyed{0};
    Probe* probe = new Probe(&destroyed);
    probe->disableAutoDelete();
    {
        QelCoTSharedPtr<Probe> a(probe);
        QelCoTSharedCPtr<Probe> b(probe);
        EXPECT_EQ(3, probe->count());
    }
    EXPECT_EQ(0, destroyed);
    probe->enableAutoDelete();
    EXPECT_EQ(0, probe->count());
    EXPECT_EQ(0, destroyed);
    delete probe;
    EXPECT_EQ(1, destroyed);
}

// The eight variants share one body; each must count and delete its object exactly once.
template <class Pointer>
static void fs_expectOwnsOnce() {
    std::atomic<int> destroyed{0};
    {
        Pointer a(new Probe(&destroyed));
        Pointer b(a);
        Pointer c;
        c = b;
        EXPECT_EQ(3, const_cast<Probe*>(c.ptr())->count());
    }
    EXPECT_EQ(1, destroyed);
}

TEST(SharedPtr, EveryVariantOwnsItsObjectOnce) {
    fs_expectOwnsOnce<QelCoTSharedPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedCPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedTPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedTCPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedUSPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedUSCPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedUSTPtr<Probe>>();
    fs_expectOwnsOnce<QelCoTSharedUSTCPtr<Probe>>();
}

TEST(SharedPtr, NewCheckReportsItsOwnClassName) {
    QelCoTSharedPtr<Probe> empty;
    try {
        empty.newCheck();
        FAIL();
    } catch (QelCoOutOfMemoryException const& e) {
        EXPECT_STREQ("QelCoTSharedPtr::QelCoTSharedPtr()", e.where());
        EXPECT_STREQ("new", e.getFailedOperationName());
    }
    QelCoTSharedUSTCPtr<Probe> emptyUs;
    try {
        emptyUs.newCheck();
        FAIL();
    } catch (QelCoOutOfMemoryException const& e) {
        EXPECT_STREQ("QelCoTSharedUSTCPtr::QelCoTSharedUSTCPtr()", e.where());
    }
    QelCoTSharedPtr<Probe> held(new Probe());
    EXPECT_NO_THROW(held.newCheck());
}

TEST(SharedPtr, ThreadsCopyingAndReleasingDeleteExactlyOnce) {
    for (int round = 0; round < 20; ++round) {
        std::atomic<int> destroyed{0};
        std::atomic<bool> go{false};
        QelCoTSharedPtr<Probe>* shared = new QelCoTSharedPtr<Probe>(new Probe(&destroyed));
        std::vector<QelCoTSharedPtr<Probe>> seeds(4, *shared);
        delete shared;
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&, t] {
                while (!go)
                    std::this_thread::yield();
                QelCoTSharedPtr<Probe> mine = seeds[t];
                for (int i = 0; i < 500; ++i) {
                    QelCoTSharedPtr<Probe> copy(mine);
                    QelCoTSharedPtr<Probe> other;
                    other = copy;
                }
                seeds[t] = nullptr;  // the last of these deletes the object
            });
        }
        go = true;
        for (auto& thread : threads)
            thread.join();
        EXPECT_EQ(1, destroyed) << "round " << round;
    }
}

TEST(UnsharedPtr, OwnsAndReplaces) {
    std::atomic<int> destroyed{0};
    {
        QelCoTUnsharedPtr<Probe> owner;
        EXPECT_EQ(1, owner.isNull());
        owner = new Probe(&destroyed);
        EXPECT_EQ(0, owner.isNull());
        owner = new Probe(&destroyed);
        EXPECT_EQ(1, destroyed);
    }
    EXPECT_EQ(2, destroyed);
}

TEST(Functions, StrdupCopiesOrGivesNullWhenMemoryIsShort) {
    char* copy = QelCnfFunctions::cs_strdup("hello");
    ASSERT_NE(nullptr, copy);
    EXPECT_STREQ("hello", copy);
    delete[] copy;
    {
        VelmorTest::ScopedAllocationFailure noMemory;
        EXPECT_EQ(nullptr, QelCnfFunctions::cs_strdup("hello"));
    }
    void* block = QelCnfFunctions::cs_calloc(4, 4);
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(0, static_cast<unsigned char*>(block)[15]);
    block = QelCnfFunctions::cs_realloc(block, 64);
    ASSERT_NE(nullptr, block);
    QelCnfFunctions::cs_free(block);
}

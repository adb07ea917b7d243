// The block allocator and the hash table: slot order, unit growth, chain order, copies, and a
// long random run against std::unordered_map.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <velmor/velmor.h>

#include "support/AllocationFailure.h"

using namespace Velmor;

namespace {

int fs_destroyed = 0;

// An object that counts its destructions and carries a marker the allocator must not touch
// before it is destroyed.
struct Tracked {
    explicit Tracked(int v) : value(v), marker(0x5eed) {}
    ~Tracked() {
        EXPECT_EQ(0x5eed, marker) << "destroyed after its slot was reused";
        ++fs_destroyed;
    }
    int value;
    int marker;
};

Tracked* fs_make(QelMemTBlockAllocator<Tracked>& allocator, int value) {
    return new (allocator.allocateBase()) Tracked(value);
}

struct IntHash {
    unsigned int operator()(int key) const {
        QelBtHashAcc acc;
        acc.put(static_cast<unsigned int>(key));
        return acc.getResult();
    }
    bool operator()(int a, int b) const { return a == b; }
};

struct StringHash {
    unsigned int operator()(std::string const& key) const {
        QelBtHashAcc acc;
        acc.put(key);
        return acc.getResult();
    }
    bool operator()(std::string const& a, std::string const& b) const { return a == b; }
};

using IntTable = QelBtTHashTable<int, std::string, IntHash, IntHash, 7>;

std::vector<std::pair<int, std::string>> fs_walk(IntTable const& table) {
    std::vector<std::pair<int, std::string>> contents;
    for (IntTable::ConstIter i = table.begin(); i != table.end(); ++i) {
        contents.emplace_back((*i).first, (*i).second);
    }
    return contents;
}

}  // namespace

TEST(BlockAllocator, SlotsGoFromTheTopOfAUnitAndComeBackLastFirst) {
    QelMemTBlockAllocator<Tracked> allocator;
    Tracked* first = fs_make(allocator, 1);
    Tracked* second = fs_make(allocator, 2);
    std::ptrdiff_t slotSize = reinterpret_cast<char*>(first) - reinterpret_cast<char*>(second);
    EXPECT_EQ(static_cast<std::ptrdiff_t>(sizeof(Tracked) + sizeof(void*)), slotSize);
    fs_destroyed = 0;
    allocator.deallocateBase(first);
    allocator.deallocateBase(second);
    EXPECT_EQ(2, fs_destroyed);
    EXPECT_EQ(second, fs_make(allocator, 3));
    EXPECT_EQ(first, fs_make(allocator, 4));
    fs_make(allocator, 5);
    allocator.deallocateBase(first);
    fs_destroyed = 0;
    allocator.destroyAll();
    EXPECT_EQ(2, fs_destroyed) << "only the live objects are destroyed";
    EXPECT_STREQ("QelMemBlockAllocator", allocator.getClassName());
    EXPECT_STREQ("QelMemTBlockAllocator", QelMemBlockAllocator::cs_cszQelMemTBlockAllocator);
}

TEST(BlockAllocator, UnitsGrowAndFailuresChangeNothing) {
    if (!VelmorTest::ScopedMallocFailure::available()) GTEST_SKIP() << "malloc is not replaced";
    QelMemTBlockAllocator<Tracked> allocator;
    // The allocations that open a unit: units of 2, 2, 4, 6, 10, 16 slots.
    std::vector<int> opening;
    for (int i = 1; i <= 30; ++i) {
        long before = VelmorTest::t_mallocCalls;
        fs_make(allocator, i);
        if (VelmorTest::t_mallocCalls != before) opening.push_back(i);
    }
    EXPECT_EQ((std::vector<int>{1, 3, 5, 9, 15, 25}), opening);

    // Allocations 25 to 40 fill the unit of 16; the 41st needs a unit of 26.
    for (int i = 31; i <= 40; ++i)
        fs_make(allocator, i);
    try {
        VelmorTest::ScopedMallocFailure noMemory(0, true);
        allocator.allocateBase();
        FAIL() << "nothing thrown";
    } catch (QelCoOutOfMemoryException const& e) {
        EXPECT_STREQ("QelMemBlockAllocator::allocate()", e.where());
    }
    long before = VelmorTest::t_mallocCalls;
    fs_make(allocator, 41);
    EXPECT_GT(VelmorTest::t_mallocCalls, before);
    fs_destroyed = 0;
    allocator.destroyAll();
    EXPECT_EQ(41, fs_destroyed);
    before = VelmorTest::t_mallocCalls;
    fs_make(allocator, 1);
    fs_make(allocator, 2);
    EXPECT_EQ(before + 1, VelmorTest::t_mallocCalls) << "after destroyAll units start at 2 again";
}

TEST(HashAcc, AccumulatesTimesThreePlusEachElement) {
    QelBtHashAcc ab;
    ab.put("ab", QelBtHashAcc::npos);
    EXPECT_EQ(389u, ab.getResult());
    QelBtHashAcc counted, terminated, range, standard;
    counted.put("abc", 3);
    terminated.put("abc", QelBtHashAcc::npos);
    char const text[] = "abc";
    range.put(text, text + 3);
    standard.put(std::string("abc"));
    EXPECT_EQ(terminated.getResult(), counted.getResult());
    EXPECT_EQ(counted.getResult(), range.getResult());
    EXPECT_EQ(counted.getResult(), standard.getResult());
    EXPECT_EQ(97u * 9 + 98u * 3 + 99u, counted.getResult());
    QelBtHashAcc high;
    high.put("\xFF", 1);
    EXPECT_EQ(0xFFFFFFFFu, high.getResult());
    QelBtHashAcc empty;
    empty.put("", 0u);
    empty.put("xyz", 0u);
    EXPECT_EQ(0u, empty.getResult());
    QelBtHashAcc wide, wideString;
    wide.put(L"ab", QelBtHashAcc::npos);
    wideString.put(std::wstring(L"ab"));
    EXPECT_EQ(389u, wide.getResult());
    EXPECT_EQ(389u, wideString.getResult());
    QelBtHashAcc wraps;
    for (int i = 0; i < 40; ++i)
        wraps.put(0xFFFFFFFFu);  // modulo 2^32, no overflow trap
    EXPECT_NE(0u, wraps.getResult());
}

TEST(HashTable, InsertFindEraseAndDefaults) {
    IntTable table;
    EXPECT_TRUE(table.begin() == table.end());
    EXPECT_TRUE(table.find(3) == table.end());
    EXPECT_EQ(0, table.erase(3));
    EXPECT_EQ(7u, table.bucketCount());

    EXPECT_EQ(1, table.insert({3, "three"}).second);
    std::pair<IntTable::Iter, int> again = table.insert({3, "other"});
    EXPECT_EQ(0, again.second);
    EXPECT_EQ("three", (*again.first).second);
    EXPECT_EQ("three", (*table.find(3)).second);

    EXPECT_EQ("", table[10]);
    table[10] = "ten";
    EXPECT_EQ("ten", table[10]);
    EXPECT_EQ(2u, fs_walk(table).size());
    EXPECT_EQ(1, table.erase(3));
    EXPECT_TRUE(table.find(3) == table.end());

    IntTable other;
    EXPECT_TRUE(table.find(99) == other.end()) << "end positions compare by element alone";
    table.clear();
    EXPECT_TRUE(table.begin() == table.end());
    table.insert({4, "four"});
    EXPECT_EQ(1u, fs_walk(table).size());
}

TEST(HashTable, ChainsKeepInsertionOrderAcrossErasures) {
    // Keys 1, 8 and 15 share bucket 1 of 7 only if their hashes do: use one bucket instead.
    QelBtTHashTable<int, std::string, IntHash, IntHash, 1> one;
    for (int key : {5, 2, 9})
        one.insert({key, std::to_string(key)});
    std::vector<int> order;
    for (auto i = one.begin(); i != one.end(); ++i)
        order.push_back((*i).first);
    EXPECT_EQ((std::vector<int>{5, 2, 9}), order);
    EXPECT_EQ(1, one.erase(2));
    order.clear();
    for (auto i = one.begin(); i != one.end(); ++i)
        order.push_back((*i).first);
    EXPECT_EQ((std::vector<int>{5, 9}), order);
    one.insert({2, "2"});
    auto next = one.erase(one.find(9));
    EXPECT_EQ(2, (*next).first);
    order.clear();
    for (auto i = one.begin(); i != one.end(); i++)
        order.push_back((*i).first);
    EXPECT_EQ((std::vector<int>{5, 2}), order);
}

TEST(HashTable, CopiesAreDeepAndIndependent) {
    IntTable source;
    for (int key = 0; key < 40; ++key)
        source.insert({key, "v" + std::to_string(key)});
    IntTable copy(source);
    EXPECT_EQ(fs_walk(source), fs_walk(copy)) << "same elements in the same order";
    copy.erase(5);
    copy[6] = "changed";
    EXPECT_EQ("v5", source[5]);
    EXPECT_EQ("v6", source[6]);
    IntTable assigned;
    assigned.insert({100, "gone"});
    assigned = copy;
    EXPECT_EQ(fs_walk(copy), fs_walk(assigned));
    EXPECT_TRUE(assigned.find(100) == assigned.end());
    source.swap(assigned);
    EXPECT_TRUE(source.find(5) == source.end());
    EXPECT_EQ("v5", (*assigned.find(5)).second);
    std::size_t count = 0;
    for (auto i = assigned.begin(); i != assigned.end(); ++i)
        ++count;
    EXPECT_EQ(40u, count) << "the swapped table iterates to its own end";
}

TEST(HashTable, RandomOperationsMatchAModel) {
    std::mt19937 random(4242);
    using Table = QelBtTHashTable<std::string, int, StringHash, StringHash, 13>;
    Table table;
    std::unordered_map<std::string, int> model;
    std::map<std::string, long> insertedAt;  // insertion sequence, for the chain order
    StringHash hash;
    long sequence = 0;
    for (int step = 0; step < 4000; ++step) {
        std::string key = "key" + std::to_string(random() % 60);
        switch (random() % 4) {
            case 0: {
                int value = static_cast<int>(random() % 1000);
                int inserted = table.insert({key, value}).second;
                bool isNew = model.emplace(key, value).second;
                ASSERT_EQ(isNew ? 1 : 0, inserted);
                if (isNew) insertedAt[key] = sequence++;
                break;
            }
            case 1:
                ASSERT_EQ(static_cast<int>(model.erase(key)), table.erase(key));
                insertedAt.erase(key);
                break;
            case 2: {
                Table::Iter found = table.find(key);
                auto expected = model.find(key);
                ASSERT_EQ(expected == model.end(), found == table.end());
                if (expected != model.end()) {
                    ASSERT_EQ(expected->second, (*found).second);
                }
                break;
            }
            default:
                if (model.find(key) == model.end()) insertedAt[key] = sequence++;
                table[key] += 1;
                model[key] += 1;
        }
        // The walk gives every element once, bucket by bucket, oldest first in each bucket.
        std::unordered_map<std::string, int> walked;
        unsigned int lastBucket = 0;
        long lastSequence = -1;
        for (Table::Iter i = table.begin(); i != table.end(); ++i) {
            ASSERT_TRUE(walked.emplace((*i).first, (*i).second).second);
            unsigned int bucket = hash((*i).first) % 13;
            ASSERT_GE(bucket, lastBucket);
            if (bucket != lastBucket) lastSequence = -1;
            ASSERT_GT(insertedAt[(*i).first], lastSequence);
            lastBucket = bucket;
            lastSequence = insertedAt[(*i).first];
        }
        ASSERT_EQ(model, walked) << "step " << step;
    }
}

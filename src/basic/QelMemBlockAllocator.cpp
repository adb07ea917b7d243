#include <velmor/basic/QelMemBlockAllocator.h>

#include <cstdlib>
#include <cstring>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

QEL_CO_DEFINE_RTTI(QelMemBlockAllocator, QelCoObject)

char const* QelMemBlockAllocator::cs_cszQelMemTBlockAllocator = "QelMemTBlockAllocator";
char const* QelMemBlockAllocator::cs_cszAllocate = "allocate";

// Units grow as a Fibonacci-like sequence until the unit before the next reaches this size.
static unsigned int const fs_growthLimit = 2048;
static unsigned int const fs_pointerSize = sizeof(void*);

static unsigned int fs_usedWords(unsigned int count) { return ((count - 1) >> 5) + 1; }
static unsigned int fs_summaryWords(unsigned int count) { return ((count - 1) >> 10) + 1; }

static void fs_markBitAsUsed(QelMemBAChunkHead* unit, unsigned int i) {
    unit->used[i >> 5] |= 1u << (i & 31);
    unit->summary[i >> 10] |= 1u << ((i >> 5) & 31);
}

static void fs_markBitAsFree(QelMemBAChunkHead* unit, unsigned int i) {
    unit->used[i >> 5] &= ~(1u << (i & 31));
    if (unit->used[i >> 5] == 0) unit->summary[i >> 10] &= ~(1u << ((i >> 5) & 31));
}

// Bytes before slot 0: the head and both bitmaps, rounded up to a multiple of 16.
static unsigned int fs_headerSize(unsigned int count) {
    unsigned int bytes = sizeof(QelMemBAChunkHead) +
                         (fs_usedWords(count) + fs_summaryWords(count)) * sizeof(unsigned int);
    return (bytes + 15) & ~15u;
}

static unsigned int fs_allocationUnitSize(unsigned int slotSize, unsigned int count) {
    return fs_headerSize(count) + count * slotSize;
}

static QelMemBAChunkHead* fs_createAllocationUnit(unsigned int slotSize, unsigned int count,
                                                  QelMemBAChunkHead* next) {
    char* block = static_cast<char*>(std::malloc(fs_allocationUnitSize(slotSize, count)));
    if (block == nullptr) {
        g_qelCoNewMemoryFailed("QelMemBlockAllocator", QelMemBlockAllocator::cs_cszAllocate);
    }
    auto* unit = reinterpret_cast<QelMemBAChunkHead*>(block);
    unit->next = next;
    unit->slotCount = count;
    unit->used = reinterpret_cast<unsigned int*>(block + sizeof(QelMemBAChunkHead));
    unit->summary = unit->used + fs_usedWords(count);
    std::memset(unit->used, 0, (fs_usedWords(count) + fs_summaryWords(count)) * sizeof(unsigned));
    unit->slots = block + fs_headerSize(count);
    return unit;
}

// The unit of a slot handed out before, and the slot's index in it.
static QelMemBAChunkHead* fs_unitOf(void* slot, unsigned int objectSize) {
    QelMemBAChunkHead* unit;
    std::memcpy(&unit, static_cast<char*>(slot) + objectSize, sizeof unit);
    return unit;
}

QelMemBlockAllocatorData::QelMemBlockAllocatorData(unsigned int size)
    : slotSize(0),
      objectSize(((size - 1) & ~(fs_pointerSize - 1)) + fs_pointerSize),
      freeList(nullptr),
      units(nullptr),
      untouched(0),
      nextUnitSlots(2),
      lastUnitSlots(0) {
    slotSize = objectSize + fs_pointerSize;
}

QelMemBlockAllocator::QelMemBlockAllocator(unsigned int size) : m_data(size) {}

QelMemBlockAllocator::~QelMemBlockAllocator() {}

void* QelMemBlockAllocator::allocateBase() {
    QelMemBlockAllocatorData& d = m_data;
    if (d.freeList != nullptr) {
        void* slot = d.freeList;
        std::memcpy(&d.freeList, slot, sizeof d.freeList);
        QelMemBAChunkHead* unit = fs_unitOf(slot, d.objectSize);
        fs_markBitAsUsed(
            unit, static_cast<unsigned int>(static_cast<char*>(slot) - unit->slots) / d.slotSize);
        return slot;
    }
    if (d.untouched == 0) {
        unsigned int count = d.nextUnitSlots;
        d.units = fs_createAllocationUnit(d.slotSize, count, d.units);
        d.untouched = count;
        if (d.lastUnitSlots < fs_growthLimit) {
            d.nextUnitSlots = d.lastUnitSlots + count;
            d.lastUnitSlots = count;
        }
    }
    unsigned int i = --d.untouched;
    QelMemBAChunkHead* unit = d.units;
    char* slot = unit->slots + i * d.slotSize;
    fs_markBitAsUsed(unit, i);
    std::memcpy(slot + d.objectSize, &unit, sizeof unit);
    return slot;
}

void QelMemBlockAllocator::deallocateBase(void* object) {
    destroyCallback(object);
    releaseSlot(object);
}

void QelMemBlockAllocator::releaseSlot(void* slot) {
    QelMemBlockAllocatorData& d = m_data;
    QelMemBAChunkHead* unit = fs_unitOf(slot, d.objectSize);
    fs_markBitAsFree(
        unit, static_cast<unsigned int>(static_cast<char*>(slot) - unit->slots) / d.slotSize);
    std::memcpy(slot, &d.freeList, sizeof d.freeList);
    d.freeList = slot;
}

void QelMemBlockAllocator::destroyAll() {
    QelMemBlockAllocatorData& d = m_data;
    QelMemBAChunkHead* unit = d.units;
    while (unit != nullptr) {
        for (unsigned int s = 0; s < fs_summaryWords(unit->slotCount); ++s) {
            for (unsigned int sb = 0; sb < 32; ++sb) {
                unsigned int word = s * 32 + sb;
                if (word * 32 >= unit->slotCount) break;
                if ((unit->summary[s] & (1u << sb)) == 0) continue;
                for (unsigned int b = 0; b < 32; ++b) {
                    if ((unit->used[word] & (1u << b)) != 0) {
                        destroyCallback(unit->slots + (word * 32 + b) * d.slotSize);
                    }
                }
            }
        }
        QelMemBAChunkHead* next = unit->next;
        std::free(unit);
        unit = next;
    }
    d.freeList = nullptr;
    d.units = nullptr;
    d.untouched = 0;
    d.lastUnitSlots = 0;
    d.nextUnitSlots = 2;
}

}  // namespace Velmor

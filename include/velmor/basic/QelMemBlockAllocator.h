// QelMemBlockAllocator: fixed-size slots for objects of one type, from units of growing size.
//
// Allocation and release are constant time; each object costs one pointer (to its unit). Two
// bitmaps per unit tell which slots are alive, so destroyAll() can destroy every live object
// without a list of them. Units are freed only by destroyAll(). An allocator belongs to one
// thread at a time, or to the lock of whatever owns it; nothing here locks.
#ifndef VELMOR_BASIC_QELMEMBLOCKALLOCATOR_H
#define VELMOR_BASIC_QELMEMBLOCKALLOCATOR_H

#include <velmor/core/QelCoObject.h>

namespace Velmor {

// The head of one unit: one malloc block of head, used bitmap, summary bitmap and slots.
struct QelMemBAChunkHead {
    QelMemBAChunkHead* next;  // the next older unit, null for the oldest
    unsigned int slotCount;
    unsigned int* used;     // one bit per slot, set while the slot holds an object
    unsigned int* summary;  // one bit per word of `used`, set while that word is not zero
    char* slots;            // slot 0
};

class VELMOR_API QelMemBlockAllocatorData {
public:
    explicit QelMemBlockAllocatorData(unsigned int size);

    unsigned int slotSize;       // object size plus one pointer
    unsigned int objectSize;     // rounded up to a pointer's size; offset of the unit pointer
    void* freeList;              // the last released slot, linked through its first word
    QelMemBAChunkHead* units;    // the newest unit
    unsigned int untouched;      // slots of the newest unit never handed out yet
    unsigned int nextUnitSlots;  // slot count of the next unit; 2 at first
    unsigned int lastUnitSlots;  // slot count of the unit before, for the growth rule
};

class VELMOR_API QelMemBlockAllocator : public QelCoObject {
    QEL_CO_DECLARE_RTTI()

public:
    static char const* cs_cszQelMemTBlockAllocator;  // "QelMemTBlockAllocator"
    static char const* cs_cszAllocate;               // "allocate"

    // Slots for objects of `size` bytes (not 0); no unit exists yet.
    explicit QelMemBlockAllocator(unsigned int size);
    // Does not free the units: the typed allocator calls destroyAll() first.
    ~QelMemBlockAllocator() override;

    // Destroys the object at `object`; called for every object the allocator destroys.
    virtual void destroyCallback(void* object) = 0;

    // A slot for one object, not constructed; never null. The last slot released is the first
    // reused. Throws QelCoOutOfMemoryException when a new unit cannot be had, and then changes
    // nothing.
    void* allocateBase();
    // Destroys the object through destroyCallback and releases its slot. The object must come
    // from this allocator and be alive.
    void deallocateBase(void* object);
    // Releases a slot from allocateBase() whose object was never constructed (its
    // construction threw), without destroying anything.
    void releaseSlot(void* slot);
    // Destroys every live object, frees every unit and starts again with units of 2 slots.
    void destroyAll();

private:
    QelMemBlockAllocatorData m_data;
};

}  // namespace Velmor

#endif

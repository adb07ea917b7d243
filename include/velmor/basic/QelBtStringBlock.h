// QelBtStringBlock: the shared block behind QelBtTString and the operations on it that do not
// depend on the element type (allocation by the step table, unsharing, releasing).
//
// A block is one malloc'd allocation: this header, then room for `capacity` elements. It is
// owned jointly by the strings that point to it, counted without a lock: a string and all its
// copies belong to one thread at a time.
#ifndef VELMOR_BASIC_QELBTSTRINGBLOCK_H
#define VELMOR_BASIC_QELBTSTRINGBLOCK_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelBtStringBlock {
public:
    // The elements start this many bytes into the block, aligned for every element type.
    static constexpr unsigned int cs_elementsOffset = 16;

    unsigned int refCount;  // strings pointing here; 1 for a fresh block
    unsigned int capacity;  // room in elements, terminator included
    unsigned int length;    // text length in elements, terminator excluded

    void* elements() { return reinterpret_cast<char*>(this) + cs_elementsOffset; }
    void const* elements() const { return reinterpret_cast<char const*>(this) + cs_elementsOffset; }

    // Leaves the block: one count fewer, freed at zero; `block` becomes null.
    static void cs_refDown(QelBtStringBlock*& block);
    // Makes `block` a block of its own with room for `need` elements, not keeping the text
    // (length 0, first element zero) unless it already was such a block. Throws
    // QelCoOutOfMemoryException ("QelBtTString", "__allocate"), leaving `block` null.
    static void cs_allocate(QelBtStringBlock*& block, unsigned int need, unsigned int elementSize);
    // The same, keeping the text (`need` = npos: length + 1). Throws
    // QelCoOutOfMemoryException ("QelBtTString", "copyOnWrite") and then changes nothing.
    static void cs_copyOnWrite(QelBtStringBlock*& block, unsigned int need,
                               unsigned int elementSize);
};

}  // namespace Velmor

#endif

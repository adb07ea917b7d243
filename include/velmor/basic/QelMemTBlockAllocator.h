// QelMemTBlockAllocator<T>: the block allocator for objects of type T. The caller constructs
// objects in the slots it hands out; deallocate() and the destructor run ~T(). Owned by one
// object (a hash table's manipulator, say) and used by one thread at a time.
#ifndef VELMOR_BASIC_QELMEMTBLOCKALLOCATOR_H
#define VELMOR_BASIC_QELMEMTBLOCKALLOCATOR_H

#include <velmor/basic/QelMemBlockAllocator.h>

namespace Velmor {

template <class T>
class QelMemTBlockAllocator : public QelMemBlockAllocator {
public:
    QelMemTBlockAllocator() : QelMemBlockAllocator(sizeof(T)) {}
    // Destroys every object still alive.
    ~QelMemTBlockAllocator() override { destroyAll(); }
    QelMemTBlockAllocator(QelMemTBlockAllocator const&) = delete;
    QelMemTBlockAllocator& operator=(QelMemTBlockAllocator const&) = delete;

    void destroyCallback(void* object) override { static_cast<T*>(object)->~T(); }
};

}  // namespace Velmor

#endif

// QelBtHTBase: the hash table itself, for every key and value type: fixed buckets, chains in
// insertion order, deep copies, iteration. It knows elements as chain links and keys as
// void const*; its manipulator does the typed work. No resizing, no element count. A table
// belongs to one thread at a time (even operator[] writes); nothing here locks.
#ifndef VELMOR_BASIC_QELBTHTBASE_H
#define VELMOR_BASIC_QELBTHTBASE_H

#include <velmor/basic/QelBtHTIterBase.h>
#include <velmor/basic/QelBtHTManipBase.h>
#include <velmor/core/QelCoTSharedPtr.h>

namespace Velmor {

class VELMOR_API QelBtHTBase {
public:
    // Records the bucket count (at least 1); the typed table makes the manipulator and array.
    explicit QelBtHTBase(unsigned int buckets);
    // A deep copy: its own manipulator, array and elements, in the same chain order.
    QelBtHTBase(QelBtHTBase const& other);
    // Releases the manipulator; the typed table has disposed the elements and array before.
    ~QelBtHTBase();
    QelBtHTBase& operator=(QelBtHTBase const&) = delete;

    void assignBase(QelBtHTBase const& other);
    void copyHTBase(QelBtHTBase const& other);
    // Exchanges arrays, bucket counts and manipulators (not the typed end positions).
    void swapBase(QelBtHTBase& other);
    // Disposes every element; the array stays, all slots null.
    void clearBase();
    // Disposes every element and frees the array.
    void deleteHashTable();
    // Puts `pos` on the element of the value's key, made from `value` if it was absent;
    // `*inserted` is 1 then, else 0. An existing value is kept.
    void insertBase(QelBtHTIterBase* pos, int* inserted, void const* value);
    // 1 if an element with that key was removed, else 0.
    int eraseBase(void const* key);
    // `pos` on the element with that key, or at the end.
    void findBase(QelBtHTIterBase* pos, void const* key) const;
    // The element with that key, made with a default value if it was absent.
    QelBtHTElemBase* indexBase(void const* key) const;
    // `pos` on the first element in iteration order, or at the end.
    void findFirst(QelBtHTIterBase* pos) const;
    // Both positions at the end: no element, on the extra null slot.
    void setEnd(QelBtHTIterBase* a, QelBtHTIterBase* b);
    // The link at or after `slot` that points to the element with that key, or the null link
    // that ends the chain.
    QelBtHTElemBase** searchByKey(void const* key, QelBtHTElemBase** slot) const;

    unsigned int bucketCount() const { return m_bucketCount; }

protected:
    // Takes `manipulator` (null: its allocation failed) and makes the bucket array; failures
    // throw QelCoOutOfMemoryException ("QelBtTHashTable", "QelBtTHashTable").
    void initTable(QelBtHTManipBase* manipulator);

    unsigned int m_bucketCount;
    QelBtHTElemBase** m_buckets;  // m_bucketCount slots and one more that stays null
    QelCoTSharedPtr<QelBtHTManipBase> m_manipulator;

private:
    QelBtHTElemBase** bucketOf(void const* key) const;
    // Disposes the elements of every chain.
    void disposeAll();
};

}  // namespace Velmor

#endif

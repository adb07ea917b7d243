// QelBtTHashTable<K, V, Hash, Equal, N>: the library's associative container, a chained hash
// table with a fixed number of buckets whose elements live in a private block allocator.
//
// Each chain keeps its elements in insertion order; iteration goes bucket 0 upward. There is
// no resizing and no element count: choose the bucket count for the expected load. A copy is
// deep and made at once. Positions stay valid until their element is removed or the table is
// cleared, assigned or destroyed; insertion never moves elements. A table belongs to one
// thread at a time (operator[] writes when the key is absent); nothing here locks. Exhausted
// memory throws QelCoOutOfMemoryException.
//
// Hash is a functor with `unsigned operator()(K const&) const` (usually building a
// QelBtHashAcc); Equal one with `bool operator()(K const&, K const&) const`. One class may
// serve as both.
#ifndef VELMOR_BASIC_QELBTTHASHTABLE_H
#define VELMOR_BASIC_QELBTTHASHTABLE_H

#include <new>
#include <utility>

#include <velmor/basic/QelBtHTBase.h>
#include <velmor/basic/QelBtTHTConstIter.h>
#include <velmor/basic/QelBtTHTIter.h>
#include <velmor/basic/QelBtTHTManip.h>

namespace Velmor {

template <class K, class V, class Hash, class Equal, unsigned int N>
class QelBtTHashTable : public QelBtHTBase {
    using Manip = QelBtTHTManip<K, V, Hash, Equal>;

public:
    using Iter = QelBtTHTIter<K, V>;
    using ConstIter = QelBtTHTConstIter<K, V>;

    explicit QelBtTHashTable(unsigned int buckets = N, Hash const& hash = Hash(),
                             Equal const& equal = Equal())
        : QelBtHTBase(buckets) {
        Manip* manipulator = nullptr;
        try {
            manipulator = new Manip(hash, equal);
        } catch (std::bad_alloc const&) {
            manipulator = nullptr;
        }
        initTable(manipulator);
        setEnd(&m_end, &m_constEnd);
    }
    // A deep copy of `other`.
    QelBtTHashTable(QelBtTHashTable const& other) : QelBtHTBase(other) {
        setEnd(&m_end, &m_constEnd);
    }
    QelBtTHashTable& operator=(QelBtTHashTable const& other) {
        if (this != &other) {
            assignBase(other);
            setEnd(&m_end, &m_constEnd);
        }
        return *this;
    }
    ~QelBtTHashTable() { deleteHashTable(); }

    // Exchanges the contents of two tables of the same type.
    void swap(QelBtTHashTable& other) {
        swapBase(other);
        setEnd(&m_end, &m_constEnd);
        other.setEnd(&other.m_end, &other.m_constEnd);
    }

    // The position of the key's element and 1 if it was inserted, 0 if the key was there (its
    // value is kept).
    std::pair<Iter, int> insert(std::pair<const K, V> const& value) {
        QelBtHTIterBase position;
        int inserted = 0;
        insertBase(&position, &inserted, &value);
        return std::pair<Iter, int>(Iter(position), inserted);
    }
    Iter find(K const& key) {
        QelBtHTIterBase position;
        findBase(&position, &key);
        return Iter(position);
    }
    ConstIter find(K const& key) const {
        QelBtHTIterBase position;
        findBase(&position, &key);
        return ConstIter(position);
    }
    // 1 if the key's element was erased, 0 if there was none.
    int erase(K const& key) { return eraseBase(&key); }
    // Erases the element at `position`; returns the position after it.
    Iter erase(Iter position) {
        Iter next = position;
        ++next;
        eraseBase(&(*position).first);
        return next;
    }
    // The value of the key, made with a default value if the key was absent.
    V& operator[](K const& key) {
        return static_cast<QelBtTHTElem<K, V>*>(indexBase(&key))->value.second;
    }
    void clear() { clearBase(); }

    Iter begin() {
        QelBtHTIterBase position;
        findFirst(&position);
        return Iter(position);
    }
    ConstIter begin() const {
        QelBtHTIterBase position;
        findFirst(&position);
        return ConstIter(position);
    }
    Iter const& end() { return m_end; }
    ConstIter const& end() const { return m_constEnd; }

private:
    Iter m_end;
    ConstIter m_constEnd;
};

}  // namespace Velmor

#endif

// QelBtTHTManip<K, V, Hash, Equal>: the typed operations of a hash table and its elements'
// allocator. Counted, owned by its table; one thread at a time.
#ifndef VELMOR_BASIC_QELBTTHTMANIP_H
#define VELMOR_BASIC_QELBTTHTMANIP_H

#include <new>

#include <velmor/basic/QelBtHTManipBase.h>
#include <velmor/basic/QelBtTHTElem.h>
#include <velmor/basic/QelMemTBlockAllocator.h>
#include <velmor/core/QelCoFailures.h>

namespace Velmor {

template <class K, class V, class Hash, class Equal>
class QelBtTHTManip : public QelBtHTManipBase {
    using Elem = QelBtTHTElem<K, V>;
    using Pair = std::pair<const K, V>;

public:
    QelBtTHTManip(Hash const& hash, Equal const& equal) : m_hash(hash), m_equal(equal) {}
    // The same functors, an empty allocator.
    QelBtTHTManip(QelBtTHTManip const& other)
        : QelBtHTManipBase(), m_hash(other.m_hash), m_equal(other.m_equal) {}
    // The allocator destroys the elements still alive.
    ~QelBtTHTManip() override {}

    unsigned int hashFromKey(void const* key) const override {
        return m_hash(*static_cast<K const*>(key));
    }
    void const* keyFromValue(void const* value) const override {
        return &static_cast<Pair const*>(value)->first;
    }
    bool keyEquals(QelBtHTElemBase const* elem, void const* key) const override {
        return m_equal(static_cast<Elem const*>(elem)->value.first, *static_cast<K const*>(key));
    }
    QelBtHTManipBase* duplicate() override {
        QelBtTHTManip* copy = nullptr;
        try {
            copy = new QelBtTHTManip(*this);
        } catch (std::bad_alloc const&) {
            copy = nullptr;
        }
        if (copy == nullptr) g_qelCoNewMemoryFailed(cs_QelBtTHTManip, cs_Duplicate);
        return copy;
    }
    QelBtHTElemBase* duplicateElem(QelBtHTElemBase const* elem) override {
        return make(static_cast<Elem const*>(elem)->value);
    }
    QelBtHTElemBase* newElement(void const* value) override {
        return make(*static_cast<Pair const*>(value));
    }
    QelBtHTElemBase* newDefaultElement(void const* key) override {
        return make(Pair(*static_cast<K const*>(key), V()));
    }
    void disposeElem(QelBtHTElemBase* elem) override { m_allocator.deallocateBase(elem); }

private:
    // An element built in a slot of the allocator; the slot goes back if the build throws.
    Elem* make(Pair const& value) {
        void* slot = m_allocator.allocateBase();
        try {
            return new (slot) Elem(value);
        } catch (...) {
            m_allocator.releaseSlot(slot);
            throw;
        }
    }

    Hash m_hash;
    Equal m_equal;
    QelMemTBlockAllocator<Elem> m_allocator;
};

}  // namespace Velmor

#endif

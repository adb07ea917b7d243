// QelBtTHTPosition<Derived, K, V, Pair>: what the two typed hash table positions share: access
// to the key-value pair (as `Pair`, const or not), stepping, and comparison by element alone,
// so that every end position equals every other. A small value, valid until its element is
// removed or the table is cleared, assigned or destroyed.
#ifndef VELMOR_BASIC_QELBTTHTPOSITION_H
#define VELMOR_BASIC_QELBTTHTPOSITION_H

#include <velmor/basic/QelBtHTIterBase.h>
#include <velmor/basic/QelBtTHTElem.h>

namespace Velmor {

template <class Derived, class K, class V, class Pair>
class QelBtTHTPosition : public QelBtHTIterBase {
public:
    Pair& operator*() const { return static_cast<QelBtTHTElem<K, V>*>(m_element)->value; }
    Pair* operator->() const { return &**this; }
    Derived& operator++() {
        findNext();
        return static_cast<Derived&>(*this);
    }
    Derived operator++(int) {
        Derived before(static_cast<Derived const&>(*this));
        findNext();
        return before;
    }
    bool operator==(QelBtHTIterBase const& other) const { return m_element == other.m_element; }
    bool operator!=(QelBtHTIterBase const& other) const { return m_element != other.m_element; }

protected:
    QelBtTHTPosition() {}
    explicit QelBtTHTPosition(QelBtHTIterBase const& position) : QelBtHTIterBase(position) {}
};

}  // namespace Velmor

#endif

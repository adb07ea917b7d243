// QelBtTHTConstIter<K, V>: the read-only position of a QelBtTHashTable.
// Positions compare by element only, so every end position equals every other. A small value,
// valid until its element is removed or the table is cleared, assigned or destroyed.
#ifndef VELMOR_BASIC_QELBTTHTCONSTITER_H
#define VELMOR_BASIC_QELBTTHTCONSTITER_H

#include <velmor/basic/QelBtHTIterBase.h>
#include <velmor/basic/QelBtTHTElem.h>

namespace Velmor {

template <class K, class V>
class QelBtTHTConstIter : public QelBtHTIterBase {
public:
    QelBtTHTConstIter() {}
    QelBtTHTConstIter(QelBtHTIterBase const& position) : QelBtHTIterBase(position) {}

    std::pair<const K, V> const& operator*() const {
        return static_cast<QelBtTHTElem<K, V> const*>(m_element)->value;
    }
    std::pair<const K, V> const* operator->() const { return &**this; }
    QelBtTHTConstIter& operator++() {
        findNext();
        return *this;
    }
    QelBtTHTConstIter operator++(int) {
        QelBtTHTConstIter before(*this);
        findNext();
        return before;
    }
    bool operator==(QelBtHTIterBase const& other) const { return m_element == other.m_element; }
    bool operator!=(QelBtHTIterBase const& other) const { return m_element != other.m_element; }
};

}  // namespace Velmor

#endif

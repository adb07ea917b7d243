// QelBtTHTIter<K, V>: a position in a QelBtTHashTable giving access to its key-value pair.
// Positions compare by element only, so every end position equals every other. A small value,
// valid until its element is removed or the table is cleared, assigned or destroyed.
#ifndef VELMOR_BASIC_QELBTTHTITER_H
#define VELMOR_BASIC_QELBTTHTITER_H

#include <velmor/basic/QelBtHTIterBase.h>
#include <velmor/basic/QelBtTHTElem.h>

namespace Velmor {

template <class K, class V>
class QelBtTHTIter : public QelBtHTIterBase {
public:
    QelBtTHTIter() {}
    QelBtTHTIter(QelBtHTIterBase const& position) : QelBtHTIterBase(position) {}

    std::pair<const K, V>& operator*() const {
        return static_cast<QelBtTHTElem<K, V>*>(m_element)->value;
    }
    std::pair<const K, V>* operator->() const { return &**this; }
    QelBtTHTIter& operator++() {
        findNext();
        return *this;
    }
    QelBtTHTIter operator++(int) {
        QelBtTHTIter before(*this);
        findNext();
        return before;
    }
    bool operator==(QelBtHTIterBase const& other) const { return m_element == other.m_element; }
    bool operator!=(QelBtHTIterBase const& other) const { return m_element != other.m_element; }
};

}  // namespace Velmor

#endif

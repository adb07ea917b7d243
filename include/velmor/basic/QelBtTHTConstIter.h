// QelBtTHTConstIter<K, V>: the read-only position of a QelBtTHashTable. Positions compare by
// element only, so every end position equals every other. A small value, valid until its
// element is removed or the table is cleared, assigned or destroyed.
#ifndef VELMOR_BASIC_QELBTTHTCONSTITER_H
#define VELMOR_BASIC_QELBTTHTCONSTITER_H

#include <utility>

#include <velmor/basic/QelBtTHTPosition.h>

namespace Velmor {

template <class K, class V>
class QelBtTHTConstIter
    : public QelBtTHTPosition<QelBtTHTConstIter<K, V>, K, V, std::pair<const K, V> const> {
    using Base = QelBtTHTPosition<QelBtTHTConstIter<K, V>, K, V, std::pair<const K, V> const>;

public:
    QelBtTHTConstIter() {}
    QelBtTHTConstIter(QelBtHTIterBase const& position) : Base(position) {}
};

}  // namespace Velmor

#endif

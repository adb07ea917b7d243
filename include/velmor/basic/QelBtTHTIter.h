// QelBtTHTIter<K, V>: a position in a QelBtTHashTable giving access to its key-value pair.
// Positions compare by element only, so every end position equals every other. A small value,
// valid until its element is removed or the table is cleared, assigned or destroyed.
#ifndef VELMOR_BASIC_QELBTTHTITER_H
#define VELMOR_BASIC_QELBTTHTITER_H

#include <utility>

#include <velmor/basic/QelBtTHTPosition.h>

namespace Velmor {

template <class K, class V>
class QelBtTHTIter : public QelBtTHTPosition<QelBtTHTIter<K, V>, K, V, std::pair<const K, V>> {
    using Base = QelBtTHTPosition<QelBtTHTIter<K, V>, K, V, std::pair<const K, V>>;

public:
    QelBtTHTIter() {}
    QelBtTHTIter(QelBtHTIterBase const& position) : Base(position) {}
};

}  // namespace Velmor

#endif

// QelBtTHTElem<K, V>: one element of a hash table: the chain link and the key-value pair.
// Lives in the table's block allocator; the table owns it.
#ifndef VELMOR_BASIC_QELBTTHTELEM_H
#define VELMOR_BASIC_QELBTTHTELEM_H

#include <utility>

#include <velmor/basic/QelBtHTElemBase.h>

namespace Velmor {

template <class K, class V>
struct QelBtTHTElem : public QelBtHTElemBase {
    explicit QelBtTHTElem(std::pair<const K, V> const& pair) : value(pair) {}
    QelBtTHTElem(QelBtTHTElem const& other) : QelBtHTElemBase(), value(other.value) {}

    std::pair<const K, V> value;
};

}  // namespace Velmor

#endif

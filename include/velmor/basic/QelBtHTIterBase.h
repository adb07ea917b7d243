// QelBtHTIterBase: a position in a hash table: the element, its bucket slot and the end of the
// bucket array. A small value, valid until its element is removed or the table is cleared,
// assigned or destroyed.
#ifndef VELMOR_BASIC_QELBTHTITERBASE_H
#define VELMOR_BASIC_QELBTHTITERBASE_H

#include <velmor/basic/QelBtHTElemBase.h>

namespace Velmor {

class VELMOR_API QelBtHTIterBase {
public:
    QelBtHTIterBase() : m_element(nullptr), m_bucket(nullptr), m_bucketEnd(nullptr) {}
    QelBtHTIterBase(QelBtHTElemBase** bucket, QelBtHTElemBase** bucketEnd, QelBtHTElemBase* elem)
        : m_element(elem), m_bucket(bucket), m_bucketEnd(bucketEnd) {}

    void setPos(QelBtHTElemBase** bucket, QelBtHTElemBase** bucketEnd, QelBtHTElemBase* elem) {
        m_element = elem;
        m_bucket = bucket;
        m_bucketEnd = bucketEnd;
    }
    void assign(QelBtHTIterBase const& other) { *this = other; }

    // The next element in iteration order (bucket 0 upward, oldest first in a bucket), or the
    // end position; nothing at the end.
    void findNext() {
        if (m_element == nullptr) return;
        m_element = m_element->next;
        if (m_element != nullptr) return;
        do {
            ++m_bucket;
        } while (*m_bucket == nullptr && m_bucket < m_bucketEnd);
        m_element = *m_bucket;
    }

    QelBtHTElemBase* m_element;     // null at the end
    QelBtHTElemBase** m_bucket;     // the current bucket slot
    QelBtHTElemBase** m_bucketEnd;  // one past the last real slot: the null extra slot
};

}  // namespace Velmor

#endif

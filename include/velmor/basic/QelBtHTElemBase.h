// QelBtHTElemBase: the chain link of a hash table element. Plain data, owned by the table's
// allocator; used under the table's rule (one thread at a time).
#ifndef VELMOR_BASIC_QELBTHTELEMBASE_H
#define VELMOR_BASIC_QELBTHTELEMBASE_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

struct VELMOR_API QelBtHTElemBase {
    // Links this element at `slot` (a bucket slot or a next field), in front of what it held.
    void link(QelBtHTElemBase** slot) {
        next = *slot;
        *slot = this;
        backLink = slot;
    }
    // Takes this element out of its chain.
    void unlink() {
        *backLink = next;
        if (next != nullptr) next->backLink = backLink;
    }

    QelBtHTElemBase** backLink;  // the link that points to this element
    QelBtHTElemBase* next;       // the following element, null at the end of the chain
};

}  // namespace Velmor

#endif

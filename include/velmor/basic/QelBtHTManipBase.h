// QelBtHTManipBase: everything a hash table does that depends on its key and value types,
// behind eight virtual operations, together with the element storage. Counted; owned by the
// table through a shared pointer and used under the table's rule (one thread at a time).
#ifndef VELMOR_BASIC_QELBTHTMANIPBASE_H
#define VELMOR_BASIC_QELBTHTMANIPBASE_H

#include <velmor/basic/QelBtHTElemBase.h>
#include <velmor/basic/QelBtHash.h>
#include <velmor/core/QelCoCounted.h>

namespace Velmor {

class VELMOR_API QelBtHTManipBase : public QelCoCounted, public QelBtHash {
public:
    ~QelBtHTManipBase() override;

    virtual unsigned int hashFromKey(void const* key) const = 0;
    // The key inside a std::pair<const K, V> given as `value`.
    virtual void const* keyFromValue(void const* value) const = 0;
    virtual bool keyEquals(QelBtHTElemBase const* elem, void const* key) const = 0;
    // A manipulator with the same functors and an empty storage of its own. Throws
    // QelCoOutOfMemoryException ("QelBtTHTManip", "duplicate").
    virtual QelBtHTManipBase* duplicate() = 0;
    virtual QelBtHTElemBase* duplicateElem(QelBtHTElemBase const* elem) = 0;
    virtual QelBtHTElemBase* newElement(void const* value) = 0;
    // An element with that key and a default-constructed value.
    virtual QelBtHTElemBase* newDefaultElement(void const* key) = 0;
    virtual void disposeElem(QelBtHTElemBase* elem) = 0;
};

}  // namespace Velmor

#endif

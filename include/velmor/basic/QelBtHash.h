// QelBtHash: the names the hash table family uses in failure reports. Constant data.
#ifndef VELMOR_BASIC_QELBTHASH_H
#define VELMOR_BASIC_QELBTHASH_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelBtHash {
public:
    static char const* cs_QelBtTHashTable;    // "QelBtTHashTable"
    static char const* cs_QelBtTHTManip;      // "QelBtTHTManip"
    static char const* cs_Insert;             // "insert"
    static char const* cs_Operator;           // "operator []"
    static char const* cs_Duplicate;          // "duplicate"
    static char const* cs_DuplicateElem;      // "duplicateElem"
    static char const* cs_NewElement;         // "newElement"
    static char const* cs_NewDefaultElement;  // "newDefaultElement"
    static char const* cs_cszOperatorEqual;   // "operator ="
};

}  // namespace Velmor

#endif

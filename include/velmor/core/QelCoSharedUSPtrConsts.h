// QelCoSharedUSPtrConsts: the class names of the unlocked (US) shared pointers.
// Constant data; any thread.
#ifndef VELMOR_CORE_QELCOSHAREDUSPTRCONSTS_H
#define VELMOR_CORE_QELCOSHAREDUSPTRCONSTS_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCoSharedUSPtrConsts {
public:
    static char const* cs_SharedUSPtrClassName;    // "QelCoTSharedUSPtr"
    static char const* cs_SharedUSCPtrClassName;   // "QelCoTSharedUSCPtr"
    static char const* cs_SharedUSTPtrClassName;   // "QelCoTSharedUSTPtr"
    static char const* cs_SharedUSTCPtrClassName;  // "QelCoTSharedUSTCPtr"
};

}  // namespace Velmor

#endif

// QelCoSharedPtrConsts: the class names of the locking shared pointers, as used in reports.
// Constant data; any thread.
#ifndef VELMOR_CORE_QELCOSHAREDPTRCONSTS_H
#define VELMOR_CORE_QELCOSHAREDPTRCONSTS_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCoSharedPtrConsts {
public:
    static char const* cs_SharedPtrClassName;    // "QelCoTSharedPtr"
    static char const* cs_SharedCPtrClassName;   // "QelCoTSharedCPtr"
    static char const* cs_SharedTPtrClassName;   // "QelCoTSharedTPtr"
    static char const* cs_SharedTCPtrClassName;  // "QelCoTSharedTCPtr"
};

}  // namespace Velmor

#endif

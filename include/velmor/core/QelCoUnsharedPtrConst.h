// QelCoUnsharedPtrConst: the class names of the sole-owner pointer. Constant data; any thread.
#ifndef VELMOR_CORE_QELCOUNSHAREDPTRCONST_H
#define VELMOR_CORE_QELCOUNSHAREDPTRCONST_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCoUnsharedPtrConst {
public:
    static char const* cs_unsharedPtrClassName;   // "QelCoTUnsharedPtr"
    static char const* cs_unsharedTPtrClassName;  // "QelCoTUnsharedTPtr"
};

}  // namespace Velmor

#endif

// The class names of the pointer family, in one place.
#include <velmor/core/QelCoSharedPtrConsts.h>
#include <velmor/core/QelCoSharedUSPtrConsts.h>
#include <velmor/core/QelCoUnsharedPtrConst.h>

namespace Velmor {

char const* QelCoSharedPtrConsts::cs_SharedPtrClassName = "QelCoTSharedPtr";
char const* QelCoSharedPtrConsts::cs_SharedCPtrClassName = "QelCoTSharedCPtr";
char const* QelCoSharedPtrConsts::cs_SharedTPtrClassName = "QelCoTSharedTPtr";
char const* QelCoSharedPtrConsts::cs_SharedTCPtrClassName = "QelCoTSharedTCPtr";

char const* QelCoSharedUSPtrConsts::cs_SharedUSPtrClassName = "QelCoTSharedUSPtr";
char const* QelCoSharedUSPtrConsts::cs_SharedUSCPtrClassName = "QelCoTSharedUSCPtr";
char const* QelCoSharedUSPtrConsts::cs_SharedUSTPtrClassName = "QelCoTSharedUSTPtr";
char const* QelCoSharedUSPtrConsts::cs_SharedUSTCPtrClassName = "QelCoTSharedUSTCPtr";

char const* QelCoUnsharedPtrConst::cs_unsharedPtrClassName = "QelCoTUnsharedPtr";
char const* QelCoUnsharedPtrConst::cs_unsharedTPtrClassName = "QelCoTUnsharedTPtr";

}  // namespace Velmor

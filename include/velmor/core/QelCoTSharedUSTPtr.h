// QelCoTSharedUSTPtr: the unlocked shared pointer for class template instantiations; one thread at
// a time.
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDUSTPTR_H
#define VELMOR_CORE_QELCOTSHAREDUSTPTR_H

#include <velmor/core/QelCoSharedUSPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedUSTPtr, T, QelCoTSharedUSTCounting,
                        QelCoSharedUSPtrConsts::cs_SharedUSTPtrClassName)

}  // namespace Velmor

#endif

// QelCoTSharedUSPtr: a shared pointer whose count changes without a lock. Only for objects that one
// thread at a time can reach together with all their pointers. Defined with
// QEL_CO_SHARED_PTR_DEFINE(T).
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDUSPTR_H
#define VELMOR_CORE_QELCOTSHAREDUSPTR_H

#include <velmor/core/QelCoSharedUSPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedUSPtr, T, QelCoTSharedUSCounting,
                        QelCoSharedUSPtrConsts::cs_SharedUSPtrClassName)

}  // namespace Velmor

#endif

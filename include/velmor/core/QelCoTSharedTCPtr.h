// QelCoTSharedTCPtr: the const twin of QelCoTSharedTPtr.
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDTCPTR_H
#define VELMOR_CORE_QELCOTSHAREDTCPTR_H

#include <velmor/core/QelCoSharedPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedTCPtr, T const, QelCoTSharedTCounting,
                        QelCoSharedPtrConsts::cs_SharedTCPtrClassName)

}  // namespace Velmor

#endif

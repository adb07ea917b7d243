// QelCoTSharedUSCPtr: the const twin of QelCoTSharedUSPtr.
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDUSCPTR_H
#define VELMOR_CORE_QELCOTSHAREDUSCPTR_H

#include <velmor/core/QelCoSharedUSPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedUSCPtr, T const, QelCoTSharedUSCounting,
                        QelCoSharedUSPtrConsts::cs_SharedUSCPtrClassName)

}  // namespace Velmor

#endif

// QelCoTSharedUSTCPtr: the const twin of QelCoTSharedUSTPtr.
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDUSTCPTR_H
#define VELMOR_CORE_QELCOTSHAREDUSTCPTR_H

#include <velmor/core/QelCoSharedUSPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedUSTCPtr, T const, QelCoTSharedUSTCounting,
                        QelCoSharedUSPtrConsts::cs_SharedUSTCPtrClassName)

}  // namespace Velmor

#endif

// QelCoTSharedCPtr: the const twin of QelCoTSharedPtr: a locking shared pointer to T const. Its
// count functions are those of QelCoTSharedPtr<T>, defined with QEL_CO_SHARED_PTR_DEFINE(T).
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDCPTR_H
#define VELMOR_CORE_QELCOTSHAREDCPTR_H

#include <velmor/core/QelCoSharedPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedCPtr, T const, QelCoTSharedCounting,
                        QelCoSharedPtrConsts::cs_SharedCPtrClassName)

}  // namespace Velmor

#endif

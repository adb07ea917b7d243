// QelCoTSharedPtr: the locking shared pointer to a plain class T. Its count functions are defined
// in T's source file with QEL_CO_SHARED_PTR_DEFINE(T), so T may be incomplete where the pointer is
// declared.
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDPTR_H
#define VELMOR_CORE_QELCOTSHAREDPTR_H

#include <velmor/core/QelCoSharedPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedPtr, T, QelCoTSharedCounting,
                        QelCoSharedPtrConsts::cs_SharedPtrClassName)

}  // namespace Velmor

#endif

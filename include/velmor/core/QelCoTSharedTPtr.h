// QelCoTSharedTPtr: the locking shared pointer for instantiations of class templates, which have no
// source file of their own: its count functions are defined here, so T must be complete where used.
//
// The pointer owns one count of its object and the last pointer to let go deletes it. One
// pointer object belongs to one thread at a time.
#ifndef VELMOR_CORE_QELCOTSHAREDTPTR_H
#define VELMOR_CORE_QELCOTSHAREDTPTR_H

#include <velmor/core/QelCoSharedPtrConsts.h>
#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

QEL_CO_SHARED_PTR_CLASS(QelCoTSharedTPtr, T, QelCoTSharedTCounting,
                        QelCoSharedPtrConsts::cs_SharedTPtrClassName)

}  // namespace Velmor

#endif

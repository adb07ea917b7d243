// QEL_CO_SHARED_PTR_DEFINE(T): the out-of-line count functions of QelCoTSharedPtr<T>,
// QelCoTSharedCPtr<T>, QelCoTSharedUSPtr<T> and QelCoTSharedUSCPtr<T>.
//
// Include this header in T's own source file only, where T is complete, and write the macro
// once at namespace scope outside any namespace block, e.g. QEL_CO_SHARED_PTR_DEFINE(MyApp::Doc).
#ifndef VELMOR_CORE_QELCOTSHAREDPTRDEFINE_H
#define VELMOR_CORE_QELCOTSHAREDPTRDEFINE_H

#include <velmor/core/QelCoTSharedPtrBase.h>

namespace Velmor {

template <class T>
int QelCoTSharedCounting<T>::up(T const* object) {
    return const_cast<T*>(object)->QelCoCounted::__refUp();
}

template <class T>
int QelCoTSharedCounting<T>::down(T const* object) {
    return const_cast<T*>(object)->QelCoCounted::__refDown();
}

template <class T>
void QelCoTSharedCounting<T>::release(T const* object) {
    if (down(object) == 0) delete object;
}

template <class T>
int QelCoTSharedUSCounting<T>::up(T const* object) {
    return ++QelCoCounted::__usCount(const_cast<T*>(object));
}

template <class T>
int QelCoTSharedUSCounting<T>::down(T const* object) {
    int count = --QelCoCounted::__usCount(const_cast<T*>(object));
    if (count == 0) delete object;
    return count;
}

}  // namespace Velmor

#define QEL_CO_SHARED_PTR_DEFINE(T)                    \
    template struct ::Velmor::QelCoTSharedCounting<T>; \
    template struct ::Velmor::QelCoTSharedUSCounting<T>;

#endif

// QelBtTStringMethods<T>: element copies in one direction each. copy() goes from the lowest
// address up (right when the target lies below the source), move() from the highest down
// (right when the target lies above it). Stateless; any thread.
#ifndef VELMOR_BASIC_QELBTTSTRINGMETHODS_H
#define VELMOR_BASIC_QELBTTSTRINGMETHODS_H

namespace Velmor {

template <class T>
class QelBtTStringMethods {
public:
    static void copy(T* dst, T const* src, unsigned int n) {
        for (unsigned int i = 0; i < n; ++i)
            dst[i] = src[i];
    }
    static void move(T* dst, T const* src, unsigned int n) {
        for (unsigned int i = n; i > 0; --i)
            dst[i - 1] = src[i - 1];
    }
};

}  // namespace Velmor

#endif

// QelBtTStringMethods<T>: element copies for the string classes. copy() is meant for a
// target below the source, move() for a target above it; both are also right for any other
// overlap, as they copy the way memmove does. Stateless; any thread.
#ifndef VELMOR_BASIC_QELBTTSTRINGMETHODS_H
#define VELMOR_BASIC_QELBTTSTRINGMETHODS_H

#include <cstring>

namespace Velmor {

template <class T>
class QelBtTStringMethods {
public:
    static void copy(T* dst, T const* src, unsigned int n) {
        std::memmove(dst, src, std::size_t(n) * sizeof(T));
    }
    static void move(T* dst, T const* src, unsigned int n) {
        std::memmove(dst, src, std::size_t(n) * sizeof(T));
    }
};

}  // namespace Velmor

#endif

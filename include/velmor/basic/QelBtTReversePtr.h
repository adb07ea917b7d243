// QelBtTReversePtr<T>: a pointer that walks a string's elements from the last to the first.
// rbegin() stands on the last element and rend() one before the first; ++ steps towards the
// front. A small value; it belongs to whoever holds it and is valid as long as the string's
// block is.
#ifndef VELMOR_BASIC_QELBTTREVERSEPTR_H
#define VELMOR_BASIC_QELBTTREVERSEPTR_H

namespace Velmor {

template <class T>
class QelBtTReversePtr {
public:
    explicit QelBtTReversePtr(T* element) : m_element(element) {}

    T& operator*() const { return *m_element; }
    // Towards the first element, and back.
    QelBtTReversePtr& operator++() {
        --m_element;
        return *this;
    }
    QelBtTReversePtr& operator--() {
        ++m_element;
        return *this;
    }
    bool operator==(QelBtTReversePtr const& other) const { return m_element == other.m_element; }
    bool operator!=(QelBtTReversePtr const& other) const { return m_element != other.m_element; }

private:
    T* m_element;
};

}  // namespace Velmor

#endif

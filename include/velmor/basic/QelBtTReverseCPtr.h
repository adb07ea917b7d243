// QelBtTReverseCPtr<T>: the read-only twin of QelBtTReversePtr, from the const rbegin() and
// rend(). A small value, valid as long as the string's block is.
#ifndef VELMOR_BASIC_QELBTTREVERSECPTR_H
#define VELMOR_BASIC_QELBTTREVERSECPTR_H

namespace Velmor {

template <class T>
class QelBtTReverseCPtr {
public:
    explicit QelBtTReverseCPtr(T const* element) : m_element(element) {}
    ~QelBtTReverseCPtr() {}

    T const& operator*() const { return *m_element; }
    QelBtTReverseCPtr& operator++() {
        --m_element;
        return *this;
    }
    QelBtTReverseCPtr& operator--() {
        ++m_element;
        return *this;
    }
    bool operator==(QelBtTReverseCPtr const& other) const { return m_element == other.m_element; }
    bool operator!=(QelBtTReverseCPtr const& other) const { return m_element != other.m_element; }

private:
    T const* m_element;
};

}  // namespace Velmor

#endif

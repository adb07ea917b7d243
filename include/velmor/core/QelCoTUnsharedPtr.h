// QelCoTUnsharedPtr: the sole owner of one object, typically a class's implementation object
// (<Class>Data). It cannot be copied; it belongs to its owner and so to the owner's thread.
#ifndef VELMOR_CORE_QELCOTUNSHAREDPTR_H
#define VELMOR_CORE_QELCOTUNSHAREDPTR_H

namespace Velmor {

template <class T>
class QelCoTUnsharedPtr {
public:
    QelCoTUnsharedPtr() : m_ptr(nullptr) {}
    ~QelCoTUnsharedPtr() { release(); }
    QelCoTUnsharedPtr(QelCoTUnsharedPtr const&) = delete;
    QelCoTUnsharedPtr& operator=(QelCoTUnsharedPtr const&) = delete;

    // Deletes the held object and takes `object`, which must not be the one already held.
    QelCoTUnsharedPtr& operator=(T* object) {
        release();
        m_ptr = object;
        return *this;
    }
    // Deletes the held object. The pointer keeps its (now dangling) value: only the
    // destructor and operator= call this.
    void release() {
        if (m_ptr != nullptr) delete m_ptr;
    }

    operator T*() const { return m_ptr; }
    T* operator->() const { return m_ptr; }
    T* ptr() const { return m_ptr; }
    int isNull() const { return m_ptr == nullptr ? 1 : 0; }

private:
    T* m_ptr;
};

}  // namespace Velmor

#endif

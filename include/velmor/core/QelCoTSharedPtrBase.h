// QelCoTSharedPtrBase: the common body of the eight shared pointer classes.
//
// A shared pointer holds one T* and owns one count of the object. The variants differ only in
// how the count changes (the Counting policy) and in the name they report. A pointer object
// belongs to one thread at a time; distinct pointers to one object may be used by different
// threads at once with the locking variants.
#ifndef VELMOR_CORE_QELCOTSHAREDPTRBASE_H
#define VELMOR_CORE_QELCOTSHAREDPTRBASE_H

#include <velmor/core/QelCoCounted.h>
#include <velmor/core/QelCoFailures.h>

namespace Velmor {

// Locking count, defined out of line in T's own source file with QEL_CO_SHARED_PTR_DEFINE(T),
// so that T may be incomplete wherever the pointer is declared, copied or destroyed.
template <class T>
struct VELMOR_API QelCoTSharedCounting {
    static int up(T const* object);
    static int down(T const* object);
    static void release(T const* object);  // down, and delete at 0
};

// Unlocked count, out of line as above; down deletes at 0 itself.
template <class T>
struct VELMOR_API QelCoTSharedUSCounting {
    static int up(T const* object);
    static int down(T const* object);
    static void release(T const* object) { down(object); }
};

// Locking count for instantiations of class templates, which have no source file of their own.
template <class T>
struct QelCoTSharedTCounting {
    static int up(T const* object) { return const_cast<T*>(object)->QelCoCounted::__refUp(); }
    static int down(T const* object) { return const_cast<T*>(object)->QelCoCounted::__refDown(); }
    static void release(T const* object) {
        if (down(object) == 0) delete object;
    }
};

// Unlocked count for class template instantiations.
template <class T>
struct QelCoTSharedUSTCounting {
    static int up(T const* object) { return ++QelCoCounted::__usCount(const_cast<T*>(object)); }
    static int down(T const* object) {
        int count = --QelCoCounted::__usCount(const_cast<T*>(object));
        if (count == 0) delete object;
        return count;
    }
    static void release(T const* object) { down(object); }
};

template <class E, class Counting>
class QelCoTSharedPtrBase {
public:
    // Stores `object` and counts it, without releasing what was held before.
    void assign(E* object) {
        m_ptr = object;
        if (m_ptr != nullptr) Counting::up(m_ptr);
    }
    // Change the count of the held object (which must not be null); return the new count.
    int refUp() const { return Counting::up(m_ptr); }
    int refDown() const { return Counting::down(m_ptr); }

    // The held pointer, unchecked.
    operator E*() const { return m_ptr; }
    E* operator->() const { return m_ptr; }
    E* ptr() const { return m_ptr; }
    int isNull() const { return m_ptr == nullptr ? 1 : 0; }

protected:
    constexpr QelCoTSharedPtrBase() : m_ptr(nullptr) {}
    QelCoTSharedPtrBase(E* object) : m_ptr(nullptr) { assign(object); }
    QelCoTSharedPtrBase(QelCoTSharedPtrBase const& other) : m_ptr(nullptr) { assign(other.m_ptr); }
    ~QelCoTSharedPtrBase() { releaseHeld(); }

    // Exactly one of several threads releasing the last counts sees 0 and deletes.
    void releaseHeld() {
        if (m_ptr != nullptr) Counting::release(m_ptr);
    }
    // Assignment: nothing if the same object; else release the old one, then count the new.
    void reset(E* object) {
        if (object == m_ptr) return;
        releaseHeld();
        assign(object);
    }
    void newCheckAs(char const* className) const {
        if (m_ptr == nullptr) g_qelCoNewMemoryFailed(className, className);
    }

    E* m_ptr;
};

}  // namespace Velmor

// Declares one shared pointer class template over QelCoTSharedPtrBase.
#define QEL_CO_SHARED_PTR_CLASS(Name, Element, Counting, ClassNameConstant)                 \
    template <class T>                                                                      \
    class Name : public ::Velmor::QelCoTSharedPtrBase<Element, Counting<T>> {               \
        using Base = ::Velmor::QelCoTSharedPtrBase<Element, Counting<T>>;                   \
                                                                                            \
    public:                                                                                 \
        constexpr Name() = default;                                                         \
        Name(Element* object) : Base(object) {}                                             \
        Name(Name const& other) = default;                                                  \
        ~Name() = default;                                                                  \
        Name& operator=(Element* object) {                                                  \
            this->reset(object);                                                            \
            return *this;                                                                   \
        }                                                                                   \
        Name& operator=(Name const& other) {                                                \
            this->reset(other.m_ptr);                                                       \
            return *this;                                                                   \
        }                                                                                   \
        /* After `p = new X`: throws QelCoOutOfMemoryException when the pointer is null. */ \
        void newCheck() const { this->newCheckAs(ClassNameConstant); }                      \
    };

#endif

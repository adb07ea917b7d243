// QelCoRTTI: the run-time type record of one class.
//
// Each class of the type lattice owns exactly one record, its static member cs_rtti; records are
// never copied or owned elsewhere and are read-only after static initialisation, so any thread
// may use them.
#ifndef VELMOR_CORE_QELCORTTI_H
#define VELMOR_CORE_QELCORTTI_H

#include <velmor/core/QelCnfRefNiftyCounter.h>

namespace Velmor {

class QelCoObject;

class VELMOR_API QelCoRTTI {
public:
    // Records the class name and its null-terminated array of parent records. Neither is
    // copied: both must live as long as the process.
    QelCoRTTI(char const* name, QelCoRTTI const* const* parents);
    ~QelCoRTTI();
    QelCoRTTI(QelCoRTTI const&) = delete;
    QelCoRTTI& operator=(QelCoRTTI const&) = delete;

    // 1 if this record is `other` or has it among its ancestors (depth first), else 0. A record
    // with no parents array, or an empty one, is an instance only of itself.
    int instanceOf(QelCoRTTI const& other) const;

    // For a checked cast whose narrowTo gave null: throws QelCoClassCastException naming the
    // dynamic class of `object`, the target and the address. Never returns.
    [[noreturn]] static void cs_castFailed(void const* address, QelCoObject const* object,
                                           QelCoRTTI const& target, char const* fileName, int line);

    QelCoRTTI const* const* parents;  // null-terminated, never walked by narrowTo
    char const* name;                 // the class name, e.g. "QelCoCounted"
};

}  // namespace Velmor

// Declares the type-record members of a class of the lattice. Use inside the class body.
#define QEL_CO_DECLARE_RTTI()                                   \
public:                                                         \
    static ::Velmor::QelCoRTTI cs_rtti;                         \
    ::Velmor::QelCoRTTI const& getRTTI() const override;        \
    void* narrowTo(::Velmor::QelCoRTTI const& target) override; \
    char const* getClassName() const override;

// Defines them in the class's source file: the parents array fs_<Class>_rtti_array naming
// `Parent`, the record, and the three overrides. narrowTo answers for the class itself and
// otherwise asks the parent part of the object, never walking the array.
#define QEL_CO_DEFINE_RTTI(Class, Parent)                                                  \
    static ::Velmor::QelCoRTTI const* const fs_##Class##_rtti_array[] = {&Parent::cs_rtti, \
                                                                         nullptr};         \
    ::Velmor::QelCoRTTI Class::cs_rtti(#Class, fs_##Class##_rtti_array);                   \
    ::Velmor::QelCoRTTI const& Class::getRTTI() const { return cs_rtti; }                  \
    void* Class::narrowTo(::Velmor::QelCoRTTI const& target) {                             \
        if (&target == &cs_rtti) return static_cast<Class*>(this);                         \
        return Parent::narrowTo(target);                                                   \
    }                                                                                      \
    char const* Class::getClassName() const { return cs_rtti.name; }

#endif

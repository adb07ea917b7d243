// QelCoObject: the root of the library's class lattice.
//
// It has no data; it gives every class a type record, a checked narrowing without the
// language's type information, and its class name. Objects are owned by whoever made them
// (or by shared pointers, for QelCoCounted); its operations are safe on any thread that may
// use the object.
#ifndef VELMOR_CORE_QELCOOBJECT_H
#define VELMOR_CORE_QELCOOBJECT_H

#include <velmor/core/QelCoRTTI.h>

namespace Velmor {

class VELMOR_API QelCoObject {
public:
    QelCoObject() = default;
    QelCoObject(QelCoObject const&) = default;
    QelCoObject& operator=(QelCoObject const&) = default;
    virtual ~QelCoObject();

    // The record of the dynamic class.
    virtual QelCoRTTI const& getRTTI() const;
    // This object as a pointer to the class of `target`, or null when the object is not of
    // that class. Records are compared by address.
    virtual void* narrowTo(QelCoRTTI const& target);
    // The name of the most derived class that declares a record.
    virtual char const* getClassName() const;

    // narrowTo for a const object.
    void const* narrowConstTo(QelCoRTTI const& target) const;

    static QelCoRTTI cs_rtti;
};

}  // namespace Velmor

#endif

#include <velmor/core/QelCoObject.h>

namespace Velmor {

// The root names no parent.
static QelCoRTTI const* const fs_QelCoObject_rtti_array[] = {nullptr};
QelCoRTTI QelCoObject::cs_rtti("QelCoObject", fs_QelCoObject_rtti_array);

QelCoObject::~QelCoObject() {}

QelCoRTTI const& QelCoObject::getRTTI() const { return cs_rtti; }

void* QelCoObject::narrowTo(QelCoRTTI const& target) {
    return &target == &cs_rtti ? this : nullptr;
}

char const* QelCoObject::getClassName() const { return cs_rtti.name; }

void const* QelCoObject::narrowConstTo(QelCoRTTI const& target) const {
    return const_cast<QelCoObject*>(this)->narrowTo(target);
}

}  // namespace Velmor

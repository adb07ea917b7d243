#include <velmor/core/QelCoRTTI.h>

#include <velmor/core/QelCoClassCastException.h>
#include <velmor/core/QelCoObject.h>

namespace Velmor {

QelCoRTTI::QelCoRTTI(char const* className, QelCoRTTI const* const* parentRecords)
    : parents(parentRecords), name(className) {}

QelCoRTTI::~QelCoRTTI() {}

int QelCoRTTI::instanceOf(QelCoRTTI const& other) const {
    if (this == &other) return 1;
    if (parents == nullptr || parents[0] == nullptr) return 0;
    for (QelCoRTTI const* const* parent = parents; *parent != nullptr; ++parent) {
        if ((*parent)->instanceOf(other) == 1) return 1;
    }
    return 0;
}

void QelCoRTTI::cs_castFailed(void const* address, QelCoObject const* object,
                              QelCoRTTI const& target, char const* fileName, int line) {
    QelCoRTTI const& objectRTTI = object->getRTTI();
    throw QelCoClassCastException(fileName, line, objectRTTI, target, address);
}

}  // namespace Velmor

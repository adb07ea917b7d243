#include <velmor/thread/QelMtFirstCall.h>

namespace Velmor {

QelMtFirstCall::QelMtFirstCall() : m_done(0) {}

bool QelMtFirstCall::isFirst() {
    lock();
    if (m_done != 0) {
        unlock();
        return false;
    }
    m_done = 1;
    return true;
}

}  // namespace Velmor

#include <velmor/core/QelCoRuntimeException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoRuntimeException, QelCoException)

QelCoRuntimeException::QelCoRuntimeException(char const* fileName, int line)
    : QelCoException(fileName, line) {}
QelCoRuntimeException::QelCoRuntimeException(char const* className, char const* methodName)
    : QelCoException(className, methodName) {}
QelCoRuntimeException::QelCoRuntimeException(QelCoObject const* object, char const* methodName)
    : QelCoException(object, methodName) {}

QelCoRuntimeException::QelCoRuntimeException(QelCoTrace const& trace) : QelCoException(trace) {}

QelCoRuntimeException::QelCoRuntimeException(QelCoRuntimeException const& other)
    : QelCoException(other) {}

QelCoRuntimeException& QelCoRuntimeException::operator=(QelCoRuntimeException const& other) {
    if (this == &other) return *this;
    QelCoException::operator=(other);
    return *this;
}

QelCoRuntimeException::~QelCoRuntimeException() {}

void QelCoRuntimeException::setMsg(QelCoMsg* msg) const { setMsgHead(msg, QelMessageId[2]); }

}  // namespace Velmor

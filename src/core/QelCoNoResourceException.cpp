#include <velmor/core/QelCoNoResourceException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoNoResourceException, QelCoOperationFailureExceptionTrue)

QelCoNoResourceException::QelCoNoResourceException(char const* fileName, int line,
                                                   char const* resourceName)
    : QelCoOperationFailureExceptionTrue(fileName, line, resourceName) {}
QelCoNoResourceException::QelCoNoResourceException(char const* className, char const* methodName,
                                                   char const* resourceName)
    : QelCoOperationFailureExceptionTrue(className, methodName, resourceName) {}
QelCoNoResourceException::QelCoNoResourceException(QelCoObject const* object,
                                                   char const* methodName, char const* resourceName)
    : QelCoOperationFailureExceptionTrue(object, methodName, resourceName) {}

QelCoNoResourceException::QelCoNoResourceException(QelCoTrace const& trace,
                                                   char const* resourceName)
    : QelCoOperationFailureExceptionTrue(trace, resourceName) {}

QelCoNoResourceException::QelCoNoResourceException(QelCoNoResourceException const& other)
    : QelCoOperationFailureExceptionTrue(other) {}

QelCoNoResourceException& QelCoNoResourceException::operator=(
    QelCoNoResourceException const& other) {
    if (this == &other) return *this;
    QelCoOperationFailureExceptionTrue::operator=(other);
    return *this;
}

QelCoNoResourceException::~QelCoNoResourceException() {}

void QelCoNoResourceException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[9]);
    *msg << getFailedOperationName();
}

}  // namespace Velmor

#include <velmor/core/QelCoOutOfMemoryException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoOutOfMemoryException, QelCoOperationFailureExceptionTrue)

QelCoOutOfMemoryException::QelCoOutOfMemoryException(char const* fileName, int line)
    : QelCoOperationFailureExceptionTrue(fileName, line, "new") {}
QelCoOutOfMemoryException::QelCoOutOfMemoryException(char const* className, char const* methodName)
    : QelCoOperationFailureExceptionTrue(className, methodName, "new") {}
QelCoOutOfMemoryException::QelCoOutOfMemoryException(QelCoObject const* object,
                                                     char const* methodName)
    : QelCoOperationFailureExceptionTrue(object, methodName, "new") {}

QelCoOutOfMemoryException::QelCoOutOfMemoryException(QelCoTrace const& trace)
    : QelCoOperationFailureExceptionTrue(trace, "new") {}

QelCoOutOfMemoryException::QelCoOutOfMemoryException(QelCoOutOfMemoryException const& other)
    : QelCoOperationFailureExceptionTrue(other) {}

QelCoOutOfMemoryException& QelCoOutOfMemoryException::operator=(
    QelCoOutOfMemoryException const& other) {
    if (this == &other) return *this;
    QelCoOperationFailureExceptionTrue::operator=(other);
    return *this;
}

QelCoOutOfMemoryException::~QelCoOutOfMemoryException() {}

void QelCoOutOfMemoryException::setMsg(QelCoMsg* msg) const { setMsgHead(msg, QelMessageId[8]); }

}  // namespace Velmor

#include <velmor/core/QelCoSystemCallException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoSystemCallException, QelCoOperationFailureExceptionTrue)

QelCoSystemCallException::QelCoSystemCallException(char const* fileName, int line,
                                                   char const* systemCall, int errNo)
    : QelCoOperationFailureExceptionTrue(fileName, line, systemCall),
      m_qelCoSystemCallExceptionData(errNo) {}
QelCoSystemCallException::QelCoSystemCallException(char const* className, char const* methodName,
                                                   char const* systemCall, int errNo)
    : QelCoOperationFailureExceptionTrue(className, methodName, systemCall),
      m_qelCoSystemCallExceptionData(errNo) {}
QelCoSystemCallException::QelCoSystemCallException(QelCoObject const* object,
                                                   char const* methodName, char const* systemCall,
                                                   int errNo)
    : QelCoOperationFailureExceptionTrue(object, methodName, systemCall),
      m_qelCoSystemCallExceptionData(errNo) {}

QelCoSystemCallException::QelCoSystemCallException(QelCoTrace const& trace, char const* systemCall,
                                                   int errNo)
    : QelCoOperationFailureExceptionTrue(trace, systemCall),
      m_qelCoSystemCallExceptionData(errNo) {}

QelCoSystemCallException::QelCoSystemCallException(QelCoSystemCallException const& other)
    : QelCoOperationFailureExceptionTrue(other),
      m_qelCoSystemCallExceptionData(other.m_qelCoSystemCallExceptionData) {}

QelCoSystemCallException& QelCoSystemCallException::operator=(
    QelCoSystemCallException const& other) {
    if (this == &other) return *this;
    QelCoOperationFailureExceptionTrue::operator=(other);
    m_qelCoSystemCallExceptionData = other.m_qelCoSystemCallExceptionData;
    return *this;
}

QelCoSystemCallException::~QelCoSystemCallException() {}

void QelCoSystemCallException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[10]);
    *msg << getFailedOperationName() << getErrNo();
}

int QelCoSystemCallException::getErrNo() const { return m_qelCoSystemCallExceptionData.errNo; }

void QelCoSystemCallException::putTraceOn(QelCoTrace* trace) const {
    QelCoTrace& out = traceToPutOn(trace);
    out.do_arg("operation", getFailedOperationName(), 0);
    out.do_arg("errno", static_cast<long>(getErrNo()), 0);
}

}  // namespace Velmor

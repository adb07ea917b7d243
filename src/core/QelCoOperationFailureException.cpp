#include <velmor/core/QelCoOperationFailureException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoOperationFailureExceptionTrue, QelCoRuntimeException)

QelCoOperationFailureExceptionTrue::QelCoOperationFailureExceptionTrue(
    char const* fileName, int line, char const* failedOperationName)
    : QelCoRuntimeException(fileName, line),
      m_qelCoOperationFailureExceptionTrueData(failedOperationName) {}
QelCoOperationFailureExceptionTrue::QelCoOperationFailureExceptionTrue(
    char const* className, char const* methodName, char const* failedOperationName)
    : QelCoRuntimeException(className, methodName),
      m_qelCoOperationFailureExceptionTrueData(failedOperationName) {}
QelCoOperationFailureExceptionTrue::QelCoOperationFailureExceptionTrue(
    QelCoObject const* object, char const* methodName, char const* failedOperationName)
    : QelCoRuntimeException(object, methodName),
      m_qelCoOperationFailureExceptionTrueData(failedOperationName) {}

QelCoOperationFailureExceptionTrue::QelCoOperationFailureExceptionTrue(
    QelCoTrace const& trace, char const* failedOperationName)
    : QelCoRuntimeException(trace), m_qelCoOperationFailureExceptionTrueData(failedOperationName) {}

QelCoOperationFailureExceptionTrue::QelCoOperationFailureExceptionTrue(
    QelCoOperationFailureExceptionTrue const& other)
    : QelCoRuntimeException(other),
      m_qelCoOperationFailureExceptionTrueData(other.m_qelCoOperationFailureExceptionTrueData) {}

QelCoOperationFailureExceptionTrue& QelCoOperationFailureExceptionTrue::operator=(
    QelCoOperationFailureExceptionTrue const& other) {
    if (this == &other) return *this;
    QelCoRuntimeException::operator=(other);
    m_qelCoOperationFailureExceptionTrueData = other.m_qelCoOperationFailureExceptionTrueData;
    return *this;
}

QelCoOperationFailureExceptionTrue::~QelCoOperationFailureExceptionTrue() {}

void QelCoOperationFailureExceptionTrue::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[4]);
    *msg << getFailedOperationName();
}

static char const* const fs_qelCoFailedOperationName =
    "failed operation name lost due to memory shortage";

char const* QelCoOperationFailureExceptionTrue::getFailedOperationName() const {
    char const* name = m_qelCoOperationFailureExceptionTrueData.failedOperationName.get();
    return name != nullptr ? name : fs_qelCoFailedOperationName;
}

void QelCoOperationFailureExceptionTrue::putTraceOn(QelCoTrace* trace) const {
    traceToPutOn(trace).do_arg("operation", getFailedOperationName(), 0);
}

}  // namespace Velmor

#include <velmor/core/QelCoNullPointerException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoNullPointerException, QelCoLogicalException)

QelCoNullPointerException::QelCoNullPointerException(char const* fileName, int line,
                                                     char const* parameterName)
    : QelCoLogicalException(fileName, line), m_qelCoNullPointerExceptionData(parameterName) {}
QelCoNullPointerException::QelCoNullPointerException(char const* className, char const* methodName,
                                                     char const* parameterName)
    : QelCoLogicalException(className, methodName),
      m_qelCoNullPointerExceptionData(parameterName) {}
QelCoNullPointerException::QelCoNullPointerException(QelCoObject const* object,
                                                     char const* methodName,
                                                     char const* parameterName)
    : QelCoLogicalException(object, methodName), m_qelCoNullPointerExceptionData(parameterName) {}

QelCoNullPointerException::QelCoNullPointerException(QelCoTrace const& trace,
                                                     char const* parameterName)
    : QelCoLogicalException(trace), m_qelCoNullPointerExceptionData(parameterName) {}

QelCoNullPointerException::QelCoNullPointerException(QelCoNullPointerException const& other)
    : QelCoLogicalException(other),
      m_qelCoNullPointerExceptionData(other.m_qelCoNullPointerExceptionData) {}

QelCoNullPointerException& QelCoNullPointerException::operator=(
    QelCoNullPointerException const& other) {
    if (this == &other) return *this;
    QelCoLogicalException::operator=(other);
    m_qelCoNullPointerExceptionData = other.m_qelCoNullPointerExceptionData;
    return *this;
}

QelCoNullPointerException::~QelCoNullPointerException() {}

void QelCoNullPointerException::setMsg(QelCoMsg* msg) const {
    if (m_qelCoNullPointerExceptionData.parameterName.isNull()) {
        setMsgHead(msg, QelMessageId[5]);
        return;
    }
    setMsgHead(msg, QelMessageId[6]);
    *msg << getParameterName();
}

char const* QelCoNullPointerException::getParameterName() const {
    return m_qelCoNullPointerExceptionData.parameterName.get();
}

void QelCoNullPointerException::putTraceOn(QelCoTrace* trace) const {
    QelCoTrace& out = traceToPutOn(trace);
    if (getParameterName() != nullptr) out.do_arg("parameter", getParameterName(), 0);
}

}  // namespace Velmor

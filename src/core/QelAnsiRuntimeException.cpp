#include <velmor/core/QelAnsiRuntimeException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelAnsiRuntimeException, QelCoRuntimeException)

QelAnsiRuntimeException::QelAnsiRuntimeException(char const* fileName, int line,
                                                 std::exception const& exception)
    : QelCoRuntimeException(fileName, line), m_qelAnsiRuntimeExceptionData(exception.what()) {}
QelAnsiRuntimeException::QelAnsiRuntimeException(char const* className, char const* methodName,
                                                 std::exception const& exception)
    : QelCoRuntimeException(className, methodName),
      m_qelAnsiRuntimeExceptionData(exception.what()) {}
QelAnsiRuntimeException::QelAnsiRuntimeException(QelCoObject const* object, char const* methodName,
                                                 std::exception const& exception)
    : QelCoRuntimeException(object, methodName), m_qelAnsiRuntimeExceptionData(exception.what()) {}

QelAnsiRuntimeException::QelAnsiRuntimeException(std::exception const& exception)
    : QelCoRuntimeException(static_cast<char const*>(nullptr), static_cast<char const*>(nullptr)),
      m_qelAnsiRuntimeExceptionData(exception.what()) {}

QelAnsiRuntimeException::QelAnsiRuntimeException(QelCoTrace const& trace,
                                                 std::exception const& exception)
    : QelCoRuntimeException(trace), m_qelAnsiRuntimeExceptionData(exception.what()) {}

QelAnsiRuntimeException::QelAnsiRuntimeException(QelAnsiRuntimeException const& other)
    : QelCoRuntimeException(other),
      m_qelAnsiRuntimeExceptionData(other.m_qelAnsiRuntimeExceptionData) {}

QelAnsiRuntimeException& QelAnsiRuntimeException::operator=(QelAnsiRuntimeException const& other) {
    if (this == &other) return *this;
    QelCoRuntimeException::operator=(other);
    m_qelAnsiRuntimeExceptionData = other.m_qelAnsiRuntimeExceptionData;
    return *this;
}

QelAnsiRuntimeException::~QelAnsiRuntimeException() {}

void QelAnsiRuntimeException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[12]);
    *msg << getText();
}

char const* QelAnsiRuntimeException::getText() const {
    return m_qelAnsiRuntimeExceptionData.text.get();
}

void QelAnsiRuntimeException::putTraceOn(QelCoTrace* trace) const {
    traceToPutOn(trace).do_mark(getText(), 0);
}

}  // namespace Velmor

#include <velmor/core/QelAnsiLogicalException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelAnsiLogicalException, QelCoLogicalException)

QelAnsiLogicalException::QelAnsiLogicalException(char const* fileName, int line,
                                                 std::exception const& exception)
    : QelCoLogicalException(fileName, line), m_qelAnsiLogicalExceptionData(exception.what()) {}
QelAnsiLogicalException::QelAnsiLogicalException(char const* className, char const* methodName,
                                                 std::exception const& exception)
    : QelCoLogicalException(className, methodName),
      m_qelAnsiLogicalExceptionData(exception.what()) {}
QelAnsiLogicalException::QelAnsiLogicalException(QelCoObject const* object, char const* methodName,
                                                 std::exception const& exception)
    : QelCoLogicalException(object, methodName), m_qelAnsiLogicalExceptionData(exception.what()) {}

QelAnsiLogicalException::QelAnsiLogicalException(std::exception const& exception)
    : QelCoLogicalException(static_cast<char const*>(nullptr), static_cast<char const*>(nullptr)),
      m_qelAnsiLogicalExceptionData(exception.what()) {}

QelAnsiLogicalException::QelAnsiLogicalException(QelCoTrace const& trace,
                                                 std::exception const& exception)
    : QelCoLogicalException(trace), m_qelAnsiLogicalExceptionData(exception.what()) {}

QelAnsiLogicalException::QelAnsiLogicalException(QelAnsiLogicalException const& other)
    : QelCoLogicalException(other),
      m_qelAnsiLogicalExceptionData(other.m_qelAnsiLogicalExceptionData) {}

QelAnsiLogicalException& QelAnsiLogicalException::operator=(QelAnsiLogicalException const& other) {
    if (this == &other) return *this;
    QelCoLogicalException::operator=(other);
    m_qelAnsiLogicalExceptionData = other.m_qelAnsiLogicalExceptionData;
    return *this;
}

QelAnsiLogicalException::~QelAnsiLogicalException() {}

void QelAnsiLogicalException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[13]);
    *msg << getText();
}

char const* QelAnsiLogicalException::getText() const {
    return m_qelAnsiLogicalExceptionData.text.get();
}

void QelAnsiLogicalException::putTraceOn(QelCoTrace* trace) const {
    traceToPutOn(trace).do_mark(getText(), 0);
}

}  // namespace Velmor

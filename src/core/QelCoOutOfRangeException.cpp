#include <velmor/core/QelCoOutOfRangeException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>
#include <cstdio>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoOutOfRangeException, QelCoRuntimeException)

QelCoOutOfRangeException::QelCoOutOfRangeException(char const* fileName, int line,
                                                   char const* argName, long number)
    : QelCoRuntimeException(fileName, line), m_qelCoOutOfRangeExceptionData(argName, number) {}
QelCoOutOfRangeException::QelCoOutOfRangeException(char const* className, char const* methodName,
                                                   char const* argName, long number)
    : QelCoRuntimeException(className, methodName),
      m_qelCoOutOfRangeExceptionData(argName, number) {}
QelCoOutOfRangeException::QelCoOutOfRangeException(QelCoObject const* object,
                                                   char const* methodName, char const* argName,
                                                   long number)
    : QelCoRuntimeException(object, methodName), m_qelCoOutOfRangeExceptionData(argName, number) {}

QelCoOutOfRangeException::QelCoOutOfRangeException(QelCoTrace const& trace, char const* argName,
                                                   long number)
    : QelCoRuntimeException(trace), m_qelCoOutOfRangeExceptionData(argName, number) {}

QelCoOutOfRangeException::QelCoOutOfRangeException(QelCoOutOfRangeException const& other)
    : QelCoRuntimeException(other),
      m_qelCoOutOfRangeExceptionData(other.m_qelCoOutOfRangeExceptionData) {}

QelCoOutOfRangeException& QelCoOutOfRangeException::operator=(
    QelCoOutOfRangeException const& other) {
    if (this == &other) return *this;
    QelCoRuntimeException::operator=(other);
    m_qelCoOutOfRangeExceptionData = other.m_qelCoOutOfRangeExceptionData;
    return *this;
}

QelCoOutOfRangeException::~QelCoOutOfRangeException() {}

void QelCoOutOfRangeException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[53]);
    char number[32];
    std::snprintf(number, sizeof number, "%ld", getIllegalNumber());
    *msg << getArgName() << number;
}

static char const* const fs_argNameShortage = "lost argment name due to memory shortage";

char const* QelCoOutOfRangeException::getArgName() const {
    char const* name = m_qelCoOutOfRangeExceptionData.argName.get();
    return name != nullptr ? name : fs_argNameShortage;
}

long QelCoOutOfRangeException::getIllegalNumber() const {
    return m_qelCoOutOfRangeExceptionData.number;
}

void QelCoOutOfRangeException::putTraceOn(QelCoTrace* trace) const {
    QelCoTrace& out = traceToPutOn(trace);
    out.do_arg("arg", getArgName(), 0);
    out.do_arg("number", getIllegalNumber(), 0);
}

}  // namespace Velmor

#include <velmor/text/QelUtNumberFormatException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

static char const* const fs_illegalStringShortage = "illegal number lost due to memory shortage";

QEL_CO_DEFINE_EXCEPTION(QelUtNumberFormatException, QelCoLogicalException)

QelUtNumberFormatException::QelUtNumberFormatException(char const* fileName, int line,
                                                       char const* illegal)
    : QelCoLogicalException(fileName, line), m_qelUtNumberFormatExceptionData(illegal) {}

QelUtNumberFormatException::QelUtNumberFormatException(char const* className,
                                                       char const* methodName, char const* illegal)
    : QelCoLogicalException(className, methodName), m_qelUtNumberFormatExceptionData(illegal) {}

QelUtNumberFormatException::QelUtNumberFormatException(QelCoObject const* object,
                                                       char const* methodName, char const* illegal)
    : QelCoLogicalException(object, methodName), m_qelUtNumberFormatExceptionData(illegal) {}

QelUtNumberFormatException::QelUtNumberFormatException(QelCoTrace const& trace, char const* illegal)
    : QelCoLogicalException(trace), m_qelUtNumberFormatExceptionData(illegal) {}

QelUtNumberFormatException::QelUtNumberFormatException(QelUtNumberFormatException const& other)
    : QelCoLogicalException(other),
      m_qelUtNumberFormatExceptionData(other.m_qelUtNumberFormatExceptionData) {}

QelUtNumberFormatException& QelUtNumberFormatException::operator=(
    QelUtNumberFormatException const& other) {
    if (this == &other) return *this;
    QelCoLogicalException::operator=(other);
    m_qelUtNumberFormatExceptionData = other.m_qelUtNumberFormatExceptionData;
    return *this;
}

QelUtNumberFormatException::~QelUtNumberFormatException() {}

void QelUtNumberFormatException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[23]);
    *msg << getIllegalString();
}

void QelUtNumberFormatException::putTraceOn(QelCoTrace* trace) const {
    traceToPutOn(trace).do_arg("string", getIllegalString(), 0);
}

char const* QelUtNumberFormatException::getIllegalString() const {
    char const* text = m_qelUtNumberFormatExceptionData.illegalString.get();
    return text != nullptr ? text : fs_illegalStringShortage;
}

}  // namespace Velmor

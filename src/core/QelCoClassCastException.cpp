#include <velmor/core/QelCoClassCastException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>
#include <cstdint>
#include <cstdio>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoClassCastException, QelCoLogicalException)

QelCoClassCastException::QelCoClassCastException(char const* fileName, int line,
                                                 QelCoRTTI const& from, QelCoRTTI const& to,
                                                 void const* address)
    : QelCoLogicalException(fileName, line), m_qelCoClassCastExceptionData(&from, &to, address) {}

QelCoClassCastException::QelCoClassCastException(QelCoTrace const& trace, QelCoRTTI const& from,
                                                 QelCoRTTI const& to, void const* address)
    : QelCoLogicalException(trace), m_qelCoClassCastExceptionData(&from, &to, address) {}

QelCoClassCastException::QelCoClassCastException(QelCoClassCastException const& other)
    : QelCoLogicalException(other),
      m_qelCoClassCastExceptionData(other.m_qelCoClassCastExceptionData) {}

QelCoClassCastException& QelCoClassCastException::operator=(QelCoClassCastException const& other) {
    if (this == &other) return *this;
    QelCoLogicalException::operator=(other);
    m_qelCoClassCastExceptionData = other.m_qelCoClassCastExceptionData;
    return *this;
}

QelCoClassCastException::~QelCoClassCastException() {}

void QelCoClassCastException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[7]);
    char address[32];
    formatAddress(address, sizeof address);
    *msg << address << getFrom().name << getTo().name;
}

QelCoRTTI const& QelCoClassCastException::getFrom() const {
    return *m_qelCoClassCastExceptionData.from;
}

QelCoRTTI const& QelCoClassCastException::getTo() const {
    return *m_qelCoClassCastExceptionData.to;
}

void const* QelCoClassCastException::getAddress() const {
    return m_qelCoClassCastExceptionData.address;
}

void QelCoClassCastException::formatAddress(char* buffer, unsigned int size) const {
    std::snprintf(buffer, size, "0x%.8lx",
                  static_cast<unsigned long>(reinterpret_cast<std::uintptr_t>(getAddress())));
}

void QelCoClassCastException::putTraceOn(QelCoTrace* trace) const {
    QelCoTrace& out = traceToPutOn(trace);
    char address[32];
    formatAddress(address, sizeof address);
    out.do_arg("from", getFrom().name, 0);
    out.do_arg("to", getTo().name, 0);
    out.do_arg("address", address, 0);
}

}  // namespace Velmor

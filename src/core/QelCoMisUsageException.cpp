#include <velmor/core/QelCoMisUsageException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>
#include <cstdio>
#include <string>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoMisUsageException, QelCoRuntimeException)

QelCoMisUsageException::QelCoMisUsageException(char const* fileName, int line, QelCoMsg* msg)
    : QelCoRuntimeException(fileName, line), m_qelCoMisUsageExceptionData(msg) {}
QelCoMisUsageException::QelCoMisUsageException(char const* className, char const* methodName,
                                               QelCoMsg* msg)
    : QelCoRuntimeException(className, methodName), m_qelCoMisUsageExceptionData(msg) {}
QelCoMisUsageException::QelCoMisUsageException(QelCoObject const* object, char const* methodName,
                                               QelCoMsg* msg)
    : QelCoRuntimeException(object, methodName), m_qelCoMisUsageExceptionData(msg) {}

QelCoMisUsageException::QelCoMisUsageException(QelCoTrace const& trace, QelCoMsg* msg)
    : QelCoRuntimeException(trace), m_qelCoMisUsageExceptionData(msg) {}

QelCoMisUsageException::QelCoMisUsageException(QelCoMisUsageException const& other)
    : QelCoRuntimeException(other),
      m_qelCoMisUsageExceptionData(other.m_qelCoMisUsageExceptionData) {}

QelCoMisUsageException& QelCoMisUsageException::operator=(QelCoMisUsageException const& other) {
    if (this == &other) return *this;
    QelCoRuntimeException::operator=(other);
    m_qelCoMisUsageExceptionData = other.m_qelCoMisUsageExceptionData;
    return *this;
}

QelCoMisUsageException::~QelCoMisUsageException() {}

void QelCoMisUsageException::setMsg(QelCoMsg* msg) const {
    setMsgHead(msg, QelMessageId[11]);
    *msg << getText();
}

static char const* const fs_whatStrByMisExp = "do not know what happend";

QelCoMisUsageExceptionData::QelCoMisUsageExceptionData(QelCoMsg* msg) {
    try {
        if (msg->getMsgFormatter().isNull())
            msg->setMsgFormatter(QelCoException::cs_getMsgFormatter());
        std::string formatted = msg->format();
        if (!formatted.empty()) {
            text = QelCoExceptionString(formatted.c_str());
        } else if (msg->getDefaultMessage() != nullptr) {
            text = QelCoExceptionString(msg->getDefaultMessage());
        } else {
            char number[32];
            std::snprintf(number, sizeof number, "MessageID = %d", msg->getMsgId());
            text = QelCoExceptionString(number);
        }
    } catch (...) {
        // The text stays null and getText() falls back on its fixed text.
    }
}

char const* QelCoMisUsageException::getText() const {
    char const* text = m_qelCoMisUsageExceptionData.text.get();
    return text != nullptr ? text : fs_whatStrByMisExp;
}

void QelCoMisUsageException::putTraceOn(QelCoTrace* trace) const {
    traceToPutOn(trace).do_mark(getText(), 0);
}

}  // namespace Velmor

#include <velmor/core/QelCoException.h>

#include <cstdio>
#include <cstring>
#include <string>

#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoMsgFormatter.h>
#include <velmor/core/QelCoStderrMsgFormatter.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>
#include <velmor/thread/QelComtLocker.h>

namespace Velmor {

static char const* const fs_whatStrByExp = "do not know what happened due to memory shortage";
static char const* const fs_whereStrByExp =
    "exception location information lost due to memory shortage";

// The formatter of every exception's what(); made by the first exception of the process.
static QelCoTSharedPtr<QelCoMsgFormatter> fs_msgFormatter;
static QelComtLockable fs_exceptionMfLock;

QEL_CO_DEFINE_RTTI(QelCoException, QelCoObject)

// Installs the default formatter if there is none. Never throws.
static void fs_ensureDefaultMsgFormatter() {
    try {
        QelComtLocker locker(&fs_exceptionMfLock);
        if (fs_msgFormatter.isNull()) {
            try {
                fs_msgFormatter = new QelCoStderrMsgFormatter();
            } catch (std::exception const&) {
                fs_msgFormatter = nullptr;
            }
        }
    } catch (...) {
        // Without a formatter, what() falls back on the default text.
    }
}

QelCoExceptionData::QelCoExceptionData(char const* file, int lineNumber, char const* classText,
                                       char const* methodText)
    : fileName(file), line(lineNumber), className(classText), methodName(methodText) {
    fs_ensureDefaultMsgFormatter();
}

QelCoExceptionData::QelCoExceptionData(QelCoExceptionData const& other)
    : fileName(other.fileName),
      line(other.line),
      className(other.className),
      methodName(other.methodName) {
    fs_ensureDefaultMsgFormatter();
}

QelCoExceptionData& QelCoExceptionData::operator=(QelCoExceptionData const& other) {
    if (this == &other) return *this;
    fileName = other.fileName;
    line = other.line;
    className = other.className;
    methodName = other.methodName;
    what.adopt(nullptr);
    where.adopt(nullptr);
    return *this;
}

QelCoExceptionData::~QelCoExceptionData() {}

QelCoException::QelCoException(char const* fileName, int line)
    : m_data(fileName, line, nullptr, nullptr) {}

QelCoException::QelCoException(char const* className, char const* methodName)
    : m_data(nullptr, 0, className, methodName) {}

QelCoException::QelCoException(QelCoObject const* object, char const* methodName)
    : m_data(nullptr, 0, object->getClassName(), methodName) {}

QelCoException::QelCoException(QelCoTrace const& trace)
    : m_data(nullptr, 0, trace.getClassName(), trace.getMethodName()) {}

QelCoException::QelCoException(QelCoException const& other)
    : QelCoObject(other), m_data(other.m_data) {}

QelCoException& QelCoException::operator=(QelCoException const& other) {
    m_data = other.m_data;
    return *this;
}

QelCoException::~QelCoException() {}

QelCoException* QelCoException::duplicate() const {
    try {
        return new QelCoException(*this);
    } catch (std::exception const&) {
        return nullptr;
    }
}

void QelCoException::raise() const { throw *this; }

void QelCoException::setMsgHead(QelCoMsg* msg, QelCoMsgId const& id) const {
    if (msg->getMsgFormatter().isNull()) msg->setMsgFormatter(cs_getMsgFormatter());
    msg->setMsgId(id);
    *msg << where();
    *msg << getClassName();
}

void QelCoException::setMsg(QelCoMsg* msg) const { setMsgHead(msg, QelMessageId[1]); }

void QelCoException::putTraceOn(QelCoTrace* trace) const { traceToPutOn(trace); }

QelCoTrace& QelCoException::traceToPutOn(QelCoTrace* trace) const {
    if (trace == nullptr) g_qelCoNullCheckFailed(this, "putTraceOn", "pTrace");
    return *trace;
}

char const* QelCoException::what() const {
    if (!m_data.what.isNull()) return m_data.what.get();
    try {
        QelCoMsg msg;
        setMsg(&msg);
        char const* defaultText = msg.getDefaultMessage();
        if (!msg.getMsgFormatter().isNull()) {
            std::string text = msg.format();
            if (!text.empty()) {
                m_data.what = QelCoExceptionString(text.c_str());
            } else if (defaultText != nullptr) {
                m_data.what = QelCoExceptionString(defaultText);
            }
        } else if (defaultText != nullptr) {
            m_data.what = QelCoExceptionString(defaultText);
        } else {
            char number[32];
            std::snprintf(number, sizeof number, "MessageID=%d", msg.getMsgId());
            m_data.what = QelCoExceptionString(number);
        }
    } catch (...) {
        // Falls back on the fixed text below.
    }
    return m_data.what.isNull() ? fs_whatStrByExp : m_data.what.get();
}

char const* QelCoException::where() const {
    if (!m_data.where.isNull()) return m_data.where.get();
    char const* file = m_data.fileName.get();
    char const* className = m_data.className.get();
    char const* methodName = m_data.methodName.get();
    try {
        if (file != nullptr) {
            char number[16];
            std::snprintf(number, sizeof number, "%d", m_data.line);
            std::size_t size = std::strlen(file) + std::strlen(number) + 3;
            char* text = new char[size];
            std::snprintf(text, size, "%s(%s)", file, number);
            m_data.where.adopt(text);
        } else if (className == nullptr && methodName == nullptr) {
            return fs_whereStrByExp;
        } else {
            std::size_t size = (className ? std::strlen(className) : 0) +
                               (methodName ? std::strlen(methodName) : 0) + 5;
            char* text = new char[size];
            text[0] = '\0';
            if (className != nullptr) {
                std::strcat(text, className);
                std::strcat(text, "::");
            }
            if (methodName != nullptr) {
                std::strcat(text, methodName);
                std::strcat(text, "()");
            }
            m_data.where.adopt(text);
        }
    } catch (std::exception const&) {
        return fs_whereStrByExp;
    }
    return m_data.where.get();
}

void QelCoException::cs_setMsgFormatter(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter) {
    try {
        QelComtLocker locker(&fs_exceptionMfLock);
        fs_msgFormatter = formatter;
    } catch (...) {
        // Setting the formatter lets no exception out.
    }
}

QelCoTSharedPtr<QelCoMsgFormatter> QelCoException::cs_getMsgFormatter() {
    try {
        QelComtLocker locker(&fs_exceptionMfLock);
        return fs_msgFormatter;
    } catch (...) {
        return QelCoTSharedPtr<QelCoMsgFormatter>();
    }
}

std::ostream& operator<<(std::ostream& stream, QelCoException const& exception) {
    return stream << exception.what();
}

}  // namespace Velmor

#include <velmor/core/QelCoTrace.h>

#include <velmor/core/QelCoException.h>
#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoObject.h>

namespace Velmor {

// Process-wide settings; plain variables, set while no frames are open.
static QelCoTraceFormatter* fs_pFormatter = nullptr;
static int fs_threshold = QelCoTrace::cs_thresholdOff;
static int fs_outCallStackFlg = 0;

static bool fs_sends(QelCoTraceData const& data, int level) {
    return data.threshold <= level && data.formatter != nullptr;
}

// Fills the frame and sends `enter` if `level` passes the threshold. A frame not entered while
// the call-stack flag is on still owes its `exit`: `entered` is then 2.
static void fs_open(QelCoTraceData& data, QelCoTraceFormatter* formatter, char const* className,
                    char const* methodName, int threshold, int level) {
    data.formatter = formatter;
    data.className = className;
    data.calledClassName = nullptr;
    data.methodName = methodName;
    data.calledMethodName = nullptr;
    // Without a formatter nothing can be sent, whatever the levels.
    data.threshold = formatter != nullptr ? threshold : QelCoTrace::cs_thresholdOff;
    data.entered = fs_outCallStackFlg != 0 ? 2 : 0;
    data.callLevel = 0;
    if (!fs_sends(data, level)) return;
    if (className != nullptr) {
        formatter->enter(className, methodName);
    } else {
        formatter->enter(methodName);
    }
    data.entered = 1;
}

static int fs_quieterThreshold(int threshold) {
    return threshold > fs_threshold ? threshold : fs_threshold;
}

static char const* fs_classNameOf(QelCoObject const* object) {
    if (object == nullptr) g_qelCoNullCheckFailed("QelCoTraceData", "QelCoTraceData", "pObject");
    return object->getClassName();
}

static QelCoTraceFormatter* fs_formatterOr(QelCoTraceFormatter* formatter) {
    return formatter != nullptr ? formatter : fs_pFormatter;
}

void QelCoTrace::do_construct(QelCoTraceFormatter* formatter, QelCoObject const* object,
                              char const* methodName, int threshold, int level) {
    fs_open(m_data, fs_formatterOr(formatter), fs_classNameOf(object), methodName, threshold,
            level);
}

void QelCoTrace::do_construct(QelCoTraceFormatter* formatter, char const* className,
                              char const* methodName, int threshold, int level) {
    fs_open(m_data, fs_formatterOr(formatter), className, methodName, threshold, level);
}

void QelCoTrace::do_construct(QelCoTraceFormatter* formatter, char const* methodName, int threshold,
                              int level) {
    fs_open(m_data, fs_formatterOr(formatter), nullptr, methodName, threshold, level);
}

void QelCoTrace::do_construct(QelCoObject const* object, char const* methodName, int threshold,
                              int level) {
    fs_open(m_data, fs_pFormatter, fs_classNameOf(object), methodName,
            fs_quieterThreshold(threshold), level);
}

void QelCoTrace::do_construct(char const* className, char const* methodName, int threshold,
                              int level) {
    fs_open(m_data, fs_pFormatter, className, methodName, fs_quieterThreshold(threshold), level);
}

void QelCoTrace::do_construct(char const* methodName, int threshold, int level) {
    fs_open(m_data, fs_pFormatter, nullptr, methodName, fs_quieterThreshold(threshold), level);
}

void QelCoTrace::do_construct(QelCoTrace const& other) { m_data = other.m_data; }

void QelCoTrace::do_assign(QelCoTrace const& other) {
    if (this != &other) m_data = other.m_data;
}

void QelCoTrace::do_destruct() {
    if (m_data.formatter == nullptr) return;
    if (fs_outCallStackFlg == 0 && m_data.entered != 1) return;
    if (m_data.className != nullptr) {
        m_data.formatter->exit(m_data.className, m_data.methodName);
    } else {
        m_data.formatter->exit(m_data.methodName);
    }
}

void QelCoTrace::do_arg(char const* name, long value, int level) {
    if (fs_sends(m_data, level)) m_data.formatter->arg(name, value);
}

void QelCoTrace::do_arg(char const* name, std::string const& value, int level) {
    if (fs_sends(m_data, level)) m_data.formatter->arg(name, value);
}

void QelCoTrace::do_arg(char const* name, char const* value, int level) {
    if (fs_sends(m_data, level))
        m_data.formatter->arg(name, value != nullptr ? std::string(value) : std::string());
}

void QelCoTrace::do_argByteArray(char const* name, void const* bytes, unsigned int length,
                                 int level) {
    if (fs_sends(m_data, level)) m_data.formatter->arg(name, bytes, length);
}

void QelCoTrace::do_call(QelCoObject const* object, char const* methodName, int level) {
    if (object == nullptr) g_qelCoNullCheckFailed("QelCoTrace", "do_call", "pObject");
    do_call(object->getClassName(), methodName, level);
}

void QelCoTrace::do_call(char const* className, char const* methodName, int level) {
    m_data.calledClassName = className;
    m_data.calledMethodName = methodName;
    m_data.callLevel = level;
    if (!fs_sends(m_data, level)) return;
    if (className != nullptr) {
        m_data.formatter->call(className, methodName);
    } else {
        m_data.formatter->call(methodName);
    }
}

void QelCoTrace::do_call(char const* methodName, int level) {
    do_call(static_cast<char const*>(nullptr), methodName, level);
}

void QelCoTrace::do_return() {
    if (!fs_sends(m_data, m_data.callLevel)) return;
    if (m_data.calledClassName != nullptr) {
        m_data.formatter->returned(m_data.calledClassName, m_data.calledMethodName);
    } else {
        m_data.formatter->returned(m_data.calledMethodName);
    }
}

void QelCoTrace::do_mark(char const* text, int level) {
    if (fs_sends(m_data, level)) m_data.formatter->mark(text);
}

void QelCoTrace::do_time(char const* text, int level) {
    if (fs_sends(m_data, level)) m_data.formatter->time(text);
}

void QelCoTrace::do_error(char const* text, int level) {
    if (fs_sends(m_data, level)) m_data.formatter->error(text);
}

void QelCoTrace::do_warn(char const* text, int level) {
    if (fs_sends(m_data, level)) m_data.formatter->warn(text);
}

void QelCoTrace::do_caught(QelCoException const& exception, int level) {
    if (!fs_sends(m_data, level)) return;
    m_data.formatter->mark("Exception Begin");
    m_data.formatter->exception(QelCoTraceFormatter::qellibGroup, exception.getClassName());
    exception.putTraceOn(this);
    m_data.formatter->mark("Exception End");
}

void QelCoTrace::do_caught(std::exception const& exception, int level) {
    if (!fs_sends(m_data, level)) return;
    m_data.formatter->mark("Exception Begin");
    m_data.formatter->exception(QelCoTraceFormatter::stdlibGroup, exception.what());
    m_data.formatter->mark("Exception End");
}

void QelCoTrace::do_flush() {
    if (m_data.formatter != nullptr) m_data.formatter->flush();
}

char const* QelCoTrace::getClassName() const { return m_data.className; }

char const* QelCoTrace::getMethodName() const { return m_data.methodName; }

void QelCoTrace::cs_enableTrace(QelCoTraceFormatter* formatter, int threshold) {
    if (formatter == nullptr) g_qelCoNullCheckFailed("QelCoTrace", "cs_enableTrace", "pFormatter");
    fs_pFormatter = formatter;
    fs_threshold = threshold;
}

void QelCoTrace::cs_disableTrace() { fs_threshold = cs_thresholdOff; }

void QelCoTrace::cs_enableOutCallStack() { fs_outCallStackFlg = 1; }

void QelCoTrace::cs_disableOutCallStack() { fs_outCallStackFlg = 0; }

}  // namespace Velmor

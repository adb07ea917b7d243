#include <velmor/core/QelCoTrace.h>

#include <velmor/core/QelCoException.h>
#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoObject.h>

namespace Velmor {

// Process-wide settings; plain variables, set while no frames are open.
static QelCoTraceFormatter* fs_pFormatter = nullptr;
static int fs_threshold = QelCoTrace::cs_thresholdOff;
static int fs_outCallStackFlg = 0;

void QelCoTrace::fill(QelCoTraceFormatter* formatter, char const* className, char const* methodName,
                      int threshold) {
    m_data.formatter = formatter;
    m_data.className = className;
    m_data.calledClassName = nullptr;
    m_data.methodName = methodName;
    m_data.calledMethodName = nullptr;
    // Without a formatter nothing can be sent, whatever the levels.
    m_data.threshold = formatter != nullptr ? threshold : cs_thresholdOff;
    m_data.entered = 0;
    m_data.callLevel = 0;
}

bool QelCoTrace::sends(int level) const {
    return m_data.threshold <= level && m_data.formatter != nullptr;
}

void QelCoTrace::open(int level) {
    if (!sends(level))
        return;
    if (m_data.className != nullptr) {
        m_data.formatter->enter(m_data.className, m_data.methodName);
    } else {
        m_data.formatter->enter(m_data.methodName);
    }
    m_data.entered = 1;
}

static int fs_quieterThreshold(int threshold) {
    return threshold > fs_threshold ? threshold : fs_threshold;
}

static char const* fs_classNameOf(QelCoObject const* object) {
    if (object == nullptr)
        g_qelCoNullCheckFailed("QelCoTraceData", "QelCoTraceData", "pObject");
    return object->getClassName();
}

void QelCoTrace::do_construct(QelCoTraceFormatter* formatter, QelCoObject const* object,
                              char const* methodName, int threshold, int level) {
    do_construct(formatter, fs_classNameOf(object), methodName, threshold, level);
}

void QelCoTrace::do_construct(QelCoTraceFormatter* formatter, char const* className,
                              char const* methodName, int threshold, int level) {
    fill(formatter != nullptr ? formatter : fs_pFormatter, className, methodName, threshold);
    open(level);
}

void QelCoTrace::do_construct(QelCoTraceFormatter* formatter, char const* methodName, int threshold,
                              int level) {
    do_construct(formatter, static_cast<char const*>(nullptr), methodName, threshold, level);
}

void QelCoTrace::do_construct(QelCoObject const* object, char const* methodName, int threshold,
                              int level) {
    do_construct(fs_classNameOf(object), methodName, threshold, level);
}

void QelCoTrace::do_construct(char const* className, char const* methodName, int threshold,
                              int level) {
    fill(fs_pFormatter, className, methodName, fs_quieterThreshold(threshold));
    open(level);
}

void QelCoTrace::do_construct(char const* methodName, int threshold, int level) {
    do_construct(static_cast<char const*>(nullptr), methodName, threshold, level);
}

void QelCoTrace::do_construct(QelCoTrace const& other) {
    m_data = other.m_data;
}

void QelCoTrace::do_assign(QelCoTrace const& other) {
    if (this != &other)
        m_data = other.m_data;
}

void QelCoTrace::do_destruct() {
    if (m_data.formatter == nullptr)
        return;
    if (fs_outCallStackFlg == 0 && m_data.entered != 1)
        return;
    if (m_data.className != nullptr) {
        m_data.formatter->exit(m_data.className, m_data.methodName);
    } else {
        m_data.formatter->exit(m_data.methodName);
    }
}

void QelCoTrace::do_arg(char const* name, long value, int level) {
    if (sends(level))
        m_data.formatter->arg(name, value);
}

void QelCoTrace::do_arg(char const* name, std::string const& value, int level) {
    if (sends(level))
        m_data.formatter->arg(name, value);
}

void QelCoTrace::do_arg(char const* name, char const* value, int level) {
    if (sends(level))
        m_data.formatter->arg(name, value != nullptr ? std::string(value) : std::string());
}

void QelCoTrace::do_argByteArray(char const* name, void const* bytes, unsigned int length,
                                 int level) {
    if (sends(level))
        m_data.formatter->arg(name, bytes, length);
}

void QelCoTrace::do_call(QelCoObject const* object, char const* methodName, int level) {
    if (object == nullptr)
        g_qelCoNullCheckFailed("QelCoTrace", "do_call", "pObject");
    do_call(object->getClassName(), methodName, level);
}

void QelCoTrace::do_call(char const* className, char const* methodName, int level) {
    m_data.calledClassName = className;
    m_data.calledMethodName = methodName;
    m_data.callLevel = level;
    if (!sends(level))
        return;
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
    if (!sends(m_data.callLevel))
        return;
    if (m_data.calledClassName != nullptr) {
        m_data.formatter->returned(m_data.calledClassName, m_data.calledMethodName);
    } else {
        m_data.formatter->returned(m_data.calledMethodName);
    }
}

void QelCoTrace::do_mark(char const* text, int level) {
    if (sends(level))
        m_data.formatter->mark(text);
}

void QelCoTrace::do_time(char const* text, int level) {
    if (sends(level))
        m_data.formatter->time(text);
}

void QelCoTrace::do_error(char const* text, int level) {
    if (sends(level))
        m_data.formatter->error(text);
}

void QelCoTrace::do_warn(char const* text, int level) {
    if (sends(level))
        m_data.formatter->warn(text);
}

void QelCoTrace::do_caught(QelCoException const& exception, int level) {
    if (!sends(level))
        return;
    m_data.formatter->mark("Exception Begin");
    m_data.formatter->exception(QelCoTraceFormatter::qellibGroup, exception.getClassName());
    exception.putTraceOn(this);
    m_data.formatter->mark("Exception End");
}

void QelCoTrace::do_caught(std::exception const& exception, int level) {
    if (!sends(level))
        return;
    m_data.formatter->mark("Exception Begin");
    m_data.formatter->exception(QelCoTraceFormatter::stdlibGroup, exception.what());
    m_data.formatter->mark("Exception End");
}

void QelCoTrace::do_flush() {
    if (m_data.formatter != nullptr)
        m_data.formatter->flush();
}

char const* QelCoTrace::getClassName() const {
    return m_data.className;
}

char const* QelCoTrace::getMethodName() const {
    return m_data.methodName;
}

void QelCoTrace::cs_enableTrace(QelCoTraceFormatter* formatter, int threshold) {
    if (formatter == nullptr)
        g_qelCoNullCheckFailed("QelCoTrace", "cs_enableTrace", "pFormatter");
    fs_pFormatter = formatter;
    fs_threshold = threshold;
}

void QelCoTrace::cs_disableTrace() {
    fs_threshold = cs_thresholdOff;
}

void QelCoTrace::cs_enableOutCallStack() {
    fs_outCallStackFlg = 1;
}

void QelCoTrace::cs_disableOutCallStack() {
    fs_outCallStackFlg = 0;
}

}  // namespace Velmor

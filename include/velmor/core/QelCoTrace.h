// QelCoTrace: one traced frame of an application function, and the process-wide trace settings.
//
// Place a QelCoTrace at the top of a function: its construction sends `enter`, its destruction
// `exit`, and in between it sends arguments, calls, marks, errors and caught exceptions. Every
// event has a level and reaches the formatter only if the frame's threshold is at most that
// level; below the threshold an event costs one integer comparison and allocates nothing.
// The names given (class, method, argument names) are kept by pointer, never copied: pass
// literals, or texts that outlive the frame. A trace object lives on one thread's stack; the
// settings (cs_enableTrace and friends) take no lock and are meant to be set at start-up.
//
// Usage:
//
//     QelCoTextOstreamTraceFormatter formatter(&std::clog, 0);
//     QelCoTrace::cs_enableTrace(&formatter, 1);       // events of level 1 and up
//
//     int Parser::parse(std::string const& text) {
//         QelCoTrace trace(this, "parse");             // Parser is a QelCoObject:
//                                                      // "enter Parser::parse()"
//         trace.arg("text", text);                     // "arg text ..."
//         trace.call("Lexer", "split");                // "call Lexer::split()"
//         int n = lexer.split(text);
//         trace.returned();                            // "return Lexer::split()"
//         if (n == 0)
//             trace.warn("nothing to parse", 2);
//         return n;
//     }                                                // "exit Parser::parse()"
//
// The macros QEL_TRACE_FRAME(...) and QEL_TRACE(event) do the same and compile to nothing when
// VELMOR_NO_TRACE is defined:
//
//     QEL_TRACE_FRAME(this, "parse");
//     QEL_TRACE(arg("text", text));
#ifndef VELMOR_CORE_QELCOTRACE_H
#define VELMOR_CORE_QELCOTRACE_H

#include <exception>
#include <string>

#include <velmor/core/QelCoExport.h>
#include <velmor/core/QelCoTraceFormatter.h>

namespace Velmor {

class QelCoException;
class QelCoObject;

// The state of one frame. The names are borrowed pointers.
struct VELMOR_API QelCoTraceData {
    QelCoTraceFormatter* formatter;
    char const* className;        // null if the traced function has no class
    char const* calledClassName;  // class of the last call, null if none
    char const* methodName;
    char const* calledMethodName;
    int threshold;  // events below this level are dropped
    int entered;    // 1 once `enter` has been sent; 2 if not, but `exit` is owed anyway
    int callLevel;  // level of the last call
};

class VELMOR_API QelCoTrace {
public:
    // The level the event wrappers use when none is given.
    static constexpr int cs_defaultLevel = 1;
    // The threshold of a silent frame, and of the process while tracing is off.
    static constexpr int cs_thresholdOff = 0x7fffffff;

    // Frames on the process's formatter and threshold. `level` is the level of `enter` and
    // `exit`; a given `threshold` can only make the frame quieter than the process setting.
    // A null `object` throws QelCoNullPointerException.
    QelCoTrace(QelCoObject const* object, char const* methodName, int level = cs_defaultLevel) {
        do_construct(object, methodName, cs_thresholdNone, level);
    }
    QelCoTrace(char const* className, char const* methodName, int level = cs_defaultLevel) {
        do_construct(className, methodName, cs_thresholdNone, level);
    }
    explicit QelCoTrace(char const* methodName, int level = cs_defaultLevel) {
        do_construct(methodName, cs_thresholdNone, level);
    }
    QelCoTrace(QelCoObject const* object, char const* methodName, int threshold, int level) {
        do_construct(object, methodName, threshold, level);
    }
    QelCoTrace(char const* className, char const* methodName, int threshold, int level) {
        do_construct(className, methodName, threshold, level);
    }
    QelCoTrace(char const* methodName, int threshold, int level) {
        do_construct(methodName, threshold, level);
    }
    // Frames on their own formatter (the process's if null) and exactly their own threshold.
    QelCoTrace(QelCoTraceFormatter* formatter, QelCoObject const* object, char const* methodName,
               int threshold, int level) {
        do_construct(formatter, object, methodName, threshold, level);
    }
    QelCoTrace(QelCoTraceFormatter* formatter, char const* className, char const* methodName,
               int threshold, int level) {
        do_construct(formatter, className, methodName, threshold, level);
    }
    QelCoTrace(QelCoTraceFormatter* formatter, char const* methodName, int threshold, int level) {
        do_construct(formatter, methodName, threshold, level);
    }
    // A copy sends nothing now and closes like its source.
    QelCoTrace(QelCoTrace const& other) { do_construct(other); }
    QelCoTrace& operator=(QelCoTrace const& other) {
        do_assign(other);
        return *this;
    }
    // Sends `exit` if `enter` was sent, or always while cs_enableOutCallStack is in force.
    // A frame that owes no `exit` closes without a call.
    ~QelCoTrace() {
        if (m_data.entered != 0) do_destruct();
    }

    // Event wrappers: each sends its event if the frame's threshold is at most `level`.
    void arg(char const* name, long value, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_arg(name, value, level);
    }
    void arg(char const* name, int value, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_arg(name, static_cast<long>(value), level);
    }
    void arg(char const* name, std::string const& value, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_arg(name, value, level);
    }
    // A null `value` is sent as an empty text.
    void arg(char const* name, char const* value, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_arg(name, value, level);
    }
    void argBytes(char const* name, void const* bytes, unsigned int length,
                  int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_argByteArray(name, bytes, length, level);
    }
    // Records a call (always, so that returned() can name it) and sends it at `level`.
    void call(QelCoObject const* object, char const* methodName, int level = cs_defaultLevel) {
        do_call(object, methodName, level);
    }
    void call(char const* className, char const* methodName, int level = cs_defaultLevel) {
        do_call(className, methodName, level);
    }
    void call(char const* methodName, int level = cs_defaultLevel) { do_call(methodName, level); }
    // The last call has returned; sent at the level of that call.
    void returned() {
        if (m_data.threshold <= m_data.callLevel) do_return();
    }
    void mark(char const* text, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_mark(text, level);
    }
    void time(char const* text, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_time(text, level);
    }
    void error(char const* text, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_error(text, level);
    }
    void warn(char const* text, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_warn(text, level);
    }
    // A caught exception, between the marks "Exception Begin" and "Exception End"; a library
    // exception adds its own fields as events of level 0.
    void caught(QelCoException const& exception, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_caught(exception, level);
    }
    void caught(std::exception const& exception, int level = cs_defaultLevel) {
        if (m_data.threshold <= level) do_caught(exception, level);
    }
    void flush() { do_flush(); }

    // The bodies of the wrappers. The forms without a formatter use the process's formatter
    // and the larger of the process threshold and `threshold`; the forms with one use it (or
    // the process's if it is null) and `threshold` unchanged. A frame with no formatter at
    // hand sends nothing.
    void do_construct(QelCoTraceFormatter* formatter, QelCoObject const* object,
                      char const* methodName, int threshold, int level);
    void do_construct(QelCoTraceFormatter* formatter, char const* className, char const* methodName,
                      int threshold, int level);
    void do_construct(QelCoTraceFormatter* formatter, char const* methodName, int threshold,
                      int level);
    void do_construct(QelCoObject const* object, char const* methodName, int threshold, int level);
    void do_construct(char const* className, char const* methodName, int threshold, int level);
    void do_construct(char const* methodName, int threshold, int level);
    void do_construct(QelCoTrace const& other);
    void do_assign(QelCoTrace const& other);
    void do_destruct();

    void do_arg(char const* name, long value, int level);
    void do_arg(char const* name, std::string const& value, int level);
    void do_arg(char const* name, char const* value, int level);
    void do_argByteArray(char const* name, void const* bytes, unsigned int length, int level);
    // A null `object` throws QelCoNullPointerException.
    void do_call(QelCoObject const* object, char const* methodName, int level);
    void do_call(char const* className, char const* methodName, int level);
    void do_call(char const* methodName, int level);
    void do_return();
    void do_mark(char const* text, int level);
    void do_time(char const* text, int level);
    void do_error(char const* text, int level);
    void do_warn(char const* text, int level);
    void do_caught(QelCoException const& exception, int level);
    void do_caught(std::exception const& exception, int level);
    // Flushes the formatter whatever the threshold.
    void do_flush();

    // The traced class (null if none) and method.
    char const* getClassName() const;
    char const* getMethodName() const;

    // Sets the process's formatter and threshold for frames opened from now on. A null
    // formatter throws QelCoNullPointerException. The formatter must outlive those frames.
    static void cs_enableTrace(QelCoTraceFormatter* formatter, int threshold);
    // Turns tracing off for frames opened from now on; the formatter stays set.
    static void cs_disableTrace();
    // While on, every frame sends `exit` when it closes, entered or not, so that the frames an
    // exception unwinds are all seen. Needs a formatter set by cs_enableTrace.
    static void cs_enableOutCallStack();
    static void cs_disableOutCallStack();

protected:
    // A silent frame, for derived classes that open it with do_construct.
    QelCoTrace() : m_data{nullptr, nullptr, nullptr, nullptr, nullptr, cs_thresholdOff, 0, 0} {}

private:
    // The threshold that leaves the process setting alone.
    static constexpr int cs_thresholdNone = -0x7fffffff - 1;

    QelCoTraceData m_data;
};

}  // namespace Velmor

#if defined(VELMOR_NO_TRACE)
#define QEL_TRACE_FRAME(...) static_cast<void>(0)
#define QEL_DEVELOPERS_TRACE_FRAME(...) static_cast<void>(0)
#define QEL_TRACE(event) static_cast<void>(0)
#else
// Opens the frame of the enclosing block, with the arguments of a QelCoTrace constructor.
#define QEL_TRACE_FRAME(...) ::Velmor::QelCoTrace qelTraceFrame(__VA_ARGS__)
// The same with a QelCoDevelopersTrace (include <velmor/core/QelCoDevelopersTrace.h>).
#define QEL_DEVELOPERS_TRACE_FRAME(...) ::Velmor::QelCoDevelopersTrace qelTraceFrame(__VA_ARGS__)
// Sends an event on the enclosing frame, e.g. QEL_TRACE(arg("n", n)).
#define QEL_TRACE(event) qelTraceFrame.event
#endif

#endif

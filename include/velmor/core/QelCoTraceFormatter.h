// QelCoTraceFormatter: the destination of trace events, turning each into a destination's form
// (text lines, binary records, per-thread selection).
//
// It has no data and only the 17 events. Its destructor is not virtual: a formatter is made and
// destroyed through its own class by whoever set it up, and must outlive every frame that uses
// it. A formatter is shared by all frames of a process and takes no lock unless its class says so.
#ifndef VELMOR_CORE_QELCOTRACEFORMATTER_H
#define VELMOR_CORE_QELCOTRACEFORMATTER_H

#include <string>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCoTraceFormatter {
public:
    // Where a caught exception comes from; printed as "stdlib", "qellib", "userlib".
    enum exceptionGroup { stdlibGroup = 0, qellibGroup = 1, userlibGroup = 2 };

    // A frame opens: its class and method, or the method alone.
    virtual void enter(char const* className, char const* methodName) = 0;
    virtual void enter(char const* methodName) = 0;
    // A frame closes.
    virtual void exit(char const* className, char const* methodName) = 0;
    virtual void exit(char const* methodName) = 0;
    // A named value: a number, a text, or `length` raw bytes.
    virtual void arg(char const* name, long value) = 0;
    virtual void arg(char const* name, std::string const& value) = 0;
    virtual void arg(char const* name, void const* bytes, unsigned int length) = 0;
    // The frame calls another function, and that call has returned.
    virtual void call(char const* className, char const* methodName) = 0;
    virtual void call(char const* methodName) = 0;
    virtual void returned(char const* className, char const* methodName) = 0;
    virtual void returned(char const* methodName) = 0;
    // Free texts: a mark, a time note, an error, a warning.
    virtual void mark(char const* text) = 0;
    virtual void time(char const* text) = 0;
    virtual void error(char const* text) = 0;
    virtual void warn(char const* text) = 0;
    // A caught exception: its origin and its class name or text.
    virtual void exception(exceptionGroup group, char const* text) = 0;
    // Pushes what is buffered to the destination.
    virtual void flush() = 0;

protected:
    QelCoTraceFormatter() = default;
    QelCoTraceFormatter(QelCoTraceFormatter const&) = default;
    QelCoTraceFormatter& operator=(QelCoTraceFormatter const&) = default;
    ~QelCoTraceFormatter() = default;
};

}  // namespace Velmor

#endif

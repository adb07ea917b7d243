// QelCoTextOstreamTraceFormatter: writes each trace event as one text line on a std::ostream,
// e.g. "enter Parser::parse()", "arg count 3", "msg ready", "exception qellib QelCoException".
//
// The formatter owns its stream when made from a file name, or when bit value 2 of `flags`
// (cs_ownsStream) is set; it then deletes the stream when it is destroyed. It takes no lock:
// one formatter serves the frames of one thread at a time.
#ifndef VELMOR_CORE_QELCOTEXTOSTREAMTRACEFORMATTER_H
#define VELMOR_CORE_QELCOTEXTOSTREAMTRACEFORMATTER_H

#include <ostream>

#include <velmor/core/QelCoTraceFormatter.h>

namespace Velmor {

class VELMOR_API QelCoTextOstreamTraceFormatter : public QelCoTraceFormatter {
public:
    // The bit of `flags` that gives the stream to the formatter.
    static constexpr int cs_ownsStream = 2;

    // Writes on `stream`. A null stream throws QelCoNullPointerException.
    QelCoTextOstreamTraceFormatter(std::ostream* stream, int flags);
    // Writes on a new file, replacing one that exists; the formatter owns it. A null name
    // throws QelCoNullPointerException, a failed allocation QelCoOutOfMemoryException. A file
    // that cannot be opened leaves a stream in its failed state, which writes nothing.
    QelCoTextOstreamTraceFormatter(char const* fileName, int flags);
    // Flushes the stream, and deletes it if the formatter owns it.
    ~QelCoTextOstreamTraceFormatter();
    QelCoTextOstreamTraceFormatter(QelCoTextOstreamTraceFormatter const&) = delete;
    QelCoTextOstreamTraceFormatter& operator=(QelCoTextOstreamTraceFormatter const&) = delete;

    // One line each; a null name or text prints "(null)", a null class or method in the frame
    // lines is left out with its separator.
    void enter(char const* className, char const* methodName) override;
    void enter(char const* methodName) override;
    void exit(char const* className, char const* methodName) override;
    void exit(char const* methodName) override;
    void arg(char const* name, long value) override;
    void arg(char const* name, std::string const& value) override;
    // "arg name " then the bytes as eight hex digits of the sign-extended byte and a blank,
    // eight to a line, each line of bytes opened by a line feed.
    void arg(char const* name, void const* bytes, unsigned int length) override;
    void call(char const* className, char const* methodName) override;
    void call(char const* methodName) override;
    void returned(char const* className, char const* methodName) override;
    void returned(char const* methodName) override;
    void mark(char const* text) override;
    void time(char const* text) override;
    void error(char const* text) override;
    void warn(char const* text) override;
    void exception(exceptionGroup group, char const* text) override;
    void flush() override;

private:
    std::ostream* m_stream;
    int m_flags;
};

}  // namespace Velmor

#endif

#include <velmor/core/QelCoTextOstreamTraceFormatter.h>

#include <cstdio>
#include <fstream>
#include <new>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

// The keywords that open the lines, and the indexes of each.
static char const* const traceMsgByCoText[] = {"enter", "exit", "arg",   "call",    "return",
                                               "msg",   "time", "error", "warning", "exception"};
enum {
    fs_enterKey,
    fs_exitKey,
    fs_argKey,
    fs_callKey,
    fs_returnKey,
    fs_msgKey,
    fs_timeKey,
    fs_errorKey,
    fs_warningKey,
    fs_exceptionKey
};

static char const* const libraryNameByCoText[] = {"stdlib", "qellib", "userlib"};
static char const* const fs_nullText = "(null)";
static char const* const fs_className = "QelCoTextOstreamTraceFormatter";

static char const* fs_orNull(char const* text) { return text != nullptr ? text : fs_nullText; }

// "keyword Class::method()"; a null class or method is left out with its separator.
static void fs_makeMessageStringByCoText(std::ostream& stream, char const* keyword,
                                         char const* className, char const* methodName) {
    stream << keyword << ' ';
    if (className != nullptr) stream << className << "::";
    if (methodName != nullptr) stream << methodName << "()";
    stream << '\n';
}

// "keyword text", with "(null)" for a null text.
static void fs_makeTextLineByCoText(std::ostream& stream, char const* keyword, char const* text) {
    stream << keyword << ' ' << fs_orNull(text) << '\n';
}

QelCoTextOstreamTraceFormatter::QelCoTextOstreamTraceFormatter(std::ostream* stream, int flags)
    : m_stream(stream), m_flags(flags) {
    if (stream == nullptr) g_qelCoNullCheckFailed(fs_className, fs_className, "pOutStream");
}

QelCoTextOstreamTraceFormatter::QelCoTextOstreamTraceFormatter(char const* fileName, int flags)
    : m_stream(nullptr), m_flags(flags | cs_ownsStream) {
    if (fileName == nullptr) g_qelCoNullCheckFailed(fs_className, fs_className, "cszFileName");
    try {
        m_stream = new std::ofstream(fileName, std::ios::out | std::ios::trunc);
    } catch (std::exception const&) {
        m_stream = nullptr;
    }
    if (m_stream == nullptr) g_qelCoNewMemoryFailed(fs_className, fs_className);
}

QelCoTextOstreamTraceFormatter::~QelCoTextOstreamTraceFormatter() {
    try {
        m_stream->flush();
        if ((m_flags & cs_ownsStream) != 0) delete m_stream;
    } catch (...) {
        // A stream that fails while closing loses its last lines; the formatter still goes.
    }
}

void QelCoTextOstreamTraceFormatter::enter(char const* className, char const* methodName) {
    fs_makeMessageStringByCoText(*m_stream, traceMsgByCoText[fs_enterKey], className, methodName);
}

void QelCoTextOstreamTraceFormatter::enter(char const* methodName) { enter(nullptr, methodName); }

void QelCoTextOstreamTraceFormatter::exit(char const* className, char const* methodName) {
    fs_makeMessageStringByCoText(*m_stream, traceMsgByCoText[fs_exitKey], className, methodName);
}

void QelCoTextOstreamTraceFormatter::exit(char const* methodName) { exit(nullptr, methodName); }

void QelCoTextOstreamTraceFormatter::arg(char const* name, long value) {
    *m_stream << traceMsgByCoText[fs_argKey] << ' ' << fs_orNull(name) << ' ' << value << '\n';
}

void QelCoTextOstreamTraceFormatter::arg(char const* name, std::string const& value) {
    *m_stream << traceMsgByCoText[fs_argKey] << ' ' << fs_orNull(name) << ' ' << value << '\n';
}

void QelCoTextOstreamTraceFormatter::arg(char const* name, void const* bytes, unsigned int length) {
    std::ostream& stream = *m_stream;
    stream << traceMsgByCoText[fs_argKey] << ' ';
    if (name != nullptr) stream << name << ' ';
    signed char const* byte = static_cast<signed char const*>(bytes);
    for (unsigned int i = 0; i < length; ++i) {
        if (i % 8 == 0) stream << '\n';
        char hex[16];
        std::snprintf(hex, sizeof hex, "%.8x ", static_cast<unsigned int>(int(byte[i])));
        stream << hex;
    }
    stream << '\n';
}

void QelCoTextOstreamTraceFormatter::call(char const* className, char const* methodName) {
    fs_makeMessageStringByCoText(*m_stream, traceMsgByCoText[fs_callKey], className, methodName);
}

void QelCoTextOstreamTraceFormatter::call(char const* methodName) { call(nullptr, methodName); }

void QelCoTextOstreamTraceFormatter::returned(char const* className, char const* methodName) {
    fs_makeMessageStringByCoText(*m_stream, traceMsgByCoText[fs_returnKey], className, methodName);
}

void QelCoTextOstreamTraceFormatter::returned(char const* methodName) {
    returned(nullptr, methodName);
}

void QelCoTextOstreamTraceFormatter::mark(char const* text) {
    fs_makeTextLineByCoText(*m_stream, traceMsgByCoText[fs_msgKey], text);
}

void QelCoTextOstreamTraceFormatter::time(char const* text) {
    fs_makeTextLineByCoText(*m_stream, traceMsgByCoText[fs_timeKey], text);
}

void QelCoTextOstreamTraceFormatter::error(char const* text) {
    fs_makeTextLineByCoText(*m_stream, traceMsgByCoText[fs_errorKey], text);
}

void QelCoTextOstreamTraceFormatter::warn(char const* text) {
    fs_makeTextLineByCoText(*m_stream, traceMsgByCoText[fs_warningKey], text);
}

void QelCoTextOstreamTraceFormatter::exception(exceptionGroup group, char const* text) {
    // A group outside the enumeration is printed as the application's.
    int index = group >= stdlibGroup && group <= userlibGroup ? int(group) : int(userlibGroup);
    *m_stream << traceMsgByCoText[fs_exceptionKey] << ' ' << libraryNameByCoText[index] << ' '
              << fs_orNull(text) << '\n';
}

void QelCoTextOstreamTraceFormatter::flush() { m_stream->flush(); }

}  // namespace Velmor

#include <velmor/core/QelCoMsgFormatter.h>

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>

#include <velmor/core/QelCoConverters.h>
#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoMsgAccesser.h>
#include <velmor/core/QelCoTSharedPtrDefine.h>
#include <velmor/platform/QelCnfSysParams.h>
#include <velmor/thread/QelComtLocker.h>

#include "core/QelCoStringSinks.h"

QEL_CO_SHARED_PTR_DEFINE(Velmor::QelCoMsgFormatter)

namespace Velmor {

// Serialises template selection, catalogue reads included.
static QelComtLockable fs_QelCoMsgFormatter_lock;
// The platform's line separator and end of string, widened at the first formatting.
static std::wstring fs_QelCoMsgFormatter_wstr_lineSeparator;
static std::wstring fs_QelCoMsgFormatter_wstr_endOfString;
static int fs_QelCoMsgFormatter_initFlg = 0;

static char const fs_nullText[] = "(null)";
static std::size_t const fs_nullTextLength = sizeof fs_nullText - 1;

QEL_CO_DEFINE_RTTI(QelCoMsgFormatter, QelCoCounted)

QelCoMsgFormatter::QelCoMsgFormatter() {}

QelCoMsgFormatter::~QelCoMsgFormatter() {}

// Writes argument `text` at `out`; returns the number of characters written.
static std::size_t fs_putArgument(char* out, char const* text) {
    std::size_t length = std::strlen(text);
    std::memcpy(out, text, length);
    return length;
}

// Widens argument `text` in the current locale. Text the locale refuses is shown byte by
// byte, with '?' for each byte outside ASCII, so the filled text stays within its buffer and
// can be converted back.
static std::size_t fs_putArgument(wchar_t* out, char const* text) {
    std::size_t length = std::strlen(text);
    std::size_t written = std::mbstowcs(out, text, length);
    if (written != static_cast<std::size_t>(-1)) return written;
    for (std::size_t i = 0; i < length; ++i) {
        unsigned char byte = static_cast<unsigned char>(text[i]);
        out[i] = byte < 0x80 ? static_cast<wchar_t>(byte) : L'?';
    }
    return length;
}

static std::size_t fs_putText(char* out, char const* text) { return fs_putArgument(out, text); }
static std::size_t fs_putText(wchar_t* out, wchar_t const* text) {
    std::size_t length = std::wcslen(text);
    std::wmemcpy(out, text, length);
    return length;
}

// The argument a directive character names, or null: %1 is argument 0. Every directive
// character is looked up, so %n, %t, %% and the rest reserve room for "(null)".
static char const* fs_argumentOf(QelCoMsg const& msg, int directive) {
    return msg.getArgStr(static_cast<unsigned int>(directive - '1'));
}

// Fills `pattern` (of `length` characters) with the arguments of `msg` and hands the result
// to `sink`. %1 to %9 give arguments ("(null)" for a missing one), %n the line separator, %t
// a tab, %0 the end of string and ends the text, and % before anything else that character.
// A % in the last position stays. Leaves the sink untouched when memory runs out.
template <class Ch, class Sink>
static void fs_substitute(Ch const* pattern, std::size_t length, QelCoMsg const& msg, Sink& sink,
                          Ch const* lineSeparator, Ch const* endOfString) {
    Ch* buffer = nullptr;
    try {
        std::size_t size = length + 1;
        bool found = false;
        for (std::size_t i = 0; i + 1 < length; ++i) {
            if (pattern[i] != Ch('%')) continue;
            char const* argument = fs_argumentOf(msg, static_cast<int>(pattern[i + 1]));
            size = size - 2 + (argument != nullptr ? std::strlen(argument) : fs_nullTextLength);
            found = true;
            ++i;
        }
        if (!found) {
            sink.assign(pattern);
            return;
        }
        buffer = new Ch[size];
        std::size_t out = 0;
        std::size_t pos = 0;
        while (pos < length) {
            if (pattern[pos] != Ch('%') || pos + 1 >= length) {
                buffer[out++] = pattern[pos++];
                continue;
            }
            Ch directive = pattern[pos + 1];
            pos += 2;
            if (directive >= Ch('1') && directive <= Ch('9')) {
                char const* argument = fs_argumentOf(msg, static_cast<int>(directive));
                out += fs_putArgument(buffer + out, argument != nullptr ? argument : fs_nullText);
            } else if (directive == Ch('n')) {
                out += fs_putText(buffer + out, lineSeparator);
            } else if (directive == Ch('t')) {
                buffer[out++] = Ch('\t');
            } else if (directive == Ch('0')) {
                out += fs_putText(buffer + out, endOfString);
                break;
            } else {
                buffer[out++] = directive;
            }
        }
        buffer[out] = Ch('\0');
        sink.assign(buffer);
    } catch (...) {
        // The sink stays as it was: the result is empty.
    }
    delete[] buffer;
}

// The wide template of `msg`: the catalogue's text, else the default text; empty if neither.
static std::wstring fs_selectTemplate(QelCoMsg const& msg) {
    QelComtLocker locker(&fs_QelCoMsgFormatter_lock);
    if (fs_QelCoMsgFormatter_initFlg == 0) {
        fs_QelCoMsgFormatter_wstr_lineSeparator =
            QelCoConverters::mbtowc(QelCnfSysParams::cs_lineSeparator);
        fs_QelCoMsgFormatter_wstr_endOfString =
            QelCoConverters::mbtowc(QelCnfSysParams::cs_endOfString);
        fs_QelCoMsgFormatter_initFlg = 1;
    }
    std::wstring pattern = QelCoMsgAccesser(msg.getFileName(), msg.getMsgId()).wgetMsg();
    if (pattern.empty() && msg.getDefaultMessage() != nullptr) {
        pattern = QelCoConverters::mbtowc(msg.getDefaultMessage());
    }
    return pattern;
}

static void fs_formatMessage(QelCoMsg const& msg, internalWStrBase& sink) {
    try {
        std::wstring pattern = fs_selectTemplate(msg);
        fs_substitute(pattern.c_str(), pattern.length(), msg, sink,
                      fs_QelCoMsgFormatter_wstr_lineSeparator.c_str(),
                      fs_QelCoMsgFormatter_wstr_endOfString.c_str());
    } catch (...) {
        // The sink stays as it was: the result is empty.
    }
}

static void fs_formatDefaultMessage(QelCoMsg const& msg, internalStrBase& sink) {
    char const* pattern = msg.getDefaultMessage();
    if (pattern == nullptr) return;
    fs_substitute(pattern, std::strlen(pattern), msg, sink, QelCnfSysParams::cs_lineSeparator,
                  QelCnfSysParams::cs_endOfString);
}

std::wstring QelCoMsgFormatter::wformat(QelCoMsg const& msg) {
    std::wstring result;
    if (!msg.hasArgStore()) return result;
    internalWStr sink(&result);
    fs_formatMessage(msg, sink);
    return result;
}

std::string QelCoMsgFormatter::format(QelCoMsg const& msg) {
    try {
        return QelCoConverters::wctomb(wformat(msg));
    } catch (...) {
        return std::string();
    }
}

std::string QelCoMsgFormatter::formatDefaultMsg(QelCoMsg const& msg) {
    std::string result;
    if (!msg.hasArgStore()) return result;
    internalStr sink(&result);
    fs_formatDefaultMessage(msg, sink);
    return result;
}

std::wstring QelCoMsgFormatter::wformatDefaultMsg(QelCoMsg const& msg) {
    try {
        return QelCoConverters::mbtowc(formatDefaultMsg(msg));
    } catch (...) {
        return std::wstring();
    }
}

QelBtTString<wchar_t> QelCoMsgFormatter::qes_wformat(QelCoMsg const& msg) {
    QelBtTString<wchar_t> result;
    if (!msg.hasArgStore()) return result;
    internalBtWStr sink(&result);
    fs_formatMessage(msg, sink);
    return result;
}

QelBtTString<char> QelCoMsgFormatter::qes_format(QelCoMsg const& msg) {
    try {
        return QelCoConverters::qes_wctomb(qes_wformat(msg));
    } catch (...) {
        return QelBtTString<char>();
    }
}

QelBtTString<char> QelCoMsgFormatter::qes_formatDefaultMsg(QelCoMsg const& msg) {
    QelBtTString<char> result;
    if (!msg.hasArgStore()) return result;
    internalBtStr sink(&result);
    fs_formatDefaultMessage(msg, sink);
    return result;
}

QelBtTString<wchar_t> QelCoMsgFormatter::qes_wformatDefaultMsg(QelCoMsg const& msg) {
    try {
        return QelCoConverters::qes_mbtowc(qes_formatDefaultMsg(msg));
    } catch (...) {
        return QelBtTString<wchar_t>();
    }
}

char const* QelCoMsgFormatter::fallbackMsg(QelCoMsg const& msg) const {
    return msg.getDefaultMessage();
}

}  // namespace Velmor

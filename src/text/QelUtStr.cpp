#include <velmor/text/QelUtStr.h>

#include <cstdarg>
#include <cstdio>

#include "text/QelUtNumberText.h"

namespace Velmor {

static char const* const fs_className = "QelUtStr";

// Hands a finished text to a std::string.
class fs_StdStringSink : public QelUtTextSink {
public:
    void assign(char const* text, std::size_t length) override { result.assign(text, length); }
    std::string result;
};

std::string QelUtStr::intToStr(int value) {
    fs_StdStringSink sink;
    QelUtNumberText::intToStr(sink, value);
    return sink.result;
}

std::string QelUtStr::intToHexStr(int value) {
    fs_StdStringSink sink;
    QelUtNumberText::intToHexStr(sink, value);
    return sink.result;
}

std::string QelUtStr::doubleToStr(double value) {
    fs_StdStringSink sink;
    QelUtNumberText::print(sink, "%g", value);
    return sink.result;
}

int QelUtStr::strToInt(std::string const& s, unsigned int n) {
    return QelUtNumberText::strToInt(s.c_str(), s.size(), n, fs_className);
}

int QelUtStr::hexStrToInt(std::string const& s, unsigned int n) {
    return QelUtNumberText::hexStrToInt(s.c_str(), s.size(), n, fs_className);
}

double QelUtStr::strToDouble(std::string const& s, unsigned int n) {
    return QelUtNumberText::strToDouble(s.c_str(), s.size(), n);
}

std::string QelUtStr::strprintf(char const* format, ...) {
    fs_StdStringSink sink;
    va_list args;
    va_start(args, format);
    QelUtNumberText::vprint(sink, format, args);
    va_end(args);
    return sink.result;
}

std::string QelUtStr::intToThousandsSep(int value) {
    fs_StdStringSink sink;
    QelUtNumberText::intToThousandsSep(sink, value);
    return sink.result;
}

int QelUtStr::thousandsSepToInt(std::string const& s, unsigned int n) {
    return QelUtNumberText::thousandsSepToInt(s.c_str(), s.size(), n, fs_className);
}

std::string QelUtStr::doubleToThousandsSep(double value, unsigned int digits) {
    fs_StdStringSink sink;
    QelUtNumberText::doubleToThousandsSep(sink, value, digits);
    return sink.result;
}

double QelUtStr::thousandsSepToDouble(std::string const& s, unsigned int n) {
    return QelUtNumberText::thousandsSepToDouble(s.c_str(), s.size(), n, fs_className);
}

}  // namespace Velmor

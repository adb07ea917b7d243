#include <velmor/text/QelUtBtStr.h>

#include <cstdarg>
#include <cstdio>

#include "text/QelUtNumberText.h"

namespace Velmor {

static char const* const fs_className = "QelUtBtStr";

// Hands a finished text to a QelBtTString<char>.
class fs_BtStringSink : public QelUtTextSink {
public:
    void assign(char const* text, std::size_t length) override {
        result.assign(text, static_cast<unsigned int>(length));
    }
    QelBtTString<char> result;
};

QelBtTString<char> QelUtBtStr::intToStr(int value) {
    fs_BtStringSink sink;
    QelUtNumberText::intToStr(sink, value);
    return sink.result;
}

QelBtTString<char> QelUtBtStr::intToHexStr(int value) {
    fs_BtStringSink sink;
    QelUtNumberText::intToHexStr(sink, value);
    return sink.result;
}

QelBtTString<char> QelUtBtStr::doubleToStr(double value) {
    fs_BtStringSink sink;
    QelUtNumberText::print(sink, "%g", value);
    return sink.result;
}

int QelUtBtStr::strToInt(QelBtTString<char> const& s, unsigned int n) {
    return QelUtNumberText::strToInt(s.c_str(), s.size(), n, fs_className);
}

int QelUtBtStr::hexStrToInt(QelBtTString<char> const& s, unsigned int n) {
    return QelUtNumberText::hexStrToInt(s.c_str(), s.size(), n, fs_className);
}

double QelUtBtStr::strToDouble(QelBtTString<char> const& s, unsigned int n) {
    return QelUtNumberText::strToDouble(s.c_str(), s.size(), n);
}

QelBtTString<char> QelUtBtStr::strprintf(char const* format, ...) {
    fs_BtStringSink sink;
    va_list args;
    va_start(args, format);
    QelUtNumberText::vprint(sink, format, args);
    va_end(args);
    return sink.result;
}

QelBtTString<char> QelUtBtStr::intToThousandsSep(int value) {
    fs_BtStringSink sink;
    QelUtNumberText::intToThousandsSep(sink, value);
    return sink.result;
}

int QelUtBtStr::thousandsSepToInt(QelBtTString<char> const& s, unsigned int n) {
    return QelUtNumberText::thousandsSepToInt(s.c_str(), s.size(), n, fs_className);
}

QelBtTString<char> QelUtBtStr::doubleToThousandsSep(double value, unsigned int digits) {
    fs_BtStringSink sink;
    QelUtNumberText::doubleToThousandsSep(sink, value, digits);
    return sink.result;
}

double QelUtBtStr::thousandsSepToDouble(QelBtTString<char> const& s, unsigned int n) {
    return QelUtNumberText::thousandsSepToDouble(s.c_str(), s.size(), n, fs_className);
}

}  // namespace Velmor

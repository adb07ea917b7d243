// QelUtNumberText: the number and text conversions behind QelUtStr and QelUtBtStr.
//
// Works on plain character ranges so that both string families share one implementation;
// results are handed to a QelUtTextSink. Stateless; the conversions read the process locale
// (localeconv and the ctype tests), which the application keeps still while they run.
#ifndef VELMOR_SRC_TEXT_QELUTNUMBERTEXT_H
#define VELMOR_SRC_TEXT_QELUTNUMBERTEXT_H

#include <cstdarg>
#include <cstddef>

namespace Velmor {

// Receives a finished text of `length` characters (not necessarily terminated).
class QelUtTextSink {
public:
    virtual void assign(char const* text, std::size_t length) = 0;

protected:
    ~QelUtTextSink() = default;
};

class QelUtNumberText {
public:
    static constexpr unsigned int cs_npos = 0xffffffffu;

    // The parsers read `text` of `length` characters, limited to `n` unless n is cs_npos.
    // Failures throw QelUtNumberFormatException(className, <method>, text).
    static int strToInt(char const* text, std::size_t length, unsigned int n,
                        char const* className);
    static int hexStrToInt(char const* text, std::size_t length, unsigned int n,
                           char const* className);
    static double strToDouble(char const* text, std::size_t length, unsigned int n);
    static int thousandsSepToInt(char const* text, std::size_t length, unsigned int n,
                                 char const* className);
    static double thousandsSepToDouble(char const* text, std::size_t length, unsigned int n,
                                       char const* className);

    // The printers hand their whole text to `sink`; they raise nothing of their own.
    static void vprint(QelUtTextSink& sink, char const* format, va_list args);
    static void print(QelUtTextSink& sink, char const* format, ...)
        __attribute__((format(printf, 2, 3)));
    // "%d" and "%x" (of the value's 32 bits), which no locale changes.
    static void intToStr(QelUtTextSink& sink, int value);
    static void intToHexStr(QelUtTextSink& sink, int value);
    static void intToThousandsSep(QelUtTextSink& sink, int value);
    static void doubleToThousandsSep(QelUtTextSink& sink, double value, unsigned int digits);
};

}  // namespace Velmor

#endif

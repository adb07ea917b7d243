// QelUtBtStr: the twin of QelUtStr on the library's own string, QelBtTString<char>.
//
// All operations are static and stateless. They follow the process locale (its thousands
// separator and decimal point); a setlocale in another thread meanwhile is the application's
// concern. Parsing accepts leading white space and one sign and ignores text behind the number,
// but throws QelUtNumberFormatException when no digit stands where the number starts.
#ifndef VELMOR_TEXT_QELUTBTSTR_H
#define VELMOR_TEXT_QELUTBTSTR_H

#include <velmor/basic/QelBtTString.h>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelUtBtStr {
public:
    // "The whole text" for the `n` parameters.
    static constexpr unsigned int npos = 0xffffffffu;

    // "%d", "%x" and "%g".
    static QelBtTString<char> intToStr(int value);
    static QelBtTString<char> intToHexStr(int value);
    static QelBtTString<char> doubleToStr(double value);

    // The parsers read `s`, or its first `n` characters. strToInt and thousandsSepToInt need a
    // decimal digit behind optional white space and sign; hexStrToInt needs a hex digit (no
    // "0x"; the last eight digits count). Otherwise they throw QelUtNumberFormatException naming
    // the whole of `s`. Text behind the number is ignored.
    static int strToInt(QelBtTString<char> const& s, unsigned int n = npos);
    static int hexStrToInt(QelBtTString<char> const& s, unsigned int n = npos);
    // strtod: text that is no number gives 0.0, never an exception.
    static double strToDouble(QelBtTString<char> const& s, unsigned int n = npos);

    // The text of vsnprintf with these arguments, however long.
    static QelBtTString<char> strprintf(char const* format, ...)
        __attribute__((format(printf, 1, 2)));

    // The digits in groups of three, joined by the locale's thousands separator (none in the
    // C locale, where the result is intToStr's).
    static QelBtTString<char> intToThousandsSep(int value);
    // Reads digits, skipping each whole separator, until any other character; the groups are
    // not checked ("1,2,3" is 123). Throws as strToInt does.
    static int thousandsSepToInt(QelBtTString<char> const& s, unsigned int n = npos);
    // "%.<digits>f" with the first byte of the separator between groups of the integer part.
    static QelBtTString<char> doubleToThousandsSep(double value, unsigned int digits);
    // Drops the separators and reads the rest with strtod; `n` limits only the checks of the
    // start. Throws as strToInt does.
    static double thousandsSepToDouble(QelBtTString<char> const& s, unsigned int n = npos);
};

}  // namespace Velmor

#endif

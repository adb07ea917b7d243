// QelUtStr: numbers to text and back, with and without thousands separators, on std::string.
//
// All operations are static and stateless. They follow the process locale (its thousands
// separator and decimal point); a setlocale in another thread meanwhile is the application's
// concern. Parsing accepts leading white space and one sign and ignores text behind the number,
// but throws QelUtNumberFormatException when no digit stands where the number starts.
#ifndef VELMOR_TEXT_QELUTSTR_H
#define VELMOR_TEXT_QELUTSTR_H

#include <string>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelUtStr {
public:
    // "The whole text" for the `n` parameters.
    static constexpr unsigned int npos = 0xffffffffu;

    // "%d", "%x" and "%g".
    static std::string intToStr(int value);
    static std::string intToHexStr(int value);
    static std::string doubleToStr(double value);

    // The parsers read `s`, or its first `n` characters. strToInt and thousandsSepToInt need a
    // decimal digit behind optional white space and sign; hexStrToInt needs a hex digit (no
    // "0x"; the last eight digits count). Otherwise they throw QelUtNumberFormatException naming
    // the whole of `s`. Text behind the number is ignored.
    static int strToInt(std::string const& s, unsigned int n = npos);
    static int hexStrToInt(std::string const& s, unsigned int n = npos);
    // strtod: text that is no number gives 0.0, never an exception.
    static double strToDouble(std::string const& s, unsigned int n = npos);

    // The text of vsnprintf with these arguments, however long.
    static std::string strprintf(char const* format, ...) __attribute__((format(printf, 1, 2)));

    // The digits in groups of three, joined by the locale's thousands separator (none in the
    // C locale, where the result is intToStr's).
    static std::string intToThousandsSep(int value);
    // Reads digits, skipping each whole separator, until any other character; the groups are
    // not checked ("1,2,3" is 123). Throws as strToInt does.
    static int thousandsSepToInt(std::string const& s, unsigned int n = npos);
    // "%.<digits>f" with the first byte of the separator between groups of the integer part.
    static std::string doubleToThousandsSep(double value, unsigned int digits);
    // Drops the separators and reads the rest with strtod; `n` limits only the checks of the
    // start. Throws as strToInt does.
    static double thousandsSepToDouble(std::string const& s, unsigned int n = npos);
};

}  // namespace Velmor

#endif

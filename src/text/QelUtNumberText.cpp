#include "text/QelUtNumberText.h"

#include <cctype>
#include <charconv>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <velmor/text/QelUtNumberFormatException.h>

namespace Velmor {

// Work texts up to this size stay on the stack.
static std::size_t const fs_stackTextSize = 512;

// The end of the text the parsers may read: its length, or `n` if that is smaller.
static std::size_t fs_limit(std::size_t length, unsigned int n) {
    return n != QelUtNumberText::cs_npos && n < length ? n : length;
}

static bool fs_isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// Where a number must start: behind white space and one sign, which must leave a digit.
// Returns the position of that digit and sets `negative`; throws otherwise.
static std::size_t fs_numberStart(char const* text, std::size_t limit, char const* className,
                                  char const* methodName, bool& negative) {
    std::size_t pos = 0;
    while (pos < limit && std::isspace(static_cast<unsigned char>(text[pos])) != 0)
        ++pos;
    if (pos >= limit) throw QelUtNumberFormatException(className, methodName, text);
    negative = text[pos] == '-';
    if (text[pos] == '+' || text[pos] == '-') {
        ++pos;
        if (pos >= limit) throw QelUtNumberFormatException(className, methodName, text);
    }
    if (!fs_isDigit(text[pos])) throw QelUtNumberFormatException(className, methodName, text);
    return pos;
}

// Runs `convert` on the whole text, or on a terminated copy of its first `limit` characters.
template <class Convert>
static auto fs_onPrefix(char const* text, std::size_t limit, bool whole, Convert convert) {
    if (whole) return convert(text);
    if (limit < fs_stackTextSize) {
        char copy[fs_stackTextSize];
        std::memcpy(copy, text, limit);
        copy[limit] = '\0';
        return convert(copy);
    }
    std::string copy(text, limit);
    return convert(copy.c_str());
}

int QelUtNumberText::strToInt(char const* text, std::size_t length, unsigned int n,
                              char const* className) {
    std::size_t limit = fs_limit(length, n);
    bool negative = false;
    fs_numberStart(text, limit, className, "strToInt", negative);
    return fs_onPrefix(text, limit, n == cs_npos, [](char const* digits) {
        return static_cast<int>(std::strtol(digits, nullptr, 10));
    });
}

int QelUtNumberText::hexStrToInt(char const* text, std::size_t length, unsigned int n,
                                 char const* className) {
    std::size_t limit = fs_limit(length, n);
    std::size_t pos = 0;
    while (pos < limit && std::isspace(static_cast<unsigned char>(text[pos])) != 0)
        ++pos;
    bool negative = false;
    if (pos < limit && (text[pos] == '+' || text[pos] == '-')) {
        negative = text[pos] == '-';
        ++pos;
    }
    std::size_t end = pos;
    while (end < limit && std::isxdigit(static_cast<unsigned char>(text[end])) != 0)
        ++end;
    if (end == pos) throw QelUtNumberFormatException(className, "hexStrToInt", text);
    // From the last digit up, each 4 bits further left; digits past the eighth from the right
    // fall outside the 32 bits of the result.
    unsigned int value = 0;
    unsigned int shift = 0;
    for (std::size_t i = end; i > pos && shift < 32; --i, shift += 4) {
        char c = text[i - 1];
        unsigned int digit = fs_isDigit(c) ? static_cast<unsigned int>(c - '0')
                                           : static_cast<unsigned int>(std::tolower(c) - 'a' + 10);
        value |= digit << shift;
    }
    return static_cast<int>(negative ? 0u - value : value);
}

double QelUtNumberText::strToDouble(char const* text, std::size_t length, unsigned int n) {
    std::size_t limit = fs_limit(length, n);
    return fs_onPrefix(text, limit, limit == length,
                       [](char const* digits) { return std::strtod(digits, nullptr); });
}

int QelUtNumberText::thousandsSepToInt(char const* text, std::size_t length, unsigned int n,
                                       char const* className) {
    std::size_t limit = fs_limit(length, n);
    bool negative = false;
    std::size_t pos = fs_numberStart(text, limit, className, "thousandsSepToInt", negative);
    char const* separator = std::localeconv()->thousands_sep;
    std::size_t separatorLength = std::strlen(separator);
    // Unsigned, so that a number too large for int wraps instead of overflowing.
    unsigned int value = 0;
    while (pos < limit) {
        char c = text[pos];
        if (fs_isDigit(c)) {
            value = value * 10u + static_cast<unsigned int>(c - '0');
            ++pos;
        } else if (separatorLength > 0 && c == separator[0]) {
            for (std::size_t i = 1; i < separatorLength; ++i) {
                if (pos + i >= limit || text[pos + i] != separator[i]) {
                    return static_cast<int>(negative ? 0u - value : value);
                }
            }
            pos += separatorLength;
        } else {
            break;
        }
    }
    return static_cast<int>(negative ? 0u - value : value);
}

double QelUtNumberText::thousandsSepToDouble(char const* text, std::size_t length, unsigned int n,
                                             char const* className) {
    char const* separator = std::localeconv()->thousands_sep;
    std::size_t separatorLength = std::strlen(separator);
    std::size_t limit = fs_limit(length, n);
    bool negative = false;
    std::size_t digits = fs_numberStart(text, limit, className, "thousandsSepToDouble", negative);
    bool hasSign = digits > 0 && (text[digits - 1] == '-' || text[digits - 1] == '+');
    // The walk starts behind the sign, or at the start of the text, and runs to its end.
    std::size_t pos = hasSign ? digits : 0;
    char stackWork[fs_stackTextSize];
    std::string heapWork;
    char* work = stackWork;
    if (length - pos + 2 > sizeof stackWork) {
        heapWork.resize(length - pos + 2);
        work = &heapWork[0];
    }
    std::size_t out = 0;
    if (negative) work[out++] = '-';
    while (pos < length) {
        if (separatorLength > 0 && text[pos] == separator[0] &&
            std::strncmp(text + pos, separator, separatorLength) == 0) {
            pos += separatorLength;
        } else {
            work[out++] = text[pos++];
        }
    }
    work[out] = '\0';
    return std::strtod(work, nullptr);
}

void QelUtNumberText::vprint(QelUtTextSink& sink, char const* format, va_list args) {
    char text[fs_stackTextSize];
    va_list again;
    va_copy(again, args);
    int length = std::vsnprintf(text, sizeof text, format, args);
    if (length < 0) {
        va_end(again);
        sink.assign("", 0);
        return;
    }
    if (static_cast<std::size_t>(length) < sizeof text) {
        va_end(again);
        sink.assign(text, static_cast<std::size_t>(length));
        return;
    }
    // Longer texts are made whole on the heap rather than cut.
    std::string longText(static_cast<std::size_t>(length) + 1, '\0');
    std::vsnprintf(&longText[0], longText.size(), format, again);
    va_end(again);
    sink.assign(longText.data(), static_cast<std::size_t>(length));
}

void QelUtNumberText::print(QelUtTextSink& sink, char const* format, ...) {
    va_list args;
    va_start(args, format);
    vprint(sink, format, args);
    va_end(args);
}

void QelUtNumberText::intToStr(QelUtTextSink& sink, int value) {
    char text[16];
    char const* end = std::to_chars(text, text + sizeof text, value).ptr;
    sink.assign(text, static_cast<std::size_t>(end - text));
}

void QelUtNumberText::intToHexStr(QelUtTextSink& sink, int value) {
    char text[16];
    char const* end =
        std::to_chars(text, text + sizeof text, static_cast<unsigned int>(value), 16).ptr;
    sink.assign(text, static_cast<std::size_t>(end - text));
}

// The size of the first group of an integer part of `digits` digits; the others hold 3.
static std::size_t fs_firstGroup(std::size_t digits) {
    std::size_t first = digits % 3;
    return first == 0 ? 3 : first;
}

void QelUtNumberText::intToThousandsSep(QelUtTextSink& sink, int value) {
    char const* separator = std::localeconv()->thousands_sep;
    std::size_t separatorLength = std::strlen(separator);
    char number[16];
    char const* end = std::to_chars(number, number + sizeof number, value).ptr;
    char const* digits = number[0] == '-' ? number + 1 : number;
    std::size_t count = static_cast<std::size_t>(end - digits);
    char text[16 + 16 * 4];
    std::size_t out = 0;
    if (value < 0) text[out++] = '-';
    std::size_t group = fs_firstGroup(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (i == group) {
            std::memcpy(text + out, separator, separatorLength);
            out += separatorLength;
            group += 3;
        }
        text[out++] = digits[i];
    }
    sink.assign(text, out);
}

// Precision beyond this adds nothing to a double: its exact decimal expansion is shorter.
static unsigned int const fs_maxDigits = 1100;

void QelUtNumberText::doubleToThousandsSep(QelUtTextSink& sink, double value, unsigned int digits) {
    std::lconv const* conventions = std::localeconv();
    char separator = conventions->thousands_sep[0];
    char const* decimalPoint = conventions->decimal_point;
    bool negative = value < 0;
    if (negative) value = -value;
    // "%.*f" with the precision as argument prints as "%.<digits>f" would.
    int precision = static_cast<int>(digits < fs_maxDigits ? digits : fs_maxDigits);
    char stackText[fs_stackTextSize];
    std::string heapText;
    char const* text = stackText;
    std::size_t length = static_cast<std::size_t>(
        std::snprintf(stackText, sizeof stackText, "%.*f", precision, value));
    if (length >= sizeof stackText) {
        heapText.resize(length + 1);
        std::snprintf(&heapText[0], heapText.size(), "%.*f", precision, value);
        text = heapText.data();
    }
    char const* point = decimalPoint[0] != '\0' ? std::strstr(text, decimalPoint) : nullptr;
    std::size_t integerEnd = point != nullptr ? static_cast<std::size_t>(point - text) : length;

    char stackResult[2 * fs_stackTextSize];
    std::string heapResult;
    std::size_t needed = 1 + length + integerEnd / 3;
    char* result = stackResult;
    if (needed > sizeof stackResult) {
        heapResult.resize(needed);
        result = &heapResult[0];
    }
    std::size_t out = 0;
    if (negative) result[out++] = '-';
    std::size_t group = fs_firstGroup(integerEnd);
    for (std::size_t i = 0; i < length; ++i) {
        if (i == group && i < integerEnd) {
            if (separator != '\0') result[out++] = separator;
            group += 3;
        }
        result[out++] = text[i];
    }
    sink.assign(result, out);
}

}  // namespace Velmor

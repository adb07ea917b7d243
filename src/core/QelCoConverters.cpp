#include <velmor/core/QelCoConverters.h>

#include <cstdlib>
#include <memory>
#include <new>

#include <velmor/basic/QelBtTString.h>
#include <velmor/core/QelCoFailures.h>

#include "core/QelCoStringSinks.h"

namespace Velmor {

// A buffer of `size` elements; exhausted memory is reported for `methodName`.
template <class T>
static std::unique_ptr<T[]> fs_buffer(std::size_t size, char const* methodName) {
    T* buffer = nullptr;
    try {
        buffer = new T[size];
    } catch (std::exception const&) {
        buffer = nullptr;
    }
    if (buffer == nullptr) g_qelCoNewMemoryFailed("QelCoConverters", methodName);
    return std::unique_ptr<T[]>(buffer);
}

// Converts `length` bytes of `text` in the current locale into `sink`; text the locale
// cannot read leaves the sink as it is (empty).
static void fs_mbtowc(char const* text, std::size_t length, internalWStrBase& sink,
                      char const* methodName) {
    if (length == 0) return;
    std::unique_ptr<wchar_t[]> buffer = fs_buffer<wchar_t>(length + 1, methodName);
    std::size_t count = std::mbstowcs(buffer.get(), text, length);
    if (count == static_cast<std::size_t>(-1)) return;
    buffer[count] = L'\0';
    sink.assign(buffer.get());
}

static void fs_wctomb(wchar_t const* text, std::size_t length, internalStrBase& sink,
                      char const* methodName) {
    if (length == 0) return;
    std::size_t size = std::wcstombs(nullptr, text, 0);
    if (size == static_cast<std::size_t>(-1)) return;
    std::unique_ptr<char[]> buffer = fs_buffer<char>(size + 1, methodName);
    if (std::wcstombs(buffer.get(), text, size + 1) == static_cast<std::size_t>(-1)) return;
    buffer[size] = '\0';
    sink.assign(buffer.get());
}

std::wstring QelCoConverters::mbtowc(std::string const& text) {
    std::wstring result;
    internalWStr sink(&result);
    fs_mbtowc(text.c_str(), text.length(), sink, "mbtowc");
    return result;
}

std::string QelCoConverters::wctomb(std::wstring const& text) {
    std::string result;
    internalStr sink(&result);
    fs_wctomb(text.c_str(), text.length(), sink, "wctomb");
    return result;
}

QelBtTString<wchar_t> QelCoConverters::qes_mbtowc(QelBtTString<char> const& text) {
    QelBtTString<wchar_t> result;
    internalBtWStr sink(&result);
    fs_mbtowc(text.c_str(), text.length(), sink, "qes_mbtowc");
    return result;
}

QelBtTString<char> QelCoConverters::qes_wctomb(QelBtTString<wchar_t> const& text) {
    QelBtTString<char> result;
    internalBtStr sink(&result);
    fs_wctomb(text.c_str(), text.length(), sink, "qes_wctomb");
    return result;
}

}  // namespace Velmor

#include <velmor/core/QelCoConverters.h>

#include <cstdlib>
#include <new>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

std::wstring QelCoConverters::mbtowc(std::string const& text) {
    if (text.empty()) return std::wstring();
    wchar_t* buffer = nullptr;
    try {
        buffer = new wchar_t[text.length() + 1];
    } catch (std::exception const&) {
        buffer = nullptr;
    }
    if (buffer == nullptr) g_qelCoNewMemoryFailed("QelCoConverters", "mbtowc");
    std::size_t count = std::mbstowcs(buffer, text.c_str(), text.length());
    if (count == static_cast<std::size_t>(-1)) {
        delete[] buffer;
        return std::wstring();
    }
    buffer[count] = L'\0';
    std::wstring result;
    try {
        result.assign(buffer, count);
    } catch (...) {
        delete[] buffer;
        throw;
    }
    delete[] buffer;
    return result;
}

std::string QelCoConverters::wctomb(std::wstring const& text) {
    if (text.empty()) return std::string();
    std::size_t size = std::wcstombs(nullptr, text.c_str(), 0);
    if (size == static_cast<std::size_t>(-1)) return std::string();
    char* buffer = nullptr;
    try {
        buffer = new char[size + 1];
    } catch (std::exception const&) {
        buffer = nullptr;
    }
    if (buffer == nullptr) g_qelCoNewMemoryFailed("QelCoConverters", "wctomb");
    if (std::wcstombs(buffer, text.c_str(), size + 1) == static_cast<std::size_t>(-1)) {
        delete[] buffer;
        return std::string();
    }
    buffer[size] = '\0';
    std::string result;
    try {
        result.assign(buffer, size);
    } catch (...) {
        delete[] buffer;
        throw;
    }
    delete[] buffer;
    return result;
}

}  // namespace Velmor

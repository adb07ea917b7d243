#include <velmor/basic/QelBtHashAcc.h>

namespace Velmor {

void QelBtHashAcc::put(char const* s, unsigned int n) {
    if (n == npos) {
        for (; *s != '\0'; ++s)
            put(static_cast<unsigned int>(static_cast<signed char>(*s)));
        return;
    }
    put(s, s + n);
}

void QelBtHashAcc::put(wchar_t const* s, unsigned int n) {
    if (n == npos) {
        for (; *s != L'\0'; ++s)
            put(static_cast<unsigned int>(*s));
        return;
    }
    put(s, s + n);
}

void QelBtHashAcc::put(std::string const& s) { put(s.data(), s.data() + s.size()); }

void QelBtHashAcc::put(std::wstring const& s) { put(s.data(), s.data() + s.size()); }

void QelBtHashAcc::put(char const* first, char const* last) {
    unsigned int value = m_value;
    // Each byte is sign-extended to 32 bits, whatever the signedness of char.
    for (; first != last; ++first) {
        value = value * 3u + static_cast<unsigned int>(static_cast<signed char>(*first));
    }
    m_value = value;
}

void QelBtHashAcc::put(wchar_t const* first, wchar_t const* last) {
    unsigned int value = m_value;
    for (; first != last; ++first)
        value = value * 3u + static_cast<unsigned int>(*first);
    m_value = value;
}

}  // namespace Velmor

// QelBtHashAcc: a hash accumulator. Each put() multiplies the accumulated value by 3 and adds
// the next number (chars sign-extended), modulo 2^32; puts can be chained to hash a composite
// key. A small value object for one thread.
#ifndef VELMOR_BASIC_QELBTHASHACC_H
#define VELMOR_BASIC_QELBTHASHACC_H

#include <string>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelBtHashAcc {
public:
    static constexpr unsigned int npos = 0xffffffffu;

    QelBtHashAcc() : m_value(0) {}

    void put(unsigned int v) { m_value = m_value * 3u + v; }
    // `n` elements of `s` (npos: up to its terminator).
    void put(char const* s, unsigned int n);
    void put(wchar_t const* s, unsigned int n);
    void put(std::string const& s);
    void put(std::wstring const& s);
    void put(char const* first, char const* last);
    void put(wchar_t const* first, wchar_t const* last);

    unsigned int getResult() const { return m_value; }

private:
    unsigned int m_value;
};

}  // namespace Velmor

#endif

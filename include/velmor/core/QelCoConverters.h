// QelCoConverters: whole-string conversion between multibyte text in the current locale and
// wide text, where the two meet in the core. Stateless and static; the caller's setlocale
// governs the conversion; safe on any thread whose locale is not being changed.
#ifndef VELMOR_CORE_QELCOCONVERTERS_H
#define VELMOR_CORE_QELCOCONVERTERS_H

#include <string>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

template <class T>
class QelBtTString;

class VELMOR_API QelCoConverters {
public:
    // Empty for empty input and for text the locale cannot convert. Throws
    // QelCoOutOfMemoryException when the buffer cannot be allocated.
    static std::wstring mbtowc(std::string const& text);
    static std::string wctomb(std::wstring const& text);
    // The same on the library's strings.
    static QelBtTString<wchar_t> qes_mbtowc(QelBtTString<char> const& text);
    static QelBtTString<char> qes_wctomb(QelBtTString<wchar_t> const& text);
};

}  // namespace Velmor

#endif

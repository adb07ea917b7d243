// QelCoExceptionString: a text owned by an exception, that may be null.
//
// Copies are made with QelCnfFunctions::cs_strdup, so a copy that memory does not allow is
// left null instead of throwing; readers fall back on fixed texts. Belongs to its exception.
#ifndef VELMOR_CORE_QELCOEXCEPTIONSTRING_H
#define VELMOR_CORE_QELCOEXCEPTIONSTRING_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCoExceptionString {
public:
    // A copy of `text`, or null for a null `text` or when memory is short.
    explicit QelCoExceptionString(char const* text = nullptr);
    QelCoExceptionString(QelCoExceptionString const& other);
    // A null source leaves this null; a source at the same address changes nothing;
    // otherwise the old text is freed and the source copied.
    QelCoExceptionString& operator=(QelCoExceptionString const& other);
    ~QelCoExceptionString();

    // Frees the text and takes ownership of `text` (made with array new, or null).
    void adopt(char* text);

    char const* get() const { return m_text; }
    bool isNull() const { return m_text == nullptr; }

private:
    char* m_text;
};

}  // namespace Velmor

#endif

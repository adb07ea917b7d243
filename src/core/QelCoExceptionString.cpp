#include <velmor/core/QelCoExceptionString.h>

#include <velmor/core/QelCnfFunctions.h>

namespace Velmor {

static char* fs_copyOrNull(char const* text) {
    return text != nullptr ? QelCnfFunctions::cs_strdup(text) : nullptr;
}

QelCoExceptionString::QelCoExceptionString(char const* text) : m_text(fs_copyOrNull(text)) {}

QelCoExceptionString::QelCoExceptionString(QelCoExceptionString const& other)
    : m_text(fs_copyOrNull(other.m_text)) {}

QelCoExceptionString& QelCoExceptionString::operator=(QelCoExceptionString const& other) {
    if (other.m_text == m_text) return *this;
    adopt(fs_copyOrNull(other.m_text));
    return *this;
}

QelCoExceptionString::~QelCoExceptionString() { delete[] m_text; }

void QelCoExceptionString::adopt(char* text) {
    delete[] m_text;
    m_text = text;
}

}  // namespace Velmor

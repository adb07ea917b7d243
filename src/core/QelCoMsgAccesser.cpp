#include <velmor/core/QelCoMsgAccesser.h>

#include <velmor/core/QelCoConverters.h>

namespace Velmor {

static nl_catd const fs_notOpen = reinterpret_cast<nl_catd>(-1);

QelCoMsgAccesser::QelCoMsgAccesser(char const* catalogueName, int number)
    : m_catalogue(fs_notOpen) {
    if (catalogueName == nullptr) return;
    m_catalogue = catopen(catalogueName, 0);
    if (m_catalogue == fs_notOpen) return;
    char const* text = catgets(m_catalogue, 1, number, nullptr);
    if (text != nullptr) m_text = text;
}

QelCoMsgAccesser::~QelCoMsgAccesser() {
    if (m_catalogue != fs_notOpen) catclose(m_catalogue);
}

std::string QelCoMsgAccesser::getMsg() const { return m_text; }

std::wstring QelCoMsgAccesser::wgetMsg() const {
    if (m_text.empty()) return std::wstring();
    try {
        return QelCoConverters::mbtowc(m_text);
    } catch (...) {
        return std::wstring();
    }
}

}  // namespace Velmor

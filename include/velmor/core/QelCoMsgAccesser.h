// QelCoMsgAccesser: reads one message of set 1 from one catalogue file, at construction.
// A local object of one caller; the catalogue stays open until it is destroyed.
#ifndef VELMOR_CORE_QELCOMSGACCESSER_H
#define VELMOR_CORE_QELCOMSGACCESSER_H

#include <nl_types.h>

#include <string>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCoMsgAccesser {
public:
    // Opens `catalogueName` (found by the system's catalogue search for a name without a
    // slash) and reads message `number`. A null name, a catalogue that cannot be opened or a
    // missing message leaves the text empty; none is an error.
    QelCoMsgAccesser(char const* catalogueName, int number);
    ~QelCoMsgAccesser();
    QelCoMsgAccesser(QelCoMsgAccesser const&) = delete;
    QelCoMsgAccesser& operator=(QelCoMsgAccesser const&) = delete;

    // The text read, empty if none.
    std::string getMsg() const;
    // The same, converted to wide characters in the current locale; empty on any failure.
    std::wstring wgetMsg() const;

private:
    nl_catd m_catalogue;
    std::string m_text;
};

}  // namespace Velmor

#endif

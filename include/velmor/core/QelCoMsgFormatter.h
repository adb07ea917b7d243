// QelCoMsgFormatter: turns a QelCoMsg into text and delivers it with a severity.
//
// The non-virtual part picks the template (the catalogue, else the default text) and fills in
// %1 to %9, %n, %t, %0 and %%. Subclasses deliver: standard error, nothing, an output stream
// or the system log. Formatters are shared through QelCoTSharedPtr; template selection is
// serialised inside, substitution and delivery are not, so a formatter writing to a stream
// should be used by one thread at a time.
#ifndef VELMOR_CORE_QELCOMSGFORMATTER_H
#define VELMOR_CORE_QELCOMSGFORMATTER_H

#include <string>

#include <velmor/core/QelCoCounted.h>

namespace Velmor {

class QelCoMsg;
template <class T>
class QelBtTString;

class VELMOR_API QelCoMsgFormatter : public virtual QelCoCounted {
    QEL_CO_DECLARE_RTTI()

public:
    ~QelCoMsgFormatter() override;

    // Deliver `msg` as an error, a warning or an information.
    virtual void error(QelCoMsg const& msg) = 0;
    virtual void warn(QelCoMsg const& msg) = 0;
    virtual void info(QelCoMsg const& msg) = 0;

    // The filled text of `msg` from the best template at hand (catalogue, else default text),
    // converted to the current locale. Empty when there is no template, the message has no
    // argument store, or memory runs out. Never throws.
    std::string format(QelCoMsg const& msg);
    std::wstring wformat(QelCoMsg const& msg);
    // The same from the default text alone, without the catalogue and without a lock.
    std::string formatDefaultMsg(QelCoMsg const& msg);
    std::wstring wformatDefaultMsg(QelCoMsg const& msg);
    // The same four texts as the library's strings.
    QelBtTString<char> qes_format(QelCoMsg const& msg);
    QelBtTString<wchar_t> qes_wformat(QelCoMsg const& msg);
    QelBtTString<char> qes_formatDefaultMsg(QelCoMsg const& msg);
    QelBtTString<wchar_t> qes_wformatDefaultMsg(QelCoMsg const& msg);
    // The unfilled default text of `msg`, or null.
    char const* fallbackMsg(QelCoMsg const& msg) const;

protected:
    QelCoMsgFormatter();
};

}  // namespace Velmor

#endif

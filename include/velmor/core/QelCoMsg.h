// QelCoMsg: one message: a number in a catalogue, a default text and up to nine text
// arguments, turned into text and delivered by a QelCoMsgFormatter.
//
// A message belongs to one thread. It never throws for want of memory: a lost argument store
// leaves it without arguments, a lost argument is one argument fewer.
#ifndef VELMOR_CORE_QELCOMSG_H
#define VELMOR_CORE_QELCOMSG_H

#include <string>

#include <velmor/core/QelCoMsgId.h>
#include <velmor/core/QelCoTSharedPtr.h>
#include <velmor/core/QelCoTUnsharedPtr.h>

namespace Velmor {

class QelCoMsgData;
class QelCoMsgFormatter;
template <class T>
class QelBtTString;

class VELMOR_API QelCoMsg {
public:
    // The number is -1 (unset) and there is no default text until setMsgId.
    QelCoMsg();
    explicit QelCoMsg(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter);
    explicit QelCoMsg(QelCoMsgId const& id);
    QelCoMsg(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter, QelCoMsgId const& id);
    QelCoMsg(QelCoMsg const& other);
    QelCoMsg& operator=(QelCoMsg const& other);
    ~QelCoMsg();

    void setMsgFormatter(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter);
    // Takes the number, default text and catalogue of `id` and drops the arguments streamed
    // so far: set the id first.
    void setMsgId(QelCoMsgId const& id);

    // Deliver the message with a severity. Without a formatter the default standard-error
    // formatter is installed in this message first.
    void error();
    void warn();
    void info();

    // The filled text, through this message's formatter or else the default one; empty if
    // neither can be had. format() and wformat() use the catalogue, the *DefaultMsg forms only
    // the default text.
    std::string format() const;
    std::wstring wformat() const;
    std::string formatDefaultMsg() const;
    std::wstring wformatDefaultMsg() const;
    // The same texts as the library's strings.
    QelBtTString<char> qes_format() const;
    QelBtTString<char> qes_formatDefaultMsg() const;
    QelBtTString<wchar_t> qes_wformat() const;
    QelBtTString<wchar_t> qes_wformatDefaultMsg() const;

    // Append the next argument (%1, %2, ...). Up to nine are kept; more are ignored. An empty
    // std::string or wide string, a null pointer, and wide text that the current locale
    // cannot convert are stored as "(null)"; an empty char const* stays empty.
    QelCoMsg& operator<<(int value);
    QelCoMsg& operator<<(std::string const& text);
    QelCoMsg& operator<<(char const* text);
    QelCoMsg& operator<<(std::wstring const& text);
    QelCoMsg& operator<<(wchar_t const* text);
    // As the char const* and wchar_t const* forms on c_str(): an empty string stays empty.
    QelCoMsg& operator<<(QelBtTString<char> const& text);
    QelCoMsg& operator<<(QelBtTString<wchar_t> const& text);

    QelCoTSharedPtr<QelCoMsgFormatter> getMsgFormatter() const;
    int getMsgId() const;
    char const* getDefaultMessage() const;
    char const* getFileName() const;
    // The number of stored arguments, and argument `index` (0 is %1) or null past the end.
    unsigned int getArgStrCount() const;
    char const* getArgStr(unsigned int index) const;

    // Does nothing on this platform.
    static void cs_setThreadLocaleUserLangID();

private:
    friend class QelCoMsgFormatter;
    // Whether the argument store exists; a message without one formats to empty text.
    bool hasArgStore() const { return !m_data.isNull(); }
    void append(char const* text);

    QelCoTUnsharedPtr<QelCoMsgData> m_data;
    QelCoTSharedPtr<QelCoMsgFormatter> m_formatter;
    int m_msgId;
    char const* m_defaultMessage;
    char const* m_fileName;
};

}  // namespace Velmor

#endif

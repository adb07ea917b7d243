#include <velmor/core/QelCoMsg.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <new>

#include <velmor/basic/QelBtTString.h>
#include <velmor/core/QelCoMsgFormatter.h>
#include <velmor/core/QelCoStderrMsgFormatter.h>
#include <velmor/thread/QelComtLocker.h>

namespace Velmor {

static char const* const fs_nullArgument = "(null)";

// The argument store of a message: up to nine texts made with array new.
class QelCoMsgData {
public:
    static constexpr unsigned int cs_maxArgs = 9;

    QelCoMsgData() : count(0), args() {}
    // Copies each argument; a copy that memory does not allow is left null.
    QelCoMsgData(QelCoMsgData const& other) : count(other.count), args() { copySlots(other); }
    QelCoMsgData& operator=(QelCoMsgData const&) = delete;
    ~QelCoMsgData() { clear(); }

    void clear() {
        for (unsigned int i = 0; i < count; ++i) {
            delete[] args[i];
            args[i] = nullptr;
        }
        count = 0;
    }
    void copySlots(QelCoMsgData const& other) {
        clear();
        for (unsigned int i = 0; i < other.count; ++i) {
            args[i] = other.args[i] != nullptr ? fs_copy(other.args[i]) : nullptr;
        }
        count = other.count;
    }
    static char* fs_copy(char const* text) {
        try {
            std::size_t size = std::strlen(text) + 1;
            char* slot = new char[size];
            std::memcpy(slot, text, size);
            return slot;
        } catch (std::exception const&) {
            return nullptr;
        }
    }

    unsigned int count;
    char* args[cs_maxArgs];
};

// The default formatter of messages that have none.
static QelCoTSharedPtr<QelCoMsgFormatter> fs_defMsgFormatter;
static QelComtLockable fs_coMsgLock;

static QelCoTSharedPtr<QelCoMsgFormatter> fs_getDefaultMessageFormatter() {
    try {
        QelComtLocker locker(&fs_coMsgLock);
        if (fs_defMsgFormatter.isNull()) {
            try {
                fs_defMsgFormatter = new QelCoStderrMsgFormatter();
            } catch (std::exception const&) {
                fs_defMsgFormatter = nullptr;
            }
        }
        return fs_defMsgFormatter;
    } catch (...) {
        return QelCoTSharedPtr<QelCoMsgFormatter>();
    }
}

static QelCoMsgData* fs_newData() {
    try {
        return new QelCoMsgData();
    } catch (std::exception const&) {
        return nullptr;
    }
}

QelCoMsg::QelCoMsg() : m_msgId(-1), m_defaultMessage(nullptr), m_fileName(nullptr) {
    m_data = fs_newData();
}

QelCoMsg::QelCoMsg(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter) : QelCoMsg() {
    m_formatter = formatter;
}

QelCoMsg::QelCoMsg(QelCoMsgId const& id) : QelCoMsg() { setMsgId(id); }

QelCoMsg::QelCoMsg(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter, QelCoMsgId const& id)
    : QelCoMsg(id) {
    m_formatter = formatter;
}

QelCoMsg::QelCoMsg(QelCoMsg const& other)
    : m_formatter(other.m_formatter),
      m_msgId(other.m_msgId),
      m_defaultMessage(other.m_defaultMessage),
      m_fileName(other.m_fileName) {
    if (other.m_data.isNull()) return;
    try {
        m_data = new QelCoMsgData(*other.m_data);
    } catch (std::exception const&) {
        // The copy lives on without arguments.
    }
}

QelCoMsg& QelCoMsg::operator=(QelCoMsg const& other) {
    if (this == &other) return *this;
    m_formatter = other.m_formatter;
    m_msgId = other.m_msgId;
    m_defaultMessage = other.m_defaultMessage;
    m_fileName = other.m_fileName;
    if (!m_data.isNull() && !other.m_data.isNull()) m_data->copySlots(*other.m_data);
    return *this;
}

QelCoMsg::~QelCoMsg() {}

void QelCoMsg::setMsgFormatter(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter) {
    m_formatter = formatter;
}

void QelCoMsg::setMsgId(QelCoMsgId const& id) {
    m_msgId = id.number;
    m_defaultMessage = id.defaultText;
    m_fileName = *id.base;
    if (!m_data.isNull()) m_data->clear();
}

void QelCoMsg::error() {
    if (m_formatter.isNull()) m_formatter = fs_getDefaultMessageFormatter();
    if (!m_formatter.isNull()) m_formatter->error(*this);
}

void QelCoMsg::warn() {
    if (m_formatter.isNull()) m_formatter = fs_getDefaultMessageFormatter();
    if (!m_formatter.isNull()) m_formatter->warn(*this);
}

void QelCoMsg::info() {
    if (m_formatter.isNull()) m_formatter = fs_getDefaultMessageFormatter();
    if (!m_formatter.isNull()) m_formatter->info(*this);
}

// This message's formatter, else the default one for this call only.
static QelCoTSharedPtr<QelCoMsgFormatter> fs_formatterFor(
    QelCoTSharedPtr<QelCoMsgFormatter> const& own) {
    return own.isNull() ? fs_getDefaultMessageFormatter() : own;
}

std::string QelCoMsg::format() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? std::string() : formatter->format(*this);
}

std::wstring QelCoMsg::wformat() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? std::wstring() : formatter->wformat(*this);
}

std::string QelCoMsg::formatDefaultMsg() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? std::string() : formatter->formatDefaultMsg(*this);
}

std::wstring QelCoMsg::wformatDefaultMsg() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? std::wstring() : formatter->wformatDefaultMsg(*this);
}

QelBtTString<char> QelCoMsg::qes_format() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? QelBtTString<char>() : formatter->qes_format(*this);
}

QelBtTString<char> QelCoMsg::qes_formatDefaultMsg() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? QelBtTString<char>() : formatter->qes_formatDefaultMsg(*this);
}

QelBtTString<wchar_t> QelCoMsg::qes_wformat() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? QelBtTString<wchar_t>() : formatter->qes_wformat(*this);
}

QelBtTString<wchar_t> QelCoMsg::qes_wformatDefaultMsg() const {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter = fs_formatterFor(m_formatter);
    return formatter.isNull() ? QelBtTString<wchar_t>() : formatter->qes_wformatDefaultMsg(*this);
}

QelCoMsg& QelCoMsg::operator<<(QelBtTString<char> const& text) { return *this << text.c_str(); }

QelCoMsg& QelCoMsg::operator<<(QelBtTString<wchar_t> const& text) { return *this << text.c_str(); }

void QelCoMsg::append(char const* text) {
    if (m_data.isNull() || m_data->count >= QelCoMsgData::cs_maxArgs) return;
    char* slot = QelCoMsgData::fs_copy(text);
    if (slot == nullptr) return;
    m_data->args[m_data->count++] = slot;
}

QelCoMsg& QelCoMsg::operator<<(int value) {
    char text[16];
    std::snprintf(text, sizeof text, "%d", value);
    append(text);
    return *this;
}

QelCoMsg& QelCoMsg::operator<<(std::string const& text) {
    append(text.empty() ? fs_nullArgument : text.c_str());
    return *this;
}

QelCoMsg& QelCoMsg::operator<<(char const* text) {
    append(text == nullptr ? fs_nullArgument : text);
    return *this;
}

// Converts wide text in the current locale and appends it; "(null)" when it is empty or
// cannot be converted.
static void fs_appendWide(QelCoMsg& msg, wchar_t const* text, std::size_t length) {
    if (length == 0) {
        msg << fs_nullArgument;
        return;
    }
    std::wstring bounded(text, length);
    std::size_t size = std::wcstombs(nullptr, bounded.c_str(), 0);
    if (size == static_cast<std::size_t>(-1)) {
        msg << fs_nullArgument;
        return;
    }
    char* converted = nullptr;
    try {
        converted = new char[size + 1];
    } catch (std::exception const&) {
        return;  // one argument fewer
    }
    if (std::wcstombs(converted, bounded.c_str(), size + 1) == static_cast<std::size_t>(-1)) {
        msg << fs_nullArgument;
    } else {
        converted[size] = '\0';
        msg << static_cast<char const*>(converted);
    }
    delete[] converted;
}

QelCoMsg& QelCoMsg::operator<<(std::wstring const& text) {
    if (m_data.isNull() || m_data->count >= QelCoMsgData::cs_maxArgs) return *this;
    try {
        fs_appendWide(*this, text.c_str(), text.length());
    } catch (std::exception const&) {
        // One argument fewer.
    }
    return *this;
}

QelCoMsg& QelCoMsg::operator<<(wchar_t const* text) {
    if (m_data.isNull() || m_data->count >= QelCoMsgData::cs_maxArgs) return *this;
    try {
        fs_appendWide(*this, text, text == nullptr ? 0 : std::wcslen(text));
    } catch (std::exception const&) {
        // One argument fewer.
    }
    return *this;
}

QelCoTSharedPtr<QelCoMsgFormatter> QelCoMsg::getMsgFormatter() const { return m_formatter; }

int QelCoMsg::getMsgId() const { return m_msgId; }

char const* QelCoMsg::getDefaultMessage() const { return m_defaultMessage; }

char const* QelCoMsg::getFileName() const { return m_fileName; }

unsigned int QelCoMsg::getArgStrCount() const { return m_data.isNull() ? 0 : m_data->count; }

char const* QelCoMsg::getArgStr(unsigned int index) const {
    if (m_data.isNull() || index >= m_data->count) return nullptr;
    return m_data->args[index];
}

void QelCoMsg::cs_setThreadLocaleUserLangID() {}

}  // namespace Velmor

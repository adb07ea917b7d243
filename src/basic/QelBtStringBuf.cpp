#include <velmor/basic/QelBtStringBuf.h>

#include <cstring>
#include <new>

#include <velmor/core/QelCoFailures.h>

namespace Velmor {

static char const* const fs_dataName = "QelBtStringBufData";

// A buffer of `size` bytes; exhausted memory is reported for `methodName`.
static char* fs_newBuffer(unsigned int size, char const* methodName) {
    try {
        return new char[size];
    } catch (std::exception const&) {
        g_qelCoNewMemoryFailed(fs_dataName, methodName);
    }
}

QelBtStringBufData::QelBtStringBufData() : buffer(nullptr), capacity(0), length(0) {}

QelBtStringBufData::QelBtStringBufData(QelBtStringBufData const& other)
    : buffer(nullptr), capacity(0), length(0) {
    if (other.buffer != nullptr) assign(other.buffer, other.length);
}

QelBtStringBufData& QelBtStringBufData::operator=(QelBtStringBufData const& other) {
    if (this != &other && other.buffer != nullptr) assign(other.buffer, other.length);
    return *this;
}

QelBtStringBufData::~QelBtStringBufData() { delete[] buffer; }

// A multiple of 512 strictly above `n`.
static unsigned int fs_roundedSize(unsigned int n) { return (n & ~0x1ffu) + 512; }

void QelBtStringBufData::allocate(unsigned int n) {
    if (capacity >= n) return;
    unsigned int size = fs_roundedSize(n);
    char* fresh = fs_newBuffer(size, "allocate");
    delete[] buffer;
    buffer = fresh;
    capacity = size;
    length = 0;
    buffer[0] = '\0';
}

void QelBtStringBufData::resize(unsigned int n) {
    if (capacity >= n) return;
    unsigned int size = fs_roundedSize(n);
    char* fresh = fs_newBuffer(size, "resize");
    if (buffer != nullptr) std::memcpy(fresh, buffer, length);
    fresh[length] = '\0';
    delete[] buffer;
    buffer = fresh;
    capacity = size;
}

void QelBtStringBufData::assign(char const* s, unsigned int n) {
    if (n == QelBtStringConsts::npos) n = fs_getPtrLen(s);
    allocate(n + 1);
    std::memmove(buffer, s, n);
    length = n;
    buffer[n] = '\0';
}

void QelBtStringBufData::append(char const* s, unsigned int n) {
    if (n == QelBtStringConsts::npos) n = fs_getPtrLen(s);
    if (length + n + 1 > capacity) resize(length + n + 1);
    copy(s, s + n, buffer + length);
    length += n;
    buffer[length] = '\0';
}

void QelBtStringBufData::insert(unsigned int pos, char const* s, unsigned int n) {
    if (n == QelBtStringConsts::npos) n = fs_getPtrLen(s);
    if (length + n + 1 > capacity) resize(length + n + 1);
    if (length != 0) fs_move(buffer + pos + n, buffer + pos, length - pos);
    copy(s, s + n, buffer + pos);
    length += n;
    buffer[length] = '\0';
}

void QelBtStringBufData::erase() {
    if (buffer == nullptr) return;
    length = 0;
    buffer[0] = '\0';
}

void QelBtStringBufData::copy(char const* first, char const* last, char* dst) {
    while (first != last)
        *dst++ = *first++;
}

QelBtStringBuf::QelBtStringBuf() {}

QelBtStringBuf::QelBtStringBuf(unsigned int n) {
    if (n != 0) m_data.allocate(n);
}

QelBtStringBuf::QelBtStringBuf(char const* s) { m_data.assign(s, npos); }

QelBtStringBuf::QelBtStringBuf(char const* s, unsigned int n) { m_data.assign(s, n); }

QelBtStringBuf::QelBtStringBuf(std::string const& s) {
    m_data.assign(s.data(), static_cast<unsigned int>(s.size()));
}

QelBtStringBuf::QelBtStringBuf(QelBtTString<char> const& s) { m_data.assign(s.data(), s.length()); }

QelBtStringBuf::QelBtStringBuf(B const& other) : m_data(other.m_data) {}

QelBtStringBuf::~QelBtStringBuf() {}

QelBtStringBuf& QelBtStringBuf::operator=(char const* s) { return assign(s); }
QelBtStringBuf& QelBtStringBuf::operator=(std::string const& s) { return assign(s); }
QelBtStringBuf& QelBtStringBuf::operator=(QelBtTString<char> const& s) { return assign(s); }
QelBtStringBuf& QelBtStringBuf::operator=(B const& other) { return assign(other); }

QelBtStringBuf& QelBtStringBuf::operator=(char c) {
    m_data.resize(2);
    if (c != '\0') {
        m_data.buffer[0] = c;
        m_data.buffer[1] = '\0';
        m_data.length = 1;
    }
    return *this;
}

QelBtStringBuf& QelBtStringBuf::assign(char const* s) {
    m_data.assign(s, npos);
    return *this;
}

QelBtStringBuf& QelBtStringBuf::assign(char const* s, unsigned int n) {
    m_data.assign(s, n);
    return *this;
}

QelBtStringBuf& QelBtStringBuf::assign(std::string const& s) {
    m_data.assign(s.data(), static_cast<unsigned int>(s.size()));
    return *this;
}

QelBtStringBuf& QelBtStringBuf::assign(QelBtTString<char> const& s) {
    m_data.assign(s.data(), s.length());
    return *this;
}

QelBtStringBuf& QelBtStringBuf::assign(B const& other) {
    m_data = other.m_data;
    return *this;
}

QelBtStringBuf& QelBtStringBuf::append(char const* s) { return append(s, npos); }

QelBtStringBuf& QelBtStringBuf::append(char const* s, unsigned int n) {
    m_data.append(s, n);
    return *this;
}

QelBtStringBuf& QelBtStringBuf::append(std::string const& s) {
    return append(s.data(), static_cast<unsigned int>(s.size()));
}

QelBtStringBuf& QelBtStringBuf::append(B const& other) {
    if (other.m_data.buffer == nullptr) return *this;
    if (&other == this) {
        B copy(other);
        return append(copy.m_data.buffer, copy.m_data.length);
    }
    return append(other.m_data.buffer, other.m_data.length);
}

QelBtStringBuf& QelBtStringBuf::append(QelBtTString<char> const& s) {
    return append(s.data(), s.length());
}

QelBtStringBuf& QelBtStringBuf::operator+=(char const* s) { return append(s); }
QelBtStringBuf& QelBtStringBuf::operator+=(std::string const& s) { return append(s); }
QelBtStringBuf& QelBtStringBuf::operator+=(B const& other) { return append(other); }
QelBtStringBuf& QelBtStringBuf::operator+=(QelBtTString<char> const& s) { return append(s); }

QelBtStringBuf& QelBtStringBuf::operator+=(char c) {
    if (c == '\0') return *this;
    return append(&c, 1);
}

QelBtStringBuf& QelBtStringBuf::insert(unsigned int pos, char const* s) {
    return insert(pos, s, npos);
}

QelBtStringBuf& QelBtStringBuf::insert(unsigned int pos, char const* s, unsigned int n) {
    m_data.insert(pos, s, n);
    return *this;
}

QelBtStringBuf& QelBtStringBuf::insert(unsigned int pos, std::string const& s) {
    return insert(pos, s.data(), static_cast<unsigned int>(s.size()));
}

QelBtStringBuf& QelBtStringBuf::insert(unsigned int pos, QelBtTString<char> const& s) {
    return insert(pos, s.data(), s.length());
}

QelBtStringBuf& QelBtStringBuf::insert(unsigned int pos, B const& other) {
    if (other.m_data.buffer == nullptr) return *this;
    B copy(other);
    return insert(pos, copy.m_data.buffer, copy.m_data.length);
}

void QelBtStringBuf::resize(unsigned int n) {
    m_data.resize(n);
    if (m_data.length > n) {
        m_data.length = n;
        m_data.buffer[n] = '\0';
    }
}

QelBtStringBuf& QelBtStringBuf::erase() {
    m_data.erase();
    return *this;
}

std::string QelBtStringBuf::toString() const {
    return m_data.buffer == nullptr ? std::string() : std::string(m_data.buffer);
}

QelBtTString<char> QelBtStringBuf::toQelBtString() const {
    return m_data.buffer == nullptr ? QelBtTString<char>() : QelBtTString<char>(m_data.buffer);
}

std::ostream& operator<<(std::ostream& stream, QelBtStringBuf const& buffer) {
    if (buffer.c_str() != nullptr) stream << buffer.c_str();
    return stream;
}

}  // namespace Velmor

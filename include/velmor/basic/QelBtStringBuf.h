// QelBtStringBuf: an unshared, growing char buffer for building text piece by piece.
//
// Capacity grows in steps of 512 bytes; copies copy the bytes. A buffer is a plain object of
// its owner and belongs to one thread at a time. The only failure reported is exhausted
// memory, as QelCoOutOfMemoryException; positions are not checked.
#ifndef VELMOR_BASIC_QELBTSTRINGBUF_H
#define VELMOR_BASIC_QELBTSTRINGBUF_H

#include <ostream>
#include <string>

#include <velmor/basic/QelBtTString.h>

namespace Velmor {

// The bytes of a QelBtStringBuf and the work on them. Counts of npos mean "up to the
// terminator".
class VELMOR_API QelBtStringBufData {
public:
    QelBtStringBufData();
    QelBtStringBufData(QelBtStringBufData const& other);
    QelBtStringBufData& operator=(QelBtStringBufData const& other);
    ~QelBtStringBufData();

    // Room for `n` bytes in a multiple of 512 strictly above n (n with its low nine bits
    // cleared, plus 512), without keeping the text; nothing if there is room already.
    void allocate(unsigned int n);
    // Room for `n` bytes, in the same steps, keeping the text; the length is not changed.
    void resize(unsigned int n);
    void assign(char const* s, unsigned int n);
    void append(char const* s, unsigned int n);
    void insert(unsigned int pos, char const* s, unsigned int n);
    void erase();
    // Copies [first, last) to `dst`, from the lowest address up.
    static void copy(char const* first, char const* last, char* dst);

    char* buffer;           // null until the first allocation
    unsigned int capacity;  // 0, or a multiple of 512
    unsigned int length;    // terminator excluded
};

class VELMOR_API QelBtStringBuf {
public:
    typedef QelBtStringBuf B;
    static constexpr unsigned int npos = QelBtStringConsts::npos;

    // No buffer: capacity 0 and c_str() null until something is stored.
    QelBtStringBuf();
    // Room for `n` bytes (none for 0), empty text.
    explicit QelBtStringBuf(unsigned int n);
    QelBtStringBuf(char const* s);
    QelBtStringBuf(char const* s, unsigned int n);
    QelBtStringBuf(std::string const& s);
    QelBtStringBuf(QelBtTString<char> const& s);
    QelBtStringBuf(B const& other);
    virtual ~QelBtStringBuf();

    B& operator=(char const* s);
    B& operator=(std::string const& s);
    B& operator=(QelBtTString<char> const& s);
    B& operator=(B const& other);
    // A non-zero `c` becomes the whole text; a zero `c` leaves the text as it was.
    B& operator=(char c);
    B& assign(char const* s);
    B& assign(char const* s, unsigned int n);
    B& assign(std::string const& s);
    B& assign(QelBtTString<char> const& s);
    B& assign(B const& other);

    B& append(char const* s);
    B& append(char const* s, unsigned int n);
    B& append(std::string const& s);
    B& append(B const& other);
    B& append(QelBtTString<char> const& s);
    B& operator+=(char const* s);
    B& operator+=(std::string const& s);
    B& operator+=(B const& other);
    B& operator+=(QelBtTString<char> const& s);
    // A zero `c` is dropped.
    B& operator+=(char c);

    B& insert(unsigned int pos, char const* s);
    B& insert(unsigned int pos, char const* s, unsigned int n);
    B& insert(unsigned int pos, std::string const& s);
    B& insert(unsigned int pos, QelBtTString<char> const& s);
    B& insert(unsigned int pos, B const& other);

    // Grows the room to hold `n` bytes, keeping the text; cuts the text to `n` if longer.
    void resize(unsigned int n);
    // Empties the text, keeping the room.
    B& erase();

    char& operator[](unsigned int i) { return m_data.buffer[i]; }
    char const& operator[](unsigned int i) const { return m_data.buffer[i]; }
    // The buffer, null while there is none.
    char* data() const { return m_data.buffer; }
    char const* c_str() const { return m_data.buffer; }
    unsigned int capacity() const { return m_data.capacity; }
    unsigned int length() const { return m_data.length; }
    unsigned int size() const { return m_data.length; }
    bool empty() const { return m_data.length == 0; }

    // The text up to its first zero byte; empty without a buffer.
    std::string toString() const;
    QelBtTString<char> toQelBtString() const;

private:
    QelBtStringBufData m_data;
};

// Writes c_str() (nothing without a buffer).
VELMOR_API std::ostream& operator<<(std::ostream& stream, QelBtStringBuf const& buffer);

}  // namespace Velmor

#endif

// QelBtTString<T>: the library's copy-on-write string, for char, wchar_t, unsigned short
// (UCS-2) and long (UCS) elements.
//
// A copy shares the text and costs one count; the text is duplicated only when a sharer is
// written to. The count is plain, without lock or atomic: a string and every copy that may
// share its text belong to one thread at a time (hand text to another thread as
// QelBtTString(s.c_str(), s.length())). Blocks come from malloc and follow a fixed step table
// (QelBtStringConsts::cs_getAllocSize); the only failure reported is exhausted memory, as
// QelCoOutOfMemoryException. No position is checked: positions and counts beyond the text are a
// limit on the caller, except where a method says how it absorbs them. Comparison and search
// stop at the first zero element, whatever the length says.
#ifndef VELMOR_BASIC_QELBTTSTRING_H
#define VELMOR_BASIC_QELBTTSTRING_H

#include <ostream>

#include <velmor/basic/QelBtStringBlock.h>
#include <velmor/basic/QelBtStringConsts.h>
#include <velmor/basic/QelBtTReverseCPtr.h>
#include <velmor/basic/QelBtTReversePtr.h>

namespace Velmor {

template <class T>
class VELMOR_API QelBtTString {
public:
    using S = QelBtTString<T>;
    static constexpr unsigned int npos = QelBtStringConsts::npos;

    // An empty text in a block of 64 elements.
    QelBtTString();
    // The text of `s` up to its terminator, or its first `n` elements.
    QelBtTString(T const* s);
    QelBtTString(T const* s, unsigned int n);
    // Shares the text of `o`.
    QelBtTString(S const& o) : m_block(o.m_block) { __refUp(); }
    // A private copy of `n` elements of `o` from `pos`.
    QelBtTString(S const& o, unsigned int pos, unsigned int n);
    // Room for the larger of n + 1 and `cap` elements; the text is `n` copies of `c`, or
    // empty when `c` is zero.
    QelBtTString(T c, unsigned int n, unsigned int cap = 0);
    virtual ~QelBtTString() { __refDown(); }

    // Assigning text copies it (`n` = npos: up to the terminator); assigning a string shares
    // its block. A zero `c` gives the empty text.
    S& assign(T const* s, unsigned int n);
    S& assign(T const* s);
    S& assign(S const& o);
    S& assign(S const& o, unsigned int pos, unsigned int n);
    S& operator=(T const* s) { return assign(s); }
    S& operator=(S const& o) { return assign(o); }
    S& operator=(T c);

    // Appending, inserting and replacing a string that is this very string work from a copy
    // of its text up to the first zero element. A zero `c` is dropped.
    S& append(T const* s, unsigned int n);
    S& append(T const* s);
    S& append(S const& o);
    S& append(S const& o, unsigned int pos, unsigned int n);
    S& operator+=(T const* s) { return append(s); }
    S& operator+=(S const& o) { return append(o); }
    S& operator+=(T c) {
        push_back(c);
        return *this;
    }
    void push_back(T c) {
        if (c == T(0)) return;
        QelBtStringBlock* block = m_block;
        if (block->refCount == 1 && block->length + 2 <= block->capacity) {
            T* text = static_cast<T*>(block->elements());
            text[block->length] = c;
            text[++block->length] = T(0);
            return;
        }
        appendElement(c);
    }
    S& insert(unsigned int pos, T const* s, unsigned int n);
    S& insert(unsigned int pos, T const* s);
    S& insert(unsigned int pos, S const& o);
    S& insert(unsigned int pos, S const& o, unsigned int pos2, unsigned int n);
    // Inserts `c` before `p` and returns the pointer to it.
    T* insert(T* p, T c);
    // Erases `n` elements from `pos` (npos or past the end: to the end). A `pos` at or past
    // the end erases nothing, but a shared block is unshared all the same.
    S& erase(unsigned int pos = 0, unsigned int n = npos);
    T* erase(T* p);
    T* erase(T* first, T* last);
    // Replaces `n` elements from `pos` by `m` elements of `s` (npos: up to its terminator).
    S& replace(unsigned int pos, unsigned int n, T const* s, unsigned int m);
    S& replace(unsigned int pos, unsigned int n, T const* s);
    S& replace(unsigned int pos, unsigned int n, S const& o);
    S& replace(unsigned int pos, unsigned int n, S const& o, unsigned int pos2, unsigned int m);

    unsigned int length() const { return m_block->length; }
    unsigned int size() const { return m_block->length; }
    unsigned int capacity() const { return m_block->capacity; }
    bool empty() const { return m_block->length == 0; }
    // Cuts the text to `n` elements if it is longer; never lengthens it.
    void resize(unsigned int n);
    // Makes room for `n` elements (terminator included) in a block of its own.
    void reserve(unsigned int n);

    // Reading access never unshares; writing access (non-const begin, end, [], T*, rbegin,
    // rend) makes the block this string's own first. Pointers stay valid until the next
    // non-const operation.
    T const* c_str() const { return static_cast<T const*>(m_block->elements()); }
    T const* data() const { return c_str(); }
    operator T const*() const { return c_str(); }
    T const* begin() const { return c_str(); }
    T const* end() const { return c_str() + m_block->length; }
    T const& operator[](unsigned int i) const { return c_str()[i]; }
    T const& operator[](int i) const { return c_str()[i]; }
    T* begin();
    T* end();
    operator T*();
    T& operator[](unsigned int i);
    T& operator[](int i);
    QelBtTReversePtr<T> rbegin();
    QelBtTReversePtr<T> rend();
    QelBtTReverseCPtr<T> rbegin() const;
    QelBtTReverseCPtr<T> rend() const;
    // A private copy of `n` elements from `pos`.
    S substr(unsigned int pos = 0, unsigned int n = npos) const;

    // -1, 0 or 1. Both sides are walked together for the larger of the two counts, each
    // stopping at its first zero element. A `pos` past the end gives 1.
    int compare(unsigned int pos, unsigned int n, T const* s, unsigned int m) const;
    int compare(T const* s) const;
    int compare(unsigned int pos, unsigned int n, T const* s) const;
    int compare(S const& o) const;
    int compare(unsigned int pos, unsigned int n, S const& o) const;
    int compare(unsigned int pos, unsigned int n, S const& o, unsigned int pos2,
                unsigned int m) const;
    bool operator==(T const* s) const;
    bool operator==(S const& o) const;
    bool operator!=(T const* s) const { return !(*this == s); }
    bool operator!=(S const& o) const { return !(*this == o); }
    bool operator<(T const* s) const { return compare(0, length(), s) < 0; }
    bool operator>(T const* s) const { return compare(0, length(), s) > 0; }
    bool operator<=(T const* s) const { return compare(0, length(), s) <= 0; }
    bool operator>=(T const* s) const { return compare(0, length(), s) >= 0; }
    bool operator<(S const& o) const { return compare(0, length(), o.data(), o.length()) < 0; }
    bool operator>(S const& o) const { return compare(0, length(), o.data(), o.length()) > 0; }
    bool operator<=(S const& o) const { return compare(0, length(), o.data(), o.length()) <= 0; }
    bool operator>=(S const& o) const { return compare(0, length(), o.data(), o.length()) >= 0; }

    // Searches return the position of the hit or npos. The pattern or set is the first `n`
    // elements of `s` up to its terminator; an empty one finds nothing. Upward searches from a
    // `pos` at or past the end find nothing; rfind starts such a search at the last element.
    unsigned int find(T const* s, unsigned int pos, unsigned int n) const;
    unsigned int find(T const* s, unsigned int pos = 0) const;
    unsigned int find(S const& o, unsigned int pos = 0) const;
    unsigned int find(T c, unsigned int pos = 0) const;
    unsigned int rfind(T const* s, unsigned int pos, unsigned int n) const;
    unsigned int rfind(T const* s, unsigned int pos = npos) const;
    unsigned int rfind(S const& o, unsigned int pos = npos) const;
    unsigned int rfind(T c, unsigned int pos = npos) const;
    unsigned int find_first_of(T const* s, unsigned int pos, unsigned int n) const;
    unsigned int find_first_of(T const* s, unsigned int pos = 0) const;
    unsigned int find_first_of(S const& o, unsigned int pos = 0) const;
    unsigned int find_first_of(T c, unsigned int pos = 0) const;
    unsigned int find_last_of(T const* s, unsigned int pos, unsigned int n) const;
    unsigned int find_last_of(T const* s, unsigned int pos = npos) const;
    unsigned int find_last_of(S const& o, unsigned int pos = npos) const;
    unsigned int find_last_of(T c, unsigned int pos = npos) const;
    unsigned int find_first_not_of(T const* s, unsigned int pos, unsigned int n) const;
    unsigned int find_first_not_of(T const* s, unsigned int pos = 0) const;
    unsigned int find_first_not_of(S const& o, unsigned int pos = 0) const;
    unsigned int find_first_not_of(T c, unsigned int pos = 0) const;
    unsigned int find_last_not_of(T const* s, unsigned int pos, unsigned int n) const;
    unsigned int find_last_not_of(T const* s, unsigned int pos = npos) const;
    unsigned int find_last_not_of(S const& o, unsigned int pos = npos) const;
    unsigned int find_last_not_of(T c, unsigned int pos = npos) const;

    // The block's count, and the two ways of owning a block alone: __allocate drops the text
    // (on failure the string has no block and may only be assigned or destroyed),
    // __copyOnWrite keeps it (on failure nothing changes). Both throw
    // QelCoOutOfMemoryException.
    void __refUp() {
        if (m_block != nullptr) ++m_block->refCount;
    }
    void __refDown() { QelBtStringBlock::cs_refDown(m_block); }
    void __allocate(unsigned int need);
    void __copyOnWrite(unsigned int need);

    // Failure simulation hooks; they do nothing in this build.
    void dbg_enableFail(int) const {}
    void dbg_disableFail() const {}
    bool dbg_shouldFail(char const*, char const*) const { return false; }

private:
    T* elements() { return static_cast<T*>(m_block->elements()); }
    // One element at the end when the block must grow or be unshared first.
    void appendElement(T c);
    void setLength(unsigned int length) {
        m_block->length = length;
        elements()[length] = T(0);
    }

    QelBtStringBlock* m_block;
};

// The library holds the members not defined here for the four element types
// char, wchar_t, unsigned short and long.

// Writes c_str().
VELMOR_API std::ostream& operator<<(std::ostream& stream, QelBtTString<char> const& s);

}  // namespace Velmor

#endif

#include <velmor/basic/QelBtTString.h>

#include <cstring>
#include <cwchar>

#include <velmor/basic/QelBtTStringMethods.h>

namespace Velmor {

namespace {

// Elements compare with the signedness of their type; char as signed on every platform.
template <class T>
struct fs_Compared {
    using type = T;
};
template <>
struct fs_Compared<char> {
    using type = signed char;
};

unsigned int fs_min(unsigned int a, unsigned int b) { return a < b ? a : b; }

template <class T>
bool fs_less(T a, T b) {
    using C = typename fs_Compared<T>::type;
    return static_cast<C>(a) < static_cast<C>(b);
}

// Element scans, through the C library where it has them for the element type.
template <class T>
struct fs_Elements {
    static unsigned int length(T const* s) {
        unsigned int length = 0;
        while (s[length] != T(0))
            ++length;
        return length;
    }
    static T const* find(T const* from, T c, unsigned int count) {
        for (unsigned int i = 0; i < count; ++i) {
            if (from[i] == c) return from + i;
        }
        return nullptr;
    }
    // Elements before the first zero, at most `limit`.
    static unsigned int boundedLength(T const* s, unsigned int limit) {
        unsigned int length = 0;
        while (length < limit && s[length] != T(0))
            ++length;
        return length;
    }
};

template <>
struct fs_Elements<char> {
    static unsigned int length(char const* s) { return static_cast<unsigned int>(std::strlen(s)); }
    static char const* find(char const* from, char c, unsigned int count) {
        return static_cast<char const*>(std::memchr(from, c, count));
    }
    static unsigned int boundedLength(char const* s, unsigned int limit) {
        return static_cast<unsigned int>(strnlen(s, limit));
    }
};

template <>
struct fs_Elements<wchar_t> {
    static unsigned int length(wchar_t const* s) {
        return static_cast<unsigned int>(std::wcslen(s));
    }
    static wchar_t const* find(wchar_t const* from, wchar_t c, unsigned int count) {
        return std::wmemchr(from, c, count);
    }
    static unsigned int boundedLength(wchar_t const* s, unsigned int limit) {
        return static_cast<unsigned int>(wcsnlen(s, limit));
    }
};

// The length of `s` up to its terminator.
template <class T>
unsigned int fs_length(T const* s) {
    return fs_Elements<T>::length(s);
}

// Walks `a` and `b` together for up to `limit` elements, each stopping at its first zero
// element, and answers as the core comparison does. `aReadable` and `bReadable` bound what may
// be read of each side; each holds a zero element at its last readable place, or the walk
// ends at `limit` before it.
template <class T>
int fs_walk(T const* a, unsigned int aReadable, T const* b, unsigned int bReadable,
            unsigned int limit) {
    if (limit == 0) return b[0] != T(0) ? -1 : 0;
    unsigned int span = fs_min(limit, fs_min(aReadable, bReadable));
    // Where both sides agree on the whole span, a zero in it is a zero on both sides, and the
    // walk ends equal either way.
    if (std::memcmp(a, b, std::size_t(span) * sizeof(T)) == 0) return 0;
    unsigned int const chunk = 64;
    unsigned int first = 0;
    while (std::memcmp(a + first, b + first,
                       std::size_t(fs_min(chunk, span - first)) * sizeof(T)) == 0) {
        first += chunk;
    }
    while (a[first] == b[first])
        ++first;
    // A zero before the first difference ends the walk there, on both sides at once.
    if (fs_Elements<T>::boundedLength(a, first) < first) return 0;
    if (a[first] == T(0)) return -1;
    if (b[first] == T(0)) return 1;
    return fs_less(a[first], b[first]) ? -1 : 1;
}

// The core comparison of `n` elements of `text` (of `length`) from `pos` with `m` elements of
// `s` (npos: up to its terminator). `sReadable` is how much of `s` may be read, when the
// caller knows it (a string's length plus its terminator), or npos.
template <class T>
int fs_compare(T const* text, unsigned int length, unsigned int pos, unsigned int n, T const* s,
               unsigned int m, unsigned int sReadable) {
    unsigned int const npos = QelBtStringConsts::npos;
    if (pos > length) return 1;
    if (n == npos) n = length - pos;
    if (m == npos) {
        m = fs_Elements<T>::length(s);
        sReadable = m + 1;
    }
    unsigned int limit = n > m ? n : m;
    if (sReadable == npos) {
        // The walk may read `s` up to its terminator or the limit, whatever `m` says.
        unsigned int before = fs_Elements<T>::boundedLength(s, limit);
        sReadable = before < limit ? before + 1 : limit;
    }
    return fs_walk(text + pos, length - pos + 1, s, sReadable, limit);
}

// Whether `c` is among the first `k` elements of `set`.
template <class T>
bool fs_inSet(T c, T const* set, unsigned int k) {
    for (unsigned int i = 0; i < k; ++i) {
        if (set[i] == c) return true;
    }
    return false;
}

}  // namespace

template <class T>
QelBtTString<T>::QelBtTString() : m_block(nullptr) {
    __allocate(31);
}

template <class T>
QelBtTString<T>::QelBtTString(T const* s) : m_block(nullptr) {
    assign(s, npos);
}

template <class T>
QelBtTString<T>::QelBtTString(T const* s, unsigned int n) : m_block(nullptr) {
    assign(s, n);
}

template <class T>
QelBtTString<T>::QelBtTString(S const& o, unsigned int pos, unsigned int n) : m_block(nullptr) {
    assign(o.data() + pos, n);
}

template <class T>
QelBtTString<T>::QelBtTString(T c, unsigned int n, unsigned int cap) : m_block(nullptr) {
    __allocate(n + 1 > cap ? n + 1 : cap);
    if (c == T(0)) return;
    T* text = elements();
    for (unsigned int i = 0; i < n; ++i)
        text[i] = c;
    setLength(n);
}

template <class T>
void QelBtTString<T>::__allocate(unsigned int need) {
    QelBtStringBlock::cs_allocate(m_block, need, sizeof(T));
}

template <class T>
void QelBtTString<T>::__copyOnWrite(unsigned int need) {
    QelBtStringBlock::cs_copyOnWrite(m_block, need, sizeof(T));
}

template <class T>
QelBtTString<T>& QelBtTString<T>::assign(T const* s, unsigned int n) {
    if (n == npos) n = fs_length(s);
    __allocate(n + 1);
    QelBtTStringMethods<T>::copy(elements(), s, n);
    setLength(n);
    return *this;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::assign(T const* s) {
    return assign(s, npos);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::assign(S const& o) {
    if (m_block == o.m_block) return *this;
    __refDown();
    m_block = o.m_block;
    __refUp();
    return *this;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::assign(S const& o, unsigned int pos, unsigned int n) {
    return assign(o.data() + pos, n);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::operator=(T c) {
    T const text[2] = {c, T(0)};
    return assign(text, c == T(0) ? 0 : 1);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::append(T const* s, unsigned int n) {
    if (n == npos) n = fs_length(s);
    unsigned int length = this->length();
    __copyOnWrite(length + n + 1);
    QelBtTStringMethods<T>::copy(elements() + length, s, n);
    setLength(length + n);
    return *this;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::append(T const* s) {
    return append(s, npos);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::append(S const& o) {
    if (&o == this) {
        S text(c_str());
        return append(text.c_str(), npos);
    }
    return append(o.data(), o.length());
}

template <class T>
QelBtTString<T>& QelBtTString<T>::append(S const& o, unsigned int pos, unsigned int n) {
    if (&o == this) {
        S text(c_str());
        return append(text.data() + pos, n);
    }
    return append(o.data() + pos, n);
}

template <class T>
void QelBtTString<T>::appendElement(T c) {
    T const text[2] = {c, T(0)};
    append(text, 1);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::insert(unsigned int pos, T const* s, unsigned int n) {
    if (n == npos) n = fs_length(s);
    unsigned int length = this->length();
    __copyOnWrite(length + n + 1);
    T* text = elements();
    if (length != 0) QelBtTStringMethods<T>::move(text + pos + n, text + pos, length - pos);
    QelBtTStringMethods<T>::copy(text + pos, s, n);
    setLength(length + n);
    return *this;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::insert(unsigned int pos, T const* s) {
    return insert(pos, s, npos);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::insert(unsigned int pos, S const& o) {
    if (&o == this) {
        S text(c_str());
        return insert(pos, text.data(), text.length());
    }
    return insert(pos, o.data(), o.length());
}

template <class T>
QelBtTString<T>& QelBtTString<T>::insert(unsigned int pos, S const& o, unsigned int pos2,
                                         unsigned int n) {
    if (&o == this) {
        S text(c_str());
        return insert(pos, text.data() + pos2, n);
    }
    return insert(pos, o.data() + pos2, n);
}

template <class T>
T* QelBtTString<T>::insert(T* p, T c) {
    unsigned int offset = static_cast<unsigned int>(p - begin());
    T const text[2] = {c, T(0)};
    insert(offset, text, 1);
    return begin() + offset;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::erase(unsigned int pos, unsigned int n) {
    __copyOnWrite(npos);
    unsigned int length = this->length();
    if (pos >= length) return *this;
    if (n != npos && length - pos > n) {
        T* text = elements();
        QelBtTStringMethods<T>::copy(text + pos, text + pos + n, length - pos - n);
        setLength(length - n);
    } else {
        setLength(pos);
    }
    return *this;
}

template <class T>
T* QelBtTString<T>::erase(T* p) {
    erase(static_cast<unsigned int>(p - begin()), 1);
    return p;
}

template <class T>
T* QelBtTString<T>::erase(T* first, T* last) {
    erase(static_cast<unsigned int>(first - begin()), static_cast<unsigned int>(last - first));
    return first;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::replace(unsigned int pos, unsigned int n, T const* s,
                                          unsigned int m) {
    unsigned int length = this->length();
    if (n == npos) n = length - pos;
    if (m == npos) m = fs_length(s);
    unsigned int newLength = length + m - n;
    __copyOnWrite((newLength > length ? newLength : length) + 1);
    T* text = elements();
    unsigned int tail = length - (pos + n);
    if (n > m) QelBtTStringMethods<T>::copy(text + pos + m, text + pos + n, tail);
    if (n < m) QelBtTStringMethods<T>::move(text + pos + m, text + pos + n, tail);
    QelBtTStringMethods<T>::copy(text + pos, s, m);
    setLength(newLength);
    return *this;
}

template <class T>
QelBtTString<T>& QelBtTString<T>::replace(unsigned int pos, unsigned int n, T const* s) {
    return replace(pos, n, s, npos);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::replace(unsigned int pos, unsigned int n, S const& o) {
    if (&o == this) {
        S text(c_str());
        return replace(pos, n, text.data(), npos);
    }
    return replace(pos, n, o.data(), npos);
}

template <class T>
QelBtTString<T>& QelBtTString<T>::replace(unsigned int pos, unsigned int n, S const& o,
                                          unsigned int pos2, unsigned int m) {
    if (&o == this) {
        S text(c_str());
        return replace(pos, n, text.data() + pos2, m);
    }
    return replace(pos, n, o.data() + pos2, m);
}

template <class T>
void QelBtTString<T>::resize(unsigned int n) {
    __copyOnWrite(n);
    if (length() > n) setLength(n);
}

template <class T>
void QelBtTString<T>::reserve(unsigned int n) {
    __copyOnWrite(n);
}

template <class T>
T* QelBtTString<T>::begin() {
    __copyOnWrite(npos);
    return elements();
}

template <class T>
T* QelBtTString<T>::end() {
    __copyOnWrite(npos);
    return elements() + length();
}

template <class T>
QelBtTString<T>::operator T*() {
    return begin();
}

template <class T>
T& QelBtTString<T>::operator[](unsigned int i) {
    return begin()[i];
}

template <class T>
T& QelBtTString<T>::operator[](int i) {
    return begin()[i];
}

template <class T>
QelBtTReversePtr<T> QelBtTString<T>::rbegin() {
    return QelBtTReversePtr<T>(end() - 1);
}

template <class T>
QelBtTReversePtr<T> QelBtTString<T>::rend() {
    return QelBtTReversePtr<T>(begin() - 1);
}

template <class T>
QelBtTReverseCPtr<T> QelBtTString<T>::rbegin() const {
    return QelBtTReverseCPtr<T>(end() - 1);
}

template <class T>
QelBtTReverseCPtr<T> QelBtTString<T>::rend() const {
    return QelBtTReverseCPtr<T>(begin() - 1);
}

template <class T>
QelBtTString<T> QelBtTString<T>::substr(unsigned int pos, unsigned int n) const {
    return S(*this, pos, n);
}

template <class T>
int QelBtTString<T>::compare(unsigned int pos, unsigned int n, T const* s, unsigned int m) const {
    return fs_compare(c_str(), length(), pos, n, s, m, npos);
}

template <class T>
int QelBtTString<T>::compare(T const* s) const {
    unsigned int other = fs_length(s);
    return compare(0, length() > other ? length() : other, s, npos);
}

template <class T>
int QelBtTString<T>::compare(unsigned int pos, unsigned int n, T const* s) const {
    return compare(pos, n, s, npos);
}

template <class T>
int QelBtTString<T>::compare(S const& o) const {
    if (m_block == o.m_block) return 0;
    return fs_compare(c_str(), length(), 0, length(), o.data(), o.length(), o.length() + 1);
}

template <class T>
int QelBtTString<T>::compare(unsigned int pos, unsigned int n, S const& o) const {
    if (m_block == o.m_block) return 0;
    return fs_compare(c_str(), length(), pos, n, o.data(), o.length(), o.length() + 1);
}

template <class T>
int QelBtTString<T>::compare(unsigned int pos, unsigned int n, S const& o, unsigned int pos2,
                             unsigned int m) const {
    return compare(pos, n, o.data() + pos2, m);
}

template <class T>
bool QelBtTString<T>::operator==(T const* s) const {
    if (length() != fs_length(s)) return false;
    return compare(0, length(), s) == 0;
}

template <class T>
bool QelBtTString<T>::operator==(S const& o) const {
    if (m_block == o.m_block) return true;
    if (length() != o.length()) return false;
    return compare(0, length(), o.data(), length()) == 0;
}

template <class T>
unsigned int QelBtTString<T>::find(T const* s, unsigned int pos, unsigned int n) const {
    unsigned int k = fs_min(n, fs_length(s));
    unsigned int length = this->length();
    T const* text = c_str();
    if (k == 0) {
        // Only a zero element stored inside the text can match an empty pattern.
        for (unsigned int i = pos; i < length; ++i) {
            if (text[i] == s[0] && compare(i, k, s, k) == 0) return i;
        }
        return npos;
    }
    // The pattern has no zero element among its first k, so a match is an equal run of k
    // elements that ends inside the text.
    for (unsigned int i = pos; i < length && k <= length - i; ++i) {
        T const* hit = fs_Elements<T>::find(text + i, s[0], length - i);
        if (hit == nullptr) return npos;
        i = static_cast<unsigned int>(hit - text);
        if (k > length - i) return npos;
        if (std::memcmp(hit, s, std::size_t(k) * sizeof(T)) == 0) return i;
    }
    return npos;
}

template <class T>
unsigned int QelBtTString<T>::rfind(T const* s, unsigned int pos, unsigned int n) const {
    unsigned int k = fs_min(n, fs_length(s));
    unsigned int length = this->length();
    if (length == 0) return npos;
    T const* text = c_str();
    for (unsigned int i = pos >= length ? length - 1 : pos;; --i) {
        if (text[i] == s[0] && compare(i, k, s, k) == 0) return i;
        if (i == 0) return npos;
    }
}

template <class T>
unsigned int QelBtTString<T>::find_first_of(T const* s, unsigned int pos, unsigned int n) const {
    unsigned int k = fs_min(n, fs_length(s));
    T const* text = c_str();
    for (unsigned int i = pos; i < length(); ++i) {
        if (fs_inSet(text[i], s, k)) return i;
    }
    return npos;
}

template <class T>
unsigned int QelBtTString<T>::find_first_not_of(T const* s, unsigned int pos,
                                                unsigned int n) const {
    unsigned int k = fs_min(n, fs_length(s));
    T const* text = c_str();
    for (unsigned int i = pos; i < length(); ++i) {
        if (!fs_inSet(text[i], s, k)) return i;
    }
    return npos;
}

// The downward set searches start at `pos`, or the last element for npos; a `pos` past the
// end is taken as the last element too, so the search never reads outside the text.
template <class T>
unsigned int QelBtTString<T>::find_last_of(T const* s, unsigned int pos, unsigned int n) const {
    unsigned int k = fs_min(n, fs_length(s));
    unsigned int length = this->length();
    if (length == 0) return npos;
    T const* text = c_str();
    for (unsigned int i = pos >= length ? length - 1 : pos;; --i) {
        if (fs_inSet(text[i], s, k)) return i;
        if (i == 0) return npos;
    }
}

template <class T>
unsigned int QelBtTString<T>::find_last_not_of(T const* s, unsigned int pos, unsigned int n) const {
    unsigned int k = fs_min(n, fs_length(s));
    unsigned int length = this->length();
    if (length == 0) return npos;
    T const* text = c_str();
    for (unsigned int i = pos >= length ? length - 1 : pos;; --i) {
        if (!fs_inSet(text[i], s, k)) return i;
        if (i == 0) return npos;
    }
}

// The other forms of each search: the pattern up to its terminator, a string's text up to its
// first zero element, or one element.
#define QEL_BT_STRING_SEARCH_FORMS(name)                                     \
    template <class T>                                                       \
    unsigned int QelBtTString<T>::name(T const* s, unsigned int pos) const { \
        return name(s, pos, npos);                                           \
    }                                                                        \
    template <class T>                                                       \
    unsigned int QelBtTString<T>::name(S const& o, unsigned int pos) const { \
        return name(o.data(), pos, npos);                                    \
    }                                                                        \
    template <class T>                                                       \
    unsigned int QelBtTString<T>::name(T c, unsigned int pos) const {        \
        T const pattern[2] = {c, T(0)};                                      \
        return name(pattern, pos, npos);                                     \
    }

QEL_BT_STRING_SEARCH_FORMS(find)
QEL_BT_STRING_SEARCH_FORMS(rfind)
QEL_BT_STRING_SEARCH_FORMS(find_first_of)
QEL_BT_STRING_SEARCH_FORMS(find_last_of)
QEL_BT_STRING_SEARCH_FORMS(find_first_not_of)
QEL_BT_STRING_SEARCH_FORMS(find_last_not_of)

std::ostream& operator<<(std::ostream& stream, QelBtTString<char> const& s) {
    return stream << s.c_str();
}

template class QelBtTString<char>;
template class QelBtTString<wchar_t>;
template class QelBtTString<unsigned short>;
template class QelBtTString<long>;

}  // namespace Velmor

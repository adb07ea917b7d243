// QelBtStringConsts: the names used in the string classes' failure reports, the count
// sentinel npos, and the capacity step table of QelBtTString. Constant data and a pure
// function; any thread.
#ifndef VELMOR_BASIC_QELBTSTRINGCONSTS_H
#define VELMOR_BASIC_QELBTSTRINGCONSTS_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelBtStringConsts {
public:
    // All bits set: "up to the terminator", "the rest", "the last element" or "not found".
    static constexpr unsigned int npos = 0xffffffffu;

    static char const* cs_string;         // "QelBtTString"
    static char const* cs_allocate;       // "__allocate"
    static char const* cs_resize;         // "resize"
    static char const* cs_assign;         // "assign"
    static char const* cs_copyOnWrite;    // "copyOnWrite"
    static char const* cs_reserve;        // "reserve"
    static char const* cs_append;         // "append"
    static char const* cs_insert;         // "insert"
    static char const* cs_erase;          // "erase"
    static char const* cs_replace;        // "replace"
    static char const* cs_operatorArray;  // "operator []"
    static char const* cs_operatorT;      // "operator T"
    static char const* cs_begin;          // "begin"
    static char const* cs_rbegin;         // "rbegin"
    static char const* cs_end;            // "end"
    static char const* cs_rend;           // "rend"

    // The capacity, in elements, for a request of `n` elements: 64 up to 31, 128 up to 63,
    // 192 up to 127, 320 up to 255, 640 up to 511, 1280 up to 1023, and n + 512 from 1024 on.
    static unsigned int cs_getAllocSize(unsigned int n);
};

// The length of `s` up to its terminator.
VELMOR_API unsigned int fs_getPtrLen(char const* s);
// Copies `n` bytes from the highest address down, for a target above the source.
VELMOR_API void fs_move(char* dst, char* src, unsigned int n);

}  // namespace Velmor

#endif

#include <velmor/basic/QelBtStringConsts.h>

namespace Velmor {

char const* QelBtStringConsts::cs_string = "QelBtTString";
char const* QelBtStringConsts::cs_allocate = "__allocate";
char const* QelBtStringConsts::cs_resize = "resize";
char const* QelBtStringConsts::cs_assign = "assign";
char const* QelBtStringConsts::cs_copyOnWrite = "copyOnWrite";
char const* QelBtStringConsts::cs_reserve = "reserve";
char const* QelBtStringConsts::cs_append = "append";
char const* QelBtStringConsts::cs_insert = "insert";
char const* QelBtStringConsts::cs_erase = "erase";
char const* QelBtStringConsts::cs_replace = "replace";
char const* QelBtStringConsts::cs_operatorArray = "operator []";
char const* QelBtStringConsts::cs_operatorT = "operator T";
char const* QelBtStringConsts::cs_begin = "begin";
char const* QelBtStringConsts::cs_rbegin = "rbegin";
char const* QelBtStringConsts::cs_end = "end";
char const* QelBtStringConsts::cs_rend = "rend";

unsigned int QelBtStringConsts::cs_getAllocSize(unsigned int n) {
    if (n < 32) return 64;
    if (n < 64) return 128;
    if (n < 128) return 192;
    if (n < 256) return 320;
    if (n < 512) return 640;
    if (n < 1024) return 1280;
    return n + 512;
}

unsigned int fs_getPtrLen(char const* s) {
    unsigned int length = 0;
    while (s[length] != '\0')
        ++length;
    return length;
}

void fs_move(char* dst, char* src, unsigned int n) {
    for (unsigned int i = n; i > 0; --i)
        dst[i - 1] = src[i - 1];
}

}  // namespace Velmor

// QelCnfSysParams: the platform's separators, the library's version and facts about the
// operating system. All static. The functions that return char const* return static buffers
// that the next call overwrites: threads that share them need a lock of their own.
#ifndef VELMOR_PLATFORM_QELCNFSYSPARAMS_H
#define VELMOR_PLATFORM_QELCNFSYSPARAMS_H

#include <string>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCnfSysParams {
public:
    static char const* cs_fileSeparator;     // "/"
    static char const* cs_pathSeparator;     // ";"
    static char const* cs_lineSeparator;     // "\n"
    static char const* cs_endOfString;       // ""
    static std::wstring wstr_lineSeparator;  // empty
    static std::wstring wstr_endOfString;    // empty

    // The product version and the file version: the last word of their version texts.
    static char const* cs_qelVersion();
    static char const* cs_qelFileVersion();
    // The system's name and release, from uname. Throw QelCoSystemCallException on failure.
    static char const* cs_osName();
    static char const* cs_osVersion();
    // "Unknown".
    static char const* cs_osArch();
    // The current working directory (at most 4095 bytes). Throws QelCoSystemCallException
    // ("getcwd") on failure.
    static char const* cs_userDir();
    static int cs_getCurrentProcessId();
};

}  // namespace Velmor

#endif

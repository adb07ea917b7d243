#include <velmor/platform/QelCnfSysParams.h>

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include <velmor/core/QelCoSystemCallException.h>
#include <velmor/platform/QelCnfVersionInfoData.h>
#include <velmor/platform/QelOsUnix.h>

namespace Velmor {

char const* QelCnfSysParams::cs_fileSeparator = "/";
char const* QelCnfSysParams::cs_pathSeparator = ";";
char const* QelCnfSysParams::cs_lineSeparator = "\n";
char const* QelCnfSysParams::cs_endOfString = "";
std::wstring QelCnfSysParams::wstr_lineSeparator;
std::wstring QelCnfSysParams::wstr_endOfString;

static char fs_cszCurrentDir[4096];

// What stands behind the last blank of `text`, or all of it, copied into `buffer`.
static char const* fs_lastWord(char const* text, char* buffer, std::size_t size) {
    char const* blank = std::strrchr(text, ' ');
    char const* word = blank != nullptr ? blank + 1 : text;
    std::strncpy(buffer, word, size - 1);
    buffer[size - 1] = '\0';
    return buffer;
}

char const* QelCnfSysParams::cs_qelVersion() {
    static char version[128];
    return fs_lastWord(QelCnfVersionInfoData::cs_productVersion, version, sizeof version);
}

char const* QelCnfSysParams::cs_qelFileVersion() {
    static char version[128];
    return fs_lastWord(QelCnfVersionInfoData::cs_fileVersion, version, sizeof version);
}

// uname into a static record. Every caller is reported as "cs_osName"; `operation` tells
// them apart.
static struct utsname* fs_uname(char const* operation) {
    static struct utsname systemName;
    if (QelOsUnix::cs_uname(&systemName) != 0) {
        throw QelCoSystemCallException("QelCnfSysParams", "cs_osName", operation, errno);
    }
    return &systemName;
}

char const* QelCnfSysParams::cs_osName() { return fs_uname("cs_osName")->sysname; }

char const* QelCnfSysParams::cs_osVersion() { return fs_uname("cs_osVersion")->release; }

char const* QelCnfSysParams::cs_osArch() { return "Unknown"; }

char const* QelCnfSysParams::cs_userDir() {
    if (QelOsUnix::cs_getcwd(fs_cszCurrentDir, sizeof fs_cszCurrentDir - 1) == nullptr) {
        throw QelCoSystemCallException("QelCnfSysParams", "cs_userDir", "getcwd", errno);
    }
    return fs_cszCurrentDir;
}

int QelCnfSysParams::cs_getCurrentProcessId() { return static_cast<int>(::getpid()); }

}  // namespace Velmor

// Helpers shared by the test programs: catalogue selection, capture of standard error, and
// one-shot failures of system calls through the QelOsUnix fault hook.
#ifndef VELMOR_TESTS_SUPPORT_VELMORTESTSUPPORT_H
#define VELMOR_TESTS_SUPPORT_VELMORTESTSUPPORT_H

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>

#include <velmor/platform/QelOsUnix.h>

namespace VelmorTest {

// Points the catalogue search (NLSPATH) at `directory` for the life of the object; an empty
// directory name means "no catalogue anywhere".
class ScopedCatalogue {
public:
    explicit ScopedCatalogue(std::string const& directory) {
        char const* old = std::getenv("NLSPATH");
        m_hadOld = old != nullptr;
        if (m_hadOld) m_old = old;
        std::string path = directory.empty() ? std::string("/nonexistent/%N") : directory + "/%N";
        setenv("NLSPATH", path.c_str(), 1);
    }
    ~ScopedCatalogue() {
        if (m_hadOld) {
            setenv("NLSPATH", m_old.c_str(), 1);
        } else {
            unsetenv("NLSPATH");
        }
    }

private:
    bool m_hadOld;
    std::string m_old;
};

inline std::string builtCatalogueDir() { return VELMOR_TEST_CATALOG_DIR; }
inline std::string alternativeCatalogueDir() { return VELMOR_TEST_ALT_CATALOG_DIR; }

// Switches LC_ALL to `name`, a locale compiled into the build tree, for the life of the
// object; ok() tells whether the locale could be set.
class ScopedLocale {
public:
    explicit ScopedLocale(char const* name) : m_old(std::setlocale(LC_ALL, nullptr)) {
        setenv("LOCPATH", VELMOR_TEST_LOCALE_DIR, 1);
        m_ok = std::setlocale(LC_ALL, name) != nullptr;
    }
    ~ScopedLocale() {
        std::setlocale(LC_ALL, m_old.c_str());
        unsetenv("LOCPATH");
    }
    bool ok() const { return m_ok; }

private:
    std::string m_old;
    bool m_ok;
};

// Collects what is written to std::cerr while it lives.
class CerrCapture {
public:
    CerrCapture() : m_old(std::cerr.rdbuf(m_buffer.rdbuf())) {}
    ~CerrCapture() { std::cerr.rdbuf(m_old); }
    std::string text() const { return m_buffer.str(); }

private:
    std::ostringstream m_buffer;
    std::streambuf* m_old;
};

// Makes the next wrapped system call named `callName` on this thread fail with `error`.
class InjectedFault {
public:
    InjectedFault(char const* callName, int error) {
        t_callName = callName;
        t_error = error;
        m_previous = Velmor::QelOsUnix::cs_setFaultHook(&hook);
    }
    ~InjectedFault() {
        t_callName = nullptr;
        Velmor::QelOsUnix::cs_setFaultHook(m_previous);
    }
    // Whether the fault has been delivered.
    bool fired() const { return t_callName == nullptr; }

private:
    static int hook(char const* callName) {
        if (t_callName == nullptr || std::strcmp(callName, t_callName) != 0) return 0;
        t_callName = nullptr;
        return t_error;
    }
    static inline thread_local char const* t_callName = nullptr;
    static inline thread_local int t_error = 0;
    Velmor::QelOsUnixFaultHook m_previous;
};

}  // namespace VelmorTest

#endif

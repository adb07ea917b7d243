#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

char const* QelMessageId_t::cs_base = "velqel.cat";

extern "C" {
char const* g_QelMessageConsts[QelMessageId_t::cs_count] = {
    "%2 thrown at %1: no further information available.",
    "%2 thrown at %1: no further information available.",
    "%2 thrown at %1: no further information available.",
    "%2 thrown at %1: The %3 failed.",
    "%2 thrown at %1: referred a null pointer.",
    "%2 thrown at %1: %3 is a null pointer.",
    "%2 thrown at %1: this instance (address=%3) cannot cast from %4 to %5.",
    "%2 thrown at %1: cannot continue due to memory shortage.",
    "%2 thrown at %1: cannot continue %3 due to resource shortage.",
    "%2 thrown at %1: system-call=%3. errno=%4.",
    "%2 thrown at %1: %3.",
    "%2 thrown at %1: %3.",
    "%2 thrown at %1: %3.",
    "%2 thrown at %1: operation=%3. object=%4. errno=%5.",
    "%2 thrown at %1: %4 not found file or directory. operation=%3. errno=%5.",
    "%2 thrown at %1: %4 has no space. operation=%3. errno=%5.",
    "%2 thrown at %1: %4 arrive at EOF. operation=%3.",
    "%2 thrown at %1: cannot access for %4. operation=%3. errno=%5.",
    "%2 thrown at %1: not found line break.",
    "%2 thrown at %1: operation=%3. object=%4. errno=%5.",
    "%2 thrown at %1: cannot access for %4. operation=%3. errno=%5.",
    "%2 thrown at %1: cannot find %4. operation=%3. errno=%5.",
    "%2 thrown at %1: %3 has illegal numerical format.",
    "%2 thrown at %1: assert an error.",
    "stream has already closed.",
    "cannot stop inactive timer.",
    "cannot destroy running timer.",
    "cannot operate uninitialized timer.",
    "specified timer already activated.",
    "cannot operate uninitialized event.",
    "cannot destroy event object used by another thread.",
    "cannot destroy lock-object used by another thread.",
    "cannot use uninitialized lock-object.",
    "cannot destroy spin-lock-object used by another thread.",
    "cannot use uninitialized spin-lock-object.",
    "cannot delete running thread-object.",
    "cannot rerun running thread-object.",
    "cannot wait(join) not-started thread.",
    "deadlock detected.",
    "cannot use uninitialized thread.",
    "buffer size must be more than 0 to create pipe-lock.",
    "producer is required for writing to pipe-lock.",
    "consumer is required for reading from pipe-lock.",
    "PLWLOG uses another log file.",
    "Entry %1 is not found in PLWLOG.",
    "%2 thrown at %1. input or output interrupted. operation=%3.",
    "%2 thrown at %1. %3 is an illegal option.",
    "invalid character type specified to convert string.",
    "cannot use about not running thread.",
    "cannot call QelMtThread::detach() after called QelMtThread::join().",
    "cannot call QelMtThread::join() after called QelMtThread::detach().",
    "cannot use this class with the library which is a single thread edition.",
    "%2 thrown at %1. %4 is an out of value of %3.",
    "%1 is an illegal format.",
    "%1 is an illegal format with a year-figure.",
    "%1 is a form control string which does not correspond to your input string %2.",
    "you must set numerical characters in \"%%nY\" of %1.",
    "it is inputted an illegal number of figure to %1.",
    "the maximum number of the fixed resource pool must be more than 0.",
    "cannot deallocate a resource over the maximum number of the fixed resource pool.",
};
}

// Numbers and catalogue are fixed at load; the default texts come with this file's initialiser.
QelMessageId_t QelMessageId = {{
    {&QelMessageId_t::cs_base, 1, nullptr},  {&QelMessageId_t::cs_base, 2, nullptr},
    {&QelMessageId_t::cs_base, 3, nullptr},  {&QelMessageId_t::cs_base, 4, nullptr},
    {&QelMessageId_t::cs_base, 5, nullptr},  {&QelMessageId_t::cs_base, 6, nullptr},
    {&QelMessageId_t::cs_base, 7, nullptr},  {&QelMessageId_t::cs_base, 8, nullptr},
    {&QelMessageId_t::cs_base, 9, nullptr},  {&QelMessageId_t::cs_base, 10, nullptr},
    {&QelMessageId_t::cs_base, 11, nullptr}, {&QelMessageId_t::cs_base, 12, nullptr},
    {&QelMessageId_t::cs_base, 13, nullptr}, {&QelMessageId_t::cs_base, 14, nullptr},
    {&QelMessageId_t::cs_base, 15, nullptr}, {&QelMessageId_t::cs_base, 16, nullptr},
    {&QelMessageId_t::cs_base, 17, nullptr}, {&QelMessageId_t::cs_base, 18, nullptr},
    {&QelMessageId_t::cs_base, 19, nullptr}, {&QelMessageId_t::cs_base, 20, nullptr},
    {&QelMessageId_t::cs_base, 21, nullptr}, {&QelMessageId_t::cs_base, 22, nullptr},
    {&QelMessageId_t::cs_base, 23, nullptr}, {&QelMessageId_t::cs_base, 24, nullptr},
    {&QelMessageId_t::cs_base, 25, nullptr}, {&QelMessageId_t::cs_base, 26, nullptr},
    {&QelMessageId_t::cs_base, 27, nullptr}, {&QelMessageId_t::cs_base, 28, nullptr},
    {&QelMessageId_t::cs_base, 29, nullptr}, {&QelMessageId_t::cs_base, 30, nullptr},
    {&QelMessageId_t::cs_base, 31, nullptr}, {&QelMessageId_t::cs_base, 32, nullptr},
    {&QelMessageId_t::cs_base, 33, nullptr}, {&QelMessageId_t::cs_base, 34, nullptr},
    {&QelMessageId_t::cs_base, 35, nullptr}, {&QelMessageId_t::cs_base, 36, nullptr},
    {&QelMessageId_t::cs_base, 37, nullptr}, {&QelMessageId_t::cs_base, 38, nullptr},
    {&QelMessageId_t::cs_base, 39, nullptr}, {&QelMessageId_t::cs_base, 40, nullptr},
    {&QelMessageId_t::cs_base, 41, nullptr}, {&QelMessageId_t::cs_base, 42, nullptr},
    {&QelMessageId_t::cs_base, 43, nullptr}, {&QelMessageId_t::cs_base, 44, nullptr},
    {&QelMessageId_t::cs_base, 45, nullptr}, {&QelMessageId_t::cs_base, 46, nullptr},
    {&QelMessageId_t::cs_base, 47, nullptr}, {&QelMessageId_t::cs_base, 48, nullptr},
    {&QelMessageId_t::cs_base, 49, nullptr}, {&QelMessageId_t::cs_base, 50, nullptr},
    {&QelMessageId_t::cs_base, 51, nullptr}, {&QelMessageId_t::cs_base, 52, nullptr},
    {&QelMessageId_t::cs_base, 53, nullptr}, {&QelMessageId_t::cs_base, 54, nullptr},
    {&QelMessageId_t::cs_base, 55, nullptr}, {&QelMessageId_t::cs_base, 56, nullptr},
    {&QelMessageId_t::cs_base, 57, nullptr}, {&QelMessageId_t::cs_base, 58, nullptr},
    {&QelMessageId_t::cs_base, 59, nullptr}, {&QelMessageId_t::cs_base, 60, nullptr},
}};

struct QelMessageDefaultTexts {
    QelMessageDefaultTexts() {
        for (int number = 1; number <= QelMessageId_t::cs_count; ++number) {
            QelMessageId[number].defaultText = g_QelMessageConsts[number - 1];
        }
    }
};

static QelMessageDefaultTexts fs_defaultTexts;

}  // namespace Velmor

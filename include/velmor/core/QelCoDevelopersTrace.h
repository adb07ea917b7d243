// QelCoDevelopersTrace: a traced frame governed by a second, separate pair of settings, so that
// developers' detail can be switched on apart from the application's ordinary trace.
//
// Its frames use the formatter and threshold set by QelCoDevelopersTrace::cs_enableTrace; with
// no developers' formatter set they write to the process's formatter (QelCoTrace::cs_enableTrace),
// still under the developers' threshold. It has every event of QelCoTrace. Like QelCoTrace, an
// object lives on one thread's stack and the settings take no lock.
#ifndef VELMOR_CORE_QELCODEVELOPERSTRACE_H
#define VELMOR_CORE_QELCODEVELOPERSTRACE_H

#include <velmor/core/QelCoTrace.h>

namespace Velmor {

class VELMOR_API QelCoDevelopersTrace : public QelCoTrace {
public:
    // Opens the frame; `level` is the level of `enter` and `exit`. A null `object` throws
    // QelCoNullPointerException.
    QelCoDevelopersTrace(QelCoObject const* object, char const* methodName, int level);
    QelCoDevelopersTrace(char const* className, char const* methodName, int level);
    QelCoDevelopersTrace(char const* methodName, int level);
    // The frame is closed by ~QelCoTrace.
    ~QelCoDevelopersTrace();

    // Sets the developers' formatter (null: the process's) and threshold, with no test.
    static void cs_enableTrace(QelCoTraceFormatter* formatter, int threshold);
    // Clears the developers' formatter and turns their frames off.
    static void cs_disableTrace();
};

}  // namespace Velmor

#endif

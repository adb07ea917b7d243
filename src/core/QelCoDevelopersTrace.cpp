#include <velmor/core/QelCoDevelopersTrace.h>

namespace Velmor {

static QelCoTraceFormatter* fs_pFormatterDvlp = nullptr;
static int fs_thresholdDvlp = QelCoTrace::cs_thresholdOff;

QelCoDevelopersTrace::QelCoDevelopersTrace(QelCoObject const* object, char const* methodName,
                                           int level) {
    do_construct(fs_pFormatterDvlp, object, methodName, fs_thresholdDvlp, level);
}

QelCoDevelopersTrace::QelCoDevelopersTrace(char const* className, char const* methodName,
                                           int level) {
    do_construct(fs_pFormatterDvlp, className, methodName, fs_thresholdDvlp, level);
}

QelCoDevelopersTrace::QelCoDevelopersTrace(char const* methodName, int level) {
    do_construct(fs_pFormatterDvlp, methodName, fs_thresholdDvlp, level);
}

QelCoDevelopersTrace::~QelCoDevelopersTrace() {}

void QelCoDevelopersTrace::cs_enableTrace(QelCoTraceFormatter* formatter, int threshold) {
    fs_pFormatterDvlp = formatter;
    fs_thresholdDvlp = threshold;
}

void QelCoDevelopersTrace::cs_disableTrace() {
    fs_pFormatterDvlp = nullptr;
    fs_thresholdDvlp = QelCoTrace::cs_thresholdOff;
}

}  // namespace Velmor

// QelCoStderrMsgFormatter: delivers messages to standard error, one line each, after the
// prefix "error: ", "warn: " or "info: ". The default formatter of messages and exceptions.
// Shared through QelCoTSharedPtr; it takes no lock around std::cerr.
#ifndef VELMOR_CORE_QELCOSTDERRMSGFORMATTER_H
#define VELMOR_CORE_QELCOSTDERRMSGFORMATTER_H

#include <velmor/core/QelCoMsgFormatter.h>

namespace Velmor {

class VELMOR_API QelCoStderrMsgFormatter : public QelCoMsgFormatter {
    QEL_CO_DECLARE_RTTI()

public:
    QelCoStderrMsgFormatter();
    ~QelCoStderrMsgFormatter() override;

    void error(QelCoMsg const& msg) override;
    void warn(QelCoMsg const& msg) override;
    void info(QelCoMsg const& msg) override;

    // Writes `prefix` and the filled text; without one, the unfilled default text; without
    // that, "MessageID=" and the number.
    void report(QelCoMsg const& msg, char const* prefix);
};

}  // namespace Velmor

#endif

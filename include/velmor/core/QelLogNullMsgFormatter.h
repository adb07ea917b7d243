// QelLogNullMsgFormatter: a formatter that delivers nothing, for silencing messages while
// keeping their formatting. Shared through QelCoTSharedPtr; any thread.
#ifndef VELMOR_CORE_QELLOGNULLMSGFORMATTER_H
#define VELMOR_CORE_QELLOGNULLMSGFORMATTER_H

#include <velmor/core/QelCoMsgFormatter.h>

namespace Velmor {

class VELMOR_API QelLogNullMsgFormatter : public QelCoMsgFormatter {
    QEL_CO_DECLARE_RTTI()

public:
    QelLogNullMsgFormatter();
    ~QelLogNullMsgFormatter() override;

    // Do nothing.
    void error(QelCoMsg const& msg) override;
    void warn(QelCoMsg const& msg) override;
    void info(QelCoMsg const& msg) override;
};

}  // namespace Velmor

#endif

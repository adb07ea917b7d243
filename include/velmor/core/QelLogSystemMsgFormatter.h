// QelLogSystemMsgFormatter: delivers messages to syslog with priority LOG_ERR, LOG_WARNING
// or LOG_INFO, filled from the default texts (the catalogue plays no part). The library calls
// neither openlog nor closelog. Shared through QelCoTSharedPtr; any thread.
#ifndef VELMOR_CORE_QELLOGSYSTEMMSGFORMATTER_H
#define VELMOR_CORE_QELLOGSYSTEMMSGFORMATTER_H

#include <velmor/core/QelCoMsgFormatter.h>
#include <velmor/core/QelCoTUnsharedPtr.h>

namespace Velmor {

class QelLogSystemMsgFormatterData;

class VELMOR_API QelLogSystemMsgFormatter : public QelCoMsgFormatter {
    QEL_CO_DECLARE_RTTI()

public:
    // Throws QelCoOutOfMemoryException if the formatter's data cannot be allocated.
    QelLogSystemMsgFormatter();
    ~QelLogSystemMsgFormatter() override;

    void error(QelCoMsg const& msg) override;
    void warn(QelCoMsg const& msg) override;
    void info(QelCoMsg const& msg) override;

private:
    QelCoTUnsharedPtr<QelLogSystemMsgFormatterData> m_data;
};

}  // namespace Velmor

#endif

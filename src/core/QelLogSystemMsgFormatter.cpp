#include <velmor/core/QelLogSystemMsgFormatter.h>

#include <syslog.h>

#include <new>
#include <string>

#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoMsg.h>

namespace Velmor {

// The system log needs no state of the formatter's own.
class QelLogSystemMsgFormatterData {};

QEL_CO_DEFINE_RTTI(QelLogSystemMsgFormatter, QelCoMsgFormatter)

// Logs the text filled from the default template; the catalogue plays no part.
static void fs_report(QelCoMsg const& msg, int priority) {
    std::string text = msg.formatDefaultMsg();
    if (!text.empty()) {
        syslog(priority, "%s", text.c_str());
    } else if (msg.getDefaultMessage() != nullptr) {
        syslog(priority, "%s", msg.getDefaultMessage());
    } else {
        syslog(priority, "MessageID=%d", msg.getMsgId());
    }
}

QelLogSystemMsgFormatter::QelLogSystemMsgFormatter() {
    QelLogSystemMsgFormatterData* data = nullptr;
    try {
        data = new QelLogSystemMsgFormatterData();
    } catch (std::exception const&) {
        data = nullptr;
    }
    if (data == nullptr) {
        g_qelCoNewMemoryFailed("QelLogSystemMsgFormatter", "QelLogSystemMsgFormatter");
    }
    m_data = data;
}

QelLogSystemMsgFormatter::~QelLogSystemMsgFormatter() {}

void QelLogSystemMsgFormatter::error(QelCoMsg const& msg) { fs_report(msg, LOG_ERR); }

void QelLogSystemMsgFormatter::warn(QelCoMsg const& msg) { fs_report(msg, LOG_WARNING); }

void QelLogSystemMsgFormatter::info(QelCoMsg const& msg) { fs_report(msg, LOG_INFO); }

}  // namespace Velmor

#include <velmor/core/QelCoStderrMsgFormatter.h>

#include <cstdio>
#include <iostream>
#include <string>

#include <velmor/core/QelCoMsg.h>

namespace Velmor {

QEL_CO_DEFINE_RTTI(QelCoStderrMsgFormatter, QelCoMsgFormatter)

QelCoStderrMsgFormatter::QelCoStderrMsgFormatter() {}

QelCoStderrMsgFormatter::~QelCoStderrMsgFormatter() {}

void QelCoStderrMsgFormatter::error(QelCoMsg const& msg) { report(msg, "error: "); }

void QelCoStderrMsgFormatter::warn(QelCoMsg const& msg) { report(msg, "warn: "); }

void QelCoStderrMsgFormatter::info(QelCoMsg const& msg) { report(msg, "info: "); }

void QelCoStderrMsgFormatter::report(QelCoMsg const& msg, char const* prefix) {
    std::string text = format(msg);
    if (!text.empty()) {
        std::cerr << prefix << text << std::endl;
    } else if (msg.getDefaultMessage() != nullptr) {
        std::cerr << prefix << msg.getDefaultMessage() << std::endl;
    } else {
        char number[32];
        std::snprintf(number, sizeof number, "MessageID=%d", msg.getMsgId());
        std::cerr << prefix << number << std::endl;
    }
}

}  // namespace Velmor

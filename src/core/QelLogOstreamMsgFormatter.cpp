#include <velmor/core/QelLogOstreamMsgFormatter.h>

#include <cstdio>
#include <new>
#include <string>

#include <velmor/core/QelCoFailures.h>
#include <velmor/core/QelCoMsg.h>

namespace Velmor {

// The stream of a QelLogOstreamMsgFormatter and how to write to it.
class QelLogOstreamMsgFormatterData {
public:
    QelLogOstreamMsgFormatterData(std::ostream* target, int owns, int withoutPrefix)
        : stream(target), ownsStream(owns), noPrefix(withoutPrefix) {}
    ~QelLogOstreamMsgFormatterData() {
        if (ownsStream != 0) delete stream;
    }
    QelLogOstreamMsgFormatterData(QelLogOstreamMsgFormatterData const&) = delete;
    QelLogOstreamMsgFormatterData& operator=(QelLogOstreamMsgFormatterData const&) = delete;

    // One line: the prefix unless noPrefix, then the filled text; without one the unfilled
    // default text; without that "MessageID=" and the number. Nothing for a null stream.
    void report(QelCoMsg const& msg, char const* prefix) {
        if (stream == nullptr) return;
        std::string text = msg.format();
        if (noPrefix == 0) *stream << prefix;
        if (!text.empty()) {
            *stream << text << std::endl;
        } else if (msg.getDefaultMessage() != nullptr) {
            *stream << msg.getDefaultMessage() << std::endl;
        } else {
            char number[32];
            std::snprintf(number, sizeof number, "MessageID=%d", msg.getMsgId());
            *stream << number << std::endl;
        }
    }

    std::ostream* stream;
    int ownsStream;
    int noPrefix;
};

QEL_CO_DEFINE_RTTI(QelLogOstreamMsgFormatter, QelCoMsgFormatter)

QelLogOstreamMsgFormatter::QelLogOstreamMsgFormatter(std::ostream* stream, int ownsStream)
    : QelLogOstreamMsgFormatter(stream, ownsStream, 0) {}

QelLogOstreamMsgFormatter::QelLogOstreamMsgFormatter(std::ostream* stream, int ownsStream,
                                                     int noPrefix) {
    QelLogOstreamMsgFormatterData* data = nullptr;
    try {
        data = new QelLogOstreamMsgFormatterData(stream, ownsStream, noPrefix);
    } catch (std::exception const&) {
        data = nullptr;
    }
    if (data == nullptr) {
        g_qelCoNewMemoryFailed("QelLogOstreamMsgFormatter", "QelLogOstreamMsgFormatter");
    }
    m_data = data;
}

QelLogOstreamMsgFormatter::~QelLogOstreamMsgFormatter() {}

void QelLogOstreamMsgFormatter::error(QelCoMsg const& msg) {
    if (!m_data.isNull()) m_data->report(msg, "error: ");
}

void QelLogOstreamMsgFormatter::warn(QelCoMsg const& msg) {
    if (!m_data.isNull()) m_data->report(msg, "warn: ");
}

void QelLogOstreamMsgFormatter::info(QelCoMsg const& msg) {
    if (!m_data.isNull()) m_data->report(msg, "info: ");
}

}  // namespace Velmor

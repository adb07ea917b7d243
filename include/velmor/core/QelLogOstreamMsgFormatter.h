// QelLogOstreamMsgFormatter: delivers messages to a std::ostream, one line each, with the
// prefixes "error: ", "warn: ", "info: " unless told to leave them out. It owns the stream
// only when asked to. Shared through QelCoTSharedPtr; it takes no lock around the stream.
#ifndef VELMOR_CORE_QELLOGOSTREAMMSGFORMATTER_H
#define VELMOR_CORE_QELLOGOSTREAMMSGFORMATTER_H

#include <ostream>

#include <velmor/core/QelCoMsgFormatter.h>
#include <velmor/core/QelCoTUnsharedPtr.h>

namespace Velmor {

class QelLogOstreamMsgFormatterData;

class VELMOR_API QelLogOstreamMsgFormatter : public QelCoMsgFormatter {
    QEL_CO_DECLARE_RTTI()

public:
    // Writes to `stream` (a null stream delivers nothing); deletes it at destruction when
    // `ownsStream` is not 0; leaves out the prefix when `noPrefix` is not 0. Throws
    // QelCoOutOfMemoryException if the formatter's data cannot be allocated.
    QelLogOstreamMsgFormatter(std::ostream* stream, int ownsStream);
    QelLogOstreamMsgFormatter(std::ostream* stream, int ownsStream, int noPrefix);
    ~QelLogOstreamMsgFormatter() override;

    void error(QelCoMsg const& msg) override;
    void warn(QelCoMsg const& msg) override;
    void info(QelCoMsg const& msg) override;

private:
    QelCoTUnsharedPtr<QelLogOstreamMsgFormatterData> m_data;
};

}  // namespace Velmor

#endif

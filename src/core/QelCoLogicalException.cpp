#include <velmor/core/QelCoLogicalException.h>

#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoTrace.h>
#include <velmor/core/QelMessageId_t.h>

namespace Velmor {

QEL_CO_DEFINE_EXCEPTION(QelCoLogicalException, QelCoException)

QelCoLogicalException::QelCoLogicalException(char const* fileName, int line)
    : QelCoException(fileName, line) {}
QelCoLogicalException::QelCoLogicalException(char const* className, char const* methodName)
    : QelCoException(className, methodName) {}
QelCoLogicalException::QelCoLogicalException(QelCoObject const* object, char const* methodName)
    : QelCoException(object, methodName) {}

QelCoLogicalException::QelCoLogicalException(QelCoTrace const& trace) : QelCoException(trace) {}

QelCoLogicalException::QelCoLogicalException(QelCoLogicalException const& other)
    : QelCoException(other) {}

QelCoLogicalException& QelCoLogicalException::operator=(QelCoLogicalException const& other) {
    if (this == &other) return *this;
    QelCoException::operator=(other);
    return *this;
}

QelCoLogicalException::~QelCoLogicalException() {}

void QelCoLogicalException::setMsg(QelCoMsg* msg) const { setMsgHead(msg, QelMessageId[3]); }

}  // namespace Velmor

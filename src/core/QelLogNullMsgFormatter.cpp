#include <velmor/core/QelLogNullMsgFormatter.h>

namespace Velmor {

QEL_CO_DEFINE_RTTI(QelLogNullMsgFormatter, QelCoMsgFormatter)

QelLogNullMsgFormatter::QelLogNullMsgFormatter() {}

QelLogNullMsgFormatter::~QelLogNullMsgFormatter() {}

void QelLogNullMsgFormatter::error(QelCoMsg const&) {}

void QelLogNullMsgFormatter::warn(QelCoMsg const&) {}

void QelLogNullMsgFormatter::info(QelCoMsg const&) {}

}  // namespace Velmor

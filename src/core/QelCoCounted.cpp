#include <velmor/core/QelCoCounted.h>

#include <velmor/core/QelCnfFunctions.h>
#include <velmor/thread/QelComtLocker.h>

namespace Velmor {

static QelComtLockable fs_lock;
static int fs_enableCopyFlg = 0;

QEL_CO_DEFINE_RTTI(QelCoCounted, QelCoObject)

QelCoCounted::QelCoCounted() : m_count(0) {}

QelCoCounted::QelCoCounted(QelCoCounted const& other) : QelCoObject(other), m_count(0) {}

QelCoCounted& QelCoCounted::operator=(QelCoCounted const&) { return *this; }

QelCoCounted::~QelCoCounted() {}

int QelCoCounted::__refUp() { return QelCnfFunctions::cs_InterlockedIncrement(&m_count); }

int QelCoCounted::__refDown() { return QelCnfFunctions::cs_InterlockedDecrement(&m_count); }

void QelCoCounted::enableAutoDelete() { QelCnfFunctions::cs_InterlockedDecrement(&m_count); }

void QelCoCounted::disableAutoDelete() { QelCnfFunctions::cs_InterlockedIncrement(&m_count); }

void QelCoCounted::cs_enableCopy() {
    QelComtLocker locker(&fs_lock);
    fs_enableCopyFlg = 1;
}

void QelCoCounted::cs_disableCopy() {
    QelComtLocker locker(&fs_lock);
    fs_enableCopyFlg = 0;
}

}  // namespace Velmor

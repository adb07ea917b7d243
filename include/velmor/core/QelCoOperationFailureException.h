// QelCoOperationFailureExceptionTrue: an operation of the system failed; the base of the
// resource, memory, system-call, I/O and registry failures.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOOPERATIONFAILUREEXCEPTION_H
#define VELMOR_CORE_QELCOOPERATIONFAILUREEXCEPTION_H

#include <velmor/core/QelCoRuntimeException.h>

namespace Velmor {

// The extra state of QelCoOperationFailureExceptionTrue.
class VELMOR_API QelCoOperationFailureExceptionTrueData {
public:
    explicit QelCoOperationFailureExceptionTrueData(char const* name) : failedOperationName(name) {}
    QelCoExceptionString failedOperationName;
};

class VELMOR_API QelCoOperationFailureExceptionTrue : public QelCoRuntimeException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoOperationFailureExceptionTrue(char const* fileName, int line,
                                       char const* failedOperationName);
    QelCoOperationFailureExceptionTrue(char const* className, char const* methodName,
                                       char const* failedOperationName);
    QelCoOperationFailureExceptionTrue(QelCoObject const* object, char const* methodName,
                                       char const* failedOperationName);
    // Placed at the class and method of a traced frame.
    QelCoOperationFailureExceptionTrue(QelCoTrace const& trace, char const* failedOperationName);
    QelCoOperationFailureExceptionTrue(QelCoOperationFailureExceptionTrue const& other);
    QelCoOperationFailureExceptionTrue& operator=(QelCoOperationFailureExceptionTrue const& other);
    ~QelCoOperationFailureExceptionTrue() override;

    // Message 4.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The failed operation, or "failed operation name lost due to memory shortage".
    char const* getFailedOperationName() const;

private:
    QelCoOperationFailureExceptionTrueData m_qelCoOperationFailureExceptionTrueData;
};

}  // namespace Velmor

#endif

// QelCoSystemCallException: a system call failed with an error number.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOSYSTEMCALLEXCEPTION_H
#define VELMOR_CORE_QELCOSYSTEMCALLEXCEPTION_H

#include <velmor/core/QelCoOperationFailureException.h>

namespace Velmor {

// The extra state of QelCoSystemCallException.
class VELMOR_API QelCoSystemCallExceptionData {
public:
    explicit QelCoSystemCallExceptionData(int error) : errNo(error) {}
    int errNo;
};

class VELMOR_API QelCoSystemCallException : public QelCoOperationFailureExceptionTrue {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoSystemCallException(char const* fileName, int line, char const* systemCall, int errNo);
    QelCoSystemCallException(char const* className, char const* methodName, char const* systemCall,
                             int errNo);
    QelCoSystemCallException(QelCoObject const* object, char const* methodName,
                             char const* systemCall, int errNo);
    // Placed at the class and method of a traced frame.
    QelCoSystemCallException(QelCoTrace const& trace, char const* systemCall, int errNo);
    QelCoSystemCallException(QelCoSystemCallException const& other);
    QelCoSystemCallException& operator=(QelCoSystemCallException const& other);
    ~QelCoSystemCallException() override;

    // Message 10.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The error number the call gave.
    int getErrNo() const;

private:
    QelCoSystemCallExceptionData m_qelCoSystemCallExceptionData;
};

}  // namespace Velmor

#endif

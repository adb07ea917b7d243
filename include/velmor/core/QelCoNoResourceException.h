// QelCoNoResourceException: a resource (named as the failed operation) ran short.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCONORESOURCEEXCEPTION_H
#define VELMOR_CORE_QELCONORESOURCEEXCEPTION_H

#include <velmor/core/QelCoOperationFailureException.h>

namespace Velmor {

class VELMOR_API QelCoNoResourceException : public QelCoOperationFailureExceptionTrue {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoNoResourceException(char const* fileName, int line, char const* resourceName);
    QelCoNoResourceException(char const* className, char const* methodName,
                             char const* resourceName);
    QelCoNoResourceException(QelCoObject const* object, char const* methodName,
                             char const* resourceName);
    // Placed at the class and method of a traced frame.
    QelCoNoResourceException(QelCoTrace const& trace, char const* resourceName);
    QelCoNoResourceException(QelCoNoResourceException const& other);
    QelCoNoResourceException& operator=(QelCoNoResourceException const& other);
    ~QelCoNoResourceException() override;

    // Message 9.
    void setMsg(QelCoMsg* msg) const override;
};

}  // namespace Velmor

#endif

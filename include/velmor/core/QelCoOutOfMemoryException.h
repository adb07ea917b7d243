// QelCoOutOfMemoryException: an allocation failed. Its failed operation is always "new".
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOOUTOFMEMORYEXCEPTION_H
#define VELMOR_CORE_QELCOOUTOFMEMORYEXCEPTION_H

#include <velmor/core/QelCoOperationFailureException.h>

namespace Velmor {

class VELMOR_API QelCoOutOfMemoryException : public QelCoOperationFailureExceptionTrue {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoOutOfMemoryException(char const* fileName, int line);
    QelCoOutOfMemoryException(char const* className, char const* methodName);
    QelCoOutOfMemoryException(QelCoObject const* object, char const* methodName);
    // Placed at the class and method of a traced frame.
    explicit QelCoOutOfMemoryException(QelCoTrace const& trace);
    QelCoOutOfMemoryException(QelCoOutOfMemoryException const& other);
    QelCoOutOfMemoryException& operator=(QelCoOutOfMemoryException const& other);
    ~QelCoOutOfMemoryException() override;

    // Message 8.
    void setMsg(QelCoMsg* msg) const override;
};

}  // namespace Velmor

#endif

// QelCoRuntimeException: the base of the exceptions that mean a failure of the
// environment or of the moment.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCORUNTIMEEXCEPTION_H
#define VELMOR_CORE_QELCORUNTIMEEXCEPTION_H

#include <velmor/core/QelCoException.h>

namespace Velmor {

class VELMOR_API QelCoRuntimeException : public QelCoException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoRuntimeException(char const* fileName, int line);
    QelCoRuntimeException(char const* className, char const* methodName);
    QelCoRuntimeException(QelCoObject const* object, char const* methodName);
    // Placed at the class and method of a traced frame.
    explicit QelCoRuntimeException(QelCoTrace const& trace);
    QelCoRuntimeException(QelCoRuntimeException const& other);
    QelCoRuntimeException& operator=(QelCoRuntimeException const& other);
    ~QelCoRuntimeException() override;

    // Message 2.
    void setMsg(QelCoMsg* msg) const override;
};

}  // namespace Velmor

#endif

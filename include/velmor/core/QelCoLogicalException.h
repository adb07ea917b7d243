// QelCoLogicalException: the base of the exceptions that mean a programmer's error.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOLOGICALEXCEPTION_H
#define VELMOR_CORE_QELCOLOGICALEXCEPTION_H

#include <velmor/core/QelCoException.h>

namespace Velmor {

class VELMOR_API QelCoLogicalException : public QelCoException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoLogicalException(char const* fileName, int line);
    QelCoLogicalException(char const* className, char const* methodName);
    QelCoLogicalException(QelCoObject const* object, char const* methodName);
    // Placed at the class and method of a traced frame.
    explicit QelCoLogicalException(QelCoTrace const& trace);
    QelCoLogicalException(QelCoLogicalException const& other);
    QelCoLogicalException& operator=(QelCoLogicalException const& other);
    ~QelCoLogicalException() override;

    // Message 3.
    void setMsg(QelCoMsg* msg) const override;
};

}  // namespace Velmor

#endif

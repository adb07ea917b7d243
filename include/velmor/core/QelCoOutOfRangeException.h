// QelCoOutOfRangeException: a number was outside the values its argument may take.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOOUTOFRANGEEXCEPTION_H
#define VELMOR_CORE_QELCOOUTOFRANGEEXCEPTION_H

#include <velmor/core/QelCoRuntimeException.h>

namespace Velmor {

// The extra state of QelCoOutOfRangeException.
class VELMOR_API QelCoOutOfRangeExceptionData {
public:
    QelCoOutOfRangeExceptionData(char const* name, long value) : argName(name), number(value) {}
    QelCoExceptionString argName;
    long number;
};

class VELMOR_API QelCoOutOfRangeException : public QelCoRuntimeException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoOutOfRangeException(char const* fileName, int line, char const* argName, long number);
    QelCoOutOfRangeException(char const* className, char const* methodName, char const* argName,
                             long number);
    QelCoOutOfRangeException(QelCoObject const* object, char const* methodName, char const* argName,
                             long number);
    // Placed at the class and method of a traced frame.
    QelCoOutOfRangeException(QelCoTrace const& trace, char const* argName, long number);
    QelCoOutOfRangeException(QelCoOutOfRangeException const& other);
    QelCoOutOfRangeException& operator=(QelCoOutOfRangeException const& other);
    ~QelCoOutOfRangeException() override;

    // Message 53.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The argument's name, or "lost argment name due to memory shortage" if it was lost.
    char const* getArgName() const;
    long getIllegalNumber() const;

private:
    QelCoOutOfRangeExceptionData m_qelCoOutOfRangeExceptionData;
};

}  // namespace Velmor

#endif

// QelCoMisUsageException: the library was used wrongly at this moment; its text is the
// misuse message, formatted when the exception is made.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOMISUSAGEEXCEPTION_H
#define VELMOR_CORE_QELCOMISUSAGEEXCEPTION_H

#include <velmor/core/QelCoRuntimeException.h>

namespace Velmor {

// The extra state of QelCoMisUsageException.
class VELMOR_API QelCoMisUsageExceptionData {
public:
    // Formats `msg` at once: its text, else its default text, else "MessageID = <n>".
    explicit QelCoMisUsageExceptionData(QelCoMsg* msg);
    QelCoExceptionString text;
};

class VELMOR_API QelCoMisUsageException : public QelCoRuntimeException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoMisUsageException(char const* fileName, int line, QelCoMsg* msg);
    QelCoMisUsageException(char const* className, char const* methodName, QelCoMsg* msg);
    QelCoMisUsageException(QelCoObject const* object, char const* methodName, QelCoMsg* msg);
    // Placed at the class and method of a traced frame.
    QelCoMisUsageException(QelCoTrace const& trace, QelCoMsg* msg);
    QelCoMisUsageException(QelCoMisUsageException const& other);
    QelCoMisUsageException& operator=(QelCoMisUsageException const& other);
    ~QelCoMisUsageException() override;

    // Message 11.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The misuse text, or "do not know what happend" if it was lost.
    char const* getText() const;

private:
    QelCoMisUsageExceptionData m_qelCoMisUsageExceptionData;
};

}  // namespace Velmor

#endif

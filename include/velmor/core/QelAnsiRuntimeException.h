// QelAnsiRuntimeException: carries the text of a standard exception (a runtime error)
// into the library's tree.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELANSIRUNTIMEEXCEPTION_H
#define VELMOR_CORE_QELANSIRUNTIMEEXCEPTION_H

#include <velmor/core/QelCoRuntimeException.h>
#include <exception>

namespace Velmor {

// The extra state of QelAnsiRuntimeException.
class VELMOR_API QelAnsiRuntimeExceptionData {
public:
    explicit QelAnsiRuntimeExceptionData(char const* what) : text(what) {}
    QelCoExceptionString text;
};

class VELMOR_API QelAnsiRuntimeException : public QelCoRuntimeException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelAnsiRuntimeException(char const* fileName, int line, std::exception const& exception);
    QelAnsiRuntimeException(char const* className, char const* methodName,
                            std::exception const& exception);
    QelAnsiRuntimeException(QelCoObject const* object, char const* methodName,
                            std::exception const& exception);
    // Without a place: where() gives the fixed text about the lost location.
    explicit QelAnsiRuntimeException(std::exception const& exception);
    // Placed at the class and method of a traced frame.
    QelAnsiRuntimeException(QelCoTrace const& trace, std::exception const& exception);
    QelAnsiRuntimeException(QelAnsiRuntimeException const& other);
    QelAnsiRuntimeException& operator=(QelAnsiRuntimeException const& other);
    ~QelAnsiRuntimeException() override;

    // Message 12.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The standard exception's what(), or null if it could not be copied.
    char const* getText() const;

private:
    QelAnsiRuntimeExceptionData m_qelAnsiRuntimeExceptionData;
};

}  // namespace Velmor

#endif

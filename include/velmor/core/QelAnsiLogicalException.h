// QelAnsiLogicalException: carries the text of a standard exception (a logic error)
// into the library's tree.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELANSILOGICALEXCEPTION_H
#define VELMOR_CORE_QELANSILOGICALEXCEPTION_H

#include <velmor/core/QelCoLogicalException.h>
#include <exception>

namespace Velmor {

// The extra state of QelAnsiLogicalException.
class VELMOR_API QelAnsiLogicalExceptionData {
public:
    explicit QelAnsiLogicalExceptionData(char const* what) : text(what) {}
    QelCoExceptionString text;
};

class VELMOR_API QelAnsiLogicalException : public QelCoLogicalException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelAnsiLogicalException(char const* fileName, int line, std::exception const& exception);
    QelAnsiLogicalException(char const* className, char const* methodName,
                            std::exception const& exception);
    QelAnsiLogicalException(QelCoObject const* object, char const* methodName,
                            std::exception const& exception);
    // Without a place: where() gives the fixed text about the lost location.
    explicit QelAnsiLogicalException(std::exception const& exception);
    // Placed at the class and method of a traced frame.
    QelAnsiLogicalException(QelCoTrace const& trace, std::exception const& exception);
    QelAnsiLogicalException(QelAnsiLogicalException const& other);
    QelAnsiLogicalException& operator=(QelAnsiLogicalException const& other);
    ~QelAnsiLogicalException() override;

    // Message 13.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The standard exception's what(), or null if it could not be copied.
    char const* getText() const;

private:
    QelAnsiLogicalExceptionData m_qelAnsiLogicalExceptionData;
};

}  // namespace Velmor

#endif

// QelUtNumberFormatException: a text could not be read as a number. It keeps its own copy of
// the offending text, so the text outlives the string it came from.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_TEXT_QELUTNUMBERFORMATEXCEPTION_H
#define VELMOR_TEXT_QELUTNUMBERFORMATEXCEPTION_H

#include <velmor/core/QelCoLogicalException.h>

namespace Velmor {

// The extra state of QelUtNumberFormatException.
class VELMOR_API QelUtNumberFormatExceptionData {
public:
    explicit QelUtNumberFormatExceptionData(char const* text) : illegalString(text) {}
    QelCoExceptionString illegalString;
};

class VELMOR_API QelUtNumberFormatException : public QelCoLogicalException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelUtNumberFormatException(char const* fileName, int line, char const* illegal);
    QelUtNumberFormatException(char const* className, char const* methodName, char const* illegal);
    QelUtNumberFormatException(QelCoObject const* object, char const* methodName,
                               char const* illegal);
    // Placed at the class and method of a traced frame.
    QelUtNumberFormatException(QelCoTrace const& trace, char const* illegal);
    QelUtNumberFormatException(QelUtNumberFormatException const& other);
    QelUtNumberFormatException& operator=(QelUtNumberFormatException const& other);
    ~QelUtNumberFormatException() override;

    // Message 23: "%2 thrown at %1: %3 has illegal numerical format."
    void setMsg(QelCoMsg* msg) const override;
    // Writes the illegal text on `trace` at level 0, as the argument "string".
    void putTraceOn(QelCoTrace* trace) const override;

    // The text that could not be read, or "illegal number lost due to memory shortage".
    char const* getIllegalString() const;

private:
    QelUtNumberFormatExceptionData m_qelUtNumberFormatExceptionData;
};

}  // namespace Velmor

#endif

// QelCoNullPointerException: a pointer argument that must not be null was null.
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCONULLPOINTEREXCEPTION_H
#define VELMOR_CORE_QELCONULLPOINTEREXCEPTION_H

#include <velmor/core/QelCoLogicalException.h>

namespace Velmor {

// The extra state of QelCoNullPointerException.
class VELMOR_API QelCoNullPointerExceptionData {
public:
    explicit QelCoNullPointerExceptionData(char const* name) : parameterName(name) {}
    QelCoExceptionString parameterName;
};

class VELMOR_API QelCoNullPointerException : public QelCoLogicalException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoNullPointerException(char const* fileName, int line, char const* parameterName);
    QelCoNullPointerException(char const* className, char const* methodName,
                              char const* parameterName);
    QelCoNullPointerException(QelCoObject const* object, char const* methodName,
                              char const* parameterName);
    // Placed at the class and method of a traced frame.
    QelCoNullPointerException(QelCoTrace const& trace, char const* parameterName);
    QelCoNullPointerException(QelCoNullPointerException const& other);
    QelCoNullPointerException& operator=(QelCoNullPointerException const& other);
    ~QelCoNullPointerException() override;

    // Message 6, or 5 when no parameter is named.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The parameter's name as given, null included.
    char const* getParameterName() const;

private:
    QelCoNullPointerExceptionData m_qelCoNullPointerExceptionData;
};

}  // namespace Velmor

#endif

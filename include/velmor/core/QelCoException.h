// QelCoException: the root of the library's exception tree.
//
// An exception knows where it was raised (source file and line, or class and method), builds
// its text lazily through the message system and never fails for want of memory: each text it
// keeps may be null and every reader has a fixed text to fall back on. Exceptions are thrown
// by value and caught by reference; they do not derive from std::exception. One exception
// object must not be read by two threads at once (what() and where() fill caches).
#ifndef VELMOR_CORE_QELCOEXCEPTION_H
#define VELMOR_CORE_QELCOEXCEPTION_H

#include <exception>
#include <ostream>

#include <velmor/core/QelCoExceptionString.h>
#include <velmor/core/QelCoObject.h>
#include <velmor/core/QelCoTSharedPtr.h>

namespace Velmor {

class QelCoMsg;
class QelCoMsgFormatter;
class QelCoTrace;
struct QelCoMsgId;

// The place and the text caches of an exception.
class VELMOR_API QelCoExceptionData {
public:
    // Copies the names (a failed copy is left null) and makes sure the default message
    // formatter of the exceptions exists. Never throws.
    QelCoExceptionData(char const* fileName, int line, char const* className,
                       char const* methodName);
    // Copies the place; the caches start empty.
    QelCoExceptionData(QelCoExceptionData const& other);
    QelCoExceptionData& operator=(QelCoExceptionData const& other);
    ~QelCoExceptionData();

    QelCoExceptionString fileName;
    int line;
    QelCoExceptionString className;
    QelCoExceptionString methodName;
    QelCoExceptionString what;
    QelCoExceptionString where;
};

// Declares the members that every class of the exception tree defines for itself.
#define QEL_CO_DECLARE_EXCEPTION()                        \
    QEL_CO_DECLARE_RTTI()                                 \
    ::Velmor::QelCoException* duplicate() const override; \
    [[noreturn]] void raise() const override;

class VELMOR_API QelCoException : public virtual QelCoObject {
    QEL_CO_DECLARE_RTTI()

public:
    // The place of the raise: a source file and line; a class and method (either may be
    // null); or an object, whose dynamic class is named, and a method.
    QelCoException(char const* fileName, int line);
    QelCoException(char const* className, char const* methodName);
    QelCoException(QelCoObject const* object, char const* methodName);
    // Placed at the class and method of a traced frame.
    explicit QelCoException(QelCoTrace const& trace);
    QelCoException(QelCoException const& other);
    QelCoException& operator=(QelCoException const& other);
    ~QelCoException() override;

    // A heap copy of the dynamic class, or null when memory is short.
    virtual QelCoException* duplicate() const;
    // Throws a copy of this exception as its dynamic class.
    [[noreturn]] virtual void raise() const;
    // Fills `msg` with this exception's message number and arguments: %1 where(), %2 the
    // class name, then the class's own.
    virtual void setMsg(QelCoMsg* msg) const;
    // Writes this exception's own fields on `trace` as events of level 0; the root class has
    // none. A null `trace` throws QelCoNullPointerException.
    virtual void putTraceOn(QelCoTrace* trace) const;

    // The filled message text, made at the first call and kept. Never throws; falls back on
    // the default text, then "MessageID=<n>", then a fixed text about memory shortage.
    char const* what() const;
    // "file(line)", "Class::method()", "method()" or "Class::"; without any place, or when
    // memory is short, "exception location information lost due to memory shortage".
    char const* where() const;

    // The formatter that what() uses for every exception. Neither lets an exception out;
    // cs_getMsgFormatter gives a null pointer if it cannot copy the formatter.
    static void cs_setMsgFormatter(QelCoTSharedPtr<QelCoMsgFormatter> const& formatter);
    static QelCoTSharedPtr<QelCoMsgFormatter> cs_getMsgFormatter();

protected:
    // Steps common to every setMsg: the formatter if the message has none, the id, %1, %2.
    void setMsgHead(QelCoMsg* msg, QelCoMsgId const& id) const;
    // The trace that putTraceOn writes on; throws QelCoNullPointerException if it is null.
    QelCoTrace& traceToPutOn(QelCoTrace* trace) const;

private:
    mutable QelCoExceptionData m_data;
};

// Writes what().
VELMOR_API std::ostream& operator<<(std::ostream& stream, QelCoException const& exception);

}  // namespace Velmor

// Defines the members declared by QEL_CO_DECLARE_EXCEPTION in the class's source file.
#define QEL_CO_DEFINE_EXCEPTION(Class, Parent)           \
    QEL_CO_DEFINE_RTTI(Class, Parent)                    \
    ::Velmor::QelCoException* Class::duplicate() const { \
        try {                                            \
            return new Class(*this);                     \
        } catch (std::exception const&) {                \
            return nullptr;                              \
        }                                                \
    }                                                    \
    void Class::raise() const { throw *this; }

#endif

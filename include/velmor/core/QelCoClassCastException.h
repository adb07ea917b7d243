// QelCoClassCastException: an object could not be narrowed to the class a checked cast
// asked for (see QelCoRTTI::cs_castFailed).
//
// Thrown by value and caught by reference, like every member of the tree; one object must not
// be read by two threads at once.
#ifndef VELMOR_CORE_QELCOCLASSCASTEXCEPTION_H
#define VELMOR_CORE_QELCOCLASSCASTEXCEPTION_H

#include <velmor/core/QelCoLogicalException.h>

namespace Velmor {

// The extra state of QelCoClassCastException.
class VELMOR_API QelCoClassCastExceptionData {
public:
    QelCoClassCastExceptionData(QelCoRTTI const* fromRecord, QelCoRTTI const* toRecord,
                                void const* objectAddress)
        : from(fromRecord), to(toRecord), address(objectAddress) {}
    QelCoRTTI const* from;
    QelCoRTTI const* to;
    void const* address;
};

class VELMOR_API QelCoClassCastException : public QelCoLogicalException {
    QEL_CO_DECLARE_EXCEPTION()

public:
    QelCoClassCastException(char const* fileName, int line, QelCoRTTI const& from,
                            QelCoRTTI const& to, void const* address);
    // Placed at the class and method of a traced frame.
    QelCoClassCastException(QelCoTrace const& trace, QelCoRTTI const& from, QelCoRTTI const& to,
                            void const* address);
    QelCoClassCastException(QelCoClassCastException const& other);
    QelCoClassCastException& operator=(QelCoClassCastException const& other);
    ~QelCoClassCastException() override;

    // Message 7.
    void setMsg(QelCoMsg* msg) const override;
    // Writes its own fields on `trace` at level 0.
    void putTraceOn(QelCoTrace* trace) const override;

    // The record of the object's class, the record asked for, and the object's address.
    QelCoRTTI const& getFrom() const;
    QelCoRTTI const& getTo() const;
    void const* getAddress() const;
    // The address as the message shows it: "0x" and at least eight hex digits.
    void formatAddress(char* buffer, unsigned int size) const;

private:
    QelCoClassCastExceptionData m_qelCoClassCastExceptionData;
};

}  // namespace Velmor

#endif

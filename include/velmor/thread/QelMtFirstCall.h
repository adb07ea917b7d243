// QelMtFirstCall: the gate through which one-time initialisation runs.
//
//     static QelMtFirstCall gate;
//     if (gate.isFirst()) {
//         QelMtUnlocker open(&gate);  // opens the gate when the scope ends
//         ... one-time work ...
//     }
//
// Any thread may call isFirst(); callers that get false return only after the first caller
// opened the gate. The owner creates and destroys it.
#ifndef VELMOR_THREAD_QELMTFIRSTCALL_H
#define VELMOR_THREAD_QELMTFIRSTCALL_H

#include <velmor/thread/QelMtLockable.h>

namespace Velmor {

class VELMOR_API QelMtFirstCall : public QelMtLockable {
public:
    QelMtFirstCall();

    // True exactly once for the life of the gate, returned with the gate's lock still held;
    // false once the first caller has released it. Work that ended by an exception is not
    // tried again.
    bool isFirst();

private:
    int m_done;
};

}  // namespace Velmor

#endif

// QelCoCounted: the reference-counted base of shared objects.
//
// An object is owned by the shared pointers that hold it and deleted by the last of them.
// The count is thread-safe through the striped interlocked operations; only the pointer
// classes change it, apart from disableAutoDelete/enableAutoDelete.
#ifndef VELMOR_CORE_QELCOCOUNTED_H
#define VELMOR_CORE_QELCOCOUNTED_H

#include <velmor/core/QelCoObject.h>

namespace Velmor {

class VELMOR_API QelCoCounted : public QelCoObject {
    QEL_CO_DECLARE_RTTI()

public:
    // Every constructor, the copy constructor included, starts the count at 0.
    QelCoCounted();
    QelCoCounted(QelCoCounted const& other);
    // Leaves the counts of both objects alone.
    QelCoCounted& operator=(QelCoCounted const& other);
    ~QelCoCounted() override;

    // For the pointer classes alone: change the count under its stripe lock and return the
    // new value. Neither deletes anything.
    int __refUp();
    int __refDown();
    // For the unlocked (US) pointer classes alone: the count itself, changed without a lock.
    static int& __usCount(QelCoCounted* object) { return object->m_count; }

    // disableAutoDelete holds one extra count so that no pointer can bring the object to 0:
    // a stack or static object can then be handed to shared pointers. enableAutoDelete gives
    // that count back and never deletes, even when the count comes to 0.
    void enableAutoDelete();
    void disableAutoDelete();

    // Set and clear a process-wide copy flag under its own lock.
    static void cs_enableCopy();
    static void cs_disableCopy();

private:
    int m_count;
};

}  // namespace Velmor

#endif

// QelBtMapLocker: the do-nothing lock policy of the hash table family. lock(), unlock() and
// the destructor have no effect; any thread.
#ifndef VELMOR_BASIC_QELBTMAPLOCKER_H
#define VELMOR_BASIC_QELBTMAPLOCKER_H

namespace Velmor {

class QelBtMapLocker {
public:
    void lock() {}
    void unlock() {}
    ~QelBtMapLocker() {}
};

}  // namespace Velmor

#endif

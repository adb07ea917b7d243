#include <velmor/core/QelCnfRefNiftyCounter.h>

#include <velmor/thread/QelMtLockable.h>

namespace Velmor {

// Zero-initialised before any dynamic initialiser runs, so the first counter of any source
// file sees 0 here.
QelMtLockable* g_pqelLocks = nullptr;
int QelCnfRefNiftyCounter::cs_counter = 0;

QelCnfRefNiftyCounter::QelCnfRefNiftyCounter() {
    if (++cs_counter == 1) {
        // A failed allocation here is left to the loader: nothing can report it yet.
        g_pqelLocks = new QelMtLockable[cs_lockCount];
    }
}

QelCnfRefNiftyCounter::~QelCnfRefNiftyCounter() {
    if (--cs_counter == 0 && g_pqelLocks != nullptr) {
        delete[] g_pqelLocks;  // destroys the locks in descending order
        g_pqelLocks = nullptr;
    }
}

}  // namespace Velmor

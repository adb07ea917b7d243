// Export control for libvelmor.so.
//
// The library is built with hidden symbols; VELMOR_API marks the classes and functions that
// applications link against. File-static helpers never carry it and stay private.
#ifndef VELMOR_CORE_QELCOEXPORT_H
#define VELMOR_CORE_QELCOEXPORT_H

#define VELMOR_API __attribute__((visibility("default")))

#endif

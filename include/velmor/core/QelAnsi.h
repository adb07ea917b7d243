// QelAnsi: the standard streams under one name, so that library code names them in one
// place. References to the standard objects; use them as those are used.
#ifndef VELMOR_CORE_QELANSI_H
#define VELMOR_CORE_QELANSI_H

#include <iostream>

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelAnsi {
public:
    static std::istream& cin;
    static std::ostream& cout;
    static std::ostream& cerr;
    static std::ostream& clog;
    static std::wistream& wcin;
    static std::wostream& wcout;
    static std::wostream& wcerr;
    static std::wostream& wclog;
};

}  // namespace Velmor

#endif

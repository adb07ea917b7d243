// QelCnfVersionInfoData: the version record of the library, as texts that tools such as
// `what` and `ident` find in the binary. Constant data; any thread.
#ifndef VELMOR_PLATFORM_QELCNFVERSIONINFODATA_H
#define VELMOR_PLATFORM_QELCNFVERSIONINFODATA_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class VELMOR_API QelCnfVersionInfoData {
public:
    static char const* cs_build;           // "$Build: <platform-compiler> $"
    static char const* cs_libName;         // "$Library Name: libvelmor.so $"
    static char const* cs_ppName;          // "@(#)Product Name   : Velmor"
    static char const* cs_fileVersion;     // "@(#)File Version   : a.b.c.d"
    static char const* cs_productVersion;  // "@(#)Product Version: VELMOR nn-nn"
    static char const* cs_copyright;       // "@(#)" and the rights
};

}  // namespace Velmor

#endif

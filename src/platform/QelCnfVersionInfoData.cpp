#include <velmor/platform/QelCnfVersionInfoData.h>

#define QEL_CNF_STRINGIFY2(x) #x
#define QEL_CNF_STRINGIFY(x) QEL_CNF_STRINGIFY2(x)

#if defined(__x86_64__)
#define QEL_CNF_ARCH "x86_64"
#elif defined(__i386__)
#define QEL_CNF_ARCH "i386"
#else
#define QEL_CNF_ARCH "unknown"
#endif

namespace Velmor {

char const* QelCnfVersionInfoData::cs_build =
    "$Build: linux-" QEL_CNF_ARCH "-gcc" QEL_CNF_STRINGIFY(__GNUC__) " $";
char const* QelCnfVersionInfoData::cs_libName = "$Library Name: libvelmor.so $";
char const* QelCnfVersionInfoData::cs_ppName = "@(#)Product Name   : Velmor";
char const* QelCnfVersionInfoData::cs_fileVersion = "@(#)File Version   : 1.0.0.0";
char const* QelCnfVersionInfoData::cs_productVersion = "@(#)Product Version: VELMOR 01-00";
char const* QelCnfVersionInfoData::cs_copyright =
    "@(#)Copyright (c) 2026 the Velmor developers. All rights reserved.";

}  // namespace Velmor

// The library's three raising functions: a null pointer argument, a misuse, a failed
// allocation. Each builds its exception with the place of the raise and throws it; none
// returns. The overloads by plain int exist so that a literal 0 can stand for "no class".
// Safe on any thread.
#ifndef VELMOR_CORE_QELCOFAILURES_H
#define VELMOR_CORE_QELCOFAILURES_H

#include <velmor/core/QelCoExport.h>

namespace Velmor {

class QelCoObject;
struct QelCoMsgId;

// Throw QelCoNullPointerException for `parameterName` of `methodName`. With an object, the
// class named is the object's dynamic class.
[[noreturn]] VELMOR_API void g_qelCoNullCheckFailed(QelCoObject const* object,
                                                    char const* methodName,
                                                    char const* parameterName);
[[noreturn]] VELMOR_API void g_qelCoNullCheckFailed(char const* className, char const* methodName,
                                                    char const* parameterName);
[[noreturn]] VELMOR_API void g_qelCoNullCheckFailed(int, char const* methodName,
                                                    char const* parameterName);
// The same, placed by source file and line, with no parameter name.
[[noreturn]] VELMOR_API void g_qelCoNullCheckFailed(char const* fileName, int line);

// Throw QelCoMisUsageException whose text is message `id`, formatted at once.
[[noreturn]] VELMOR_API void g_qelCoUsageCheckFailed(QelCoObject const* object,
                                                     char const* methodName, QelCoMsgId const& id);
[[noreturn]] VELMOR_API void g_qelCoUsageCheckFailed(char const* className, char const* methodName,
                                                     QelCoMsgId const& id);
[[noreturn]] VELMOR_API void g_qelCoUsageCheckFailed(int, char const* methodName,
                                                     QelCoMsgId const& id);

// Throw QelCoOutOfMemoryException.
[[noreturn]] VELMOR_API void g_qelCoNewMemoryFailed(QelCoObject const* object,
                                                    char const* methodName);
[[noreturn]] VELMOR_API void g_qelCoNewMemoryFailed(char const* className, char const* methodName);
[[noreturn]] VELMOR_API void g_qelCoNewMemoryFailed(int, char const* methodName);

}  // namespace Velmor

#endif

#include <velmor/core/QelCoFailures.h>

#include <velmor/core/QelCoMisUsageException.h>
#include <velmor/core/QelCoMsg.h>
#include <velmor/core/QelCoNullPointerException.h>
#include <velmor/core/QelCoOutOfMemoryException.h>

namespace Velmor {

void g_qelCoNullCheckFailed(QelCoObject const* object, char const* methodName,
                            char const* parameterName) {
    throw QelCoNullPointerException(object, methodName, parameterName);
}

void g_qelCoNullCheckFailed(char const* className, char const* methodName,
                            char const* parameterName) {
    throw QelCoNullPointerException(className, methodName, parameterName);
}

void g_qelCoNullCheckFailed(int, char const* methodName, char const* parameterName) {
    throw QelCoNullPointerException(static_cast<char const*>(nullptr), methodName, parameterName);
}

void g_qelCoNullCheckFailed(char const* fileName, int line) {
    throw QelCoNullPointerException(fileName, line, nullptr);
}

void g_qelCoUsageCheckFailed(QelCoObject const* object, char const* methodName,
                             QelCoMsgId const& id) {
    QelCoMsg msg;
    msg.setMsgId(id);
    throw QelCoMisUsageException(object, methodName, &msg);
}

void g_qelCoUsageCheckFailed(char const* className, char const* methodName, QelCoMsgId const& id) {
    QelCoMsg msg;
    msg.setMsgId(id);
    throw QelCoMisUsageException(className, methodName, &msg);
}

void g_qelCoUsageCheckFailed(int, char const* methodName, QelCoMsgId const& id) {
    g_qelCoUsageCheckFailed(static_cast<char const*>(nullptr), methodName, id);
}

void g_qelCoNewMemoryFailed(QelCoObject const* object, char const* methodName) {
    throw QelCoOutOfMemoryException(object, methodName);
}

void g_qelCoNewMemoryFailed(char const* className, char const* methodName) {
    throw QelCoOutOfMemoryException(className, methodName);
}

void g_qelCoNewMemoryFailed(int, char const* methodName) {
    throw QelCoOutOfMemoryException(static_cast<char const*>(nullptr), methodName);
}

}  // namespace Velmor

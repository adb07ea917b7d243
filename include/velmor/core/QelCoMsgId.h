// QelCoMsgId: identifies one message: its catalogue file, its number in set 1 of that
// catalogue, and a built-in default text. Plain data, usually in a static table such as
// QelMessageId; read-only after static initialisation, so any thread may read it.
#ifndef VELMOR_CORE_QELCOMSGID_H
#define VELMOR_CORE_QELCOMSGID_H

namespace Velmor {

struct QelCoMsgId {
    char const* const* base;  // address of the pointer to the catalogue file name
    int number;               // the message number in set 1
    char const* defaultText;  // the built-in template, or null
};

}  // namespace Velmor

#endif

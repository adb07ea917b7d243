// QelMessageId_t: the table of the library's own 60 messages, in the catalogue "velqel.cat".
//
// QelMessageId[n] is message number n (1 to 60). The numbers and the catalogue are fixed at
// load; the default texts are copied from g_QelMessageConsts by this table's static
// initialiser. Read-only afterwards; any thread may read it.
#ifndef VELMOR_CORE_QELMESSAGEID_T_H
#define VELMOR_CORE_QELMESSAGEID_T_H

#include <velmor/core/QelCoExport.h>
#include <velmor/core/QelCoMsgId.h>

namespace Velmor {

class VELMOR_API QelMessageId_t {
public:
    static constexpr int cs_count = 60;
    static char const* cs_base;  // "velqel.cat"

    // Message `number`, 1 to cs_count; other numbers are not checked.
    QelCoMsgId const& operator[](int number) const { return m_ids[number - 1]; }
    QelCoMsgId& operator[](int number) { return m_ids[number - 1]; }

    QelCoMsgId m_ids[cs_count];
};

// The library's message table.
extern VELMOR_API QelMessageId_t QelMessageId;

// The default texts of messages 1 to 60, in number order.
extern "C" VELMOR_API char const* g_QelMessageConsts[QelMessageId_t::cs_count];

}  // namespace Velmor

#endif

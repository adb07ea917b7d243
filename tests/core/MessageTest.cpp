// Messages: the library's table, arguments, template selection and substitution.
#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include <velmor/velmor.h>

#include "support/VelmorTestSupport.h"

using namespace Velmor;

namespace {

// The library's messages as users see them, by number.
char const* const fs_expectedTexts[60] = {
    "%2 thrown at %1: no further information available.",
    "%2 thrown at %1: no further information available.",
    "%2 thrown at %1: no further information available.",
    "%2 thrown at %1: The %3 failed.",
    "%2 thrown at %1: referred a null pointer.",
    "%2 thrown at %1: %3 is a null pointer.",
    "%2 thrown at %1: this instance (address=%3) cannot cast from %4 to %5.",
    "%2 thrown at %1: cannot continue due to memory shortage.",
    "%2 thrown at %1: cannot continue %3 due to resource shortage.",
    "%2 thrown at %1: system-call=%3. errno=%4.",
    "%2 thrown at %1: %3.",
    "%2 thrown at %1: %3.",
    "%2 thrown at %1: %3.",
    "%2 thrown at %1: operation=%3. object=%4. errno=%5.",
    "%2 thrown at %1: %4 not found file or directory. operation=%3. errno=%5.",
    "%2 thrown at %1: %4 has no space. operation=%3. errno=%5.",
    "%2 thrown at %1: %4 arrive at EOF. operation=%3.",
    "%2 thrown at %1: cannot access for %4. operation=%3. errno=%5.",
    "%2 thrown at %1: not found line break.",
    "%2 thrown at %1: operation=%3. object=%4. errno=%5.",
    "%2 thrown at %1: cannot access for %4. operation=%3. errno=%5.",
    "%2 thrown at %1: cannot find %4. operation=%3. errno=%5.",
    "%2 thrown at %1: %3 has illegal numerical format.",
    "%2 thrown at %1: assert an error.",
    "stream has already closed.",
    "cannot stop inactive timer.",
    "cannot destroy running timer.",
    "cannot operate uninitialized timer.",
    "specified timer already activated.",
    "cannot operate uninitialized event.",
    "cannot destroy event object used by another thread.",
    "cannot destroy lock-object used by another thread.",
    "cannot use uninitialized lock-object.",
    "cannot destroy spin-lock-object used by another thread.",
    "cannot use uninitialized spin-lock-object.",
    "cannot delete running thread-object.",
    "cannot rerun running thread-object.",
    "cannot wait(join) not-started thread.",
    "deadlock detected.",
    "cannot use uninitialized thread.",
    "buffer size must be more than 0 to create pipe-lock.",
    "producer is required for writing to pipe-lock.",
    "consumer is required for reading from pipe-lock.",
    "PLWLOG uses another log file.",
    "Entry %1 is not found in PLWLOG.",
    "%2 thrown at %1. input or output interrupted. operation=%3.",
    "%2 thrown at %1. %3 is an illegal option.",
    "invalid character type specified to convert string.",
    "cannot use about not running thread.",
    "cannot call QelMtThread::detach() after called QelMtThread::join().",
    "cannot call QelMtThread::join() after called QelMtThread::detach().",
    "cannot use this class with the library which is a single thread edition.",
    "%2 thrown at %1. %4 is an out of value of %3.",
    "%1 is an illegal format.",
    "%1 is an illegal format with a year-figure.",
    "%1 is a form control string which does not correspond to your input string %2.",
    "you must set numerical characters in \"%%nY\" of %1.",
    "it is inputted an illegal number of figure to %1.",
    "the maximum number of the fixed resource pool must be more than 0.",
    "cannot deallocate a resource over the maximum number of the fixed resource pool.",
};

char const* const fs_missingCatalogue = "velmor-test-missing.cat";

// A message of a catalogue that does not exist, with `text` as its default template.
QelCoMsgId fs_idWithDefault(char const* text, int number = 7) {
    return QelCoMsgId{&fs_missingCatalogue, number, text};
}

}  // namespace

TEST(MessageTable, SixtyMessagesInNumberOrderWithTheirTexts) {
    VelmorTest::ScopedCatalogue built(VelmorTest::builtCatalogueDir());
    EXPECT_STREQ("velqel.cat", QelMessageId_t::cs_base);
    for (int number = 1; number <= 60; ++number) {
        SCOPED_TRACE(number);
        QelCoMsgId const& id = QelMessageId[number];
        EXPECT_EQ(number, id.number);
        EXPECT_EQ(&QelMessageId_t::cs_base, id.base);
        EXPECT_STREQ(fs_expectedTexts[number - 1], id.defaultText);
        EXPECT_STREQ(fs_expectedTexts[number - 1], g_QelMessageConsts[number - 1]);
        // The built catalogue holds the same texts in its set 1.
        EXPECT_EQ(fs_expectedTexts[number - 1], QelCoMsgAccesser("velqel.cat", number).getMsg());
    }
}

TEST(Message, ArgumentsFollowTheirStorageRules) {
    QelCoMsg msg(fs_idWithDefault("%1"));
    EXPECT_EQ(0u, msg.getArgStrCount());
    msg << 42 << std::string() << std::string("text") << static_cast<char const*>(nullptr) << ""
        << std::wstring() << static_cast<wchar_t const*>(nullptr) << L"wide" << -7;
    ASSERT_EQ(9u, msg.getArgStrCount());
    msg << "tenth";
    EXPECT_EQ(9u, msg.getArgStrCount());
    char const* const expected[] = {"42",     "(null)", "text", "(null)", "",
                                    "(null)", "(null)", "wide", "-7"};
    for (unsigned int i = 0; i < 9; ++i)
        EXPECT_STREQ(expected[i], msg.getArgStr(i)) << i;
    EXPECT_EQ(nullptr, msg.getArgStr(9));

    // Wide text the C locale cannot convert.
    QelCoMsg wide;
    wide << std::wstring(L"caf\u00e9") << L"\u00e9";
    EXPECT_STREQ("(null)", wide.getArgStr(0));
    EXPECT_STREQ("(null)", wide.getArgStr(1));

    // A new id drops the arguments streamed so far.
    msg.setMsgId(QelMessageId[6]);
    EXPECT_EQ(0u, msg.getArgStrCount());
    EXPECT_EQ(6, msg.getMsgId());
    EXPECT_STREQ("velqel.cat", msg.getFileName());

    QelCoMsg unset;
    EXPECT_EQ(-1, unset.getMsgId());
    EXPECT_EQ(nullptr, unset.getDefaultMessage());
    EXPECT_EQ(nullptr, unset.getFileName());
    EXPECT_EQ(1, unset.getMsgFormatter().isNull());
}

TEST(Message, CopiesCarryIdentityAndArguments) {
    QelCoTSharedPtr<QelCoMsgFormatter> formatter(new QelLogNullMsgFormatter());
    QelCoMsg original(formatter, fs_idWithDefault("%1-%2"));
    original << "a"
             << "b";
    QelCoMsg copy(original);
    original.setMsgId(fs_idWithDefault("other"));
    EXPECT_EQ("a-b", copy.formatDefaultMsg());
    EXPECT_EQ(formatter.ptr(), copy.getMsgFormatter().ptr());

    QelCoMsg assigned(fs_idWithDefault("%1"));
    assigned << "old"
             << "older"
             << "oldest";
    assigned = copy;
    EXPECT_EQ(2u, assigned.getArgStrCount());
    EXPECT_EQ("a-b", assigned.formatDefaultMsg());
    EXPECT_EQ(7, assigned.getMsgId());
}

TEST(Formatter, SubstitutesDirectives) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    struct Row {
        char const* pattern;
        char const* expected;
    } const table[] = {
        {"no directive at all", "no directive at all"},
        {"%1", "first"},
        {"%2 and %1", "second and first"},
        {"100%", "100%"},
        {"%%1 is literal", "%1 is literal"},
        {"%5 missing", "(null) missing"},
        {"%x means x", "x means x"},
        {"line%nbreak", "line\nbreak"},
        {"a%tb", "a\tb"},
        {"cut%0 here", "cut"},
        {"%9%9", "ninthninth"},
        {"", ""},
    };
    for (Row const& row : table) {
        SCOPED_TRACE(row.pattern);
        QelCoMsg msg(fs_idWithDefault(row.pattern));
        msg << "first"
            << "second"
            << "3"
            << "4";
        if (std::string(row.pattern).find("%9") != std::string::npos) {
            msg << "5"
                << "6"
                << "7"
                << "8"
                << "ninth";
        }
        EXPECT_EQ(row.expected, msg.formatDefaultMsg());
        EXPECT_EQ(row.expected, msg.format());
        EXPECT_EQ(QelCoConverters::mbtowc(row.expected), msg.wformat());
        EXPECT_EQ(QelCoConverters::mbtowc(row.expected), msg.wformatDefaultMsg());
    }
}

TEST(Formatter, CatalogueWinsOverTheDefaultText) {
    QelCoMsg nullParam(QelMessageId[6]);
    nullParam << "A::b()"
              << "QelCoNullPointerException"
              << "p";
    QelCoMsg notInCatalogue(QelMessageId[8]);
    notInCatalogue << "A::b()"
                   << "QelCoOutOfMemoryException";
    {
        VelmorTest::ScopedCatalogue alternative(VelmorTest::alternativeCatalogueDir());
        EXPECT_EQ("[catalogue] p was null in A::b() (QelCoNullPointerException).",
                  nullParam.format());
        EXPECT_EQ("QelCoNullPointerException thrown at A::b(): p is a null pointer.",
                  nullParam.formatDefaultMsg());
        EXPECT_EQ(
            "QelCoOutOfMemoryException thrown at A::b(): cannot continue due to memory "
            "shortage.",
            notInCatalogue.format());
        try {
            g_qelCoUsageCheckFailed("QelMtLockable", "lock", QelMessageId[33]);
        } catch (QelCoException const& e) {
            EXPECT_STREQ(
                "[catalogue] QelCoMisUsageException at QelMtLockable::lock(): "
                "[catalogue] the lock-object has no body.",
                e.what());
        }
    }
    VelmorTest::ScopedCatalogue builtIn(VelmorTest::builtCatalogueDir());
    EXPECT_EQ("QelCoNullPointerException thrown at A::b(): p is a null pointer.",
              nullParam.format());
    VelmorTest::ScopedCatalogue none("");
    EXPECT_EQ("QelCoNullPointerException thrown at A::b(): p is a null pointer.",
              nullParam.format());
}

TEST(Formatter, CataloguesThatCannotBeReadGiveEmptyTexts) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    EXPECT_EQ("", QelCoMsgAccesser(nullptr, 1).getMsg());
    EXPECT_EQ("", QelCoMsgAccesser("velqel.cat", 1).getMsg());
    EXPECT_EQ(L"", QelCoMsgAccesser("velqel.cat", 1).wgetMsg());
    VelmorTest::ScopedCatalogue built(VelmorTest::builtCatalogueDir());
    EXPECT_EQ("", QelCoMsgAccesser("velqel.cat", 61).getMsg());
    EXPECT_EQ(L"stream has already closed.", QelCoMsgAccesser("velqel.cat", 25).wgetMsg());
}

TEST(Formatter, DeliversWithPrefixesAndFallbacks) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    QelCoMsgId const noText{&fs_missingCatalogue, 77, nullptr};
    {
        VelmorTest::CerrCapture captured;
        QelCoTSharedPtr<QelCoMsgFormatter> stderrFormatter(new QelCoStderrMsgFormatter());
        QelCoMsg filled(stderrFormatter, fs_idWithDefault("disk %1 is full"));
        filled << "/var";
        filled.error();
        filled.warn();
        filled.info();
        QelCoMsg unfilled(stderrFormatter, noText);
        EXPECT_EQ("", unfilled.format());
        unfilled.error();
        EXPECT_EQ(
            "error: disk /var is full\nwarn: disk /var is full\ninfo: disk /var is full\n"
            "error: MessageID=77\n",
            captured.text());
    }
    {
        // Without a formatter, delivery installs the default one in the message.
        VelmorTest::CerrCapture captured;
        QelCoMsg msg(fs_idWithDefault("hello %1"));
        msg << "world";
        msg.warn();
        EXPECT_EQ(0, msg.getMsgFormatter().isNull());
        EXPECT_STREQ("QelCoStderrMsgFormatter", msg.getMsgFormatter()->getClassName());
        EXPECT_EQ("warn: hello world\n", captured.text());
    }
    std::ostringstream stream;
    {
        QelCoTSharedPtr<QelCoMsgFormatter> toStream(new QelLogOstreamMsgFormatter(&stream, 0));
        QelCoTSharedPtr<QelCoMsgFormatter> bare(new QelLogOstreamMsgFormatter(&stream, 0, 1));
        QelCoMsg msg(toStream, fs_idWithDefault("%1 left"));
        msg << "3";
        msg.error();
        msg.info();
        msg.setMsgFormatter(bare);
        msg.warn();
        QelCoMsg unfilled(bare, noText);
        unfilled.info();
        QelCoTSharedPtr<QelCoMsgFormatter> nowhere(new QelLogOstreamMsgFormatter(nullptr, 1));
        msg.setMsgFormatter(nowhere);
        msg.error();
        QelCoTSharedPtr<QelCoMsgFormatter> silent(new QelLogNullMsgFormatter());
        msg.setMsgFormatter(silent);
        msg.error();
    }
    // The formatters did not own the stream, so it is still usable here.
    stream << "end";
    EXPECT_EQ("error: 3 left\ninfo: 3 left\n3 left\nMessageID=77\nend", stream.str());
}

TEST(Formatter, OwnedStreamIsDeletedWithTheFormatter) {
    static int deleted;
    deleted = 0;
    struct CountingStream : std::ostringstream {
        ~CountingStream() override { ++deleted; }
    };
    { QelLogOstreamMsgFormatter owner(new CountingStream(), 1); }
    EXPECT_EQ(1, deleted);
    CountingStream kept;
    { QelLogOstreamMsgFormatter borrower(&kept, 0); }
    EXPECT_EQ(1, deleted);
}

TEST(Formatter, UnconvertibleArgumentStaysInsideItsBuffer) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    QelCoMsg msg(fs_idWithDefault("name=%1."));
    msg << "caf\xc3\xa9";
    // The C locale cannot read the argument: its non-ASCII bytes show as '?'.
    EXPECT_EQ("name=caf??.", msg.format());
    EXPECT_EQ("name=caf\xc3\xa9.", msg.formatDefaultMsg());
}

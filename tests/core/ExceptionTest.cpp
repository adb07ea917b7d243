// The exception tree: places, texts, copies, re-raising and memory shortage.
#include <gtest/gtest.h>

#include <clocale>
#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>

#include <velmor/velmor.h>

#include "support/AllocationFailure.h"
#include "support/VelmorTestSupport.h"

using namespace Velmor;

namespace {

struct ExpectedText {
    char const* className;
    std::function<void()> raise;
    char const* what;
};

QelCoMsg fs_misuseMessage(int number) {
    QelCoMsg msg;
    msg.setMsgId(QelMessageId[number]);
    return msg;
}

}  // namespace

TEST(Exception, EveryClassFillsItsMessageWithDefaultTexts) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    std::logic_error logic("bad logic");
    std::runtime_error runtime("bad luck");
    QelCoMsg misuse = fs_misuseMessage(33);
    ExpectedText const table[] = {
        {"QelCoException", [] { throw QelCoException("C", "m"); },
         "QelCoException thrown at C::m(): no further information available."},
        {"QelCoLogicalException", [] { throw QelCoLogicalException("C", "m"); },
         "QelCoLogicalException thrown at C::m(): no further information available."},
        {"QelCoRuntimeException", [] { throw QelCoRuntimeException("C", "m"); },
         "QelCoRuntimeException thrown at C::m(): no further information available."},
        {"QelCoNullPointerException", [] { throw QelCoNullPointerException("C", "m", "p"); },
         "QelCoNullPointerException thrown at C::m(): p is a null pointer."},
        {"QelCoNullPointerException", [] { throw QelCoNullPointerException("C", "m", nullptr); },
         "QelCoNullPointerException thrown at C::m(): referred a null pointer."},
        {"QelAnsiLogicalException", [&] { throw QelAnsiLogicalException("C", "m", logic); },
         "QelAnsiLogicalException thrown at C::m(): bad logic."},
        {"QelAnsiRuntimeException", [&] { throw QelAnsiRuntimeException("C", "m", runtime); },
         "QelAnsiRuntimeException thrown at C::m(): bad luck."},
        {"QelCoMisUsageException", [&] { throw QelCoMisUsageException("C", "m", &misuse); },
         "QelCoMisUsageException thrown at C::m(): cannot use uninitialized lock-object.."},
        {"QelCoOutOfRangeException", [] { throw QelCoOutOfRangeException("C", "m", "count", -5); },
         "QelCoOutOfRangeException thrown at C::m(). -5 is an out of value of count."},
        {"QelCoOperationFailureExceptionTrue",
         [] { throw QelCoOperationFailureExceptionTrue("C", "m", "flush"); },
         "QelCoOperationFailureExceptionTrue thrown at C::m(): The flush failed."},
        {"QelCoNoResourceException", [] { throw QelCoNoResourceException("C", "m", "semaphore"); },
         "QelCoNoResourceException thrown at C::m(): cannot continue semaphore due to resource "
         "shortage."},
        {"QelCoOutOfMemoryException", [] { throw QelCoOutOfMemoryException("C", "m"); },
         "QelCoOutOfMemoryException thrown at C::m(): cannot continue due to memory shortage."},
        {"QelCoSystemCallException", [] { throw QelCoSystemCallException("C", "m", "open", 2); },
         "QelCoSystemCallException thrown at C::m(): system-call=open. errno=2."},
    };
    for (ExpectedText const& row : table) {
        SCOPED_TRACE(row.what);
        try {
            row.raise();
            FAIL() << "nothing thrown";
        } catch (QelCoException const& e) {
            EXPECT_STREQ(row.className, e.getClassName());
            EXPECT_STREQ(row.what, e.what());
            EXPECT_EQ(e.what(), e.what()) << "the text is made once and kept";
            std::ostringstream stream;
            stream << e;
            EXPECT_EQ(row.what, stream.str());

            // A stored copy raised again keeps its dynamic class.
            std::unique_ptr<QelCoException> stored(e.duplicate());
            ASSERT_NE(nullptr, stored);
            try {
                stored->raise();
            } catch (QelCoException const& again) {
                EXPECT_EQ(&e.getRTTI(), &again.getRTTI());
                EXPECT_STREQ(row.what, again.what());
            }
        }
    }
}

TEST(Exception, WorkedMisuseRaiseOfAnUninitialisedLock) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    try {
        g_qelCoUsageCheckFailed("QelMtLockable", "lock", QelMessageId[33]);
        FAIL();
    } catch (QelCoMisUsageException const& e) {
        EXPECT_STREQ("cannot use uninitialized lock-object.", e.getText());
        EXPECT_STREQ(
            "QelCoMisUsageException thrown at QelMtLockable::lock(): cannot use uninitialized "
            "lock-object..",
            e.what());
    }
}

TEST(Exception, WhereNamesThePlaceOfTheRaise) {
    QelCoMsg misuse = fs_misuseMessage(33);
    std::runtime_error standard("x");
    QelCoRuntimeException withMethodOnly(static_cast<char const*>(nullptr), "m");
    QelCoRuntimeException withClassOnly("C", nullptr);
    QelCoRuntimeException withNothing(static_cast<char const*>(nullptr), nullptr);
    EXPECT_STREQ("file.cpp(1234)", QelCoException("file.cpp", 1234).where());
    EXPECT_STREQ("C::m()", QelCoException("C", "m").where());
    EXPECT_STREQ("m()", withMethodOnly.where());
    EXPECT_STREQ("C::", withClassOnly.where());
    EXPECT_STREQ("exception location information lost due to memory shortage", withNothing.where());
    EXPECT_STREQ("exception location information lost due to memory shortage",
                 QelAnsiRuntimeException(standard).where());
    EXPECT_STREQ("exception location information lost due to memory shortage",
                 QelAnsiLogicalException(standard).where());

    // By object: the object's dynamic class.
    QelCoStderrMsgFormatter formatter;
    QelCoMsgFormatter const& asBase = formatter;
    EXPECT_STREQ("QelCoStderrMsgFormatter::report()",
                 QelCoMisUsageException(&asBase, "report", &misuse).where());

    auto whereOf = [](std::function<void()> raise) {
        try {
            raise();
        } catch (QelCoException const& e) {
            return std::string(e.where()) + " | " + e.getClassName();
        }
        return std::string("nothing thrown");
    };
    EXPECT_EQ("m() | QelCoNullPointerException",
              whereOf([] { g_qelCoNullCheckFailed(0, "m", "p"); }));
    EXPECT_EQ("f.cpp(7) | QelCoNullPointerException",
              whereOf([] { g_qelCoNullCheckFailed("f.cpp", 7); }));
    EXPECT_EQ("QelCoStderrMsgFormatter::make() | QelCoOutOfMemoryException",
              whereOf([&] { g_qelCoNewMemoryFailed(&formatter, "make"); }));
    EXPECT_EQ("A::b() | QelCoOutOfMemoryException",
              whereOf([] { g_qelCoNewMemoryFailed("A", "b"); }));
    EXPECT_EQ("b() | QelCoOutOfMemoryException", whereOf([] { g_qelCoNewMemoryFailed(0, "b"); }));
    EXPECT_EQ("b() | QelCoMisUsageException",
              whereOf([] { g_qelCoUsageCheckFailed(0, "b", QelMessageId[25]); }));
    EXPECT_EQ("QelCoStderrMsgFormatter::b() | QelCoMisUsageException",
              whereOf([&] { g_qelCoUsageCheckFailed(&formatter, "b", QelMessageId[25]); }));
}

TEST(Exception, NullCheckWithDefaultTexts) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    try {
        g_qelCoNullCheckFailed("A", "b", "p");
        FAIL();
    } catch (QelCoNullPointerException const& e) {
        EXPECT_STREQ("QelCoNullPointerException thrown at A::b(): p is a null pointer.", e.what());
        EXPECT_STREQ("p", e.getParameterName());
    }
    try {
        g_qelCoNullCheckFailed("f.cpp", 3);
        FAIL();
    } catch (QelCoNullPointerException const& e) {
        EXPECT_EQ(nullptr, e.getParameterName());
        EXPECT_STREQ("QelCoNullPointerException thrown at f.cpp(3): referred a null pointer.",
                     e.what());
    }
}

TEST(Exception, CopiesOwnTheirTextsAndRebuildThem) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    auto original = std::make_unique<QelCoSystemCallException>("C", "m", "read", 5);
    char const* originalText = original->what();
    QelCoSystemCallException copy(*original);
    EXPECT_NE(originalText, copy.what());
    EXPECT_STREQ(originalText, copy.what());
    EXPECT_EQ(5, copy.getErrNo());

    QelCoSystemCallException assigned("X", "y", "write", 9);
    EXPECT_STREQ("QelCoSystemCallException thrown at X::y(): system-call=write. errno=9.",
                 assigned.what());
    assigned = *original;
    original.reset();  // the copies must not refer to the original's texts
    EXPECT_STREQ("QelCoSystemCallException thrown at C::m(): system-call=read. errno=5.",
                 assigned.what());
    EXPECT_STREQ("C::m()", copy.where());
    assigned = assigned;
    EXPECT_STREQ("C::m()", assigned.where());
}

TEST(Exception, FormatterOfTheExceptionsCanBeReplaced) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    QelCoException first("C", "m");  // the first exception installs the default formatter
    QelCoTSharedPtr<QelCoMsgFormatter> saved = QelCoException::cs_getMsgFormatter();
    ASSERT_EQ(0, saved.isNull());
    EXPECT_STREQ("QelCoStderrMsgFormatter", saved->getClassName());

    // Without a formatter the unfilled default text stands in; the next exception made
    // installs a default formatter again.
    QelCoOutOfMemoryException unformatted("C", "m");
    QelCoException::cs_setMsgFormatter(QelCoTSharedPtr<QelCoMsgFormatter>());
    EXPECT_STREQ("%2 thrown at %1: cannot continue due to memory shortage.", unformatted.what());
    QelCoException another("C", "m");
    EXPECT_EQ(0, QelCoException::cs_getMsgFormatter().isNull());
    QelCoException::cs_setMsgFormatter(saved);
    EXPECT_STREQ(
        "QelCoOutOfMemoryException thrown at C::m(): cannot continue due to memory "
        "shortage.",
        QelCoOutOfMemoryException("C", "m").what());
}

TEST(Exception, MemoryShortageFallsBackOnFixedTexts) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    QelCoMsg misuse = fs_misuseMessage(33);
    std::optional<QelCoOperationFailureExceptionTrue> failure;
    std::optional<QelCoOutOfRangeException> range;
    std::optional<QelCoMisUsageException> misused;
    QelCoException placed("C", "m");
    {
        VelmorTest::ScopedAllocationFailure noMemory;
        failure.emplace("C", "m", "flush");
        range.emplace("C", "m", "count", 1);
        misused.emplace("C", "m", &misuse);
        EXPECT_STREQ("do not know what happened due to memory shortage", placed.what());
        EXPECT_STREQ("exception location information lost due to memory shortage", placed.where());
        EXPECT_EQ(nullptr, placed.duplicate());
    }
    EXPECT_STREQ("failed operation name lost due to memory shortage",
                 failure->getFailedOperationName());
    EXPECT_STREQ("lost argment name due to memory shortage", range->getArgName());
    EXPECT_STREQ("do not know what happend", misused->getText());
    EXPECT_STREQ("exception location information lost due to memory shortage", failure->where());
    EXPECT_STREQ(
        "QelCoMisUsageException thrown at exception location information lost due to "
        "memory shortage: do not know what happend.",
        misused->what());
    // Nothing was cached while memory was short.
    EXPECT_STREQ("C::m()", placed.where());
    EXPECT_STREQ("QelCoException thrown at C::m(): no further information available.",
                 placed.what());
}

TEST(Converters, WholeStringsFollowTheLocale) {
    EXPECT_EQ(L"", QelCoConverters::mbtowc(""));
    EXPECT_EQ("", QelCoConverters::wctomb(L""));
    EXPECT_EQ(L"plain", QelCoConverters::mbtowc("plain"));
    EXPECT_EQ("plain", QelCoConverters::wctomb(L"plain"));
    // Bytes that the C locale cannot read give an empty string, not an exception.
    EXPECT_EQ(L"", QelCoConverters::mbtowc("caf\xc3\xa9"));
    EXPECT_EQ("", QelCoConverters::wctomb(L"caf\u00e9"));

    std::string saved = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "C.UTF-8") == nullptr) {
        GTEST_SKIP() << "no C.UTF-8 locale";
    }
    EXPECT_EQ(L"caf\u00e9", QelCoConverters::mbtowc("caf\xc3\xa9"));
    EXPECT_EQ("caf\xc3\xa9", QelCoConverters::wctomb(L"caf\u00e9"));
    EXPECT_EQ(L"", QelCoConverters::mbtowc("bad \xff byte"));
    std::setlocale(LC_ALL, saved.c_str());
}

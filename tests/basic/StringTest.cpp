// QelBtTString: step table, sharing and copy-on-write, the NUL rule, searches, and memory
// failure; typed over the four element types where the element type matters.
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include <velmor/velmor.h>

#include "support/AllocationFailure.h"

using namespace Velmor;

namespace {

// A terminated array of T holding the bytes of `text` (each byte as one element, sign-extended
// for signed element types).
template <class T>
std::vector<T> fs_text(char const* text, unsigned int length) {
    std::vector<T> elements;
    for (unsigned int i = 0; i < length; ++i)
        elements.push_back(static_cast<T>(text[i]));
    elements.push_back(T(0));
    return elements;
}

template <class T>
std::vector<T> fs_text(char const* text) {
    return fs_text<T>(text, static_cast<unsigned int>(std::char_traits<char>::length(text)));
}

// The elements of `s` as bytes, for readable comparisons.
template <class T>
std::string fs_bytes(QelBtTString<T> const& s) {
    std::string bytes;
    for (unsigned int i = 0; i < s.length(); ++i)
        bytes += static_cast<char>(s[i]);
    return bytes;
}

template <class T>
class TypedString : public ::testing::Test {};

using ElementTypes = ::testing::Types<char, wchar_t, unsigned short, long>;
TYPED_TEST_SUITE(TypedString, ElementTypes);

unsigned int const npos = QelBtStringConsts::npos;

}  // namespace

TEST(StringSteps, CapacityFollowsTheStepTable) {
    unsigned int const requests[] = {0,   31,  32,  63,   64,   127,  128, 255,
                                     256, 511, 512, 1023, 1024, 1025, 5000};
    unsigned int const capacities[] = {64,  64,  128,  128,  192,  192,  320, 320,
                                       640, 640, 1280, 1280, 1536, 1537, 5512};
    for (unsigned int i = 0; i < sizeof requests / sizeof requests[0]; ++i) {
        EXPECT_EQ(capacities[i], QelBtStringConsts::cs_getAllocSize(requests[i])) << requests[i];
    }
    QelBtTString<char> grown;
    std::string expected;
    for (int i = 0; i < 1280; ++i) {
        grown += 'x';
        expected += 'x';
    }
    // 1281 elements with the terminator outgrow 1280: the next block is 1281 + 512.
    EXPECT_EQ(1280u, grown.length());
    EXPECT_EQ(1793u, grown.capacity());
    EXPECT_EQ(expected, grown.c_str());
}

TYPED_TEST(TypedString, EmptyStringsOwnABlock) {
    using S = QelBtTString<TypeParam>;
    S empty;
    EXPECT_EQ(64u, empty.capacity());
    EXPECT_EQ(0u, empty.length());
    ASSERT_NE(nullptr, empty.c_str());
    EXPECT_EQ(TypeParam(0), empty.c_str()[0]);
    EXPECT_EQ(64u, S(fs_text<TypeParam>("").data(), 0).capacity());
    S filled(TypeParam('z'), 0, 0);
    EXPECT_TRUE(filled.empty());
    EXPECT_EQ(64u, filled.capacity());
    S reserved(TypeParam(0), 500, 0);
    EXPECT_TRUE(reserved.empty());
    EXPECT_EQ(640u, reserved.capacity());
    EXPECT_EQ("zzz", fs_bytes(S(TypeParam('z'), 3, 200)));
    EXPECT_EQ(320u, S(TypeParam('z'), 3, 200).capacity());
}

TYPED_TEST(TypedString, CopiesShareUntilOneIsWritten) {
    using S = QelBtTString<TypeParam>;
    S a(fs_text<TypeParam>("shared text").data());
    S b;
    b = a;
    EXPECT_EQ(a.data(), b.data());
    b = b;
    EXPECT_EQ(a.data(), b.data());
    b[0];  // a writable reference unshares, even if nothing is stored through it
    EXPECT_NE(a.data(), b.data());
    EXPECT_EQ("shared text", fs_bytes(a));
    EXPECT_EQ("shared text", fs_bytes(b));

    S c(a);
    EXPECT_EQ(a.data(), c.data());
    a.append(fs_text<TypeParam>("!").data());
    EXPECT_EQ("shared text!", fs_bytes(a));
    EXPECT_EQ("shared text", fs_bytes(c));

    S d(c);
    d.erase(d.length());  // nothing to erase, but the block becomes d's own
    EXPECT_NE(c.data(), d.data());
    EXPECT_EQ("shared text", fs_bytes(d));

    S e(c);
    S const& readOnly = e;
    EXPECT_EQ(TypeParam('s'), readOnly[0]);
    EXPECT_EQ(c.data(), e.data()) << "reading does not unshare";
    *e.begin() = TypeParam('S');
    EXPECT_EQ("Shared text", fs_bytes(e));
    EXPECT_EQ("shared text", fs_bytes(c));
}

TYPED_TEST(TypedString, EditingOperations) {
    using S = QelBtTString<TypeParam>;
    auto t = [](char const* text) -> std::vector<TypeParam> const {
        return fs_text<TypeParam>(text);
    };
    S s(t("abcd").data());
    unsigned int capacity = s.capacity();
    s.resize(s.length() + 10);
    EXPECT_EQ(4u, s.length());
    s.resize(2);
    EXPECT_EQ("ab", fs_bytes(s));
    EXPECT_EQ(capacity, s.capacity());

    s += TypeParam(0);
    s.push_back(TypeParam(0));
    EXPECT_EQ("ab", fs_bytes(s));
    s = TypeParam(0);
    EXPECT_TRUE(s.empty());
    s = TypeParam('q');
    EXPECT_EQ("q", fs_bytes(s));

    S doubled(t("xy").data());
    doubled.append(doubled);
    EXPECT_EQ("xyxy", fs_bytes(doubled));
    std::vector<TypeParam> inner = fs_text<TypeParam>("a\0b", 3);
    S withZero(inner.data(), 3);
    withZero.append(withZero);
    EXPECT_EQ(4u, withZero.length()) << "the second copy stops at the inner zero";

    S edit(t("hello world").data());
    edit.insert(5, t(",").data());
    EXPECT_EQ("hello, world", fs_bytes(edit));
    edit.replace(0, 5, t("goodbye").data());
    EXPECT_EQ("goodbye, world", fs_bytes(edit));
    edit.replace(9, npos, t("all").data());
    EXPECT_EQ("goodbye, all", fs_bytes(edit));
    edit.replace(0, 7, t("hi").data(), 2);
    EXPECT_EQ("hi, all", fs_bytes(edit));
    edit.erase(2, 1);
    EXPECT_EQ("hi all", fs_bytes(edit));
    edit.erase(2, 100);
    EXPECT_EQ("hi", fs_bytes(edit));
    edit.insert(edit.begin() + 1, TypeParam('!'));
    EXPECT_EQ("h!i", fs_bytes(edit));
    edit.erase(edit.begin());
    EXPECT_EQ("!i", fs_bytes(edit));
    edit.insert(0, edit);
    EXPECT_EQ("!i!i", fs_bytes(edit));
    edit.replace(1, 2, edit);
    EXPECT_EQ("!!i!ii", fs_bytes(edit));
    EXPECT_EQ("i!i", fs_bytes(edit.substr(2, 3)));
    EXPECT_EQ("!ii", fs_bytes(edit.substr(3)));
    EXPECT_EQ(TypeParam('i'), *edit.rbegin());
    EXPECT_EQ(TypeParam('!'), *--S(edit).rend());
}

TYPED_TEST(TypedString, ComparisonFollowsTheNulRule) {
    using S = QelBtTString<TypeParam>;
    auto t = [](char const* text) -> std::vector<TypeParam> const {
        return fs_text<TypeParam>(text);
    };
    S abc(t("abc").data());
    EXPECT_EQ(0, abc.compare(1, 2, abc));
    EXPECT_EQ(1, abc.compare(abc.length() + 1, 0, t("").data()));
    EXPECT_EQ(-1, abc.compare(abc.length(), 0, t("x").data()));
    EXPECT_EQ(0, abc.compare(abc.length(), 0, t("").data()));
    EXPECT_EQ(-1, abc.compare(0, 3, t("abcdef").data()));
    EXPECT_EQ(0, abc.compare(t("abc").data()));
    EXPECT_EQ(1, abc.compare(t("abb").data()));
    EXPECT_EQ(1, abc.compare(t("ab").data()));
    EXPECT_TRUE(abc == t("abc").data());
    EXPECT_TRUE(abc != t("abcd").data());
    EXPECT_TRUE(abc < t("abd").data());
    EXPECT_TRUE(abc > S(t("ab").data()));
    EXPECT_TRUE(abc <= S(t("abc").data()));

    // The walk covers the larger count, on the pattern as well, up to its terminator.
    S abcdx(t("abcdX").data());
    EXPECT_EQ(-1, abcdx.compare(0, 5, t("abcdefgh").data(), 3));
    EXPECT_EQ(0, abcdx.compare(0, 4, t("abcdefgh").data(), 2));
    EXPECT_EQ(1, abcdx.compare(0, 5, t("abcd").data(), 2));
    EXPECT_EQ(-1, abcdx.compare(0, 2, t("abcdXY").data()));
    EXPECT_EQ(0, abcdx.compare(1, 3, S(t("bcd").data())));
    EXPECT_EQ(1, abcdx.compare(1, 4, S(t("bcd").data())));

    // Behind an inner zero the texts differ, but comparison stops there.
    std::vector<TypeParam> first = fs_text<TypeParam>("ab\0x", 4);
    std::vector<TypeParam> second = fs_text<TypeParam>("ab\0y", 4);
    S one(first.data(), 4);
    S two(second.data(), 4);
    EXPECT_TRUE(one == two);
    EXPECT_EQ(0, one.compare(two));
    EXPECT_NE(one[3], two[3]);
}

TEST(StringCompare, ElementSignednessByType) {
    // 0xE9 is negative as a char, wchar_t and long element, and large as unsigned short.
    EXPECT_TRUE(QelBtTString<char>("\xE9") < "a");
    EXPECT_TRUE(QelBtTString<wchar_t>(L"\xffffffe9") < L"a");
    long const minusOne[] = {-1, 0};
    long const letterA[] = {'a', 0};
    EXPECT_TRUE(QelBtTString<long>(minusOne) < letterA);
    unsigned short const high[] = {0xffe9, 0};
    unsigned short const lowA[] = {'a', 0};
    EXPECT_TRUE(QelBtTString<unsigned short>(high) > lowA);
}

TYPED_TEST(TypedString, SearchesAndTheirEdges) {
    using S = QelBtTString<TypeParam>;
    auto t = [](char const* text) -> std::vector<TypeParam> const {
        return fs_text<TypeParam>(text);
    };
    S s(t("abcabcxyz").data());
    EXPECT_EQ(npos, s.find(t("").data()));
    EXPECT_EQ(npos, s.rfind(t("").data()));
    EXPECT_EQ(3u, s.find_first_not_of(t("").data(), 3));
    EXPECT_EQ(8u, s.find_last_not_of(t("").data()));
    EXPECT_EQ(npos, s.find_first_of(t("").data()));
    EXPECT_EQ(1u, s.find(t("bc").data()));
    EXPECT_EQ(4u, s.find(t("bc").data(), 2));
    EXPECT_EQ(npos, s.find(t("bc").data(), 100));
    EXPECT_EQ(4u, s.rfind(t("bc").data()));
    EXPECT_EQ(4u, s.rfind(t("bc").data(), 100));
    EXPECT_EQ(1u, s.rfind(t("bc").data(), 3));
    EXPECT_EQ(npos, s.find(t("bcd").data()));
    EXPECT_EQ(1u, s.find(t("bcd").data(), 0, 2));
    EXPECT_EQ(6u, s.find(TypeParam('x')));
    EXPECT_EQ(5u, s.rfind(TypeParam('c')));
    EXPECT_EQ(3u, s.find(S(t("abcx").data()).substr(0, 3), 1));
    EXPECT_EQ(2u, s.find_first_of(t("zc").data()));
    EXPECT_EQ(8u, s.find_last_of(t("zc").data()));
    EXPECT_EQ(5u, s.find_last_of(t("zc").data(), 7));
    EXPECT_EQ(6u, s.find_first_not_of(t("abc").data()));
    EXPECT_EQ(5u, s.find_last_not_of(t("xyz").data()));
    EXPECT_EQ(npos, S().rfind(TypeParam('a')));
    EXPECT_EQ(npos, S().find_last_of(t("a").data()));
}

TEST(StringStream, WritesTheText) {
    std::ostringstream out;
    out << QelBtTString<char>("abc") << QelBtStringBuf("def") << QelBtStringBuf();
    EXPECT_EQ("abcdef", out.str());
}

TEST(StringMemory, FailedAllocationsReportAndLeaveTheDocumentedState) {
    if (!VelmorTest::ScopedMallocFailure::available()) {
        GTEST_SKIP() << "malloc cannot be replaced under the sanitizers";
    }
    QelBtTString<char> s("abc");
    QelBtTString<char> shared(s);
    try {
        VelmorTest::ScopedMallocFailure noMemory(0, true);
        s.reserve(1000);
        FAIL() << "nothing thrown";
    } catch (QelCoOutOfMemoryException const& e) {
        EXPECT_STREQ("QelBtTString::copyOnWrite()", e.where());
    }
    EXPECT_STREQ("abc", s.c_str());
    EXPECT_EQ(shared.data(), s.data()) << "a failed unsharing changes nothing";

    try {
        std::string longText(200, 'x');
        VelmorTest::ScopedMallocFailure noMemory(0, true);
        s.assign(longText.c_str());
        FAIL() << "nothing thrown";
    } catch (QelCoOutOfMemoryException const& e) {
        EXPECT_STREQ("QelBtTString::__allocate()", e.where());
    }
    s.assign("again");  // assigning is allowed after a failed allocation
    EXPECT_STREQ("again", s.c_str());
    EXPECT_STREQ("abc", shared.c_str());
}

TEST(StringBuf, GrowsInStepsOf512AndNeverShares) {
    QelBtStringBuf none;
    EXPECT_EQ(nullptr, none.c_str());
    EXPECT_EQ("", none.toString());
    EXPECT_EQ(0u, none.toQelBtString().length());
    EXPECT_EQ(0u, QelBtStringBuf(0u).capacity());
    EXPECT_EQ(512u, QelBtStringBuf(1u).capacity());
    EXPECT_EQ(512u, QelBtStringBuf(511u).capacity());
    EXPECT_EQ(1024u, QelBtStringBuf(512u).capacity());

    QelBtStringBuf b("abc");
    b = '\0';
    EXPECT_STREQ("abc", b.c_str());
    b = 'z';
    EXPECT_STREQ("z", b.c_str());
    b.assign("hello");
    b += ' ';
    b += std::string("big");
    b += QelBtTString<char>(" world");
    b.insert(0, ">> ");
    b.insert(3, std::string("[") + "]");
    EXPECT_EQ(">> []hello big world", b.toString());
    QelBtStringBuf copy(b);
    copy.append(copy);
    EXPECT_NE(b.c_str(), copy.c_str());
    EXPECT_EQ(">> []hello big world>> []hello big world", copy.toString());
    EXPECT_EQ(">> []hello big world", b.toString());

    std::string large(700, 'y');
    b.append(large);
    EXPECT_EQ(1024u, b.capacity());
    EXPECT_EQ(720u, b.length());
    b.resize(5);
    EXPECT_EQ(">> []", b.toString());
    EXPECT_EQ(1024u, b.capacity());
    b.resize(2000);
    EXPECT_EQ(2048u, b.capacity());
    EXPECT_EQ(5u, b.length());
    b.erase();
    EXPECT_TRUE(b.empty());
    EXPECT_EQ(2048u, b.capacity());

    QelBtStringBuf failing;
    try {
        VelmorTest::ScopedAllocationFailure noMemory(0, true);
        failing.assign("x");
        FAIL();
    } catch (QelCoOutOfMemoryException const& e) {
        EXPECT_STREQ("QelBtStringBufData::allocate()", e.where());
    }
}

// Numbers to text and back: limits, bad text, locales with separators, and round trips.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <functional>
#include <random>
#include <string>

#include <velmor/velmor.h>

#include "support/VelmorTestSupport.h"

using namespace Velmor;

namespace {

unsigned int const npos = QelUtStr::npos;

// The what() of the exception `parse` throws, or "no exception".
std::string fs_failureOf(std::function<void()> parse) {
    try {
        parse();
    } catch (QelUtNumberFormatException const& e) {
        return e.what();
    }
    return "no exception";
}

std::string fs_illegal(char const* method, char const* text) {
    return std::string("QelUtNumberFormatException thrown at QelUtStr::") + method + "(): " + text +
           " has illegal numerical format.";
}

}  // namespace

TEST(NumberText, ParsersReadTheNumberAtTheStart) {
    struct IntRow {
        char const* text;
        unsigned int n;
        int expected;
    };
    IntRow const decimal[] = {
        {"  42abc", npos, 42},
        {"  -7", npos, -7},
        {"123", 2, 12},
        {"0", npos, 0},
        {"-1", npos, -1},
        {"+5", npos, 5},
        {"\t\n 9", npos, 9},
        {"2147483647", npos, INT_MAX},
        {"-2147483648", npos, INT_MIN},
        {"12 34", npos, 12},
        {"007", 100, 7},
    };
    for (IntRow const& row : decimal) {
        EXPECT_EQ(row.expected, QelUtStr::strToInt(row.text, row.n)) << row.text;
        EXPECT_EQ(row.expected, QelUtStr::thousandsSepToInt(row.text, row.n)) << row.text;
    }
    IntRow const hex[] = {
        {"fF", npos, 255},
        {"-10", npos, -16},
        {"0x10", npos, 0},
        {"7fffffff", npos, INT_MAX},
        {"80000000", npos, INT_MIN},
        {"ffffffff", npos, -1},
        {"  +a", npos, 10},
        {"123456789", npos, 0x23456789},
        {"abc", 2, 0xab},
    };
    for (IntRow const& row : hex) {
        EXPECT_EQ(row.expected, QelUtStr::hexStrToInt(row.text, row.n)) << row.text;
    }
    EXPECT_EQ(0.0, QelUtStr::strToDouble("abc"));
    EXPECT_EQ(1.5, QelUtStr::strToDouble("1.5"));
    EXPECT_EQ(-0.25, QelUtStr::strToDouble("  -0.25x"));
    EXPECT_EQ(1e308, QelUtStr::strToDouble("1e308"));
    EXPECT_TRUE(std::isinf(QelUtStr::strToDouble("1e999")));
    EXPECT_EQ(12.0, QelUtStr::strToDouble("12.75", 3));
    EXPECT_EQ(4.0, QelUtStr::strToDouble("4e2", 1));
    EXPECT_EQ(1234.5, QelUtStr::thousandsSepToDouble("1234.5"));
}

TEST(NumberText, TextWithoutADigitIsRefused) {
    struct Row {
        char const* method;
        std::function<void()> parse;
        char const* text;
    } const table[] = {
        {"strToInt", [] { QelUtStr::strToInt(""); }, ""},
        {"strToInt", [] { QelUtStr::strToInt("   "); }, "   "},
        {"strToInt", [] { QelUtStr::strToInt("+"); }, "+"},
        {"strToInt", [] { QelUtStr::strToInt("-"); }, "-"},
        {"strToInt", [] { QelUtStr::strToInt("abc"); }, "abc"},
        {"strToInt", [] { QelUtStr::strToInt("--1"); }, "--1"},
        {"strToInt", [] { QelUtStr::strToInt("  123", 2); }, "  123"},
        {"strToInt", [] { QelUtStr::strToInt("-5", 1); }, "-5"},
        {"hexStrToInt", [] { QelUtStr::hexStrToInt("xyz"); }, "xyz"},
        {"hexStrToInt", [] { QelUtStr::hexStrToInt(""); }, ""},
        {"hexStrToInt", [] { QelUtStr::hexStrToInt("  -"); }, "  -"},
        {"hexStrToInt", [] { QelUtStr::hexStrToInt("g1"); }, "g1"},
        {"thousandsSepToInt", [] { QelUtStr::thousandsSepToInt(""); }, ""},
        {"thousandsSepToInt", [] { QelUtStr::thousandsSepToInt(" +"); }, " +"},
        {"thousandsSepToInt", [] { QelUtStr::thousandsSepToInt(",1"); }, ",1"},
        {"thousandsSepToDouble", [] { QelUtStr::thousandsSepToDouble(""); }, ""},
        {"thousandsSepToDouble", [] { QelUtStr::thousandsSepToDouble("-"); }, "-"},
        {"thousandsSepToDouble", [] { QelUtStr::thousandsSepToDouble(".5"); }, ".5"},
        {"thousandsSepToDouble", [] { QelUtStr::thousandsSepToDouble("1", 0); }, "1"},
    };
    VelmorTest::ScopedCatalogue noCatalogue("");
    for (auto const& row : table) {
        EXPECT_EQ(fs_illegal(row.method, row.text), fs_failureOf(row.parse)) << row.text;
    }
    // Long digit runs are numbers, not failures: strtol saturates, the others wrap.
    std::string longRun(5000, '9');
    EXPECT_NO_THROW(QelUtStr::strToInt(longRun));
    EXPECT_NO_THROW(QelUtStr::hexStrToInt(longRun));
    EXPECT_NO_THROW(QelUtStr::thousandsSepToInt(longRun));
    EXPECT_TRUE(std::isinf(QelUtStr::thousandsSepToDouble(longRun)));
}

TEST(NumberText, TheExceptionKeepsItsOwnCopyOfTheText) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    std::string* text = new std::string("12x");
    text->assign("bad");
    try {
        QelUtStr::strToInt(*text);
        FAIL();
    } catch (QelUtNumberFormatException const& e) {
        delete text;
        QelUtNumberFormatException copy(e);
        EXPECT_STREQ("bad", copy.getIllegalString());
        EXPECT_STREQ("QelUtStr::strToInt()", copy.where());
        EXPECT_EQ(1, copy.getRTTI().instanceOf(QelCoLogicalException::cs_rtti));
        QelUtNumberFormatException assigned("f.cpp", 1, "other");
        assigned = copy;
        EXPECT_STREQ("bad", assigned.getIllegalString());
    }
}

TEST(NumberText, PrintersInTheCLocale) {
    EXPECT_EQ("0", QelUtStr::intToStr(0));
    EXPECT_EQ("-2147483648", QelUtStr::intToStr(INT_MIN));
    EXPECT_EQ("2147483647", QelUtStr::intToStr(INT_MAX));
    EXPECT_EQ("ffffffff", QelUtStr::intToHexStr(-1));
    EXPECT_EQ("ff", QelUtStr::intToHexStr(255));
    EXPECT_EQ("0.5", QelUtStr::doubleToStr(0.5));
    EXPECT_EQ("1e+300", QelUtStr::doubleToStr(1e300));
    EXPECT_EQ("-1234", QelUtStr::intToThousandsSep(-1234));  // no separator in C
    EXPECT_EQ("1234.50", QelUtStr::doubleToThousandsSep(1234.5, 2));
    EXPECT_EQ("a-7b c", QelUtStr::strprintf("a%db %s", -7, "c"));
    std::string big(2000, 'x');
    EXPECT_EQ(big + "!", QelUtStr::strprintf("%s!", big.c_str()));
    // 309 digits and ".00": longer than any stack buffer, and still whole.
    EXPECT_EQ(312u, QelUtStr::doubleToThousandsSep(1e308, 2).size());
}

TEST(NumberText, SeparatorsOfTheLocale) {
    VelmorTest::ScopedLocale english("en_US.UTF-8");
    ASSERT_TRUE(english.ok());
    EXPECT_EQ("1,234,567", QelUtStr::intToThousandsSep(1234567));
    EXPECT_EQ("-1,234", QelUtStr::intToThousandsSep(-1234));
    EXPECT_EQ("123", QelUtStr::intToThousandsSep(123));
    EXPECT_EQ("0", QelUtStr::intToThousandsSep(0));
    EXPECT_EQ("-2,147,483,648", QelUtStr::intToThousandsSep(INT_MIN));
    EXPECT_EQ(1234, QelUtStr::thousandsSepToInt("1,234"));
    EXPECT_EQ(-123, QelUtStr::thousandsSepToInt("-1,2,3x"));
    EXPECT_EQ(12, QelUtStr::thousandsSepToInt("1,234", 3));
    EXPECT_EQ("1,234.50", QelUtStr::doubleToThousandsSep(1234.5, 2));
    EXPECT_EQ("-0.5", QelUtStr::doubleToThousandsSep(-0.5, 1));
    EXPECT_EQ("0", QelUtStr::doubleToThousandsSep(0.0, 0));
    EXPECT_EQ("1,000,000", QelUtStr::doubleToThousandsSep(999999.9, 0));
    EXPECT_EQ(1234.5, QelUtStr::thousandsSepToDouble("1,234.5"));
    EXPECT_EQ(-1234.5, QelUtStr::thousandsSepToDouble("  -1,234.5"));
    EXPECT_EQ(1234567.25, QelUtStr::thousandsSepToDouble(" 1,234,567.25 m"));
    // The limit guards the start; the separators are dropped to the end of the text.
    EXPECT_EQ(1234.5, QelUtStr::thousandsSepToDouble("1,234.5", 3));

    VelmorTest::ScopedLocale german("de_DE.UTF-8");
    ASSERT_TRUE(german.ok());
    EXPECT_EQ("1.234,50", QelUtStr::doubleToThousandsSep(1234.5, 2));
    EXPECT_EQ(1234.5, QelUtStr::thousandsSepToDouble("1.234,5"));
    EXPECT_EQ(-1234567, QelUtStr::thousandsSepToInt("-1.234.567"));

    // A separator of several bytes: whole between integer groups, its first byte in doubles.
    VelmorTest::ScopedLocale french("fr_FR.UTF-8");
    ASSERT_TRUE(french.ok());
    std::string const sep = "\xe2\x80\xaf";
    EXPECT_EQ("1" + sep + "234" + sep + "567", QelUtStr::intToThousandsSep(1234567));
    EXPECT_EQ(1234567, QelUtStr::thousandsSepToInt("1" + sep + "234" + sep + "567"));
    EXPECT_EQ(1, QelUtStr::thousandsSepToInt("1\xe2\x80x234"));
    EXPECT_EQ(
        "1\xe2"
        "234,5",
        QelUtStr::doubleToThousandsSep(1234.5, 1));
    EXPECT_EQ(1234.5, QelUtStr::thousandsSepToDouble("1" + sep + "234,5"));
}

TEST(NumberText, IntegersReadBackToThemselves) {
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> any(INT_MIN, INT_MAX);
    for (char const* locale : {"en_US.UTF-8", "fr_FR.UTF-8", "C"}) {
        VelmorTest::ScopedLocale scoped(locale);
        ASSERT_TRUE(scoped.ok()) << locale;
        for (int i = 0; i < 100000; ++i) {
            int value = i < 3 ? (i == 0 ? INT_MIN : i == 1 ? INT_MAX : 0) : any(random);
            ASSERT_EQ(value, QelUtStr::thousandsSepToInt(QelUtStr::intToThousandsSep(value)))
                << locale << " " << value;
            ASSERT_EQ(value, QelUtStr::strToInt(QelUtStr::intToStr(value))) << value;
            ASSERT_EQ(value, QelUtStr::hexStrToInt(QelUtStr::intToHexStr(value))) << value;
        }
    }
}

TEST(NumberText, TheTwinOnTheLibrarysStringAgrees) {
    VelmorTest::ScopedLocale english("en_US.UTF-8");
    ASSERT_TRUE(english.ok());
    VelmorTest::ScopedCatalogue noCatalogue("");
    char const* const texts[] = {"  42abc", "-1,234,567.5", "fF", "+", "", "1,2,3x", "9e99"};
    for (char const* text : texts) {
        std::string s(text);
        QelBtTString<char> b(text);
        auto same = [&](std::function<std::string()> standard, std::function<std::string()> twin) {
            std::string a = standard();
            std::string c = twin();
            EXPECT_EQ(a, c) << text;
        };
        auto result = [](auto parse) {
            return [parse]() -> std::string {
                try {
                    return std::to_string(parse());
                } catch (QelUtNumberFormatException const& e) {
                    return std::string(e.getIllegalString()) + " refused";
                }
            };
        };
        same(result([&] { return QelUtStr::strToInt(s, 4); }),
             result([&] { return QelUtBtStr::strToInt(b, 4); }));
        same(result([&] { return QelUtStr::hexStrToInt(s); }),
             result([&] { return QelUtBtStr::hexStrToInt(b); }));
        same(result([&] { return QelUtStr::strToDouble(s); }),
             result([&] { return QelUtBtStr::strToDouble(b); }));
        same(result([&] { return QelUtStr::thousandsSepToInt(s); }),
             result([&] { return QelUtBtStr::thousandsSepToInt(b); }));
        same(result([&] { return QelUtStr::thousandsSepToDouble(s); }),
             result([&] { return QelUtBtStr::thousandsSepToDouble(b); }));
    }
    try {
        QelUtBtStr::strToInt(QelBtTString<char>("x"));
        FAIL();
    } catch (QelUtNumberFormatException const& e) {
        EXPECT_STREQ("QelUtBtStr::strToInt()", e.where());
    }
    EXPECT_STREQ("-1,234", QelUtBtStr::intToThousandsSep(-1234).c_str());
    EXPECT_STREQ("1,234.50", QelUtBtStr::doubleToThousandsSep(1234.5, 2).c_str());
    EXPECT_STREQ("ff", QelUtBtStr::intToHexStr(255).c_str());
    EXPECT_STREQ("-7", QelUtBtStr::intToStr(-7).c_str());
    EXPECT_STREQ("0.5", QelUtBtStr::doubleToStr(0.5).c_str());
    EXPECT_STREQ("a-7b", QelUtBtStr::strprintf("a%db", -7).c_str());
}

#if defined(__i386__)
TEST(NumberText32, DecimalOverflowSaturatesAtTheLimitsOfLong) {
    // With a 32-bit long, strtol's saturation is the limit of int as well.
    EXPECT_EQ(INT_MAX, QelUtStr::strToInt("99999999999"));
    EXPECT_EQ(INT_MIN, QelUtStr::strToInt("-99999999999"));
}
#endif

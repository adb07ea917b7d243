// The twins on the library's string give the same results as their standard twins.
#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include <velmor/velmor.h>

#include "support/VelmorTestSupport.h"

using namespace Velmor;

namespace {

char const* const fs_noCatalogue = "velmor-test-missing.cat";

std::string fs_narrow(QelBtTString<char> const& s) { return std::string(s.c_str(), s.length()); }
std::wstring fs_wide(QelBtTString<wchar_t> const& s) { return std::wstring(s.c_str(), s.length()); }

}  // namespace

TEST(QesTwins, MessagesAndFormattersGiveTheSameTexts) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    char const* const patterns[] = {"plain",      "%1 and %2", "100%", "%%1%n%t|%0tail",
                                    "%7 missing", "",          "%x",   "caf%1"};
    char const* const arguments[][2] = {{"a", "b"}, {"", "x"}, {"\xc3\xa9", "2"}};
    for (char const* pattern : patterns) {
        for (auto const& args : arguments) {
            SCOPED_TRACE(std::string(pattern) + " / " + args[0]);
            QelCoMsgId const id = {&fs_noCatalogue, 3, pattern};
            QelCoMsg standard(id);
            standard << args[0] << std::string(args[1]);
            QelCoMsg twin(id);
            twin << QelBtTString<char>(args[0]) << QelBtTString<char>(args[1]);
            EXPECT_EQ(standard.format(), fs_narrow(twin.qes_format()));
            EXPECT_EQ(standard.formatDefaultMsg(), fs_narrow(twin.qes_formatDefaultMsg()));
            EXPECT_EQ(standard.wformat(), fs_wide(twin.qes_wformat()));
            EXPECT_EQ(standard.wformatDefaultMsg(), fs_wide(twin.qes_wformatDefaultMsg()));
            QelCoTSharedPtr<QelCoMsgFormatter> formatter(new QelLogNullMsgFormatter());
            EXPECT_EQ(formatter->format(standard), fs_narrow(formatter->qes_format(twin)));
            EXPECT_EQ(formatter->wformat(standard), fs_wide(formatter->qes_wformat(twin)));
        }
    }
}

TEST(QesTwins, ArgumentsFromTheLibrarysStrings) {
    QelCoMsg msg;
    msg << QelBtTString<char>("") << std::string("") << QelBtTString<wchar_t>(L"") << std::wstring()
        << QelBtTString<wchar_t>(L"wide") << QelBtTString<char>("narrow");
    // An empty library string stays empty; an empty standard string becomes "(null)".
    char const* const expected[] = {"", "(null)", "(null)", "(null)", "wide", "narrow"};
    ASSERT_EQ(6u, msg.getArgStrCount());
    for (unsigned int i = 0; i < 6; ++i)
        EXPECT_STREQ(expected[i], msg.getArgStr(i)) << i;
}

TEST(QesTwins, ConvertersFollowTheLocaleLikeTheirTwins) {
    char const* const narrow[] = {"", "plain", "caf\xc3\xa9", "bad \xff byte"};
    wchar_t const* const wide[] = {L"", L"plain", L"caf\u00e9"};
    for (char const* locale : {"C", "C.UTF-8"}) {
        std::string saved = std::setlocale(LC_ALL, nullptr);
        if (std::setlocale(LC_ALL, locale) == nullptr) continue;
        for (char const* text : narrow) {
            EXPECT_EQ(QelCoConverters::mbtowc(text),
                      fs_wide(QelCoConverters::qes_mbtowc(QelBtTString<char>(text))))
                << locale << " " << text;
        }
        for (wchar_t const* text : wide) {
            EXPECT_EQ(QelCoConverters::wctomb(text),
                      fs_narrow(QelCoConverters::qes_wctomb(QelBtTString<wchar_t>(text))))
                << locale;
        }
        std::setlocale(LC_ALL, saved.c_str());
    }
    EXPECT_EQ(0u, QelCoConverters::qes_mbtowc(QelBtTString<char>("caf\xc3\xa9")).length());
}

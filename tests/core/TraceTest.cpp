#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <velmor/velmor.h>

#include "../support/VelmorTestSupport.h"

using namespace Velmor;

namespace {

// Stores each event as one short text, "<null>" standing for a null pointer.
class RecordingFormatter : public QelCoTraceFormatter {
public:
    std::vector<std::string> events;

    void enter(char const* c, char const* m) override { frame("enter", c, m); }
    void enter(char const* m) override { frame("enter", nullptr, m); }
    void exit(char const* c, char const* m) override { frame("exit", c, m); }
    void exit(char const* m) override { frame("exit", nullptr, m); }
    void arg(char const* n, long v) override { add("arg " + s(n) + "=" + std::to_string(v)); }
    void arg(char const* n, std::string const& v) override { add("arg " + s(n) + "='" + v + "'"); }
    void arg(char const* n, void const*, unsigned int length) override {
        add("arg " + s(n) + " bytes=" + std::to_string(length));
    }
    void call(char const* c, char const* m) override { frame("call", c, m); }
    void call(char const* m) override { frame("call", nullptr, m); }
    void returned(char const* c, char const* m) override { frame("return", c, m); }
    void returned(char const* m) override { frame("return", nullptr, m); }
    void mark(char const* t) override { add("mark " + s(t)); }
    void time(char const* t) override { add("time " + s(t)); }
    void error(char const* t) override { add("error " + s(t)); }
    void warn(char const* t) override { add("warn " + s(t)); }
    void exception(exceptionGroup g, char const* t) override {
        add("exception " + std::to_string(int(g)) + " " + s(t));
    }
    void flush() override { add("flush"); }

private:
    static std::string s(char const* text) { return text ? text : "<null>"; }
    void add(std::string const& event) { events.push_back(event); }
    // The class is left out when the event has none.
    void frame(char const* kind, char const* c, char const* m) {
        add(std::string(kind) + " " + (c ? std::string(c) + "::" : "") + s(m));
    }
};

using Events = std::vector<std::string>;

// One recorder for the whole program: the process setting may still point at it after a test.
RecordingFormatter& recorder() {
    static RecordingFormatter formatter;
    return formatter;
}

class TraceTest : public ::testing::Test {
protected:
    void SetUp() override { recorder().events.clear(); }
    void TearDown() override {
        QelCoTrace::cs_disableTrace();
        QelCoTrace::cs_disableOutCallStack();
        QelCoDevelopersTrace::cs_disableTrace();
    }
    Events& events() { return recorder().events; }
};

TEST_F(TraceTest, FrameThresholdIsTheLargerOfProcessAndFrame) {
    QelCoTrace::cs_enableTrace(&recorder(), 5);
    struct Row {
        int frameThreshold;
        Events expected;
    };
    Row const rows[] = {
        {-100, {"enter C::m", "mark 5", "mark 6", "exit C::m"}},
        {3, {"enter C::m", "mark 5", "mark 6", "exit C::m"}},
        {6, {"enter C::m", "mark 6", "exit C::m"}},
        {7, {}},  // enter at level 6 is below: no enter, no exit
    };
    for (Row const& row : rows) {
        events().clear();
        {
            QelCoTrace trace("C", "m", row.frameThreshold, 6);
            trace.mark("4", 4);
            trace.mark("5", 5);
            trace.mark("6", 6);
        }
        EXPECT_EQ(row.expected, events()) << "frame threshold " << row.frameThreshold;
    }
}

TEST_F(TraceTest, FormatterFormKeepsItsOwnThreshold) {
    QelCoTrace::cs_enableTrace(&recorder(), 10);
    RecordingFormatter own;
    {
        QelCoTrace trace(&own, "m", 2, 3);
        trace.arg("n", 7, 2);
    }
    EXPECT_EQ((Events{"enter m", "arg n=7", "exit m"}), own.events);
    EXPECT_TRUE(events().empty());
    {
        // A null formatter takes the process's, still with the frame's own threshold.
        QelCoTrace trace(nullptr, "C", "m", 2, 2);
    }
    EXPECT_EQ((Events{"enter C::m", "exit C::m"}), events());
}

TEST_F(TraceTest, DisableAffectsFramesOpenedAfterwards) {
    QelCoTrace::cs_enableTrace(&recorder(), 0);
    QelCoTrace before("before", 1);
    QelCoTrace::cs_disableTrace();
    {
        QelCoTrace after("C", "after", 1000000);
        after.error("x", 1000000);
        before.error("y", 1);
    }
    EXPECT_EQ((Events{"enter before", "error y"}), events());
}

TEST_F(TraceTest, ExitFollowsEnterUnlessCallStackIsOn) {
    QelCoTrace::cs_enableTrace(&recorder(), 5);
    QelCoRuntimeException object("A", "b");
    { QelCoTrace quiet(&object, "m", 4); }
    { QelCoTrace loud(&object, "m", 5); }
    EXPECT_EQ((Events{"enter QelCoRuntimeException::m", "exit QelCoRuntimeException::m"}),
              events());

    events().clear();
    QelCoTrace::cs_enableOutCallStack();
    { QelCoTrace quiet("m", 4); }
    EXPECT_EQ((Events{"exit m"}), events());

    try {
        QelCoTrace trace(static_cast<QelCoObject const*>(nullptr), "m");
        FAIL() << "a null object must be refused";
    } catch (QelCoNullPointerException const& e) {
        EXPECT_STREQ("QelCoTraceData::QelCoTraceData()", e.where());
        EXPECT_STREQ("pObject", e.getParameterName());
    }
}

TEST_F(TraceTest, ReturnUsesTheLevelOfTheLastCall) {
    QelCoTrace::cs_enableTrace(&recorder(), 5);
    QelCoTrace trace("m", 0);
    trace.call("C", "f", 6);
    trace.returned();
    trace.call("g", 4);
    trace.returned();
    trace.call("h", 5);
    trace.returned();
    EXPECT_EQ((Events{"call C::f", "return C::f", "call h", "return h"}), events());
    try {
        trace.do_call(static_cast<QelCoObject const*>(nullptr), "f", 6);
        FAIL() << "a null object must be refused";
    } catch (QelCoNullPointerException const& e) {
        EXPECT_STREQ("QelCoTrace::do_call()", e.where());
    }
}

TEST_F(TraceTest, ArgumentFormsAndCopies) {
    QelCoTrace::cs_enableTrace(&recorder(), 1);
    {
        QelCoTrace trace("C", "m");
        trace.arg("none", static_cast<char const*>(nullptr));
        trace.arg("text", "abc");
        trace.arg("long", -5L);
        trace.argBytes("raw", "xy", 2);
        trace.do_arg("low", 1L, 0);
        QelCoTrace copy(trace);  // sends nothing, closes like its source
        trace.flush();
    }
    EXPECT_EQ((Events{"enter C::m", "arg none=''", "arg text='abc'", "arg long=-5",
                      "arg raw bytes=2", "flush", "exit C::m", "exit C::m"}),
              events());
    EXPECT_THROW(QelCoTrace::cs_enableTrace(nullptr, 0), QelCoNullPointerException);
}

TEST_F(TraceTest, CaughtWritesBeginExceptionFieldsEnd) {
    QelCoTrace::cs_enableTrace(&recorder(), 0);
    QelCoTrace trace("m", 0);
    events().clear();
    trace.caught(QelCoNullPointerException("A", "b", "p"), 0);
    trace.caught(std::runtime_error("boom"), 2);
    EXPECT_EQ((Events{"mark Exception Begin", "exception 1 QelCoNullPointerException",
                      "arg parameter='p'", "mark Exception End", "mark Exception Begin",
                      "exception 0 boom", "mark Exception End"}),
              events());

    QelCoTrace::cs_enableTrace(&recorder(), 1);
    QelCoTrace higher("m", 1);
    events().clear();
    higher.caught(QelCoNullPointerException("A", "b", "p"), 1);  // fields are level 0
    higher.caught(std::runtime_error("lost"), 0);
    EXPECT_EQ((Events{"mark Exception Begin", "exception 1 QelCoNullPointerException",
                      "mark Exception End"}),
              events());
}

TEST_F(TraceTest, DevelopersTraceHasItsOwnSettings) {
    QelCoTrace::cs_enableTrace(&recorder(), 0);
    { QelCoDevelopersTrace off("m", 1000); }
    EXPECT_TRUE(events().empty());

    RecordingFormatter developers;
    QelCoDevelopersTrace::cs_enableTrace(&developers, 3);
    { QelCoDevelopersTrace below("C", "m", 2); }
    { QelCoDevelopersTrace atThreshold("C", "m", 3); }
    EXPECT_EQ((Events{"enter C::m", "exit C::m"}), developers.events);
    EXPECT_TRUE(events().empty());

    QelCoDevelopersTrace::cs_enableTrace(nullptr, 3);
    { QelCoDevelopersTrace below("m", 2); }
    { QelCoDevelopersTrace falls("m", 3); }
    EXPECT_EQ((Events{"enter m", "exit m"}), events());
}

std::string textOf(std::function<void(QelCoTextOstreamTraceFormatter&)> const& write) {
    std::ostringstream stream;
    {
        QelCoTextOstreamTraceFormatter formatter(&stream, 0);
        write(formatter);
    }
    return stream.str();
}

TEST(TextOstreamTraceFormatter, WritesOneLinePerEvent) {
    std::string text = textOf([](QelCoTextOstreamTraceFormatter& f) {
        f.enter("C", "m");
        f.enter("m");
        f.exit("C", "m");
        f.exit("m");
        f.arg("n", -42L);
        f.arg("s", std::string("two words"));
        f.arg("b", "\x01\xff", 2);
        f.call("D", "f");
        f.call("f");
        f.returned("D", "f");
        f.returned("f");
        f.mark("here");
        f.time("now");
        f.error("bad");
        f.warn("odd");
        f.exception(QelCoTraceFormatter::userlibGroup, "E");
        f.flush();
    });
    EXPECT_EQ(
        "enter C::m()\nenter m()\nexit C::m()\nexit m()\narg n -42\narg s two words\n"
        "arg b \n00000001 ffffffff \ncall D::f()\ncall f()\nreturn D::f()\nreturn f()\n"
        "msg here\ntime now\nerror bad\nwarning odd\nexception userlib E\n",
        text);
}

TEST(TextOstreamTraceFormatter, BytesBreakEveryEightAndNullsPrintAsNull) {
    unsigned char const bytes[9] = {0, 1, 2, 3, 4, 5, 6, 0x7f, 0x80};
    EXPECT_EQ(
        "arg nine \n00000000 00000001 00000002 00000003 00000004 00000005 00000006 "
        "0000007f \nffffff80 \n",
        textOf([&](QelCoTextOstreamTraceFormatter& f) { f.arg("nine", bytes, 9); }));
    EXPECT_EQ("arg \n00000000 \narg \n", textOf([&](QelCoTextOstreamTraceFormatter& f) {
                  f.arg(nullptr, bytes, 1);
                  f.arg(nullptr, bytes, 0);
              }));
    EXPECT_EQ(
        "enter \ncall C::\nreturn m()\narg (null) 1\narg (null) \nmsg (null)\n"
        "time (null)\nerror (null)\nwarning (null)\nexception stdlib (null)\n"
        "exception qellib x\n",
        textOf([](QelCoTextOstreamTraceFormatter& f) {
            f.enter(nullptr, nullptr);
            f.call("C", nullptr);
            f.returned(nullptr, "m");
            f.arg(nullptr, 1L);
            f.arg(nullptr, std::string());
            f.mark(nullptr);
            f.time(nullptr);
            f.error(nullptr);
            f.warn(nullptr);
            f.exception(QelCoTraceFormatter::stdlibGroup, nullptr);
            f.exception(QelCoTraceFormatter::qellibGroup, "x");
        }));
}

TEST(TextOstreamTraceFormatter, OwnershipAndFiles) {
    EXPECT_THROW(QelCoTextOstreamTraceFormatter(static_cast<std::ostream*>(nullptr), 0),
                 QelCoNullPointerException);
    EXPECT_THROW(QelCoTextOstreamTraceFormatter(static_cast<char const*>(nullptr), 0),
                 QelCoNullPointerException);
    // An owned stream is deleted (the leak checker sees it otherwise).
    { QelCoTextOstreamTraceFormatter owner(new std::ostringstream, 2); }

    std::string path = ::testing::TempDir() + "velmor_trace_file.txt";
    { std::ofstream(path) << "old content that is longer than the trace\n"; }
    {
        QelCoTextOstreamTraceFormatter formatter(path.c_str(), 0);
        formatter.mark("new");
    }
    std::ifstream in(path);
    std::stringstream content;
    content << in.rdbuf();
    EXPECT_EQ("msg new\n", content.str());
    std::remove(path.c_str());
}

TEST_F(TraceTest, ExceptionsFromATraceWriteTheirOwnFields) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    std::ostringstream stream;
    QelCoTextOstreamTraceFormatter text(&stream, 0);
    QelCoTrace trace(&text, "Cls", "meth", 0, 0);
    QelCoMsg misuse;
    misuse.setMsgId(QelMessageId[33]);
    using Make = std::function<QelCoException*()>;
    struct Row {
        Make make;
        std::string fields;
    };
    Row const rows[] = {
        {[&] { return new QelCoException(trace); }, ""},
        {[&] { return new QelCoLogicalException(trace); }, ""},
        {[&] { return new QelCoRuntimeException(trace); }, ""},
        {[&] { return new QelCoNullPointerException(trace, "p"); }, "arg parameter p\n"},
        {[&] { return new QelCoNullPointerException(trace, nullptr); }, ""},
        {[&] {
             return new QelCoClassCastException(trace, QelCoObject::cs_rtti,
                                                QelCoException::cs_rtti,
                                                reinterpret_cast<void const*>(0x1234));
         },
         "arg from QelCoObject\narg to QelCoException\narg address 0x00001234\n"},
        {[&] { return new QelAnsiLogicalException(trace, std::logic_error("bad")); }, "msg bad\n"},
        {[&] { return new QelAnsiRuntimeException(trace, std::runtime_error("gone")); },
         "msg gone\n"},
        {[&] { return new QelCoMisUsageException(trace, &misuse); },
         "msg cannot use uninitialized lock-object.\n"},
        {[&] { return new QelCoOutOfRangeException(trace, "index", -3); },
         "arg arg index\narg number -3\n"},
        {[&] { return new QelCoOperationFailureExceptionTrue(trace, "open"); },
         "arg operation open\n"},
        {[&] { return new QelCoNoResourceException(trace, "threads"); }, "arg operation threads\n"},
        {[&] { return new QelCoOutOfMemoryException(trace); }, "arg operation new\n"},
        {[&] { return new QelCoSystemCallException(trace, "read", 5); },
         "arg operation read\narg errno 5\n"},
        {[&] { return new QelUtNumberFormatException(trace, "12x"); }, "arg string 12x\n"},
    };
    for (Row const& row : rows) {
        std::unique_ptr<QelCoException> exception(row.make());
        EXPECT_STREQ("Cls::meth()", exception->where());
        stream.str("");
        trace.caught(*exception, 0);
        EXPECT_EQ(std::string("msg Exception Begin\nexception qellib ") +
                      exception->getClassName() + "\n" + row.fields + "msg Exception End\n",
                  stream.str());
    }
    EXPECT_THROW(QelCoException(trace).putTraceOn(nullptr), QelCoNullPointerException);
}

}  // namespace

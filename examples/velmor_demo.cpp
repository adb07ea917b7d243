// velmor_demo: a tour of what the library offers so far. Run it through scripts/run.sh, which
// points the catalogue search at the built velqel.cat.
#include <velmor/core/QelCoTSharedPtrDefine.h>
#include <velmor/velmor.h>

#include <iostream>
#include <stdexcept>

using namespace Velmor;

// A shared object of the application: counted, and deleted by its last pointer.
class Document : public QelCoCounted {
    QEL_CO_DECLARE_RTTI()

public:
    explicit Document(char const* title) : m_title(title) {
        std::cout << "  made document \"" << m_title << "\"\n";
    }
    ~Document() override { std::cout << "  deleted document \"" << m_title << "\"\n"; }

private:
    char const* m_title;
};
QEL_CO_DEFINE_RTTI(Document, QelCoCounted)
QEL_CO_SHARED_PTR_DEFINE(Document)

static void fs_showCountedObjects() {
    std::cout << "Counted objects\n";
    QelCoTSharedPtr<Document> first(new Document("report"));
    first.newCheck();
    {
        QelCoTSharedPtr<Document> second(first);
        std::cout << "  two pointers share one " << second->getClassName() << "\n";
    }
    first = new Document("summary");  // the report goes with its last pointer
    std::cout << "  is a QelCoCounted: "
              << (first->narrowTo(QelCoCounted::cs_rtti) != nullptr ? "yes" : "no") << "\n";
}

static void fs_showExceptions() {
    std::cout << "\nExceptions and their texts\n";
    try {
        QelMtLocker guard(nullptr);
    } catch (QelCoException const& e) {
        std::cout << "  " << e.what() << "\n";
    }
    try {
        g_qelCoUsageCheckFailed("QelMtLockable", "lock", QelMessageId[33]);
    } catch (QelCoMisUsageException const& e) {
        std::cout << "  " << e.what() << "\n";
    }
    try {
        throw QelCoSystemCallException("Demo", "openConfig", "open", 2);
    } catch (QelCoException const& e) {
        QelCoException* stored = e.duplicate();  // kept for later, then raised again
        try {
            stored->raise();
        } catch (QelCoSystemCallException const& again) {
            std::cout << "  raised again as " << again.getClassName() << ": " << again.what()
                      << "\n";
        }
        delete stored;
    }
    try {
        throw QelAnsiRuntimeException("Demo", "parse", std::runtime_error("unexpected token"));
    } catch (QelCoException const& e) {
        std::cout << "  " << e << "\n";
    }
}

static void fs_showMessages() {
    std::cout << "\nMessages to each formatter\n";
    QelCoTSharedPtr<QelCoMsgFormatter> toStdout(new QelLogOstreamMsgFormatter(&std::cout, 0));
    QelCoMsg msg(toStdout, QelMessageId[22]);
    msg << "QelSysRegistryImpl::open()"
        << "QelSysPathNotFoundException"
        << "open"
        << "regdir/HKEY_LOCAL_MACHINE.dat" << 2;
    std::cout << "  to an output stream:\n  ";
    msg.warn();

    std::cout << "  to standard error (see there):\n";
    msg.setMsgFormatter(new QelCoStderrMsgFormatter());
    msg.error();

    msg.setMsgFormatter(new QelLogSystemMsgFormatter());
    msg.info();
    std::cout << "  to syslog, filled from the default text: " << msg.formatDefaultMsg() << "\n";

    msg.setMsgFormatter(new QelLogNullMsgFormatter());
    msg.error();
    std::cout << "  to nothing: (nothing written)\n";
}

static void fs_showTracing() {
    std::cout << "\nA traced frame\n";
    QelCoTextOstreamTraceFormatter formatter(&std::cout, 0);
    QelCoTrace::cs_enableTrace(&formatter, 1);
    {
        QelCoTrace trace("Demo", "run");  // enter Demo::run()
        trace.arg("count", 3);
        try {
            g_qelCoNullCheckFailed("Demo", "load", "pBuffer");
        } catch (QelCoException const& e) {
            trace.caught(e);  // Exception Begin, the exception, Exception End
        }
    }  // exit Demo::run()
    QelCoTrace::cs_disableTrace();
}

int main() {
    fs_showCountedObjects();
    fs_showExceptions();
    fs_showMessages();
    fs_showTracing();
    std::cout << "\nVelmor " << QelCnfSysParams::cs_qelVersion() << " (file version "
              << QelCnfSysParams::cs_qelFileVersion() << ") on " << QelCnfSysParams::cs_osName()
              << " " << QelCnfSysParams::cs_osVersion() << "\n";
    return 0;
}

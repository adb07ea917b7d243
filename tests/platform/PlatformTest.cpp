// System parameters, the OS wrappers that add behaviour of their own, and sleeping and umask.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

#include <velmor/velmor.h>

#include "support/VelmorTestSupport.h"

using namespace Velmor;

TEST(SysParams, SeparatorsAndVersions) {
    EXPECT_STREQ("/", QelCnfSysParams::cs_fileSeparator);
    EXPECT_STREQ(";", QelCnfSysParams::cs_pathSeparator);
    EXPECT_STREQ("\n", QelCnfSysParams::cs_lineSeparator);
    EXPECT_STREQ("", QelCnfSysParams::cs_endOfString);
    EXPECT_TRUE(QelCnfSysParams::wstr_lineSeparator.empty());
    EXPECT_TRUE(QelCnfSysParams::wstr_endOfString.empty());

    EXPECT_STREQ("01-00", QelCnfSysParams::cs_qelVersion());
    EXPECT_STREQ("1.0.0.0", QelCnfSysParams::cs_qelFileVersion());
    EXPECT_STREQ("@(#)Product Version: VELMOR 01-00", QelCnfVersionInfoData::cs_productVersion);
    EXPECT_STREQ("@(#)File Version   : 1.0.0.0", QelCnfVersionInfoData::cs_fileVersion);
    EXPECT_STREQ("@(#)Product Name   : Velmor", QelCnfVersionInfoData::cs_ppName);
    EXPECT_STREQ("$Library Name: libvelmor.so $", QelCnfVersionInfoData::cs_libName);
    std::string build = QelCnfVersionInfoData::cs_build;
    EXPECT_EQ(0u, build.find("$Build: linux-"));
#if defined(__i386__)
    EXPECT_NE(std::string::npos, build.find("i386"));
#else
    EXPECT_NE(std::string::npos, build.find("x86_64"));
#endif
}

TEST(SysParams, OperatingSystemFacts) {
    EXPECT_STREQ("Linux", QelCnfSysParams::cs_osName());
    EXPECT_GT(std::string(QelCnfSysParams::cs_osVersion()).size(), 0u);
    EXPECT_STREQ("Unknown", QelCnfSysParams::cs_osArch());
    char cwd[4096];
    ASSERT_NE(nullptr, getcwd(cwd, sizeof cwd));
    EXPECT_STREQ(cwd, QelCnfSysParams::cs_userDir());
    EXPECT_EQ(static_cast<int>(getpid()), QelCnfSysParams::cs_getCurrentProcessId());
}

TEST(SysParams, FailedSystemCallsAreReported) {
    VelmorTest::ScopedCatalogue noCatalogue("");
    {
        VelmorTest::InjectedFault fault("uname", EFAULT);
        try {
            QelCnfSysParams::cs_osVersion();
            FAIL();
        } catch (QelCoSystemCallException const& e) {
            EXPECT_STREQ("QelCnfSysParams::cs_osName()", e.where());
            EXPECT_STREQ("cs_osVersion", e.getFailedOperationName());
            EXPECT_EQ(EFAULT, e.getErrNo());
        }
    }
    VelmorTest::InjectedFault fault("getcwd", ENOENT);
    try {
        QelCnfSysParams::cs_userDir();
        FAIL();
    } catch (QelCoSystemCallException const& e) {
        EXPECT_STREQ(
            "QelCoSystemCallException thrown at QelCnfSysParams::cs_userDir(): "
            "system-call=getcwd. errno=2.",
            e.what());
    }
}

TEST(OsUnix, WrappersWithBehaviourOfTheirOwn) {
    pthread_attr_t attr;
    ASSERT_EQ(0, QelOsUnix::cs_pthread_attr_init(&attr));
    size_t size = 0;
    EXPECT_EQ(0, QelOsUnix::cs_pthread_attr_setstacksize(&attr, 1));
    QelOsUnix::cs_pthread_attr_getstacksize(&attr, &size);
    EXPECT_EQ(16384u, size);
    EXPECT_EQ(0, QelOsUnix::cs_pthread_attr_setstacksize(&attr, 16385));
    QelOsUnix::cs_pthread_attr_getstacksize(&attr, &size);
    EXPECT_EQ(16385u, size);
    EXPECT_EQ(0, QelOsUnix::cs_pthread_attr_setinheritsched(&attr));
    int inherit = -1;
    pthread_attr_getinheritsched(&attr, &inherit);
    EXPECT_EQ(PTHREAD_EXPLICIT_SCHED, inherit);
    EXPECT_EQ(0, QelOsUnix::cs_pthread_attr_setscope(&attr));
    EXPECT_EQ(0, QelOsUnix::cs_pthread_attr_setdetachstate(&attr));
    QelOsUnix::cs_pthread_attr_destroy(&attr);

    pthread_mutexattr_t mutexAttr;
    ASSERT_EQ(0, QelOsUnix::cs_pthread_mutexattr_init(&mutexAttr));
    EXPECT_EQ(0, QelOsUnix::cs_pthread_mutexattr_settype(&mutexAttr));
    int kind = -1;
    pthread_mutexattr_gettype(&mutexAttr, &kind);
    EXPECT_EQ(PTHREAD_MUTEX_RECURSIVE, kind);
    QelOsUnix::cs_pthread_mutexattr_destroy(&mutexAttr);

    unsigned long handle = 12345;
    EXPECT_EQ(12345ul, QelOsUnix::cs_pthread_getunique(&handle));

    timeval before;
    gettimeofday(&before, nullptr);
    for (int i = 0; i < 50; ++i) {
        timespec now;
        EXPECT_EQ(0, QelOsUnix::cs_clock_gettime(CLOCK_MONOTONIC, &now));
        EXPECT_EQ(0, now.tv_nsec % 1000);
        EXPECT_GE(now.tv_sec, before.tv_sec);
    }
    timespec delay = {5, 999};
    timespec expiration;
    EXPECT_EQ(0, QelOsUnix::cs_pthread_get_expiration(&delay, &expiration));
    EXPECT_EQ(0, expiration.tv_nsec);
    EXPECT_GE(expiration.tv_sec, before.tv_sec + 5);
    EXPECT_LE(expiration.tv_sec, before.tv_sec + 5 + 60);
}

TEST(OsUnix, DeletionUnlinksFilesAndRefusesDirectories) {
    char dir[] = "/tmp/velmor-os-XXXXXX";
    ASSERT_NE(nullptr, mkdtemp(dir));
    std::string file = std::string(dir) + "/f";
    int fd = QelOsUnix::cs_open(file.c_str(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(3, QelOsUnix::cs_write(fd, "abc", 3));
    EXPECT_EQ(0, QelOsUnix::cs_close(fd));
    struct stat info;
    EXPECT_EQ(0, QelOsUnix::cs_stat(file.c_str(), &info));
    EXPECT_EQ(3, info.st_size);
    EXPECT_EQ(0, QelOsUnix::cs_file_delete(file.c_str()));
    EXPECT_EQ(-1, QelOsUnix::cs_access(file.c_str(), F_OK));

    errno = 0;
    EXPECT_EQ(-1, QelOsUnix::cs_dir_delete(dir));
    EXPECT_EQ(EISDIR, errno);
    EXPECT_EQ(0, rmdir(dir));

    VelmorTest::InjectedFault fault("open", EMFILE);
    EXPECT_EQ(-1, QelOsUnix::cs_open("/dev/null", O_RDONLY));
    EXPECT_EQ(EMFILE, errno);
}

TEST(SysOs, UmaskReadsWithoutChanging) {
    int original = QelSysOs::cs_getUmask();
    QelSysOs::cs_setUmask(027);
    EXPECT_EQ(027, QelSysOs::cs_getUmask());
    EXPECT_EQ(027, QelSysOs::cs_getUmask());
    mode_t direct = umask(0);
    umask(direct);
    EXPECT_EQ(027u, direct);
    QelSysOs::cs_setUmask(original);
    EXPECT_EQ(original, QelSysOs::cs_getUmask());
    EXPECT_EQ(0u, QelSysOs::sleep(0));
    QelSysOs::sleepForMilliSeconds(0);
}

#if defined(__i386__)
TEST(Platform32, LongIsThirtyTwoBitsInMessages) {
    // On the 32-bit platform a long argument prints with its full 32-bit range.
    EXPECT_EQ(4u, sizeof(long));
    VelmorTest::ScopedCatalogue noCatalogue("");
    QelCoOutOfRangeException e("C", "m", "n", LONG_MIN);
    EXPECT_STREQ("QelCoOutOfRangeException thrown at C::m(). -2147483648 is an out of value of n.",
                 e.what());
}
#endif

#include <gtest/gtest.h>

#include <velmor/velmor.h>

TEST(Smoke, RaiseAndRead) {
    try {
        Velmor::g_qelCoNullCheckFailed("A", "b", "p");
        FAIL();
    } catch (Velmor::QelCoException const& e) {
        EXPECT_STREQ("QelCoNullPointerException thrown at A::b(): p is a null pointer.", e.what());
    }
}

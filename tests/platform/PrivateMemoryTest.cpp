#include "platform/linux/PrivateMemory.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace zelto::test {
namespace {

bool canLeaveACore() {
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    return limit.rlim_cur > 0 || limit.rlim_max > 0;
}

/// In a process of their own: what is given up is given up for good.
TEST(PrivateMemory, LeavesNoCoreAndLetsNobodyLookIn) {
    EXPECT_EXIT(
        {
            linux_platform::keepMemoryPrivate();
            std::_Exit(!canLeaveACore() && ::prctl(PR_GET_DUMPABLE) == 0 ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace zelto::test

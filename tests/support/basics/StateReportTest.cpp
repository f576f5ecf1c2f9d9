#include "support/basics/StateReport.h"

#include "support/basics/Eventually.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using namespace std::chrono_literals;

TEST(StateReport, isPartOfThePresentStateAsLongAsItExists)
{
    EXPECT_EQ(presentState(), "");
    {
        const StateReport first([] { return "first\n"; });
        const StateReport second([] { return "second\n"; });
        EXPECT_EQ(presentState(), "first\nsecond\n");
    }
    EXPECT_EQ(presentState(), "");
}

TEST(StateReport, isPrintedWhenALongWaitFails)
{
    const StateReport report([] { return "An empty desk.\n"; });

    testing::internal::CaptureStderr();
    EXPECT_FALSE(eventually([] { return false; }, 5s));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
        "--- waited for 5000 ms in vain; instead there is\nAn empty desk.\n");

    testing::internal::CaptureStderr();
    EXPECT_FALSE(eventually([] { return false; }, 10ms));
    EXPECT_TRUE(eventually([] { return true; }, 5s));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace brindlex

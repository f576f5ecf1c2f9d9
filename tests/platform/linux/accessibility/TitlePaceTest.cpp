#include "platform/linux/accessibility/TitlePace.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(TitlePace, takesFourChangesInARow)
{
    TitlePace pace;
    for (int change = 0; change < 4; ++change)
        EXPECT_TRUE(pace.takes(0.01 * change)) << change;
    for (int change = 4; change < 1000; ++change)
        EXPECT_FALSE(pace.takes(0.01 * change)) << change;
}

TEST(TitlePace, takesEachChangeAfterARest)
{
    TitlePace pace;
    for (int change = 0; change < 100; ++change)
        EXPECT_TRUE(pace.takes(0.25 * change)) << change;
}

TEST(TitlePace, beginsAfreshOnceATickerRests)
{
    TitlePace pace;
    for (int change = 0; change < 100; ++change)
        pace.takes(0.01 * change);
    EXPECT_FALSE(pace.takes(0.99 + 0.249));
    EXPECT_TRUE(pace.takes(0.99 + 0.249 + 0.25));
}

} // namespace
} // namespace brindlex
